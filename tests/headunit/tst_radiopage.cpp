// SPDX-License-Identifier: Apache-2.0
#include "dress.h"
#include "models/samples.h"
#include "pages/radio.h"
#include "pagetest.h"
#include "steadypicture.h"
#include "touch.h"
#include "virtualtime.h"

#include <mkarvoslider.h>
#include <mpresetbutton.h>
#include <mradiomovepoint.h>
#include <mradioslider.h>
#include <mselectbutton.h>
#include <spiconbutton.h>
#include <sprollingtext.h>

#include <QStackedWidget>

#include <memory>

using namespace headunit;

namespace
{

struct Radio : PageWorld {
    Radio()
    {
        stations.load(samples::stationsFile());
        tuner.setFrequency(9850); // City Wave
        openPage();
    }

    void openPage()
    {
        page = std::make_unique<RadioPage>(context);
        showPage(screen, *page);
    }
    template <typename Widget> Widget *child(const char *name) const
    {
        return page->findChild<Widget *>(QLatin1String(name));
    }
    MPresetButton *preset(int place) const
    {
        return page->findChild<MPresetButton *>(QStringLiteral("preset%1").arg(place + 1));
    }
    void tap(QWidget *key) { touch(key).tap(key->width() / 2, key->height() / 2); }
    void showScale(int scale)
    {
        while (child<QStackedWidget>("scales")->currentIndex() != scale)
            tap(child<QWidget>("scaleKey"));
    }

    std::unique_ptr<RadioPage> page;
};

} // namespace

class RadioPageTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void bandKeysChooseTheBand();
    void displayFollowsTheTuner();
    void rollingTextRunsInItsOwnDirection();
    void touchOnAPresetTunes();
    void longPressStores();
    void presetSaysItsFrequencyOnce();
    void emptyPresetDoesNothing();
    void seekStepAndScan();
    void heldStepKeyRepeats();
    void scaleKeyCyclesAndIsRemembered();
    void scalesFollowTheTuner_data();
    void scalesFollowTheTuner();
    void needleTunes_data();
    void needleTunes();
    void tapeTunes();
    void tapeComesBackToItsFrequency();
    void pointerTunes_data();
    void pointerTunes();
    void needlesLeaveTheNumbersFree_data();
    void needlesLeaveTheNumbersFree();
    void idlePageDoesNothing();
};

void RadioPageTest::bandKeysChooseTheBand()
{
    Radio radio;
    radio.tap(radio.child<QWidget>("amKey"));
    QCOMPARE(radio.tuner.band(), Band::Am);
    QVERIFY(radio.child<MSelectButton>("amKey")->selectState());
    QVERIFY(!radio.child<MSelectButton>("fmKey")->selectState());
    radio.tap(radio.child<QWidget>("fmKey"));
    QCOMPARE(radio.tuner.band(), Band::Fm);
    QVERIFY(radio.child<MSelectButton>("fmKey")->selectState());
}

void RadioPageTest::displayFollowsTheTuner()
{
    Radio radio;
    QVERIFY(radio.child<QLabel>("frequency")->text().contains(radio.tuner.frequencyText()));
    QCOMPARE(radio.child<SpRollingText>("station")->text(), QStringLiteral("City Wave"));
    radio.tuner.setFrequency(10340);
    QVERIFY(radio.child<QLabel>("frequency")->text().contains(radio.tuner.frequencyText()));
    QCOMPARE(radio.child<SpRollingText>("station")->text(), QStringLiteral("Pulse"));
    QCOMPARE(radio.child<SpRollingText>("radioText")->text(), radio.tuner.radioText());
    radio.tuner.setFrequency(10350);
    QCOMPARE(radio.child<SpRollingText>("station")->text(), QStringLiteral("No station"));
    QCOMPARE(radio.child<SpRollingText>("radioText")->text(), QString());
    QVERIFY(!radio.child<SpRollingText>("radioText")->isVisible());
    QVERIFY(!radio.child<QLabel>("badge")->isVisible());
}

