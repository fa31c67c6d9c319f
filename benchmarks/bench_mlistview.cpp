// SPDX-License-Identifier: Apache-2.0
#include "pictures.h"
#include "rows.h"

#include <mlistview.h>
#include <QButtonGroup>
#include <QPushButton>
#include <QVBoxLayout>
#include <spiconbutton.h>

namespace
{

constexpr int kButtons = 8;
constexpr QSize kKey(96, 60);
constexpr double kCreationLimit = 1; // of push buttons in a layout
constexpr double kSwitchLimit = 1.5; // of setting each button's state by hand

const QList<QPixmap> &pictures()
{
    static const QList<QPixmap> instance = [] {
        QList<QPixmap> list;
        for (int i = 0; i < 2 * kButtons; ++i)
            list += keyPicture(QColor::fromHsv(i * 20, 200, 200), kKey);
        return list;
    }();
    return instance;
}

std::shared_ptr<MListView> makeView()
{
    auto view = std::make_shared<MListView>(nullptr, QRect(0, 0, 96, 60 * kButtons));
    QList<QPixmap> list = pictures();
    QList<QPoint> places;
    for (int i = 0; i < kButtons; ++i)
        places += QPoint(0, i * kKey.height());
    view->setPositionList(places);
    view->setPixmapList(list);
    view->setButtonIsChecked(true);
    return view;
}

// The same by hand, without a view: buttons with their pictures at their places.
void makeButtons(QWidget &parent)
{
    for (int i = 0; i < kButtons; ++i) {
        auto *button = new SpIconButton(&parent);
        button->setNormalImage(pictures().at(2 * i));
        button->setPressImage(pictures().at(2 * i + 1));
        button->setFixedSize(kKey);
        button->move(0, i * kKey.height());
        button->show();
        button->setButtonID(QString::number(i));
    }
}

struct Peer {
    QWidget window;
    QButtonGroup group;
};

std::shared_ptr<Peer> makePeer()
{
    auto peer = std::make_shared<Peer>();
    auto *layout = new QVBoxLayout(&peer->window);
    for (int i = 0; i < kButtons; ++i) {
        auto *button = new QPushButton;
        QIcon icon(pictures().at(2 * i));
        icon.addPixmap(pictures().at(2 * i + 1), QIcon::Normal, QIcon::On);
        button->setIcon(icon);
        button->setIconSize(kKey);
        button->setFixedSize(kKey);
        button->setCheckable(true);
        layout->addWidget(button);
        peer->group.addButton(button, i);
    }
    layout->activate();
    return peer;
}

StepMaker creation()
{
    return [] { return [] { makeView(); }; };
}

StepMaker creationByHand()
{
    return [] {
        return [] {
            QWidget parent;
            makeButtons(parent);
        };
    };
}

StepMaker peerCreation()
{
    return [] { return [] { makePeer(); }; };
}

StepMaker switching()
{
    return []() -> Step {
        const auto view = makeView();
        return [view, next = 0]() mutable {
            next = (next + 1) % kButtons;
            view->sltButtonClicked(QString::number(next));
        };
    };
}

StepMaker switchingByHand()
{
    return []() -> Step {
        const auto parent = std::make_shared<QWidget>();
        makeButtons(*parent);
        const QList<SpIconButton *> buttons = parent->findChildren<SpIconButton *>();
        return [parent, buttons, next = 0]() mutable {
            next = (next + 1) % kButtons;
            const QString id = QString::number(next);
            for (SpIconButton *button : buttons)
                button->setIsDown(button->buttonID() == id);
        };
    };
}

StepMaker peerSwitching()
{
    return []() -> Step {
        const auto peer = makePeer();
        return [peer, next = 0]() mutable {
            next = (next + 1) % kButtons;
            peer->group.button(next)->setChecked(true);
        };
    };
}

} // namespace

void defineRows(Rows &rows, Tag<MListView>)
{
    rows.work("MListView", "made and deleted", creation(), {creationByHand(), kSwitchLimit},
              {{"QPushButtons in a layout", peerCreation(), kCreationLimit}});
    rows.work("MListView", "switched", switching(), {switchingByHand(), kSwitchLimit},
              {{"QPushButtons in a group", peerSwitching(), kSwitchLimit}});
}
