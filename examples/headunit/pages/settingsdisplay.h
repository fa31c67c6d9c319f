// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SETTINGSDISPLAY_H
#define HEADUNIT_SETTINGSDISPLAY_H

#include "view.h"

#include <memory>

namespace Ui
{
class SettingsDisplay;
}

namespace headunit
{

/// How bright the screen is, and when it has which look.
class SettingsDisplay : public View
{
    Q_OBJECT

public:
    explicit SettingsDisplay(Context &context, QWidget *parent = nullptr);
    ~SettingsDisplay() override;

protected:
    void dress() override;
    void retranslate() override;
    QMargins margins(const Theme &theme) const override;

private:
    void connectLooks();
    void dressBrightness();
    static QString percentText(int percent);
    void showBrightness();
    void showLook();

    const std::unique_ptr<Ui::SettingsDisplay> m_ui;
};

} // namespace headunit

#endif // HEADUNIT_SETTINGSDISPLAY_H
