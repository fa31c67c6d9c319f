// SPDX-License-Identifier: Apache-2.0
#include "sidekeys.h"

#include "dress.h"

#include <mlistview.h>
#include <spiconbutton.h>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kLeastWidth = 118; // px

} // namespace

SideKeys::SideKeys(QWidget *parent) : QWidget(parent), m_view(new MListView(this, QRect())) { }

// On a small screen texts shrink less than keys.
int SideKeys::columnWidth(const Theme &theme) { return std::max(theme.px(132), kLeastWidth); }

void SideKeys::setCaptions(const QStringList &captions)
{
    m_captions = captions;
    const auto buttons = keys();
    for (int i = 0; i < buttons.size(); ++i)
        buttons.at(i)->setDisplayText(m_captions.value(i));
}

// The view leaves the keys of the last time behind the new ones.
void SideKeys::dress(const Theme &theme)
{
    qDeleteAll(keys());
    const int count = m_icons.size();
    const QSize size(width(), (height() - (count - 1) * theme.gap()) / count);
    QList<QPixmap> pictures;
    QList<QPoint> places;
    for (int i = 0; i < count; ++i) {
        pictures << theme.key(size, Theme::Key, Theme::Normal)
                 << theme.key(size, Theme::Key, Theme::Selected);
        places << QPoint(0, i * (size.height() + theme.gap()));
    }
    m_view->setGeometry(rect());
    m_view->setPositionList(places);
    m_view->setPixmapList(pictures);
    m_view->setButtonIsChecked(true);
    dressKeys(theme);
    setCurrent(m_current);
}

void SideKeys::setCurrent(int key)
{
    m_current = key;
    m_view->sltButtonClicked(QString::number(key));
}

QList<SpIconButton *> SideKeys::keys() const { return m_view->findChildren<SpIconButton *>(); }

// A key that is down is the one whose view is shown, and looks like it.
void SideKeys::dressKeys(const Theme &theme)
{
    const auto buttons = keys();
    for (SpIconButton *button : buttons) {
        const int place = button->buttonID().toInt();
        button->setDisplayText(m_captions.value(place));
        dressKey(*button, theme, Theme::Key, m_icons.at(place));
        button->setPressImage(button->focusPixmap());
        button->setPressTextColor(theme.ink(Theme::Key, Theme::Selected));
        connect(button, &SpIconButton::btnClicked, this, [this](const QString &id) {
            m_current = id.toInt();
            emit chosen(m_current);
        });
    }
}

} // namespace headunit
