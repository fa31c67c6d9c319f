// SPDX-License-Identifier: Apache-2.0
// The arithmetic of the scale is that of int, and of float for the numbers of an FM scale: it is
// the same whatever the width of qreal and whatever the processor. What is expected here is
// computed with plain int, which for these numbers neither overflows nor divides by zero.

#include <ScaleBkg>

#include "paintwork.h"
#include "radiobands.h"
#include "widgettest.h"

#include <QPainter>

#include <climits>

namespace
{

// The numbers of one scale, by their names in resetParam().
struct Numbers {
    int freqStart = 8750;
    int freqEnd = 10800;
    int step = 10;
    int lineStart = 20;
    int lineEnd = 820;
    bool isFM = true;
    int suggestStart = -1;
    int suggestEnd = -1;
    int pixCountMeta = 1;
    int bMid = 5;
    int bLarge = 2;
    int totalCountMeta = 100;
};

void apply(ScaleBkg &scale, const Numbers &n)
{
    scale.resetParam(n.freqStart, n.freqEnd, n.step, n.lineStart, n.lineEnd, n.isFM, n.suggestStart,
                     n.suggestEnd, n.pixCountMeta, n.bMid, n.bLarge, n.totalCountMeta);
}

int over(int a, int b) { return b == 0 ? 0 : a / b; }

// What follows from the numbers in a scale of this width.
struct Model {
    Model(const Numbers &numbers, int width) : n(numbers)
    {
        const int validStart = over(n.freqStart, n.step) * n.step;
        const int validEnd = over(n.freqEnd, n.step) * n.step;
        const bool isSuggested = n.suggestStart != -1 && n.suggestEnd != -1;
        const int rangeStart = isSuggested ? n.suggestStart : validStart / 100 * 100;
        const int rangeEnd = isSuggested ? n.suggestEnd : validEnd / 100 * 100;
        pix = over(n.lineEnd - n.lineStart, n.totalCountMeta);
        hz = over((rangeEnd - rangeStart) * pix, n.lineEnd - n.lineStart);
        hz = hz == 0 ? 1 : hz;
        firstTick = over(validStart, hz) * hz - 2 * hz;
        unitCount = over(over((width - 2 * n.lineStart) * hz, pix), hz);
        pointStart = n.lineStart + (validStart - firstTick) / 10 * 10;
        pointEnd = n.lineStart + (validEnd - firstTick) / 10 * 10;
        lineEnd = n.lineStart + pix * unitCount + 3 * pix;
    }

    int posOf(int count) const { return n.lineStart + count * pix; }
    int freqOf(int count) const { return firstTick + count * hz; }
    int heightOf(int count) const
    {
        const int tick = over(freqOf(count), hz * n.pixCountMeta);
        const auto isMultiple = [tick](int of) { return of == 0 ? tick == 0 : tick % of == 0; };
        return isMultiple(n.bMid * n.bLarge) ? 18 : isMultiple(n.bMid) ? 12 : 6;
    }
    int firstLabel() const
    {
        const int ticks = over(firstTick, hz * n.pixCountMeta);
        return over(ticks, n.bMid) * n.bMid + n.bMid - over(firstTick, hz);
    }
    QString textOf(int count) const
    {
        if (n.isFM)
            return QString::number(double(float(freqOf(count)) / 100.0F), 'g', 6);
        return QString::number(double(freqOf(count)), 'g', 6);
    }

    Numbers n;
    int pix;
    int hz;
    int firstTick;
    int unitCount;
    int pointStart;
    int pointEnd;
    int lineEnd;
};

// The picture, label after label and line after line.
void paintScale(QPainter &painter, const Model &model, const MRadioMovePoint &owner,
                int leftOutLabels = 0)
{
    painter.setPen(owner.getLineColor());
    const int top = owner.getTxtYpos();
    const int first = model.firstLabel() + leftOutLabels * model.n.bMid;
    for (int c = first; c < model.unitCount; c += model.n.bMid) {
        const int x = model.posOf(c);
        painter.drawText(QRect(QPoint(x - 40, top), QPoint(x + 39, 2 * top + 19)), Qt::AlignCenter,
                         model.textOf(c));
    }
    for (int c = 0; c < model.unitCount; c += model.n.pixCountMeta) {
        const int x = model.posOf(c);
        const int foot = owner.getLineYpos();
        painter.drawLine(x, foot - model.heightOf(c), x, foot);
    }
}

// A tuner and a scale of its own in it, which takes its colour, rows and size.
class Fixture
{
public:
    explicit Fixture(const Numbers &numbers = Numbers(), const QSize &size = QSize(900, 110))
    {
        owner.resize(size);
        owner.setLineColor(Qt::white);
        owner.setLineYpos(80);
        owner.setTxtYpos(10);
        scale = new ScaleBkg(0, 100, 10, 0, 100, true, -1, -1, &owner, &owner, 1, 1, 1, 1);
        apply(*scale, numbers);
    }

