// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <benchmark/benchmark.h>
#include <QAbstractButton>
#include <QApplication>
#include <QFontMetricsF>
#include <QIcon>
#include <QMouseEvent>
#include <QPushButton>
#include <QStaticText>
#include <QTemporaryDir>
#include <QToolButton>
#include <spiconbutton.h>

#include <type_traits>

namespace
{

constexpr QSize kSize(96, 96);
constexpr int kVeil = 154; // alpha
constexpr double kFloorLimit = 1.15;
constexpr double kStyleSheetLimit = 0.6;
constexpr double kStartUpLimit = 2;

// The artwork of one key, made once.
struct Artwork {
    QPixmap normal = keyPicture(QColor(40, 90, 160), kSize);
    QPixmap pressed = keyPicture(QColor(230, 120, 20), kSize);
    QPixmap focused = keyPicture(QColor(60, 170, 200), kSize);
    QPixmap disabled = keyPicture(QColor(110, 110, 110), kSize);
    QPixmap smallPressed = keyPicture(QColor(230, 120, 20), QSize(72, 72));
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
    return widgetOf<SpIconButton>(kSize, [enter](SpIconButton &button) {
        button.setNormalImage(artwork().normal);
        button.setPressImage(artwork().pressed);
        button.setFocusPixmap(artwork().focused);
        button.setDisableImage(artwork().disabled);
        button.setImageAlpha(kVeil);
        button.setDisableAlpha(kVeil);
        button.setIsBeep(false);
        enter(button);
    });
}

// One touch in the middle of the button.
void tap(SpIconButton &button)
{
    const QPointF middle = QRectF(QPointF(), kSize).center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, middle, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&button, &event);
    }
}

// The floor of a look without caption: one picture that needs no more work.
PaintingMaker floorOf(const QPixmap &picture)
{
    return bareWidget(kSize, [picture](QPainter &painter) { painter.drawPixmap(0, 0, picture); });
}

// The floor of a look with a caption: a layout that needs no more work over it.
PaintingMaker floorOf(const QPixmap &picture, const QColor &color)
{
    const QString caption = artwork().caption;
    const QFontMetricsF metrics(QApplication::font());
    const QRectF rect(QPointF(), kSize);
    const QPointF at = metrics.boundingRect(rect, Qt::AlignCenter, caption).topLeft();
    QStaticText layout(caption);
    layout.setTextFormat(Qt::PlainText);
    layout.prepare(QTransform(), QApplication::font());
    return bareWidget(kSize, [picture, color, layout, at](QPainter &painter) {
        painter.drawPixmap(0, 0, picture);
        painter.setPen(color);
        painter.drawStaticText(at, layout);
    });
}

