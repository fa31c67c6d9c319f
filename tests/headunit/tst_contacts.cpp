// SPDX-License-Identifier: Apache-2.0
#include "contacts.h"
#include "samples.h"

#include "files.h"
#include "widgettest.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace headunit;

namespace
{

QByteArray card(const QByteArray &lines)
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\n" + lines + "\r\nEND:VCARD\r\n";
}

QStringList namesOf(const Contacts &contacts)
{
    QStringList names;
    for (int row = 0; row < contacts.rowCount(); ++row)
        names.append(contacts.index(row).data(Contacts::NameRole).toString());
    return names;
}

} // namespace

class tst_Contacts : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_folder;

    // The sentences that loading these bytes brings.
    QStringList problemsOf(Contacts &contacts, const QByteArray &bytes) const
    {
        QSignalSpy problems(&contacts, &Contacts::problem);
        contacts.load(writtenFile(m_folder.filePath(QStringLiteral("people.vcf")), bytes));
        QStringList sentences;
        for (const QVariantList &arguments : problems)
            sentences.append(arguments.first().toString());
        return sentences;
    }

    Contact only(const QByteArray &bytes) const
    {
        Contacts contacts;
        const QStringList problems = problemsOf(contacts, bytes);
        return problems.isEmpty() && contacts.rowCount() == 1 ? contacts.contact(0) : Contact();
    }

