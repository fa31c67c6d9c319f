// SPDX-License-Identifier: Apache-2.0
#include <MRadioMovePoint>

#include "logrecord.h"
#include "paintwork.h"
#include "parent.h"
#include "radiobands.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QPainter>

#include <climits>
#include <cmath>
#include <limits>

namespace
{

using Action = std::function<void(MRadioMovePoint &)>;

// Its children cannot be told by their class: moc does not know all of them.
ScaleBkg *scaleOf(const MRadioMovePoint &tuner)
{
    for (QObject *child : tuner.children()) {
        if (auto *scale = dynamic_cast<ScaleBkg *>(child))
            return scale;
    }
    return nullptr;
}

MovePoint *needleOf(const MRadioMovePoint &tuner) { return tuner.findChild<MovePoint *>(); }

int middleOf(const MRadioMovePoint &tuner)
{
    return needleOf(tuner)->x() + needleOf(tuner)->width() / 2;
}

// 8700 at x 20 and 20 for 8 px from there on.
void setUp(MRadioMovePoint &tuner)
{
    tuner.resize(900, 110);
    tuner.setBandType(MRadioMovePoint::FM);
    tuner.setFreqStart(8750);
    tuner.setSuggestFreqStart(8750);
    tuner.setSuggestFreqEnd(10750);
    tuner.setLineStart(20);
    tuner.setLineEnd(820);
    tuner.setPixCountMeta(1);
    tuner.setTxtYpos(10);
    tuner.setLineYpos(80);
    tuner.setPointYpos(50);
    tuner.setLineColor(Qt::white);
    tuner.setInitByCustomeValue(true);
}

// A tick every 2 units, middle ones at multiples of 3 of them and long ones of 12.
void setOwnCounts(MRadioMovePoint &tuner)
{
    tuner.setPixCountMeta(2);
    tuner.setBMid(3);
    tuner.setBLarge(4);
    tuner.setTotalCountMeta(50);
}

void checkOwnCounts(ScaleBkg &scale)
{
    QCOMPARE(scale.getPosByCount(1) - scale.getPosByCount(0), 16); // 800 px for 50 units
    constexpr int kTick = 2 * 40; // 2000 for 50 units
    QCOMPARE(scale.getBeishu(11 * kTick), 1);
    QCOMPARE(scale.getBeishu(12 * kTick), 3);
    QCOMPARE(scale.getBeishu(12 * kTick - 1), 1);
    QCOMPARE(scale.getBeishu(15 * kTick), 2);
    QCOMPARE(scale.getBeishu(16 * kTick), 1);
    QCOMPARE(scale.getBeishu(24 * kTick), 3);
}

// Those that only store, with a new value for each.
TableRows<QVariant> addPlainProperties()
{
    const TableRows<QVariant> row("value");
    addNumbers(row, 100,
               {"freqStep", "freqStart", "suggestFreqStart", "suggestFreqEnd", "freqEnd",
                "lineStart", "lineEnd", "pixCountMeta", "bMid", "bLarge", "totalCountMeta",
                "txtYpos", "lineYpos", "pointYpos"});
    row("bandType", 1);
    row("lineColor", QColor(1, 2, 3));
    return row;
}

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_MRadioMovePoint : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction ---------------------------------------------------------------------------

    void defaults()
    {
        const MRadioMovePoint tuner;
        QCOMPARE(tuner.getFreqStart(), 8500);
        QCOMPARE(tuner.getFreqEnd(), 10800);
        QCOMPARE(tuner.getFreqStep(), 10);
        QCOMPARE(tuner.getSuggestFreqStart(), -1);
        QCOMPARE(tuner.getSuggestFreqEnd(), -1);
        QCOMPARE(tuner.getLineStart(), 10);
        QCOMPARE(tuner.getLineEnd(), 500);
        QCOMPARE(tuner.getPixCountMeta(), 10);
        QCOMPARE(tuner.getBMid(), 5);
        QCOMPARE(tuner.getBLarge(), 2);
        QCOMPARE(tuner.getTotalCountMeta(), 100);
        QCOMPARE(tuner.getBandType(), MRadioMovePoint::AM);
        QVERIFY(!tuner.getLineColor().isValid());
        QCOMPARE(tuner.getTxtYpos(), 30);
        QCOMPARE(tuner.getLineYpos(), 40);
        QCOMPARE(tuner.getPointYpos(), 40);
        QCOMPARE(tuner.getInitByCustomeValue(), false);
        QCOMPARE(tuner.geometry(), QRect(80, 10, 831, 400));
        QVERIFY(!tuner.hasMouseTracking());
        QImage blue(10, 30, QImage::Format_RGB32);
        blue.fill(QColor(0, 0, 255));
        QCOMPARE(tuner.getPointPix().toImage().convertToFormat(QImage::Format_RGB32), blue);
    }

