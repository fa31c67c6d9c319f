// SPDX-License-Identifier: Apache-2.0
#include "pages/sound.h"
#include "pagetest.h"
#include "touch.h"
#include "virtualtime.h"

#include <mcirculardial.h>
#include <mfocusbutton.h>
#include <mhorslider.h>
#include <monoffbutton.h>
#include <spiconbutton.h>
#include <splockbutton.h>
#include <spsetupslider.h>
#include <spsetupslidercontainer.h>

#include <QLabel>
#include <QStackedWidget>
#include <QtMath>

#include <memory>

using namespace headunit;

namespace
{

struct Sound : PageWorld {
    Sound() { openPage(); }

    void openPage()
    {
        page = std::make_unique<SoundPage>(context);
        showPage(screen, *page);
    }
    template <typename Widget> Widget *child(const char *name) const
    {
        return page->findChild<Widget *>(QLatin1String(name));
    }
    void openView(const char *name)
    {
        tap(child<QWidget>(qPrintable(QLatin1String(name) + "Tab")));
    }
    void tap(QWidget *key) { touch(key).tap(key->width() / 2, key->height() / 2); }

    std::unique_ptr<SoundPage> page;
};

} // namespace

class SoundPageTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void tabsOpenTheViews_data();
    void tabsOpenTheViews();
    void swipeAndKeysTurnThePages();
    void bandsAreKept();
    void balanceAndFaderAreKept();
    void dotFollowsTheSliders();
    void centreKeyCentres();
    void switchesAreKept();
    void dialDrivesThePlayer_data();
    void dialDrivesThePlayer();
    void dialStandsOnWholeVolumes();
    void dialFollowsThePlayer();
    void keysTurnTheVolume();
    void muteLockMutes();
    void volumeIsKept();
    void otherLookKeepsTheValues();
    void idlePageDoesNothing_data();
    void idlePageDoesNothing();
};

void SoundPageTest::tabsOpenTheViews_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("shown");
    QTest::newRow("equaliser") << "equaliser"
                               << "bass";
    QTest::newRow("balance") << "balance"
                             << "fader";
    QTest::newRow("effects") << "effects"
                             << "loudness";
    QTest::newRow("volume") << "volume"
                            << "dial";
}

void SoundPageTest::tabsOpenTheViews()
{
    QFETCH(QString, tab);
    QFETCH(QString, shown);
    Sound sound;
    sound.openView(tab == "volume" ? "balance" : "volume");
    sound.openView(qPrintable(tab));
    QVERIFY(sound.child<MFocusButton>(qPrintable(tab + "Tab"))->isChecked());
    for (const char *name : {"bass", "fader", "loudness", "dial"})
        QCOMPARE(sound.child<QWidget>(name)->isVisible(), shown == name);
}

void SoundPageTest::swipeAndKeysTurnThePages()
{
    Sound sound;
    const auto isOnFirst = [&sound] { return sound.child<QWidget>("bass")->isVisible(); };
    QVERIFY(isOnFirst());
    touch(sound.child<QWidget>("tonePage")).press(150, 20).moveTo(20, 20).release();
    QVERIFY(!isOnFirst());
    QVERIFY(sound.child<QWidget>("subwoofer")->isVisible());
    touch(sound.child<QWidget>("levelPage"))
        .press(150, 20)
        .moveTo(20, 20)
        .release(); // there is no third
    QVERIFY(!isOnFirst());
    touch(sound.child<QWidget>("levelPage")).press(20, 20).moveTo(150, 20).release();
    QVERIFY(isOnFirst());
    QVERIFY(sound.child<SpIconButton>("previousKey")->disableState());
    sound.tap(sound.child<QWidget>("nextKey"));
    QVERIFY(!isOnFirst());
    QVERIFY(sound.child<SpIconButton>("nextKey")->disableState());
    sound.tap(sound.child<QWidget>("previousKey"));
    QVERIFY(isOnFirst());
}