    bool isAs(const Model &model) const
    {
        return isSamePicture(
            {painted(*scale), reference(*scale, [&](QPainter &p) { paintScale(p, model, owner); })},
            __FILE__, __LINE__);
    }

    MRadioMovePoint owner;
    ScaleBkg *scale; // owned by its parent
};

// A scale without pixels per unit, whose labels all stand at one place, one for each frequency from
// 1 on.
Numbers pileOf(int labels)
{
    Numbers n;
    n.isFM = false;
    n.freqStart = labels + 3;
    n.freqEnd = labels + 100;
    n.step = 1;
    n.lineStart = n.lineEnd = 30;
    n.pixCountMeta = 1000000;
    n.bMid = 1;
    return n;
}

} // namespace

Q_DECLARE_METATYPE(Numbers)

class tst_ScaleBkg : public WidgetTest
{
    Q_OBJECT

private slots:
    void aNewScaleIsALabelAsLargeAsItsOwner()
    {
        QWidget parent;
        parent.resize(300, 70);
        MRadioMovePoint owner;
        owner.resize(640, 90);
        ScaleBkg scale(8750, 10800, 10, 20, 820, true, -1, -1, &owner, &parent, 1, 5, 2, 100);
        QCOMPARE(scale.parentWidget(), &parent);
        QCOMPARE(scale.geometry(), QRect(0, 10, 640, 90));
        QCOMPARE(scale.getLine_start(), 20);
        QCOMPARE(scale.getLine_end(), Model(Numbers(), 640).lineEnd);
    }

    // --- Geometry -------------------------------------------------------------------------------

    void theGeometryOfEveryBand_data()
    {
        QTest::addColumn<Numbers>("numbers");
        for (const RadioBand &band : kRadioBands) {
            Numbers n;
            n.freqStart = band.start;
            n.freqEnd = band.end;
            n.step = band.step;
            n.isFM = band.isFM;
            QTest::addRow("%s", band.name) << n;
            n.suggestStart = band.start;
            n.suggestEnd = band.start + (band.isFM ? 2000 : 1000);
            n.pixCountMeta = 5;
            QTest::addRow("%s, suggested", band.name) << n;
            n.lineStart = 0;
            n.lineEnd = 560;
            n.totalCountMeta = 140;
            n.pixCountMeta = 3;
            n.bMid = 4;
            n.bLarge = 3;
            QTest::addRow("%s, other strides", band.name) << n;
        }
    }

    void theGeometryOfEveryBand()
    {
        QFETCH(Numbers, numbers);
        const Fixture f(numbers);
        const Model model(numbers, 900);
        QCOMPARE(f.scale->getPosByCount(0), numbers.lineStart);
        QCOMPARE(f.scale->getPosByCount(1) - f.scale->getPosByCount(0), model.pix);
        QCOMPARE(f.scale->getValueByPos(numbers.lineStart), model.firstTick);
        QCOMPARE(f.scale->getValueByPos(numbers.lineStart + 7), model.firstTick + 70);
        QCOMPARE(f.scale->getPointStart(), model.pointStart);
        QCOMPARE(f.scale->getPointEnd(), model.pointEnd);
        QCOMPARE(f.scale->getLine_end(), model.lineEnd);
        for (int count = -3; count <= model.unitCount; ++count) {
            QCOMPARE(f.scale->getPosByCount(count), model.posOf(count));
            QCOMPARE(f.scale->getHeightByCount(count), model.heightOf(count));
            QCOMPARE(f.scale->getBeishu(model.freqOf(count)), model.heightOf(count) / 6);
        }
        QVERIFY(model.unitCount > 50);
    }

    void theGeometryIsThatOfTheConstructorToo()
    {
        MRadioMovePoint owner;
        owner.resize(900, 110);
        ScaleBkg scale(522, 1620, 9, 20, 820, false, 500, 1500, &owner, &owner, 2, 5, 2, 100);
        QCOMPARE(scale.getPosByCount(10), 100);
        QCOMPARE(scale.getValueByPos(20), 500);
        QCOMPARE(scale.getHeightByCount(0), 12);
        QCOMPARE(scale.getHeightByCount(10), 18);
        QCOMPARE(scale.getHeightByCount(2), 6);
    }

