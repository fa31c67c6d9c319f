// SPDX-License-Identifier: Apache-2.0
#include "pages/settings.h"

#include "clicksound.h"
#include "headunit.h"
#include "languages.h"
#include "licence.h"
#include "pagetest.h"
#include "sidekeys.h"
#include "sounddevices.h"
#include "steadypicture.h"
#include "touch.h"
#include "virtualtime.h"

#include <mfocusbutton.h>
#include <mhorslider.h>
#include <monoffbutton.h>
#include <moprogress.h>
#include <mvscrolllabel.h>
#include <sphorstrbutton.h>
#include <spiconbutton.h>
#include <sploadinground.h>
#include <sptablelist.h>

#include <QFile>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryFile>

#include <memory>
#include <unistd.h>

using namespace headunit;

namespace
{

using Option = Preferences::Option;

enum SideKey : int { GeneralKey, DisplayKey, LanguageKey, UpdateKey, AboutKey };

constexpr QSize kScreen(1024, 600);

// A whole screen, with its settings open.
struct Settings : PageWorld {
    explicit Settings(Theme::Look look = Theme::Day)
        : unit(std::make_unique<HeadUnit>(context, kScreen, look))
    {
        unit->openPage(QStringLiteral("settings"));
        WidgetTest::show(*unit);
    }

    template <typename Widget> Widget *child(const char *name) const
    {
        return unit->findChild<Widget *>(QLatin1String(name));
    }
    template <typename Widget> Widget *inPage(const char *name) const
    {
        const QWidget *page = unit->page(QStringLiteral("settings"));
        return page->findChild<Widget *>(QLatin1String(name));
    }
    void open(SideKey key)
    {
        auto *keys = inPage<SideKeys>("sideKeys");
        keys->setCurrent(key);
        emit keys->chosen(key);
        virtualtime::advance(0);
    }
    void tap(const char *name)
    {
        auto *widget = inPage<QWidget>(name);
        touch(widget).press(widget->width() / 2, widget->height() / 2).hold(40).release().hold(0);
    }
    MOnOffButton *switchOf(int row) const
    {
        return inPage<MOnOffButton>(qPrintable(QStringLiteral("switch%1").arg(row)));
    }
    SpTableList *list() const { return inPage<SpTableList>("list"); }
    QString text(const char *name) const { return child<QLabel>(name)->text(); }
    QColor ground() const { return unit->palette().color(QPalette::Window); }
    QImage picture() const { return steadyPicture(*unit); }

    std::unique_ptr<HeadUnit> unit;
};

// What the program writes to standard error while this lives.
class StandardError
{
public:
    StandardError() : m_before(dup(STDERR_FILENO))
    {
        m_file.open();
        dup2(m_file.handle(), STDERR_FILENO);
    }
    ~StandardError()
    {
        dup2(m_before, STDERR_FILENO);
        close(m_before);
    }
    Q_DISABLE_COPY(StandardError)

    int lines() const
    {
        QFile written(m_file.fileName());
        return written.open(QIODevice::ReadOnly) ? written.readAll().count('\n') : -1;
    }

private:
    QTemporaryFile m_file;
    const int m_before;
};

QColor groundOf(Theme::Look look) { return Theme(kScreen, look).ground; }

bool isListMoving() { return qApp->property("listMoving").toBool(); }

// The words of a text, without its lines.
QString words(const QString &text) { return text.simplified(); }

} // namespace

class SettingsPageTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void initTestCase() { sounddevices::offerNone(); }
    void keysOpenTheViews_data();
    void keysOpenTheViews();
    void switchesAreKept();
    void tapOnARowSwitches();
    void listIsLongerThanTheScreen();
    void scrollingFingerSwitchesNothing();
    void tapThatStopsAFlingSwitchesNothing();
    void listThatIsLeftDoesNotMove();
    void touchOnASwitchClicksOnce();
    void keyClicksFollowTheSwitch();
    void missingDeviceIsSaidOnce();
    void clockFollowsTheSwitch();
    void dateFollowsTheSwitch();
    void brightnessDimsTheScreen();
    void fullSliderLooksFull();
    void rowsAreNotWithoutEnd();
    void dimmedScreenIsTouchedAsEver();
    void looksAreChosen();
    void lookForOneRunIsNotKept();
    void automaticLookFollowsTheDay();
    void otherLookLeavesNothingBehind_data();
    void otherLookLeavesNothingBehind();
    void languageChangesTheScreen();
    void settingsThatMakeNoSenseAreIgnored();
    void updateRunsToItsEnd();
    void updateIsCancelled();
    void fingerThatSlidesOffStartsNoUpdate();

