// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QIcon>
#include <QMouseEvent>
#include <QStaticText>
#include <QTemporaryDir>
#include <QToolButton>
#include <sphomeicon.h>

#include <vector>

namespace
{

constexpr QSize kPage(800, 480);
constexpr QSize kPitch(200, 160); // twelve on a page
constexpr QSize kIcon(118, 118);
constexpr QSize kTile(118, 160);
constexpr QRect kCaption(0, 112, 118, 42); // in a tile
constexpr int kFontSize = 22; // px
constexpr int kVeil = 154; // alpha
constexpr int kDimming = 100; // alpha
constexpr double kFloorLimit = 1.15;
constexpr double kPeerLimit = 0.6;
constexpr double kPageLimit = 0.25; // of style sheets

// The artwork of one tile, made once.
struct Artwork {
    QPixmap normal = keyPicture(QColor(40, 90, 160), kIcon);
    QPixmap pressed = keyPicture(QColor(230, 120, 20), kIcon);
    QPixmap running = keyPicture(QColor(60, 170, 200), kIcon);
    QPixmap gray = keyPicture(QColor(110, 110, 110), kIcon);
    QPixmap current = keyPicture(QColor(40, 160, 80), kIcon);
    QPixmap large = keyPicture(QColor(40, 90, 160), kIcon * 2);
    QString caption = QStringLiteral("Phone");
};

const Artwork &artwork()
{
    static const Artwork instance;
    return instance;
}

QPixmap veiled(const QPixmap &picture, int alpha)
{
    QPixmap result = picture;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(result.rect(), QColor(0, 0, 0, alpha));
    return result;
}

QPixmap stretched(const QPixmap &picture)
{
    QPixmap result(kIcon);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.drawPixmap(QRect(QPoint(), kIcon), picture);
    return result;
}

template <class Enter> PaintingMaker tile(Enter enter)
{
    return widgetOf<SpHomeIcon>(kTile, [enter](SpHomeIcon &tile) {
        tile.setNormalImage(artwork().normal);
        tile.setIconText(artwork().caption);
        enter(tile);
    });
}

// A tile with a pressed picture of its own.
template <class Enter> PaintingMaker tileOfPictures(Enter enter)
{
    return tile([enter](SpHomeIcon &tile) {
        tile.setImageAlpha(255);
        tile.setPressImage(artwork().pressed);
        enter(tile);
    });
}

void press(SpHomeIcon &tile)
{
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&tile, &event);
}

QFont captionFont()
{
    QFont font;
    font.setPixelSize(kFontSize);
    font.resolve(~0U);
    return font;
}

// The pictures one over the other, and a layout that needs no more work.
PaintingMaker floorOf(const QVector<QPixmap> &pictures)
{
    const QFont font = captionFont();
    const QPointF at = QFontMetricsF(font)
                           .boundingRect(QRectF(kCaption), Qt::AlignCenter, artwork().caption)
                           .topLeft();
    QStaticText layout(artwork().caption);
    layout.setTextFormat(Qt::PlainText);
    layout.prepare(QTransform(), font);
    return bareWidget(kTile, [=](QPainter &painter) {
        for (const QPixmap &picture : pictures)
            painter.drawPixmap(0, 0, picture);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawStaticText(at, layout);
    });
}

void setUp(QToolButton &button, const QPixmap &picture)
{
    button.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button.setIcon(QIcon(picture));
    button.setIconSize(kIcon);
    button.setText(artwork().caption);
    button.setAutoRaise(true);
}