// The blanks between the end of a text and its start follow its end, and not the language's.
void RadioPageTest::rollingTextRunsInItsOwnDirection()
{
    Radio radio;
    radio.page->setLayoutDirection(Qt::RightToLeft);
    radio.tuner.setFrequency(9600); // its text is too long
    auto *text = radio.child<SpRollingText>("radioText");
    QVERIFY(QFontMetrics(text->font()).horizontalAdvance(text->text()) > text->width());
    QCOMPARE(text->layoutDirection(), Qt::LeftToRight);
    SpRollingText title;
    showRolling(title, QStringLiteral("العربية"));
    QCOMPARE(title.layoutDirection(), Qt::RightToLeft);
}

void RadioPageTest::touchOnAPresetTunes()
{
    Radio radio;
    radio.tap(radio.preset(1));
    QCOMPARE(radio.tuner.frequency(), 8930);
    for (int place = 0; place < Tuner::kPresets; ++place)
        QCOMPARE(radio.preset(place)->isChecked(), place == 1);
    radio.tuner.setFrequency(8940);
    QVERIFY(!radio.preset(1)->isChecked());
}

void RadioPageTest::longPressStores()
{
    Radio radio;
    radio.tuner.setFrequency(10350);
    touch(radio.preset(2)).press(20, 20).hold(1500).release();
    QCOMPARE(radio.tuner.preset(2), 10350);
    QCOMPARE(radio.tuner.frequency(), 10350); // and nothing has been recalled
    QCOMPARE(radio.preset(2)->displayText2(), QStringLiteral("Stored"));
    QVERIFY(radio.preset(2)->isChecked());
    touch(radio.preset(3)).press(20, 20).hold(1500).release();
    QVERIFY(radio.preset(2)->displayText2() != QStringLiteral("Stored"));
    QCOMPARE(radio.preset(3)->displayText2(), QStringLiteral("Stored"));
    virtualtime::advance(1500);
    QCOMPARE(radio.preset(3)->displayText2(), QStringLiteral("MHz"));
}

void RadioPageTest::presetSaysItsFrequencyOnce()
{
    Radio radio;
    radio.tuner.setFrequency(8930);
    radio.tuner.storePreset(0);
    QCOMPARE(radio.preset(0)->displayText(), QStringLiteral("Radio Larch"));
    QCOMPARE(radio.preset(0)->displayText2(), Tuner::textOf(Band::Fm, 8930));
    radio.tuner.setFrequency(10350); // there is no station
    radio.tuner.storePreset(0);
    QCOMPARE(radio.preset(0)->displayText(), Tuner::textOf(Band::Fm, 10350));
    QCOMPARE(radio.preset(0)->displayText2(), QStringLiteral("MHz"));
}

void RadioPageTest::emptyPresetDoesNothing()
{
    Radio radio;
    radio.tap(radio.child<QWidget>("amKey"));
    const int before = radio.tuner.frequency();
    QCOMPARE(radio.tuner.preset(11), 0);
    radio.tap(radio.preset(11));
    QCOMPARE(radio.tuner.frequency(), before);
    QVERIFY(!radio.preset(11)->isChecked());
    QCOMPARE(radio.preset(11)->displayText(), QStringLiteral("Empty"));
}

void RadioPageTest::seekStepAndScan()
{
    Radio radio;
    radio.tap(radio.child<QWidget>("seekUpKey"));
    QCOMPARE(radio.tuner.frequency(), 10010);
    radio.tap(radio.child<QWidget>("seekDownKey"));
    QCOMPARE(radio.tuner.frequency(), 9850);
    radio.tap(radio.child<QWidget>("stepUpKey"));
    QCOMPARE(radio.tuner.frequency(), 9860);
    radio.tap(radio.child<QWidget>("stepDownKey"));
    QCOMPARE(radio.tuner.frequency(), 9850);
    radio.tap(radio.child<QWidget>("scanKey"));
    QVERIFY(radio.tuner.isScanning());
    QVERIFY(radio.child<SpIconButton>("scanKey")->isFocus());
    radio.tap(radio.child<QWidget>("scanKey"));
    QVERIFY(!radio.tuner.isScanning());
    QVERIFY(!radio.child<SpIconButton>("scanKey")->isFocus());
}