private slots: // of what only shows something
    void licenceIsShownWhole_data();
    void licenceIsShownWhole();
    void partsOfTheLicenceAreTurned();
    void idleViewsDoNothing_data();
    void idleViewsDoNothing();
};

void SettingsPageTest::keysOpenTheViews_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("shown");
    QTest::newRow("general") << int(GeneralKey) << "list";
    QTest::newRow("display") << int(DisplayKey) << "brightness";
    QTest::newRow("language") << int(LanguageKey) << "german";
    QTest::newRow("update") << int(UpdateKey) << "rest";
    QTest::newRow("about") << int(AboutKey) << "licence";
}

void SettingsPageTest::keysOpenTheViews()
{
    QFETCH(int, key);
    QFETCH(QString, shown);
    Settings settings;
    settings.open(key == AboutKey ? GeneralKey : AboutKey);
    settings.open(SideKey(key));
    for (const char *name : {"list", "brightness", "german", "rest", "licence"})
        QCOMPARE(settings.inPage<QWidget>(name)->isVisible(), shown == name);
}

void SettingsPageTest::switchesAreKept()
{
    Settings settings;
    QVERIFY(!settings.switchOf(4)->onoffStatus());
    settings.tap("switch4");
    QVERIFY(settings.switchOf(4)->onoffStatus());
    virtualtime::advance(1000); // a tap of the row would have come by now
    QVERIFY(settings.preferences.isOn(Option::SpeedWarning));
    QVERIFY(!settings.preferences.isOn(Option::EasyEntry));
    const SettingsPage another(settings.context);
    QVERIFY(another.findChild<MOnOffButton *>(QStringLiteral("switch4"))->onoffStatus());
}

void SettingsPageTest::tapOnARowSwitches()
{
    Settings settings;
    SpTableList *list = settings.list();
    const QRect row = list->visualRect(list->model()->index(4, 0));
    touch(list->viewport()).press(row.left() + 40, row.center().y()).hold(40).release().hold(60);
    QVERIFY(settings.preferences.isOn(Option::SpeedWarning));
    QVERIFY(settings.switchOf(4)->onoffStatus());
}

void SettingsPageTest::listIsLongerThanTheScreen()
{
    const Settings settings;
    QVERIFY(settings.list()->model()->rowCount() >= 9);
    QVERIFY(settings.list()->verticalScrollBar()->maximum() > 0);
    const int end = settings.list()->width() - settings.switchOf(0)->width();
    QVERIFY(settings.switchOf(0)->mapTo(settings.list(), QPoint()).x() > end - 40);
}

void SettingsPageTest::scrollingFingerSwitchesNothing()
{
    Settings settings;
    Touch finger = touch(settings.switchOf(4));
    finger.press(40, 30).hold(30).moveTo(40, 0).hold(30).moveTo(40, -60).hold(400);
    QVERIFY(settings.list()->verticalScrollBar()->value() > 0);
    QVERIFY(isListMoving()); // the finger is on it
    finger.release();
    QVERIFY(isListMoving());
    QVERIFY(!settings.preferences.isOn(Option::SpeedWarning));
    virtualtime::advance(200);
    QVERIFY(!isListMoving());
    settings.tap("switch4");
    QVERIFY(settings.preferences.isOn(Option::SpeedWarning));
}

void SettingsPageTest::tapThatStopsAFlingSwitchesNothing()
{
    Settings settings;
    QWidget *viewport = settings.list()->viewport();
    touch(viewport).press(100, 300).hold(10).moveTo(100, 280).hold(20).moveTo(100, 240).release();
    virtualtime::advance(50);
    QVERIFY(isListMoving());
    Touch finger = touch(settings.switchOf(5));
    finger.press(40, 30).hold(300).release();
    QVERIFY(settings.preferences.isOn(Option::LockDoors));
    virtualtime::advance(200);
    QVERIFY(!isListMoving());
    QVERIFY(settings.preferences.isOn(Option::LockDoors));
}