void SoundPageTest::bandsAreKept()
{
    Sound sound;
    auto *treble = sound.child<SpSetupSlider>("treble");
    touch(treble).press(treble->width() / 2, 32).release(); // the top of the track
    QCOMPARE(treble->currentValue(), 10);
    sound.openPage();
    QCOMPARE(sound.child<SpSetupSlider>("treble")->currentValue(), 10);
    QCOMPARE(sound.child<SpSetupSlider>("bass")->currentValue(), 0);
}

void SoundPageTest::balanceAndFaderAreKept()
{
    Sound sound;
    sound.openView("balance");
    touch(sound.child<QWidget>("balance")).press(1, 20).release();
    auto *fader = sound.child<MHorSlider>("fader");
    touch(fader).press(fader->width() - 2, 20).release();
    QCOMPARE(sound.child<QLabel>("balanceValue")->text(), QStringLiteral("Left 10"));
    QCOMPARE(sound.child<QLabel>("faderValue")->text(), QStringLiteral("Front 10"));
    sound.openPage();
    QCOMPARE(sound.child<MHorSlider>("balance")->currentValue(), -10);
    QCOMPARE(sound.child<MHorSlider>("fader")->currentValue(), 10);
}

// Where the accent's dot is: the left and upper half of the picture differ from the other ones.
void SoundPageTest::dotFollowsTheSliders()
{
    Sound sound;
    sound.openView("balance");
    const auto dot = [&sound] {
        const QImage cabin = sound.child<QLabel>("cabin")->pixmap(Qt::ReturnByValue).toImage();
        const QRgb accent = Theme({1024, 600}, Theme::Night).accent.rgb();
        QRegion region;
        for (int y = 4; y < cabin.height() - 4; y += 2) {
            for (int x = 4; x < cabin.width() - 4; x += 2) {
                bool isFilled = true;
                for (const QPoint &off :
                     {QPoint(-4, -4), QPoint(4, -4), QPoint(-4, 4), QPoint(4, 4)})
                    isFilled = isFilled && cabin.pixel(QPoint(x, y) + off) == accent;
                if (isFilled)
                    region += QRect(x, y, 1, 1);
            }
        }
        return region.boundingRect().center();
    };
    const QPoint middle = dot();
    touch(sound.child<QWidget>("balance")).press(1, 20).release();
    QVERIFY(dot().x() < middle.x() - 30);
    QVERIFY(qAbs(dot().y() - middle.y()) <= 2);
    auto *fader = sound.child<MHorSlider>("fader");
    touch(fader).press(fader->width() - 2, 20).release();
    QVERIFY(dot().y() < middle.y() - 30); // the front is at the top
}

void SoundPageTest::centreKeyCentres()
{
    Sound sound;
    sound.openView("balance");
    touch(sound.child<QWidget>("balance")).press(1, 20).release();
    touch(sound.child<QWidget>("fader")).press(1, 20).release();
    sound.tap(sound.child<QWidget>("centreKey"));
    QCOMPARE(sound.child<MHorSlider>("balance")->currentValue(), 0);
    QCOMPARE(sound.child<QLabel>("faderValue")->text(), QStringLiteral("Middle"));
    sound.openPage();
    QCOMPARE(sound.child<MHorSlider>("balance")->currentValue(), 0);
    QCOMPARE(sound.child<MHorSlider>("fader")->currentValue(), 0);
}

void SoundPageTest::switchesAreKept()
{
    Sound sound;
    sound.openView("effects");
    sound.tap(sound.child<QWidget>("surround"));
    sound.openPage();
    QVERIFY(sound.child<MOnOffButton>("surround")->onoffStatus());
    QVERIFY(!sound.child<MOnOffButton>("loudness")->onoffStatus());
}

void SoundPageTest::dialDrivesThePlayer_data()
{
    QTest::addColumn<int>("volume");
    for (int volume : {0, 7, 33, 40})
        QTest::addRow("%d", volume) << volume;
}

