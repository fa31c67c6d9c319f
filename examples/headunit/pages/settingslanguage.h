// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SETTINGSLANGUAGE_H
#define HEADUNIT_SETTINGSLANGUAGE_H

#include "view.h"

#include <memory>

namespace Ui
{
class SettingsLanguage;
}

namespace headunit
{

/// The languages, each by its own name. A touch changes the whole screen at once.
class SettingsLanguage : public View
{
    Q_OBJECT

public:
    explicit SettingsLanguage(Context &context, QWidget *parent = nullptr);
    ~SettingsLanguage() override;

protected:
    void dress() override;
    void retranslate() override;
    QMargins margins(const Theme &theme) const override;

private:
    void showLanguage();

    const std::unique_ptr<Ui::SettingsLanguage> m_ui;
};

} // namespace headunit

#endif // HEADUNIT_SETTINGSLANGUAGE_H