    void theFirstScaleHasItsOwnGeometry()
    {
        const MRadioMovePoint tuner;
        ScaleBkg *scale = scaleOf(tuner);
        QVERIFY(scale);
        QCOMPARE(scale->geometry(), QRect(0, 10, 1500, 200));
        QVERIFY(!scale->isHidden());
        QCOMPARE(scale->getPosByCount(0), 0);
        QCOMPARE(scale->getPosByCount(1), 8); // 800 px for 100 units
        QCOMPARE(scale->getValueByPos(0), 8441); // 23 a unit, two units before 8487
        QCOMPARE(scale->getLine_end(), 8 * 103 + 24); // the units of a width of 831 px
        QCOMPARE(scale->getBeishu(8510), 1); // a tick every 5 units, which are 115
        QCOMPARE(scale->getBeishu(8625), 2);
        QCOMPARE(scale->getBeishu(9200), 3);
    }

    void theFirstNeedleStandsAtTheStartOfTheBand()
    {
        const MRadioMovePoint tuner;
        const MovePoint *needle = needleOf(tuner);
        QVERIFY(needle);
        QVERIFY(!needle->isHidden());
        QCOMPARE(needle->size(), QSize(10, 30));
        QCOMPARE(needle->y(), 40);
        QCOMPARE(middleOf(tuner), 20); // (8500 - 8441) * 8 / 23
    }

