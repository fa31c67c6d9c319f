// SPDX-License-Identifier: Apache-2.0
#ifndef SPICONBUTTON_H
#define SPICONBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <memory>

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
    // Listed twice (kept behaviour).
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

    ShowMode showMode() const;
    void setShowMode(const ShowMode &mode);
    DisableMode disableMode() const;
    void setDisableMode(const DisableMode &mode);
    QPixmap normalImage() const;
    void setNormalImage(const QPixmap &image);
    QPixmap pressImage() const;
    void setPressImage(const QPixmap &image);
    QPixmap disableImage() const;
    void setDisableImage(const QPixmap &image);
    QPixmap focusPixmap() const;
    void setFocusPixmap(const QPixmap &pixmap);
    int imageAlpha() const;
    void setImageAlpha(const int &alpha);
    int disableAlpha() const;
    void setDisableAlpha(const int &alpha);
    bool disableState() const;
    void setDisableState(const bool &disabled);
    bool isFocus() const;
    void setFocus(const bool &focused);
    bool supportLongPress() const;
    void setSupportLongPress(bool supported);
    int timerInterval() const;
    void setTimerInterval(const int &interval);
    int getTimerInt2() const;
    void setTimerInt2(int interval);
    QString buttonID() const;
    void setButtonID(const QString &id);
    QString displayText() const;
    void setDisplayText(const QString &text);
    QColor normalTextColor() const;
    void setNormalTextColor(const QColor &color);
    QColor pressTextColor() const;
    void setPressTextColor(const QColor &color);
    QColor disableTextColor() const;
    void setDisableTextColor(const QColor &color);
    QColor focusTextColor() const;
    void setFocusTextColor(const QColor &color);
    int textTopMargin() const;
    void setTextTopMargin(int margin);
    int textHeight() const;
    void setTextHeight(int height);
    int textLeftMargin() const;
    void setTextLeftMargin(int margin);
    int textWidth() const;
    void setTextWidth(int width);
    Qt::Alignment textAlign() const;
    void setTextAlign(Qt::Alignment alignment);
    bool isBeep();
    void setIsBeep(bool beep);
    QString pressImgPath() const;
    void setPressImgPath(QString path);

    static SpIconButton *GetInstance();
    static void ReleaseInstance(SpIconButton *p);

    bool isDown() const;
    void setIsDown(bool down);
    bool isLock() const;
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
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPICONBUTTON_H
