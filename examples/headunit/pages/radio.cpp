// SPDX-License-Identifier: Apache-2.0
#include "pages/radio.h"

#include "dress.h"
#include "listrows.h"
#include "models/contacts.h"
#include "models/tuner.h"
#include "pages/tunerscales.h"
#include "texts.h"
#include "ui_radio.h"

#include <QFontMetrics>
#include <QSettings>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kConfirmation = 1500; // ms
constexpr int kStepRepeat = 120; // ms, of a step key that is held
constexpr int kReading = 3000; // ms that a text stands before it rolls
// Units of a width
constexpr int kDisplay = 700;
constexpr int kLeastKey = 96;
constexpr int kMostKey = 180;
constexpr int kBadge = 96;
const QString kScaleKey = QStringLiteral("radio/scale");

} // namespace

RadioPage::RadioPage(Context &context, QWidget *parent)
    : Page(context, parent), m_ui(std::make_unique<Ui::Radio>())
{
    m_ui->setupUi(this);
    m_scales = new TunerScales({m_ui->needleScale, m_ui->tapeScale, m_ui->pointerScale},
                               context.tuner, this);
    for (int place = 0; place < Tuner::kPresets; ++place) {
        auto *key = findChild<MPresetButton *>(QStringLiteral("preset%1").arg(place + 1));
        m_presets.append(key);
        connect(key, &MPresetButton::btnClicked, this,
                [this, place] { this->context().tuner.recallPreset(place); });
        connect(key, &MPresetButton::btnLongClicked, this, [this, place] { store(place); });
    }
    m_confirmation.setSingleShot(true);
    m_confirmation.setInterval(kConfirmation);
    connect(&m_confirmation, &QTimer::timeout, this,
            [this] { showPreset(std::exchange(m_stored, -1)); });
    QSizePolicy place = m_ui->badge->sizePolicy();
    place.setRetainSizeWhenHidden(true); // the texts keep their room
    m_ui->badge->setSizePolicy(place);
    rollWhileShown(*m_ui->station);
    rollWhileShown(*m_ui->radioText);
    connectTuner();
    connectKeys();
    showScale(context.settings.value(kScaleKey).toInt());
    RadioPage::retranslate();
}

RadioPage::~RadioPage() = default;

QString RadioPage::title() const { return tr("Radio"); }

void RadioPage::dress()
{
    layOut();
    dressPanel(*m_ui->display, theme());
    dressPanel(*m_ui->scalePanel, theme());
    // Three lines are as much as the display holds on a small screen.
    m_ui->displayRow->setContentsMargins(theme().inset(), theme().px(4), theme().inset(),
                                         theme().px(4));
    dressTexts();
    m_ui->displayRow->activate();
    for (MSelectButton *key : {m_ui->fmKey, m_ui->amKey})
        dressBand(*key);
    for (SpIconButton *key : m_ui->keys->findChildren<SpIconButton *>())
        dressKey(*key, theme(), Theme::Key,
                 key == m_ui->stepUpKey         ? QStringLiteral("plus")
                     : key == m_ui->stepDownKey ? QStringLiteral("minus")
                                                : key->buttonID());
    for (MPresetButton *key : qAsConst(m_presets))
        dressPreset(*key);
    m_scales->dress(theme());
    showFrequency();
    showStation();
    showPresets();
}

void RadioPage::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->scanKey->setDisplayText(tr("Scan"));
    m_ui->scaleKey->setDisplayText(tr("Scale"));
    showBand();
    showFrequency();
    showStation();
    showPresets();
}

void RadioPage::connectTuner()
{
    const Tuner &tuner = context().tuner;
    connect(&tuner, &Tuner::bandChanged, this, &RadioPage::showBand);
    connect(&tuner, &Tuner::frequencyChanged, this, &RadioPage::showFrequency);
    connect(&tuner, &Tuner::frequencyChanged, this, &RadioPage::showPresets);
    connect(&tuner, &Tuner::stationChanged, this, &RadioPage::showStation);
    connect(&tuner, &Tuner::presetChanged, this, &RadioPage::showPresets);
    connect(&tuner, &Tuner::scanningChanged, m_ui->scanKey, &SpIconButton::setFocus);
}

