// SPDX-License-Identifier: Apache-2.0
#ifndef SPLOCKBUTTON_H
#define SPLOCKBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <memory>

/**
 * A latching image button, such as a lock or a mute key: every press turns it over between up and
 * down, at once and wherever the finger is lifted. Its pressed picture is made by fading the normal
 * one (AlphaMode) or given (HighlightMode); a caption may stand in its middle.
 *
 * One touch reports btnPressed and btnReleased with buttonID, and asks the application for a click
 * sound.
 */
class PANELKIT_EXPORT SpLockButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(ShowMode showMode READ showMode WRITE setShowMode)
    Q_PROPERTY(DisableMode disableMode READ disableMode WRITE setDisableMode)
    Q_PROPERTY(QPixmap normalImage READ normalImage WRITE setNormalImage)
    Q_PROPERTY(QPixmap pressImage READ pressImage WRITE setPressImage)
    Q_PROPERTY(QPixmap disableImage READ disableImage WRITE setDisableImage)
    Q_PROPERTY(int imageAlpha READ imageAlpha WRITE setImageAlpha)
    Q_PROPERTY(int disableAlpha READ disableAlpha WRITE setDisableAlpha)
    Q_PROPERTY(bool disableState READ disableState WRITE setDisableState)
    Q_PROPERTY(bool isDown READ isDown WRITE setIsDown)
    Q_PROPERTY(QString buttonID READ buttonID WRITE setButtonID)
    Q_PROPERTY(QString displayText READ displayText WRITE setDisplayText)
    Q_PROPERTY(QColor normalTextColor READ normalTextColor WRITE setNormalTextColor)
    Q_PROPERTY(QColor pressTextColor READ pressTextColor WRITE setPressTextColor)
    Q_PROPERTY(QColor disableTextColor READ disableTextColor WRITE setDisableTextColor)

public:
    /// Where the picture of the down state comes from.
    enum ShowMode : int {
        AlphaMode = 0, ///< It is the normal one, faded by imageAlpha.
        HighlightMode = 1 ///< It is the one given as pressImage.
    };
    Q_ENUM(ShowMode)

    /// Where the picture of the disabled look comes from.
    enum DisableMode : int {
        Show_NormalImage = 0, ///< It is the normal one.
        Show_DisableImage = 1, ///< It is the one given as disableImage.
        Show_NormalImageAlpha = 2 ///< It is the normal one, faded by disableAlpha.
    };
    Q_ENUM(DisableMode)

    explicit SpLockButton(QWidget *parent = nullptr);
    ~SpLockButton() override;

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
    int imageAlpha() const;
    void setImageAlpha(const int &alpha);
    int disableAlpha() const;
    void setDisableAlpha(const int &alpha);
    bool disableState() const;
    void setDisableState(const bool &disabled);
    bool isDown() const;
    void setIsDown(bool down);
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

    void setFontSize(int px);
    void setPressImageAlpha(int alpha, const QPixmap &source, QPixmap &target);

signals:
    void btnPressed(QString btnID);
    void btnReleased(QString btnID);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPLOCKBUTTON_H
