// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TUNERSCALES_H
#define HEADUNIT_TUNERSCALES_H

#include "theme.h"

#include <QObject>
#include <QSize>

class MKARVOSlider;
class MRadioMovePoint;
class MRadioSlider;

namespace headunit
{

class Tuner;

/// Three tuners of one stacked widget, which all show the frequency of one radio and tune it.
class TunerScales : public QObject
{
    Q_OBJECT

public:
    /// A needle over a scale, a scale that moves under a needle, and a pointer that snaps.
    struct Widgets {
        MRadioMovePoint *needle;
        MRadioSlider *tape;
        MKARVOSlider *pointer;
    };

    TunerScales(const Widgets &widgets, Tuner &tuner, QObject *parent);

    /// Shows them in a look, at the size that they have together.
    void dress(const Theme &theme);

private:
    /// px from the top of each
    struct Rows {
        int needleLabels = 0; // as the needle's tuner counts
        int labels = 0; // their middle
        int ticks = 0; // and of the line through them
        int end = 0; // of the grip at its foot
        int grip = 0; // its radius
    };

    void layOut();
    void layOutRows();
    void layOutNeedle();
    void placeNeedle();
    template <typename Scale> void placeRows(Scale &scale) const;
    void layOutTape();
    void layOutPointer();
    QFont pointerFont() const;
    void showFrequency();
    void tune(float frequency);
    float inDisplayUnits(int frequency) const;

    const Widgets m_widgets;
    Tuner &m_tuner;
    Theme m_theme;
    QSize m_size; // px, of each
    Rows m_rows;
};

} // namespace headunit

#endif // HEADUNIT_TUNERSCALES_H
