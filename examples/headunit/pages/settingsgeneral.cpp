// SPDX-License-Identifier: Apache-2.0
#include "pages/settingsgeneral.h"

#include "dress.h"
#include "listpanel.h"
#include "listrows.h"
#include "ui_settingsgeneral.h"

#include <monoffbutton.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QScrollBar>

#include <array>

namespace headunit
{

namespace
{

constexpr int kUntilRest = 100; // ms; a fling moves the list five times as often

struct Row {
    Preferences::Option option;
    const char *title;
    const char *detail;
};

using Option = Preferences::Option;

// Those that the screen itself goes by, then those of the car.
constexpr std::array<Row, 11> kRows{
    {{Option::Clock24, QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "24-hour clock"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "In the bar above every page")},
     {Option::DateShown, QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Date beside the clock"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Day and month")},
     {Option::KeyClicks, QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Key clicks"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "A click for each touch")},
     {Option::CallsPauseMusic,
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Calls pause the music"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "It goes on when you hang up")},
     {Option::SpeedWarning, QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Speed warning"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "When the car is faster than the limit")},
     {Option::LockDoors, QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Lock doors while driving"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "They open again when the car is parked")},
     {Option::RainWipers,
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Wipers start in the rain"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "As fast as it rains")},
     {Option::FoldMirrors, QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Fold mirrors"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "When the car is locked")},
     {Option::LightsHome, QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Lights to the door"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Half a minute of light after parking")},
     {Option::EasyEntry, QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Easy entry"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "The seat makes room when a door opens")},
     {Option::DriverAlert, QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Drowsiness alert"),
      QT_TRANSLATE_NOOP("headunit::SettingsGeneral", "Suggests a break on long drives")}}};

void setListMoving(bool isMoving) { qApp->setProperty("listMoving", isMoving); }

} // namespace

SettingsGeneral::SettingsGeneral(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::SettingsGeneral>()),
      m_rows(new RowList(this))
{
    m_ui->setupUi(this);
    m_ui->list->setModel(m_rows);
    SettingsGeneral::retranslate();
    for (int row = 0; row < int(kRows.size()); ++row)
        addSwitch(row);
    m_rest.setSingleShot(true);
    m_rest.setInterval(kUntilRest);
    connect(&m_rest, &QTimer::timeout, this, &SettingsGeneral::rest);
    connect(m_ui->list, &SpTableList::listPressed, this, &SettingsGeneral::onPressed);
    connect(m_ui->list, &SpTableList::currentShowIndex, this, &SettingsGeneral::onReleased);
    connect(m_ui->list, QOverload<int>::of(&SpTableList::itemClicked), this,
            &SettingsGeneral::tapRow);
    connect(m_ui->list->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &SettingsGeneral::onMoved);
    connect(&context.preferences, &Preferences::optionChanged, this, &SettingsGeneral::showOption);
}

SettingsGeneral::~SettingsGeneral() = default;

void SettingsGeneral::dress()
{
    const Theme &t = theme();
    dressListPanel(*m_ui->panel, *m_ui->list, t);
    for (MOnOffButton *button : qAsConst(m_switches)) {
        dressSwitch(*button, t);
        button->parentWidget()->layout()->setContentsMargins(t.gap(), 0, t.gap(), 0);
    }
    retranslate(); // the titles end before the switches
}

QMargins SettingsGeneral::margins(const Theme &theme) const { return rowMargins(theme); }

void SettingsGeneral::retranslate()
{
    m_ui->retranslateUi(this);
    QVector<ListRow> rows;
    for (const Row &row : kRows) {
        ListRow shown;
        shown.title = tr(row.title);
        shown.detail = tr(row.detail);
        shown.room = m_switches.isEmpty() ? 0 : m_switches.first()->width() + theme().gap();
        rows.append(shown);
    }
    m_rows->setRows(rows);
}

// A list that is left while it moves does not move any more.
void SettingsGeneral::hideEvent(QHideEvent *e)
{
    View::hideEvent(e);
    m_isTouched = false;
    m_rest.stop();
    rest();
}

// The switch lies at the end of its row. What it does not take of a touch goes on to the list,
// which scrolls by it; only one of both is to click.
void SettingsGeneral::addSwitch(int row)
{
    const Option option = kRows.at(std::size_t(row)).option;
    auto *holder = new QWidget;
    auto *layout = new QHBoxLayout(holder);
    auto *button = new MOnOffButton(holder);
    button->setObjectName(QStringLiteral("switch%1").arg(row));
    layout->addStretch(1);
    layout->addWidget(button);
    button->setOnoffStatus(context().preferences.isOn(option));
    connect(button, &MOnOffButton::buttonClicked, this, [this] { m_ui->list->setBIsBeep(false); });
    connect(
        button, &MOnOffButton::onoffStatusChanged, this,
        [this, option](const QString &, bool isOn) { context().preferences.setOn(option, isOn); });
    m_switches.append(button);
    m_ui->list->setIndexWidget(m_rows->index(row), holder);
}

void SettingsGeneral::tapRow(int row)
{
    MOnOffButton *button = m_switches.value(row);
    if (button && !m_isSwitchTouched)
        button->changeStatus(!button->onoffStatus());
}

// Switches that have been touched know already.
void SettingsGeneral::showOption(Option option, bool isOn)
{
    for (int row = 0; row < m_switches.size(); ++row) {
        MOnOffButton *button = m_switches.at(row);
        if (kRows.at(std::size_t(row)).option == option && button->onoffStatus() != isOn)
            button->setOnoffStatus(isOn);
    }
}

// A switch hears of the finger before the list does.
void SettingsGeneral::onPressed()
{
    m_isTouched = true;
    m_rest.stop();
    m_isSwitchTouched = !m_ui->list->getBIsBeep();
    m_ui->list->setBIsBeep(true);
}

// And of its end, too: by now it has read whether the list was moving.
void SettingsGeneral::onReleased()
{
    m_isTouched = false;
    m_rest.start();
}

void SettingsGeneral::onMoved()
{
    setListMoving(true);
    if (!m_isTouched)
        m_rest.start();
}

void SettingsGeneral::rest() { setListMoving(false); }

} // namespace headunit
