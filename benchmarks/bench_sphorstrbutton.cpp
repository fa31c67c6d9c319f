// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"
#include "startup.h"

#include <QPushButton>
#include <QStyle>
#include <QStyleOption>
#include <sphorstrbutton.h>

namespace
{

constexpr QSize kSize(240, 96);
constexpr QSize kIcon(96, 96);
constexpr int kGap = 10; // px
constexpr int kVeil = 154; // alpha
constexpr double kPeerLimit = 0.8;
constexpr double kStartUpLimit = 2;

const QColor kDisabledText(150, 150, 150, 150);

QString text() { return QStringLiteral("Navigation"); }

const ButtonArtwork &artwork() { return buttonArtwork(kIcon); }

// A button with all its icons.
void setUp(SpHorStrButton &button)
{
    setPixmaps(button, artwork());
    button.setDisplayString(text());
}

// Where the parts of a look stand, and its colour.
struct Parts {
    QPixmap icon;
    QPoint iconPos;
    QRect text;
    int flags;
    QColor color;
};

// The parts that need no more work, and the question to the style what is under them: a style may
// answer it differently each time.
class FloorWidget : public QWidget
{
public:
    void setParts(const Parts &parts)
    {
        m_parts = parts;
        m_text = laidOut(text(), font(), parts.text, parts.flags);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QStyleOption option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
        painter.drawPixmap(m_parts.iconPos, m_parts.icon);
        m_text.draw(painter, m_parts.color);
    }

private:
    Parts m_parts;
    LaidOutText m_text;
};

PaintingMaker floorOf(const Parts &parts)
{
    return widgetOf<FloorWidget>(kSize, [parts](FloorWidget &widget) { widget.setParts(parts); });
}

Parts leftParts(const QPixmap &icon, const QColor &color)
{
    const int text = kIcon.width() + kGap;
    return {icon,
            {0, 0},
            {text, 0, kSize.width() - text, kSize.height()},
            Qt::AlignLeft | Qt::AlignVCenter,
            color};
}

// Qt's own buttons with an icon beside a text.
template <class Enter>
void addLook(Rows &rows, const char *state, Enter enter, const Parts &floor,
             PeerState peer = PeerState::Normal, const OwnLimits &own = {})
{
    const IconLook look{floor.icon, kIcon, peer, text(), Qt::ToolButtonTextBesideIcon};
    rows.paint("SpHorStrButton", state, widgetOf<SpHorStrButton>(kSize, setUp, enter),
               {floorOf(floor)},
               {{"QPushButton icon", iconButton<QPushButton>(kSize, look), kPeerLimit},
                {"QToolButton icon", iconButton<QToolButton>(kSize, look), kPeerLimit}},
               own);
}

void addLooks(Rows &rows)
{
    const ButtonArtwork &art = artwork();
    addLook(rows, "normal", AsItIs(), leftParts(art.normal, Qt::white));
    addLook(
        rows, "pressed", [](SpHorStrButton &b) { b.setPressState(true); },
        leftParts(art.pressed, Qt::red), PeerState::Pressed);
    addLook(
        rows, "stretched pressed",
        [](SpHorStrButton &b) {
            b.setPressPixmap(artwork().smallPressed);
            b.setPressState(true);
        },
        leftParts(stretched(art.smallPressed, kIcon), Qt::red), PeerState::Pressed);
    addLook(
        rows, "disabled", [](SpHorStrButton &b) { b.setBtnDisable(true); },
        leftParts(art.disabled, kDisabledText), PeerState::Disabled);
    addLook(
        rows, "disabled darkened",
        [](SpHorStrButton &b) {
            b.setDisablePixmap({});
            b.setBtnDisable(true);
        },
        leftParts(veiled(art.normal, kVeil), kDisabledText), PeerState::Disabled);
    addLook(rows, "string at the right",
            [](SpHorStrButton &b) { b.setStringPosition(SpHorStrButton::StrRight); },
            {art.normal,
             {kSize.width() - kIcon.width(), 0},
             {0, 0, kSize.width() - kIcon.width() - kGap, kSize.height()},
             Qt::AlignRight | Qt::AlignVCenter,
             Qt::white});
    addLook(
        rows, "string over the icon",
        [](SpHorStrButton &b) { b.setStringPosition(SpHorStrButton::StrCenter); },
        {art.normal, {0, 0}, QRect(QPoint(), kIcon), Qt::AlignCenter, Qt::white}, PeerState::Normal,
        textLimit(2.45));
}

} // namespace

void defineRows(Rows &rows, Tag<SpHorStrButton>)
{
    addLooks(rows);
    rows.work("SpHorStrButton", "made and deleted", makeAndDelete<SpHorStrButton>(),
              {makeAndDelete<QWidget>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>(), 1.0}});
}
