// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"
#include "startup.h"

#include <mpresetbutton.h>
#include <QApplication>
#include <QCheckBox>
#include <QPushButton>

namespace
{

constexpr QSize kSize(120, 80);
constexpr double kStyleSheetLimit = 1; // though it shows one line and no icon
constexpr double kStartUpLimit = 1.3;

const QPoint kIconPos(8, 6);
const QRect kFirst(0, 10, 120, 40);
const QRect kSecond(0, 46, 120, 28);

QString frequency() { return QStringLiteral("98.70"); }

QString unit() { return QStringLiteral("MHz"); }

const ButtonArtwork &artwork() { return buttonArtwork(kSize); }

const QPixmap &icon()
{
    static const QPixmap picture = keyPicture(QColor(60, 170, 200), QSize(24, 24));
    return picture;
}

// A key with everything that it can show.
void setUp(MPresetButton &button)
{
    setImages(button, artwork());
    button.setPresetIcon(icon());
    button.setPresetIconPos(kIconPos);
    button.setDisplayText(frequency());
    button.setDisplayText2(unit());
    button.setdisplayTextRect(kFirst);
    button.setdisplayTextRect2(kSecond);
    button.setNormalTextColor(Qt::white);
    button.setPressTextColor(Qt::yellow);
    button.setDisableTextColor(Qt::gray);
    button.setNormalTextColor2(Qt::cyan);
    button.setPressTextColor2(Qt::blue);
    button.setDisableTextColor2(Qt::darkGray);
}

// Pictures and lines that need no more work.
PaintingMaker floorOf(const QPixmap &picture, const QPixmap &icon, const QColor &first,
                      const QColor &second)
{
    const LaidOutText one = laidOut(frequency(), QApplication::font(), kFirst);
    const LaidOutText two = laidOut(unit(), fontOf(24), kSecond);
    const QFont font = fontOf(24);
    return bareWidget(kSize, [=](QPainter &painter) {
        painter.drawPixmap(0, 0, picture);
        if (!icon.isNull())
            painter.drawPixmap(kIconPos, icon);
        one.draw(painter, first);
        painter.setFont(font);
        two.draw(painter, second);
    });
}

// A look beside its floor and the nearest that Qt's own button can show: one line, no icon.
template <class Enter>
void addLook(Rows &rows, const char *state, Enter enter, const PaintingMaker &floor,
             const QPixmap &picture, PeerState peer = PeerState::Normal)
{
    rows.paint("MPresetButton", state, widgetOf<MPresetButton>(kSize, setUp, enter), {floor},
               {{"QPushButton style sheet",
                 styledButton(kSize, pictureSheet(picture), frequency(), peer), kStyleSheetLimit}},
               textLimit(3));
}

} // namespace

void defineRows(Rows &rows, Tag<MPresetButton>)
{
    const ButtonArtwork &art = artwork();
    const auto disable = [](MPresetButton &b) { b.setEnabled(false); };
    const auto check = [](MPresetButton &b) { b.setChecked(true); };
    addLook(rows, "normal", AsItIs(), floorOf(art.normal, icon(), Qt::white, Qt::cyan), art.normal);
    addLook(rows, "checked", check, floorOf(art.pressed, icon(), Qt::yellow, Qt::blue),
            art.pressed);
    addLook(
        rows, "stretched checked",
        [check](MPresetButton &b) {
            b.setPressImage(artwork().smallPressed);
            check(b);
        },
        floorOf(stretched(art.smallPressed, kSize), icon(), Qt::yellow, Qt::blue),
        art.smallPressed);
    addLook(rows, "disabled", disable, floorOf(art.disabled, {}, Qt::gray, Qt::darkGray),
            art.disabled, PeerState::Disabled);
    // Without pictures it is the button of Qt that it is.
    rows.paint("MPresetButton", "no picture",
               widgetOf<MPresetButton>(kSize, [](MPresetButton &b) { b.setText(frequency()); }),
               {widgetOf<QCheckBox>(kSize, [](QCheckBox &b) { b.setText(frequency()); })}, {},
               {"all of its 79,000 instructions are QCheckBox's own", 11});
    rows.work("MPresetButton", "made and deleted", makeAndDelete<MPresetButton>(),
              {makeAndDelete<QCheckBox>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>()}});
}
