// SPDX-License-Identifier: Apache-2.0
// The robustness drive: every listed class under thousands of random actions with hostile values.
// Nothing may crash, warn or trip a sanitizer, and what a class promises holds after each. Each run
// is repeatable: its seed is the name of its row.

#include "drive.h"

#include "widgettest.h"

namespace
{

constexpr int kActions = 2000;
constexpr int kBytes = 64 * kActions; // more than they use
// The sanitizers look at other drives than those that run without them.
#ifdef __SANITIZE_ADDRESS__
constexpr int kFirstSeed = 10001;
#else
constexpr int kFirstSeed = 1;
#endif

// By default what fits into half a minute; a longer drive says so in its environment.
int seeds()
{
    const int asked = qEnvironmentVariableIntValue("PANELKIT_DRIVE_SEEDS");
#ifdef PANELKIT_EMULATED // each costs an emulated processor many minutes
    constexpr int kSeeds = 1;
#else
    constexpr int kSeeds = 3;
#endif
    return asked > 0 ? asked : kSeeds;
}

} // namespace

class tst_Drive : public WidgetTest
{
    Q_OBJECT

private slots:
    void everyClassSurvives_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("seed");
        const auto &classes = drivenClasses();
        for (int i = 0; i < int(classes.size()); ++i) {
            for (int seed = kFirstSeed; seed < kFirstSeed + seeds(); ++seed)
                QTest::addRow("%s %d", classes[size_t(i)].name.constData(), seed) << i << seed;
        }
    }

    void everyClassSurvives()
    {
        QFETCH(int, index);
        QFETCH(int, seed);
        Drive drive(drivenClasses()[size_t(index)], Values::randomBytes(quint32(seed), kBytes));
        const QStringList problems = drive.play(kActions);
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
    }

    // What a generator of bytes finds can be played again.
    void sameBytesSameDrive()
    {
        const auto track = [] {
            Drive drive(drivenClasses().front(), Values::randomBytes(7, kBytes));
            drive.play(kActions / 10);
            return drive.track();
        };
        const QStringList first = track();
        QVERIFY(first.size() > kActions / 10);
        QCOMPARE(track(), first);
    }
};

WIDGET_TEST_MAIN(tst_Drive)
#include "tst_drive.moc"