void RadioPage::connectKeys()
{
    Tuner &tuner = context().tuner;
    connect(m_ui->fmKey, &MSelectButton::btnClicked, this, [&tuner] { tuner.setBand(Band::Fm); });
    connect(m_ui->amKey, &MSelectButton::btnClicked, this, [&tuner] { tuner.setBand(Band::Am); });
    connect(m_ui->seekDownKey, &SpIconButton::btnClicked, &tuner, &Tuner::seekDown);
    connect(m_ui->seekUpKey, &SpIconButton::btnClicked, &tuner, &Tuner::seekUp);
    connect(m_ui->scanKey, &SpIconButton::btnClicked, this,
            [&tuner] { tuner.setScanning(!tuner.isScanning()); });
    connect(m_ui->scaleKey, &SpIconButton::btnClicked, this, &RadioPage::showNextScale);
    for (SpIconButton *key : {m_ui->stepDownKey, m_ui->stepUpKey}) {
        const auto step = key == m_ui->stepUpKey ? &Tuner::stepUp : &Tuner::stepDown;
        key->setSupportLongPress(true);
        key->setTimerInt2(kStepRepeat);
        connect(key, &SpIconButton::btnClicked, &tuner, step);
        connect(key, &SpIconButton::btnLongPress, &tuner, step);
    }
}

// The key itself says that it has stored, for a moment.
void RadioPage::store(int place)
{
    const int before = std::exchange(m_stored, place);
    if (before >= 0)
        showPreset(before);
    m_confirmation.start();
    context().tuner.storePreset(place);
}

void RadioPage::showScale(int scale)
{
    m_ui->scales->setCurrentIndex(qBound(0, scale, m_ui->scales->count() - 1));
}

void RadioPage::showNextScale()
{
    showScale((m_ui->scales->currentIndex() + 1) % m_ui->scales->count());
    context().settings.setValue(kScaleKey, m_ui->scales->currentIndex());
}

void RadioPage::showBand()
{
    const Band band = context().tuner.band();
    m_ui->fmKey->setSelectState(band == Band::Fm);
    m_ui->amKey->setSelectState(band == Band::Am);
}

// Number and unit stand on one line, also between words that run from right to left.
void RadioPage::showFrequency()
{
    const Tuner &tuner = context().tuner;
    if (theme().screen().isEmpty())
        return; // not dressed yet
    m_ui->frequency->setText(QStringLiteral("%1%2<span style=\"font-size:%3px\"> %4</span>%5")
                                 .arg(QChar(0x2066)) // from left to right, by itself
                                 .arg(tuner.frequencyText())
                                 .arg(theme().textPx(Theme::Title))
                                 .arg(tuner.unitText())
                                 .arg(QChar(0x2069)));
}

// The badge stands for the station as that of a person does for a contact.
void RadioPage::showStation()
{
    const Tuner &tuner = context().tuner;
    if (theme().screen().isEmpty())
        return; // not dressed yet
    const QString name = tuner.stationName();
    m_ui->station->setTextColor(name.isEmpty() ? theme().quietText : theme().accent);
    showRolling(*m_ui->station, name.isEmpty() ? tr("No station") : name);
    m_ui->radioText->setHidden(tuner.radioText().isEmpty()); // the others stand in the middle then
    showRolling(*m_ui->radioText, tuner.radioText());
    m_ui->badge->setHidden(name.isEmpty());
    m_ui->badge->setPixmap(initialsDisc(theme(), m_ui->badge->width(), Contacts::initialsOf(name)));
}

void RadioPage::showPresets()
{
    for (int place = 0; place < m_presets.size(); ++place)
        showPreset(place);
}

