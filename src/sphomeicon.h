// SPDX-License-Identifier: Apache-2.0
#ifndef SPHOMEICON_H
#define SPHOMEICON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

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

    QPixmap normalImage() const;
    void setNormalImage(const QPixmap &image);
    QPixmap pressImage() const;
    void setPressImage(const QPixmap &image);
    QPixmap runningImage() const;
    void setRunningImage(const QPixmap &image);
    QPixmap grayImage() const;
    void setGrayImage(const QPixmap &image);
    QPixmap switchImage() const;
    void setSwitchImage(const QPixmap &image);
    int imageAlpha() const;
    void setImageAlpha(const int &alpha);
    QString iconText() const;
    void setIconText(const QString &text);
    QString iconName() const;
    void setIconName(const QString &name);
    QSize iconSize() const;
    void setIconSize(const QSize &size);
    QColor fontColor() const;
    void setFontColor(const QColor &color);
    QColor pressTextColor() const;
    void setPressTextColor(const QColor &color);
    QColor grayTextColor() const;
    void setGrayTextColor(const QColor &color);
    QColor runningTextColor() const;
    void setRunningTextColor(const QColor &color);
    int itemIndex() const;
    void setItemIndex(const int &index);
    bool hideText() const;
    void setHideText(const bool &hide);
    int fontSize() const;
    void setFontSize(const int &px);
    int textMargin() const;
    void setTextMargin(const int &margin);
    int textMarginH() const;
    void setTextMarginH(const int &margin);
    bool textInPic() const;
    void setTextInPic(const bool &inPicture);
    Qt::Alignment textAlignment() const;
    void setTextAlignment(Qt::Alignment alignment);
    int imageMarginH() const;
    void setImageMarginH(const int &margin);
    QString gifImage() const;
    void setGifImage(QString path);
    int gifSpeed() const;
    void setGifSpeed(int percent);
    QString pressImgPath() const;
    void setPressImgPath(QString path);
    QString grayImgPath() const;
    void setGrayImgPath(QString path);

    bool getIsPressing() const;
    bool getIsReady() const;
    void setIsReady(bool ready);
    bool getIsRunning() const;
    void setIsRunning(bool running);
    bool getIsSwitchSrc() const;
    void setIsSwitchSrc(bool current);

    /// Whether any tile of this process has been given an animation so far.
    static bool isDynamicUI();

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
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPHOMEICON_H
