// SPDX-License-Identifier: Apache-2.0
#include "pages/sound.h"

#include "dress.h"
#include "pages/soundbalance.h"
#include "pages/soundeffects.h"
#include "pages/soundequaliser.h"
#include "pages/soundvolume.h"
#include "ui_sound.h"

#include <algorithm>

namespace headunit
{

SoundPage::SoundPage(Context &context, QWidget *parent)
    : Page(context, parent), m_ui(std::make_unique<Ui::Sound>())
{
    m_ui->setupUi(this);
    for (View *view : {static_cast<View *>(new SoundEqualiser(context)),
                       static_cast<View *>(new SoundBalance(context)),
                       static_cast<View *>(new SoundEffects(context)),
                       static_cast<View *>(new SoundVolume(context))})
        m_ui->views->addWidget(view);
    int index = 0;
    for (MFocusButton *tab :
         {m_ui->equaliserTab, m_ui->balanceTab, m_ui->effectsTab, m_ui->volumeTab}) {
        connect(tab, &MFocusButton::btnClicked, this,
                [this, index] { m_ui->views->setCurrentIndex(index); });
        ++index;
    }
    m_ui->equaliserTab->setChecked(true);
    SoundPage::retranslate();
}

SoundPage::~SoundPage() = default;

QString SoundPage::title() const { return tr("Sound"); }

void SoundPage::setTheme(const Theme &theme)
{
    Page::setTheme(theme);
    for (View *view : findChildren<View *>())
        view->setTheme(theme);
}

void SoundPage::dress()
{
    m_ui->tabRow->setSpacing(theme().gap());
    m_ui->tabs->setFixedHeight(theme().touch());
    layout()->activate();
    for (MFocusButton *tab : m_ui->tabs->findChildren<MFocusButton *>())
        dressChoice(*tab, theme());
}

void SoundPage::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->equaliserTab->setDisplayText(tr("Equaliser"));
    m_ui->balanceTab->setDisplayText(tr("Balance"));
    m_ui->effectsTab->setDisplayText(tr("Effects"));
    m_ui->volumeTab->setDisplayText(tr("Volume"));
}

} // namespace headunit
