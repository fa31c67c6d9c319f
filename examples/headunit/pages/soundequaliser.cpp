// SPDX-License-Identifier: Apache-2.0
#include "pages/soundequaliser.h"

#include "dress.h"
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

QString keyOf(const QString &band) { return QStringLiteral("sound/") + band; }

// A groove with a tick for each value, long ones at round values, where the middle of the knob is.
QPixmap track(const Theme &theme, const QSize &size, int knob, int values)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const int travel = size.height() - knob;
    const int thickness = std::max(1, theme.px(2));
    for (int i = 0; i < values; ++i) {
        const int y = knob / 2 + travel * i / (values - 1);
        const int length = theme.px(i % kLongTickEvery == 0 ? 16 : 8);
        painter.fillRect(size.width() / 2 - theme.px(16) - length, y, length, thickness,
                         theme.quietText);
        painter.fillRect(size.width() / 2 + theme.px(16), y, length, thickness, theme.quietText);
    }
    return pixmap;
}

QPixmap withGroove(const Theme &theme, const QPixmap &ground, const QColor &color)
{
    QPixmap pixmap = ground;
    const int width = theme.px(10);
    QPainter painter(&pixmap);
    painter.drawPixmap((ground.width() - width) / 2, 0,
                       theme.panel({width, ground.height()}, color, QColor(), width / 2));
    return pixmap;
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
            slider->setCurrentValue(context.settings.value(keyOf(slider->objectName())).toInt());
            connect(slider, &SpSetupSlider::valueChangeSig, page,
                    &SpSetupSliderContainer::valueChangeSlot);
            connect(slider, &SpSetupSlider::saveDataSig, page,
                    &SpSetupSliderContainer::saveDataSlot);
        }
        connect(page, &SpSetupSliderContainer::saveDataSig, this, &SoundEqualiser::save);
        connect(page, &SpSetupSliderContainer::pageChanged, this,
                [this](bool left) { turn(left != isRightToLeft()); });
    }
    connect(m_ui->previousKey, &SpIconButton::btnClicked, this, [this] { turn(false); });
    connect(m_ui->nextKey, &SpIconButton::btnClicked, this, [this] { turn(true); });
    showPage();
    SoundEqualiser::retranslate();
}

SoundEqualiser::~SoundEqualiser() = default;

void SoundEqualiser::dress()
{
    for (SpIconButton *key : {m_ui->previousKey, m_ui->nextKey})
        key->setFixedSize(theme().touch(), theme().touch());
    for (SpSetupSliderContainer *page : {m_ui->tonePage, m_ui->levelPage})
        page->layout()->setContentsMargins(0, 0, 0, 0);
    for (QLabel *label : {m_ui->bassLabel, m_ui->middleLabel, m_ui->trebleLabel,
                          m_ui->subwooferLabel, m_ui->frontGainLabel, m_ui->rearGainLabel})
        dressLabel(*label, theme(), Theme::Body);
    layout()->activate();
    dressPanel(*m_ui->panel, theme());
    dressSliders();
    const bool isMirrored = isRightToLeft();
    const QString left = QStringLiteral("back");
    const QString right = QStringLiteral("forward");
    dressKey(*m_ui->previousKey, theme(), Theme::Bare, isMirrored ? right : left);
    dressKey(*m_ui->nextKey, theme(), Theme::Bare, isMirrored ? left : right);
}

void SoundEqualiser::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->bassLabel->setText(tr("Bass"));
    m_ui->middleLabel->setText(tr("Middle"));
    m_ui->trebleLabel->setText(tr("Treble"));
    m_ui->subwooferLabel->setText(tr("Subwoofer"));
    m_ui->frontGainLabel->setText(tr("Front"));
    m_ui->rearGainLabel->setText(tr("Rear"));
}

void SoundEqualiser::turn(bool forward)
{
    const int page = m_ui->bandPages->currentIndex() + (forward ? 1 : -1);
    m_ui->bandPages->setCurrentIndex(qBound(0, page, m_ui->bandPages->count() - 1));
    showPage();
}

void SoundEqualiser::showPage()
{
    const int page = m_ui->bandPages->currentIndex();
    m_ui->previousKey->setDisableState(page == 0);
    m_ui->nextKey->setDisableState(page == m_ui->bandPages->count() - 1);
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

// The slider takes its size from its pictures. Its number would be white in any look.
void SoundEqualiser::dressSlider(SpSetupSlider &slider, int height)
{
    const QSize knob(std::max(theme().touch(), theme().px(72)), theme().px(40));
    const QSize size(theme().px(120), height);
    const int values = slider.maxValue() - slider.getMinValue() + 1;
    const QPixmap ground = track(theme(), size, knob.height(), values);
    slider.setSliderNormalImage(withGroove(theme(), ground, grooveColor(theme())));
    slider.setSliderPressImage(withGroove(theme(), ground, theme().accent));
    slider.setPointNormalImage(knobPicture(theme(), knob, theme().accent));
    slider.setFontSize(std::min(theme().textPx(Theme::Body), kLargestValue));
    slider.setPointPressImage(knobPicture(theme(), knob, theme().accent.darker(125)));
    for (QLabel *label : slider.findChildren<QLabel *>())
        label->setStyleSheet(QStringLiteral("color: %1").arg(theme().text.name()));
}

} // namespace headunit
