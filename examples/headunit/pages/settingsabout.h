// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SETTINGSABOUT_H
#define HEADUNIT_SETTINGSABOUT_H

#include "view.h"

#include <QStringList>

#include <memory>

namespace Ui
{
class SettingsAbout;
}

namespace headunit
{

/// What this is made of, and the licence: a label rolls a part of it at a time.
class SettingsAbout : public View
{
    Q_OBJECT

public:
    explicit SettingsAbout(Context &context, QWidget *parent = nullptr);
    ~SettingsAbout() override;

protected:
    void dress() override;
    void retranslate() override;
    QMargins margins(const Theme &theme) const override;

private:
    void layOutLines();
    void showPart(int part);

    const std::unique_ptr<Ui::SettingsAbout> m_ui;
    const QStringList m_parts;
    int m_part = 0;
};

} // namespace headunit

#endif // HEADUNIT_SETTINGSABOUT_H