    void bothBandEndsAreRoundedDownToTheStep()
    {
        const Fixture f;
        for (const bool isStart : {true, false}) {
            QCOMPARE(f.scale->getValidStartFreq(8757, 10, isStart), 8750);
            QCOMPARE(f.scale->getValidStartFreq(-8757, 10, isStart), -8750);
            QCOMPARE(f.scale->getValidStartFreq(8757, 0, isStart), 0);
            QCOMPARE(f.scale->getValidStartFreq(INT_MIN, -1, isStart), INT_MIN);
        }
    }

    void eitherSuggestedEndOfMinusOneTakesTheBandInHundreds()
    {
        Numbers n;
        for (const auto &[start, end] :
             {std::pair(-1, 20000), std::pair(3, -1), std::pair(-1, -1)}) {
            n.suggestStart = start;
            n.suggestEnd = end;
            const Fixture f(n);
            // 8700 to 10800 over 800 px at 8 px a unit is 21; 416 * 21 - 2 * 21 is the first tick.
            QCOMPARE(f.scale->getValueByPos(n.lineStart), 8694);
        }
        n.suggestStart = 8700;
        n.suggestEnd = 9700;
        QCOMPARE(Fixture(n).scale->getValueByPos(n.lineStart), 8730);
    }

    void theGridComesFromTheBandRoundedDownNotFromTheBand()
    {
        Numbers n;
        n.freqStart = 8790;
        n.freqEnd = 10690; // 1900 as a band, 1900 in hundreds: 8700 to 10600
        QCOMPARE(Fixture(n).scale->getValueByPos(n.lineStart), 8790 / 19 * 19 - 38);
        n.freqEnd = 10790; // 2000 as a band, 2000 in hundreds
        n.freqStart = 8710; // 2080 as a band, 2000 in hundreds
        QCOMPARE(Fixture(n).scale->getValueByPos(n.lineStart), 8710 / 20 * 20 - 40);
    }

    void noFrequencyUnitsPerScaleUnitBecomeOne()
    {
        Numbers n;
        n.suggestStart = 8750;
        n.suggestEnd = 8751;
        QCOMPARE(Fixture(n).scale->getValueByPos(n.lineStart), 8748);
    }

    void zeroDivisorsYieldZero()
    {
        Numbers noTotal;
        noTotal.totalCountMeta = 0;
        Numbers noWidth;
        noWidth.lineEnd = noWidth.lineStart;
        for (const Numbers &n : {noTotal, noWidth}) {
            const Fixture f(n);
            QCOMPARE(f.scale->getPosByCount(1000), 20); // no pixels a unit
            QCOMPARE(f.scale->getValueByPos(20), 8748); // one frequency unit a unit
            QCOMPARE(f.scale->getLine_end(), 20); // and no units
        }
        Numbers noStep;
        noStep.step = 0;
        QCOMPARE(Fixture(noStep).scale->getValueByPos(20), -2);
    }

    void whatExceeds32BitsWraps()
    {
        const Fixture f;
        QCOMPARE(f.scale->getPosByCount(INT_MAX), 20 - 8);
        QCOMPARE(f.scale->getValueByPos(INT_MIN), 8694 - 200);
        QCOMPARE(f.scale->getRectBYCertalXpos(INT_MIN).left(), INT_MAX - 39);
    }

    void initTakesTheSizeOfTheOwner()
    {
        Fixture f;
        f.owner.resize(500, 60);
        f.scale->setLine_end(3);
        f.scale->init();
        QCOMPARE(f.scale->geometry(), QRect(0, 10, 500, 60));
        QCOMPARE(f.scale->getLine_end(), Model(Numbers(), 500).lineEnd);
        QVERIFY(f.isAs(Model(Numbers(), 500)));
    }

    void thePointsMoveWithTheScale()
    {
        Fixture f;
        const int start = f.scale->getPointStart();
        const int end = f.scale->getPointEnd();
        f.scale->move(30, 0);
        QCOMPARE(f.scale->getPointStart(), start + 30);
        QCOMPARE(f.scale->getPointEnd(), end + 30);
    }

