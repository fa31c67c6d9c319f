// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SOUNDVOLUME_H
#define HEADUNIT_SOUNDVOLUME_H

#include "view.h"

#include <QPoint>

#include <memory>

namespace Ui
{
class SoundVolume;
}

namespace headunit
{

/// The volume as a slider that is bent around the ticks of a dial, with a key that locks it at
/// nothing.
class SoundVolume : public View
{
    Q_OBJECT

public:
    explicit SoundVolume(Context &context, QWidget *parent = nullptr);
    ~SoundVolume() override;

protected:
    void dress() override;
    void retranslate() override;

private:
    void connectPlayer();
    void turnTo(double volume);
    void showVolume();
    void layOutDial();
    void layOutTexts();
    void showArc();
    QPointF onArc(int volume) const;
    void dressKeys();

    /// px in the panel of the dial; the bar runs around its ticks
    struct Arc {
        QPoint middle;
        int ticks = 0; // radius
        int bar = 0; // radius through its middle
    };

    const std::unique_ptr<Ui::SoundVolume> m_ui;
    Arc m_arc;
};

} // namespace headunit

#endif // HEADUNIT_SOUNDVOLUME_H
