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
    dressLabel(*m_ui->updateHeading, t, Theme::Title);
    dressLabel(*m_ui->version, t, Theme::Body, true);
    dressLabel(*m_ui->message, t, Theme::Body);
    m_ui->message->setAlignment(leadingAlignment());
    m_ui->key->setFixedHeight(std::max(t.touch(), t.px(72)));
    layout()->activate();
    for (QLabel *panel : {m_ui->ringPanel, m_ui->panel})
        dressPanel(*panel, t);
    m_ui->column->setContentsMargins(t.margin(), t.margin(), t.margin(), t.margin());
    m_ui->column->setSpacing(t.px(8));
    m_ui->column->activate();
    const QSize room = m_ui->rings->size();
    const int radius = std::min(room.width(), room.height()) * 9 / 20;
    MOProgress &ring = *m_ui->progress;
    ring.setRadius(radius);
    ring.setArcHeight(t.px(18));
    ring.setNormalColor(grooveColor(t));
    ring.setPressColor(t.accent);
    ring.setInsideColor(t.pressedFace);
    ring.setDisplayTextColor(t.text);
    ring.setFont(t.font(Theme::Huge));
    ring.setFontSize(t.textPx(Theme::Small));
    m_ui->busy->setRadius(radius * 2 / 3);
    m_ui->busy->setPainterColor(t.accent);
    showState();
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
    const bool isChecking = m_update->state() == SoftwareUpdate::State::Checking;
    m_ui->rings->setCurrentWidget(isChecking ? static_cast<QWidget *>(m_ui->busy) : m_ui->progress);
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

QString SettingsUpdate::caption() const
{
    if (m_update->state() == SoftwareUpdate::State::Installing)
        return tr("installing");
    return m_update->state() == SoftwareUpdate::State::Installed ? tr("done") : tr("ready");
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
