// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_TOUCHREPLAY_H
#define SHARED_TOUCHREPLAY_H

#include "feed.h"
#include "touchrecord.h"

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

/**
 * Plays what a TouchLog has recorded: in the same order, at the same times and positions, touches
 * as touches of a screen and mouse events as those of a mouse. A window of another size is refused,
 * for its widgets are elsewhere, and so is a file with any line that makes no sense. Fingers and
 * buttons that are still down at the end of the file are lifted where they are.
 */
class TouchReplay : public QObject
{
    Q_OBJECT

public:
    explicit TouchReplay(QWidget &window, QObject *parent = nullptr);

    /// Reads the file; false, and failed(), if it cannot be played on this window.
    bool load(const QString &path);
    /// Begins to play, from the first line.
    void start();

signals:
    /// One sentence that says why the file is not played.
    void failed(const QString &sentence);
    /// The last touch has been played, or the window has been deleted.
    void finished();

private:
    void schedule();
    void playNext();
    void playTouches();
    void playMouse();
    QWindow &target() const;
    QPointF inTarget(const QPointF &pos) const;

    QPointer<QWidget> m_window;
    TouchRecording m_recording;
    int m_next = 0;
    QElapsedTimer m_sinceStart;
    QTimer m_timer;
    QMap<int, QPointF> m_fingers; // those that are down
    Qt::MouseButtons m_buttons;
};

#endif // SHARED_TOUCHREPLAY_H