// The arc goes from 60 degrees before the top to 60 degrees after it.
void SoundPageTest::dialDrivesThePlayer()
{
    QFETCH(int, volume);
    Sound sound;
    sound.openView("volume");
    auto *dial = sound.child<MCircularDial>("dial");
    const double angle = qDegreesToRadians(qBound(-59.8, volume * 3.0 - 60.0, 59.8));
    const double reach = dial->radius() * 0.93;
    const QPoint top(dial->width() / 2, dial->height() / 2);
    touch(dial).press(top
                      + QPoint(qRound(reach * std::sin(angle)), -qRound(reach * std::cos(angle))));
    QCOMPARE(sound.player.volume(), volume);
    QCOMPARE(sound.child<QLabel>("level")->text(), QString::number(volume));
}

void SoundPageTest::dialStandsOnWholeVolumes()
{
    Sound sound;
    sound.openView("volume");
    auto *dial = sound.child<MCircularDial>("dial");
    const int y = dial->height() / 2 - qRound(dial->radius() * 0.93);
    touch(dial).press(dial->width() / 2 + 8, y).release(); // a third of a step after the middle
    QCOMPARE(sound.player.volume(), 20);
    QCOMPARE(dial->value(), 20.0);
}

void SoundPageTest::dialFollowsThePlayer()
{
    Sound sound;
    sound.openView("volume");
    const QPoint before = sound.child<QWidget>("mark")->pos();
    sound.player.setVolume(31);
    QCOMPARE(sound.child<MCircularDial>("dial")->value(), 31.0);
    QCOMPARE(sound.child<QLabel>("level")->text(), QStringLiteral("31"));
    QVERIFY(sound.child<QWidget>("mark")->x() > before.x());
}

void SoundPageTest::keysTurnTheVolume()
{
    Sound sound;
    sound.openView("volume");
    sound.player.setVolume(10);
    sound.tap(sound.child<QWidget>("louderKey"));
    QCOMPARE(sound.player.volume(), 11);
    touch(sound.child<QWidget>("quieterKey")).press(20, 20).hold(1000 + 2 * 150).release();
    QCOMPARE(sound.player.volume(), 8);
}

void SoundPageTest::muteLockMutes()
{
    Sound sound;
    sound.openView("volume");
    sound.tap(sound.child<QWidget>("muteLock"));
    QVERIFY(sound.player.isMuted());
    QCOMPARE(sound.child<QLabel>("state")->text(), QStringLiteral("Muted"));
    sound.tap(sound.child<QWidget>("louderKey"));
    QVERIFY(sound.player.isMuted()); // a lock
    sound.tap(sound.child<QWidget>("muteLock"));
    QVERIFY(!sound.player.isMuted());
    sound.player.setMuted(true);
    QVERIFY(sound.child<SpLockButton>("muteLock")->isDown());
}

void SoundPageTest::volumeIsKept()
{
    Sound sound;
    sound.player.setVolume(13);
    sound.player.setMuted(true);
    sound.page.reset();
    sound.player.setVolume(40);
    sound.player.setMuted(false);
    sound.openPage();
    QCOMPARE(sound.player.volume(), 13);
    QVERIFY(sound.player.isMuted());
}

void SoundPageTest::otherLookKeepsTheValues()
{
    Sound sound;
    auto *bass = sound.child<SpSetupSlider>("bass");
    touch(bass).press(bass->width() / 2, 32).release();
    const QSize size = bass->size();
    const QImage night = painted(*bass);
    sound.page->setTheme(Theme({1024, 600}, Theme::Day));
    QCOMPARE(bass->currentValue(), 10);
    QCOMPARE(bass->size(), size);
    QVERIFY(painted(*bass) != night);
    sound.page->setTheme(Theme({1024, 600}, Theme::Night));
    COMPARE_PICTURES(painted(*bass), night);
}

void SoundPageTest::idlePageDoesNothing_data()
{
    QTest::addColumn<QString>("tab");
    for (const char *tab : {"equaliser", "balance", "effects", "volume"})
        QTest::addRow("%s", tab) << QString::fromLatin1(tab);
}

void SoundPageTest::idlePageDoesNothing()
{
    QFETCH(QString, tab);
    Sound sound;
    sound.openView(qPrintable(tab));
    QCOMPARE(happenedWhileIdle(), QString());
}

WIDGET_TEST_MAIN(SoundPageTest)
#include "tst_soundpage.moc"
