// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_NOWPLAYING_H
#define HEADUNIT_NOWPLAYING_H

#include "picturefiles.h"
#include "view.h"

#include <memory>

class MultipleStateButton;
class PlayButton;

namespace Ui
{
class NowPlaying;
}

namespace headunit
{

/// What is playing: cover, titles, a bar to seek with, and the keys of a player. Nothing moves
/// unless music plays.
class NowPlaying : public View
{
    Q_OBJECT

public:
    explicit NowPlaying(Context &context, QWidget *parent = nullptr);
    ~NowPlaying() override;

protected:
    void dress() override;
    void retranslate() override;
    void showEvent(QShowEvent *e) override;
    void hideEvent(QHideEvent *e) override;

private:
    void connectPlayer();
    void connectKeys();
    void dressTitles();
    void dressProgress();
    void dressKeys();
    QPixmap modeFace(const QString &icon, Theme::State state, bool isOn) const;
    void makePlayKeys(int side);
    void makeShuffleKey();
    PlayButton *makePlayKey(const QString &icon, int side);
    void showTrack();
    void showCover(const QString &path, const QImage &cover);
    void showPlaying();
    void showPosition();
    void showDuration();
    void showRepeat();
    void showShuffle();

    const std::unique_ptr<Ui::NowPlaying> m_ui;
    const PictureFiles m_files;
    PlayButton *m_play = nullptr; // one of the two is shown
    PlayButton *m_pause = nullptr;
    MultipleStateButton *m_shuffle = nullptr;
    QString m_coverPath; // of the track whose cover is shown or on its way
};

} // namespace headunit

#endif // HEADUNIT_NOWPLAYING_H
