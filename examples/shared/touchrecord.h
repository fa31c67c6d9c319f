// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_TOUCHRECORD_H
#define SHARED_TOUCHRECORD_H

#include <QByteArray>
#include <QPointF>
#include <QSize>
#include <QString>
#include <QVector>

class QIODevice;

/// One line of a touch log: what a finger or the mouse did, when and where.
struct TouchRecord {
    enum Kind { TouchPress, TouchMove, TouchRelease, MousePress, MouseMove, MouseRelease };

    bool isTouch() const { return kind <= TouchRelease; }
    /// As in the log: the time, the kind, the finger or button and the position, and a line end.
    QByteArray line() const;

    qint64 time; // ms since the log began
    Kind kind;
    int id; // of the finger, or the mouse button as Qt numbers it; 0 while a mouse moves
    QPointF pos; // in the window
};

/// The touches of a log and the size of the window that they were made on.
struct TouchRecording {
    /// The first line of a log of a window of this size.
    static QByteArray head(const QSize &window);
    /// Reads a log; the sentence says which line makes no sense and why, if one does. Fingers and
    /// buttons that are still down at the end are lifted there.
    static TouchRecording read(QIODevice &device, QString *sentence);

    QSize window;
    QVector<TouchRecord> records;
};

#endif // SHARED_TOUCHRECORD_H