void SettingsPageTest::listThatIsLeftDoesNotMove()
{
    Settings settings;
    touch(settings.switchOf(4)).press(40, 30).hold(30).moveTo(40, 0).moveTo(40, -60);
    QVERIFY(isListMoving());
    settings.unit->openPage(QStringLiteral("home"));
    QVERIFY(!isListMoving());
}

void SettingsPageTest::touchOnASwitchClicksOnce()
{
    Settings settings;
    const ClickSound click(&settings.preferences);
    const QSignalSpy clicks(&click, &ClickSound::clicked);
    settings.tap("switch4");
    QCOMPARE(clicks.count(), 1);
    SpTableList *list = settings.list();
    const QRect row = list->visualRect(list->model()->index(1, 0));
    touch(list->viewport()).tap(row.left() + 40, row.center().y()).hold(0);
    QCOMPARE(clicks.count(), 2);
}

void SettingsPageTest::keyClicksFollowTheSwitch()
{
    Settings settings;
    const ClickSound click(&settings.preferences);
    const QSignalSpy clicks(&click, &ClickSound::clicked);
    settings.tap("switch2");
    QVERIFY(!settings.preferences.isOn(Option::KeyClicks));
    const int before = clicks.count();
    settings.tap("switch4");
    QCOMPARE(clicks.count(), before);
    settings.tap("switch2");
    settings.tap("switch4");
    QVERIFY(clicks.count() > before);
}

void SettingsPageTest::missingDeviceIsSaidOnce()
{
    Settings settings;
    const ClickSound click(&settings.preferences);
    const StandardError error;
    settings.tap("switch4");
    settings.tap("switch4");
    QCOMPARE(error.lines(), 1);
}

void SettingsPageTest::clockFollowsTheSwitch()
{
    Settings settings;
    const QTime now = QTime::currentTime();
    QCOMPARE(settings.text("clock"), now.toString(QStringLiteral("HH:mm")));
    settings.tap("switch0");
    QCOMPARE(settings.text("clock"), QLocale().toString(now, QStringLiteral("h:mm AP")));
}

void SettingsPageTest::dateFollowsTheSwitch()
{
    Settings settings;
    QVERIFY(!settings.child<QLabel>("date")->isVisible());
    settings.tap("switch1");
    QVERIFY(settings.child<QLabel>("date")->isVisible());
    QVERIFY(settings.text("date").contains(QString::number(QDate::currentDate().day())));
}

void SettingsPageTest::brightnessDimsTheScreen()
{
    Settings settings;
    settings.open(DisplayKey);
    const QImage bright = settings.picture();
    QVERIFY(!settings.child<QWidget>("dimmer")->isVisible());
    auto *slider = settings.inPage<MHorSlider>("brightness");
    QCOMPARE(slider->currentValue(), 100);
    touch(slider).press(1, 20).release();
    QCOMPARE(settings.preferences.brightness(), 10);
    const QImage dark = settings.picture();
    for (const QPoint &place : {QPoint(4, 4), QPoint(500, 4), QPoint(1020, 596)}) {
        const int before = qGray(bright.pixel(place));
        const int after = qGray(dark.pixel(place));
        QVERIFY2(after < before / 2 && after > 0, qPrintable(QString::number(after)));
    }
    HeadUnit another(settings.context, kScreen, Theme::Day);
    WidgetTest::show(another);
    QVERIFY(another.findChild<QWidget *>(QStringLiteral("dimmer"))->isVisible());
    touch(slider).press(slider->width() - 1, 20).release();
    QVERIFY(!settings.child<QWidget>("dimmer")->isVisible());
    QCOMPARE(settings.preferences.brightness(), 100);
}

