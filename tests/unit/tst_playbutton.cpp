// SPDX-License-Identifier: Apache-2.0
#include <PlayButton>

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

const QPixmap &normal()
{
    static const QPixmap pixmap = picture(Qt::green, {40, 30});
    return pixmap;
}

const QPixmap &pressed()
{
    static const QPixmap pixmap = picture(Qt::red, {36, 50});
    return pixmap;
}

QImage shown(const PlayButton &button, const QPixmap &pixmap)
{
    return reference(button, [&](QPainter &p) { p.drawPixmap(0, 0, pixmap); });
}

} // namespace

class tst_PlayButton : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QWidget m_window;
    QString m_normal = m_folder.filePath(QStringLiteral("normal.png"));
    QString m_pressed = m_folder.filePath(QStringLiteral("pressed.png"));
    QString m_absent = m_folder.filePath(QStringLiteral("absent.png"));
    const QStringList m_report{QStringLiteral("clicked(9, 0)")};

    std::unique_ptr<PlayButton> makeButton()
    {
        return std::make_unique<PlayButton>(3, 4, 9, m_normal, m_pressed, &m_window);
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

private slots:
    void initTestCase()
    {
        QVERIFY(normal().save(m_normal));
        QVERIFY(pressed().save(m_pressed));
        m_window.resize(200, 150);
        show(m_window);
    }

    void aNewButtonStandsWhereItIsToldWithTheSizeOfItsNormalPicture()
    {
        const auto button = makeButton();
        QCOMPARE(button->parentWidget(), &m_window);
        QCOMPARE(button->geometry(), QRect(3, 4, 40, 30));
        QCOMPARE(button->getButtonId(), 9);
        auto *effect = qobject_cast<QGraphicsOpacityEffect *>(button->graphicsEffect());
        QVERIFY(effect);
        QCOMPARE(effect->parent(), button.get());
    }

    // Without a picture it has no size: its right edge is one px left of its left one.
    void aHostilePlaceIsBounded()
    {
        const PlayButton button(INT_MIN, INT_MAX, 9, QString(), QString(), &m_window);
        QCOMPARE(button.geometry(), QRect(-QWIDGETSIZE_MAX, QWIDGETSIZE_MAX, 0, 0));
    }

    void aMissingPictureDisablesIt_data()
    {
        QTest::addColumn<QString>("normalPath");
        QTest::addColumn<QString>("pressPath");
        QTest::addColumn<QSize>("size");
        QTest::newRow("no normal one") << QString() << m_pressed << QSize(0, 0);
        QTest::newRow("no pressed one") << m_normal << QString() << QSize(40, 30);
        QTest::newRow("absent") << m_absent << m_pressed << QSize(0, 0);
        QTest::newRow("a folder") << m_normal << m_folder.path() << QSize(40, 30);
        QTest::newRow("neither") << QString() << QString() << QSize(0, 0);
    }

    void aMissingPictureDisablesIt()
    {
        QFETCH(QString, normalPath);
        QFETCH(QString, pressPath);
        PlayButton button(1, 2, 9, normalPath, pressPath, &m_window);
        QTEST(button.size(), "size");
        QCOMPARE(button.pos(), QPoint(1, 2));
        SignalLog log(&button);
        touch(&button).tap(1, 1);
        QCOMPARE(log.take(), QStringList());
        button.resize(60, 60);
        composed(button);
        auto *effect = qobject_cast<QGraphicsOpacityEffect *>(button.graphicsEffect());
        QCOMPARE(effect->opacity(), 0.5);
        button.setButtonDisable(false);
        touch(&button).press(1, 1);
        composed(button);
        QCOMPARE(effect->opacity(), 1.0);
        touch(&button).release();
        QCOMPARE(log.take(), m_report);
    }

    // --- Touches --------------------------------------------------------------------------------

    void everyReleaseReportsStateZero()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).tap(5, 5).press(5, 5).moveTo(5000, 5000).release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), m_report + m_report); // and no request for a sound
    }

    void aReleaseWithoutAPressIsReportedToo()
    {
        const auto button = makeButton();
        settle(*button);
        SignalLog log(button.get());
        QCOMPARE(allPaints(*button, [&] { touch(button.get()).release(); }), 1);
        QCOMPARE(log.take(), m_report);
        COMPARE_PICTURES(composed(*button), shown(*button, normal()));
    }

    void aTouchPaintsOnceForThePressAndOnceForTheRelease()
    {
        const auto button = makeButton();
        settle(*button);
        Touch finger = touch(button.get());
        QCOMPARE(allPaints(*button, [&] { finger.press(5, 5); }), 1);
        QCOMPARE(allPaints(*button, [&] { finger.moveTo(6, 6); }), 0);
        QCOMPARE(allPaints(*button, [&] { finger.release(); }), 1);
    }

    // A slot that lets the event loop run still sees the button painted pressed.
    void theReportComesBeforeTheRepaint()
    {
        const auto button = makeButton();
        settle(*button);
        Touch finger = touch(button.get());
        finger.press(5, 5);
        QCoreApplication::processEvents();
        int count = -1;
        connect(button.get(), &PlayButton::clicked, button.get(),
                [&] { count = allPaints(*button, [] {}); });
        QCOMPARE(allPaints(*button, [&] { finger.release(); }), 1);
        QCOMPARE(count, 0);
    }

    void aDisabledButtonIgnoresTouches()
    {
        const auto button = makeButton();
        settle(*button);
        QCOMPARE(allPaints(*button, [&] { button->setButtonDisable(true); }), 0);
        SignalLog log(button.get());
        QCOMPARE(allPaints(*button, [&] { touch(button.get()).tap(5, 5); }), 0);
        QCOMPARE(log.take(), QStringList());
    }

    void aButtonDisabledWhileTouchedStaysPressed()
    {
        const auto button = makeButton();
        Touch finger = touch(button.get());
        finger.press(5, 5);
        button->setButtonDisable(true);
        finger.release();
        button->setButtonDisable(false);
        COMPARE_PICTURES(composed(*button), shown(*button, pressed()));
    }

    void touchesStayHere()
    {
        const auto button = makeButton();
        Touch finger = touch(button.get());
        QVERIFY(finger.press(5, 5).wasAccepted());
        QVERIFY(finger.release().wasAccepted());
    }

    // --- Looks ----------------------------------------------------------------------------------

    void picturesStandAtTheTopLeftInTheirOwnSize()
    {
        const auto button = makeButton();
        button->resize(70, 70);
        COMPARE_PICTURES(composed(*button), shown(*button, normal()));
        Touch finger = touch(button.get());
        finger.press(5, 5);
        COMPARE_PICTURES(composed(*button), shown(*button, pressed()));
        finger.release();
        COMPARE_PICTURES(composed(*button), shown(*button, normal()));
    }

    void aDisabledButtonIsDimmed()
    {
        const auto button = makeButton();
        auto *effect = qobject_cast<QGraphicsOpacityEffect *>(button->graphicsEffect());
        COMPARE_PICTURES(composed(*button), shown(*button, normal()));
        QCOMPARE(effect->opacity(), 1.0);
        touch(button.get()).press(5, 5);
        QCoreApplication::processEvents();
        button->setButtonDisable(true);
        QCOMPARE(effect->opacity(), 1.0);
        button->update();
        virtualtime::advance(100);
        QCOMPARE(effect->opacity(), 0.5);
        COMPARE_PICTURES(composed(*button), reference(*button, [](QPainter &p) {
                             p.setOpacity(0.5); // never the pressed picture
                             p.drawPixmap(0, 0, normal());
                         }));
        button->setButtonDisable(false);
        button->update();
        virtualtime::advance(100);
        COMPARE_PICTURES(composed(*button), shown(*button, pressed()));
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
        COMPARE_PICTURES(composed(*button), shown(*button, normal()));
    }

    // --- Robustness -----------------------------------------------------------------------------

    void aButtonMayBeDeletedByItsReport()
    {
        auto *button = makeButton().release();
        const QPointer<PlayButton> guard(button);
        connect(button, &PlayButton::clicked, button, [button] { delete button; });
        touch(button).tap(5, 5);
        QVERIFY(!guard);
    }
};

WIDGET_TEST_MAIN(tst_PlayButton)
#include "tst_playbutton.moc"
