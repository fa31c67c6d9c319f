// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"
#include "startup.h"

#include <QPushButton>
#include <QToolButton>
#include <spverstrbutton.h>

namespace
{

constexpr QSize kSize(120, 140);
constexpr QSize kIcon(96, 96);
constexpr QPoint kIconPos(12, 8); // (120 - 96) / 2, (140 - 96 - 5 - 23) / 2
constexpr QRect kText(0, 109, 120, 31);
constexpr int kTextFlags = Qt::AlignHCenter | Qt::AlignTop;
constexpr int kStringHeight = 23; // px
constexpr int kFontSize = 18; // px
constexpr double kPeerLimit = 0.8;
constexpr double kStartUpLimit = 2;

QString text() { return QStringLiteral("Phone"); }

const ButtonArtwork &artwork() { return buttonArtwork(kIcon); }

// A button with all its icons.
void setUp(SpVerStrButton &button)
{
    setPixmaps(button, artwork());
    button.setFocusPixmap(artwork().highlighted);
    button.setDisplayString(text());
    button.setStringHeight(kStringHeight);
    button.setFontSize(kFontSize);
}

// Nothing but its size is its own.
QFont captionFont()
{
    QFont font;
    font.setPixelSize(kFontSize);
    return font;
}

// An icon and a layout that need no more work.
PaintingMaker floorOf(const QPixmap &icon, const QPoint &pos, const QRect &rect,
                      const QColor &color)
{
    const QFont font = captionFont();
    const LaidOutText caption = laidOut(text(), font, rect, kTextFlags);
    return bareWidget(kSize, [=](QPainter &painter) {
        painter.drawPixmap(pos, icon);
        painter.setFont(font);
        caption.draw(painter, color);
    });
}

// Beside Qt's own button with an icon above a text.
template <class Enter>
void addLook(Rows &rows, const char *state, Enter enter, const PaintingMaker &floor,
             const QPixmap &icon, PeerState peer = PeerState::Normal)
{
    const auto setFont = [](QToolButton &button) { button.setFont(captionFont()); };
    rows.paint(
        "SpVerStrButton", state, widgetOf<SpVerStrButton>(kSize, setUp, enter), {floor},
        {{"QToolButton icon", iconButton<QToolButton>(kSize, {icon, kIcon, peer, text()}, setFont),
          kPeerLimit}});
}

} // namespace

void defineRows(Rows &rows, Tag<SpVerStrButton>)
{
    const ButtonArtwork &art = artwork();
    addLook(rows, "normal", AsItIs(), floorOf(art.normal, kIconPos, kText, Qt::black), art.normal);
    addLook(
        rows, "pressed", [](SpVerStrButton &b) { b.setIsDown(true); },
        floorOf(art.pressed, kIconPos, kText, Qt::red), art.pressed, PeerState::Pressed);
    addLook(
        rows, "stretched pressed",
        [](SpVerStrButton &b) {
            b.setPressPixmap(artwork().smallPressed);
            b.setIsDown(true);
        },
        floorOf(stretched(art.smallPressed, kIcon), kIconPos, kText, Qt::red), art.smallPressed,
        PeerState::Pressed);
    addLook(
        rows, "focused", [](SpVerStrButton &b) { b.setFocus(true); },
        floorOf(art.highlighted, kIconPos, kText, Qt::white), art.highlighted, PeerState::Checked);
    addLook(
        rows, "disabled", [](SpVerStrButton &b) { b.setDisable(true); },
        floorOf(art.disabled, {kIconPos.x(), 0}, kText, Qt::darkGray), art.disabled,
        PeerState::Disabled);
    addLook(
        rows, "overlap", [](SpVerStrButton &b) { b.setWidgetGain(-40); },
        floorOf(art.normal, {kIconPos.x(), 22}, {0, 56, kSize.width(), kStringHeight}, Qt::black),
        art.normal);
    rows.work("SpVerStrButton", "made and deleted", makeAndDelete<SpVerStrButton>(),
              {makeAndDelete<QWidget>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>(), 1.0}});
}
