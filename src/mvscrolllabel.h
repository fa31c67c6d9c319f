#ifndef MVSCROLLLABEL_H
#define MVSCROLLLABEL_H

#include "panelkitglobal.h"

#include <QLabel>
#include <QPoint>
#include <QString>

#include <memory>

namespace panelkit
{
class KeptLines;
}

/**
 * A text in Latin-1, wrapped to the width of the label between any two characters. If it is higher
 * than the label it scrolls upward, endlessly, from two seconds after it was set or shown, and a
 * finger can push it. currentTextChanged and scrollStateChanged report what happens.
 *
 * The text scrolls anew each time it is shown, so that scrollStateChanged may be emitted while the
 * label is being shown: a slot that is connected to it directly must not delete the label then,
 * only ask for it with deleteLater().
 */
class PANELKIT_EXPORT MVScrollLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString buttonID READ buttonID WRITE setButtonID)
    Q_PROPERTY(int scrollSpeed READ scrollSpeed WRITE setScrollSpeed)

public:
    explicit MVScrollLabel(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~MVScrollLabel() override;

    QString buttonID() const { return m_buttonID; }
    void setButtonID(const QString &id);
    int scrollSpeed() const { return m_scrollSpeed; }
    void setScrollSpeed(const int &ms);

    bool isScroll() { return m_isScrolling; }
    int getHeight();

public slots:
    void setText(QString curText);
    void startScroll();
    void stopScroll();

signals:
    void currentTextChanged();
    void scrollStateChanged(bool scroll);

protected:
    void paintEvent(QPaintEvent *e) override;
    void showEvent(QShowEvent *e) override;
    void hideEvent(QHideEvent *e) override;
    void timerEvent(QTimerEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private slots:
    void metrics();

private:
    void endTimer();
    void pushTo(const QPoint &pos);

    int m_scrollOffset = 0; // px
    int m_timerId = 0; // 0: none; kept when a hidden label's timer ends
    int m_cycleHeight = 0; // px, after which the text repeats
    QString m_buttonID = QStringLiteral("ID_MVScrollLabel");
    int m_scrollSpeed = 50; // ms for each px
    bool m_isScrolling = false;
    QPoint m_lastTouch;
    bool m_isTicking = false; // the timer of the id runs
    std::unique_ptr<panelkit::KeptLines> m_lines;
};

#endif // MVSCROLLLABEL_H
