// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_HOME_H
#define HEADUNIT_HOME_H

#include "page.h"

#include <QImage>

#include <memory>

class SpHomeIcon;

namespace Ui
{
class Home;
}

namespace headunit
{

/// The launcher: a tile for each application, and what is playing.
class HomePage : public Page
{
    Q_OBJECT

public:
    explicit HomePage(Context &context, QWidget *parent = nullptr);
    ~HomePage() override;

    QString title() const override;

protected:
    void dress() override;
    void retranslate() override;

private:
    void connectPlayer();
    bool isWide() const;
    void layOutStrip();
    void dressStrip();
    void openTile(const SpHomeIcon &tile);
    void showTrack();
    void showCover();
    void takeCover(const QString &path, const QImage &cover);
    void showPlaying();
    void dressTile(SpHomeIcon &tile, const QSize &size);

    const std::unique_ptr<Ui::Home> m_ui;
    QString m_coverPath; // empty: the track has no cover
    QImage m_cover; // null until it is read
    const SpHomeIcon *m_pressed = nullptr; // the tile under the finger, until the finger leaves it
};

} // namespace headunit

#endif // HEADUNIT_HOME_H
