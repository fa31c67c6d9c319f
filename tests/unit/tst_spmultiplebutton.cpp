// SPDX-License-Identifier: Apache-2.0
#include <SpMultipleButton>

#include "deletion.h"
#include "newwidget.h"
#include "parent.h"
#include "pictures.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QBitmap>
#include <QGraphicsOpacityEffect>
#include <QPainter>
#include <QPaintEvent>
#include <QScreen>
#include <QTemporaryDir>

#include <climits>
#include <memory>

namespace
{

using Pictures = QList<QPixmap>;
using Paths = QList<QString>;

// The picture of each state, told apart by its colour.
QPixmap normal(int state) { return picture(QColor(0, 200, 10 * state + 10)); }

QPixmap press(int state) { return picture(QColor(200, 10 * state + 10, 0)); }

Pictures pictures(QPixmap (*make)(int), int count)
{
    Pictures list;
    for (int i = 0; i < count; ++i)
        list += make(i);
    return list;
}

// A button of 101 x 80 with three states, at rest.
std::unique_ptr<SpMultipleButton> makeButton(QWidget *parent = nullptr)
{
    auto button = std::make_unique<SpMultipleButton>(parent);
    button->setPixmapList(pictures(normal, 3), pictures(press, 3));
    button->setMinimumSize(0, 0);
    button->resize(101, 80);
    return button;
}

const QPoint kPos(30, 25); // of the pictures in makeButton()

using Action = std::function<void(SpMultipleButton &)>;
using Paint = std::function<void(QPainter &)>;

// The picture on which a button settles: the opacity follows the paint that found it wrong. An
// effect paints only what is shown, and in a parent.
QImage settled(SpMultipleButton &button)
{
    QWidget stage;
    stage.resize(button.size());
    button.setParent(&stage);
    button.move(0, 0);
    button.show();
    stage.show();
    virtualtime::advance(0);
    painted(stage);
    const QImage picture = painted(stage);
    button.setParent(nullptr);
    return picture;
}

Paint only(const QPixmap &pixmap)
{
    return [pixmap](QPainter &p) { p.drawPixmap(kPos, pixmap); };
}

Paint nothing()
{
    return [](QPainter &) {};
}

// What the function paints, seen through an effect of this opacity.
QImage faded(const SpMultipleButton &button, qreal opacity, const Paint &paint)
{
    QPixmap layer(button.size());
    layer.fill(Qt::transparent);
    QPainter inner(&layer);
    paint(inner);
    inner.end();
    return reference(button, [&](QPainter &p) {
        p.setOpacity(opacity);
        p.drawPixmap(0, 0, layer);
    });
}

qreal opacityOf(const SpMultipleButton &button)
{
    const auto *effect = qobject_cast<QGraphicsOpacityEffect *>(button.graphicsEffect());
    return effect ? effect->opacity() : qreal(-1);
}

// Only a complete set can be touched.
bool isComplete(SpMultipleButton &button)
{
    SignalLog log(&button);
    touch(&button).tap(10, 10);
    const QStringList lines = log.take();
    QCoreApplication::removePostedEvents(&button);
    return !lines.isEmpty();
}

void setImage(SpMultipleButton &button, const char *kind, int state, const QPixmap &image)
{
    button.setProperty(qPrintable(QStringLiteral("%1Image%2").arg(kind).arg(state)), image);
}

QPixmap imageOf(const SpMultipleButton &button, const char *kind, int state)
{
    return button.property(qPrintable(QStringLiteral("%1Image%2").arg(kind).arg(state)))
        .value<QPixmap>();
}

// Remembers what it was last asked to paint.
class Probe : public SpMultipleButton
{
public:
    QRect area;

protected:
    void paintEvent(QPaintEvent *e) override
    {
        area = e->rect();
        SpMultipleButton::paintEvent(e);
    }
};

// Rows of a "value" that is taken, or is not and leaves the one before, and of what is "expected".
void addNumbers(const QVector<int> &taken, const QVector<int> &refused, int before)
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("expected");
    for (int value : taken)
        QTest::addRow("%d is taken", value) << value << value;
    for (int value : refused)
        QTest::addRow("%d is refused", value) << value << before;
}

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Paint)

