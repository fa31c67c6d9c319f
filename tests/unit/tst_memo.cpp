// SPDX-License-Identifier: Apache-2.0
#include "detail/memo.h"

#include "widgettest.h"

#include <QString>

using namespace panelkit;

namespace
{

struct Key {
    int number;
    QString text;

    auto tied() const { return std::tie(number, text); }
};

// A sentence that counts how often it was written.
struct Sentence {
    QString text;
    int writings = 0;
};

QString sentence(Memo<Key, Sentence> &memo, const Key &key)
{
    return memo
        .value(key,
               [&key](Sentence &written) {
                   written.text = key.text.repeated(key.number);
                   ++written.writings;
               })
        .text;
}

} // namespace

class tst_Memo : public WidgetTest
{
    Q_OBJECT

private slots:
    void theFirstKeyIsNewEvenWhereItIsAllZero()
    {
        LastKey<Key> last;
        QCOMPARE(last.changes(), 0);
        QVERIFY(last.changesTo({0, QString()}));
        QVERIFY(!last.changesTo({0, QString()}));
        QCOMPARE(last.changes(), 1);
    }

    void eachMemberCounts()
    {
        LastKey<Key> last;
        last.changesTo({1, QStringLiteral("a")});
        QVERIFY(last.changesTo({2, QStringLiteral("a")}));
        QVERIFY(last.changesTo({2, QStringLiteral("b")}));
        QVERIFY(!last.changesTo({2, QStringLiteral("b")}));
        QCOMPARE(last->number, 2);
        QCOMPARE((*last).text, QStringLiteral("b"));
    }

    void onlyTheLastKeyIsKnown()
    {
        LastKey<Key> last;
        QVERIFY(last.changesTo({1, QString()}));
        QVERIFY(last.changesTo({2, QString()}));
        QVERIFY(last.changesTo({1, QString()}));
    }

    void aValueIsMadeOncePerKey()
    {
        Memo<Key, Sentence> memo;
        QCOMPARE(sentence(memo, {2, QStringLiteral("ab")}), QStringLiteral("abab"));
        QCOMPARE(sentence(memo, {2, QStringLiteral("ab")}), QStringLiteral("abab"));
        QCOMPARE(memo.renewals(), 1);
        QCOMPARE(sentence(memo, {3, QStringLiteral("c")}), QStringLiteral("ccc"));
        QCOMPARE(memo.renewals(), 2);
    }

    void aForgottenValueIsMadeAnewFromTheOneBefore()
    {
        Memo<Key, Sentence> memo;
        sentence(memo, {1, QStringLiteral("a")});
        memo.forget();
        const Sentence &again = memo.value({1, QStringLiteral("a")}, [](Sentence &written) {
            QCOMPARE(written.writings, 1);
            ++written.writings;
        });
        QCOMPARE(again.writings, 2);
    }
};

WIDGET_TEST_MAIN(tst_Memo)
#include "tst_memo.moc"
