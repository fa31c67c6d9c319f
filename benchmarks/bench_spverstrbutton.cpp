// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <benchmark/benchmark.h>
#include <QFontMetricsF>
#include <QIcon>
#include <QPushButton>
#include <QStaticText>
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
constexpr double kFloorLimit = 1.15;
constexpr double kPeerLimit = 0.8;
constexpr double kStartUpLimit = 2;

// The artwork of one button, made once.
struct Artwork {
    QPixmap normal = keyPicture(QColor(40, 90, 160), kIcon);
    QPixmap pressed = keyPicture(QColor(230, 120, 20), kIcon);
    QPixmap focused = keyPicture(QColor(60, 170, 200), kIcon);
    QPixmap disabled = keyPicture(QColor(110, 110, 110), kIcon);
    QPixmap smallPressed = keyPicture(QColor(230, 120, 20), QSize(72, 72));
    QString text = QStringLiteral("Phone");
};

const Artwork &artwork()
{
    static const Artwork instance;
    return instance;
}

// Ours: a button with all its icons, in the state into which the function brings it.
template <class Enter> PaintingMaker button(Enter enter)
{
    return widgetOf<SpVerStrButton>(kSize, [enter](SpVerStrButton &button) {
        button.setNormalPixmap(artwork().normal);
        button.setPressPixmap(artwork().pressed);
        button.setFocusPixmap(artwork().focused);
        button.setDisablePixmap(artwork().disabled);
        button.setDisplayString(artwork().text);
        button.setStringHeight(kStringHeight);
        button.setFontSize(kFontSize);
        enter(button);
    });
}

QFont captionFont()
{
    QFont font;
    font.setPixelSize(kFontSize);
    return font;
}

// An icon and a layout that need no more work.
PaintingMaker floorOf(const QPixmap &icon, const QPoint &pos, const QRect &text,
                      const QColor &color)
{
    const QFont font = captionFont();
    const QPointF at =
        QFontMetricsF(font).boundingRect(QRectF(text), kTextFlags, artwork().text).topLeft();
    QStaticText layout(artwork().text);
    layout.setTextFormat(Qt::PlainText);
    layout.prepare(QTransform(), font);
    return bareWidget(kSize, [=](QPainter &painter) {
        painter.drawPixmap(pos, icon);
        painter.setFont(font);
        painter.setPen(color);
        painter.drawStaticText(at, layout);
    });
}

// The icon as drawPixmap() stretches it.
QPixmap stretched(const QPixmap &picture)
{
    QPixmap result(kIcon);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.drawPixmap(QRect(QPoint(), kIcon), picture);
    return result;
}

enum PeerState { Normal, Pressed, Checked, Disabled };

// Qt's own button with an icon above a text. It has no focused look with a picture of its own; the
// checked one stands for it.
PaintingMaker toolButton(const QPixmap &picture, PeerState state)
{
    return widgetOf<QToolButton>(kSize, [=](QToolButton &button) {
        QIcon icon(picture);
        icon.addPixmap(picture, QIcon::Disabled);
        button.setIcon(icon);
        button.setIconSize(kIcon);
        button.setText(artwork().text);
        button.setFont(captionFont());
        button.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button.setCheckable(state == Checked);
        button.setChecked(state == Checked);
        button.setDown(state == Pressed);
        button.setEnabled(state != Disabled);
    });
}

void addLook(Rows &rows, const char *name, const PaintingMaker &ours, const PaintingMaker &floor,
             const QPixmap &icon, PeerState state)
{
    rows.paint("SpVerStrButton", name, ours, {floor, kFloorLimit},
               {{"QToolButton icon", toolButton(icon, state), kPeerLimit}});
}

template <class Widget> StepMaker makeAndDelete()
{
    return [] {
        return [] {
            const Widget widget;
            benchmark::DoNotOptimize(&widget);
        };
    };
}

} // namespace

void defineRows(Rows &rows, Tag<SpVerStrButton>)
{
    const Artwork &art = artwork();
    addLook(rows, "normal", button([](SpVerStrButton &) {}),
            floorOf(art.normal, kIconPos, kText, Qt::black), art.normal, Normal);
    addLook(rows, "pressed", button([](SpVerStrButton &b) { b.setIsDown(true); }),
            floorOf(art.pressed, kIconPos, kText, Qt::red), art.pressed, Pressed);
    addLook(rows, "stretched pressed", button([](SpVerStrButton &b) {
                b.setPressPixmap(artwork().smallPressed);
                b.setIsDown(true);
            }),
            floorOf(stretched(art.smallPressed), kIconPos, kText, Qt::red), art.smallPressed,
            Pressed);
    addLook(rows, "focused", button([](SpVerStrButton &b) { b.setFocus(true); }),
            floorOf(art.focused, kIconPos, kText, Qt::white), art.focused, Checked);
    addLook(rows, "disabled", button([](SpVerStrButton &b) { b.setDisable(true); }),
            floorOf(art.disabled, {kIconPos.x(), 0}, kText, Qt::darkGray), art.disabled, Disabled);
    addLook(
        rows, "overlap", button([](SpVerStrButton &b) { b.setWidgetGain(-40); }),
        floorOf(art.normal, {kIconPos.x(), 22}, {0, 56, kSize.width(), kStringHeight}, Qt::black),
        art.normal, Normal);
    rows.work("SpVerStrButton", "made and deleted", makeAndDelete<SpVerStrButton>(),
              {makeAndDelete<QWidget>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>(), 1.0}});
}
