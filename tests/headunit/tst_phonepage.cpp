// SPDX-License-Identifier: Apache-2.0
#include "pages/phone.h"

#include "pagetest.h"
#include "sidekeys.h"
#include "statusbar.h"
#include "touch.h"
#include "virtualtime.h"

#include <MArcList>
#include <MArcScrollBar>
#include <SpDisLabel>
#include <SpIconButton>
#include <SpTableList>
#include <SpVerStrButton>

#include <QFile>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>

#include <utility>

using namespace headunit;

namespace
{

enum SideKey : int { ContactsKey, FavouritesKey, KeypadKey };

// Ten people for each letter, of whom the first is a favourite.
QByteArray telephoneBook()
{
    QByteArray cards;
    for (int i = 0; i < 260; ++i) {
        const QByteArray name =
            QByteArray(1, char('A' + i / 10)) + "nn " + char('A' + i % 10) + "yton";
        cards += "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + name + "\r\nTEL:030 "
            + QByteArray::number(1000 + i) + (i == 0 ? "\r\nX-FAVORITE:true" : "")
            + "\r\nEND:VCARD\r\n";
    }
    return cards;
}

struct Phone : PageWorld {
    explicit Phone(const QByteArray &cards = telephoneBook())
    {
        QFile file(folder.filePath(QStringLiteral("contacts.vcf")));
        if (file.open(QIODevice::WriteOnly))
            file.write(cards);
        file.close();
        contacts.load(file.fileName());
        showPage(screen, page);
    }

    template <typename Widget> Widget *child(const char *name)
    {
        return page.findChild<Widget *>(QLatin1String(name));
    }
    void open(SideKey key)
    {
        emit child<SideKeys>("sideKeys")->chosen(key);
        virtualtime::advance(0);
    }
    Touch tap(const char *name) { return touch(child<SpIconButton>(name)).tap(20, 20).hold(0); }
    void write(const QByteArray &digits)
    {
        for (const char digit : digits)
            tap(QByteArray("key_") + digit);
    }
    void startMusic()
    {
        Track track;
        track.path = folder.filePath(QStringLiteral("contacts.vcf")); // a file that there is
        track.seconds = 100;
        music.tracks()->setTracks({track});
        player.setModel(music.tracks());
        player.play();
    }
    // Without the marks that keep it in its direction.
    QString number()
    {
        QString shown = page.findChild<SpDisLabel *>()->text();
        return shown.remove(QChar(0x202a)).remove(QChar(0x202c));
    }
    QString state() { return child<QLabel>("state")->text(); }
    bool isCallShown() { return child<QLabel>("state")->isVisible(); }

    PhonePage page{context};
};

} // namespace

class tst_PhonePage : public WidgetTest
{
    Q_OBJECT

private slots:
    void keypadWrites();
    void heldDeleteKeyEmptiesTheNumber();
    void callConnectsAndEnds();
    void tapOnAContactCalls();
    void favouriteIsCalledWhereTheFingerIsLifted();
    void callKeyWithoutANumberDoesNothing();
    void keypadIsAsBeforeAfterACall();
    void letterScrollsTheContacts();
    void letterUnderTheFingerScrollsTheContacts_data();
    void letterUnderTheFingerScrollsTheContacts();
    void barAtTheEndScrollsToTheLastContacts();
    void listEndsInWholeRows();
    void rowsFadeWhereThereAreMore();
    void callKeyCallsAgainAfterACall();
    void callsBeginWithoutMute();
    void keysWithoutANumberLookDead();
    void favouritesReachBothEdges();
    void callIsSeenOnOtherPages();
    void recentNumbersPersist();
    void musicPausesDuringACall();
    void musicGoesOnWhereTheSettingsSaySo();
    void backLeadsFromTheKeypadToTheCall();
    void nothingHappensWhileIdle();
};

void tst_PhonePage::keypadWrites()
{
    Phone phone;
    phone.open(KeypadKey);
    phone.write("0190");
    phone.tap("key_star");
    phone.tap("key_hash");
    QCOMPARE(phone.number(), QStringLiteral("0190*#"));
    phone.tap("deleteKey");
    QCOMPARE(phone.number(), QStringLiteral("0190*"));
}

void tst_PhonePage::heldDeleteKeyEmptiesTheNumber()
{
    Phone phone;
    phone.open(KeypadKey);
    phone.write("0123456789");
    Touch finger = touch(phone.child<SpIconButton>("deleteKey"));
    finger.press(20, 20).hold(700);
    QVERIFY(phone.number().size() < 10 && !phone.number().isEmpty());
    finger.hold(2000).release();
    QCOMPARE(phone.number(), QStringLiteral("Enter a number"));
    phone.write("7");
    QCOMPARE(phone.number(), QStringLiteral("7"));
}

