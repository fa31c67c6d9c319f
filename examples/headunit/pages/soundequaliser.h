// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SOUNDEQUALISER_H
#define HEADUNIT_SOUNDEQUALISER_H

#include "view.h"

#include <memory>

class SpSetupSlider;

namespace Ui
{
class SoundEqualiser;
}

namespace headunit
{

/// Two pages of sliders, for the tone and for the levels, that a swipe or a key turns.
class SoundEqualiser : public View
{
    Q_OBJECT

public:
    explicit SoundEqualiser(Context &context, QWidget *parent = nullptr);
    ~SoundEqualiser() override;

protected:
    void dress() override;
    void retranslate() override;

private:
    void turn(bool forward);
    void showPage();
    void save();
    void dressSliders();
    void dressSlider(SpSetupSlider &slider, int height);

    const std::unique_ptr<Ui::SoundEqualiser> m_ui;
};

} // namespace headunit

#endif // HEADUNIT_SOUNDEQUALISER_H
