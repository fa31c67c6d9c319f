#ifndef SPICONBUTTON_H
#define SPICONBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

class QTimer;

namespace panelkit
{
class ImageLook;
class KeptText;
} // namespace panelkit

/**
 * The basic touch button: one of several pictures centred in the widget, with a caption over it.
 *
 * Give it a normal picture, and either pictures of its own for the pressed and focused looks
 * (HighlightMode) or let it darken the normal one (AlphaMode). One touch reports btnPressed, then
 * any btnLongPress, then btnClicked or btnLongRelease while the finger is still near the point of
 * the press, then btnReleased. Every signal carries buttonID, so that one slot can serve a whole
 * screen. On each press it asks the application for a click sound: see the guide on press feedback.
 */
class PANELKIT_EXPORT SpIconButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(ShowMode showMode READ showMode WRITE setShowMode)
    Q_PROPERTY(DisableMode disableMode READ disableMode WRITE setDisableMode)
    Q_PROPERTY(QPixmap normalImage READ normalImage WRITE setNormalImage)
    Q_PROPERTY(QPixmap pressImage READ pressImage WRITE setPressImage)
    Q_PROPERTY(QPixmap disableImage READ disableImage WRITE setDisableImage)
    Q_PROPERTY(QPixmap focusPixmap READ focusPixmap WRITE setFocusPixmap)
    Q_PROPERTY(int imageAlpha READ imageAlpha WRITE setImageAlpha)
    Q_PROPERTY(int disableAlpha READ disableAlpha WRITE setDisableAlpha)
    // Listed twice on purpose: forms that count properties rely on the second entry.
    Q_PROPERTY(int disableAlpha READ disableAlpha WRITE setDisableAlpha)
    Q_PROPERTY(bool disableState READ disableState WRITE setDisableState)
    Q_PROPERTY(bool isFocus READ isFocus WRITE setFocus DESIGNABLE false)
    Q_PROPERTY(bool supportLongPress READ supportLongPress WRITE setSupportLongPress)
    Q_PROPERTY(int timerInterval READ timerInterval WRITE setTimerInterval)
    Q_PROPERTY(int timerInterval2 READ getTimerInt2 WRITE setTimerInt2 DESIGNABLE false)
    Q_PROPERTY(QString buttonID READ buttonID WRITE setButtonID)
    Q_PROPERTY(QString displayText READ displayText WRITE setDisplayText)
    Q_PROPERTY(QColor normalTextColor READ normalTextColor WRITE setNormalTextColor)
    Q_PROPERTY(QColor pressTextColor READ pressTextColor WRITE setPressTextColor)
    Q_PROPERTY(QColor disableTextColor READ disableTextColor WRITE setDisableTextColor)
    Q_PROPERTY(QColor focusTextColor READ focusTextColor WRITE setFocusTextColor)
    Q_PROPERTY(int textTopMargin READ textTopMargin WRITE setTextTopMargin)
    Q_PROPERTY(int textHeight READ textHeight WRITE setTextHeight)
    Q_PROPERTY(int textLeftMargin READ textLeftMargin WRITE setTextLeftMargin)
    Q_PROPERTY(int textWidth READ textWidth WRITE setTextWidth)
    Q_PROPERTY(Qt::Alignment textAlign READ textAlign WRITE setTextAlign)
    Q_PROPERTY(bool isBeep READ isBeep WRITE setIsBeep)
    Q_PROPERTY(QString pressImgPath READ pressImgPath WRITE setPressImgPath)

