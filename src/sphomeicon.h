#ifndef SPHOMEICON_H
#define SPHOMEICON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

class QMovie;

/**
 * A launcher tile of a home screen: a picture, still or animated, with a caption under it or over
 * it, that reports touches with its number.
 *
 * Give it a normal picture, of which it makes the pressed one itself, or an animated GIF; then
 * pictures for an application that runs, that is not ready, and for the current source, which lie
 * over it. The tile takes its size from its picture. A touch reports itemPress, itemMove and
 * itemRelease; what is a click, a drag or a long press is for the receiver to decide.
 */
class PANELKIT_EXPORT SpHomeIcon : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap normalImage READ normalImage WRITE setNormalImage)
    Q_PROPERTY(QPixmap pressImage READ pressImage WRITE setPressImage)
    Q_PROPERTY(QPixmap runningImage READ runningImage WRITE setRunningImage)
    Q_PROPERTY(QPixmap grayImage READ grayImage WRITE setGrayImage)
    Q_PROPERTY(QPixmap switchImage READ switchImage WRITE setSwitchImage)
    Q_PROPERTY(int imageAlpha READ imageAlpha WRITE setImageAlpha)
    Q_PROPERTY(QString iconText READ iconText WRITE setIconText)
    Q_PROPERTY(QString iconName READ iconName WRITE setIconName)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)
    Q_PROPERTY(QColor fontColor READ fontColor WRITE setFontColor)
    Q_PROPERTY(QColor pressTextColor READ pressTextColor WRITE setPressTextColor)
    Q_PROPERTY(QColor grayTextColor READ grayTextColor WRITE setGrayTextColor)
    Q_PROPERTY(QColor runningTextColor READ runningTextColor WRITE setRunningTextColor)
    Q_PROPERTY(int itemIndex READ itemIndex WRITE setItemIndex)
    Q_PROPERTY(bool hideText READ hideText WRITE setHideText)
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize)
    Q_PROPERTY(int textMargin READ textMargin WRITE setTextMargin)
    Q_PROPERTY(int textMarginH READ textMarginH WRITE setTextMarginH)
    Q_PROPERTY(bool textInPic READ textInPic WRITE setTextInPic)
    Q_PROPERTY(Qt::Alignment textAlignment READ textAlignment WRITE setTextAlignment)
    Q_PROPERTY(int imageMarginH READ imageMarginH WRITE setImageMarginH)
    Q_PROPERTY(QString gifImage READ gifImage WRITE setGifImage)
    Q_PROPERTY(int gifSpeed READ gifSpeed WRITE setGifSpeed)
    Q_PROPERTY(QString pressImgPath READ pressImgPath WRITE setPressImgPath)
    Q_PROPERTY(QString grayImgPath READ grayImgPath WRITE setGrayImgPath)