    void theEndIsZeroUnlessASubclassKnowsBetter()
    {
        class Longer : public ScaleBkg
        {
        public:
            using ScaleBkg::ScaleBkg;
            int getEnd() override { return 7; }
        };
        Fixture f;
        QCOMPARE(f.scale->getEnd(), 0);
        Longer longer(0, 1, 1, 0, 1, true, -1, -1, &f.owner, &f.owner, 1, 1, 1, 1);
        QCOMPARE(static_cast<ScaleBkg &>(longer).getEnd(), 7);
    }

    void theBoxOfALabelIs80PixelsWideAndGrowsDownward()
    {
        Fixture f;
        QCOMPARE(f.scale->getRectBYCertalXpos(100), QRect(60, 10, 80, 30));
        f.owner.setTxtYpos(30);
        QCOMPARE(f.scale->getRectBYCertalXpos(0), QRect(-40, 30, 80, 50));
    }

    void tickHeightsCountMultiplesOfTheTickIndex()
    {
        Numbers n;
        n.suggestStart = 8000;
        n.suggestEnd = 10000; // 20 a unit, 100 a tick
        n.pixCountMeta = 5;
        const Fixture f(n);
        QCOMPARE(f.scale->getBeishu(9000), 3); // index 90
        QCOMPARE(f.scale->getBeishu(9099), 3); // truncated
        QCOMPARE(f.scale->getBeishu(9100), 1);
        QCOMPARE(f.scale->getBeishu(9500), 2);
        QCOMPARE(f.scale->getBeishu(0), 3);
        QCOMPARE(f.scale->getBeishu(-500), 2);
        n.bMid = 0; // only 0 is a multiple of 0
        QCOMPARE(Fixture(n).scale->getBeishu(9000), 1);
        QCOMPARE(Fixture(n).scale->getBeishu(99), 3);
    }

    // --- Accessors ------------------------------------------------------------------------------

    void theLineAccessorsStoreOnly()
    {
        Fixture f;
        show(f.owner);
        QCOMPARE(paints(*f.scale,
                        [&] {
                            f.scale->setLine_start(44);
                            f.scale->setLine_end(55);
                        }),
                 0);
        QCOMPARE(f.scale->getLine_start(), 44);
        QCOMPARE(f.scale->getLine_end(), 55);
        QCOMPARE(f.scale->getPosByCount(0), 44);
    }

    void aMovedLineStartShowsAtTheNextPaint()
    {
        Fixture f;
        const Model before(Numbers(), 900);
        QVERIFY(f.isAs(before));
        f.scale->setLine_start(50);
        Model after = before;
        after.n.lineStart = 50;
        QVERIFY(f.isAs(after));
    }

    // --- Painting -------------------------------------------------------------------------------

    void pictures_data() { theGeometryOfEveryBand_data(); }

    void pictures()
    {
        QFETCH(Numbers, numbers);
        Fixture f(numbers);
        const Model model(numbers, 900);
        for (const QColor &color : {QColor(Qt::white), QColor(200, 90, 10, 77), QColor()}) {
            f.owner.setLineColor(color);
            QVERIFY(f.isAs(model));
            QVERIFY(f.isAs(model)); // and from what is kept
        }
    }

    void theNumbersOfAnFmScaleAreHundredths()
    {
        Numbers n;
        n.suggestStart = 8700;
        n.suggestEnd = 13700; // 50 a unit
        n.bMid = 1;
        const Fixture f(n, {200, 110});
        // The first tick is 8650; the first label stands one unit on.
        COMPARE_PICTURES(
            painted(*f.scale), reference(*f.scale, [](QPainter &p) {
                const char *const texts[] = {"87",   "87.5", "88",   "88.5", "89",   "89.5", "90",
                                             "90.5", "91",   "91.5", "92",   "92.5", "93",   "93.5",
                                             "94",   "94.5", "95",   "95.5", "96"};
                p.setPen(Qt::white);
                for (int i = 0; i < 19; ++i)
                    p.drawText(QRect(20 + 8 * (i + 1) - 40, 10, 80, 30), Qt::AlignCenter,
                               QString::fromLatin1(texts[i]));
                for (int c = 0; c < 20; ++c)
                    p.drawLine(28 + 8 * (c - 1), 80 - (c % 2 == 1 ? 18 : 12), 28 + 8 * (c - 1), 80);
            }));
    }

    void theNumbersOfAnAmScaleAreWhole()
    {
        Numbers n;
        n.isFM = false;
        n.freqStart = 10000;
        QCOMPARE(Model(n, 900).textOf(0), QString::number(Model(n, 900).firstTick));
        QVERIFY(Fixture(n).isAs(Model(n, 900)));
    }

