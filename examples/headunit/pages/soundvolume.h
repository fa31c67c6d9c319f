// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SOUNDVOLUME_H
#define HEADUNIT_SOUNDVOLUME_H

#include "view.h"

#include <memory>

namespace Ui
{
class SoundVolume;
}

namespace headunit
{

/// The volume as a dial, with a key that locks it at nothing.
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
    void dressKeys();

    const std::unique_ptr<Ui::SoundVolume> m_ui;
};

} // namespace headunit

#endif // HEADUNIT_SOUNDVOLUME_H