void tst_PhonePage::callConnectsAndEnds()
{
    Phone phone;
    phone.open(KeypadKey);
    phone.write("555");
    phone.tap("callKey");
    QVERIFY(phone.isCallShown());
    QCOMPARE(phone.state(), QStringLiteral("Calling…"));
    virtualtime::advance(1999);
    QCOMPARE(phone.state(), QStringLiteral("Calling…"));
    virtualtime::advance(1);
    QCOMPARE(phone.state(), QStringLiteral("Connected, 0:00"));
    virtualtime::advance(65'000);
    QCOMPARE(phone.state(), QStringLiteral("Connected, 1:05"));
    phone.tap("holdKey");
    QCOMPARE(phone.state(), QStringLiteral("On hold, 1:05"));
    phone.tap("hangUpKey");
    QVERIFY(!phone.isCallShown());
    QVERIFY(phone.child<SideKeys>("sideKeys")->isVisible());
}

void tst_PhonePage::tapOnAContactCalls()
{
    Phone phone;
    auto *list = phone.child<SpTableList>("list");
    const QPoint place = list->visualRect(list->model()->index(1, 0)).center();
    touch(list->viewport()).press(place).hold(40).release().hold(200);
    QVERIFY(phone.isCallShown());
    QCOMPARE(phone.child<QLabel>("name")->text(), QStringLiteral("Ann Byton"));
}

void tst_PhonePage::favouriteIsCalledWhereTheFingerIsLifted()
{
    Phone phone;
    phone.open(FavouritesKey);
    auto *key = phone.child<SpVerStrButton>("favourite0");
    touch(key).press(20, 20).moveTo(20, key->height() + 40).release();
    QVERIFY(!phone.isCallShown());
    QVERIFY(!key->isDown());
    touch(key).tap(20, 20);
    QVERIFY(phone.isCallShown());
    QCOMPARE(phone.child<QLabel>("name")->text(), QStringLiteral("Ann Ayton"));
}

void tst_PhonePage::callKeyWithoutANumberDoesNothing()
{
    Phone phone;
    phone.open(KeypadKey);
    phone.tap("callKey");
    QVERIFY(!phone.isCallShown());
}

// It ends the call while there is one, and the view is out of sight when that begins and ends.
void tst_PhonePage::callKeyCallsAgainAfterACall()
{
    Phone phone;
    phone.open(KeypadKey);
    const auto face = [&phone] {
        return phone.child<SpIconButton>("callKey")->normalImage().toImage().pixelColor(40, 8);
    };
    const QColor calling = face();
    phone.open(FavouritesKey);
    touch(phone.child<SpVerStrButton>("favourite0")).tap(20, 20);
    phone.tap("keypadKey");
    QVERIFY(face() != calling);
    QVERIFY(phone.page.goBack());
    phone.tap("hangUpKey");
    phone.open(KeypadKey);
    QCOMPARE(face(), calling);
    phone.write("555");
    phone.tap("callKey");
    phone.tap("hangUpKey");
    QVERIFY(phone.child<SpIconButton>("callKey")->isVisible());
    QCOMPARE(face(), calling);
}

void tst_PhonePage::callsBeginWithoutMute()
{
    Phone phone;
    const auto call = [&phone] {
        phone.open(FavouritesKey);
        touch(phone.child<SpVerStrButton>("favourite0")).tap(20, 20).hold(0);
        return phone.child<SpIconButton>("muteKey")->normalImage().toImage();
    };
    const QImage open = call();
    phone.tap("muteKey");
    QVERIFY(phone.child<SpIconButton>("muteKey")->normalImage().toImage() != open);
    phone.tap("hangUpKey");
    QCOMPARE(call(), open);
}

void tst_PhonePage::keysWithoutANumberLookDead()
{
    Phone phone;
    phone.open(KeypadKey);
    const auto isDead = [&phone](const char *key) {
        return phone.child<SpIconButton>(key)->disableState();
    };
    QVERIFY(isDead("callKey") && isDead("deleteKey"));
    QCOMPARE(phone.number(), QStringLiteral("Enter a number"));
    phone.write("5");
    QVERIFY(!isDead("callKey") && !isDead("deleteKey"));
    phone.tap("deleteKey");
    QVERIFY(isDead("callKey") && isDead("deleteKey"));
    phone.write("5");
    phone.tap("callKey");
    phone.tap("keypadKey");
    QVERIFY(!isDead("callKey")); // it hangs up
    QCOMPARE(phone.number(), QString());
}

void tst_PhonePage::favouritesReachBothEdges()
{
    QByteArray cards;
    for (int i = 0; i < 8; ++i)
        cards += "BEGIN:VCARD\r\nFN:Ann Number" + QByteArray::number(i)
            + "\r\nTEL:1\r\nX-FAVORITE:true\r\nEND:VCARD\r\n";
    Phone phone(cards);
    phone.open(FavouritesKey);
    const QWidget *view = phone.child<QWidget>("favourite0")->parentWidget();
    for (int width = 700; width < 704; ++width) {
        phone.child<QWidget>("favourite0")->parentWidget()->resize(width, 401);
        QCOMPARE(phone.child<QWidget>("favourite0")->geometry().topLeft(), QPoint(0, 0));
        QCOMPARE(phone.child<QWidget>("favourite7")->geometry().bottomRight(),
                 view->rect().bottomRight());
    }
}

void tst_PhonePage::callIsSeenOnOtherPages()
{
    Phone phone;
    StatusBar bar(phone.context, &phone.screen);
    bar.setTheme(Theme({1024, 600}, Theme::Night));
    connect(&phone.page, &PhonePage::callTimeChanged, &bar, &StatusBar::setCall);
    bar.setGeometry(0, 0, 1024, 76);
    bar.show();
    auto *chip = bar.findChild<SpIconButton *>(QStringLiteral("callChip"));
    const QSignalSpy wanted(&bar, &StatusBar::callWanted);
    QVERIFY(chip->isHidden());
    phone.open(FavouritesKey);
    touch(phone.child<SpVerStrButton>("favourite0")).tap(20, 20).hold(2000 + 65'000);
    QVERIFY(chip->isVisible());
    QCOMPARE(chip->displayText(), QStringLiteral("1:05"));
    touch(chip).tap(20, 20);
    QCOMPARE(wanted.count(), 1);
    phone.tap("hangUpKey");
    QVERIFY(chip->isHidden());
}

// During a call it has more room, and wider keys.
void tst_PhonePage::keypadIsAsBeforeAfterACall()
{
    Phone phone;
    phone.open(KeypadKey);
    const QRect callKey = phone.child<QWidget>("callKey")->geometry();
    const QRect deleteKey = phone.child<QWidget>("deleteKey")->geometry();
    phone.write("555");
    phone.tap("callKey");
    phone.tap("keypadKey");
    QVERIFY(phone.child<QWidget>("callKey")->width() > callKey.width());
    phone.tap("callKey"); // hangs up
    virtualtime::advance(0);
    QCOMPARE(phone.child<QWidget>("callKey")->geometry(), callKey);
    QCOMPARE(phone.child<QWidget>("deleteKey")->geometry(), deleteKey);
}

void tst_PhonePage::letterScrollsTheContacts()
{
    Phone phone;
    emit phone.page.findChild<MArcList *>()->itemClicked('H');
    QCOMPARE(phone.child<SpTableList>("list")->rowAt(0), 70);
}

void tst_PhonePage::letterUnderTheFingerScrollsTheContacts_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QPointF>("letters"); // where they are, in parts of the index
    for (const QSize &size : {QSize(800, 480), QSize(1024, 600), QSize(1920, 720)}) {
        QTest::addRow("%d left to right", size.height())
            << size << Qt::LeftToRight << QPointF(0.35, 0.7);
        QTest::addRow("%d right to left", size.height())
            << size << Qt::RightToLeft << QPointF(0.75, 0.7);
    }
}

void tst_PhonePage::letterUnderTheFingerScrollsTheContacts()
{
    QFETCH(QSize, size);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QPointF, letters);
    Phone phone;
    phone.screen.resize(size);
    phone.page.setLayoutDirection(direction);
    phone.page.setTheme(Theme(size, Theme::Night));
    phone.page.setGeometry(0, 76, size.width(), size.height() - 76);
    virtualtime::advance(0);
    auto *index = phone.child<QWidget>("index");
    auto *list = phone.child<SpTableList>("list");
    QCOMPARE(index->x() > list->x(), direction == Qt::LeftToRight);
    const QPoint place(int(index->width() * letters.x()), int(index->height() * letters.y()));
    QWidget *hit = index->childAt(place);
    QCOMPARE(hit, phone.page.findChild<MArcList *>());
    const QPoint inHit = hit->mapFrom(index, place);
    touch(hit).tap(inHit.x(), inHit.y()).hold(0);
    QVERIFY(!phone.isCallShown());
    const int row = list->rowAt(0);
    QVERIFY2(row > 0 && row % 10 == 0, qPrintable(QString::number(row)));
}

