#ifndef SPLOCKBUTTON_H
#define SPLOCKBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

namespace panelkit
{
class ImageLook;
class KeptText;
} // namespace panelkit

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
    int imageAlpha() const { return m_imageAlpha; }
    void setImageAlpha(const int &alpha);
    int disableAlpha() const { return m_disableAlpha; }
    void setDisableAlpha(const int &alpha);
    bool disableState() const { return m_disableState; }
    void setDisableState(const bool &disabled);
    bool isDown() const { return m_isDown; }
    void setIsDown(bool down);
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
    const QPixmap &currentImage() const;
    QColor captionColor() const;
    void drawPicture(QPainter &painter) const;
    void drawCaption(QPainter &painter) const;

    QPixmap m_normalImage;
    QPixmap m_pressImage;
    QPixmap m_disableImage;
    ShowMode m_showMode = AlphaMode;
    DisableMode m_disableMode = Show_NormalImage;
    QSize m_imageSize{32, 32}; // px, of the image rectangle
    int m_imageAlpha = 154; // 0..255
    int m_disableAlpha = 154; // 0..255
    bool m_isDown = false;
    bool m_disableState = false;
    QString m_buttonID = QStringLiteral("SpLockButton_ID");
    QString m_displayText;
    QColor m_normalTextColor{255, 255, 255, 255};
    QColor m_pressTextColor{255, 0, 0, 255};
    QColor m_disableTextColor{100, 100, 100, 255};

    std::unique_ptr<panelkit::ImageLook> m_look;
    std::unique_ptr<panelkit::KeptText> m_caption;
};

#endif // SPLOCKBUTTON_H
