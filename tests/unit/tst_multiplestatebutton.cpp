// SPDX-License-Identifier: Apache-2.0
#include <MultipleStateButton>

#include "pictures.h"
#include "signallog.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QGraphicsOpacityEffect>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>

#include <climits>
#include <memory>

namespace
{

const QVector<QColor> kNormal{Qt::green, Qt::cyan, Qt::yellow};
const QVector<QColor> kPress{Qt::red, Qt::magenta, Qt::white};
const QSize kSize(40, 30);

QStringList clicked(int id, int value)
{
    return {QStringLiteral("clicked(%1, %2)").arg(id).arg(value)};
}

} // namespace

class tst_MultipleStateButton : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QWidget m_window;

    QString file(const QString &name, const QColor &color, const QSize &size = kSize) const
    {
        const QString path = m_folder.filePath(name + QStringLiteral(".png"));
        if (!QFile::exists(path))
            picture(color, size).save(path);
        return path;
    }
    QStringList normalFiles(int count = 3) const
    {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths += file(QStringLiteral("n%1").arg(i), kNormal[i % 3]);
        return paths;
    }
    QStringList pressFiles(int count = 3) const
    {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths += file(QStringLiteral("p%1").arg(i), kPress[i % 3]);
        return paths;
    }
    QString background() const
    {
        return file(QStringLiteral("back"), QColor(40, 40, 90), {81, 61});
    }
    std::unique_ptr<MultipleStateButton> makeButton()
    {
        return std::make_unique<MultipleStateButton>(3, 4, 17, normalFiles(), pressFiles(),
                                                     background(), &m_window);
    }
    // Shows a button until nothing paints any more: an effect that changes in a paint asks for one
    // more, which takes some ms.
    static void settle(QWidget &button)
    {
        button.show();
        virtualtime::advance(100);
    }

    static int allPaints(QWidget &button, const std::function<void()> &action)
    {
        return paints(button, [&] {
            action();
            virtualtime::advance(100);
        });
    }

    // What a window with the button in it shows there: an effect needs one to be seen. It stands at
    // the top left, because QWidget::render() moves what an effect has kept.
    QImage composed(QWidget &button)
    {
        button.move(0, 0);
        settle(button);
        return painted(m_window).copy(button.geometry());
    }
    QImage shown(const MultipleStateButton &button, const QColor &color) const
    {
        return reference(button, [&](QPainter &p) {
            p.drawPixmap(0, 0, picture(QColor(40, 40, 90), {81, 61}));
            p.drawPixmap(20, 15, picture(color, kSize));
        });
    }

    // Disabled buttons are those that a tap does not make report anything.
    static bool isDisabled(MultipleStateButton &button)
    {
        SignalLog log(&button);
        touch(&button).tap(1, 1);
        return log.take().isEmpty();
    }

