// SPDX-License-Identifier: Apache-2.0
#include "pages/settingsupdate.h"

#include "dress.h"
#include "pages/softwareupdate.h"
#include "ui_settingsupdate.h"

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kStep = 80; // ms, of the busy ring
constexpr int kMostRadius = 134; // units, of the other one

} // namespace

SettingsUpdate::SettingsUpdate(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::SettingsUpdate>()),
      m_update(new SoftwareUpdate(this))
{
    m_ui->setupUi(this);
    connect(m_ui->key, &SpHorStrButton::clicked, this, &SettingsUpdate::onKey);
    connect(m_update, &SoftwareUpdate::stateChanged, this, [this] {
        showState();
        if (m_update->state() == SoftwareUpdate::State::Installed)
            emit ended(sentence());
    });
    connect(m_update, &SoftwareUpdate::percentChanged, m_ui->progress,
            &MOProgress::setCurrentValue);
    m_ui->progress->setCurrentValue(0);
    m_ui->progress->setBoundary(false);
    SettingsUpdate::retranslate();
}

SettingsUpdate::~SettingsUpdate() = default;

void SettingsUpdate::dress()
{
    const Theme &t = theme();
    dressHeading(*m_ui->updateHeading, t);
    dressLabel(*m_ui->version, t, Theme::Body, true);
    dressLabel(*m_ui->message, t, Theme::Body);
    m_ui->message->setAlignment(leadingAlignment());
    m_ui->key->setFixedHeight(std::max(t.touch(), t.px(72)));
    layout()->activate();
    for (QLabel *panel : {m_ui->ringPanel, m_ui->panel})
        dressPanel(*panel, t);
    const int inset = t.inset();
    m_ui->column->setContentsMargins(inset, t.gap(), inset, inset);
    m_ui->column->setSpacing(t.px(12));
    m_ui->column->activate();
    const QSize room = m_ui->rings->size();
    const int radius = std::min({room.width() / 2, room.height() / 2, t.px(kMostRadius)});
    dressRing(radius);
    m_ui->rest->setPixmap(t.icon(QStringLiteral("update"), t.px(120), t.quietText));
    m_ui->busy->setRadius(radius * 2 / 3);
    m_ui->busy->setPainterColor(t.accent);
    showState();
}

void SettingsUpdate::dressRing(int radius)
{
    const Theme &t = theme();
    MOProgress &ring = *m_ui->progress;
    ring.setRadius(radius);
    ring.setArcHeight(t.px(18));
    ring.setNormalColor(grooveColor(t));
    ring.setPressColor(t.accent);
    ring.setInsideColor(t.pressedFace);
    // The middle is drawn with the pen that a painter begins with.
    QPalette palette = ring.palette();
    palette.setColor(QPalette::WindowText, t.pressedFace);
    ring.setPalette(palette);
    ring.setDisplayTextColor(t.text);
    ring.setFont(t.font(Theme::Huge));
    ring.setFontSize(t.textPx(Theme::Small));
}

void SettingsUpdate::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->updateHeading->setText(tr("Software update"));
    m_ui->version->setText(tr("Installed: version %1").arg(QStringLiteral(HEADUNIT_VERSION)));
    showState();
}

// The ring turns where it is seen only.
void SettingsUpdate::hideEvent(QHideEvent *e)
{
    View::hideEvent(e);
    m_ui->busy->stopTimer();
}

void SettingsUpdate::showEvent(QShowEvent *e)
{
    View::showEvent(e);
    turnBusyRing();
}

void SettingsUpdate::onKey()
{
    if (m_update->isRunning())
        m_update->cancel();
    else
        m_update->start();
}

void SettingsUpdate::showState()
{
    m_ui->rings->setCurrentWidget(ring());
    turnBusyRing();
    m_ui->message->setText(sentence());
    m_ui->progress->setDispalyText(caption());
    m_ui->key->setDisplayString(m_update->isRunning() ? tr("Cancel") : tr("Look for an update"));
    if (isVisible())
        m_ui->key->dress(theme(), m_update->isRunning() ? Theme::Key : Theme::Primary);
}

void SettingsUpdate::turnBusyRing()
{
    if (m_update->state() == SoftwareUpdate::State::Checking && isVisible())
        m_ui->busy->setTimer(kStep);
    else
        m_ui->busy->stopTimer();
}

// Where nothing is under way there is nothing to count.
QWidget *SettingsUpdate::ring() const
{
    switch (m_update->state()) {
    case SoftwareUpdate::State::None:
    case SoftwareUpdate::State::Cancelled:
        break;
    case SoftwareUpdate::State::Checking:
        return m_ui->busy;
    case SoftwareUpdate::State::Installing:
    case SoftwareUpdate::State::Installed:
        return m_ui->progress;
    }
    return m_ui->rest;
}

QString SettingsUpdate::caption() const
{
    return m_update->state() == SoftwareUpdate::State::Installed ? tr("done") : tr("installing");
}

QString SettingsUpdate::sentence() const
{
    switch (m_update->state()) {
    case SoftwareUpdate::State::None:
        break;
    case SoftwareUpdate::State::Checking:
        return tr("Looking for an update…");
    case SoftwareUpdate::State::Installing:
        return tr("The update is being installed. You can go on driving.");
    case SoftwareUpdate::State::Installed:
        return tr("The head unit is up to date.");
    case SoftwareUpdate::State::Cancelled:
        return tr("The update was cancelled. Nothing has changed.");
    }
    return tr("An update takes less than a minute.");
}

} // namespace headunit
