// SPDX-License-Identifier: Apache-2.0
#ifndef KEPTLOOKS_H
#define KEPTLOOKS_H

#include "textcanvas.h"
#include "widgettest.h"

#include <QImage>
#include <QPainter>
#include <QWidget>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

/// What a widget paints over an opaque ground, as in a window, through a painter that was prepared.
inline QImage onGround(QWidget &widget, const std::function<void(QPainter &)> &prepare = {})
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(13, 70, 101));
    QPainter painter(&image);
    if (prepare)
        prepare(painter);
    widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// A change that shows, with the name of what it changes.
template <class Widget> using Change = std::pair<const char *, std::function<void(Widget &)>>;

/// A look that is kept is the one that a new widget paints for the first time, after each of these
/// changes in turn. One that a change does not show in would prove nothing, and fails.
template <class Widget>
void checkKeptLook(const std::function<std::unique_ptr<Widget>()> &make,
                   const std::vector<Change<Widget>> &changes)
{
    const auto kept = make();
    QImage before;
    for (std::size_t count = 0; count <= changes.size(); ++count) {
        const char *name = count == 0 ? "made" : changes[count - 1].first;
        const auto fresh = make();
        for (std::size_t i = 0; i < count; ++i)
            changes[i].second(*fresh);
        if (count > 0)
            changes[count - 1].second(*kept);
        const QImage expected = onGround(*fresh);
        QVERIFY2(expected != before, name);
        for (int paint = 0; paint < 4; ++paint)
            QVERIFY2(isSamePicture({onGround(*kept), expected}, name, paint), name);
        before = expected;
    }
}

/// A widget that keeps a look paints as a new one does where no copy would do.
template <class Widget>
void checkKeptLookElsewhere(const std::function<std::unique_ptr<Widget>()> &make)
{
    const std::vector<Change<QPainter>> places{
        {"scaled", [](QPainter &p) { p.scale(qreal(0.8), qreal(0.7)); }},
        {"translucent", [](QPainter &p) { p.setOpacity(0.5); }},
        {"between pixels", [](QPainter &p) { p.translate(qreal(0.5), qreal(0.5)); }},
        {"clipped",
         [](QPainter &p) { p.setClipRegion(QRegion(3, 4, 20, 90) + QRect(9, 9, 40, 3)); }},
        {"turned", [](QPainter &p) { p.rotate(10); }},
    };
    for (const Change<QPainter> &place : places) {
        const auto kept = make();
        const QImage plain = onGround(*kept);
        onGround(*kept);
        const QImage expected = onGround(*make(), place.second);
        QVERIFY2(expected != plain, place.first);
        for (int paint = 0; paint < 3; ++paint)
            QVERIFY2(isSamePicture({onGround(*kept, place.second), expected}, place.first, paint),
                     place.first);
        QVERIFY2(isSamePicture({onGround(*kept), plain}, place.first, 3), place.first);
    }
}

/// The size of a widget counts, too, where only its middle is damaged: it is the same rectangle of
/// the screen before and after.
template <class Widget>
void checkKeptLookFollowsItsSize(const std::function<std::unique_ptr<Widget>()> &make,
                                 const QSize &growth = QSize(26, 18))
{
    const auto kept = make();
    const QSize larger = kept->size() + growth;
    const QRegion damaged(kept->rect().adjusted(1, 1, -1, -1));
    const auto rendered = [&](QWidget &widget) {
        QImage image(larger, QImage::Format_ARGB32_Premultiplied);
        image.fill(QColor(13, 70, 101));
        widget.render(&image, QPoint(), damaged, QWidget::DrawChildren);
        return image;
    };
    const auto fresh = make();
    const QImage before = rendered(*fresh);
    for (int paint = 0; paint < 3; ++paint)
        QVERIFY(isSamePicture({rendered(*kept), before}, "before", paint));
    kept->resize(larger);
    const auto grown = make();
    grown->resize(larger);
    const QImage after = rendered(*grown);
    QVERIFY(after != before);
    for (int paint = 0; paint < 3; ++paint)
        QVERIFY(isSamePicture({rendered(*kept), after}, "after", paint));
}

/// A very large text is drawn in each paint, because Qt draws it in another way after each new
/// letter of its font, of whatever size. Here that is one in a size that nothing else has.
template <class Widget>
void checkVeryLargeText(const std::function<std::unique_ptr<Widget>()> &make, int sizeOfNewLetter)
{
    const auto kept = make();
    QImage before;
    for (int paint = 0; paint < 4; ++paint)
        before = onGround(*kept);
    renderNewLetter(kept->font(), sizeOfNewLetter, 0.75);
    const QImage expected = onGround(*make());
    QVERIFY(expected != before);
    COMPARE_PICTURES(onGround(*kept), expected);
}

#endif // KEPTLOOKS_H