    void nothingIsDrawnAtTheLastCount()
    {
        Numbers n;
        n.suggestStart = 8000;
        n.suggestEnd = 10000;
        const Fixture f(n, {20 + 20 + 8 * 30, 110});
        QCOMPARE(Model(n, 280).unitCount, 30);
        const QImage picture = painted(*f.scale);
        QVERIFY(qAlpha(picture.pixel(20 + 8 * 29, 80)) > 0);
        QCOMPARE(qAlpha(picture.pixel(20 + 8 * 30, 80)), 0);
    }

    void ticksLieOverLabels()
    {
        Fixture f;
        f.owner.setLineYpos(30); // in the middle of the labels
        f.owner.setLineColor(QColor(255, 255, 255, 120));
        QVERIFY(f.isAs(Model(Numbers(), 900)));
    }

    void theOwnersRowsShowAtTheNextPaint()
    {
        Fixture f;
        QVERIFY(f.isAs(Model(Numbers(), 900)));
        f.owner.setLineYpos(95);
        QVERIFY(f.isAs(Model(Numbers(), 900)));
        f.owner.setTxtYpos(33);
        QVERIFY(f.isAs(Model(Numbers(), 900)));
        f.scale->resize(700, 90); // does not lay out: the scale goes on beyond its widget
        QVERIFY(f.isAs(Model(Numbers(), 900)));
    }

    void theFontShowsAtTheNextPaint()
    {
        Fixture f;
        QVERIFY(f.isAs(Model(Numbers(), 900)));
        QFont font = f.scale->font();
        font.setPixelSize(11);
        f.scale->setFont(font);
        QVERIFY(f.isAs(Model(Numbers(), 900)));
    }

