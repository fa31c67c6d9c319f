// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TOURSCRIPT_H
#define HEADUNIT_TOURSCRIPT_H

#include <QPointF>
#include <QString>
#include <QVector>

namespace headunit
{

/// What a finger does to a widget of the page that is open, or of the status bar. Places are parts
/// of the widget's width and height.
struct TourTouch {
    QString widget; ///< its object name; empty: nothing is touched
    QPointF from;
    QPointF to;
    int duration = 0; ///< ms, from press to release
    bool isLeftDown = false; ///< the finger stays there until the picture has been taken
};

/// Some touches, and a picture of what they led to.
struct TourStep {
    QString name;
    QVector<TourTouch> touches;
};

/// The steps on a page, from the moment when it has been opened from the home page. A page that the
/// script does not know is looked at, and no more. After its way through the languages the tour
/// goes on in the one that it began in, of which this is the code.
QVector<TourStep> tourOf(const QString &page, const QString &language);

/// The steps on a page in the look of the night.
QVector<TourStep> nightTourOf(const QString &page);

} // namespace headunit

#endif // HEADUNIT_TOURSCRIPT_H
