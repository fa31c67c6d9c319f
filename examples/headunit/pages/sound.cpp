// SPDX-License-Identifier: Apache-2.0
#include "pages/sound.h"

#include "pages/soundbalance.h"
#include "pages/soundeffects.h"
#include "pages/soundequaliser.h"
#include "pages/soundvolume.h"
#include "ui_sound.h"

#include <algorithm>

namespace headunit
{

SoundPage::SoundPage(Context &context, QWidget *parent)
    : Page(context, parent), m_ui(std::make_unique<Ui::Sound>()),
      m_equaliser(new SoundEqualiser(context))
{
    m_ui->setupUi(this);
    m_ui->sideKeys->setIcons({QStringLiteral("sound"), QStringLiteral("bass"),
                              QStringLiteral("balance"), QStringLiteral("speaker"),
                              QStringLiteral("volume")});
    for (View *view :
         {static_cast<View *>(m_equaliser), static_cast<View *>(new SoundBalance(context)),
          static_cast<View *>(new SoundEffects(context)),
          static_cast<View *>(new SoundVolume(context))})
        m_ui->views->addWidget(view);
    connect(m_ui->sideKeys, &SideKeys::chosen, this, &SoundPage::showView);
    connect(m_equaliser, &SoundEqualiser::pageTurned, m_ui->sideKeys, &SideKeys::setCurrent);
    SoundPage::retranslate();
}

SoundPage::~SoundPage() = default;

QString SoundPage::title() const { return tr("Sound"); }

void SoundPage::setTheme(const Theme &theme)
{
    m_ui->sideKeys->setFixedWidth(SideKeys::columnWidth(theme));
    for (View *view : m_ui->views->findChildren<View *>())
        view->setTheme(theme);
    Page::setTheme(theme);
}

void SoundPage::dress() { m_ui->sideKeys->dress(theme()); }

void SoundPage::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->sideKeys->setCaptions(
        {tr("Tone"), tr("Levels"), tr("Balance"), tr("Effects"), tr("Volume")});
}

void SoundPage::showView(int key)
{
    m_ui->views->setCurrentIndex(std::max(0, key - 1));
    m_equaliser->showPage(key == 0 ? 0 : 1);
}

} // namespace headunit
