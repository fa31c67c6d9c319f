// SPDX-License-Identifier: Apache-2.0
#include "pages/phone.h"

#include "pagetest.h"
#include "sidekeys.h"
#include "touch.h"
#include "virtualtime.h"

#include <MArcList>
#include <SpDisLabel>
#include <SpIconButton>
#include <SpTableList>
#include <SpVerStrButton>

#include <QFile>
#include <QLabel>

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
    Phone()
    {
        QFile file(folder.filePath(QStringLiteral("contacts.vcf")));
        if (file.open(QIODevice::WriteOnly))
            file.write(telephoneBook());
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
    QCOMPARE(phone.number(), QString());
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
    QCOMPARE(phone.state(), QStringLiteral("Calling..."));
    virtualtime::advance(1999);
    QCOMPARE(phone.state(), QStringLiteral("Calling..."));
    virtualtime::advance(1);
    QCOMPARE(phone.state(), QStringLiteral("0:00"));
    virtualtime::advance(65'000);
    QCOMPARE(phone.state(), QStringLiteral("1:05"));
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