private slots:
    void theSamplesAreInOrder()
    {
        Contacts contacts;
        QSignalSpy problems(&contacts, &Contacts::problem);
        QVERIFY(contacts.load(samples::contactsFile()));
        QCOMPARE(problems.count(), 0);
        QCOMPARE(contacts.rowCount(), 40);
        QCOMPARE(contacts.favourites().size(), 6);
        QCOMPARE(contacts.contactByNumber(QStringLiteral("+49 30 23125110")).name,
                 QStringLiteral("Jörg Müller"));
        QVERIFY(contacts.rowOfLetter(QLatin1Char('B')) > 0);
        const QStringList names = namesOf(contacts);
        QVERIFY(names.contains(QStringLiteral("ليلى الحداد")));
        QVERIFY(names.contains(QStringLiteral("Maximiliane Theodora von Hohenstein-Lichtenfels")));
    }

    void eachVersionIsRead_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("2.1") << QByteArray(
            "BEGIN:VCARD\r\nVERSION:2.1\r\n"
            "N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:M=C3=BCller;J=C3=B6=\r\nrg;;;\r\n"
            "TEL;HOME:030 11\r\nTEL;CELL;PREF:0151 22\r\nORG:Autohaus;Verkauf\r\n"
            "PHOTO;ENCODING=BASE64;JPEG:\r\n /9j/4AAQ\r\n TEL:666\r\n\r\n"
            "CATEGORIES:Work,Favourite\r\nEND:VCARD\r\n");
        QTest::newRow("2.1 in Latin-1")
            << QByteArray("BEGIN:VCARD\nVERSION:2.1\n"
                          "FN;CHARSET=ISO-8859-1;QUOTED-PRINTABLE:J=F6rg M=FCller\n"
                          "TEL;CELL:0151 22\nTEL;HOME:030 11\nORG:Autohaus\n"
                          "X-FAVORITE:TRUE\nEND:VCARD\n");
        QTest::newRow("3.0") << QByteArray(
            "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Jörg\r\n  Mül\r\n\tler\r\nN:Müller;Jörg;;;\r\n"
            "item1.TEL;TYPE=HOME,VOICE:030 11\r\nTEL;TYPE=CELL;TYPE=pref:0151 22\r\n"
            "ORG:Autohaus;\r\nX-FAVORITE:true\r\nNOTE:BEGIN\\:VCARD\r\nEND:VCARD\r\n");
        QTest::newRow("4.0") << QByteArray("begin:vcard\nversion:4.0\nfn:Jörg Müller\n"
                                           "tel;value=uri;type=\"home,voice\":tel:030-11;ext=5\n"
                                           "tel;type=cell;pref=1;value=\"uri\":tel:0151-22\n"
                                           "org:Autohaus\ncategories:favorites\nend:vcard\n");
        QTest::newRow("old line ends") << card("FN:Jörg Müller\r\nTEL;TYPE=CELL:0151 22\r\n"
                                               "TEL;TYPE=HOME:030 11\r\nORG:Autohaus\r\n"
                                               "X-FAVORITE:true")
                                              .replace("\r\n", "\r");
    }

    void eachVersionIsRead()
    {
        QFETCH(QByteArray, bytes);
        const Contact contact = only(bytes);
        QCOMPARE(contact.name, QStringLiteral("Jörg Müller"));
        QCOMPARE(contact.organisation, QStringLiteral("Autohaus"));
        QCOMPARE(contact.numbers.size(), 2);
        QCOMPARE(contact.numbers.at(0).number, QStringLiteral("0151 22"));
        QVERIFY(contact.numbers.at(0).kind == PhoneNumber::Kind::Mobile);
        QCOMPARE(contact.numbers.at(1).number, QStringLiteral("030 11"));
        QVERIFY(contact.numbers.at(1).kind == PhoneNumber::Kind::Home);
        QVERIFY(contact.isFavourite);
    }

    void aFoldMayCutALetter()
    {
        QCOMPARE(only(card("FN:J\xC3\r\n \xB6rg")).name, QStringLiteral("Jörg"));
    }

    void utf16IsRead()
    {
        const QString text = QString::fromUtf8(card("FN:Анна"));
        QByteArray bytes("\xFF\xFE", 2);
        bytes.append(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
        QCOMPARE(only(bytes).name, QStringLiteral("Анна"));
    }

    void escapesAndStrangeSignsBecomeText()
    {
        QCOMPARE(only(card("FN:A\\, B\\; C\\nD\\\\E")).name, QStringLiteral("A, B; C D\\E"));
        QCOMPARE(only(card("FN:A\x01\xE2\x80\xAE"
                           "B"))
                     .name,
                 QStringLiteral("AB"));
        QCOMPARE(only(card("FN:" + QByteArray("x").repeated(5000))).name.size(), 300);
        QCOMPARE(only(card("FN:M\xFCll")).name, QStringLiteral("Müll"));
    }

    void aCardWithoutANameIsCalledByWhatItHas()
    {
        QCOMPARE(only(card("N:Sand;Emil;K.;Dr.;")).name, QStringLiteral("Emil K. Sand"));
        QCOMPARE(only(card("FN:\r\nORG:Werft")).name, QStringLiteral("Werft"));
        QCOMPARE(only(card("TEL:112")).name, QStringLiteral("112"));
    }

    void numbersThatAreNoneAreLeftOut()
    {
        const Contact contact =
            only(card("FN:A\r\nTEL:\r\nTEL:none\r\nTEL:" + QByteArray("1").repeated(41)
                      + "\r\nTEL;TYPE=WORK:*21#" + QByteArray("\r\nTEL:5").repeated(100)));
        QCOMPARE(contact.numbers.size(), 20);
        QCOMPARE(contact.numbers.first().number, QStringLiteral("*21#"));
        QVERIFY(contact.numbers.first().kind == PhoneNumber::Kind::Work);
    }

    void rowsAreSortedByNameForReaders()
    {
        Contacts contacts;
        QAbstractItemModelTester tester(&contacts,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        problemsOf(contacts,
                   card("FN:Zoe") + card("FN:ärmel") + card("FN:Bea 10") + card("FN:Bea 9")
                       + card("FN:Ada") + card("FN:Élan") + card("FN:Яна"));
        QCOMPARE(namesOf(contacts),
                 QStringList({"Ada", "ärmel", "Bea 9", "Bea 10", "Élan", "Zoe", "Яна"}));
        QCOMPARE(contacts.letters(), QVector<QChar>({'A', 'B', 'E', 'Z', QChar(0x042F)}));
        QCOMPARE(contacts.rowOfLetter(QLatin1Char('E')), 4);
        QCOMPARE(contacts.rowOfLetter(QLatin1Char('C')), 4);
        QCOMPARE(contacts.letterOf(1), QChar('A'));
    }

    void theRolesTellWhatARowShows()
    {
        Contacts contacts;
        problemsOf(contacts,
                   card("FN:Ada Brook\r\nTEL;TYPE=CELL:1\r\nTEL:2\r\nX-FAVORITE:true\r\nORG:Z")
                       + card("FN:Bea"));
        const QModelIndex ada = contacts.index(0);
        QCOMPARE(ada.data().toString(), QStringLiteral("Ada Brook"));
        QCOMPARE(ada.data(Contacts::NumberRole).toString(), QStringLiteral("1"));
        QCOMPARE(ada.data(Contacts::NumbersRole).toStringList(), QStringList({"1", "2"}));
        QCOMPARE(ada.data(Contacts::KindRole).toString(), QStringLiteral("Mobile"));
        QCOMPARE(ada.data(Contacts::KindsRole).toStringList(), QStringList({"Mobile", "Phone"}));
        QCOMPARE(ada.data(Contacts::FavouriteRole).toBool(), true);
        QCOMPARE(ada.data(Contacts::InitialsRole).toString(), QStringLiteral("AB"));
        QCOMPARE(ada.data(Contacts::OrganisationRole).toString(), QStringLiteral("Z"));
        const QModelIndex bea = contacts.index(1);
        QCOMPARE(bea.data(Contacts::NumberRole).toString(), QString());
        QCOMPARE(bea.data(Contacts::KindRole).toString(), QString());
        QCOMPARE(bea.data(Contacts::FavouriteRole).toBool(), false);
        QVERIFY(!contacts.data(contacts.index(2), Contacts::NameRole).isValid());
        QCOMPARE(contacts.favourites(), QVector<int>({0}));
        QVERIFY(contacts.contact(-1).name.isEmpty());
    }

    void initialsAreThoseOfTheFirstAndTheLastWord()
    {
        QCOMPARE(Contacts::initialsOf(QStringLiteral("ada maria brook")), QStringLiteral("AB"));
        QCOMPARE(Contacts::initialsOf(QStringLiteral("Öz")), QStringLiteral("Ö"));
        QCOMPARE(Contacts::initialsOf(QStringLiteral("(Dr.) Ada - ")), QStringLiteral("DA"));
        QCOMPARE(Contacts::initialsOf(QStringLiteral("ليلى الحداد")), QStringLiteral("ل\u200cا"));
        QCOMPARE(Contacts::initialsOf(QStringLiteral("أمينة ياسين")), QStringLiteral("أي"));
        QCOMPARE(Contacts::initialsOf(QString::fromUtf8("\xF0\x90\x90\x80x")),
                 QString::fromUtf8("\xF0\x90\x90\x80"));
        QCOMPARE(Contacts::initialsOf(QStringLiteral("-- ")), QString());
    }

    void numbersAreFoundHoweverTheyAreWritten_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("name");
        QTest::newRow("as written") << "+49 (30) 1234-567"
                                    << "Ada";
        QTest::newRow("without signs") << "+49301234567"
                                       << "Ada";
        QTest::newRow("two zeros") << "0049301234567"
                                   << "Ada";
        QTest::newRow("within the country") << "0301234567"
                                            << "Ada";
        QTest::newRow("other digits") << QString::fromUtf8("٠٣٠١٢٣٤٥٦٧") << "Ada";
        QTest::newRow("another country") << "+43301234567"
                                         << "";
        QTest::newRow("longer") << "03012345678"
                                << "";
        QTest::newRow("the end alone") << "34567"
                                       << "";
        QTest::newRow("short") << "112"
                               << "Help";
        QTest::newRow("short and longer") << "1123"
                                          << "";
        QTest::newRow("code") << "*21#"
                              << "Code";
        QTest::newRow("same ending") << "0401234567"
                                     << "Bea";
        QTest::newRow("no digit") << "abc"
                                  << "";
        QTest::newRow("nothing") << ""
                                 << "";
    }

    void numbersAreFoundHoweverTheyAreWritten()
    {
        QFETCH(QString, number);
        Contacts contacts;
        problemsOf(contacts,
                   card("FN:Ada\r\nTEL:1\r\nTEL:+49 (30) 1234-567") + card("FN:Help\r\nTEL:112")
                       + card("FN:Code\r\nTEL:*21#") + card("FN:Bea\r\nTEL:040 1234567"));
        QTEST(contacts.contactByNumber(number).name, "name");
    }

    void brokenCardsAreLeftOutAndCounted()
    {
        Contacts contacts;
        const QStringList problems =
            problemsOf(contacts,
                       card("FN:Ada") + card("NOTE:nothing") + "BEGIN:VCARD\r\nFN:Open\r\n"
                           + card("FN:Bea") + "FN:Nobody\r\nEND:VCARD\r\nBEGIN:VCARD\r\nFN:Cut");
        QCOMPARE(problems,
                 QStringList(QStringLiteral("Cards of people.vcf that make no sense and are left "
                                            "out: 3. The first is in line 5.")));
        QCOMPARE(namesOf(contacts), QStringList({"Ada", "Bea"}));
    }

    void aFileThatCannotBeReadSaysWhy()
    {
        Contacts contacts;
        QCOMPARE(problemsOf(contacts, "Hello\n"),
                 QStringList(m_folder.filePath(QStringLiteral("people.vcf"))
                             + QStringLiteral(" has no contacts.")));
        QCOMPARE(problemsOf(contacts, "").size(), 1);
        QSignalSpy problems(&contacts, &Contacts::problem);
        QVERIFY(!contacts.load(QStringLiteral("/no/such")));
        QVERIFY(!contacts.load(m_folder.path()));
        QCOMPARE(problems.count(), 2);
    }

    void moreThanTwentyThousandCardsAreBounded()
    {
        QByteArray bytes;
        for (int i = 0; i < 25000; ++i) {
            const QByteArray number = QByteArray::number(i);
            bytes += card("FN:Person " + number + "\r\nTEL;TYPE=CELL:+49 151 55" + number);
        }
        Contacts contacts;
        const QStringList problems = problemsOf(contacts, bytes);
        QCOMPARE(problems,
                 QStringList(QStringLiteral(
                     "people.vcf is too long: only the first 20000 contacts are taken.")));
        QCOMPARE(contacts.rowCount(), 20000);
        QCOMPARE(contacts.index(19999).data().toString(), QStringLiteral("Person 19999"));
    }

    void exactlyTwentyThousandCardsAreNotTooMany()
    {
        Contacts contacts;
        QCOMPARE(problemsOf(contacts, card("FN:A").repeated(Contacts::kMost)), QStringList());
        QCOMPARE(contacts.rowCount(), Contacts::kMost);
    }

    void moreBytesThanAreReadAreBounded()
    {
        const QByteArray photo =
            "PHOTO;ENCODING=b:" + QByteArray("\r\n /9j/4AAQSkZJRgABAQ").repeated(60000);
        QByteArray bytes;
        while (bytes.size() <= Contacts::kMostBytes)
            bytes += card("FN:A\r\n" + photo);
        Contacts contacts;
        const QStringList problems = problemsOf(contacts, bytes);
        QCOMPARE(problems.size(), 1);
        QVERIFY(problems.first().startsWith(QStringLiteral("people.vcf is too long")));
        QVERIFY(contacts.rowCount() > 40);
    }

    void oneEndlessLineIsBounded()
    {
        const Contact contact = only(card("FN:A" + QByteArray("\r\n b").repeated(2000000)));
        QCOMPARE(contact.name.size(), 300);
        QCOMPARE(
            only(card("FN;ENCODING=QUOTED-PRINTABLE:A" + QByteArray("=\r\nb").repeated(500000)))
                .name.size(),
            300);
    }

    void anythingIsReadWithoutHarm()
    {
        const QByteArray good = card("FN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:J=C3=B6=\r\nrg\r\n"
                                     "N:A;B\r\nTEL;TYPE=\"cell,voice\":tel:+49-1;ext=1")
                                    .repeated(3);
        QRandomGenerator random(1);
        Contacts contacts;
        for (int i = 0; i < 300; ++i) {
            QByteArray bytes = good;
            for (int k = 0; k < 12; ++k)
                bytes[random.bounded(bytes.size())] = char(random.bounded(256));
            bytes.truncate(random.bounded(bytes.size() + 1));
            problemsOf(contacts, bytes);
            for (const QString &name : namesOf(contacts))
                QVERIFY(!name.isEmpty());
        }
    }
};

WIDGET_TEST_MAIN(tst_Contacts)

#include "tst_contacts.moc"
