// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_BANDS_H
#define CATALOGUE_BANDS_H

#include <QPixmap>
#include <QString>
#include <QVector>

/// A radio band in display units: MHz for FM, kHz for the others.
struct Band {
    QString name;
    bool isFM;
    float start;
    float end;
    float step;
    float tuned; ///< A station somewhere in the band.
};

/// The bands that a car radio has in one part of the world or another.
const QVector<Band> &radioBands();

/// A bright needle with a soft glow.
QPixmap needlePicture(const QSize &size);

#endif // CATALOGUE_BANDS_H
