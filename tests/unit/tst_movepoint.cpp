// SPDX-License-Identifier: Apache-2.0
// Pixels and frequencies are found with the arithmetic of int alone, so that neither the width of
// qreal nor the processor changes a station. What is expected is computed here with plain int.

#include <MovePoint>

#include "logrecord.h"
#include "radiobands.h"
#include "signallog.h"
#include "widgettest.h"

#include <climits>
#include <cstdlib>

namespace
{

// The numbers of one needle, by their names in resetParam().
struct Numbers {
    int lineStart = 20;
    int firstTick = 8700;
    int minFreq = 8750;
    int step = 10;
    int maxFreq = 10800;
    MapPixAndHz map{8, 20};
};

int over(int a, int b) { return b == 0 ? 0 : a / b; }

// Pixel to frequency and back, in plain int.
int freqAt(const Numbers &n, int pos)
{
    const int freq =
        over(over((pos - n.lineStart) * n.map.hz, n.map.pix) + n.firstTick, n.step) * n.step;
    if (freq < n.minFreq)
        return n.minFreq;
    return freq >= n.maxFreq ? n.maxFreq : freq;
}

// The same for numbers that leave 32 bits, where each operation wraps around.
int wrappedFreqAt(const Numbers &n, int pos)
{
    const auto wrapped = [](qint64 value) { return int(quint32(quint64(value))); };
    const auto quotient = [&](int a, int b) { return b == 0 ? 0 : wrapped(qint64(a) / b); };
    const int units = wrapped(qint64(wrapped(qint64(pos) - n.lineStart)) * n.map.hz);
    const int atPos = wrapped(qint64(quotient(units, n.map.pix)) + n.firstTick);
    const int freq = wrapped(qint64(quotient(atPos, n.step)) * n.step);
    if (freq < n.minFreq)
        return n.minFreq;
    return freq >= n.maxFreq ? n.maxFreq : freq;
}

int posOf(const Numbers &n, int freq)
{
    const int pos = over((freq - n.firstTick) * n.map.pix, n.map.hz) + n.lineStart;
    return freqAt(n, pos) == freq ? pos : pos + 1;
}

QPixmap picture(const QSize &size = QSize(11, 30))
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::red);
    return pixmap;
}

// A needle in a tuner, beside the tuner's own.
class Fixture
{
public:
    explicit Fixture(const Numbers &n = Numbers())
    {
        owner.resize(900, 110);
        owner.setPointYpos(17);
        needle = new MovePoint(n.lineStart, n.firstTick, n.minFreq, n.step, n.maxFreq, n.map,
                               &pixmap, &owner);
    }

    int middle() const { return needle->x() + needle->width() / 2; }

    QPixmap pixmap = picture();
    MRadioMovePoint owner;
    MovePoint *needle; // owned by the tuner
};

void reset(MovePoint &needle, const Numbers &n)
{
    needle.resetParam(n.lineStart, n.firstTick, n.minFreq, n.step, n.maxFreq, n.map);
}

const QString kMissed = QStringLiteral("!!!!!!!!!!!!!!!!!=====");
const QString kFound = QStringLiteral("========================");

} // namespace

Q_DECLARE_METATYPE(Numbers)

class tst_MovePoint : public WidgetTest
{
    Q_OBJECT

private slots:
    void aNewNeedleIsAsLargeAsItsPictureAndStandsInItsRow()
    {
        const Fixture f;
        QCOMPARE(f.needle->parentWidget(), &f.owner);
        QCOMPARE(f.needle->geometry(), QRect(0, 17, 11, 30));
        QCOMPARE(f.needle->pixmap(Qt::ReturnByValue).cacheKey(), f.pixmap.cacheKey());
    }

    void aPlainNeedleIsForAm()
    {
        Fixture f;
        QVERIFY(f.needle->isAm());
    }

    void theMapIsPixelsAndThenFrequency()
    {
        const MapPixAndHz map{3, 4};
        QCOMPARE(map.pix, 3);
        QCOMPARE(map.hz, 4);
    }

    // --- Pixels and frequencies -----------------------------------------------------------------

