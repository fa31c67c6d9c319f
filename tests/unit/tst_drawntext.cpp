// SPDX-License-Identifier: Apache-2.0
#include "detail/drawntext.h"

#include "widgettest.h"

#include <QFont>

using namespace panelkit;

class tst_DrawnText : public WidgetTest
{
    Q_OBJECT

private slots:
    void onlyWhatStandsForItselfIsPlain()
    {
        for (const ushort c :
             {ushort('a'), ushort(' '), ushort(0x00ad), ushort(0x0301), ushort(0x4e2d)})
            QVERIFY2(isPlain(QChar(c)), qPrintable(QString::number(c, 16)));
        for (const ushort c :
             {ushort('\n'), ushort('\t'), ushort(0x0000), ushort(0x2028), ushort(0x2029)})
            QVERIFY2(!isPlain(QChar(c)), qPrintable(QString::number(c, 16)));
    }

    void eachDecorationCounts()
    {
        QFont font;
        QVERIFY(!isDecorated(font));
        font.setUnderline(true);
        QVERIFY(isDecorated(font));
        font = QFont();
        font.setStrikeOut(true);
        QVERIFY(isDecorated(font));
        font = QFont();
        font.setOverline(true);
        QVERIFY(isDecorated(font));
    }

    void theSpareWidthIsSharedByTheVisualSides()
    {
        const auto leftToRight = Qt::LeftToRight;
        const auto rightToLeft = Qt::RightToLeft;
        QCOMPARE(leftShare(leftToRight, Qt::AlignLeft, 9), qreal(0));
        QCOMPARE(leftShare(leftToRight, Qt::AlignVCenter, 9), qreal(0));
        QCOMPARE(leftShare(leftToRight, Qt::AlignCenter, 9), qreal(4.5));
        QCOMPARE(leftShare(leftToRight, Qt::AlignRight, 9), qreal(9));
        QCOMPARE(leftShare(rightToLeft, Qt::AlignLeft, 9), qreal(9));
        QCOMPARE(leftShare(rightToLeft, Qt::AlignVCenter, 9), qreal(9));
        QCOMPARE(leftShare(rightToLeft, Qt::AlignLeft | Qt::AlignAbsolute, 9), qreal(0));
        QCOMPARE(leftShare(rightToLeft, Qt::AlignRight, 9), qreal(0));
        QCOMPARE(leftShare(rightToLeft, Qt::AlignHCenter, -9), qreal(-4.5));
    }

    void linesBeginOnA64thTowardZero()
    {
        QCOMPARE(lineStart(QPointF(qreal(1.99 / 64), qreal(-1.99 / 64))),
                 QPointF(qreal(1.0 / 64), qreal(-1.0 / 64)));
        QCOMPARE(lineStart(QPointF(7, qreal(-2.5))), QPointF(7, qreal(-2.5)));
    }
};

WIDGET_TEST_MAIN(tst_DrawnText)
#include "tst_drawntext.moc"
