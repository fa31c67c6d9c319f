// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_PIECES_H
#define HEADUNIT_PIECES_H

#include <QColor>
#include <QString>
#include <QVector>

namespace headunit
{

/// A short piece of music with what its cover shows: the sun over hills.
struct Piece {
    QString title;
    int number; ///< on the album
    QVector<qint16> samples; ///< left and right by turns
    QColor sky;
    QColor horizon;
    QColor hills;
    double sunHeight; ///< 0 at the horizon, 1 at the top
};

/// All pieces.
QVector<Piece> allPieces();

/// What a touch sounds like.
QVector<qint16> clickSamples();

} // namespace headunit

#endif // HEADUNIT_PIECES_H
