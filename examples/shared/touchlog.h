// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_TOUCHLOG_H
#define SHARED_TOUCHLOG_H

#include "touchrecord.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QPointer>
#include <QTouchEvent>
#include <QVector>
#include <QWidget>

class QMouseEvent;
class QWindow;

/**
 * Writes down what a person does to a window with fingers or a mouse, as it comes in from the
 * window system, before any widget sees it: a head with the size of the window, then a line for
 * each press, move and release with its time in ms, its position in the window and the number of
 * the finger or button. A finger has the lowest number that is free. Touches are recorded once, as
 * touches, not again as the mouse events that Qt makes of them. What is done to menus and dialogs
 * above the window counts as done to it.
 *
 * Each line is in the file before its touch has any effect, so that the last one is there after
 * whatever that effect was. The wheel and the keyboard are not recorded.
 */
class TouchLog : public QObject
{
    Q_OBJECT

public:
    explicit TouchLog(QWidget &window, QObject *parent = nullptr);

    /// Begins the file anew; false, and failed(), if it cannot be written.
    bool start(const QString &path);
    bool isRecording() const { return m_file.isOpen(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// One sentence that says why nothing more is recorded.
    void failed(const QString &sentence);

private:
    struct Finger {
        int id; // of Qt, which may number those of several screens
        int number;
        QPointF screenPos;
    };

    bool isAboveWindow(const QWindow *window) const;
    void recordTouch(const QTouchEvent &event);
    void recordMouse(const QMouseEvent &event);
    void recordPoint(const QTouchEvent::TouchPoint &point);
    int freeNumber() const;
    void add(TouchRecord::Kind kind, int id, const QPointF &screenPos);
    void takeNewSize();
    void write(const QByteArray &bytes);
    void fail(const QString &sentence);

    QPointer<QWidget> m_window;
    QFile m_file;
    QElapsedTimer m_sinceStart;
    QSize m_size;
    bool m_hasRecords = false;
    QVector<Finger> m_fingers; // those that are down
    Qt::MouseButtons m_buttons;
};

#endif // SHARED_TOUCHLOG_H
