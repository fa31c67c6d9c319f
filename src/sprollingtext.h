#ifndef SPROLLINGTEXT_H
#define SPROLLINGTEXT_H

#include "panelkitglobal.h"

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QString>
#include <QWidget>

#include <memory>

class QTimer;

namespace panelkit
{
class KeptLines;
class KeptText;
} // namespace panelkit

/**
 * One line of text. A text that is too wide for the widget rolls from right to left, endlessly and
 * with both ends faded out; with autoRoll off it is shortened with "..." instead. Which of them it
 * is, is decided by setText(), with the width and the font of that moment: set them first.
 *
 * paintFinish is emitted in the middle of a paint event: a slot that is connected to it directly
 * must not delete the widget, only ask for it with deleteLater().
 */
class PANELKIT_EXPORT SpRollingText : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(Qt::Alignment textAlignment READ textAlignment WRITE setTextAlignment)
    Q_PROPERTY(bool dropShodow READ dropShodow WRITE setDropShodow)
    Q_PROPERTY(QColor shadowColor READ shadowColor WRITE setShadowColor)
    Q_PROPERTY(QPointF shadowOffset READ shadowOffset WRITE setShadowOffset)
    Q_PROPERTY(bool autoRoll READ autoRoll WRITE setAutoRoll)

public:
    explicit SpRollingText(QWidget *parent = nullptr);
    ~SpRollingText() override;

    QString text() const { return m_text; }
    void setText(QString text);
    int fontSize() const { return m_fontSize; }
    void setFontSize(int size);
    QColor textColor() const { return m_textColor; }
    void setTextColor(QColor color);
    Qt::Alignment textAlignment() const { return m_textAlignment; }
    void setTextAlignment(Qt::Alignment alignment);
    bool dropShodow() const { return m_dropShadow; }
    void setDropShodow(bool on);
    QColor shadowColor() const { return m_shadowColor; }
    void setShadowColor(QColor color);
    QPointF shadowOffset() const { return m_shadowOffset; }
    void setShadowOffset(QPointF offset);
    bool autoRoll() const { return m_autoRoll; }
    void setAutoRoll(bool on);

    void clear();
    void setWaitRoll(int ms);
    void effectDropShadow();

signals:
    void paintFinish();

protected:
    void paintEvent(QPaintEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private slots:
    void updateIndex();
    void paintFinishSlot();

private:
    bool isWaiting() const { return m_waitCounter != m_waitTicks; }
    bool isTooWide(const QString &text) const;
    QString shortened() const;
    void startRolling();
    void drawResting(QPainter &painter);
    void drawRolling(QPainter &painter);
    int displayWidth();

    QTimer *m_rollTimer;
    QString m_rollSource; // the text, and when it is too wide the gap
    QString m_displayText;
    QString m_text;
    QColor m_textColor = QColor(255, 255, 255);
    Qt::Alignment m_textAlignment = Qt::AlignCenter;
    int m_nextIndex = 0; // in the roll source
    int m_pixelOffset = 0; // px, to the left
    int m_firstWidth = 0; // px, of the first character that is displayed
    int m_fontSize = 20; // px
    bool m_isRolling = false;
    bool m_autoRoll = true;
    int m_waitTicks = 0;
    int m_waitCounter = 0; // ticks waited so far
    bool m_dropShadow = false;
    QColor m_shadowColor = QColor(0, 0, 0);
    QPointF m_shadowOffset = QPointF(2, 2); // px
    QString m_measuredText; // what the kept width belongs to
    QFont m_measuredFont;
    int m_displayWidth = 0; // px
    std::unique_ptr<panelkit::KeptText> m_resting;
    std::unique_ptr<panelkit::KeptLines> m_rolling;
};

#endif // SPROLLINGTEXT_H
