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

/// Two pages of sliders, for the tone and for the levels. A swipe turns them, too.
class SoundEqualiser : public View
{
    Q_OBJECT

public:
    explicit SoundEqualiser(Context &context, QWidget *parent = nullptr);
    ~SoundEqualiser() override;

    void showPage(int page);

signals:
    void pageTurned(int page); ///< by a swipe

protected:
    void dress() override;
    void retranslate() override;

private:
    void turn(bool forward);
    void showValue(SpSetupSlider &slider);
    void save();
    void dressSliders();
    void dressSlider(SpSetupSlider &slider, int height);

    const std::unique_ptr<Ui::SoundEqualiser> m_ui;
};

} // namespace headunit

#endif // HEADUNIT_SOUNDEQUALISER_H
