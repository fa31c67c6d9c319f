#ifndef SPDISLABEL_H
#define SPDISLABEL_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

namespace panelkit
{
class KeptLayer;
class KeptText;
} // namespace panelkit

/**
 * A label that can be touched: a string on a coloured ground, square or rounded, or a picture in
 * the middle.
 *
 * A string that is set with setText() is shortened to the width that the label has at that moment;
 * setNormalText() leaves it whole. A touch reports pressed and released with btnID, wherever it
 * ends. Touches end here, unless holdMouseEvent is off: then the parent hears of them as well. Each
 * press asks the application for a click sound.
 */
class PANELKIT_EXPORT SpDisLabel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(DispalyMode displayMode READ displayMode WRITE setDisplayMode)
    Q_PROPERTY(QColor fontColor READ fontColor WRITE setFontColor)
    Q_PROPERTY(QColor pressFontColor READ pressFontColor WRITE setPressFontColor)
    Q_PROPERTY(
        QColor normalBackgroundColor READ normalBackgroundColor WRITE setNormalBackgroundColor)
    Q_PROPERTY(QColor pressBackgroundColor READ pressBackgroundColor WRITE setPressBackgroundColor)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QPixmap icon READ icon WRITE setIcon)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)
    Q_PROPERTY(int fontsize READ fontSize WRITE setFontSize DESIGNABLE false)
    Q_PROPERTY(bool isDown READ isDown WRITE setIsDown)
    Q_PROPERTY(bool isLock READ isLock WRITE setIsLock)
    Q_PROPERTY(bool holdMouseEvent READ holdMouseEvent WRITE setholdMouseEvent DESIGNABLE false)
    Q_PROPERTY(Qt::Alignment alignment READ getAlignment WRITE setAlignment)
    Q_PROPERTY(bool isBeep READ isBeep WRITE setIsBeep)
    Q_PROPERTY(int btnID READ btnID WRITE setBtnID)
    Q_PROPERTY(int roundXY READ roundXY WRITE setRoundXY)

public:
    /// What the label shows.
    enum DispalyMode : int {
        String = 0, ///< The text on its ground.
        Picture = 1 ///< The icon, whether down or not.
    };
    Q_ENUM(DispalyMode)

    explicit SpDisLabel(QWidget *parent = nullptr);
    ~SpDisLabel() override;

    DispalyMode displayMode() const { return m_displayMode; }
    void setDisplayMode(const DispalyMode &mode);
    QColor fontColor() const { return m_fontColor; }
    void setFontColor(const QColor &color);
    QColor pressFontColor() const { return m_pressFontColor; }
    void setPressFontColor(const QColor &color);
    QColor normalBackgroundColor() const { return m_normalBackgroundColor; }
    void setNormalBackgroundColor(const QColor &color);
    QColor pressBackgroundColor() const { return m_pressBackgroundColor; }
    void setPressBackgroundColor(const QColor &color);
    QString text() const { return m_text; }
    void setText(const QString &text);
    QPixmap icon() const { return m_icon; }
    void setIcon(const QPixmap &icon);
    QSize iconSize() const { return m_iconSize; }
    void setIconSize(const QSize &size);
    int fontSize() const { return m_fontSize; }
    void setFontSize(int px);
    bool isDown() const { return m_isDown; }
    void setIsDown(const bool &down);
    bool isLock() const { return m_isLock; }
    void setIsLock(const bool &lock);
    bool holdMouseEvent() const { return m_holdMouseEvent; }
    void setholdMouseEvent(const bool &hold);
    Qt::Alignment getAlignment() const { return m_alignment; }
    void setAlignment(const Qt::Alignment &alignment);
    bool isBeep() const { return m_isBeep; }
    void setIsBeep(const bool &beep);
    int btnID() const { return m_btnID; }
    void setBtnID(int id);
    int roundXY() const { return m_roundXY; }
    void setRoundXY(int radius);

    static SpDisLabel *GetInstance();
    static void ReleaseInstance(SpDisLabel *p);

    /// Sets a text that is not shortened.
    void setNormalText(const QString &text);

signals:
    void pressed(int id);
    void released(int id);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    QString shortened(const QString &text) const;
    void drawGround(QPainter &painter) const;
    void drawText(QPainter &painter) const;
    void drawIcon(QPainter &painter) const;

    DispalyMode m_displayMode = String;
    QColor m_fontColor{Qt::white};
    QColor m_pressFontColor{Qt::white};
    QColor m_normalBackgroundColor{0, 0, 0, 0};
    QColor m_pressBackgroundColor{0, 0, 0, 0};
    QString m_text;
    QString m_shownText; // as it is drawn, perhaps shortened
    QPixmap m_icon;
    QSize m_iconSize{32, 32};
    int m_fontSize = 30; // px
    bool m_isDown = false;
    bool m_isLock = false;
    bool m_holdMouseEvent = true;
    Qt::Alignment m_alignment = Qt::AlignCenter;
    bool m_isBeep = true;
    int m_btnID = 0;
    int m_roundXY = 0; // px, 0: square

    std::unique_ptr<panelkit::KeptLayer> m_ground;
    std::unique_ptr<panelkit::KeptText> m_caption;
};

#endif // SPDISLABEL_H