void RadioPageTest::heldStepKeyRepeats()
{
    Radio radio;
    Touch finger = touch(radio.child<QWidget>("stepUpKey"));
    finger.press(20, 20).hold(1000);
    QCOMPARE(radio.tuner.frequency(), 9860);
    finger.hold(500);
    const int reached = radio.tuner.frequency();
    QVERIFY(reached >= 9890);
    finger.release().hold(1000);
    QCOMPARE(radio.tuner.frequency(), reached);
}

void RadioPageTest::scaleKeyCyclesAndIsRemembered()
{
    Radio radio;
    const auto shown = [&radio] { return radio.child<QStackedWidget>("scales")->currentWidget(); };
    QVERIFY(qobject_cast<MRadioMovePoint *>(shown()));
    radio.tap(radio.child<QWidget>("scaleKey"));
    QVERIFY(qobject_cast<MRadioSlider *>(shown()));
    radio.tap(radio.child<QWidget>("scaleKey"));
    QVERIFY(qobject_cast<MKARVOSlider *>(shown()));
    radio.openPage();
    QVERIFY(qobject_cast<MKARVOSlider *>(shown()));
    radio.tap(radio.child<QWidget>("scaleKey"));
    QVERIFY(qobject_cast<MRadioMovePoint *>(shown()));
}

void RadioPageTest::scalesFollowTheTuner_data()
{
    QTest::addColumn<Band>("band");
    QTest::addColumn<int>("frequency");
    QTest::newRow("FM, first") << Band::Fm << 8750;
    QTest::newRow("FM, odd") << Band::Fm << 9930;
    QTest::newRow("FM, last") << Band::Fm << 10800;
    QTest::newRow("AM, first") << Band::Am << 522;
    QTest::newRow("AM, somewhere") << Band::Am << 1089;
    QTest::newRow("AM, last") << Band::Am << 1620;
}

void RadioPageTest::scalesFollowTheTuner()
{
    QFETCH(Band, band);
    QFETCH(int, frequency);
    Radio radio;
    radio.tuner.setBand(band);
    radio.tuner.setFrequency(frequency);
    const float shown = band == Band::Fm ? float(frequency) / 100.0F : float(frequency);
    QCOMPARE(radio.child<MRadioSlider>("tapeScale")->getCurFreq(), shown);
    QCOMPARE(radio.child<MKARVOSlider>("pointerScale")->getCurFreq(), shown);
    auto *scale = radio.child<MRadioMovePoint>("needleScale");
    auto *needle = scale->findChild<MovePoint *>();
    QVERIFY(scale->rect().contains(needle->geometry()));
    QCOMPARE(needle->cacPosMapFreq(needle->x() + needle->width() / 2), frequency);
}

void RadioPageTest::needleTunes_data()
{
    QTest::addColumn<Band>("band");
    QTest::addColumn<int>("frequency");
    QTest::newRow("FM") << Band::Fm << 9370;
    QTest::newRow("AM") << Band::Am << 855;
}

void RadioPageTest::needleTunes()
{
    QFETCH(Band, band);
    QFETCH(int, frequency);
    Radio radio;
    radio.tuner.setBand(band);
    radio.showScale(0);
    auto *scale = radio.child<MRadioMovePoint>("needleScale");
    const int x = scale->findChild<MovePoint *>()->cacFreqMapPos(frequency);
    touch(scale).press(200, 40).moveTo(x, 40).release();
    QCOMPARE(radio.tuner.frequency(), frequency);
}

// To the left, so that higher frequencies come under the middle.
void RadioPageTest::tapeTunes()
{
    Radio radio;
    radio.showScale(1);
    auto *scale = radio.child<MRadioSlider>("tapeScale");
    touch(scale).press(400, 40).moveTo(400 - 10 * scale->getLineGap(), 40).release();
    QCOMPARE(radio.tuner.frequency(), 9950);
    radio.tuner.setBand(Band::Am);
    radio.tuner.setFrequency(855);
    touch(scale).press(400, 40).moveTo(400 + 3 * scale->getLineGap(), 40).release();
    QCOMPARE(radio.tuner.frequency(), 855 - 27);
}