// Its bar ends where the knob at its end does.
void SettingsPageTest::fullSliderLooksFull()
{
    Settings settings;
    settings.open(DisplayKey);
    auto *slider = settings.inPage<MHorSlider>("brightness");
    const QColor accent = Theme(kScreen, Theme::Day).accent;
    const auto ink = [](const QImage &picture, auto isInk) {
        QRect rect;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (isInk(picture.pixelColor(x, y)))
                    rect |= QRect(x, y, 1, 1);
            }
        }
        return rect;
    };
    const auto isAccent = [&accent](const QColor &color) { return color == accent; };
    slider->setCurrentValue(100);
    const QImage full = painted(*slider);
    const QColor ground = full.pixelColor(0, 0);
    const auto isSomething = [&ground](const QColor &color) { return color != ground; };
    QVERIFY(ink(full, isSomething).right() - ink(full, isAccent).right() <= 1);
    slider->setCurrentValue(10);
    const QImage empty = painted(*slider);
    QVERIFY(ink(empty, isAccent).left() - ink(empty, isSomething).left() <= 1);
}

void SettingsPageTest::rowsAreNotWithoutEnd()
{
    PageWorld world;
    const QSize wide(1920, 720);
    HeadUnit unit(world.context, wide, Theme::Day);
    unit.openPage(QStringLiteral("settings"));
    WidgetTest::show(unit);
    const auto *page = unit.page(QStringLiteral("settings"));
    auto *views = page->findChild<QStackedWidget *>(QStringLiteral("views"));
    const int most = Theme(wide, Theme::Day).px(900);
    for (const SideKey key : {GeneralKey, DisplayKey, LanguageKey, AboutKey}) {
        views->setCurrentIndex(key);
        virtualtime::advance(0);
        for (const QLabel *panel : views->currentWidget()->findChildren<QLabel *>())
            QVERIFY2(panel->width() <= most + 1, qPrintable(panel->objectName()));
    }
}

void SettingsPageTest::dimmedScreenIsTouchedAsEver()
{
    Settings settings;
    settings.preferences.setBrightness(30);
    auto *key = settings.child<QWidget>("homeKey");
    const QPoint place = key->mapTo(settings.unit.get(), key->rect().center());
    QCOMPARE(settings.unit->childAt(place), key);
    QCOMPARE(settings.child<QWidget>("dimmer")->geometry(), settings.unit->rect());
}

void SettingsPageTest::looksAreChosen()
{
    Settings settings;
    settings.open(DisplayKey);
    QVERIFY(settings.inPage<MFocusButton>("dayChoice")->isChecked());
    settings.tap("nightChoice");
    QCOMPARE(settings.ground(), groundOf(Theme::Night));
    QVERIFY(settings.inPage<MFocusButton>("nightChoice")->isChecked());
    const Preferences kept(&settings.settings);
    QVERIFY(kept.look() == Preferences::Look::Night);
    settings.tap("dayChoice");
    QCOMPARE(settings.ground(), groundOf(Theme::Day));
}

void SettingsPageTest::lookForOneRunIsNotKept()
{
    Settings settings;
    settings.preferences.useLook(Preferences::Look::Night);
    settings.preferences.useLanguage(QStringLiteral("ar"));
    QCOMPARE(settings.ground(), groundOf(Theme::Night));
    const Preferences kept(&settings.settings);
    QVERIFY(kept.look() == Preferences::Look::Day);
    QCOMPARE(kept.language(), QString());
}

void SettingsPageTest::automaticLookFollowsTheDay()
{
    Settings settings;
    settings.open(DisplayKey);
    settings.tap("automaticChoice");
    constexpr int kHour = 3600 * 1000; // ms
    constexpr int kHours = 24;
    for (int i = 0; i < kHours; ++i) {
        virtualtime::advance(kHour);
        const int hour = QTime::currentTime().hour();
        QCOMPARE(settings.ground(), groundOf(hour >= 7 && hour < 19 ? Theme::Day : Theme::Night));
    }
}

void SettingsPageTest::otherLookLeavesNothingBehind_data()
{
    QTest::addColumn<QString>("page");
    for (const char *page : {"home", "radio", "media", "phone", "sound", "settings"})
        QTest::addRow("%s", page) << QString::fromLatin1(page);
}

