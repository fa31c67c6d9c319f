// SPDX-License-Identifier: Apache-2.0
#include "pages/soundeffects.h"

#include "dress.h"
#include "ui_soundeffects.h"

#include <QRegularExpression>
#include <QSettings>

namespace headunit
{

namespace
{

QString keyOf(const QString &effect) { return QStringLiteral("sound/") + effect; }

} // namespace

SoundEffects::SoundEffects(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::SoundEffects>())
{
    m_ui->setupUi(this);
    QSettings &settings = context.settings;
    for (MOnOffButton *button : {m_ui->loudness, m_ui->surround, m_ui->speedVolume}) {
        button->setOnoffStatus(settings.value(keyOf(button->btnID())).toBool());
        connect(button, &MOnOffButton::onoffStatusChanged, this,
                [&settings](const QString &id, bool isOn) { settings.setValue(keyOf(id), isOn); });
    }
    SoundEffects::retranslate();
}

SoundEffects::~SoundEffects() = default;

void SoundEffects::dress()
{
    for (MOnOffButton *button : findChildren<MOnOffButton *>())
        dressSwitch(*button, theme());
    for (QLabel *label : {m_ui->loudnessLabel, m_ui->surroundLabel, m_ui->speedVolumeLabel})
        dressLabel(*label, theme(), Theme::Body);
    for (QLabel *label : {m_ui->loudnessNote, m_ui->surroundNote, m_ui->speedVolumeNote})
        dressLabel(*label, theme(), Theme::Small, true);
    layout()->activate();
    for (QLabel *panel : {m_ui->loudnessPanel, m_ui->surroundPanel, m_ui->speedVolumePanel})
        dressPanel(*panel, theme());
    for (QVBoxLayout *texts :
         findChildren<QVBoxLayout *>(QRegularExpression(QStringLiteral("Texts$"))))
        texts->setSpacing(0);
}

QMargins SoundEffects::margins(const Theme &theme) const { return rowMargins(theme); }

void SoundEffects::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->loudnessLabel->setText(tr("Loudness"));
    m_ui->loudnessNote->setText(tr("Fuller sound when it is quiet"));
    m_ui->surroundLabel->setText(tr("Surround"));
    m_ui->surroundNote->setText(tr("A wider stage for all seats"));
    m_ui->speedVolumeLabel->setText(tr("Speed-dependent volume"));
    m_ui->speedVolumeNote->setText(tr("Louder as the car goes faster"));
}

} // namespace headunit