// A drag by less than a step leaves the frequency, and the scale where it was.
void RadioPageTest::tapeComesBackToItsFrequency()
{
    Radio radio;
    radio.showScale(1);
    auto *scale = radio.child<MRadioSlider>("tapeScale");
    const auto picture = [&radio] { return steadyPicture(radio.screen); };
    const QImage before = picture();
    touch(scale).press(400, 40).moveTo(397, 40);
    QVERIFY(picture() != before);
    touch(scale).press(397, 40).release();
    QCOMPARE(radio.tuner.frequency(), 9850);
    COMPARE_PICTURES(picture(), before);
}

void RadioPageTest::pointerTunes_data()
{
    QTest::addColumn<Band>("band");
    QTest::addColumn<float>("place"); // on the scale, which is longer than the band
    QTest::addColumn<int>("frequency");
    QTest::newRow("FM") << Band::Fm << float(9630 - 8700) / float(10800 - 8700) << 9630;
    QTest::newRow("AM") << Band::Am << float(1089 - 500) / float(1700 - 500) << 1089;
    QTest::newRow("beyond the band") << Band::Am << 1.0F << 1620;
}

void RadioPageTest::pointerTunes()
{
    QFETCH(Band, band);
    QFETCH(float, place);
    QFETCH(int, frequency);
    Radio radio;
    radio.tuner.setBand(band);
    radio.showScale(2);
    auto *scale = radio.child<MKARVOSlider>("pointerScale");
    const int width = scale->width() - 2 * scale->marginX();
    touch(scale).press(300, 40).moveTo(scale->marginX() + qRound(place * float(width)), 40);
    QCOMPARE(radio.tuner.frequency(), frequency); // while the finger is down
}

void RadioPageTest::needlesLeaveTheNumbersFree_data()
{
    QTest::addColumn<QSize>("screen");
    for (const QSize &screen :
         {QSize(800, 480), QSize(1024, 600), QSize(1280, 720), QSize(1920, 720)})
        QTest::addRow("%dx%d", screen.width(), screen.height()) << screen;
}

// The numbers and the needle have the same rows in all three scales, and no row of both.
void RadioPageTest::needlesLeaveTheNumbersFree()
{
    QFETCH(QSize, screen);
    Radio radio;
    const Theme theme(screen, Theme::Night);
    radio.screen.resize(screen);
    radio.page->setTheme(theme);
    radio.page->resize(screen.width(), screen.height() - theme.px(76));
    radio.tuner.setFrequency(9600);
    QRect firstNeedle;
    for (int scale = 0; scale < 3; ++scale) {
        radio.showScale(scale);
        QWidget *widget = radio.child<QStackedWidget>("scales")->currentWidget();
        const QImage picture = widget->grab().toImage();
        const auto inkIn = [&picture](const QRect &area, auto isInk) {
            QRect ink;
            for (int y = area.top(); y <= area.bottom(); ++y) {
                for (int x = area.left(); x <= area.right(); ++x) {
                    if (isInk(picture.pixel(x, y)))
                        ink |= QRect(x, y, 1, 1);
                }
            }
            return ink;
        };
        const QRgb accent = theme.accent.rgb();
        const QRgb ground = picture.pixel(0, 0);
        const QRect needle =
            inkIn(picture.rect(), [accent](QRgb color) { return color == accent; });
        const QRect number = inkIn({needle.center().x() - 10, 0, 20, needle.top()},
                                   [ground](QRgb color) { return color != ground; });
        QVERIFY2(number.height() > theme.px(14) * 7 / 10, // all of a digit
                 qPrintable(QStringLiteral("%1 of %2, needle from %3")
                                .arg(number.height())
                                .arg(scale)
                                .arg(needle.top())));
        if (scale == 0)
            firstNeedle = needle;
        QCOMPARE(needle.top(), firstNeedle.top());
        QCOMPARE(needle.bottom(), firstNeedle.bottom());
    }
}

void RadioPageTest::idlePageDoesNothing()
{
    Radio radio;
    radio.tuner.setFrequency(10340); // its text has room
    virtualtime::advance(10000);
    for (int scale = 0; scale < 3; ++scale) {
        radio.showScale(scale);
        QCOMPARE(happenedWhileIdle(), QString());
    }
}

WIDGET_TEST_MAIN(RadioPageTest)
#include "tst_radiopage.moc"
