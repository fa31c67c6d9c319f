// SPDX-License-Identifier: Apache-2.0
#include "detail/fonts.h"

#include "widgettest.h"

#include <QApplication>

#include <climits>

using namespace panelkit;

class tst_Fonts : public WidgetTest
{
    Q_OBJECT

private slots:
    void resizedChangesNothingButTheSize()
    {
        QFont font(QStringLiteral("DejaVu Serif"), 31);
        font.setBold(true);
        const QFont large = resized(font, 40);
        QCOMPARE(large.pixelSize(), 40);
        QCOMPARE(large.family(), font.family());
        QVERIFY(large.bold());
    }

    void noFontIsSmallerThanAPixel()
    {
        const QFont font(QStringLiteral("DejaVu Serif"), 31);
        for (const int px : {0, -1, INT_MIN})
            QCOMPARE(resized(font, px), font);
    }

    void aPainterTakesNothingFromItsWidgetForTheApplicationFont()
    {
        QFont other(QStringLiteral("DejaVu Serif"), 31); // a painter resolves with such a font
        other.setItalic(true);
        QFont expected;
        expected.setPixelSize(17);
        QCOMPARE(applicationFont(17).resolve(other), expected);
        QCOMPARE(applicationFont(0).resolve(other), QFont());
    }

    void theApplicationFontFollowsTheApplication()
    {
        const QFont before = QApplication::font();
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans Mono")));
        const QString family = applicationFont(17).family();
        QApplication::setFont(before);
        QCOMPARE(family, QStringLiteral("DejaVu Sans Mono"));
    }
};

WIDGET_TEST_MAIN(tst_Fonts)
#include "tst_fonts.moc"
