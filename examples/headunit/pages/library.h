// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_LIBRARY_H
#define HEADUNIT_LIBRARY_H

#include "view.h"

#include <memory>

namespace Ui
{
class Library;
}

namespace headunit
{

class RowList;
class TrackModel;
class TrackRows;

/// What there is to play: all tracks with their letters, or the folders and what is in them.
class Library : public View
{
    Q_OBJECT

public:
    explicit Library(Context &context, QWidget *parent = nullptr);
    ~Library() override;

    void showAllTracks();
    void showFolders();
    /// From the tracks of a folder back to the folders; false if there is no way back.
    bool goBack();

signals:
    void trackChosen();

protected:
    void dress() override;
    void retranslate() override;
    QMargins margins(const Theme &theme) const override;

private:
    enum class Content { AllTracks, Folders, FolderTracks };

    void show(Content content);
    void showIndex();
    void openRow(int row);
    void openFolder(const QString &path);
    void playRow(TrackModel *tracks, int row);
    void readFolders();
    void showHeading();
    void showProgress(int read, int total);

    const std::unique_ptr<Ui::Library> m_ui;
    TrackRows *const m_allRows;
    RowList *const m_folderRows;
    TrackModel *m_folderTracks = nullptr; // of the folder that is open
    TrackRows *m_folderTrackRows = nullptr;
    Content m_content = Content::AllTracks;
    QString m_folder; // the name of the one that is open
    QStringList m_folders; // paths, a row each
};

} // namespace headunit

#endif // HEADUNIT_LIBRARY_H
