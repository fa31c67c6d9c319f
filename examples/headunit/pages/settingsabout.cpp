// SPDX-License-Identifier: Apache-2.0
#include "pages/settingsabout.h"

#include "dress.h"
#include "licence.h"
#include "ui_settingsabout.h"

#include <QLocale>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kPart = 1000; // characters: the label takes no more than 1023

} // namespace

SettingsAbout::SettingsAbout(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::SettingsAbout>()),
      m_parts(licenceParts(kPart))
{
    m_ui->setupUi(this);
    connect(m_ui->previousKey, &SpIconButton::btnClicked, this, [this] { showPart(m_part - 1); });
    connect(m_ui->nextKey, &SpIconButton::btnClicked, this, [this] { showPart(m_part + 1); });
    // It starts two seconds after it was shown, also if it has been left by then.
    connect(m_ui->licence, &MVScrollLabel::scrollStateChanged, this, [this](bool isScrolling) {
        if (isScrolling && !m_ui->licence->isVisible())
            m_ui->licence->stopScroll();
    });
    SettingsAbout::retranslate();
}

SettingsAbout::~SettingsAbout() = default;

void SettingsAbout::dress()
{
    const Theme &t = theme();
    dressHeading(*m_ui->product, t);
    m_ui->product->setAlignment(leadingAlignment());
    dressLabel(*m_ui->versions, t, Theme::Body, true);
    dressHeading(*m_ui->licenceHeading, t);
    dressLabel(*m_ui->part, t, Theme::Small, true);
    dressLabel(*m_ui->licence, t, Theme::Small);
    m_ui->versionPanel->setFixedHeight(std::max(t.touch(), t.px(72)));
    for (SpIconButton *key : {m_ui->previousKey, m_ui->nextKey})
        key->setFixedSize(t.touch(), t.touch());
    layout()->activate();
    dressPanel(*m_ui->versionPanel, t);
    dressPanel(*m_ui->licencePanel, t);
    m_ui->licenceRow->setSpacing(t.px(8));
    m_ui->licenceColumn->setSpacing(t.px(8));
    layOutLines();
    dressKey(*m_ui->previousKey, t, Theme::Key,
             isRightToLeft() ? QStringLiteral("forward") : QStringLiteral("back"));
    dressKey(*m_ui->nextKey, t, Theme::Key,
             isRightToLeft() ? QStringLiteral("back") : QStringLiteral("forward"));
    showPart(m_part);
}

// At rest the text ends between two lines.
void SettingsAbout::layOutLines()
{
    const int inset = theme().inset();
    const auto layOut = [this, inset](int below) {
        m_ui->licenceColumn->setContentsMargins(inset, theme().gap(), inset, below);
        m_ui->licenceColumn->activate();
    };
    layOut(inset);
    const int rest = m_ui->licence->height() % QFontMetrics(m_ui->licence->font()).lineSpacing();
    layOut(inset + rest);
}

QMargins SettingsAbout::margins(const Theme &theme) const { return rowMargins(theme); }

void SettingsAbout::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->product->setText(QStringLiteral("PanelKit"));
    m_ui->versions->setText(tr("Version %1, with Qt %2")
                                .arg(QStringLiteral(HEADUNIT_VERSION), QLatin1String(qVersion())));
    m_ui->licenceHeading->setText(tr("Licence"));
    showPart(m_part);
}

// Another text starts at its top, and rolls if it is longer than the label is high. The label would
// break lines in the middle of words.
void SettingsAbout::showPart(int part)
{
    m_part = qBound(0, part, std::max(0, m_parts.size() - 1));
    const QFontMetrics metrics(m_ui->licence->font());
    m_ui->licence->setText(withLines(m_parts.value(m_part), metrics, m_ui->licence->width()));
    m_ui->part->setText(
        tr("%1 of %2").arg(QLocale().toString(m_part + 1), QLocale().toString(m_parts.size())));
    m_ui->previousKey->setDisableState(m_part == 0);
    m_ui->nextKey->setDisableState(m_part + 1 >= m_parts.size());
}

} // namespace headunit
