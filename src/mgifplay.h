// SPDX-License-Identifier: Apache-2.0
#ifndef MGIFPLAY_H
#define MGIFPLAY_H

#include "panelkitglobal.h"

#include <QString>
#include <QWidget>

#include <memory>

/**
 * Plays an animated image file, stretched over the widget, from the moment when it is given one;
 * setGifState stops it and starts it again. It is a simple button too: a release, wherever it is,
 * reports btnClicked, and each press asks the application for a click sound.
 */
class PANELKIT_EXPORT MGifPlay : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString gifImage READ gifImage WRITE setGifImage)
    Q_PROPERTY(int gifSpeed READ gifSpeed WRITE setGifSpeed)

public:
    explicit MGifPlay(QWidget *parent = nullptr);
    ~MGifPlay() override;

    QString gifImage() const;
    void setGifImage(QString path);
    int gifSpeed() const;
    void setGifSpeed(int percent);

    int getGifState();
    void setGifState(int state);

signals:
    void btnClicked();

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MGIFPLAY_H
