// SPDX-License-Identifier: Apache-2.0
#include "pages/library.h"

#include "dress.h"
#include "listpanel.h"
#include "listrows.h"
#include "models/musiclibrary.h"
#include "models/player.h"
#include "models/trackmodel.h"
#include "trackrows.h"
#include "ui_library.h"

#include <QDir>

namespace headunit
{

namespace
{

constexpr int kLeastLetters = 8; // of an index that is shown

} // namespace

Library::Library(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::Library>()),
      m_allRows(new TrackRows(context.music.tracks(), &context.player, this)),
      m_folderRows(new RowList(this))
{
    m_ui->setupUi(this);
    const MusicLibrary &music = context.music;
    connect(m_ui->list, QOverload<int>::of(&SpTableList::itemClicked), this, &Library::openRow);
    for (const auto change : {&Library::showHeading, &Library::showIndex}) {
        connect(music.tracks(), &TrackModel::rowsInserted, this, change);
        connect(music.tracks(), &TrackModel::modelReset, this, change);
    }
    connect(&music, &MusicLibrary::walked, this, &Library::readFolders);
    connect(&music, &MusicLibrary::walked, this, &Library::showHeading);
    connect(&music, &MusicLibrary::progress, this, &Library::showProgress);
    connect(&music, &MusicLibrary::finished, this, &Library::showHeading);
    readFolders();
    show(Content::AllTracks);
    Library::retranslate();
}

// The tracks of a folder take leave of the player, which tells all rows; theirs are gone by then.
Library::~Library() { delete m_folderTrackRows; }

void Library::showAllTracks() { show(Content::AllTracks); }

void Library::showFolders() { show(Content::Folders); }

bool Library::goBack()
{
    const bool isInside = m_content == Content::FolderTracks;
    if (isInside)
        showFolders();
    return isInside;
}

void Library::dress()
{
    dressHeading(*m_ui->heading, theme());
    m_ui->heading->setAlignment(leadingAlignment());
    dressLabel(*m_ui->progress, theme(), Theme::Small, true);
    layout()->setSpacing(theme().px(8));
    layout()->activate();
    m_ui->index->dress(theme(), listHeight(*m_ui->panel, theme()));
    dressListPanel(*m_ui->panel, *m_ui->list, theme());
}

QMargins Library::margins(const Theme &theme) const { return rowMargins(theme); }

void Library::retranslate()
{
    m_ui->retranslateUi(this);
    readFolders();
    showHeading();
}

void Library::show(Content content)
{
    m_content = content;
    const bool isAll = content == Content::AllTracks;
    QAbstractItemModel *rows = m_folderTrackRows;
    if (isAll)
        rows = m_allRows;
    else if (content == Content::Folders)
        rows = m_folderRows;
    // Only another model brings the selection that shows what is pressed.
    if (rows != m_ui->list->model()) {
        m_ui->list->deleteSelectionModel();
        m_ui->list->setModel(rows);
    }
    m_ui->list->scrollToTop();
    if (isAll)
        m_ui->index->setList(m_ui->list, ListLetters::of(context().music.tracks()));
    showHeading();
    showIndex();
}

// With a few letters it would take room from the rows and save no way. The list has more room
// without it, also if it is not seen at the moment.
void Library::showIndex()
{
    const bool isWanted = m_content == Content::AllTracks
        && context().music.tracks()->letters().size() >= kLeastLetters;
    if (isWanted == !m_ui->index->isHidden())
        return;
    m_ui->index->setVisible(isWanted);
    dressAgain();
}

void Library::openRow(int row)
{
    switch (m_content) {
    case Content::AllTracks:
        playRow(context().music.tracks(), row);
        break;
    case Content::Folders:
        openFolder(m_folders.value(row));
        break;
    case Content::FolderTracks:
        playRow(m_folderTracks, row);
        break;
    }
}

// The tracks of a folder that plays are kept for the player until another list plays.
void Library::openFolder(const QString &path)
{
    TrackRows *const rowsBefore = m_folderTrackRows;
    m_folder = QDir(path).dirName();
    m_folderTracks = new TrackModel(this);
    m_folderTracks->setTracks(context().music.tracksIn(path));
    m_folderTrackRows = new TrackRows(m_folderTracks, &context().player, this);
    show(Content::FolderTracks);
    delete rowsBefore;
    const auto models = findChildren<TrackModel *>();
    for (TrackModel *model : models) {
        if (model != m_folderTracks && model != context().player.model())
            delete model;
    }
}

void Library::playRow(TrackModel *tracks, int row)
{
    Player &player = context().player;
    if (player.model() != tracks)
        player.setModel(tracks);
    player.playRow(row);
    emit trackChosen();
}

void Library::readFolders()
{
    const MusicLibrary &music = context().music;
    const QDir root(music.root());
    QVector<ListRow> rows;
    m_folders.clear();
    const auto folders = music.folders();
    for (const Folder &folder : folders) {
        ListRow row;
        row.icon = QStringLiteral("folder");
        row.title = folder.name;
        row.tail = tr("Tracks: %L1").arg(folder.tracks);
        const QString place = root.relativeFilePath(QFileInfo(folder.path).path());
        if (!place.startsWith(QLatin1Char('.')))
            row.detail = place;
        rows.append(row);
        m_folders.append(folder.path);
    }
    m_folderRows->setRows(rows);
}

void Library::showHeading()
{
    const MusicLibrary &music = context().music;
    const bool isInFolder = m_content == Content::FolderTracks;
    const int total = (isInFolder ? m_folderTracks : music.tracks())->rowCount();
    if (isInFolder)
        m_ui->heading->setText(m_folder);
    else
        m_ui->heading->setText(m_content == Content::Folders ? tr("Folders") : tr("All tracks"));
    if (music.isWalked() && !music.isFinished())
        showProgress(music.readCount(), music.tracks()->rowCount());
    else if (m_content == Content::Folders)
        m_ui->progress->clear(); // the rows say it
    else
        m_ui->progress->setText(tr("Tracks: %L1").arg(total));
}

void Library::showProgress(int read, int total)
{
    m_ui->progress->setText(tr("Reading tags: %L1 of %L2").arg(read).arg(total));
}

} // namespace headunit