// The picture with black over its opaque pixels.
QPixmap veiled(const QPixmap &picture)
{
    QPixmap result = picture;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(result.rect(), QColor(0, 0, 0, kVeil));
    return result;
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

// The same look of Qt's own buttons. They have no focused look with a picture of its own; the
// checked one stands for it.
struct PeerLook {
    enum State { Normal, Pressed, Checked, Disabled };

    State state = Normal;
    QPixmap picture;
    QString caption;
};

void enter(QAbstractButton &button, const PeerLook &look)
{
    button.setText(look.caption);
    button.setCheckable(look.state == PeerLook::Checked);
    button.setChecked(look.state == PeerLook::Checked);
    button.setDown(look.state == PeerLook::Pressed);
    button.setEnabled(look.state != PeerLook::Disabled);
}

// An icon never lies under its text: with a caption it is made small enough for both to fit, and
// such a peer has fewer pixels to paint than ours.
template <class Button> PaintingMaker iconButton(const PeerLook &look)
{
    return widgetOf<Button>(kSize, [look](Button &button) {
        QIcon icon(look.picture);
        icon.addPixmap(look.picture, QIcon::Disabled);
        button.setIcon(icon);
        button.setIconSize(look.caption.isEmpty() ? kSize : kSize / 2);
        if constexpr (std::is_same_v<Button, QToolButton>) {
            button.setToolButtonStyle(look.caption.isEmpty() ? Qt::ToolButtonIconOnly
                                                             : Qt::ToolButtonTextUnderIcon);
        }
        enter(button, look);
    });
}

// Style sheets take pictures from files.
QString fileOf(const QPixmap &picture)
{
    static const QTemporaryDir folder;
    QString path = folder.filePath(QString::number(picture.cacheKey()) + QStringLiteral(".png"));
    picture.save(path);
    return path;
}

PaintingMaker styledButton(const PeerLook &look)
{
    const QString sheet =
        QStringLiteral("QPushButton { border-width: 0; color: white; border-image: url(%1); }"
                       "QPushButton:pressed { color: red; border-image: url(%2); }"
                       "QPushButton:checked { border-image: url(%2); }"
                       "QPushButton:disabled { color: #9affffff; border-image: url(%2); }")
            .arg(fileOf(artwork().normal), fileOf(look.picture));
    return widgetOf<QPushButton>(kSize, [look, sheet](QPushButton &button) {
        button.setStyleSheet(sheet);
        enter(button, look);
    });
}

// A look beside its floor and the same look of Qt's own buttons.
void addLook(Rows &rows, const char *state, const PaintingMaker &ours, const PaintingMaker &floor,
             const PeerLook &look)
{
    rows.paint("SpIconButton", state, ours, {floor, kFloorLimit},
               {{"QPushButton style sheet", styledButton(look), kStyleSheetLimit},
                {"QPushButton icon", iconButton<QPushButton>(look)},
                {"QToolButton icon", iconButton<QToolButton>(look)}});
}

void addEnabledLooks(Rows &rows)
{
    const Artwork &art = artwork();
    const QPixmap dark = veiled(art.normal);
    addLook(rows, "normal", button([](SpIconButton &) {}), floorOf(art.normal),
            {PeerLook::Normal, art.normal, {}});
    addLook(rows, "pressed", button([](SpIconButton &b) { b.setIsDown(true); }),
            floorOf(art.pressed), {PeerLook::Pressed, art.pressed, {}});
    addLook(rows, "focused", button([](SpIconButton &b) { b.setFocus(true); }),
            floorOf(art.focused), {PeerLook::Checked, art.focused, {}});
    addLook(rows, "veiled pressed", button([](SpIconButton &b) {
                b.setShowMode(SpIconButton::AlphaMode);
                b.setIsDown(true);
            }),
            floorOf(dark), {PeerLook::Pressed, dark, {}});
    addLook(rows, "latched", button([](SpIconButton &b) {
                b.setIsLock(true);
                tap(b);
            }),
            floorOf(art.pressed), {PeerLook::Pressed, art.pressed, {}});
    addLook(rows, "stretched pressed", button([](SpIconButton &b) {
                b.setPressImage(artwork().smallPressed);
                b.setIsDown(true);
            }),
            floorOf(stretched(art.smallPressed)), {PeerLook::Pressed, art.smallPressed, {}});
}

void addDisabledLooks(Rows &rows)
{
    const auto disabled = [](SpIconButton::DisableMode mode) {
        return button([mode](SpIconButton &b) {
            b.setDisableMode(mode);
            b.setDisableState(true);
        });
    };
    const auto peer = [](const QPixmap &picture) {
        return PeerLook{PeerLook::Disabled, picture, {}};
    };
    const Artwork &art = artwork();
    const QPixmap dark = veiled(art.normal);
    addLook(rows, "disabled normal", disabled(SpIconButton::Show_NormalImage), floorOf(art.normal),
            peer(art.normal));
    addLook(rows, "disabled image", disabled(SpIconButton::Show_DisableImage),
            floorOf(art.disabled), peer(art.disabled));
    addLook(rows, "disabled veiled", disabled(SpIconButton::Show_NormalImageAlpha), floorOf(dark),
            peer(dark));
}

void addCaptionedLooks(Rows &rows)
{
    const Artwork &art = artwork();
    const QPixmap dark = veiled(art.normal);
    addLook(rows, "captioned", button([](SpIconButton &b) { b.setDisplayText(artwork().caption); }),
            floorOf(art.normal, QColor(255, 255, 255)),
            {PeerLook::Normal, art.normal, art.caption});
    addLook(rows, "captioned pressed", button([](SpIconButton &b) {
                b.setDisplayText(artwork().caption);
                b.setIsDown(true);
            }),
            floorOf(art.pressed, QColor(255, 0, 0)), {PeerLook::Pressed, art.pressed, art.caption});
    addLook(rows, "captioned disabled veiled", button([](SpIconButton &b) {
                b.setDisplayText(artwork().caption);
                b.setDisableState(true);
            }),
            floorOf(dark, QColor(255, 255, 255, 154)), {PeerLook::Disabled, dark, art.caption});
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

void defineRows(Rows &rows, Tag<SpIconButton>)
{
    addEnabledLooks(rows);
    addDisabledLooks(rows);
    addCaptionedLooks(rows);
    rows.work("SpIconButton", "made and deleted", makeAndDelete<SpIconButton>(),
              {makeAndDelete<QWidget>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>(), 1.0}});
}
