// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_MEDIA_H
#define HEADUNIT_MEDIA_H

#include "page.h"

#include <memory>

namespace Ui
{
class Media;
}

namespace headunit
{

class Library;
class NowPlaying;

/// Music: what is playing, and what there is to play.
class MediaPage : public Page
{
    Q_OBJECT

public:
    explicit MediaPage(Context &context, QWidget *parent = nullptr);
    ~MediaPage() override;

    QString title() const override;
    void setTheme(const Theme &theme) override;
    bool goBack() override;

protected:
    void dress() override;
    void retranslate() override;

private:
    void showView(int key);

    const std::unique_ptr<Ui::Media> m_ui;
    NowPlaying *const m_nowPlaying;
    Library *const m_library;
};

} // namespace headunit

#endif // HEADUNIT_MEDIA_H
