// SPDX-License-Identifier: Apache-2.0
#include "moprogress.h"

#include "detail/accessible.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/keptlook.h"
#include "detail/memo.h"
#include "detail/textcache.h"

#include <QFont>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QRectF>

#include <algorithm>

using namespace panelkit;

namespace
{

constexpr qreal kTop = 90; // degrees
constexpr double kTextShare =
    3.0 / 5.0; // of the height, for the percentage; the caption has the rest

} // namespace

class Q_DECL_HIDDEN MOProgress::Private
{
public:
    explicit Private(MOProgress *widget) : q(widget) { }

    // To cut one path out of another costs more than to fill both.
    struct TrackPaths {
        QPainterPath disc; // a circle alone, without a line to it from the middle
        QPainterPath ring;
    };
    // What they depend on.
    struct Shape {
        int radius; // px
        int arcHeight; // px

        auto tied() const { return std::tie(radius, arcHeight); }
    };
    // What the path of the done part depends on.
    struct DoneShape {
        int sweep; // degrees
        Shape shape;

        auto tied() const { return std::tuple_cat(std::tie(sweep), shape.tied()); }
    };
    // What the ring depends on, but for its part that is done.
    struct Track {
        int radius; // px
        int arcHeight; // px
        bool boundary;
        QColor insideColor;
        QColor normalColor;
        QColor boundaryColor;

        auto tied() const
        {
            return std::tie(radius, arcHeight, boundary, insideColor, normalColor, boundaryColor);
        }
    };
    // What the whole ring depends on.
    struct Ring {
        int value; // percent
        QColor pressColor;
        Track track;

        auto tied() const { return std::tuple_cat(std::tie(value, pressColor), track.tied()); }
    };

    template <typename T> void change(T &member, const T &value);
    QRectF square() const;
    QPainterPath insidePath() const;
    TrackPaths trackPaths() const;
    QPainterPath donePath(int sweep) const;
    void setOutline(QPainter &painter) const;
    void drawRing(QPainter &painter) const;
    void drawTrack(QPainter &painter) const;
    void drawDone(QPainter &painter) const;
    void drawTexts(QPainter &painter) const;

    struct Value {
        int percent;

        auto tied() const { return std::tie(percent); }
    };

    MOProgress *const q;
    int itemID = 0;
    int currentValue = 50; // percent
    int radius = 100; // px
    QColor normalColor{150, 150, 150, 100};
    QColor pressColor{255, 125, 0, 255};
    bool boundary = true;
    QColor boundaryColor{255, 255, 255, 255};
    int arcHeight = 20; // px
    QColor insideColor{0, 0, 0, 100};
    int fontSize = 25; // px
    QString dispalyText;
    QColor displayTextColor{255, 255, 255, 255};

    mutable Memo<Shape, TrackPaths> track;
    mutable Memo<DoneShape, QPainterPath> done;
    mutable KeptLook<Track> trackLook;
    mutable KeptLook<Ring> ringLook;
    mutable Memo<Value, QString> percent;
    mutable TextCache percentage;
    mutable TextCache caption;
};

/** A ring of 100 px at 50 %. */
MOProgress::MOProgress(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
}

MOProgress::~MOProgress() = default;

int MOProgress::itemID() const { return d->itemID; }

/** The number that btnClicked carries. Stored only. */
void MOProgress::setItemID(int id) { d->itemID = id; }

int MOProgress::currentValue() const { return d->currentValue; }

/**
 * The progress in percent; 50 by default. Repaints on a change. A value outside 0 to 100 is kept
 * until the next paint, which limits it.
 */
void MOProgress::setCurrentValue(int percent) { d->change(d->currentValue, percent); }

int MOProgress::radius() const { return d->radius; }

/** The outer radius in px; 100 by default. Repaints on a change. */
void MOProgress::setRadius(int radius) { d->change(d->radius, radius); }

QColor MOProgress::normalColor() const { return d->normalColor; }

/** The colour of the ring; a translucent grey by default. Repaints on a change. */
void MOProgress::setNormalColor(QColor color) { d->change(d->normalColor, color); }

QColor MOProgress::pressColor() const { return d->pressColor; }

/** The colour of the part of the ring that is done; orange by default. Repaints on a change. */
void MOProgress::setPressColor(QColor color) { d->change(d->pressColor, color); }

bool MOProgress::boundary() const { return d->boundary; }

/** Whether the ring and its part that is done have an outline; they do by default. Repaints on a
 * change. */
void MOProgress::setBoundary(bool boundary) { d->change(d->boundary, boundary); }

QColor MOProgress::boundaryColor() const { return d->boundaryColor; }

/** The colour of the outlines; white by default. Repaints on a change. */
void MOProgress::setBoundaryColor(QColor color) { d->change(d->boundaryColor, color); }

int MOProgress::arcHeight() const { return d->arcHeight; }

/** The thickness of the ring in px, 20 by default; from the radius on nothing is drawn at all.
 * Repaints on a change. */
void MOProgress::setArcHeight(int height) { d->change(d->arcHeight, height); }

QColor MOProgress::insideColor() const { return d->insideColor; }

/** The colour of the middle, which shines through the ring; translucent black by default. Repaints
 * on a change. */
