// SPDX-License-Identifier: Apache-2.0
#include "detail/filledtrack.h"

#include "pictures.h"
#include "widgettest.h"

#include <QPainter>

using namespace panelkit;

namespace
{

// All that a filled track is told to draw.
struct Drawing {
    QPixmap track = picture(Qt::gray, {90, 20});
    QRect trackRect{5, 10, 90, 20};
    QPixmap fill = picture(Qt::blue, {90, 20});
    QRect fillRect{5, 10, 40, 20};
    QRect source{0, 0, 40, 20};

    void draw(QPainter &p) const
    {
        p.drawPixmap(trackRect, track);
        if (!fill.isNull() && !fillRect.isEmpty())
            p.drawPixmap(fillRect, fill, source);
    }
};

QImage onCanvas(const std::function<void(QPainter &)> &paint)
{
    QImage image(120, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(24, 28, 36));
    QPainter painter(&image);
    paint(painter);
    return image;
}

using Action = std::function<void(Drawing &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_FilledTrack : public WidgetTest
{
    Q_OBJECT

private slots:
    void eachInputCounts_data()
    {
        QTest::addColumn<Action>("change");
        const auto row = [](const char *name, const Action &change) {
            QTest::newRow(name) << change;
        };
        row("track", [](Drawing &d) { d.track = picture(Qt::green, {90, 20}); });
        row("its place", [](Drawing &d) { d.trackRect = QRect(5, 10, 90, 19); });
        row("fill", [](Drawing &d) { d.fill = picture(Qt::red, {90, 20}); });
        row("its target", [](Drawing &d) { d.fillRect = QRect(5, 10, 39, 20); });
        row("its source", [](Drawing &d) { d.source = QRect(9, 0, 40, 20); });
        row("beyond the track", [](Drawing &d) { d.fillRect = QRect(30, 2, 80, 36); });
        row("no fill", [](Drawing &d) { d.fill = QPixmap(); });
        row("nothing of the fill", [](Drawing &d) { d.fillRect = QRect(5, 10, 0, 20); });
        row("no track", [](Drawing &d) { d.track = QPixmap(); });
    }

    void eachInputCounts()
    {
        QFETCH(Action, change);
        FilledTrack track;
        Drawing drawing;
        const auto shown = [&] {
            return onCanvas([&](QPainter &p) {
                track.draw(p, {drawing.track, drawing.trackRect}, {drawing.fill, drawing.fillRect},
                           drawing.source);
            });
        };
        const auto expected = [&] { return onCanvas([&](QPainter &p) { drawing.draw(p); }); };
        const QImage before = expected();
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(shown(), before);
        change(drawing);
        QVERIFY(expected() != before);
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(shown(), expected());
    }
};

WIDGET_TEST_MAIN(tst_FilledTrack)
#include "tst_filledtrack.moc"