// A screen that has changed its look and back shows what one does that has always had it. Rolling
// texts stand in the middle of their way.
void SettingsPageTest::otherLookLeavesNothingBehind()
{
    QFETCH(QString, page);
    Settings changed(Theme::Night);
    Settings fresh(Theme::Day);
    for (Settings *settings : {&changed, &fresh})
        settings->unit->openPage(page);
    auto *views = changed.unit->page(page)->findChild<QStackedWidget *>(QStringLiteral("views"));
    auto *others = fresh.unit->page(page)->findChild<QStackedWidget *>(QStringLiteral("views"));
    const int count = views ? views->count() : 1;
    for (int view = 0; view < count; ++view) {
        changed.unit->setLook(Theme::Night);
        if (views) {
            views->setCurrentIndex(view);
            others->setCurrentIndex(view);
        }
        virtualtime::advance(0);
        changed.unit->setLook(Theme::Day);
        virtualtime::advance(0);
        COMPARE_PICTURES(changed.picture(), fresh.picture());
    }
}

void SettingsPageTest::languageChangesTheScreen()
{
    Settings settings;
    const Languages languages(&settings.preferences);
    settings.open(LanguageKey);
    settings.tap("arabic");
    virtualtime::advance(0);
    QCOMPARE(settings.unit->layoutDirection(), Qt::RightToLeft);
    QVERIFY(settings.inPage<MFocusButton>("arabic")->isChecked());
    const QImage arabic = settings.picture();
    settings.tap("german");
    virtualtime::advance(0);
    QCOMPARE(settings.unit->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(settings.inPage<QLabel>("heading")->text(), QStringLiteral("Sprache"));
    QVERIFY(settings.picture() != arabic);
    const Preferences kept(&settings.settings);
    QCOMPARE(kept.language(), QStringLiteral("de"));
    settings.tap("english");
    virtualtime::advance(0);
    QCOMPARE(settings.inPage<QLabel>("heading")->text(), QStringLiteral("Language"));
}

void SettingsPageTest::settingsThatMakeNoSenseAreIgnored()
{
    PageWorld world;
    world.settings.setValue(QStringLiteral("display/brightness"), 3);
    world.settings.setValue(QStringLiteral("display/look"), QStringLiteral("purple"));
    world.settings.setValue(QStringLiteral("general/language"), QStringLiteral("xx"));
    Preferences preferences(&world.settings);
    QCOMPARE(preferences.brightness(), 100);
    QVERIFY(preferences.look() == Preferences::Look::Day);
    preferences.setBrightness(0);
    preferences.setBrightness(101);
    QCOMPARE(preferences.brightness(), 100);
    const Languages languages(&preferences);
    QVERIFY(Languages::codes().contains(QLocale().name().left(2)));
}

void SettingsPageTest::updateRunsToItsEnd()
{
    Settings settings;
    settings.open(UpdateKey);
    auto *busy = settings.inPage<SpLoadingRound>("busy");
    auto *progress = settings.inPage<MOProgress>("progress");
    QVERIFY(settings.inPage<QWidget>("rest")->isVisible()); // nothing counts before it starts
    QVERIFY(!progress->isVisible());
    settings.tap("key");
    QVERIFY(busy->isVisible());
    const int index = busy->index();
    virtualtime::advance(500);
    QVERIFY(busy->index() != index);
    virtualtime::advance(2600);
    QVERIFY(!busy->isVisible());
    QVERIFY(progress->isVisible());
    virtualtime::advance(7500);
    QVERIFY(progress->currentValue() >= 49 && progress->currentValue() <= 51);
    QVERIFY(!settings.child<QWidget>("popup")->isVisible());
    virtualtime::advance(8000);
    QCOMPARE(progress->currentValue(), 100);
    QVERIFY(settings.child<QWidget>("popup")->isVisible());
    QCOMPARE(settings.text("message"), QStringLiteral("The head unit is up to date."));
    QCOMPARE(progress->dispalyText(), QStringLiteral("done"));
}

void SettingsPageTest::updateIsCancelled()
{
    Settings settings;
    settings.open(UpdateKey);
    settings.tap("key");
    QCOMPARE(settings.inPage<SpHorStrButton>("key")->displayString(), QStringLiteral("Cancel"));
    virtualtime::advance(6000);
    settings.tap("key");
    QVERIFY(settings.inPage<QWidget>("rest")->isVisible());
    QVERIFY(settings.text("message").contains(QLatin1String("cancelled")));
    virtualtime::advance(60'000);
    QVERIFY(!settings.child<QWidget>("popup")->isVisible());
}

void SettingsPageTest::fingerThatSlidesOffStartsNoUpdate()
{
    Settings settings;
    settings.open(UpdateKey);
    auto *key = settings.inPage<SpHorStrButton>("key");
    touch(key).press(20, 20).moveTo(20, -40).release();
    QCOMPARE(key->displayString(), QStringLiteral("Look for an update"));
}

void SettingsPageTest::licenceIsShownWhole_data()
{
    QTest::addColumn<QSize>("screen");
    for (const QSize &screen :
         {QSize(800, 480), QSize(1024, 600), QSize(1280, 720), QSize(1920, 720)})
        QTest::addRow("%dx%d", screen.width(), screen.height()) << screen;
}

// The label keeps a limited number of characters, and breaks lines that are too wide in the middle
// of words.
void SettingsPageTest::licenceIsShownWhole()
{
    QFETCH(QSize, screen);
    PageWorld world;
    HeadUnit unit(world.context, screen, Theme::Day);
    unit.openPage(QStringLiteral("settings"));
    WidgetTest::show(unit);
    auto *page = unit.page(QStringLiteral("settings"));
    page->findChild<QStackedWidget *>(QStringLiteral("views"))->setCurrentIndex(AboutKey);
    auto *label = page->findChild<MVScrollLabel *>();
    auto *next = page->findChild<SpIconButton *>(QStringLiteral("nextKey"));
    const QFontMetrics metrics(label->font());
    QCOMPARE(label->height() % metrics.lineSpacing(), 0);
    QString shown;
    for (int turns = 0; turns < 100; ++turns) {
        for (const QString &line : label->text().split(QLatin1Char('\n')))
            QVERIFY2(metrics.horizontalAdvance(line) <= label->width(), qPrintable(line));
        shown += label->text() + QLatin1Char('\n');
        if (next->disableState())
            break;
        emit next->btnClicked({});
    }
    QFile file(Theme::file(QStringLiteral("LICENSE")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(words(shown), words(QString::fromUtf8(file.readAll())));
}

void SettingsPageTest::partsOfTheLicenceAreTurned()
{
    QCOMPARE(partsOf(QStringLiteral("one two\nthree\n\nfour\n\nfive"), 15),
             QStringList({QStringLiteral("one two three"), QStringLiteral("four\n\nfive")}));
    QCOMPARE(partsOf(QStringLiteral("one two three"), 8),
             QStringList({QStringLiteral("one two"), QStringLiteral("three")}));
    Settings settings;
    settings.open(AboutKey);
    const QString first = settings.inPage<QLabel>("licence")->text();
    QVERIFY(settings.inPage<SpIconButton>("previousKey")->disableState());
    settings.tap("nextKey");
    QVERIFY(settings.inPage<QLabel>("licence")->text() != first);
    settings.tap("previousKey");
    QCOMPARE(settings.inPage<QLabel>("licence")->text(), first);
    virtualtime::advance(2100);
    QVERIFY(settings.inPage<MVScrollLabel>("licence")->isScroll());
}

void SettingsPageTest::idleViewsDoNothing_data()
{
    QTest::addColumn<int>("view");
    QTest::newRow("general") << int(GeneralKey);
    QTest::newRow("display") << int(DisplayKey);
    QTest::newRow("language") << int(LanguageKey);
    QTest::newRow("update") << int(UpdateKey);
}

// Also when the licence was left before it began to roll, and after an update was cancelled.
void SettingsPageTest::idleViewsDoNothing()
{
    QFETCH(int, view);
    PageWorld world;
    SettingsPage page(world.context);
    showPage(world.screen, page);
    auto *views = page.findChild<QStackedWidget *>(QStringLiteral("views"));
    views->setCurrentIndex(AboutKey);
    virtualtime::advance(1000);
    views->setCurrentIndex(view);
    if (view == UpdateKey) {
        auto *key = page.findChild<SpHorStrButton *>();
        emit key->clicked({});
        virtualtime::advance(4000);
        emit key->clicked({});
    }
    QCOMPARE(happenedWhileIdle(), QString());
}

WIDGET_TEST_MAIN(SettingsPageTest)
#include "tst_settingspage.moc"
