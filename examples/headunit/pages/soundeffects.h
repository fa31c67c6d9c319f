// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SOUNDEFFECTS_H
#define HEADUNIT_SOUNDEFFECTS_H

#include "view.h"

#include <memory>

namespace Ui
{
class SoundEffects;
}

namespace headunit
{

/// Switches of the sound, each with a sentence on what it does.
class SoundEffects : public View
{
    Q_OBJECT

public:
    explicit SoundEffects(Context &context, QWidget *parent = nullptr);
    ~SoundEffects() override;

protected:
    void dress() override;
    void retranslate() override;
    QMargins margins(const Theme &theme) const override;

private:
    const std::unique_ptr<Ui::SoundEffects> m_ui;
};

} // namespace headunit

#endif // HEADUNIT_SOUNDEFFECTS_H
