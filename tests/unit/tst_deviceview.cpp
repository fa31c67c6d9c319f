// SPDX-License-Identifier: Apache-2.0
#include "detail/deviceview.h"

#include "widgettest.h"

#include <QImage>
#include <QPainter>
#include <QPicture>

#include <limits>

using namespace panelkit;

using Prepare = std::function<void(QPainter &)>;
Q_DECLARE_METATYPE(Prepare)

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

    void aHundredthOfAPixelIsStillRounding()
    {
        QVERIFY(isWholePixels(0.01) && isWholePixels(-0.01));
        QVERIFY(!isWholePixels(0.0101) && !isWholePixels(-0.0101));
    }

    void viewsAreTheSameThatShowTheSame()
    {
        QImage image(50, 40, QImage::Format_RGB32);
        QImage higher(50, 41, QImage::Format_RGB32);
        QImage dense(50, 40, QImage::Format_RGB32);
        dense.setDevicePixelRatio(2);
        QPicture picture;
        const QPainter painter(&image);
        const QPainter onHigher(&higher);
        const QPainter onDense(&dense);
        const QPainter onPicture(&picture);
        const DeviceView view(painter);
        QVERIFY(view == DeviceView(painter));
        QVERIFY(!(view == DeviceView(onHigher)));
        QVERIFY(!(view == DeviceView(onDense)));
        QVERIFY(!(view == DeviceView(onPicture)));
        QVERIFY(DeviceView(onPicture) == DeviceView());
    }

    void pixelsAreCopiedWhereTheyComeOutAsTheyAre_data()
    {
        QTest::addColumn<Prepare>("around");
        QTest::addColumn<Prepare>("own");
        QTest::addColumn<bool>("expected");
        const auto row = [](
                             const char *name, bool isCopied, const Prepare &around,
                             const Prepare &own = [](QPainter &) {}) {
            QTest::newRow(name) << around << own << isCopied;
        };
        const Prepare none = [](QPainter &) {};
        row("plain", true, none);
        row("at its place", true, [](QPainter &p) { p.translate(7, 5); });
        row("between two", false, [](QPainter &p) { p.translate(qreal(0.4), 0); });
        row("between two rows", false, [](QPainter &p) { p.translate(0, qreal(-0.3)); });
        row("wider", false, [](QPainter &p) { p.scale(qreal(1.5), 1); });
        row("taller", false, [](QPainter &p) { p.scale(1, qreal(1.5)); });
        row("slanted", false, [](QPainter &p) { p.shear(qreal(0.5), 0); });
        row("sloping", false, [](QPainter &p) { p.shear(0, qreal(0.5)); });
        row("turned by itself", true, none, [](QPainter &p) { p.rotate(30); });
        row("between two by itself", true, none, [](QPainter &p) { p.translate(qreal(0.4), 0); });
        row("opacity", false, none, [](QPainter &p) { p.setOpacity(0.5); });
        row("composition", false, none,
            [](QPainter &p) { p.setCompositionMode(QPainter::CompositionMode_Multiply); });
        row("window", false, none, [](QPainter &p) { p.setWindow(0, 0, 50, 40); });
    }

    // Of a widget that is rendered through a painter.
    void pixelsAreCopiedWhereTheyComeOutAsTheyAre()
    {
        class Asker : public QWidget
        {
        public:
            Prepare own;
            bool isCopied = false;

        protected:
            void paintEvent(QPaintEvent *) override
            {
                QPainter painter(this);
                own(painter);
                isCopied = copiesPixels(painter);
            }
        };
        QFETCH(Prepare, around);
        QFETCH(Prepare, own);
        Asker asker;
        asker.resize(50, 40);
        asker.own = own;
        QImage image(asker.size(), QImage::Format_RGB32);
        QPainter painter(&image);
        around(painter);
        asker.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
        QTEST(asker.isCopied, "expected");
    }

    void pixelsOfOtherDevicesAreNotCopied()
    {
        QPicture picture;
        const QPainter onPicture(&picture);
        QVERIFY(!copiesPixels(onPicture));
        QImage dense(50, 40, QImage::Format_RGB32);
        dense.setDevicePixelRatio(2);
        const QPainter onDense(&dense);
        QVERIFY(!copiesPixels(onDense));
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
