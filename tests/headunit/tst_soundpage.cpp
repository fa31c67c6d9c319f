// SPDX-License-Identifier: Apache-2.0
#include "pages/sound.h"
#include "pagetest.h"
#include "sidekeys.h"
#include "touch.h"
#include "virtualtime.h"

#include <mcirculardial.h>
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

enum SideKey : int { ToneKey, LevelKey, BalanceKey, EffectsKey, VolumeKey };

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
    void openView(SideKey key)
    {
        for (SpIconButton *button : child<SideKeys>("sideKeys")->findChildren<SpIconButton *>()) {
            if (button->buttonID().toInt() == key)
                tap(button);
        }
    }
    void tap(QWidget *key) { touch(key).tap(key->width() / 2, key->height() / 2); }

    std::unique_ptr<SoundPage> page;
};

} // namespace

class SoundPageTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void sideKeysOpenTheViews_data();
    void sideKeysOpenTheViews();
    void swipeTurnsThePages();
    void valuesHaveSignAndUnit();
    void bandsAreKept();
    void balanceAndFaderAreKept();
    void dotFollowsTheSliders();
    void centreKeyCentres();
    void switchesAreKept();
    void dialDrivesThePlayer_data();
    void dialDrivesThePlayer();
    void dialStandsOnWholeVolumes();
    void dialFollowsThePlayer();
    void dialLeavesItsPanelWhole_data();
    void dialLeavesItsPanelWhole();
    void keysTurnTheVolume();
    void muteLockMutes();
    void volumeIsKept();
    void otherLookKeepsTheValues();
    void idlePageDoesNothing_data();
    void idlePageDoesNothing();
};

void SoundPageTest::sideKeysOpenTheViews_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("shown");
    QTest::newRow("tone") << int(ToneKey) << "bass";
    QTest::newRow("levels") << int(LevelKey) << "subwoofer";
    QTest::newRow("balance") << int(BalanceKey) << "fader";
    QTest::newRow("effects") << int(EffectsKey) << "loudness";
    QTest::newRow("volume") << int(VolumeKey) << "dial";
}

void SoundPageTest::sideKeysOpenTheViews()
{
    QFETCH(int, key);
    QFETCH(QString, shown);
    Sound sound;
    sound.openView(key == VolumeKey ? BalanceKey : VolumeKey);
    sound.openView(SideKey(key));
    QCOMPARE(sound.child<SideKeys>("sideKeys")->current(), key);
    for (const char *name : {"bass", "subwoofer", "fader", "loudness", "dial"})
        QCOMPARE(sound.child<QWidget>(name)->isVisible(), shown == name);
}

void SoundPageTest::swipeTurnsThePages()
{
    Sound sound;
    const auto isOnFirst = [&sound] { return sound.child<QWidget>("bass")->isVisible(); };
    const auto key = [&sound] { return sound.child<SideKeys>("sideKeys")->current(); };
    const auto swipe = [&sound](const char *page, int from, int to) {
        touch(sound.child<QWidget>(page)).press(from, 20).moveTo(to, 20).release();
    };
    QVERIFY(isOnFirst());
    swipe("tonePage", 20, 150); // there is none before
    QVERIFY(isOnFirst());
    swipe("tonePage", 150, 20);
    QVERIFY(!isOnFirst());
    QVERIFY(sound.child<QWidget>("subwoofer")->isVisible());
    QCOMPARE(key(), int(LevelKey));
    swipe("levelPage", 150, 20); // there is no third
    QVERIFY(!isOnFirst());
    swipe("levelPage", 20, 150);
    QVERIFY(isOnFirst());
    QCOMPARE(key(), int(ToneKey));
}

void SoundPageTest::valuesHaveSignAndUnit()
{
    Sound sound;
    auto *treble = sound.child<SpSetupSlider>("treble");
    const auto text = [treble] {
        return treble->findChild<QLabel *>(QStringLiteral("value"))->text();
    };
    QCOMPARE(text(), QStringLiteral("0 dB"));
    touch(treble).press(treble->width() / 2, 32).release();
    QCOMPARE(text(), QStringLiteral("+10 dB"));
    touch(treble).press(treble->width() / 2, treble->height() - 2).release();
    QCOMPARE(text(), QStringLiteral("\u221210 dB"));
    sound.openPage();
    QCOMPARE(sound.child<SpSetupSlider>("treble")->findChild<QLabel *>("value")->text(),
             QStringLiteral("\u221210 dB"));
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
    sound.openView(BalanceKey);
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
    sound.openView(BalanceKey);
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
    sound.openView(BalanceKey);
    touch(sound.child<QWidget>("balance")).press(1, 20).release();
    touch(sound.child<QWidget>("fader")).press(1, 20).release();
    sound.tap(sound.child<QWidget>("centreKey"));
    QCOMPARE(sound.child<MHorSlider>("balance")->currentValue(), 0);
    QCOMPARE(sound.child<QLabel>("faderValue")->text(), QStringLiteral("Centre"));
    sound.openPage();
    QCOMPARE(sound.child<MHorSlider>("balance")->currentValue(), 0);
    QCOMPARE(sound.child<MHorSlider>("fader")->currentValue(), 0);
}