    void theFirstNeedleKeepsToTheBand()
    {
        MRadioMovePoint tuner;
        SignalLog log(&tuner);
        touch(&tuner).press(0, 0).release();
        touch(&tuner).press(3000, 0).release();
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("freqChangedSgl(8500)"),
                              QStringLiteral("freqChangedSgl(10800)")}));
    }

    // The needle's lines come with its first move.
    void aNewTunerLogsItsMaking()
    {
        LogRecord log;
        const MRadioMovePoint tuner;
        const QVector<LoggedLine> lines = log.take();
        const QString own = QStringLiteral("MRadioMovePoint::MRadioMovePoint(QWidget*)");
        const QString needles = QStringLiteral("int MovePoint::cacFreqMapPos(int)");
        const QString connects = QStringLiteral("void MRadioMovePoint::connectSignalAndSlots()");
        QStringList functions;
        for (const LoggedLine &line : lines)
            functions += line.function;
        QCOMPARE(functions, (QStringList{own, needles, needles, connects, own}));
        const QString name = QStringLiteral("MRadioMovePoint %1");
        const QString found = QStringLiteral("========================");
        QCOMPARE(lines[0].text, name.arg(lines[0].line));
        QCOMPARE(lines[1].text, found);
        QCOMPARE(lines[2].text, found);
        QCOMPARE(lines[3].text, QStringLiteral("connectSignalAndSlots %1").arg(lines[3].line));
        QCOMPARE(lines[4].text, name.arg(lines[4].line));
        QVERIFY(lines[0].line < lines[4].line);
        for (const LoggedLine &line : lines)
            QCOMPARE(line.file, QStringLiteral("src/mradiomovepoint"));
    }

    void partsGoWithTheTuner()
    {
        auto tuner = std::make_unique<MRadioMovePoint>();
        const QPointer<QWidget> needle(needleOf(*tuner));
        const QPointer<QWidget> scale(scaleOf(*tuner));
        tuner.reset();
        QVERIFY(!needle);
        QVERIFY(!scale);
    }

    void theTunerItselfPaintsNothing()
    {
        MRadioMovePoint tuner;
        QImage image(tuner.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        tuner.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        COMPARE_PICTURES(image, reference(tuner, [](QPainter &) {}));
    }

    void theDefaultTunerDrawsIntegerLabels()
    {
        MRadioMovePoint tuner;
        ScaleBkg &scale = *scaleOf(tuner);
        COMPARE_PICTURES(painted(scale), reference(scale, [&](QPainter &p) {
                             p.setPen(tuner.getLineColor());
                             for (int c = -292; c < 103; c += 5)
                                 p.drawText(QRect(8 * c - 40, 30, 80, 50), Qt::AlignCenter,
                                            QString::number(8441 + 23 * c));
                             for (int c = 0; c < 103; c += 5)
                                 p.drawLine(8 * c, 40 - scale.getHeightByCount(c), 8 * c, 40);
                         }));
    }

    // --- Properties -----------------------------------------------------------------------------

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row = addPlainProperties();
        row("initByCustomeValue", true);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(MRadioMovePoint()); }

    void plainSettersNeitherRepaintNorMove_data() { addPlainProperties(); }

    void plainSettersNeitherRepaintNorMove()
    {
        const char *name = QTest::currentDataTag();
        QFETCH(QVariant, value);
        MRadioMovePoint tuner;
        setUp(tuner);
        show(tuner);
        const QRect needle = needleOf(tuner)->geometry();
        const int first = scaleOf(tuner)->getValueByPos(20);
        QCOMPARE(paints(*scaleOf(tuner), [&] { tuner.setProperty(name, value); }), 0);
        QCOMPARE(needleOf(tuner)->geometry(), needle);
        QCOMPARE(scaleOf(tuner)->getValueByPos(20), first);
    }

    void aNeedlePictureShowsAtOnceInTheOldSize()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        show(tuner);
        QPixmap picture(40, 12);
        picture.fill(Qt::yellow);
        QCOMPARE(paints(*needleOf(tuner), [&] { tuner.setPointPix(picture); }), 1);
        QCOMPARE(tuner.getPointPix().cacheKey(), picture.cacheKey());
        QCOMPARE(needleOf(tuner)->pixmap(Qt::ReturnByValue).cacheKey(), picture.cacheKey());
        QCOMPARE(needleOf(tuner)->size(), QSize(10, 30));
    }

    void eitherValueAppliesAllProperties()
    {
        for (const bool value : {true, false}) {
            MRadioMovePoint tuner;
            setUp(tuner);
            tuner.setFreqStart(522);
            tuner.setFreqEnd(1620);
            tuner.setFreqStep(9);
            tuner.setSuggestFreqStart(600);
            tuner.setSuggestFreqEnd(1600);
            tuner.setPointYpos(33);
            tuner.setPixCountMeta(2);
            tuner.setInitByCustomeValue(value);
            QCOMPARE(tuner.getInitByCustomeValue(), value);
            ScaleBkg &scale = *scaleOf(tuner);
            QCOMPARE(scale.geometry(), QRect(0, 10, 900, 110));
            QCOMPARE(scale.getValueByPos(20), 500);
            QCOMPARE(scale.getBeishu(600), 3);
            QCOMPARE(needleOf(tuner)->y(), 33);
            QCOMPARE(middleOf(tuner), 20 + 22 * 8 / 10);
        }
    }

    void applyingRepaintsTheTuner()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        show(tuner);
        QCOMPARE(paints(tuner, [&] { tuner.setInitByCustomeValue(true); }), 1);
        QCOMPARE(paints(*scaleOf(tuner), [&] { tuner.setInitByCustomeValue(true); }), 1);
    }

    void anAppliedNeedleKeepsToTheBandAsItWasGiven()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        tuner.setFreqStart(8757);
        tuner.setFreqEnd(10793);
        tuner.setInitByCustomeValue(true);
        SignalLog log(&tuner);
        touch(&tuner).press(0, 0).release();
        touch(&tuner).press(3000, 0).release();
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("freqChangedSgl(8757)"),
                              QStringLiteral("freqChangedSgl(10790)")}));
        // The upper end is no step, and no pixel has it; beyond them the band has it.
        QCOMPARE(needleOf(tuner)->cacPosMapFreq(3000), 10793);
    }

    void applyingHandsOnEachCount()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        setOwnCounts(tuner);
        tuner.setInitByCustomeValue(true);
        checkOwnCounts(*scaleOf(tuner));
    }

    void theBandTypeDecidesHowLabelsAreWritten()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        const QImage fm = painted(*scaleOf(tuner));
        tuner.setBandType(MRadioMovePoint::AM);
        QCOMPARE(painted(*scaleOf(tuner)), fm);
        tuner.setInitByCustomeValue(true);
        QVERIFY(painted(*scaleOf(tuner)) != fm);
    }

    // --- Touches --------------------------------------------------------------------------------

    void aDragReportsOnceOnRelease()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        SignalLog log(&tuner);
        Touch finger = touch(&tuner);
        finger.press(100, 60);
        QCOMPARE(middleOf(tuner), 40); // a press moves nothing
        finger.moveTo(300, 60);
        QCOMPARE(middleOf(tuner), 300);
        finger.moveTo(482, 60);
        QCOMPARE(middleOf(tuner), 480);
        QCOMPARE(log.take(), QStringList());
        finger.release();
        QCOMPARE(log.take(), QStringList{QStringLiteral("freqChangedSgl(9850)")});
    }

    void aTapTunesOnRelease()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        SignalLog log(&tuner);
        touch(&tuner).tap(300, 5);
        QCOMPARE(middleOf(tuner), 300);
        QCOMPARE(log.take(), QStringList{QStringLiteral("freqChangedSgl(9400)")});
    }

    // A press has no handler of its own.
    void onlyAPressGoesOnToTheParentAndNothingAsksForASound()
    {
        Parent parent;
        MRadioMovePoint tuner(&parent);
        setUp(tuner);
        SignalLog log(&tuner);
        touch(&tuner).press(100, 60).moveTo(300, 60).release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), QStringList{QStringLiteral("freqChangedSgl(9400)")});
        QCOMPARE(parent.events, QStringList{QStringLiteral("press")});
    }

    void touchesOnTheScaleReachTheTuner()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        SignalLog log(&tuner);
        touch(scaleOf(tuner)).press(100, 5).moveTo(200, 5).release();
        QCOMPARE(log.take(), QStringList{QStringLiteral("freqChangedSgl(9150)")});
    }

    void aDragStepPaintsTheScaleOnce()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        show(tuner);
        Touch finger = touch(&tuner);
        finger.press(200, 60);
        finger.moveTo(240, 60);
        QCoreApplication::processEvents();
        QCOMPARE(paints(*scaleOf(tuner), [&] { finger.moveTo(280, 60); }), 1);
        QCOMPARE(paints(*scaleOf(tuner), [&] { finger.moveTo(281, 60); }), 0); // the same station
    }

    void everyStepOfEveryBandIsTunedAndReported_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < int(std::size(kRadioBands)); ++row)
            QTest::newRow(kRadioBands[row].name) << row;
    }

    // With ten pixels for a step each station has its own; 200 stations are beyond any screen, but
    // not beyond a needle.
    void everyStepOfEveryBandIsTunedAndReported()
    {
        QFETCH(int, row);
        const RadioBand &band = kRadioBands[row];
        MRadioMovePoint tuner;
        tuner.setBandType(band.isFM ? MRadioMovePoint::FM : MRadioMovePoint::AM);
        tuner.setFreqStart(band.start);
        tuner.setFreqEnd(band.end);
        tuner.setFreqStep(band.step);
        tuner.setSuggestFreqStart(0);
        tuner.setSuggestFreqEnd(band.step * 100);
        tuner.setLineStart(0);
        tuner.setLineEnd(1000);
        tuner.setInitByCustomeValue(true);
        const int first = band.start / band.step * band.step - 2 * band.step;
        SignalLog log(&tuner);
        for (int freq = band.start; freq <= band.end; freq += band.step) {
            const int onGrid = freq / band.step * band.step;
            const int pos = (freq - first) * 10 / band.step;
            tuner.curFreqChangedSlot(float(freq));
            QCOMPARE(log.take(), QStringList());
            if (onGrid == freq)
                QCOMPARE(middleOf(tuner), pos);
            touch(&tuner).tap(pos, 0);
            QCOMPARE(log.take(),
                     QStringList{
                         QStringLiteral("freqChangedSgl(%1)").arg(std::max(onGrid, band.start))});
        }
    }

    // --- Slots ----------------------------------------------------------------------------------

    void theNeedlesReportIsLoggedTwiceAndPassedOn()
    {
        MRadioMovePoint tuner;
        SignalLog signalLog(&tuner);
        LogRecord log;
        tuner.freqChanged(9870, false);
        QVector<LoggedLine> lines = log.take();
        QCOMPARE(lines.size(), 2);
        for (const LoggedLine &line : qAsConst(lines)) {
            QCOMPARE(line.text, QStringLiteral("freqChanged %1").arg(line.line));
            QCOMPARE(line.file, QStringLiteral("src/mradiomovepoint"));
            QCOMPARE(line.function, QStringLiteral("void MRadioMovePoint::freqChanged(int, bool)"));
        }
        QVERIFY(lines[0].line < lines[1].line);
        tuner.freqChanged(-3, true);
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(signalLog.take(),
                 (QStringList{QStringLiteral("freqChangedSgl(9870)"),
                              QStringLiteral("freqChangedSgl(-3)")}));
    }

    void connectingLogsItsLine()
    {
        MRadioMovePoint tuner;
        LogRecord log;
        tuner.connectSignalAndSlots();
        const QVector<LoggedLine> lines = log.take();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].text, QStringLiteral("connectSignalAndSlots %1").arg(lines[0].line));
    }

    void connectingTwiceReportsTwice()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        SignalLog log(&tuner);
        tuner.connectSignalAndSlots();
        touch(&tuner).tap(300, 5);
        const QString report = QStringLiteral("freqChangedSgl(9400)");
        QCOMPARE(log.take(), (QStringList{report, report}));
    }

    void anExternalFrequencyIsTruncatedAndSilent()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        SignalLog log(&tuner);
        tuner.curFreqChangedSlot(9850.9F);
        QCOMPARE(middleOf(tuner), 480);
        tuner.curFreqChangedSlot(20000.0F);
        QCOMPARE(middleOf(tuner), 860);
        tuner.curFreqChangedSlot(98.5F); // not scaled: far below the band
        QCOMPARE(middleOf(tuner), 40);
        QCOMPARE(log.take(), QStringList());
    }

    void theFourArgumentSlotScalesAm()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        tuner.freqParamChangedSlot(false, 53.1F, 160.2F, 0.9F);
        QCOMPARE(needleOf(tuner)->cacPosMapFreq(-999999),
                 531); // 53.1 * 10 is 531 in single precision
        QCOMPARE(scaleOf(tuner)->getValueByPos(20), 529);
        tuner.freqParamChangedSlot(true, 8750.9F, 10800.0F, 10.0F);
        QCOMPARE(scaleOf(tuner)->getValueByPos(20), 8748); // truncated
    }

    void theFourArgumentSlotLeavesTheScaleWithoutWidth()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        tuner.curFreqChangedSlot(9850.0F);
        tuner.setPointYpos(12);
        tuner.freqParamChangedSlot(true, 7600.0F, 9500.0F, 10.0F);
        ScaleBkg &scale = *scaleOf(tuner);
        QCOMPARE(scale.getLine_start(), 20);
        QCOMPARE(scale.getPosByCount(500), 20);
        QCOMPARE(scale.getLine_end(), 20);
        QCOMPARE(scale.getBeishu(7600), 3); // 10, 5 and 2 whatever the properties are
        QCOMPARE(scale.getBeishu(7650), 2);
        QCOMPARE(scale.getBeishu(7610), 1);
        QCOMPARE(middleOf(tuner), 480); // the needle stays
        QCOMPARE(needleOf(tuner)->y(), 12);
        QCOMPARE(needleOf(tuner)->cacPosMapFreq(480), 7600);
        QCOMPARE(tuner.getFreqStart(), 8750); // and so do the properties
        QCOMPARE(tuner.getFreqEnd(), 10800);
        QCOMPARE(tuner.getBandType(), MRadioMovePoint::FM);
        for (int y = 0; y < 110; ++y)
            QCOMPARE(qAlpha(painted(*scaleOf(tuner)).pixel(300, y)), 0);
    }

    void theEightArgumentSlotLaysTheScaleOut()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        tuner.setPixCountMeta(2);
        tuner.setFreqStart(800);
        tuner.freqParamChangedSlot(false, 522.9F, 1620.9F, 9.9F, 40, 840, 600, 1600);
        ScaleBkg &scale = *scaleOf(tuner);
        QCOMPARE(scale.getLine_start(), 40);
        QCOMPARE(scale.getPosByCount(1), 48);
        QCOMPARE(scale.getValueByPos(40), 500); // no scaling
        QCOMPARE(scale.getBeishu(600), 3); // the stride of the property
        QCOMPARE(middleOf(tuner), 40 + 300 * 8 / 10 + 1); // the property: 800 is at 801
        QCOMPARE(needleOf(tuner)->cacPosMapFreq(0), 522);
        QCOMPARE(needleOf(tuner)->cacPosMapFreq(5000), 1620);
        QCOMPARE(tuner.getFreqStart(), 800);
        QCOMPARE(tuner.getFreqEnd(), 10800);
        QCOMPARE(tuner.getLineStart(), 20);
    }

    void theEightArgumentSlotHandsOnEachCount()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        setOwnCounts(tuner);
        tuner.freqParamChangedSlot(true, 8750.0F, 10800.0F, 10.0F, 20, 820, 8750, 10750);
        checkOwnCounts(*scaleOf(tuner));
    }

    void bandsRepaintTheTuner()
    {
        MRadioMovePoint tuner;
        setUp(tuner);
        show(tuner);
        QCOMPARE(paints(tuner, [&] { tuner.freqParamChangedSlot(true, 8800, 9000, 10); }), 1);
        QCOMPARE(paints(tuner,
                        [&] { tuner.freqParamChangedSlot(true, 8800, 9000, 10, 20, 820, -1, -1); }),
                 1);
    }

    // --- Robustness -----------------------------------------------------------------------------

    void noNumberIsHarmful()
    {
        using Float = std::numeric_limits<float>;
        const float hostile[] = {Float::quiet_NaN(),
                                 Float::infinity(),
                                 -Float::infinity(),
                                 Float::max(),
                                 -1e9F,
                                 -1.0F,
                                 -0.0F,
                                 Float::denorm_min(),
                                 0.1F,
                                 1e9F};
        MRadioMovePoint tuner;
        setUp(tuner);
        const QImage before = painted(tuner);
        for (const float a : hostile) {
            for (const float b : {Float::quiet_NaN(), -1.0F, 0.1F}) {
                for (const bool isFM : {true, false}) {
                    tuner.freqParamChangedSlot(isFM, a, b, a);
                    QVERIFY(recordedBytes(tuner) < 1000000);
                    tuner.freqParamChangedSlot(isFM, a, b, b, 20, 820, -1, -1);
                    tuner.curFreqChangedSlot(a);
                    QVERIFY(recordedBytes(tuner) < 1000000);
                    touch(&tuner).press(5, 5).moveTo(INT_MAX / 2, 0).release();
                    tuner.setInitByCustomeValue(true);
                    COMPARE_PICTURES(painted(tuner), before); // none of it stays
                }
            }
        }
    }

    void aTunerMayBeDeletedByItsReport()
    {
        auto *tuner = new MRadioMovePoint;
        const QPointer<MRadioMovePoint> guard(tuner);
        connect(tuner, &MRadioMovePoint::freqChangedSgl, tuner, [tuner] { delete tuner; });
        touch(tuner).tap(100, 100);
        QVERIFY(!guard);
    }
};

WIDGET_TEST_MAIN(tst_MRadioMovePoint)
#include "tst_mradiomovepoint.moc"