PaintingMaker toolButton(const QPixmap &picture)
{
    return widgetOf<QToolButton>(kTile, [picture](QToolButton &button) {
        QFont font = button.font();
        font.setPixelSize(kFontSize);
        button.setFont(font);
        setUp(button, picture);
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

// As a launcher in style sheets has it: a picture for each state, the caption under it.
void setUpStyled(QToolButton &button)
{
    static const QString sheet =
        QStringLiteral("QToolButton { border: none; color: white; font-size: 22px;"
                       " border-image: url(%1); padding-top: 120px; }"
                       "QToolButton:pressed { border-image: url(%2); }")
            .arg(fileOf(artwork().normal), fileOf(artwork().pressed));
    button.setText(artwork().caption);
    button.setStyleSheet(sheet);
}

// Twelve widgets, each painting its part of one page.
template <class Widget, class Prepare> PaintingMaker pageOf(Prepare prepare)
{
    return [prepare]() -> Painting {
        const auto canvas = makeCanvas(kPage);
        auto widgets = std::make_shared<std::vector<std::unique_ptr<OnCanvas<Widget>>>>();
        for (int i = 0; i < 12; ++i) {
            const QPoint at(i % 4 * kPitch.width(), i / 4 * kPitch.height());
            uchar *pixels = canvas->scanLine(at.y()) + at.x() * 4;
            auto part = std::make_shared<QImage>(pixels, kTile.width(), kTile.height(),
                                                 canvas->bytesPerLine(), canvas->format());
            auto widget = std::make_unique<OnCanvas<Widget>>(std::move(part));
            prepare(*widget);
            widget->resize(kTile);
            widget->setAttribute(Qt::WA_DontShowOnScreen);
            widget->show();
            widgets->push_back(std::move(widget));
        }
        return {canvas, [widgets] {
                    for (const auto &widget : *widgets)
                        widget->paint();
                }};
    };
}

template <class Draw> PaintingMaker pageFloor(const Draw &draw)
{
    return pageOf<BareWidget<Draw>>([draw](BareWidget<Draw> &widget) { widget.setDraw(draw); });
}

// A peer shows one picture, so that only looks of one are held to a limit against it.
void addLook(Rows &rows, const char *state, const PaintingMaker &ours,
             const QVector<QPixmap> &pictures)
{
    const double limit = pictures.size() == 1 ? kPeerLimit : kNoLimit;
    rows.paint("SpHomeIcon", state, ours, {floorOf(pictures), kFloorLimit},
               {{"QToolButton icon", toolButton(pictures.last()), limit},
                {"QToolButton style sheet", widgetOf<QToolButton>(kTile, setUpStyled), limit}});
}

void addStates(Rows &rows)
{
    const QPixmap normal = artwork().normal;
    addLook(rows, "at rest", tile([](SpHomeIcon &) {}), {normal});
    addLook(rows, "pressed, darkened", tile(press), {veiled(normal, kVeil)});
    addLook(rows, "pressed", tileOfPictures(press), {artwork().pressed});
    addLook(rows, "dimmed", tileOfPictures([](SpHomeIcon &t) { t.setHideText(true); }),
            {veiled(normal, kDimming)});
    addLook(rows, "not ready", tileOfPictures([](SpHomeIcon &t) {
                t.setGrayImage(artwork().gray);
                t.setIsReady(false);
            }),
            {artwork().gray});
    addLook(rows, "running", tile([](SpHomeIcon &t) {
                t.setRunningImage(artwork().running);
                t.setIsRunning(true);
            }),
            {normal, artwork().running});
    addLook(rows, "current, pressed", tileOfPictures([](SpHomeIcon &t) {
                t.setRunningImage(artwork().running);
                t.setSwitchImage(artwork().current);
                t.setIsSwitchSrc(true);
                press(t);
            }),
            {normal, artwork().current, artwork().pressed});
    addLook(rows, "frame of an animation",
            tile([](SpHomeIcon &t) { t.setGifImage(fileOf(artwork().running)); }),
            {artwork().running});
    addLook(rows, "scaled", tile([](SpHomeIcon &t) {
                t.setNormalImage(artwork().large);
                t.setIconSize(kIcon);
                t.setMinimumSize(kTile);
            }),
            {stretched(artwork().large)});
    addLook(rows, "scaled, pressed", tileOfPictures([](SpHomeIcon &t) {
                t.setRunningImage(artwork().large);
                t.setIsRunning(true);
                t.setPressImage(artwork().large);
                press(t);
            }),
            {artwork().normal, stretched(artwork().large), stretched(artwork().large)});
}

} // namespace

void defineRows(Rows &rows, Tag<SpHomeIcon>)
{
    addStates(rows);
    rows.paint(
        "SpHomeIcon", "page of twelve", pageOf<SpHomeIcon>([](SpHomeIcon &tile) {
            tile.setNormalImage(artwork().normal);
            tile.setIconText(artwork().caption);
        }),
        {pageFloor([layout = QStaticText(artwork().caption), font = captionFont(),
                    at = QFontMetricsF(captionFont())
                             .boundingRect(QRectF(kCaption), Qt::AlignCenter, artwork().caption)
                             .topLeft()](QPainter &painter) {
             painter.drawPixmap(0, 0, artwork().normal);
             painter.setFont(font);
             painter.setPen(Qt::white);
             painter.drawStaticText(at, layout);
         }),
         kFloorLimit},
        {{"QToolButtons style sheet", pageOf<QToolButton>(setUpStyled), kPageLimit}});
}