void tst_PhonePage::barAtTheEndScrollsToTheLastContacts()
{
    Phone phone;
    phone.page.setLayoutDirection(Qt::RightToLeft);
    phone.page.setTheme(Theme({1024, 600}, Theme::Night));
    virtualtime::advance(0);
    auto *bar = phone.page.findChild<MArcScrollBar *>();
    touch(bar).press(20, bar->height() / 2).moveTo(20, bar->height() - 20).release().hold(0);
    const QScrollBar *place = phone.child<SpTableList>("list")->verticalScrollBar();
    QCOMPARE(place->value(), place->maximum());
}

// No row is cut in the air: the list goes from border to border of its panel.
void tst_PhonePage::listEndsInWholeRows()
{
    Phone phone;
    auto *list = phone.child<SpTableList>("list");
    const int row = list->visualRect(list->model()->index(0, 0)).height();
    QVERIFY(row >= Theme({1024, 600}, Theme::Night).touch());
    QCOMPARE(list->viewport()->height() % row, 0);
    QVERIFY(list->y() < row / 8);
    QVERIFY(phone.child<QLabel>("panel")->height() - list->geometry().bottom() < row / 8);
}

void tst_PhonePage::rowsFadeWhereThereAreMore()
{
    Phone phone;
    QScrollBar *place = phone.child<SpTableList>("list")->verticalScrollBar();
    const auto fades = [&phone] {
        return std::make_pair(phone.child<QLabel>("fadeAbove")->isVisible(),
                              phone.child<QLabel>("fadeBelow")->isVisible());
    };
    QCOMPARE(fades(), std::make_pair(false, true));
    place->setValue(place->maximum() / 2);
    QCOMPARE(fades(), std::make_pair(true, true));
    place->setValue(place->maximum());
    QCOMPARE(fades(), std::make_pair(true, false));
}

