// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <benchmark/benchmark.h>
#include <mfocusbutton.h>
#include <QApplication>
#include <QFontMetricsF>
#include <QPushButton>
#include <QRadioButton>
#include <QStaticText>
#include <QTemporaryDir>

namespace
{

constexpr QSize kSize(120, 80);
constexpr double kFloorLimit = 1.15;
constexpr double kStyleSheetLimit = 0.65;
constexpr double kStartUpLimit = 1.5;

struct Artwork {
    QPixmap normal = keyPicture(QColor(40, 90, 160), kSize);
    QPixmap pressed = keyPicture(QColor(230, 120, 20), kSize);
    QPixmap disabled = keyPicture(QColor(110, 110, 110), kSize);
    QPixmap smallPressed = keyPicture(QColor(230, 120, 20), QSize(90, 60));
    QString caption = QStringLiteral("Radio");
};

const Artwork &artwork()
{
    static const Artwork instance;
    return instance;
}

// Ours: a button with all its pictures, in the state into which the function brings it.
template <class Enter> PaintingMaker button(Enter enter)
{
    return widgetOf<MFocusButton>(kSize, [enter](MFocusButton &button) {
        button.setNormalImage(artwork().normal);
        button.setPressImage(artwork().pressed);
        button.setDisableImage(artwork().disabled);
        button.setNormalTextColor(Qt::white);
        button.setPressTextColor(Qt::yellow);
        enter(button);
    });
}

// A picture that needs no more work, and a caption over it whose layout needs none, if there is
// one.
PaintingMaker floorOf(const QPixmap &picture)
{
    return bareWidget(kSize, [picture](QPainter &painter) { painter.drawPixmap(0, 0, picture); });
}

PaintingMaker floorOf(const QPixmap &picture, const QColor &color)
{
    const QString caption = artwork().caption;
    const QRectF rect(QPointF(), kSize);
    const QPointF at =
        QFontMetricsF(QApplication::font()).boundingRect(rect, Qt::AlignCenter, caption).topLeft();
    QStaticText layout(caption);
    layout.setTextFormat(Qt::PlainText);
    layout.prepare(QTransform(), QApplication::font());
    return bareWidget(kSize, [picture, color, layout, at](QPainter &painter) {
        painter.drawPixmap(0, 0, picture);
        painter.setPen(color);
        painter.drawStaticText(at, layout);
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

// A look beside its floor and the same look of Qt's own button.
template <class Enter, class EnterPeer>
void addLook(Rows &rows, const char *state, Enter enter, const PaintingMaker &floor,
             const QPixmap &picture, const QString &caption, EnterPeer enterPeer)
{
    rows.paint(
        "MFocusButton", state, button(enter), {floor, kFloorLimit},
        {{"QPushButton style sheet", styled(picture, caption, enterPeer), kStyleSheetLimit}});
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

void defineRows(Rows &rows, Tag<MFocusButton>)
{
    const Artwork &art = artwork();
    const auto asItIs = [](auto &) {};
    const auto disable = [](QPushButton &peer) { peer.setEnabled(false); };
    addLook(rows, "normal", asItIs, floorOf(art.normal), art.normal, {}, asItIs);
    addLook(
        rows, "checked", [](MFocusButton &b) { b.setChecked(true); }, floorOf(art.pressed),
        art.pressed, {}, asItIs);
    addLook(
        rows, "stretched checked",
        [](MFocusButton &b) {
            b.setPressImage(artwork().smallPressed);
            b.setChecked(true);
        },
        floorOf(stretched(art.smallPressed)), art.smallPressed, {}, asItIs);
    addLook(
        rows, "disabled", [](MFocusButton &b) { b.setEnabled(false); }, floorOf(art.disabled),
        art.disabled, {}, disable);
    addLook(
        rows, "captioned", [](MFocusButton &b) { b.setDisplayText(artwork().caption); },
        floorOf(art.normal, Qt::white), art.normal, art.caption, asItIs);
    addLook(
        rows, "captioned checked",
        [](MFocusButton &b) {
            b.setDisplayText(artwork().caption);
            b.setChecked(true);
        },
        floorOf(art.pressed, Qt::yellow), art.pressed, art.caption, asItIs);
    rows.work("MFocusButton", "made and deleted", makeAndDelete<MFocusButton>(),
              {makeAndDelete<QRadioButton>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>()}});
}