public:
    explicit SpHomeIcon(QWidget *parent = nullptr);
    ~SpHomeIcon() override;

    QPixmap normalImage() const { return m_normalImage; }
    void setNormalImage(const QPixmap &image);
    QPixmap pressImage() const { return m_pressImage; }
    void setPressImage(const QPixmap &image);
    QPixmap runningImage() const { return m_runningImage; }
    void setRunningImage(const QPixmap &image);
    QPixmap grayImage() const { return m_grayImage; }
    void setGrayImage(const QPixmap &image);
    QPixmap switchImage() const { return m_switchImage; }
    void setSwitchImage(const QPixmap &image);
    int imageAlpha() const { return m_imageAlpha; }
    void setImageAlpha(const int &alpha);
    QString iconText() const { return m_iconText; }
    void setIconText(const QString &text);
    QString iconName() const { return m_iconName; }
    void setIconName(const QString &name);
    QSize iconSize() const { return m_iconSize; }
    void setIconSize(const QSize &size);
    QColor fontColor() const { return m_fontColor; }
    void setFontColor(const QColor &color);
    QColor pressTextColor() const { return m_pressTextColor; }
    void setPressTextColor(const QColor &color);
    QColor grayTextColor() const { return m_grayTextColor; }
    void setGrayTextColor(const QColor &color);
    QColor runningTextColor() const { return m_runningTextColor; }
    void setRunningTextColor(const QColor &color);
    int itemIndex() const { return m_itemIndex; }
    void setItemIndex(const int &index);
    bool hideText() const { return m_hideText; }
    void setHideText(const bool &hide);
    int fontSize() const { return m_fontSize; }
    void setFontSize(const int &px);
    int textMargin() const { return m_textMargin; }
    void setTextMargin(const int &margin);
    int textMarginH() const { return m_textMarginH; }
    void setTextMarginH(const int &margin);
    bool textInPic() const { return m_textInPic; }
    void setTextInPic(const bool &inPicture);
    Qt::Alignment textAlignment() const { return m_textAlignment; }
    void setTextAlignment(Qt::Alignment alignment);
    int imageMarginH() const { return m_imageMarginH; }
    void setImageMarginH(const int &margin);
    QString gifImage() const { return m_gifImage; }
    void setGifImage(QString path);
    int gifSpeed() const { return m_gifSpeed; }
    void setGifSpeed(int percent);
    QString pressImgPath() const { return m_pressImgPath; }
    void setPressImgPath(QString path);
    QString grayImgPath() const { return m_grayImgPath; }
    void setGrayImgPath(QString path);

    bool getIsPressing() const { return m_isPressing; }
    bool getIsReady() const { return m_isReady; }
    void setIsReady(bool ready);
    bool getIsRunning() const { return m_isRunning; }
    void setIsRunning(bool running);
    bool getIsSwitchSrc() const { return m_isSwitchSrc; }
    void setIsSwitchSrc(bool current);

    /// Whether any tile of this process has been given an animation so far.
    static bool isDynamicUI() { return s_isDynamicUI; }

    /// Makes the target a copy of the source under a black veil of this alpha.
    void setPressImageAlpha(int alpha, const QPixmap &source, QPixmap &target);
    /// Gives the tile the size of its picture, margins and caption.
    void resizeHomeIcon();

signals:
    void itemPress(int itemIndex);
    void itemMove(int itemIndex);
    void itemRelease(int itemIndex);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void showEvent(QShowEvent *e) override;
    void hideEvent(QHideEvent *e) override;

private:
    struct Layers;
    struct Kept;

    bool hasOwnPressLook() const;
    void renewPressImage();
    QRect imageRect() const;
    QRect captionRect() const;
    QColor captionColor() const;
    Layers layersWithRunningImage() const;
    Layers layersWithoutRunningImage() const;
    void drawImages(QPainter &painter) const;
    void drawLayer(QPainter &painter, int number, const QPixmap *picture) const;
    void drawCaption(QPainter &painter) const;

    static bool s_isDynamicUI;

    bool m_isPressing = false;
    bool m_isReady = true;
    bool m_isRunning = false;
    bool m_isSwitchSrc = false;
    bool m_hideText = false;
    int m_itemIndex = 0;
    QPixmap m_normalImage;
    QPixmap m_pressImage;
    QPixmap m_runningImage;
    QPixmap m_grayImage;
    QPixmap m_switchImage;
    QString m_pressImgPath;
    QString m_grayImgPath;
    QString m_iconText;
    QString m_iconName = QStringLiteral("defaultName");
    QSize m_iconSize{122, 122}; // px
    QColor m_fontColor = Qt::white;
    QColor m_pressTextColor = Qt::white;
    QColor m_grayTextColor = Qt::white;
    QColor m_runningTextColor = Qt::white;
    int m_imageAlpha = 154; // 0..255; above 254 a pressed picture is the application's own
    int m_fontSize = 22; // px
    int m_textMargin = 10; // px
    int m_textMarginH = 0; // px
    bool m_textInPic = false;
    Qt::Alignment m_textAlignment = Qt::AlignCenter;
    int m_imageMarginH = 0; // px
    QString m_gifImage;
    std::unique_ptr<QMovie> m_movie;
    int m_gifSpeed = 100; // percent

    std::unique_ptr<Kept> m_kept;
};

#endif // SPHOMEICON_H