    void aScaledPainterDrawsTheSame()
    {
        const Fixture f;
        f.scale->resize(20 + 8 * 50, 79); // half of the tick at 420 shows, and half of the last row
        const auto twice = [](const std::function<void(QPainter &)> &paint) {
            QImage image(840, 158, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            painter.scale(2, 2);
            paint(painter);
            return image;
        };
        const QImage actual = twice(
            [&](QPainter &p) { f.scale->render(&p, QPoint(), QRegion(), QWidget::DrawChildren); });
        COMPARE_PICTURES(actual, twice([&](QPainter &p) {
                             p.setFont(f.scale->font());
                             paintScale(p, Model(Numbers(), 900), f.owner);
                         }));
    }

    void aPartIsPaintedAsInTheWhole()
    {
        Fixture f;
        show(f.owner);
        const QImage whole = painted(*f.scale);
        QImage image(f.scale->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        for (int x = 0; x < f.scale->width(); x += 37)
            f.scale->render(&image, {x, 0}, QRect(x, 0, 37, f.scale->height()),
                            QWidget::DrawChildren);
        COMPARE_PICTURES(image, whole);
    }

    void withoutPixelsPerUnitLabelsPileUpAtTheLineStart()
    {
        Numbers n;
        n.lineEnd = n.lineStart;
        n.pixCountMeta = 10;
        const Model model(n, 900);
        QVERIFY(model.firstLabel() < -7000); // they begin that far left of a scale without units
        QVERIFY(Fixture(n).isAs(model));
    }

    void labelsInOnePlaceAreAllDrawn_data()
    {
        QTest::addColumn<int>("labels");
        QTest::newRow("2,048") << 2048;
        QTest::newRow("2,049") << 2049;
        QTest::newRow("100,000") << 100000;
    }

    void labelsInOnePlaceAreAllDrawn()
    {
        QFETCH(int, labels);
        const Numbers n = pileOf(labels);
        const Model model(n, 90);
        QCOMPARE(-model.firstLabel(), labels);
        Fixture f(n, {90, 50});
        for (const QColor &color : {QColor(Qt::white), QColor(200, 90, 10, 2)}) {
            f.owner.setLineColor(color);
            QVERIFY(f.isAs(model));
        }
    }

    void ofMoreLabelsInOnePlaceTheLastAreDrawn()
    {
        const Numbers n = pileOf(100001);
        Fixture f(n, {90, 50});
        f.owner.setLineColor(QColor(200, 90, 10, 2));
        COMPARE_PICTURES(painted(*f.scale), reference(*f.scale, [&](QPainter &p) {
                             paintScale(p, Model(n, 90), f.owner, 100001 - 2048);
                         }));
    }

    void thousandsOfTicksAndLabelsSideBySideAreAllDrawn()
    {
        Numbers n;
        n.lineStart = 0;
        n.lineEnd = 100;
        n.bMid = 2;
        n.isFM = false;
        Fixture f(n, {5000, 50});
        f.owner.setLineYpos(45);
        f.owner.setLineColor(QColor(200, 90, 10, 20));
        const Model model(n, 5000);
        QCOMPARE(model.unitCount, 5000);
        QVERIFY(f.isAs(model));
    }

    void widthsFromOneToTenThousandPixels()
    {
        for (const int width : {1, 2, 41, 10000}) {
            Numbers n;
            n.lineStart = 0;
            n.lineEnd = 800;
            QVERIFY(Fixture(n, {width, 110}).isAs(Model(n, width)));
        }
    }

    void aBandOfMillionsOfTicksIsPaintedLikeAnyOther()
    {
        Numbers n;
        n.freqStart = 0;
        n.freqEnd = 20000000;
        n.step = 1;
        n.lineStart = -1999900; // two million ticks left of the widget
        n.lineEnd = n.lineStart + 100;
        n.suggestStart = 0;
        n.suggestEnd = 100;
        n.isFM = false;
        n.bMid = 50;
        const Fixture f(n, {300, 110});
        const Model model(n, 300);
        QVERIFY(model.unitCount > 2000000);
        QVERIFY(f.isAs(model));
    }

    void everyNumberIsDefinedAndPaintsABoundedPicture()
    {
        const int hostile[] = {INT_MIN, INT_MIN + 1, -1000000, -1, 0, 1, 7, 65536, INT_MAX};
        Fixture f;
        int Numbers::*const fields[] = {
            &Numbers::freqStart,  &Numbers::freqEnd,        &Numbers::step,
            &Numbers::lineStart,  &Numbers::lineEnd,        &Numbers::suggestStart,
            &Numbers::suggestEnd, &Numbers::pixCountMeta,   &Numbers::bMid,
            &Numbers::bLarge,     &Numbers::totalCountMeta,
        };
        for (const auto first : fields) {
            for (const auto second : fields) {
                for (const int a : {INT_MIN, 0, 7}) {
                    Numbers n;
                    n.*first = a;
                    n.*second = hostile[(unsigned(a) % 7 + 3) % 9];
                    apply(*f.scale, n);
                    QVERIFY(recordedBytes(*f.scale) < 1000000);
                    f.scale->getHeightByCount(a);
                    f.scale->getPointEnd();
                }
            }
        }
        apply(*f.scale, Numbers());
        QVERIFY(f.isAs(Model(Numbers(), 900))); // none of it has stayed
    }

    void rowsOutOfSightShowNothing()
    {
        Fixture f;
        for (const int y : {-1000000, -50, 1000000, INT_MAX / 2, INT_MAX}) {
            f.owner.setLineYpos(y);
            f.owner.setTxtYpos(y);
            COMPARE_PICTURES(painted(*f.scale), reference(*f.scale, [](QPainter &) {}));
        }
    }

    void stridesThatLeadNowhereHaveOnlyTheFirst()
    {
        Numbers n;
        n.pixCountMeta = 0;
        n.bMid = 0;
        const Fixture f(n);
        const QImage picture = painted(*f.scale);
        QVERIFY(qAlpha(picture.pixel(20, 80)) > 0);
        QCOMPARE(qAlpha(picture.pixel(28, 80)), 0);
        n.pixCountMeta = -1;
        n.bMid = -5;
        apply(*f.scale, n);
        QCOMPARE(qAlpha(painted(*f.scale).pixel(28, 80)), 0);
    }

    void aScaleWithoutOwnerOrParentPaintsNothing()
    {
        auto owner = std::make_unique<MRadioMovePoint>();
        ScaleBkg orphan(8750, 10800, 10, 20, 820, true, -1, -1, owner.get(), nullptr, 1, 5, 2, 100);
        owner.reset();
        ScaleBkg single(8750, 10800, 10, 20, 820, true, -1, -1, nullptr, nullptr, 1, 5, 2, 100);
        for (ScaleBkg *scale : {&orphan, &single}) {
            scale->init();
            scale->resize(60, 30);
            COMPARE_PICTURES(painted(*scale), reference(*scale, [](QPainter &) {}));
            QCOMPARE(scale->getRectBYCertalXpos(0).top(), 0);
        }
    }
};

WIDGET_TEST_MAIN(tst_ScaleBkg)
#include "tst_scalebkg.moc"