void tst_PhonePage::recentNumbersPersist()
{
    Phone phone;
    phone.open(KeypadKey);
    for (const char *number : {"111", "222", "111"}) {
        phone.write(number);
        phone.tap("callKey");
        phone.tap("hangUpKey");
    }
    PhonePage another(phone.context);
    const QAbstractItemModel *rows = another.findChild<SpTableList *>("recents")->model();
    QCOMPARE(rows->rowCount(), 2);
    QVERIFY(rows->index(0, 0).data().toString().contains(QLatin1String("111")));
    QVERIFY(rows->index(1, 0).data().toString().contains(QLatin1String("222")));
}

void tst_PhonePage::musicPausesDuringACall()
{
    Phone phone;
    phone.startMusic();
    phone.open(KeypadKey);
    phone.write("555");
    phone.tap("callKey");
    QVERIFY(!phone.player.isPlaying());
    phone.tap("hangUpKey");
    QVERIFY(phone.player.isPlaying());
}

void tst_PhonePage::musicGoesOnWhereTheSettingsSaySo()
{
    Phone phone;
    phone.preferences.setOn(Preferences::Option::CallsPauseMusic, false);
    phone.startMusic();
    phone.open(KeypadKey);
    phone.write("555");
    phone.tap("callKey");
    QVERIFY(phone.player.isPlaying());
    phone.player.pause();
    phone.tap("hangUpKey");
    QVERIFY(!phone.player.isPlaying());
}

void tst_PhonePage::backLeadsFromTheKeypadToTheCall()
{
    Phone phone;
    phone.open(KeypadKey);
    phone.write("555");
    QVERIFY(!phone.page.goBack());
    phone.tap("callKey");
    QVERIFY(!phone.page.goBack());
    phone.tap("keypadKey");
    QVERIFY(!phone.isCallShown());
    QCOMPARE(phone.number(), QString());
    QVERIFY(phone.page.goBack());
    QVERIFY(phone.isCallShown());
}

void tst_PhonePage::nothingHappensWhileIdle()
{
    Phone phone;
    for (const SideKey view : {ContactsKey, FavouritesKey, KeypadKey}) {
        phone.open(view);
        if (view == KeypadKey) { // after a call, too
            phone.write("555");
            phone.tap("callKey").hold(5000);
            phone.tap("hangUpKey");
        }
        QCOMPARE(happenedWhileIdle(), QString());
    }
}

WIDGET_TEST_MAIN(tst_PhonePage)
#include "tst_phonepage.moc"
