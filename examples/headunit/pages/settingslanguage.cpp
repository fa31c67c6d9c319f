// SPDX-License-Identifier: Apache-2.0
#include "pages/settingslanguage.h"

#include "dress.h"
#include "languages.h"
#include "models/preferences.h"
#include "ui_settingslanguage.h"

#include <algorithm>

namespace headunit
{

SettingsLanguage::SettingsLanguage(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::SettingsLanguage>())
{
    m_ui->setupUi(this);
    m_ui->english->setDisplayText(QStringLiteral("English"));
    m_ui->german->setDisplayText(QStringLiteral("Deutsch"));
    m_ui->arabic->setDisplayText(QStringLiteral("العربية"));
    for (MFocusButton *button : {m_ui->english, m_ui->german, m_ui->arabic})
        connect(button, &MFocusButton::btnClicked, &context.preferences, &Preferences::setLanguage);
    connect(&context.preferences, &Preferences::languageChosen, this,
            &SettingsLanguage::showLanguage);
    SettingsLanguage::retranslate();
    showLanguage();
}

SettingsLanguage::~SettingsLanguage() = default;

void SettingsLanguage::dress()
{
    const Theme &t = theme();
    dressHeading(*m_ui->heading, t);
    dressLabel(*m_ui->note, t, Theme::Small, true);
    const auto buttons = {m_ui->english, m_ui->german, m_ui->arabic};
    for (MFocusButton *button : buttons)
        button->setFixedHeight(std::max(t.touch(), t.px(72)));
    layout()->activate();
    dressPanel(*m_ui->panel, t);
    const int inset = t.inset();
    m_ui->column->setContentsMargins(inset, t.gap(), inset, inset);
    m_ui->column->setSpacing(t.px(12));
    m_ui->column->activate();
    for (MFocusButton *button : buttons)
        dressChoice(*button, t);
}

QMargins SettingsLanguage::margins(const Theme &theme) const { return rowMargins(theme); }

void SettingsLanguage::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->heading->setText(tr("Language"));
    m_ui->note->setText(tr("Changes texts, numbers and times"));
}

void SettingsLanguage::showLanguage()
{
    const QString code = Languages::closest(context().preferences.language());
    for (MFocusButton *button : {m_ui->english, m_ui->german, m_ui->arabic})
        button->setChecked(button->buttonID() == code);
}

} // namespace headunit
