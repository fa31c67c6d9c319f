// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <benchmark/benchmark.h>
#include <mpresetbutton.h>
#include <QApplication>
#include <QCheckBox>
#include <QFontMetricsF>
#include <QPushButton>
#include <QStaticText>
#include <QTemporaryDir>

namespace
{

constexpr QSize kSize(120, 80);
constexpr double kFloorLimit = 1.15;
constexpr double kStyleSheetLimit = 1; // though it shows one line and no icon
constexpr double kStartUpLimit = 1.5;

const QPoint kIconPos(8, 6);
const QRect kFirst(0, 10, 120, 40);
const QRect kSecond(0, 46, 120, 28);

struct Artwork {
    QPixmap normal = keyPicture(QColor(40, 90, 160), kSize);
    QPixmap pressed = keyPicture(QColor(230, 120, 20), kSize);
    QPixmap disabled = keyPicture(QColor(110, 110, 110), kSize);
    QPixmap smallPressed = keyPicture(QColor(230, 120, 20), QSize(90, 60));
    QPixmap icon = keyPicture(QColor(60, 170, 200), QSize(24, 24));
};

const Artwork &artwork()
{
    static const Artwork instance;
    return instance;
}

// Ours: a key with everything that it can show, in the state into which the function brings it.
template <class Enter> PaintingMaker button(Enter enter)
{
    return widgetOf<MPresetButton>(kSize, [enter](MPresetButton &button) {
        button.setNormalImage(artwork().normal);
        button.setPressImage(artwork().pressed);
        button.setDisableImage(artwork().disabled);
        button.setPresetIcon(artwork().icon);
        button.setPresetIconPos(kIconPos);
        button.setDisplayText(QStringLiteral("98.70"));
        button.setDisplayText2(QStringLiteral("MHz"));
        button.setdisplayTextRect(kFirst);
        button.setdisplayTextRect2(kSecond);
        button.setNormalTextColor(Qt::white);
        button.setPressTextColor(Qt::yellow);
        button.setDisableTextColor(Qt::gray);
        button.setNormalTextColor2(Qt::cyan);
        button.setPressTextColor2(Qt::blue);
        button.setDisableTextColor2(Qt::darkGray);
        enter(button);
    });
}

// One line of text whose layout needs no more work.
struct Line {
    QPointF at;
    QStaticText layout;
    QFont font;
    QColor color;
};

Line lineOf(const QString &text, const QFont &font, const QColor &color, const QRectF &rect)
{
    const QPointF at = QFontMetricsF(font).boundingRect(rect, Qt::AlignCenter, text).topLeft();
    QStaticText layout(text);
    layout.setTextFormat(Qt::PlainText);
    layout.prepare(QTransform(), font);
    return {at, layout, font, color};
}

QFont secondFont()
{
    QFont font = QApplication::font();
    font.setPixelSize(24);
    return font;
}

// Pictures and lines that need no more work.
PaintingMaker floorOf(const QPixmap &picture, const QPixmap &icon, const QColor &first,
                      const QColor &second)
{
    const Line one = lineOf(QStringLiteral("98.70"), QApplication::font(), first, kFirst);
    const Line two = lineOf(QStringLiteral("MHz"), secondFont(), second, kSecond);
    return bareWidget(kSize, [=](QPainter &painter) {
        painter.drawPixmap(0, 0, picture);
        if (!icon.isNull())
            painter.drawPixmap(kIconPos, icon);
        painter.setPen(one.color);
        painter.drawStaticText(one.at, one.layout);
        painter.setFont(two.font);
        painter.setPen(two.color);
        painter.drawStaticText(two.at, two.layout);
    });
}

// The picture as drawPixmap() stretches it.
QPixmap stretched(const QPixmap &picture)
{
    QPixmap result(kSize);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.drawPixmap(QRect(QPoint(), kSize), picture);
    return result;
}

// Style sheets take pictures from files.
QString fileOf(const QPixmap &picture)
{
    static const QTemporaryDir folder;
    QString path = folder.filePath(QString::number(picture.cacheKey()) + QStringLiteral(".png"));
    picture.save(path);
    return path;
}

// Qt's own button in the same look.
template <class Enter>
PaintingMaker styled(const QPixmap &picture, const QString &caption, Enter enter)
{
    const QString sheet =
        QStringLiteral("QPushButton { border-width: 0; color: white; border-image: url(%1); }")
            .arg(fileOf(picture));
    return widgetOf<QPushButton>(kSize, [=](QPushButton &button) {
        button.setStyleSheet(sheet);
        button.setText(caption);
        enter(button);
    });
}

// A look beside its floor and the nearest that Qt's own button can show: one line, no icon.
template <class Enter, class EnterPeer>
void addLook(Rows &rows, const char *state, Enter enter, const PaintingMaker &floor,
             const QPixmap &picture, EnterPeer enterPeer)
{
    rows.paint("MPresetButton", state, button(enter), {floor, kFloorLimit},
               {{"QPushButton style sheet", styled(picture, QStringLiteral("98.70"), enterPeer),
                 kStyleSheetLimit}});
}

// What a screen full of buttons costs before its first paint.
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

void defineRows(Rows &rows, Tag<MPresetButton>)
{
    const Artwork &art = artwork();
    const auto asItIs = [](auto &) {};
    const auto disable = [](auto &b) { b.setEnabled(false); };
    const auto check = [](MPresetButton &b) { b.setChecked(true); };
    addLook(rows, "normal", asItIs, floorOf(art.normal, art.icon, Qt::white, Qt::cyan), art.normal,
            asItIs);
    addLook(rows, "checked", check, floorOf(art.pressed, art.icon, Qt::yellow, Qt::blue),
            art.pressed, asItIs);
    addLook(
        rows, "stretched checked",
        [check](MPresetButton &b) {
            b.setPressImage(artwork().smallPressed);
            check(b);
        },
        floorOf(stretched(art.smallPressed), art.icon, Qt::yellow, Qt::blue), art.smallPressed,
        asItIs);
    addLook(rows, "disabled", disable, floorOf(art.disabled, {}, Qt::gray, Qt::darkGray),
            art.disabled, disable);
    rows.work("MPresetButton", "made and deleted", makeAndDelete<MPresetButton>(),
              {makeAndDelete<QCheckBox>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>()}});
}
