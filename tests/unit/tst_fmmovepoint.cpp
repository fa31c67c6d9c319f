// SPDX-License-Identifier: Apache-2.0
#include <FmMovePoint>

#include "signallog.h"
#include "widgettest.h"

class tst_FmMovePoint : public WidgetTest
{
    Q_OBJECT

private slots:
    void itIsAMovePointThatIsNotForAm()
    {
        MRadioMovePoint owner;
        QPixmap pixmap(10, 30);
        pixmap.fill(Qt::red);
        FmMovePoint needle(20, 8700, 8750, 10, 10800, {8, 20}, &pixmap, &owner);
        QVERIFY(!static_cast<MovePoint &>(needle).isAm());
        QCOMPARE(needle.size(), QSize(10, 30));
        needle.moveByFreq(9850);
        QCOMPARE(needle.x(), 475);
        SignalLog log(&needle);
        needle.emitFreq();
        QCOMPARE(log.take(), QStringList{QStringLiteral("freqChanged(9850, false)")});
    }

    void aTunersNeedleIsOne()
    {
        const MRadioMovePoint tuner;
        QVERIFY(dynamic_cast<FmMovePoint *>(tuner.findChild<MovePoint *>()));
    }
};

WIDGET_TEST_MAIN(tst_FmMovePoint)
#include "tst_fmmovepoint.moc"
