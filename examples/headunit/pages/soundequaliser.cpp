// SPDX-License-Identifier: Apache-2.0
#include "pages/soundequaliser.h"

#include "dress.h"
#include "texts.h"
#include "ui_soundequaliser.h"

#include <QPainter>
#include <QSettings>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kValueBand = 30; // px that a slider gives to its number
constexpr int kLargestValue = 25; // px, of digits that fit into it
constexpr int kLongTickEvery = 5; // values
const QString kValue = QStringLiteral("value"); // the name of the label that shows it

QString keyOf(const QString &band) { return QStringLiteral("sound/") + band; }

// A groove with a tick for each value, long ones at round values, where the middle of the knob is
// and beside it, and a dot at 0.
QPixmap track(const Theme &theme, const QSize &size, const QSize &knob, int values)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const int travel = size.height() - knob.height();
    const int thickness = std::max(1, theme.px(2));
    const int middle = size.width() / 2;
    const int aside = knob.width() / 2 + theme.px(4);
    for (int i = 0; i < values; ++i) {
        const int y = knob.height() / 2 + travel * i / (values - 1) - thickness / 2;
        const int length = theme.px(i % kLongTickEvery == 0 ? 16 : 8);
        painter.fillRect(middle - aside - length, y, length, thickness, theme.quietText);
        painter.fillRect(middle + aside, y, length, thickness, theme.quietText);
    }
    const int width = theme.px(10);
    const int groove = travel + width;
    painter.drawPixmap(middle - width / 2, (size.height() - groove) / 2,
                       theme.panel({width, groove}, grooveColor(theme), QColor(), width / 2));
    const int dot = theme.px(20);
    painter.drawPixmap(middle - dot / 2, (size.height() - dot) / 2,
                       theme.panel({dot, dot}, theme.quietText, QColor(), dot / 2));
    return pixmap;
}

// Where the slider would show its number.
void addValue(SpSetupSlider &slider)
{
    auto *value = new QLabel(&slider);
    value->setObjectName(kValue);
    value->setLayoutDirection(Qt::LeftToRight);
    value->setAlignment(Qt::AlignCenter);
    value->setAttribute(Qt::WA_TransparentForMouseEvents);
}

QPixmap knobPicture(const Theme &theme, const QSize &size, const QColor &color)
{
    QPixmap pixmap = theme.panel(size, color, QColor(), size.height() / 3);
    QPainter painter(&pixmap);
    const int line = std::max(2, theme.px(3));
    painter.fillRect(size.width() / 4, (size.height() - line) / 2, size.width() / 2, line,
                     theme.onAccent);
    return pixmap;
}

} // namespace

SoundEqualiser::SoundEqualiser(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::SoundEqualiser>())
{
    m_ui->setupUi(this);
    for (SpSetupSliderContainer *page : {m_ui->tonePage, m_ui->levelPage}) {
        for (SpSetupSlider *slider : page->findChildren<SpSetupSlider *>()) {
            addValue(*slider);
            slider->setCurrentValue(context.settings.value(keyOf(slider->objectName())).toInt());
            showValue(*slider);
            connect(slider, &SpSetupSlider::valueChangeSig, page,
                    &SpSetupSliderContainer::valueChangeSlot);
            connect(slider, &SpSetupSlider::valueChangeSig, this,
                    [this, slider] { showValue(*slider); });
            connect(slider, &SpSetupSlider::saveDataSig, page,
                    &SpSetupSliderContainer::saveDataSlot);
        }
        connect(page, &SpSetupSliderContainer::saveDataSig, this, &SoundEqualiser::save);
        connect(page, &SpSetupSliderContainer::pageChanged, this,
                [this](bool left) { turn(left != isRightToLeft()); });
    }
    SoundEqualiser::retranslate();
}

SoundEqualiser::~SoundEqualiser() = default;

void SoundEqualiser::dress()
{
    for (SpSetupSliderContainer *page : {m_ui->tonePage, m_ui->levelPage})
        page->layout()->setContentsMargins(0, 0, 0, 0);
    for (QLabel *label : {m_ui->bassLabel, m_ui->middleLabel, m_ui->trebleLabel,
                          m_ui->subwooferLabel, m_ui->frontGainLabel, m_ui->rearGainLabel})
        dressLabel(*label, theme(), Theme::Body);
    layout()->activate();
    dressPanel(*m_ui->panel, theme());
    m_ui->panelRow->setContentsMargins(theme().inset(), theme().gap(), theme().inset(),
                                       theme().px(8));
    m_ui->panelRow->activate();
    dressSliders();
}

void SoundEqualiser::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->bassLabel->setText(tr("Bass"));
    m_ui->middleLabel->setText(tr("Mid"));
    m_ui->trebleLabel->setText(tr("Treble"));
    m_ui->subwooferLabel->setText(tr("Subwoofer"));
    m_ui->frontGainLabel->setText(tr("Front"));
    m_ui->rearGainLabel->setText(tr("Rear"));
}

void SoundEqualiser::showPage(int page) { m_ui->bandPages->setCurrentIndex(page); }

void SoundEqualiser::turn(bool forward)
{
    const int page = m_ui->bandPages->currentIndex() + (forward ? 1 : -1);
    if (page < 0 || page >= m_ui->bandPages->count())
        return;
    showPage(page);
    emit pageTurned(page);
}

void SoundEqualiser::showValue(SpSetupSlider &slider)
{
    const int value = slider.currentValue();
    const QString sign = value > 0 ? QStringLiteral("+") : value < 0 ? QString(kMinus) : QString();
    slider.findChild<QLabel *>(kValue)->setText(sign + QString::number(qAbs(value))
                                                + QStringLiteral(" dB"));
}

void SoundEqualiser::save()
{
    for (const SpSetupSlider *slider : findChildren<SpSetupSlider *>())
        context().settings.setValue(keyOf(slider->objectName()), slider->currentValue());
}

void SoundEqualiser::dressSliders()
{
    const int caption = theme().textPx(Theme::Body) * 3 / 2;
    const int spacing = theme().px(6);
    for (QVBoxLayout *column : m_ui->bandPages->findChildren<QVBoxLayout *>())
        column->setSpacing(spacing);
    const int height = m_ui->bandPages->height() - caption - spacing - kValueBand;
    for (SpSetupSlider *slider : findChildren<SpSetupSlider *>())
        dressSlider(*slider, height);
}

// The slider takes its size from its pictures. Its own number has neither sign nor unit.
void SoundEqualiser::dressSlider(SpSetupSlider &slider, int height)
{
    const QSize knob(std::max(theme().touch(), theme().px(72)), theme().px(40));
    const QSize size(theme().px(120), height);
    const int values = slider.maxValue() - slider.getMinValue() + 1;
    QPixmap nothing(size);
    nothing.fill(Qt::transparent);
    slider.setSliderNormalImage(track(theme(), size, knob, values));
    slider.setSliderPressImage(nothing); // no side of 0 is the fuller one
    slider.setPointNormalImage(knobPicture(theme(), knob, theme().accent));
    slider.setPointPressImage(knobPicture(theme(), knob, theme().accent.darker(125)));
    auto *value = slider.findChild<QLabel *>(kValue);
    for (QLabel *label : slider.findChildren<QLabel *>()) {
        if (label != value)
            label->setStyleSheet(QStringLiteral("color: transparent"));
    }
    dressHeading(*value, theme());
    QFont font = value->font();
    font.setPixelSize(std::min(font.pixelSize(), kLargestValue));
    value->setFont(font);
    value->setGeometry(0, 0, slider.width(), kValueBand);
}

} // namespace headunit
