// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SOUND_H
#define HEADUNIT_SOUND_H

#include "page.h"

#include <memory>

namespace Ui
{
class Sound;
}

namespace headunit
{

class SoundEqualiser;

/// The sound: a column of keys, and the view that the chosen one of them opens.
class SoundPage : public Page
{
    Q_OBJECT

public:
    explicit SoundPage(Context &context, QWidget *parent = nullptr);
    ~SoundPage() override;

    QString title() const override;

    void setTheme(const Theme &theme) override;

protected:
    void dress() override;
    void retranslate() override;

private:
    void showView(int key);

    const std::unique_ptr<Ui::Sound> m_ui;
    SoundEqualiser *m_equaliser; // has the first two keys
};

} // namespace headunit

#endif // HEADUNIT_SOUND_H