    void everyStepOfEveryBandGoesToItsPixelAndBack_data()
    {
        QTest::addColumn<Numbers>("numbers");
        QTest::addColumn<bool>("isExact");
        for (const RadioBand &band : kRadioBands) {
            for (const auto &[pix, hz] : {std::pair(8, 20), std::pair(5, 1), std::pair(8, 10),
                                          std::pair(3, 7), std::pair(1, 37), std::pair(-6, 10)}) {
                Numbers n;
                n.minFreq = band.start;
                n.maxFreq = band.end;
                n.step = band.step;
                n.firstTick = band.start / hz * hz - 2 * hz;
                n.map = {pix, hz};
                QTest::addRow("%s, %d px for %d", band.name, pix, hz)
                    << n << (pix * band.step >= 2 * hz && band.start % band.step == 0);
            }
        }
    }

    void everyStepOfEveryBandGoesToItsPixelAndBack()
    {
        QFETCH(Numbers, numbers);
        QFETCH(bool, isExact);
        const Numbers &n = numbers;
        Fixture f(n);
        for (int freq = n.minFreq; freq <= n.maxFreq; freq += n.step) {
            const int pos = f.needle->cacFreqMapPos(freq);
            QCOMPARE(pos, posOf(n, freq));
            QCOMPARE(f.needle->cacPosMapFreq(pos), freqAt(n, pos));
            if (isExact)
                QCOMPARE(f.needle->cacPosMapFreq(pos), freq);
        }
        for (int pos = -200; pos < 1200; ++pos) {
            QCOMPARE(f.needle->cacPosMapFreq(pos), freqAt(n, pos));
            QCOMPARE(f.needle->getPosValid(pos), posOf(n, freqAt(n, pos)));
        }
    }

    void positionsOutsideTheScaleAreTheEndsOfTheBand()
    {
        Fixture f;
        QCOMPARE(f.needle->cacPosMapFreq(0), 8750);
        QCOMPARE(f.needle->cacPosMapFreq(-1000), 8750);
        QCOMPARE(f.needle->cacPosMapFreq(20 + 840), 10800);
        QCOMPARE(f.needle->cacPosMapFreq(5000), 10800);
    }

    void theClampLetsTheEndsThemselvesThrough()
    {
        Numbers n;
        n.map = {1, 1};
        n.lineStart = 0;
        n.firstTick = 0;
        n.step = 10;
        n.minFreq = 100;
        n.maxFreq = 205; // no multiple of the step: only reached by clamping
        Fixture f(n);
        QCOMPARE(f.needle->cacPosMapFreq(100), 100);
        QCOMPARE(f.needle->cacPosMapFreq(99), 100);
        QCOMPARE(f.needle->cacPosMapFreq(209), 200);
        n.step = 1;
        reset(*f.needle, n);
        QCOMPARE(f.needle->cacPosMapFreq(101), 101);
        QCOMPARE(f.needle->cacPosMapFreq(204), 204);
        n.step = 10;
        reset(*f.needle, n);
        QCOMPARE(f.needle->cacPosMapFreq(210), 205);
        n.minFreq = n.maxFreq = 150; // the lower end goes first
        reset(*f.needle, n);
        QCOMPARE(f.needle->cacPosMapFreq(0), 150);
        n.minFreq = 300;
        reset(*f.needle, n);
        QCOMPARE(f.needle->cacPosMapFreq(250), 300);
        QCOMPARE(f.needle->cacPosMapFreq(350), 150);
    }

    void frequenciesTruncateTowardZero()
    {
        Numbers n;
        n.map = {2, 3};
        n.lineStart = 0;
        n.firstTick = 0;
        n.minFreq = -1000;
        n.maxFreq = 1000;
        n.step = 1;
        Fixture f(n);
        QCOMPARE(f.needle->cacPosMapFreq(3), 4);
        QCOMPARE(f.needle->cacPosMapFreq(-3), -4);
        n.step = 10;
        reset(*f.needle, n);
        QCOMPARE(f.needle->cacPosMapFreq(-10), -10); // -15 to a step
    }

