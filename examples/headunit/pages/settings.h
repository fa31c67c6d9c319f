// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SETTINGS_H
#define HEADUNIT_SETTINGS_H

#include "page.h"

#include <memory>

namespace Ui
{
class Settings;
}

namespace headunit
{

/// The settings: a column of keys, and the view that the chosen one of them opens.
class SettingsPage : public Page
{
    Q_OBJECT

public:
    explicit SettingsPage(Context &context, QWidget *parent = nullptr);
    ~SettingsPage() override;

    QString title() const override;
    void setTheme(const Theme &theme) override;

protected:
    void dress() override;
    void retranslate() override;

private:
    const std::unique_ptr<Ui::Settings> m_ui;
    QVector<View *> m_views;
};

} // namespace headunit

#endif // HEADUNIT_SETTINGS_H