class tst_SpMultipleButton : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction ---------------------------------------------------------------------------

    void defaults()
    {
        const SpMultipleButton button;
        QCOMPARE(button.buttonId(), 0);
        QCOMPARE(button.totalValue(), 20);
        QCOMPARE(button.currentValue(), 0);
        QCOMPARE(button.disableState(), false);
        QVERIFY(button.backgroundImage().isNull());
        for (int state = 0; state < 8; ++state) {
            QVERIFY(imageOf(button, "normal", state).isNull());
            QVERIFY(imageOf(button, "press", state).isNull());
        }
    }

    void theOpacityEffectIsAChildOfTheButton()
    {
        const SpMultipleButton button;
        const auto effects = button.findChildren<QGraphicsOpacityEffect *>();
        QCOMPARE(effects.size(), 1);
        QCOMPARE(button.graphicsEffect(), effects.first());
        QCOMPARE(effects.first()->parent(), &button);
        QCOMPARE(opacityOf(button), QGraphicsOpacityEffect().opacity());
    }

    void aNewButtonIsAPlainWidgetOtherwise() { checkIsAPlainWidget<SpMultipleButton>(); }

    void aNewButtonPaintsNothingAndIgnoresTouches()
    {
        SpMultipleButton button;
        button.resize(60, 50);
        show(button);
        const qreal opacity = opacityOf(button);
        COMPARE_PICTURES(settled(button), reference(button, nothing()));
        QCOMPARE(opacityOf(button), opacity);
        SignalLog log(&button);
        QCOMPARE(paints(button, [&] { touch(&button).press(10, 10).hold(10).release(); }), 0);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(button.currentValue(), 0);
    }

    // --- Setters --------------------------------------------------------------------------------

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        QTest::addColumn<Action>("action");
        QTest::addColumn<int>("expected");
        const auto row = [](const QByteArray &name, int expected, const Action &action) {
            QTest::newRow(name.constData()) << action << expected;
        };
        row("buttonId", 0, [](auto &b) { b.setButtonId(4); });
        row("totalValue", 0, [](auto &b) { b.setTotalValue(2); });
        row("totalValue ignored", 0, [](auto &b) { b.setTotalValue(0); });
        row("currentValue", 1, [](auto &b) { b.setCurrentValue(1); });
        row("currentValue unchanged", 1, [](auto &b) { b.setCurrentValue(0); });
        row("currentValue ignored", 1, [](auto &b) { b.setCurrentValue(3); });
        row("disableState", 0, [](auto &b) { b.setDisableState(true); });
        row("backgroundImage", 0, [](auto &b) { b.setBackgroundImage(picture(Qt::blue)); });
        row("backgroundImage null", 0, [](auto &b) { b.setBackgroundImage({}); });
        for (int state = 0; state < 8; ++state) {
            row("normalImage" + QByteArray::number(state), 0,
                [=](auto &b) { setImage(b, "normal", state, picture(Qt::blue)); });
            row("pressImage" + QByteArray::number(state), 0,
                [=](auto &b) { setImage(b, "press", state, picture(Qt::blue)); });
        }
        row("pictures", 0, [](auto &b) { b.setPixmapList(Pictures(), Pictures()); });
        row("files", 0, [](auto &b) { b.setPixmapList(Paths{"/absent"}, Paths{"/absent"}); });
        row("autoChange", 0, [](auto &b) { b.setAutoChange(false); });
        row("checkData", 0, [](auto &b) { b.checkData(); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot()
    {
        QWidget parent;
        const auto button = makeButton(&parent);
        show(parent);
        virtualtime::advance(10);
        checkRepaints(*button);
        QCOMPARE(button->size(), QSize(101, 80));
        button->setParent(nullptr);
    }

    void nothingRepaintsWhileNothingChanges()
    {
        const auto button = makeButton();
        show(*button);
        virtualtime::advance(10);
        QCOMPARE(paints(*button, [] { virtualtime::advance(5000); }), 0);
        button->setDisableState(true);
        button->update();
        virtualtime::advance(10);
        QCOMPARE(paints(*button, [] { virtualtime::advance(5000); }), 0);
    }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("buttonId", INT_MIN);
        row("totalValue", 7);
        row("currentValue", 19);
        row("disableState", true);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(SpMultipleButton()); }

    void eachPictureHasItsOwnPlace()
    {
        SpMultipleButton button;
        for (int state = 0; state < 8; ++state) {
            setImage(button, "normal", state, normal(state));
            setImage(button, "press", state, press(state));
            for (int other = 0; other < 8; ++other) {
                QCOMPARE(imageOf(button, "normal", other).isNull(), other > state);
                QCOMPARE(imageOf(button, "press", other).isNull(), other > state);
            }
        }
        for (int state = 0; state < 8; ++state) {
            QCOMPARE(imageOf(button, "normal", state).toImage(), normal(state).toImage());
            QCOMPARE(imageOf(button, "press", state).toImage(), press(state).toImage());
        }
        button.setNormalImage3(picture(Qt::blue));
        QCOMPARE(button.normalImage2().toImage(), normal(2).toImage());
        QCOMPARE(button.normalImage3().toImage(), picture(Qt::blue).toImage());
        QCOMPARE(button.normalImage4().toImage(), normal(4).toImage());
        button.setBackgroundImage(picture(Qt::red));
        QCOMPARE(button.backgroundImage().toImage(), picture(Qt::red).toImage());
    }

    void theTotalIsFromOneToTheLengthOfTheList_data()
    {
        addNumbers({1, 3}, {INT_MIN, -1, 0, 4, INT_MAX}, 2);
    }

    void theTotalIsFromOneToTheLengthOfTheList()
    {
        QFETCH(int, value);
        const auto button = makeButton();
        button->setTotalValue(2);
        button->setTotalValue(value);
        QTEST(button->totalValue(), "expected");
    }

    void theTotalOfANewButtonIsFromOneTo20()
    {
        SpMultipleButton button;
        button.setTotalValue(1);
        QCOMPARE(button.totalValue(), 1);
        button.setTotalValue(21);
        QCOMPARE(button.totalValue(), 1);
        button.setTotalValue(20);
        QCOMPARE(button.totalValue(), 20);
    }

    void theCurrentStateIsBelowTheTotal_data() { addNumbers({0, 2}, {INT_MIN, -1, 3, INT_MAX}, 1); }

    void theCurrentStateIsBelowTheTotal()
    {
        QFETCH(int, value);
        const auto button = makeButton();
        button->setCurrentValue(1);
        button->setCurrentValue(value);
        QTEST(button->currentValue(), "expected");
    }

    void aBackgroundSetsTheMinimumSize()
    {
        SpMultipleButton button;
        button.setBackgroundImage(picture(Qt::blue, {70, 60}));
        QCOMPARE(button.minimumSize(), QSize(70, 60));
        button.setBackgroundImage({});
        QVERIFY(button.backgroundImage().isNull());
        QCOMPARE(button.minimumSize(), QSize(70, 60));
    }

    void onlyThePressedPictureOfTheFirstStateSetsTheMinimumSize()
    {
        SpMultipleButton button;
        for (int state = 0; state < 8; ++state)
            setImage(button, "normal", state, picture(Qt::red, {50, 50 + state}));
        for (int state = 1; state < 8; ++state)
            setImage(button, "press", state, picture(Qt::red, {60, 60 + state}));
        QCOMPARE(button.minimumSize(), QSize(0, 0));
        button.setPressImage0(picture(Qt::red, {33, 44}));
        QCOMPARE(button.minimumSize(), QSize(33, 44));
        button.setPressImage0({});
        QCOMPARE(button.minimumSize(), QSize(33, 44));
    }

    void withABackgroundThePressedPictureSetsTheSizeOfThat_data()
    {
        QTest::addColumn<QPixmap>("image");
        QTest::newRow("picture") << picture(Qt::red, {33, 44});
        QTest::newRow("null") << QPixmap();
    }

    void withABackgroundThePressedPictureSetsTheSizeOfThat()
    {
        QFETCH(QPixmap, image);
        SpMultipleButton button;
        button.setBackgroundImage(picture(Qt::blue, {70, 60}));
        button.setMinimumSize(1, 2);
        button.setPressImage0(image);
        QCOMPARE(button.minimumSize(), QSize(70, 60));
    }

    // --- Completeness ---------------------------------------------------------------------------

    void theLastPictureMakesTheSetComplete()
    {
        SpMultipleButton button;
        button.setTotalValue(8);
        for (int state = 0; state < 8; ++state) {
            setImage(button, "normal", state, normal(state));
            QVERIFY(!isComplete(button));
            setImage(button, "press", 7 - state, press(7 - state));
            QCOMPARE(isComplete(button), state == 7);
        }
        button.setPressImage5({});
        QVERIFY(!isComplete(button));
        button.setPressImage5(press(5));
        QVERIFY(isComplete(button));
        button.setNormalImage0({});
        QVERIFY(!isComplete(button));
    }

    void everyPictureSetterChecks_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<int>("state");
        for (const char *kind : {"normal", "press"}) {
            for (int state = 0; state < 8; ++state)
                QTest::addRow("%s %d", kind, state) << QByteArray(kind) << state;
        }
    }

    void everyPictureSetterChecks()
    {
        QFETCH(QByteArray, kind);
        QFETCH(int, state);
        SpMultipleButton button;
        button.setPixmapList(pictures(normal, 8), pictures(press, 8));
        QVERIFY(isComplete(button));
        setImage(button, kind.constData(), state, {});
        QVERIFY(!isComplete(button));
        setImage(button, kind.constData(), state, picture(Qt::blue));
        QVERIFY(isComplete(button));
    }

    void onlyTheStatesInUseNeedPictures()
    {
        SpMultipleButton button;
        for (int state = 0; state < 3; ++state) {
            setImage(button, "normal", state, normal(state));
            setImage(button, "press", state, press(state));
        }
        QVERIFY(!isComplete(button));
        button.setTotalValue(4);
        QVERIFY(!isComplete(button));
        button.setTotalValue(3);
        QVERIFY(isComplete(button));
        button.setTotalValue(4);
        QVERIFY(!isComplete(button));
    }

    // A list may hold null pictures until the next check finds them.
    void whatChecksTheSet_data()
    {
        const TableRows<bool, Action> row("checks", "action");
        row("nothing", false, [](auto &) {});
        row("buttonId", false, [](auto &b) { b.setButtonId(3); });
        row("totalValue", true, [](auto &b) { b.setTotalValue(3); });
        row("totalValue ignored", true, [](auto &b) { b.setTotalValue(0); });
        row("currentValue", false, [](auto &b) { b.setCurrentValue(1); });
        row("disableState", true, [](auto &b) { b.setDisableState(false); });
        row("backgroundImage", false, [](auto &b) { b.setBackgroundImage(picture(Qt::blue)); });
        row("normalImage", true, [](auto &b) { b.setNormalImage0(normal(0)); });
        row("pressImage", true, [](auto &b) { b.setPressImage1(press(1)); });
        row("autoChange", false, [](auto &b) { b.setAutoChange(true); });
        row("checkData", true, [](auto &b) { b.checkData(); });
    }

    void whatChecksTheSet()
    {
        QFETCH(Action, action);
        QFETCH(bool, checks);
        SpMultipleButton button;
        button.setPixmapList({normal(0), normal(1), QPixmap()}, pictures(press, 3));
        QVERIFY(isComplete(button));
        action(button);
        QCOMPARE(isComplete(button), !checks);
    }

    void aNullPressedPictureIsMissedToo()
    {
        SpMultipleButton button;
        button.setPixmapList(pictures(normal, 3), {press(0), press(1), QPixmap()});
        button.checkData();
        QVERIFY(!isComplete(button));
    }

    // A picture beyond the end of a list is a state more.
    void aPictureBeyondTheListsEndIsAppended()
    {
        const auto button = makeButton();
        button->setNormalImage5(normal(3));
        QCOMPARE(button->normalImage3().toImage(), normal(3).toImage());
        QVERIFY(button->normalImage5().isNull());
        QVERIFY(!isComplete(*button));
        button->setPressImage3(press(3));
        QCOMPARE(button->pressImage3().toImage(), press(3).toImage());
        QVERIFY(isComplete(*button));
        QCOMPARE(button->totalValue(), 3);
        button->setTotalValue(4);
        QCOMPARE(button->totalValue(), 4);
        QVERIFY(isComplete(*button));
    }

    // --- Lists ----------------------------------------------------------------------------------

    void listsOfPictures_data()
    {
        QTest::addColumn<int>("normals");
        QTest::addColumn<int>("presses");
        QTest::addColumn<bool>("taken");
        QTest::newRow("none") << 0 << 0 << true;
        QTest::newRow("one") << 1 << 1 << true;
        QTest::newRow("two") << 2 << 2 << true;
        QTest::newRow("twenty") << 20 << 20 << true;
        QTest::newRow("21") << 21 << 21 << false;
        QTest::newRow("fewer normal") << 4 << 5 << false;
        QTest::newRow("fewer pressed") << 5 << 4 << false;
        QTest::newRow("no normal") << 0 << 4 << false;
        QTest::newRow("no pressed") << 4 << 0 << false;
    }

    void listsOfPictures()
    {
        QFETCH(int, normals);
        QFETCH(int, presses);
        QFETCH(bool, taken);
        const auto button = makeButton();
        button->setPixmapList(pictures(normal, normals), pictures(press, presses));
        QCOMPARE(button->totalValue(), taken ? normals : 3);
        for (int state = 0; state < 8; ++state) {
            const bool isThere = state < (taken ? normals : 3);
            QCOMPARE(imageOf(*button, "normal", state).toImage(),
                     isThere ? normal(state).toImage() : QImage());
            QCOMPARE(imageOf(*button, "press", state).toImage(),
                     isThere ? press(state).toImage() : QImage());
        }
        QCOMPARE(button->minimumSize(), taken && normals > 1 ? QSize(40, 30) : QSize(0, 0));
        QVERIFY(isComplete(*button));
    }

    void listsOfPicturesThatAreIgnoredLeaveTheButtonIncomplete()
    {
        SpMultipleButton button;
        button.setPixmapList(pictures(normal, 21), pictures(press, 21));
        button.setPixmapList(pictures(normal, 2), pictures(press, 3));
        QVERIFY(!isComplete(button));
        QCOMPARE(button.totalValue(), 20);
        QCOMPARE(button.minimumSize(), QSize(0, 0));
    }

    void theSecondNormalPictureSetsTheMinimumSize()
    {
        SpMultipleButton button;
        button.setPixmapList(
            {picture(Qt::red, {90, 91}), picture(Qt::red, {51, 52}), picture(Qt::red, {99, 98})},
            pictures(press, 3));
        QCOMPARE(button.minimumSize(), QSize(51, 52));
        button.setPixmapList({picture(Qt::red, {90, 91}), QPixmap()}, pictures(press, 2));
        QCOMPARE(button.minimumSize(), QSize(51, 52));
        button.setPixmapList({picture(Qt::red, {90, 91})}, pictures(press, 1));
        QCOMPARE(button.minimumSize(), QSize(51, 52));
    }

    void listsOfFiles_data() { listsOfPictures_data(); }

    void listsOfFiles()
    {
        QFETCH(int, normals);
        QFETCH(int, presses);
        QFETCH(bool, taken);
        const QTemporaryDir dir;
        const auto files = [&](const char *name, const Pictures &list) {
            Paths paths;
            for (int i = 0; i < list.size(); ++i) {
                paths += dir.filePath(QStringLiteral("%1%2.png").arg(name).arg(i));
                list.at(i).save(paths.last());
            }
            return paths;
        };
        const auto button = makeButton();
        button->setPixmapList(files("normal", pictures(normal, normals)),
                              files("press", pictures(press, presses)));
        QCOMPARE(button->totalValue(), taken ? normals : 3);
        for (int state = 0; state < 8; ++state) {
            const bool isThere = state < (taken ? normals : 3);
            QCOMPARE(imageOf(*button, "normal", state).toImage(),
                     isThere ? normal(state).toImage() : QImage());
            QCOMPARE(imageOf(*button, "press", state).toImage(),
                     isThere ? press(state).toImage() : QImage());
        }
        QCOMPARE(button->minimumSize(), QSize(0, 0));
        QVERIFY(isComplete(*button));
    }

    void filesThatAreNoPicturesAreNullInACompleteSet()
    {
        const QTemporaryDir dir;
        const QString text = dir.filePath(QStringLiteral("text.png"));
        QFile file(text);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no picture at all");
        file.close();
        const QString good = dir.filePath(QStringLiteral("good.png"));
        QVERIFY(normal(0).save(good));
        const Paths paths{good,
                          dir.path(),
                          QString(),
                          text,
                          dir.filePath(QStringLiteral("absent.png")),
                          QString(10000, QLatin1Char('x'))};

        const auto button = makeButton();
        button->setPixmapList(paths, paths);
        QCOMPARE(takeMessages(), QStringList());
        QCOMPARE(button->totalValue(), 6);
        QVERIFY(!button->normalImage0().isNull());
        for (int state = 1; state < 6; ++state) {
            QVERIFY(imageOf(*button, "normal", state).isNull());
            QVERIFY(imageOf(*button, "press", state).isNull());
        }
        SignalLog log(button.get());
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take(), QStringList{"clicked(0, 1)"});
        COMPARE_PICTURES(settled(*button), reference(*button, nothing()));
        button->checkData();
        QVERIFY(!isComplete(*button));
    }

    void aFormatIsTakenFromTheFile()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("picture.png"));
        QVERIFY(normal(0).save(path, "BMP"));
        const auto button = makeButton();
        button->setPixmapList(Paths{path}, Paths{path});
        QCOMPARE(button->normalImage0().size(), QSize(40, 30));
    }

    // --- Pictures -------------------------------------------------------------------------------

    void looks_data()
    {
        const TableRows<qreal, Paint, Action> row("opacity", "expected", "state");
        const Paint over = [](QPainter &p) {
            p.drawPixmap(20, 15, picture(Qt::blue, {61, 50}));
            p.drawPixmap(kPos, normal(0));
        };
        const auto background = [](SpMultipleButton &b) {
            b.setBackgroundImage(picture(Qt::blue, {61, 50}));
        };
        const auto down = [](SpMultipleButton &b) { touch(&b).press(10, 10); };
        row("first state", 1, only(normal(0)), [](auto &) {});
        row("last state", 1, only(normal(2)), [](auto &b) { b.setCurrentValue(2); });
        row("pressed", 1, only(press(0)), down);
        row("pressed in the second state", 1, only(press(1)), [=](auto &b) {
            b.setCurrentValue(1);
            down(b);
        });
        row("over a background", 1, over, background);
        row("disabled", 0.5, only(normal(0)), [](auto &b) { b.setDisableState(true); });
        row("disabled while pressed", 0.5, only(normal(0)), [=](auto &b) {
            down(b);
            b.setDisableState(true);
        });
        row("disabled over a background", 0.5, over, [=](auto &b) {
            background(b);
            b.setDisableState(true);
        });
        row("enabled again", 1, only(normal(0)), [](auto &b) {
            b.setDisableState(true);
            settled(b);
            b.setDisableState(false);
        });
        row("a state without a picture", 1, nothing(), [](auto &b) {
            b.setCurrentValue(2);
            b.setPixmapList(pictures(normal, 2), pictures(press, 2));
        });
        row("no state at all", 1, nothing(),
            [](auto &b) { b.setPixmapList(Pictures(), Pictures()); });
        row("disabled as a widget only", 1, only(normal(0)), [](auto &b) { b.setEnabled(false); });
    }

    void looks()
    {
        QFETCH(Action, state);
        QFETCH(qreal, opacity);
        QFETCH(Paint, expected);
        const auto button = makeButton();
        state(*button);
        button->resize(101, 80);
        COMPARE_PICTURES(settled(*button), faded(*button, opacity, expected));
        QCOMPARE(opacityOf(*button), opacity);
        COMPARE_PICTURES(settled(*button), faded(*button, opacity, expected));
    }

    void anIncompleteSetShowsItsBackgroundAtTheOpacityItHad()
    {
        const Paint background = [](QPainter &p) {
            p.drawPixmap(20, 15, picture(Qt::blue, {61, 50}));
        };
        const auto button = makeButton();
        button->setBackgroundImage(picture(Qt::blue, {61, 50}));
        button->setDisableState(true);
        settled(*button);
        button->setNormalImage0({});
        COMPARE_PICTURES(settled(*button), faded(*button, 0.5, background));
        button->setDisableState(false);
        COMPARE_PICTURES(settled(*button), faded(*button, 0.5, background));
        QCOMPARE(opacityOf(*button), qreal(0.5));
        button->setNormalImage0(normal(0));
        settled(*button);
        QCOMPARE(opacityOf(*button), qreal(1));
    }

    void theOpacityChangesWithThePaintNotWithTheSetter()
    {
        const auto button = makeButton();
        show(*button);
        virtualtime::advance(10);
        QCOMPARE(opacityOf(*button), qreal(1));
        button->setDisableState(true);
        virtualtime::advance(10);
        QCOMPARE(opacityOf(*button), qreal(1));
        button->update();
        virtualtime::advance(10);
        QCOMPARE(opacityOf(*button), qreal(0.5));
    }

    void picturesAreCentredTowardMinusInfinity_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("topLeft");
        QTest::newRow("even") << QSize(100, 80) << QPoint(30, 25);
        QTest::newRow("odd") << QSize(101, 81) << QPoint(30, 25);
        QTest::newRow("exact") << QSize(40, 30) << QPoint(0, 0);
        QTest::newRow("smaller by one") << QSize(39, 29) << QPoint(-1, -1);
        QTest::newRow("smaller by two") << QSize(38, 28) << QPoint(-1, -1);
        QTest::newRow("smaller by three") << QSize(37, 27) << QPoint(-2, -2);
    }

    void picturesAreCentredTowardMinusInfinity()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, topLeft);
        const auto button = makeButton();
        button->resize(size);
        COMPARE_PICTURES(settled(*button), reference(*button, [&](QPainter &p) {
                             p.drawPixmap(topLeft, normal(0));
                         }));
        SpMultipleButton incomplete;
        incomplete.setBackgroundImage(normal(0));
        incomplete.setMinimumSize(0, 0);
        incomplete.resize(size);
        incomplete.setGraphicsEffect(nullptr);
        COMPARE_PICTURES(painted(incomplete), reference(incomplete, [&](QPainter &p) {
                             p.drawPixmap(topLeft, normal(0));
                         }));
    }

    void picturesHaveTheirOwnSize()
    {
        const auto button = makeButton();
        button->setPixmapList({picture(Qt::red, {11, 12}), picture(Qt::blue, {60, 51})},
                              {picture(Qt::green, {21, 22}), picture(Qt::cyan, {23, 24})});
        COMPARE_PICTURES(settled(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(45, 34, picture(Qt::red, {11, 12}));
                         }));
        touch(button.get()).press(10, 10);
        COMPARE_PICTURES(settled(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(40, 29, picture(Qt::green, {21, 22}));
                         }));
        touch(button.get()).release();
        COMPARE_PICTURES(settled(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(20, 14, picture(Qt::blue, {60, 51}));
                         }));
    }

    // --- Touch ----------------------------------------------------------------------------------

    void clicksGoThroughTheStates()
    {
        const auto button = makeButton();
        button->setButtonId(7);
        SignalLog log(button.get());
        for (int expected : {1, 2, 0, 1}) {
            touch(button.get()).tap(10, 10);
            QCOMPARE(log.take(), QStringList{QStringLiteral("clicked(7, %1)").arg(expected)});
            QCOMPARE(button->currentValue(), expected);
        }
    }

    void withoutAutoChangeAClickReportsTheUnchangedState()
    {
        const auto button = makeButton();
        button->setAutoChange(false);
        button->setCurrentValue(2);
        SignalLog log(button.get());
        touch(button.get()).tap(10, 10).tap(10, 10);
        QCOMPARE(log.take(), (QStringList{"clicked(0, 2)", "clicked(0, 2)"}));
        button->setAutoChange(true);
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take().first(), QStringLiteral("clicked(0, 0)"));
    }

    void aStateThatIsNoneLeadsToTheFirst_data()
    {
        QTest::addColumn<bool>("autoChange");
        QTest::newRow("advancing") << true;
        QTest::newRow("staying") << false;
    }

    void aStateThatIsNoneLeadsToTheFirst()
    {
        QFETCH(bool, autoChange);
        const auto button = makeButton();
        button->setAutoChange(autoChange);
        button->setCurrentValue(2);
        button->setTotalValue(2);
        QCOMPARE(button->currentValue(), 2);
        SignalLog log(button.get());
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take(), QStringList{"clicked(0, 0)"});
    }

    void aButtonOfNoStatesStaysAtTheFirst()
    {
        const auto button = makeButton();
        button->setPixmapList(Pictures(), Pictures());
        SignalLog log(button.get());
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take(), QStringList{"clicked(0, 0)"});
    }

    void aReleaseAnywhereIsAClick()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).press(10, 10).moveTo(500, -300).release();
        QCOMPARE(log.take(), QStringList{"clicked(0, 1)"});
        touch(button.get()).release();
        QCOMPARE(log.take(), QStringList{"clicked(0, 2)"});
    }

    void aPressShowsAndAReleaseEndsThePressedLook()
    {
        const auto button = makeButton();
        show(*button);
        virtualtime::advance(10);
        Touch finger = touch(button.get());
        QCOMPARE(paints(*button, [&] { finger.press(10, 10); }), 1);
        QCOMPARE(paints(*button, [&] { finger.moveTo(500, 500); }), 0);
        QCOMPARE(paints(*button, [&] { finger.release(); }), 1);
        COMPARE_PICTURES(settled(*button), reference(*button, only(normal(1))));
    }

    void theStateIsNewWhenTheClickIsReported()
    {
        const auto button = makeButton();
        int state = -1;
        connect(button.get(), &SpMultipleButton::clicked, this,
                [&] { state = button->currentValue(); });
        touch(button.get()).tap(10, 10);
        QCOMPARE(state, 1);
    }

    void aPressAsksForAClickSound()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10);
        QCOMPARE(log.take(), QStringList());
        finger.hold(10);
        QCOMPARE(log.take(), QStringList{"beep"});
        finger.release().hold(10);
        QCOMPARE(log.take(), QStringList{"clicked(0, 1)"});
    }

    void aDisabledButtonIsSilent()
    {
        const auto button = makeButton();
        button->setDisableState(true);
        show(*button);
        virtualtime::advance(10);
        SignalLog log(button.get());
        QCOMPARE(paints(*button, [&] { touch(button.get()).press(10, 10).hold(10).release(); }), 0);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(button->currentValue(), 0);
    }

    void aButtonDisabledDuringATouchStaysPressed()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(10);
        button->setDisableState(true);
        finger.release().hold(10);
        QCOMPARE(log.take(), QStringList{"beep"});
        button->setDisableState(false);
        COMPARE_PICTURES(settled(*button), reference(*button, only(press(0))));
    }

    void aSetThatBecomesIncompleteDuringATouchIsNotClicked()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10);
        button->setNormalImage2({});
        finger.release();
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(button->currentValue(), 0);
    }

    void touchesEndHere_data()
    {
        QTest::addColumn<Action>("state");
        QTest::newRow("enabled") << Action([](auto &) {});
        QTest::newRow("disabled") << Action([](auto &b) { b.setDisableState(true); });
        QTest::newRow("incomplete") << Action([](auto &b) { b.setNormalImage0({}); });
    }

    void touchesEndHere()
    {
        QFETCH(Action, state);
        Parent parent;
        const auto button = makeButton(&parent);
        state(*button);
        touch(button.get()).press(10, 10).release();
        QCOMPARE(parent.events, QStringList());
        button->setParent(nullptr);
    }

    void movesAreLeftToTheParent()
    {
        Parent parent;
        const auto button = makeButton(&parent);
        touch(button.get()).press(10, 10).moveTo(12, 12);
        QCOMPARE(parent.events, QStringList{"move"});
        button->setParent(nullptr);
    }

    void theRequestForAClickSoundGoesUpToTheParent()
    {
        Parent parent;
        const auto button = makeButton(&parent);
        touch(button.get()).press(10, 10).hold(10);
        QCOMPARE(parent.events, QStringList{"beep"});
        button->setParent(nullptr);
    }

    // --- Hard to break --------------------------------------------------------------------------

    void theButtonMayBeDeletedInItsSignal_data() { addDeletionsAt({"clicked"}); }

    void theButtonMayBeDeletedInItsSignal()
    {
        checkMayBeDeleted(makeButton(new QWidget).release());
    }

    void anotherEffectMayReplaceItsOwn()
    {
        const auto button = makeButton();
        button->setDisableState(true);
        button->setGraphicsEffect(nullptr);
        COMPARE_PICTURES(settled(*button), reference(*button, only(normal(0))));
    }

    void hostilePicturesAreShown_data()
    {
        QTest::addColumn<QPixmap>("image");
        QBitmap bitmap(16, 16);
        bitmap.fill(Qt::color1);
        QPixmap dense(64, 64);
        dense.setDevicePixelRatio(2);
        dense.fill(Qt::red);
        QTest::newRow("20,000 wide") << picture(Qt::red, {20000, 4});
        QTest::newRow("20,000 high") << picture(Qt::red, {4, 20000});
        QTest::newRow("one pixel") << picture(Qt::red, {1, 1});
        QTest::newRow("bitmap") << QPixmap(bitmap);
        QPixmap opaque(30, 30);
        opaque.fill(Qt::red);
        QTest::newRow("opaque") << opaque;
        QTest::newRow("high resolution") << dense;
    }

    void hostilePicturesAreShown()
    {
        QFETCH(QPixmap, image);
        const auto half = [](int spare) { return (spare - (spare < 0 ? 1 : 0)) / 2; };
        SpMultipleButton button;
        button.setPixmapList({image, image}, {picture(Qt::blue), image});
        button.setBackgroundImage(picture(Qt::yellow, {50, 50}));
        button.setMinimumSize(0, 0);
        button.resize(50, 50);
        const Paint expected = [&](QPainter &p) {
            p.drawPixmap(0, 0, picture(Qt::yellow, {50, 50}));
            p.setPen(button.palette().color(button.foregroundRole()));
            p.drawPixmap(half(50 - image.width()), half(50 - image.height()), image);
        };
        COMPARE_PICTURES(settled(button), faded(button, 1, expected));
        touch(&button).tap(10, 10).press(10, 10);
        COMPARE_PICTURES(settled(button), faded(button, 1, expected));
        button.setDisableState(true);
        settled(button);
        COMPARE_PICTURES(settled(button), faded(button, qreal(0.5), expected));
    }

    // What is composed for an effect is painted as a whole, all else only where it is seen.
    void aButtonLargerThanManyScreensIsNotComposed_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("larger than any screen") << QSize(4100, 4100) << QSize(4100, 4100);
        QTest::newRow("larger than may be") << QSize(16384, 16385) << QSize(50, 40);
        QTest::newRow("huge") << QSize(60000, 60000) << QSize(50, 40);
    }

    void aButtonLargerThanManyScreensIsNotComposed()
    {
        QFETCH(QSize, size);
        QWidget stage;
        stage.resize(50, 40);
        Probe button;
        button.setParent(&stage);
        button.setDisableState(true);
        button.resize(size);
        show(stage);
        painted(stage);
        QTEST(button.area.size(), "expected");
        button.setParent(nullptr);
    }

    void aLargeButtonIsDimmedAndAHugeOneIsNot_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<qreal>("opacity");
        QTest::newRow("larger than any screen") << QSize(4100, 4100) << qreal(0.5);
        QTest::newRow("larger than may be") << QSize(16384, 16385) << qreal(1);
        QTest::newRow("huge") << QSize(60000, 60000) << qreal(1);
    }

    void aLargeButtonIsDimmedAndAHugeOneIsNot()
    {
        QFETCH(QSize, size);
        QFETCH(qreal, opacity);
        const QPoint middle(size.width() / 2, size.height() / 2);
        QWidget stage;
        stage.resize(50, 40);
        const auto button = makeButton(&stage);
        button->setDisableState(true);
        button->setGeometry(QRect(QPoint(25, 20) - middle, size)); // its middle is seen
        show(stage);
        virtualtime::advance(100);
        QCOMPARE(opacityOf(*button), qreal(0.5));
        QImage expected(stage.size(), QImage::Format_RGB32);
        expected.fill(stage.palette().color(QPalette::Window));
        QPainter painter(&expected);
        painter.setOpacity(opacity);
        painter.drawPixmap(5, 5, normal(0));
        painter.end();
        const QImage shown = stage.screen()->grabWindow(stage.winId()).toImage();
        COMPARE_PICTURES(shown.convertToFormat(QImage::Format_RGB32), expected);
        button->setParent(nullptr);
    }

    void aButtonThatWasEmptyIsWholeAgain()
    {
        for (const QSize &size : {QSize(0, 0), QSize(0, 50), QSize(50, 0)}) {
            const auto button = makeButton();
            button->setDisableState(true);
            button->resize(size);
            show(*button);
            QCOMPARE(paints(*button, [&] { button->repaint(); }), 0);
            button->resize(101, 80);
            settled(*button);
            COMPARE_PICTURES(settled(*button), faded(*button, qreal(0.5), only(normal(0))));
        }
    }
};

WIDGET_TEST_MAIN(tst_SpMultipleButton)
#include "tst_spmultiplebutton.moc"
