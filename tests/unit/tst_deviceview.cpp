// SPDX-License-Identifier: Apache-2.0
#include "detail/deviceview.h"

#include "widgettest.h"

#include <QImage>
#include <QPainter>
#include <QPicture>

#include <limits>

using namespace panelkit;

class tst_DeviceView : public WidgetTest
{
    Q_OBJECT

private slots:
    void onlyWhatReachesTheDeviceIsShown()
    {
        QImage image(50, 40, QImage::Format_RGB32);
        const QPainter painter(&image);
        const DeviceView view(painter);
        const QTransform none;
        QVERIFY(view.shows(none, QRectF(0, 0, 50, 40)));
        QVERIFY(view.shows(none, QRectF(-10, 0, 10.5, 9)));
        QVERIFY(!view.shows(none, QRectF(-10, 0, 10, 9)));
        QVERIFY(view.shows(none, QRectF(49.5, 0, 9, 9)));
        QVERIFY(!view.shows(none, QRectF(50, 0, 9, 9)));
        QVERIFY(!view.shows(none, QRectF(0, -9, 9, 9)));
        QVERIFY(!view.shows(none, QRectF(0, 40, 9, 9)));
    }

    void areasAreThoseOfTheTransform()
    {
        QImage image(50, 40, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.translate(7, 7); // the painter's own transform does not count
        const DeviceView view(painter);
        QVERIFY(view.shows(QTransform::fromTranslate(45, 0), QRectF(0, 0, 9, 9)));
        QVERIFY(!view.shows(QTransform::fromTranslate(55, 0), QRectF(0, 0, 9, 9)));
        QVERIFY(!view.shows(QTransform().rotate(180), QRectF(0, 0, 9, 9)));
    }

    void whatIsNoNumberIsNotShown()
    {
        QImage image(50, 40, QImage::Format_RGB32);
        const QPainter painter(&image);
        const qreal nan = std::numeric_limits<qreal>::quiet_NaN();
        QVERIFY(!DeviceView(painter).shows({}, QRectF(nan, 0, 9, 9)));
        QVERIFY(!DeviceView(painter).shows({}, QRectF(0, nan, 9, 9)));
        QVERIFY(!DeviceView(painter).shows(QTransform(1, 0, 0, 1, nan, 0), QRectF(0, 0, 9, 9)));
    }

    void pixelsAreMetByWholeStepsOnly_data()
    {
        QTest::addColumn<QTransform>("transform");
        QTest::addColumn<bool>("expected");
        QTest::newRow("none") << QTransform() << true;
        QTest::newRow("whole") << QTransform::fromTranslate(-7, 300) << true;
        QTest::newRow("rounded") << QTransform::fromTranslate(qreal(7.004), qreal(-0.004)) << true;
        QTest::newRow("between two") << QTransform::fromTranslate(qreal(7.02), 0) << false;
        QTest::newRow("between two rows") << QTransform::fromTranslate(0, -0.5) << false;
        QTest::newRow("larger") << QTransform::fromScale(2, 2) << false;
        QTest::newRow("turned") << QTransform().rotate(90) << false;
    }

    void pixelsAreMetByWholeStepsOnly()
    {
        QFETCH(QTransform, transform);
        QImage image(50, 40, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setTransform(transform);
        QTEST(isOnPixels(painter), "expected");
    }

    void whatIsNoNumberIsNoWholeNumber()
    {
        QVERIFY(!isWholePixels(std::numeric_limits<double>::quiet_NaN()));
        QVERIFY(!isWholePixels(std::numeric_limits<double>::infinity()));
        QVERIFY(isWholePixels(-1e300));
    }

    void otherDevicesShowEverything()
    {
        QPicture picture;
        QPainter painter(&picture);
        QVERIFY(DeviceView(painter).shows({}, QRectF(1e6, 1e6, 1, 1)));
        const QPainter idle;
        QVERIFY(DeviceView(idle).shows({}, QRectF(1e6, 1e6, 1, 1)));
    }
};

WIDGET_TEST_MAIN(tst_DeviceView)
#include "tst_deviceview.moc"
