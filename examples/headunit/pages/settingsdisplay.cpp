// SPDX-License-Identifier: Apache-2.0
#include "pages/settingsdisplay.h"

#include "dress.h"
#include "models/preferences.h"
#include "ui_settingsdisplay.h"

#include <QFontMetrics>
#include <QLocale>

#include <algorithm>

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
    for (QLabel *label : {m_ui->brightnessLabel, m_ui->brightnessValue, m_ui->lookLabel})
        dressHeading(*label, t);
    m_ui->brightnessPanel->setFixedHeight(t.px(104));
    const int row = std::max(t.touch(), t.px(72));
    for (MFocusButton *choice : {m_ui->automaticChoice, m_ui->dayChoice, m_ui->nightChoice})
        choice->setFixedHeight(row);
    layout()->activate();
    for (QLabel *panel : {m_ui->brightnessPanel, m_ui->lookPanel})
        dressPanel(*panel, t);
    const int inset = t.inset();
    m_ui->lookColumn->setContentsMargins(inset, t.gap(), inset, inset);
    m_ui->lookColumn->setSpacing(t.px(12));
    m_ui->lookColumn->activate();
    dressBrightness();
    dressChoice(*m_ui->automaticChoice, t, QStringLiteral("clock"));
    dressChoice(*m_ui->dayChoice, t, QStringLiteral("sun"));
    dressChoice(*m_ui->nightChoice, t, QStringLiteral("moon"));
    showBrightness();
}

// The slider has what its name and the longest of its values leave of their line.
void SettingsDisplay::dressBrightness()
{
    const QFontMetrics metrics(m_ui->brightnessValue->font());
    const int value = metrics.horizontalAdvance(percentText(Preferences::kFullBrightness));
    const int name = m_ui->brightnessLabel->sizeHint().width();
    m_ui->brightnessValue->setFixedWidth(value + theme().px(2));
    m_ui->brightnessValue->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    m_ui->brightnessRow->setSpacing(theme().gap());
    const int room = m_ui->brightnessPanel->width() - 2 * theme().inset() - name
        - m_ui->brightnessValue->width() - 2 * theme().gap();
    dressSlider(*m_ui->brightness, theme(), room - 2 * sliderOverhang(theme()));
    m_ui->brightnessRow->activate();
}

QMargins SettingsDisplay::margins(const Theme &theme) const { return rowMargins(theme); }

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
    m_ui->brightnessValue->setText(percentText(percent));
}

QString SettingsDisplay::percentText(int percent)
{
    return tr("%1%").arg(QLocale().toString(percent));
}

void SettingsDisplay::showLook()
{
    const Preferences::Look look = context().preferences.look();
    m_ui->automaticChoice->setChecked(look == Preferences::Look::Automatic);
    m_ui->dayChoice->setChecked(look == Preferences::Look::Day);
    m_ui->nightChoice->setChecked(look == Preferences::Look::Night);
}

} // namespace headunit
