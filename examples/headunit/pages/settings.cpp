// SPDX-License-Identifier: Apache-2.0
#include "pages/settings.h"

#include "pages/settingsabout.h"
#include "pages/settingsdisplay.h"
#include "pages/settingsgeneral.h"
#include "pages/settingslanguage.h"
#include "pages/settingsupdate.h"
#include "ui_settings.h"

namespace headunit
{

SettingsPage::SettingsPage(Context &context, QWidget *parent)
    : Page(context, parent), m_ui(std::make_unique<Ui::Settings>())
{
    m_ui->setupUi(this);
    m_ui->sideKeys->setIcons({QStringLiteral("settings"), QStringLiteral("brightness"),
                              QStringLiteral("language"), QStringLiteral("update"),
                              QStringLiteral("info")});
    auto *update = new SettingsUpdate(context);
    connect(update, &SettingsUpdate::ended, this,
            [this](const QString &sentence) { emit popupWanted(tr("Update"), sentence); });
    m_views = {new SettingsGeneral(context), new SettingsDisplay(context),
               new SettingsLanguage(context), update, new SettingsAbout(context)};
    for (View *view : qAsConst(m_views))
        m_ui->views->addWidget(view);
    connect(m_ui->sideKeys, &SideKeys::chosen, m_ui->views, &QStackedWidget::setCurrentIndex);
    SettingsPage::retranslate();
}

SettingsPage::~SettingsPage() = default;

QString SettingsPage::title() const { return tr("Settings"); }

void SettingsPage::setTheme(const Theme &theme)
{
    m_ui->sideKeys->setFixedWidth(SideKeys::columnWidth(theme));
    for (View *view : qAsConst(m_views))
        view->setTheme(theme);
    Page::setTheme(theme);
}

void SettingsPage::dress() { m_ui->sideKeys->dress(theme()); }

void SettingsPage::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->sideKeys->setCaptions(
        {tr("General"), tr("Display"), tr("Language"), tr("Update"), tr("About")});
}

} // namespace headunit