void MOProgress::setInsideColor(QColor color) { d->change(d->insideColor, color); }

int MOProgress::fontSize() const { return d->fontSize; }

/**
 * The size of the caption in px, 25 by default. Below 1 the caption has the size of the
 * application's font. Repaints on a change.
 */
void MOProgress::setFontSize(int px) { d->change(d->fontSize, px); }

QString MOProgress::dispalyText() const { return d->dispalyText; }

/** The caption below the percentage, which has the widget's own font. Repaints. */
void MOProgress::setDispalyText(QString text)
{
    d->dispalyText = std::move(text);
    update();
}

QColor MOProgress::displayTextColor() const { return d->displayTextColor; }

/** The colour of both texts; white by default. Repaints on a change. */
void MOProgress::setDisplayTextColor(QColor color) { d->change(d->displayTextColor, color); }

/** The paint limits the value to 0..100 and writes it back, so that it reads as it is shown. */
void MOProgress::paintEvent(QPaintEvent *)
{
    if (d->arcHeight >= d->radius)
        return;
    d->currentValue = std::clamp(d->currentValue, 0, 100);
    QPainter painter(this);
    painter.translate(QPoint(width() / 2, height() / 2));
    painter.setRenderHint(QPainter::Antialiasing);
    d->drawRing(painter);
    d->drawTexts(painter);
}

/** QWidget goes first, which leaves the event to the parent; then a release emits btnClicked unless
 * the widget is disabled. */
void MOProgress::mouseReleaseEvent(QMouseEvent *e)
{
    QWidget::mouseReleaseEvent(e);
    if (!isEnabled())
        return;
    const QPointer<MOProgress> guard(this);
    emit btnClicked(d->itemID);
    if (!guard)
        e->accept(); // there is no way to the parent any more
}

template <typename T> void MOProgress::Private::change(T &member, const T &value)
{
    if (member == value)
        return;
    member = value;
    q->update();
}

QRectF MOProgress::Private::square() const
{
    const auto rim = qreal(boundedPixel(radius));
    return {-rim, -rim, 2 * rim, 2 * rim};
}

QPainterPath MOProgress::Private::insidePath() const
{
    const auto thickness = qreal(boundedPixel(arcHeight));
    QPainterPath inside;
    inside.addEllipse(square().adjusted(thickness, thickness, -thickness, -thickness));
    return inside;
}

MOProgress::Private::TrackPaths MOProgress::Private::trackPaths() const
{
    TrackPaths paths;
    paths.disc.arcMoveTo(square(), 0);
    paths.disc.arcTo(square(), 0, 360);
    paths.ring = paths.disc - insidePath();
    return paths;
}

QPainterPath MOProgress::Private::donePath(int sweep) const
{
    QPainterPath sector; // it starts and ends in the middle
    sector.arcTo(square(), kTop, qreal(sweep));
    return sector - insidePath();
}

// While the value moves, what lies below the done part is kept; when it rests, all of the ring is,
// and no more than that.
void MOProgress::Private::drawRing(QPainter &painter) const
{
    const Track shown{radius, arcHeight, boundary, insideColor, normalColor, boundaryColor};
    const QRect withOutline = square().toAlignedRect().adjusted(-1, -1, 1, 1);
    ringLook.draw(painter, withOutline, {currentValue, pressColor, shown}, [&](QPainter &p) {
        trackLook.draw(p, withOutline, shown, [this](QPainter &below) { drawTrack(below); });
        drawDone(p);
    });
    if (ringLook.size() > 0)
        trackLook.forget();
}

void MOProgress::Private::setOutline(QPainter &painter) const
{
    if (boundary)
        painter.setPen(QPen(boundaryColor, 1));
    else
        painter.setPen(Qt::NoPen);
}

// The middle is a whole disc with the pen that every painter starts with.
void MOProgress::Private::drawTrack(QPainter &painter) const
{
    const TrackPaths &drawn =
        track.value({radius, arcHeight}, [this](TrackPaths &stale) { stale = trackPaths(); });
    painter.setBrush(insideColor);
    painter.drawPath(drawn.disc);
    painter.setBrush(normalColor);
    setOutline(painter);
    painter.drawPath(drawn.ring);
}

void MOProgress::Private::drawDone(QPainter &painter) const
{
    if (currentValue == 0)
        return;
    const int sweep = currentValue * 360 / -100; // whole degrees, clockwise
    painter.setBrush(pressColor);
    setOutline(painter);
    painter.drawPath(done.value({sweep, {radius, arcHeight}},
                                [&](QPainterPath &stale) { stale = donePath(sweep); }));
}

void MOProgress::Private::drawTexts(QPainter &painter) const
{
    const QRectF area = square();
    const auto split = qreal(double(area.height()) * kTextShare);
    painter.setPen(displayTextColor);
    percentage.draw(painter, QRectF(area.topLeft(), QSizeF(area.width(), split)),
                    Qt::AlignHCenter | Qt::AlignBottom,
                    percent.value({currentValue}, [this](QString &text) {
                        text = QStringLiteral("%1%").arg(currentValue);
                    }));
    painter.setFont(applicationFont(fontSize));
    caption.draw(painter, area.adjusted(0, split, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                 dispalyText);
}