public:
    /// How the pressed and focused looks are made.
    enum ShowMode : int {
        AlphaMode = 0, ///< The normal picture under a black veil of imageAlpha.
        HighlightMode = 1 ///< Pictures of their own: pressImage and focusPixmap.
    };
    Q_ENUM(ShowMode)

    /// How the disabled look is made.
    enum DisableMode : int {
        Show_NormalImage = 0, ///< The normal picture, unchanged.
        Show_DisableImage = 1, ///< disableImage.
        Show_NormalImageAlpha = 2 ///< The normal picture under a black veil of disableAlpha.
    };
    Q_ENUM(DisableMode)

    explicit SpIconButton(QWidget *parent = nullptr);
    ~SpIconButton() override;

    ShowMode showMode() const { return m_showMode; }
    void setShowMode(const ShowMode &mode);
    DisableMode disableMode() const { return m_disableMode; }
    void setDisableMode(const DisableMode &mode);
    QPixmap normalImage() const { return m_normalImage; }
    void setNormalImage(const QPixmap &image);
    QPixmap pressImage() const { return m_pressImage; }
    void setPressImage(const QPixmap &image);
    QPixmap disableImage() const { return m_disableImage; }
    void setDisableImage(const QPixmap &image);
    QPixmap focusPixmap() const { return m_focusPixmap; }
    void setFocusPixmap(const QPixmap &pixmap);
    int imageAlpha() const { return m_imageAlpha; }
    void setImageAlpha(const int &alpha);
    int disableAlpha() const { return m_disableAlpha; }
    void setDisableAlpha(const int &alpha);
    bool disableState() const { return m_disableState; }
    void setDisableState(const bool &disabled);
    bool isFocus() const { return m_isFocus; }
    void setFocus(const bool &focused);
    bool supportLongPress() const { return m_supportLongPress; }
    void setSupportLongPress(bool supported);
    int timerInterval() const;
    void setTimerInterval(const int &interval);
    int getTimerInt2() const { return m_timerInterval2; }
    void setTimerInt2(int interval);
    QString buttonID() const { return m_buttonID; }
    void setButtonID(const QString &id);
    QString displayText() const { return m_displayText; }
    void setDisplayText(const QString &text);
    QColor normalTextColor() const { return m_normalTextColor; }
    void setNormalTextColor(const QColor &color);
    QColor pressTextColor() const { return m_pressTextColor; }
    void setPressTextColor(const QColor &color);
    QColor disableTextColor() const { return m_disableTextColor; }
    void setDisableTextColor(const QColor &color);
    QColor focusTextColor() const { return m_focusTextColor; }
    void setFocusTextColor(const QColor &color);
    int textTopMargin() const { return m_textTopMargin; }
    void setTextTopMargin(int margin);
    int textHeight() const { return m_textHeight; }
    void setTextHeight(int height);
    int textLeftMargin() const { return m_textLeftMargin; }
    void setTextLeftMargin(int margin);
    int textWidth() const { return m_textWidth; }
    void setTextWidth(int width);
    Qt::Alignment textAlign() const { return m_textAlign; }
    void setTextAlign(Qt::Alignment alignment);
    bool isBeep() { return m_isBeep; }
    void setIsBeep(bool beep);
    QString pressImgPath() const { return m_pressImgPath; }
    void setPressImgPath(QString path);

    static SpIconButton *GetInstance();
    static void ReleaseInstance(SpIconButton *p);

    bool isDown() const { return m_isDown; }
    void setIsDown(bool down);
    bool isLock() const { return m_isLock; }
    void setIsLock(bool lock);
    void setStartTimer(bool start);
    float getAlphaOpacity(int alpha);
    void setFontSize(int px);

signals:
    void btnPressed(QString btnID);
    void btnReleased(QString btnID);
    void btnClicked(QString btnID);
    void btnLongPress(QString btnID);
    void btnLongRelease(QString btnID);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;

private slots:
    void longPressSlot();

private:
    struct Look;

    bool isDrawnEnabled() const;
    bool isNearPress(const QPoint &pos) const;
    QRect imageRect() const;
    QRect textRect() const;
    Look enabledLook() const;
    Look disabledLook() const;
    QColor captionColor() const;
    void drawPicture(QPainter &painter) const;
    void drawCaption(QPainter &painter) const;

    QPixmap m_normalImage;
    QPixmap m_pressImage;
    QPixmap m_disableImage;
    QPixmap m_focusPixmap;
    QString m_pressImgPath;
    ShowMode m_showMode = HighlightMode;
    DisableMode m_disableMode = Show_NormalImageAlpha;
    QSize m_imageSize{32, 32};
    int m_imageAlpha = 154; // 0..255
    int m_disableAlpha = 154; // 0..255
    int m_timerInterval = 1000; // ms
    int m_timerInterval2 = -1; // ms, negative: no repeat
    bool m_isDown = false;
    bool m_disableState = false;
    bool m_isFocus = false;
    bool m_isLock = false;
    bool m_supportLongPress = false;
    bool m_longPressed = false;
    QString m_buttonID = QStringLiteral("SpIconButton_ID");
    QPoint m_pressPos;
    QString m_displayText;
    QColor m_normalTextColor{255, 255, 255, 255};
    QColor m_pressTextColor{255, 0, 0, 255};
    QColor m_disableTextColor{255, 255, 255, 154};
    QColor m_focusTextColor{Qt::white};
    QTimer *m_longPressTimer = nullptr;
    int m_textTopMargin = 0; // px
    int m_textHeight = 0; // px, 0: the full height
    int m_textLeftMargin = 0; // px
    int m_textWidth = 0; // px, 0: the full width
    Qt::Alignment m_textAlign = Qt::AlignCenter;
    bool m_isBeep = true;

    std::unique_ptr<panelkit::ImageLook> m_look;
    std::unique_ptr<panelkit::KeptText> m_caption;
};

#endif // SPICONBUTTON_H
