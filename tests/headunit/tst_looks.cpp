// SPDX-License-Identifier: Apache-2.0
// What the pages are dressed with.
#include "dress.h"
#include "listrows.h"
#include "theme.h"
#include "widgettest.h"

#include <monoffbutton.h>

#include <QtMath>

#include <algorithm>

using namespace headunit;

namespace
{

// As eyes see it, 0 to 1.
double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(double(color.redF())) + 0.7152 * linear(double(color.greenF()))
        + 0.0722 * linear(double(color.blueF()));
}

double contrast(const QColor &one, const QColor &other)
{
    const auto both = std::minmax(luminance(one), luminance(other));
    return (both.second + 0.05) / (both.first + 0.05);
}

QColor colorAt(const QPixmap &picture, int x, int y) { return picture.toImage().pixelColor(x, y); }

} // namespace

class LooksTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void faceWithoutBorderEndsAtWholePixels();
    void borderLiesWithinItsFace();
    void discsAreDarkBehindTheirInitials_data();
    void discsAreDarkBehindTheirInitials();
    void knobIsSeenOnItsTrack_data();
    void knobIsSeenOnItsTrack();
    void textIsLegibleOnTheSmallestScreen();
};

void LooksTest::faceWithoutBorderEndsAtWholePixels()
{
    const Theme theme({1024, 600}, Theme::Day);
    const QPixmap face = theme.panel({100, 60}, theme.accent, {}, 14);
    for (const QPoint &edge : {QPoint(0, 30), QPoint(99, 30), QPoint(50, 0), QPoint(50, 59)})
        QCOMPARE(colorAt(face, edge.x(), edge.y()), theme.accent);
}

void LooksTest::borderLiesWithinItsFace()
{
    const Theme theme({1024, 600}, Theme::Day);
    const QPixmap face = theme.panel({100, 60}, Qt::white, theme.line, 14);
    QCOMPARE(colorAt(face, 0, 30), theme.line);
    QCOMPARE(colorAt(face, 1, 30), QColor(Qt::white));
}

void LooksTest::discsAreDarkBehindTheirInitials_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("day") << int(Theme::Day);
    QTest::newRow("night") << int(Theme::Night);
}

void LooksTest::discsAreDarkBehindTheirInitials()
{
    QFETCH(int, look);
    const Theme theme({1024, 600}, Theme::Look(look));
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const QPixmap disc = initialsDisc(theme, 100, QString(QLatin1Char(letter)));
        const double seen = contrast(Qt::white, colorAt(disc, 50, 4));
        QVERIFY2(seen >= 4.5, qPrintable(QStringLiteral("%1: %2").arg(letter).arg(seen)));
    }
}

void LooksTest::knobIsSeenOnItsTrack_data() { discsAreDarkBehindTheirInitials_data(); }

void LooksTest::knobIsSeenOnItsTrack()
{
    QFETCH(int, look);
    const Theme theme({1024, 600}, Theme::Look(look));
    MOnOffButton button;
    dressSwitch(button, theme);
    const QPixmap knob = button.normalChunkPix();
    const int middle = knob.height() / 2;
    const QColor ground = look == Theme::Day ? Qt::white : theme.face;
    const auto over = [&ground](const QColor &color) {
        const auto part = [&color](double own, double below) {
            return own * double(color.alphaF()) + below * (1 - double(color.alphaF()));
        };
        return QColor::fromRgbF(part(color.redF(), ground.redF()),
                                part(color.greenF(), ground.greenF()),
                                part(color.blueF(), ground.blueF()));
    };
    const QColor face = colorAt(knob, middle, middle);
    const QColor rim = colorAt(knob, theme.px(5), middle);
    for (const QColor &track : {theme.accent, over(grooveColor(theme))})
        QVERIFY(std::max(contrast(face, track), contrast(rim, track)) >= 3);
    // Off is quieter than on.
    QVERIFY(contrast(over(grooveColor(theme)), ground) < contrast(theme.accent, ground));
}

void LooksTest::textIsLegibleOnTheSmallestScreen()
{
    const Theme theme({800, 480}, Theme::Day);
    QVERIFY(theme.textPx(Theme::Small) >= 19);
    QVERIFY(theme.textPx(Theme::Body) >= 22);
    QVERIFY(theme.textPx(Theme::Small) < theme.textPx(Theme::Body));
    QVERIFY(theme.textPx(Theme::Body) < theme.textPx(Theme::Title));
}

WIDGET_TEST_MAIN(LooksTest)
#include "tst_looks.moc"
