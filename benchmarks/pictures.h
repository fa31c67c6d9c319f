// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_PICTURES_H
#define PANELKIT_BENCHMARKS_PICTURES_H

#include <QColor>
#include <QPainter>
#include <QPixmap>
#include <QSize>
#include <QString>

/// What the function draws on a transparent ground.
template <class Draw> QPixmap drawn(const QSize &size, Draw draw)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    draw(painter);
    return picture;
}

/// Artwork as head units have it: a glossy rounded key of the colour with a soft shadow around it,
/// an antialiased edge and a star on it; opaque inside, translucent around, transparent corners.
QPixmap keyPicture(const QColor &color, const QSize &size);

/// The picture as drawPixmap() stretches it.
QPixmap stretched(const QPixmap &picture, const QSize &size);

/// The picture with black of the alpha over its opaque pixels.
QPixmap veiled(const QPixmap &picture, int alpha);

/// As much of the picture as the alpha leaves.
QPixmap faded(const QPixmap &picture, int alpha);

/// The path of a file with the picture: style sheets take pictures from files.
QString fileOf(const QPixmap &picture);

/// The keys of one size for the states of a button.
struct ButtonArtwork {
    explicit ButtonArtwork(const QSize &size);

    QPixmap normal;
    QPixmap pressed;
    QPixmap highlighted; // focused, selected or running
    QPixmap disabled;
    QPixmap smallPressed; // has to be stretched
};

/// The groove of a slider, the same filled, and its knob.
struct SliderArtwork {
    SliderArtwork(const QSize &grooveSize, const QSize &knobSize);

    QPixmap groove;
    QPixmap fill;
    QPixmap knob;
};

/// Made once for each size.
const ButtonArtwork &buttonArtwork(const QSize &size);

/// Gives the artwork to a button whose pictures are images.
template <class Button> void setImages(Button &button, const ButtonArtwork &artwork)
{
    button.setNormalImage(artwork.normal);
    button.setPressImage(artwork.pressed);
    button.setDisableImage(artwork.disabled);
}

/// Gives the artwork to a button whose pictures are pixmaps.
template <class Button> void setPixmaps(Button &button, const ButtonArtwork &artwork)
{
    button.setNormalPixmap(artwork.normal);
    button.setPressPixmap(artwork.pressed);
    button.setDisablePixmap(artwork.disabled);
}

#endif // PANELKIT_BENCHMARKS_PICTURES_H
