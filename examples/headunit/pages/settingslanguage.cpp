// SPDX-License-Identifier: Apache-2.0
#include "pages/settingslanguage.h"

#include "dress.h"
#include "languages.h"
#include "models/preferences.h"
#include "ui_settingslanguage.h"

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
    dressLabel(*m_ui->heading, t, Theme::Body);
    dressLabel(*m_ui->note, t, Theme::Small, true);
    layout()->activate();
    dressPanel(*m_ui->panel, t);
    m_ui->column->setContentsMargins(t.margin(), t.gap(), t.margin(), t.gap());
    m_ui->column->activate();
    for (MFocusButton *button : {m_ui->english, m_ui->german, m_ui->arabic})
        dressChoice(*button, t);
}

void SettingsLanguage::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->heading->setText(tr("Language"));
    m_ui->note->setText(tr("Texts, numbers and times of all pages"));
}

void SettingsLanguage::showLanguage()
{
    const QString code = Languages::closest(context().preferences.language());
    for (MFocusButton *button : {m_ui->english, m_ui->german, m_ui->arabic})
        button->setChecked(button->buttonID() == code);
}

} // namespace headunit