// A preset has two lines: the station and its frequency or, for want of a name, the frequency and
// its unit. One that is empty has a line in the middle.
void RadioPage::showPreset(int place)
{
    const Tuner &tuner = context().tuner;
    const int frequency = tuner.preset(place);
    const bool isStored = place == m_stored;
    MPresetButton &key = *m_presets[place];
    const QString number = frequency ? Tuner::textOf(tuner.band(), frequency) : QString();
    const QString name = frequency ? tuner.presetName(place) : tr("Empty");
    const QString below = name == number ? tuner.unitText() : number;
    key.setDisplayText(shortened(name, QFontMetrics(key.font()), key.width() - theme().px(12)));
    key.setDisplayText2(isStored ? tr("Stored") : below);
    const int line = theme().textPx(Theme::Small) * 3 / 2;
    const int top = key.height() / 2 - line;
    key.setdisplayTextRect(frequency || isStored ? QRect(0, top, key.width(), line) : key.rect());
    key.setdisplayTextRect2({0, top + line, key.width(), line});
    key.setNormalTextColor(frequency ? theme().text : theme().quietText);
    key.setChecked(frequency && place == tuner.presetInUse());
}

// The rows of keys have their heights, what is left is for the display. On a wide screen it is not
// wider than its texts need, and the four columns of keys are.
void RadioPage::layOut()
{
    const int spare = (width() - 2 * theme().margin() - theme().px(kDisplay)) / 4 - theme().gap();
    const int key =
        qBound(std::max(theme().touch(), theme().px(kLeastKey)), spare, theme().px(kMostKey));
    const int row = std::max(theme().touch(), theme().px(66));
    for (QLayout *layout :
         {static_cast<QLayout *>(m_ui->keyGrid), static_cast<QLayout *>(m_ui->presetGrid)})
        layout->setSpacing(theme().gap());
    m_ui->fmKey->setFixedWidth(key);
    m_ui->amKey->setFixedWidth(key);
    m_ui->keys->setFixedWidth(3 * key + 2 * theme().gap());
    m_ui->scalePanel->setFixedHeight(theme().px(108));
    m_ui->presets->setFixedHeight(2 * row + theme().gap());
    m_ui->station->setFixedHeight(theme().textPx(Theme::Title) * 4 / 3);
    m_ui->radioText->setFixedHeight(theme().textPx(Theme::Body) * 4 / 3);
    m_ui->badge->setFixedSize(theme().px(kBadge), theme().px(kBadge));
    layout()->activate();
}

void RadioPage::dressTexts()
{
    dressLabel(*m_ui->frequency, theme(), Theme::Huge);
    m_ui->frequency->setContentsMargins(0, 0, 0, 0); // no digit has a mark
    m_ui->frequency->setAlignment(leadingAlignment());
    m_ui->displayTexts->setSpacing(0);
    m_ui->station->setFontSize(theme().textPx(Theme::Title));
    m_ui->radioText->setFontSize(theme().textPx(Theme::Body));
    m_ui->radioText->setTextColor(theme().quietText);
    for (SpRollingText *text : {m_ui->station, m_ui->radioText}) {
        text->setTextAlignment(leadingAlignment());
        text->setWaitRoll(kReading);
        standOnFace(*text, theme());
    }
}

void RadioPage::dressBand(MSelectButton &key)
{
    key.setNormalImage(theme().key(key.size(), Theme::Key, Theme::Normal));
    key.setPressImage(theme().key(key.size(), Theme::Primary, Theme::Pressed));
    key.setSelectImage(theme().key(key.size(), Theme::Key, Theme::Selected));
    key.setNormalTextColor(theme().text);
    key.setPressTextColor(theme().onAccent);
    key.setSelectTextColor(theme().onAccent);
    key.setFont(theme().font(Theme::Body, true));
    key.setFontSize(theme().textPx(Theme::Body));
}

void RadioPage::dressPreset(MPresetButton &key)
{
    const QSize size = key.size();
    key.setNormalImage(theme().key(size, Theme::Key, Theme::Normal));
    key.setPressImage(theme().key(size, Theme::Key, Theme::Selected));
    key.setFont(theme().font(Theme::Small));
    key.setFontSize2(theme().textPx(Theme::Small));
    key.setNormalTextColor2(theme().quietText);
    key.setPressTextColor(theme().onAccent);
    key.setPressTextColor2(theme().onAccent);
}

} // namespace headunit
