// SPDX-License-Identifier: Apache-2.0
#include "steadypicture.h"
#include "textcanvas.h"
#include "widgettest.h"

#include <QLabel>

class SteadyPictureTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void largeDigitsDoNotDependOnTheLastNewLetter_data();
    void largeDigitsDoNotDependOnTheLastNewLetter();
};

void SteadyPictureTest::largeDigitsDoNotDependOnTheLastNewLetter_data()
{
    QTest::addColumn<bool>("isBold");
    QTest::newRow("regular") << false;
    QTest::newRow("bold") << true;
}

// As they do without it: where that is no longer so, it is no longer needed.
void SteadyPictureTest::largeDigitsDoNotDependOnTheLastNewLetter()
{
    QFETCH(bool, isBold);
    QLabel label(QStringLiteral("98.50"));
    QFont font = label.font();
    font.setBold(isBold);
    font.setPixelSize(80);
    label.setFont(font);
    WidgetTest::show(label);
    const QImage steady = steadyPicture(label);
    COMPARE_PICTURES(label.grab().toImage(), steady);
    renderNewLetter(font, 31, 0.75);
    QVERIFY(label.grab().toImage() != steady);
    COMPARE_PICTURES(steadyPicture(label), steady);
}

WIDGET_TEST_MAIN(SteadyPictureTest)
#include "tst_steadypicture.moc"
