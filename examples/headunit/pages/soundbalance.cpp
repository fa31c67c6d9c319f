// SPDX-License-Identifier: Apache-2.0
#include "pages/soundbalance.h"

#include "dress.h"
#include "ui_soundbalance.h"

#include <QPainter>
#include <QSettings>

#include <algorithm>

namespace headunit
{

namespace
{

const QString kBalanceKey = QStringLiteral("sound/balance");
const QString kFaderKey = QStringLiteral("sound/fader");
constexpr QSizeF kCabin{300, 420}; // units of its drawing
constexpr QPointF kMiddle{150, 256}; // of the four seats
constexpr QPointF kReach{80, 110}; // from there, at the ends of the sliders

void drawCabin(QPainter &painter, const Theme &theme, const QRect &place)
{
    QPixmap cabin = theme.drawing(QStringLiteral("cabin"), place.size());
    QPainter tint(&cabin);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(cabin.rect(), theme.quietText);
    tint.end();
    painter.drawPixmap(place.topLeft(), cabin);
}

// Lines through the place of the sound, and the place itself.
void drawPlace(QPainter &painter, const Theme &theme, const QRect &cabin, const QPointF &place)
{
    const qreal scale = cabin.width() / kCabin.width();
    const QPointF at = QPointF(cabin.topLeft()) + place * scale;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme.accent, theme.px(2)));
    const QPointF across(kReach.x() * scale, 0);
    const QPointF along(0, kReach.y() * scale);
    const QPointF middle = QPointF(cabin.topLeft()) + kMiddle * scale;
    painter.drawLine(QPointF(middle.x(), at.y()) - across, QPointF(middle.x(), at.y()) + across);
    painter.drawLine(QPointF(at.x(), middle.y()) - along, QPointF(at.x(), middle.y()) + along);
    QColor halo = theme.accent;
    halo.setAlpha(70);
    painter.setPen(Qt::NoPen);
    painter.setBrush(halo);
    painter.drawEllipse(at, theme.px(26), theme.px(26));
    painter.setBrush(theme.accent);
    painter.drawEllipse(at, theme.px(13), theme.px(13));
}

} // namespace

SoundBalance::SoundBalance(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::SoundBalance>())
{
    m_ui->setupUi(this);
    m_ui->balance->setCurrentValue(context.settings.value(kBalanceKey).toInt());
    m_ui->fader->setCurrentValue(context.settings.value(kFaderKey).toInt());
    for (MHorSlider *slider : {m_ui->balance, m_ui->fader}) {
        slider->setIsShowValue(false);
        connect(slider, &MHorSlider::valueChangeSig, this, &SoundBalance::showPlace);
    }
    QSettings &settings = context.settings;
    connect(m_ui->balance, &MHorSlider::saveDataSig, this,
            [&settings](int, int value) { settings.setValue(kBalanceKey, value); });
    connect(m_ui->fader, &MHorSlider::saveDataSig, this,
            [&settings](int, int value) { settings.setValue(kFaderKey, value); });
    connect(m_ui->centreKey, &SpIconButton::btnClicked, this, &SoundBalance::centre);
    SoundBalance::retranslate();
}

SoundBalance::~SoundBalance() = default;

void SoundBalance::dress()
{
    m_ui->centreKey->setFixedHeight(theme().touch());
    layout()->activate();
    dressPanel(*m_ui->controls, theme());
    for (QLabel *label :
         {m_ui->balanceLabel, m_ui->balanceValue, m_ui->faderLabel, m_ui->faderValue})
        dressHeading(*label, theme());
    for (QLabel *label : {m_ui->balanceLeft, m_ui->balanceRight, m_ui->faderRear, m_ui->faderFront})
        dressLabel(*label, theme(), Theme::Small, true);
    layOutControls();
    dressKey(*m_ui->centreKey, theme(), Theme::Key);
    showPlace();
}

// The sliders stand out of what is above and below them, so that their bars do not.
void SoundBalance::layOutControls()
{
    const int inset = theme().inset();
    const int overhang = sliderOverhang(theme());
    m_ui->controlColumn->setContentsMargins(inset - overhang, theme().gap(), inset - overhang,
                                            theme().gap());
    m_ui->controlColumn->setSpacing(0);
    for (QLayout *row : {static_cast<QLayout *>(m_ui->balanceTitle), m_ui->balanceEnds->layout(),
                         static_cast<QLayout *>(m_ui->faderTitle), m_ui->faderEnds->layout(),
                         static_cast<QLayout *>(m_ui->centreRow)})
        row->setContentsMargins(overhang, 0, overhang, 0);
    for (MHorSlider *slider : {m_ui->balance, m_ui->fader})
        dressSlider(*slider, theme(), m_ui->controls->width() - 2 * inset);
    m_ui->controlColumn->activate();
}

void SoundBalance::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->balanceLabel->setText(tr("Balance"));
    m_ui->balanceLeft->setText(tr("Left"));
    m_ui->balanceRight->setText(tr("Right"));
    m_ui->faderLabel->setText(tr("Fader"));
    m_ui->faderRear->setText(tr("Rear"));
    m_ui->faderFront->setText(tr("Front"));
    m_ui->centreKey->setDisplayText(tr("Centre sound"));
    showValues();
}

void SoundBalance::centre()
{
    for (MHorSlider *slider : {m_ui->balance, m_ui->fader})
        slider->setCurrentValue(0);
    context().settings.setValue(kBalanceKey, 0);
    context().settings.setValue(kFaderKey, 0);
    showPlace();
}

void SoundBalance::showPlace()
{
    showValues();
    showCabin();
}

void SoundBalance::showValues()
{
    showValue(*m_ui->balanceValue, m_ui->balance->currentValue(), tr("Left %1"), tr("Right %1"));
    showValue(*m_ui->faderValue, m_ui->fader->currentValue(), tr("Rear %1"), tr("Front %1"));
}

void SoundBalance::showValue(QLabel &label, int value, const QString &below, const QString &above)
{
    label.setText(value == 0 ? tr("Centre") : (value < 0 ? below : above).arg(qAbs(value)));
}

void SoundBalance::showCabin()
{
    QPixmap picture =
        theme().panel(m_ui->cabin->size(), theme().face, theme().line, theme().radius());
    const QRect room = picture.rect().adjusted(0, theme().gap(), 0, -theme().gap());
    QRect cabin(QPoint(), kCabin.scaled(room.size(), Qt::KeepAspectRatio).toSize());
    cabin.moveCenter(room.center());
    const qreal across = kReach.x() * m_ui->balance->currentValue() / m_ui->balance->maxValue();
    const qreal along = kReach.y() * m_ui->fader->currentValue() / m_ui->fader->maxValue();
    QPainter painter(&picture);
    drawCabin(painter, theme(), cabin);
    drawPlace(painter, theme(), cabin, kMiddle + QPointF(across, -along));
    painter.end();
    m_ui->cabin->setPixmap(picture);
}

} // namespace headunit
