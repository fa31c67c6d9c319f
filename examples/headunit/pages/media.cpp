// SPDX-License-Identifier: Apache-2.0
#include "pages/media.h"

#include "pages/library.h"
#include "pages/nowplaying.h"
#include "ui_media.h"

namespace headunit
{

namespace
{

enum SideKey { PlayingKey, TracksKey, FoldersKey };

} // namespace

MediaPage::MediaPage(Context &context, QWidget *parent)
    : Page(context, parent), m_ui(std::make_unique<Ui::Media>()),
      m_nowPlaying(new NowPlaying(context)), m_library(new Library(context))
{
    m_ui->setupUi(this);
    m_ui->sideKeys->setIcons(
        {QStringLiteral("media"), QStringLiteral("list"), QStringLiteral("folder")});
    m_ui->views->addWidget(m_nowPlaying);
    m_ui->views->addWidget(m_library);
    connect(m_ui->sideKeys, &SideKeys::chosen, this, &MediaPage::showView);
    connect(m_library, &Library::trackChosen, this, [this] { showView(PlayingKey); });
    MediaPage::retranslate();
}

MediaPage::~MediaPage() = default;

QString MediaPage::title() const { return tr("Media"); }

void MediaPage::setTheme(const Theme &theme)
{
    m_ui->sideKeys->setFixedWidth(SideKeys::columnWidth(theme));
    m_nowPlaying->setTheme(theme);
    m_library->setTheme(theme);
    Page::setTheme(theme);
}

bool MediaPage::goBack()
{
    return m_ui->views->currentWidget() == m_library && m_library->goBack();
}

void MediaPage::dress() { m_ui->sideKeys->dress(theme()); }

void MediaPage::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->sideKeys->setCaptions({tr("Playing"), tr("Tracks"), tr("Folders")});
}

void MediaPage::showView(int key)
{
    m_ui->sideKeys->setCurrent(key);
    if (key == TracksKey)
        m_library->showAllTracks();
    else if (key == FoldersKey)
        m_library->showFolders();
    m_ui->views->setCurrentWidget(key == PlayingKey ? static_cast<QWidget *>(m_nowPlaying)
                                                    : m_library);
}

} // namespace headunit