private slots:
    void initTestCase()
    {
        m_window.resize(200, 150);
        show(m_window);
    }

    void aNewButtonStandsWhereItIsToldWithTheSizeOfItsBackground()
    {
        const auto button = makeButton();
        QCOMPARE(button->parentWidget(), &m_window);
        QCOMPARE(button->geometry(), QRect(3, 4, 81, 61));
        QCOMPARE(button->getButtonId(), 17);
        QCOMPARE(button->getButtonValue(), 0);
        auto *effect = qobject_cast<QGraphicsOpacityEffect *>(button->graphicsEffect());
        QVERIFY(effect);
        QCOMPARE(effect->parent(), button.get());
        QVERIFY(!isDisabled(*button));
    }

    // Without a picture it has no size: its right edge is one px left of its left one.
    void aHostilePlaceIsBounded()
    {
        const MultipleStateButton button(INT_MIN, INT_MAX, 0, {}, {}, QString(), &m_window);
        QCOMPARE(button.geometry(), QRect(-QWIDGETSIZE_MAX, QWIDGETSIZE_MAX, 0, 0));
    }

    void withoutABackgroundTheFirstPictureGivesTheSize()
    {
        MultipleStateButton button(-5, 6, INT_MIN, normalFiles(), pressFiles(), QString());
        QCOMPARE(button.geometry(), QRect(-5, 6, 40, 30));
        QCOMPARE(button.getButtonId(), INT_MIN);
        QVERIFY(!button.parent());
        button.setParent(&m_window);
        COMPARE_PICTURES(composed(button), reference(button, [](QPainter &p) {
                             p.drawPixmap(0, 0, picture(kNormal[0], kSize));
                         }));
    }

    void withoutAnyPictureItHasNoSize()
    {
        MultipleStateButton button(1, 2, 3, {}, {}, {}, &m_window);
        QCOMPARE(button.geometry(), QRect(1, 2, 0, 0));
        QVERIFY(isDisabled(button));
        QCOMPARE(button.setButtonValue(1), -1);
        button.resize(20, 20);
        COMPARE_PICTURES(composed(button), reference(button, [](QPainter &) {}));
        QCOMPARE(button.setButtonDisable(false), 0);
        SignalLog log(&button);
        touch(&button).tap(1, 1).tap(1, 1);
        QCOMPARE(log.take(), clicked(3, 0) + clicked(3, 0));
    }

    void picturesThatAreIncompleteDisableIt_data()
    {
        QTest::addColumn<QStringList>("normal");
        QTest::addColumn<QStringList>("press");
        QTest::addColumn<bool>("expected");
        const QStringList absent{m_folder.filePath(QStringLiteral("absent.png"))};
        const QStringList folder{m_folder.path()};
        const QStringList empty{QString()};
        QTest::newRow("complete") << normalFiles() << pressFiles() << false;
        QTest::newRow("one") << normalFiles(1) << pressFiles(1) << false;
        QTest::newRow("twenty-one") << normalFiles(21) << pressFiles(21) << false;
        QTest::newRow("no normal ones") << QStringList() << pressFiles() << true;
        QTest::newRow("no pressed ones") << normalFiles() << QStringList() << true;
        QTest::newRow("fewer pressed ones") << normalFiles() << pressFiles(2) << true;
        QTest::newRow("more pressed ones") << normalFiles(2) << pressFiles() << true;
        QTest::newRow("a normal one absent") << normalFiles(2) + absent << pressFiles() << true;
        QTest::newRow("a pressed one absent") << normalFiles() << pressFiles(2) + absent << true;
        QTest::newRow("a folder") << normalFiles(2) + folder << pressFiles() << true;
        QTest::newRow("an empty path") << normalFiles(2) + empty << pressFiles() << true;
    }

    void picturesThatAreIncompleteDisableIt()
    {
        QFETCH(QStringList, normal);
        QFETCH(QStringList, press);
        MultipleStateButton button(0, 0, 1, normal, press, background(), &m_window);
        QTEST(isDisabled(button), "expected");
        composed(button);
        button.setButtonDisable(false);
        QVERIFY(!isDisabled(button));
        for (int i = 0; i < normal.size(); ++i) {
            touch(&button).press(1, 1);
            composed(button);
            touch(&button).release();
        }
    }

    void aMissingBackgroundIsNoFault()
    {
        const QSize first(44, 33);
        const QStringList normal =
            QStringList(file(QStringLiteral("first"), Qt::blue, first)) + normalFiles(2);
        MultipleStateButton button(0, 0, 1, normal, pressFiles(),
                                   m_folder.filePath(QStringLiteral("absent.png")));
        QVERIFY(!isDisabled(button));
        QCOMPARE(button.size(), first);
    }

    // --- State ----------------------------------------------------------------------------------

    void threeStatesAreSteppedThroughByTouches()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).tap(5, 5).tap(5, 5).tap(5, 5);
        QCOMPARE(log.take(), clicked(17, 1) + clicked(17, 2) + clicked(17, 0));
    }

    void onlyStatesButTheFirstCanBeSet()
    {
        const auto button = makeButton();
        QCOMPARE(button->setButtonValue(2), 0);
        QCOMPARE(button->getButtonValue(), 2);
        for (int value : {0, -1, 3, INT_MIN, INT_MAX}) {
            QCOMPARE(button->setButtonValue(value), -1);
            QCOMPARE(button->getButtonValue(), 2);
        }
        SignalLog log(button.get());
        touch(button.get()).tap(5, 5);
        QCOMPARE(log.take(), clicked(17, 0));
        QCOMPARE(button->setButtonValue(1), 0);
        QCOMPARE(button->getButtonValue(), 1);
    }

    void settersDoNotRepaint()
    {
        const auto button = makeButton();
        settle(*button);
        QCOMPARE(allPaints(*button, [&] { QCOMPARE(button->setButtonValue(1), 0); }), 0);
        QCOMPARE(allPaints(*button, [&] { QCOMPARE(button->setButtonDisable(true), 0); }), 0);
    }

    // --- Touches --------------------------------------------------------------------------------

    void aTouchPaintsOnceForThePressAndOnceForTheRelease()
    {
        const auto button = makeButton();
        settle(*button);
        Touch finger = touch(button.get());
        QCOMPARE(allPaints(*button, [&] { finger.press(5, 5); }), 1);
        QCOMPARE(allPaints(*button, [&] { finger.moveTo(6, 6); }), 0);
        QCOMPARE(allPaints(*button, [&] { finger.release(); }), 1);
    }

    void aReleaseWithoutAPressStepsOnToo()
    {
        const auto button = makeButton();
        settle(*button);
        SignalLog log(button.get());
        QCOMPARE(allPaints(*button, [&] { touch(button.get()).release(); }), 1);
        QCOMPARE(log.take(), clicked(17, 1));
        COMPARE_PICTURES(composed(*button), shown(*button, kNormal[1]));
    }

    void aReleaseAnywhereStepsOn()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).press(5, 5).moveTo(5000, 5000).release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), clicked(17, 1)); // and no request for a sound
    }

    void aDisabledButtonIgnoresTouches()
    {
        const auto button = makeButton();
        settle(*button);
        button->setButtonDisable(true);
        SignalLog log(button.get());
        QCOMPARE(allPaints(*button, [&] { touch(button.get()).tap(5, 5); }), 0);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(button->getButtonValue(), 0);
    }

    void aButtonDisabledWhileTouchedStaysPressed()
    {
        const auto button = makeButton();
        Touch finger = touch(button.get());
        finger.press(5, 5);
        button->setButtonDisable(true);
        finger.release();
        button->setButtonDisable(false);
        COMPARE_PICTURES(composed(*button), shown(*button, kPress[0]));
    }

    void touchesStayHere()
    {
        const auto button = makeButton();
        Touch finger = touch(button.get());
        QVERIFY(finger.press(5, 5).wasAccepted());
        QVERIFY(finger.release().wasAccepted());
    }

    // --- Looks ----------------------------------------------------------------------------------

    void picturesOfTheStates()
    {
        const auto button = makeButton();
        Touch finger = touch(button.get());
        for (int i = 0; i < 3; ++i) {
            COMPARE_PICTURES(composed(*button), shown(*button, kNormal[i]));
            finger.press(5, 5);
            COMPARE_PICTURES(composed(*button), shown(*button, kPress[i]));
            finger.release();
        }
    }

    void picturesLargerThanTheBackgroundAreHalvedTowardZero()
    {
        MultipleStateButton button(0, 0, 1, {file(QStringLiteral("large"), Qt::green, {50, 45})},
                                   {file(QStringLiteral("large"), Qt::green, {50, 45})},
                                   file(QStringLiteral("small"), Qt::blue, {45, 42}), &m_window);
        COMPARE_PICTURES(composed(button), reference(button, [](QPainter &p) {
                             p.drawPixmap(0, 0, picture(Qt::blue, {45, 42}));
                             p.drawPixmap(-2, -1, picture(Qt::green, {50, 45}));
                         }));
    }

    // The opacity is set by the paint: what the effect shows follows in the next one, which it asks
    // for by itself.
    void aDisabledButtonIsDimmed()
    {
        const auto button = makeButton();
        auto *effect = qobject_cast<QGraphicsOpacityEffect *>(button->graphicsEffect());
        COMPARE_PICTURES(composed(*button), shown(*button, kNormal[0]));
        QCOMPARE(effect->opacity(), 1.0);
        touch(button.get()).press(5, 5);
        QCoreApplication::processEvents();
        button->setButtonDisable(true);
        QCOMPARE(effect->opacity(), 1.0);
        button->update();
        virtualtime::advance(100);
        QCOMPARE(effect->opacity(), 0.5);
        const QImage plain = shown(*button, kNormal[0]); // never the pressed picture
        COMPARE_PICTURES(composed(*button), reference(*button, [&](QPainter &p) {
                             p.setOpacity(0.5);
                             p.drawImage(0, 0, plain);
                         }));
        button->setButtonDisable(false);
        button->update();
        virtualtime::advance(100);
        QCOMPARE(effect->opacity(), 1.0);
        COMPARE_PICTURES(composed(*button), shown(*button, kPress[0]));
    }

    void aDimmedButtonComesToRest()
    {
        const auto button = makeButton();
        settle(*button);
        button->setButtonDisable(true);
        QCOMPARE(allPaints(*button, [&] { button->update(); }), 2);
        QCOMPARE(allPaints(*button, [] {}), 0);
        QCOMPARE(allPaints(*button, [&] { button->update(); }), 1);
    }

    void anotherEffectMayTakeThePlaceOfTheOwn()
    {
        const auto button = makeButton();
        button->setGraphicsEffect(nullptr);
        button->setButtonDisable(true);
        COMPARE_PICTURES(composed(*button), shown(*button, kNormal[0]));
    }

    // --- Robustness -----------------------------------------------------------------------------

    void aButtonMayBeDeletedByItsReport()
    {
        auto *button = makeButton().release();
        const QPointer<MultipleStateButton> guard(button);
        connect(button, &MultipleStateButton::clicked, button, [button] { delete button; });
        touch(button).tap(5, 5);
        QVERIFY(!guard);
    }
};

WIDGET_TEST_MAIN(tst_MultipleStateButton)
#include "tst_multiplestatebutton.moc"
