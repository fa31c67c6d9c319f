// SPDX-License-Identifier: Apache-2.0
#include "pages/settingsdisplay.h"

#include "dress.h"
#include "models/preferences.h"
#include "ui_settingsdisplay.h"

#include <QLocale>

namespace headunit
{

SettingsDisplay::SettingsDisplay(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::SettingsDisplay>())
{
    m_ui->setupUi(this);
    MHorSlider *slider = m_ui->brightness;
    slider->setMinValue(Preferences::kLeastBrightness);
    slider->setMaxValue(Preferences::kFullBrightness);
    slider->setIsShowValue(false);
    connect(slider, &MHorSlider::valueChangeSig, &context.preferences,
            [&context](int, int percent) { context.preferences.setBrightness(percent); });
    connect(&context.preferences, &Preferences::brightnessChanged, this,
            &SettingsDisplay::showBrightness);
    connect(&context.preferences, &Preferences::lookChosen, this, &SettingsDisplay::showLook);
    connectLooks();
    SettingsDisplay::retranslate();
    showLook();
}

SettingsDisplay::~SettingsDisplay() = default;

void SettingsDisplay::dress()
{
    const Theme &t = theme();
    for (QLabel *label : {m_ui->brightnessLabel, m_ui->lookLabel})
        dressLabel(*label, t, Theme::Body);
    dressLabel(*m_ui->brightnessValue, t, Theme::Title);
    layout()->activate();
    for (QLabel *panel : {m_ui->brightnessPanel, m_ui->lookPanel})
        dressPanel(*panel, t);
    const int margin = t.margin();
    for (QVBoxLayout *column : {m_ui->brightnessColumn, m_ui->lookColumn}) {
        column->setContentsMargins(margin, t.gap(), margin, t.gap());
        column->activate();
    }
    m_ui->lookRow->setSpacing(t.gap());
    m_ui->lookColumn->activate();
    dressSlider(*m_ui->brightness, t, m_ui->brightnessPanel->width() - 2 * margin);
    dressChoice(*m_ui->automaticChoice, t, QStringLiteral("clock"));
    dressChoice(*m_ui->dayChoice, t, QStringLiteral("sun"));
    dressChoice(*m_ui->nightChoice, t, QStringLiteral("moon"));
    showBrightness();
}

void SettingsDisplay::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->brightnessLabel->setText(tr("Brightness"));
    m_ui->lookLabel->setText(tr("Look"));
    m_ui->automaticChoice->setDisplayText(tr("Automatic"));
    m_ui->dayChoice->setDisplayText(tr("Day"));
    m_ui->nightChoice->setDisplayText(tr("Night"));
    showBrightness();
}

void SettingsDisplay::connectLooks()
{
    Preferences &preferences = context().preferences;
    connect(m_ui->automaticChoice, &MFocusButton::btnClicked, &preferences,
            [&preferences] { preferences.setLook(Preferences::Look::Automatic); });
    connect(m_ui->dayChoice, &MFocusButton::btnClicked, &preferences,
            [&preferences] { preferences.setLook(Preferences::Look::Day); });
    connect(m_ui->nightChoice, &MFocusButton::btnClicked, &preferences,
            [&preferences] { preferences.setLook(Preferences::Look::Night); });
}

void SettingsDisplay::showBrightness()
{
    const int percent = context().preferences.brightness();
    if (m_ui->brightness->currentValue() != percent)
        m_ui->brightness->setCurrentValue(percent);
    m_ui->brightnessValue->setText(tr("%1%").arg(QLocale().toString(percent)));
}

void SettingsDisplay::showLook()
{
    const Preferences::Look look = context().preferences.look();
    m_ui->automaticChoice->setChecked(look == Preferences::Look::Automatic);
    m_ui->dayChoice->setChecked(look == Preferences::Look::Day);
    m_ui->nightChoice->setChecked(look == Preferences::Look::Night);
}

} // namespace headunit