    void aFrequencyOnItsPixelIsLoggedAsFound()
    {
        Fixture f;
        LogRecord log;
        QCOMPARE(f.needle->cacFreqMapPos(8800), 60);
        const QVector<LoggedLine> lines = log.take();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].text, kFound);
        QCOMPARE(lines[0].file, QStringLiteral("src/mradiomovepoint"));
        QCOMPARE(lines[0].function, QStringLiteral("int MovePoint::cacFreqMapPos(int)"));
        QVERIFY(lines[0].line > 0);
    }

    void aFrequencyOnePixelOnIsLoggedAsMissedAndFound()
    {
        Numbers n;
        n.map = {3, 10}; // 8710 is at 23 exactly; 8720 at 26; 8730 at 29; 8750 at 35
        n.step = 5;
        n.minFreq = 8700;
        Fixture f(n);
        LogRecord log;
        QCOMPARE(f.needle->cacFreqMapPos(8705), 22); // 21.5 truncated is 8703, rounded to 8700
        const QVector<LoggedLine> lines = log.take();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].text, kMissed);
        QCOMPARE(lines[0].function, QStringLiteral("int MovePoint::cacFreqMapPos(int)"));
        QCOMPARE(lines[0].file, QStringLiteral("src/mradiomovepoint"));
        QCOMPARE(lines[1].text, kFound);
    }

    void aFrequencyThatCannotBeHitIsOnePixelOnAndOnlyLoggedAsMissed()
    {
        Fixture f;
        LogRecord log;
        QCOMPARE(f.needle->cacFreqMapPos(8803), 62); // 41 px from 8700 are 8802: between two steps
        QCOMPARE(log.takeTexts(), QStringList{kMissed});
        QCOMPARE(f.needle->cacFreqMapPos(99999),
                 (99999 - 8700) * 8 / 20 + 20 + 1); // beyond the band
        QCOMPARE(log.takeTexts(), QStringList{kMissed});
    }

    void zeroDivisorsYieldZero()
    {
        Numbers n;
        n.map = {0, 1};
        Fixture f(n);
        QCOMPARE(f.needle->cacPosMapFreq(400), 8750); // 8700 everywhere, below the band
        QCOMPARE(f.needle->cacFreqMapPos(9000), 21);
        n.map = {8, 0};
        reset(*f.needle, n);
        QCOMPARE(f.needle->cacFreqMapPos(9000), 21);
        n.map = {8, 20};
        n.step = 0;
        reset(*f.needle, n);
        QCOMPARE(f.needle->cacPosMapFreq(400), 8750);
        n.minFreq = -5;
        reset(*f.needle, n);
        QCOMPARE(f.needle->cacPosMapFreq(400), 0);
    }

    void everyNumberIsDefined()
    {
        const int hostile[] = {INT_MIN, INT_MIN + 1, -65536, -1, 0, 1, 9, 65536, INT_MAX};
        Fixture f;
        for (const int a : hostile) {
            for (const int b : hostile) {
                for (const int c : hostile) {
                    const Numbers n{a, b, c, b, a, {c, a}};
                    reset(*f.needle, n);
                    for (const int pos : {INT_MIN, -7, 0, 500, INT_MAX})
                        QCOMPARE(f.needle->cacPosMapFreq(pos), wrappedFreqAt(n, pos));
                    f.needle->moveByPos(b);
                    f.needle->moveByFreq(c);
                    QVERIFY(std::abs(f.needle->x()) <= 16777215);
                }
            }
        }
        reset(*f.needle, {20, INT_MAX, INT_MIN, 1, INT_MAX, {1, 1}});
        QCOMPARE(f.needle->cacPosMapFreq(21), INT_MIN); // wrapped around
        reset(*f.needle, {INT_MAX - 10, 0, 0, 1, 100, {1, 1}});
        f.needle->moveByFreq(0);
        QCOMPARE(f.needle->x(), 16777215); // no further away than a widget can be large
    }

    // --- Moving ---------------------------------------------------------------------------------

    void theMiddleSnapsToTheNextLowerStep()
    {
        Fixture f;
        f.needle->moveByPos(63); // 8807
        QCOMPARE(f.middle(), 60);
        QCOMPARE(f.needle->y(), 17);
        QCOMPARE(f.needle->size(), QSize(11, 30));
    }

    void movingStopsAtTheEndsOfTheBand()
    {
        Fixture f;
        f.needle->moveByPos(-100);
        QCOMPARE(f.middle(), 40);
        f.needle->moveByPos(2000);
        QCOMPARE(f.middle(), 860);
    }

    void halfOfTheWidthIsTruncated()
    {
        Fixture f;
        f.needle->resize(10, 30);
        f.needle->moveByPos(60);
        QCOMPARE(f.needle->x(), 55);
        f.needle->resize(11, 30);
        f.needle->moveByPos(60);
        QCOMPARE(f.needle->x(), 55);
    }

    void aFrequencyMovesTheMiddleToItsPixel()
    {
        Fixture f;
        f.needle->moveByFreq(9850);
        QCOMPARE(f.middle(), 480);
        f.needle->moveByFreq(9999999);
        QCOMPARE(f.middle(), 860);
        f.needle->moveByFreq(0);
        QCOMPARE(f.middle(), 40);
    }

    void aSubclassDecidesWhatIsValidAndHowToMove()
    {
        class Free : public MovePoint
        {
        public:
            using MovePoint::MovePoint;
            int getPosValid(int pos) override { return pos + 1000; }
            void moveByPos(int pos) override
            {
                asked += pos;
                MovePoint::moveByPos(pos);
            }
            QVector<int> asked;
        };
        Fixture f;
        Free needle(20, 8700, 8750, 10, 10800, {8, 20}, &f.pixmap, &f.owner);
        needle.moveByFreq(8800);
        QCOMPARE(needle.asked, QVector<int>{60});
        QCOMPARE(needle.x(), 1060 - 5);
    }

    void resetKeepsTheXAndTakesTheRowOfTheParent()
    {
        Fixture f;
        f.needle->move(300, 3);
        f.owner.setPointYpos(44);
        reset(*f.needle, Numbers());
        QCOMPARE(f.needle->pos(), QPoint(300, 44));
    }

    void resetTakesEveryNumber()
    {
        Fixture f;
        Numbers n;
        n.lineStart = 30;
        n.firstTick = 480;
        n.minFreq = 522;
        n.step = 9;
        n.maxFreq = 1620;
        n.map = {4, 6};
        reset(*f.needle, n);
        for (int pos = 0; pos < 1000; pos += 3)
            QCOMPARE(f.needle->cacPosMapFreq(pos), freqAt(n, pos));
        QCOMPARE(f.needle->cacFreqMapPos(999), posOf(n, 999));
    }

    void anotherParentTellsNoRow()
    {
        Fixture f;
        QWidget other;
        f.needle->setParent(&other);
        f.needle->move(5, 6);
        reset(*f.needle, Numbers());
        QCOMPARE(f.needle->pos(), QPoint(5, 6));
    }

    void aNeedleWithoutPictureOrOwnerIsNoHarm()
    {
        MovePoint needle(20, 8700, 8750, 10, 10800, {8, 20}, nullptr, nullptr);
        reset(needle, Numbers());
        needle.resize(10, 10);
        needle.moveByFreq(9850);
        QCOMPARE(needle.x(), 475);
    }

    // --- Reporting ------------------------------------------------------------------------------

    void theFrequencyIsThatOfTheMiddle()
    {
        Fixture f;
        SignalLog log(f.needle);
        f.needle->move(480 - 5, 0);
        f.needle->emitFreq();
        f.needle->move(481 - 5 + 2, 0); // 9857: the step below
        f.needle->emitFreq();
        f.needle->move(-5000, 0);
        f.needle->emitFreq();
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("freqChanged(9850, false)"),
                              QStringLiteral("freqChanged(9850, false)"),
                              QStringLiteral("freqChanged(8750, false)")}));
    }

    void movingReportsNothing()
    {
        Fixture f;
        SignalLog log(f.needle);
        f.needle->moveByPos(300);
        f.needle->moveByFreq(9000);
        reset(*f.needle, Numbers());
        QCOMPARE(log.take(), QStringList());
    }

    void aNeedleMayBeDeletedByItsReport()
    {
        Fixture f;
        QPointer<MovePoint> guard(f.needle);
        connect(f.needle, &MovePoint::freqChanged, f.needle, [&] { delete f.needle; });
        f.needle->emitFreq();
        QVERIFY(!guard);
    }
};

WIDGET_TEST_MAIN(tst_MovePoint)
#include "tst_movepoint.moc"