void SoundPageTest::switchesAreKept()
{
    Sound sound;
    sound.openView(EffectsKey);
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
    sound.openView(VolumeKey);
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
    sound.openView(VolumeKey);
    auto *dial = sound.child<MCircularDial>("dial");
    const double reach = dial->radius() * 0.93;
    const int aside = qRound(reach * std::sin(qDegreesToRadians(1.0))); // a third of a step
    const QPoint middle = dial->rect().center();
    touch(dial).press(middle.x() + aside, middle.y() - qRound(reach)).release();
    QCOMPARE(sound.player.volume(), 20);
    QCOMPARE(dial->value(), 20.0);
}

void SoundPageTest::dialFollowsThePlayer()
{
    Sound sound;
    sound.openView(VolumeKey);
    // How far to the right the accent reaches: that is where the knob is.
    const auto reach = [&sound] {
        const QImage arc = sound.child<QLabel>("arc")->pixmap(Qt::ReturnByValue).toImage();
        const QRgb accent = Theme({1024, 600}, Theme::Night).accent.rgb();
        int most = 0;
        for (int y = 0; y < arc.height(); ++y) {
            for (int x = most; x < arc.width(); ++x)
                most = arc.pixel(x, y) == accent ? x : most;
        }
        return most;
    };
    const int before = reach();
    sound.player.setVolume(31);
    QCOMPARE(sound.child<MCircularDial>("dial")->value(), 31.0);
    QCOMPARE(sound.child<QLabel>("level")->text(), QStringLiteral("31"));
    QVERIFY(reach() > before + 100);
}

void SoundPageTest::dialLeavesItsPanelWhole_data()
{
    QTest::addColumn<QSize>("screen");
    for (const QSize &screen :
         {QSize(800, 480), QSize(1024, 600), QSize(1280, 720), QSize(1920, 720)})
        QTest::addRow("%dx%d", screen.width(), screen.height()) << screen;
}

// Nothing of it, nor of what is written beside it, comes near the border.
void SoundPageTest::dialLeavesItsPanelWhole()
{
    QFETCH(QSize, screen);
    Sound sound;
    const Theme theme(screen, Theme::Night);
    sound.screen.resize(screen);
    sound.page->setTheme(theme);
    sound.page->resize(screen.width(), screen.height() - theme.px(76));
    sound.openView(VolumeKey);
    auto *panel = sound.child<QLabel>("dialPanel");
    const QRect inner =
        panel->rect().adjusted(theme.gap(), theme.gap(), -theme.gap(), -theme.gap());
    for (const int volume : {0, 20, 40}) {
        sound.player.setVolume(volume);
        const QImage shown = panel->grab().toImage();
        for (QWidget *part : panel->findChildren<QWidget *>())
            part->hide();
        const QImage bare = panel->grab().toImage();
        for (QWidget *part : panel->findChildren<QWidget *>())
            part->show();
        QVERIFY(shown != bare);
        QRect changed;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                if (shown.pixel(x, y) != bare.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        QVERIFY(inner.contains(changed));
    }
}

void SoundPageTest::keysTurnTheVolume()
{
    Sound sound;
    sound.openView(VolumeKey);
    sound.player.setVolume(10);
    sound.tap(sound.child<QWidget>("louderKey"));
    QCOMPARE(sound.player.volume(), 11);
    touch(sound.child<QWidget>("quieterKey")).press(20, 20).hold(1000 + 2 * 150).release();
    QCOMPARE(sound.player.volume(), 8);
}

void SoundPageTest::muteLockMutes()
{
    Sound sound;
    sound.openView(VolumeKey);
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
    QTest::addColumn<int>("key");
    QTest::newRow("tone") << int(ToneKey);
    QTest::newRow("levels") << int(LevelKey);
    QTest::newRow("balance") << int(BalanceKey);
    QTest::newRow("effects") << int(EffectsKey);
    QTest::newRow("volume") << int(VolumeKey);
}

void SoundPageTest::idlePageDoesNothing()
{
    QFETCH(int, key);
    Sound sound;
    sound.openView(SideKey(key));
    QCOMPARE(happenedWhileIdle(), QString());
}

WIDGET_TEST_MAIN(SoundPageTest)
#include "tst_soundpage.moc"
