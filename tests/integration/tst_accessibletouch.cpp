// SPDX-License-Identifier: Apache-2.0
// What a client of accessibility does is a touch: the same signals come in the same order. And it
// hears of each change, if there is a client at all.

#include "accessiblespecimens.h"
#include "signallog.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QAccessible>
#include <QApplication>
#include <QScrollBar>

namespace
{

bool hasClient = false;
QStringList reports; // "NameChanged id", or "StateChanged id pressed checked"

// While there is one.
struct Client {
    Client()
    {
        hasClient = true;
        reports.clear();
    }
    ~Client() { hasClient = false; }
    Q_DISABLE_COPY(Client)
};

QString statesIn(const QAccessible::State &state)
{
    QString names;
    if (state.pressed)
        names += QStringLiteral(" pressed");
    if (state.checked)
        names += QStringLiteral(" checked");
    if (state.disabled)
        names += QStringLiteral(" disabled");
    if (state.focused)
        names += QStringLiteral(" focused");
    return names;
}

QString described(const QAccessibleEvent &event)
{
    const QString subject = event.object() ? event.object()->objectName() : QString();
    switch (event.type()) {
    case QAccessible::NameChanged:
        return QStringLiteral("NameChanged ") + subject;
    case QAccessible::DescriptionChanged:
        return QStringLiteral("DescriptionChanged ") + subject;
    case QAccessible::ValueChanged:
        return QStringLiteral("ValueChanged %1 %2")
            .arg(subject,
                 static_cast<const QAccessibleValueChangeEvent &>(event).value().toString());
    case QAccessible::StateChanged:
        return QStringLiteral("StateChanged ") + subject
            + statesIn(static_cast<const QAccessibleStateChangeEvent &>(event).changedStates());
    case QAccessible::ObjectReorder:
        return QStringLiteral("ObjectReorder ") + subject;
    case QAccessible::SelectionWithin:
        return QStringLiteral("SelectionWithin ") + subject;
    default:
        return {};
    }
}

} // namespace

// Offscreen there is no bridge to clients. These two take the place of Qt's own for the library and
// for Qt's widgets, as the program comes before the libraries.
bool QAccessible::isActive() { return hasClient; }

void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    const QString report = hasClient ? described(*event) : QString();
    if (!report.isEmpty())
        reports += report;
}

// Shows how many listen to a button's press.
class Listened : public SpIconButton
{
public:
    bool isHeard() const
    {
        return isSignalConnected(QMetaMethod::fromSignal(&SpIconButton::btnPressed));
    }
};

using Action = std::function<void(QWidget *)>;
Q_DECLARE_METATYPE(Action)

class tst_AccessibleTouch : public WidgetTest
{
    Q_OBJECT

    const std::vector<Specimen> m_buttons = buttonSpecimens();
    const std::vector<Specimen> m_sliders = sliderSpecimens();

    static QAccessibleActionInterface *actionsOf(QWidget *widget)
    {
        return QAccessible::queryAccessibleInterface(widget)->actionInterface();
    }

    // Of a scroll bar all signals are Qt's.
    static void listenTo(QWidget *widget, const std::function<void(const QString &)> &hear)
    {
        auto *bar = qobject_cast<QScrollBar *>(widget);
        if (!bar)
            return;
        const auto says = [hear](const char *name) {
            return [hear, name](int value) {
                hear(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(value));
            };
        };
        const auto touched = [hear](const char *name) {
            return [hear, name] { hear(QLatin1String(name)); };
        };
        connect(bar, &QScrollBar::sliderPressed, touched("sliderPressed"));
        connect(bar, &QScrollBar::sliderMoved, says("sliderMoved"));
        connect(bar, &QScrollBar::valueChanged, says("valueChanged"));
        connect(bar, &QScrollBar::sliderReleased, touched("sliderReleased"));
    }

    // What a new widget says while this is done to it, and for a while behind.
    static QStringList said(const Specimen &specimen, const Action &action)
    {
        QWidget window;
        QWidget *widget = shown(specimen, window);
        virtualtime::startMinute();
        SignalLog log(widget);
        QStringList ofBar;
        listenTo(widget, [&ofBar](const QString &line) { ofBar += line; });
        action(widget);
        virtualtime::advance(5000);
        return log.take().filter(QRegularExpression(QStringLiteral("^(?!.*QModelIndex)"))) + ofBar;
    }

    static void addRows(const std::vector<Specimen> &specimens, const char *action)
    {
        QTest::addColumn<const Specimen *>("specimen");
        for (const Specimen &each : specimens) {
            if (QByteArray(each.actions).split('/').contains(action))
                QTest::newRow(each.name) << &each;
        }
    }

    static QAccessibleInterface *rowOf(QWidget *list, const QString &name)
    {
        QAccessibleInterface *found = QAccessible::queryAccessibleInterface(list);
        for (int i = 0; i < found->childCount(); ++i) {
            if (found->child(i)->text(QAccessible::Name) == name)
                return found->child(i);
        }
        return nullptr;
    }

    const Specimen &specimen(const char *name) const
    {
        for (const auto *all : {&m_buttons, &m_sliders}) {
            for (const Specimen &each : *all) {
                if (qstrcmp(each.name, name) == 0)
                    return each;
            }
        }
        qFatal("There is no %s.", name);
    }

private slots:
    void aPressIsATap_data() { addRows(m_buttons, "Press"); }

    void aPressIsATap()
    {
        QFETCH(const Specimen *, specimen);
        const QStringList ofTouch = said(*specimen, [](QWidget *widget) {
            touch(widget).tap(widget->width() / 2, widget->height() / 2);
        });
        const QStringList ofAction =
            said(*specimen, [](QWidget *widget) { actionsOf(widget)->doAction("Press"); });
        QVERIFY(!ofTouch.isEmpty());
        QCOMPARE(ofAction, ofTouch);
    }

    void aToggleIsATapToo_data() { addRows(m_buttons, "Toggle"); }

    void aToggleIsATapToo()
    {
        QFETCH(const Specimen *, specimen);
        const auto doing = [](const char *name) {
            return [name](QWidget *widget) { actionsOf(widget)->doAction(QLatin1String(name)); };
        };
        QCOMPARE(said(*specimen, doing("Toggle")), said(*specimen, doing("Press")));
        QWidget window;
        QWidget *widget = shown(*specimen, window);
        actionsOf(widget)->doAction(QStringLiteral("Toggle"));
        QVERIFY(QAccessible::queryAccessibleInterface(widget)->state().checked);
    }

    void aLongPressIsAHold_data() { addRows(m_buttons, "LongPress"); }

    void aLongPressIsAHold()
    {
        QFETCH(const Specimen *, specimen);
        const QStringList ofTouch = said(*specimen, [](QWidget *widget) {
            touch(widget).press(widget->rect().center()).hold(2700).release();
        });
        const QStringList ofAction =
            said(*specimen, [](QWidget *widget) { actionsOf(widget)->doAction("LongPress"); });
        QVERIFY(ofTouch.join(QString()).contains(QStringLiteral("Long")));
        QCOMPARE(ofAction, ofTouch);
    }

    void whatNoFingerReachesDoesNothing_data() { addRows(m_buttons, "Press"); }

    void whatNoFingerReachesDoesNothing()
    {
        QFETCH(const Specimen *, specimen);
        for (const auto &prepare : {Action([](QWidget *w) { w->setEnabled(false); }),
                                    Action([](QWidget *w) { w->hide(); })})
            QCOMPARE(said(*specimen,
                          [prepare](QWidget *widget) {
                              prepare(widget);
                              actionsOf(widget)->doAction("Press");
                              actionsOf(widget)->doAction("Toggle");
                          }),
                     QStringList());
    }

    void theFocusIsSetWithoutATouch_data() { addRows(m_buttons, "SetFocus"); }

    void theFocusIsSetWithoutATouch()
    {
        QFETCH(const Specimen *, specimen);
        bool hasFocus = false;
        const QStringList lines = said(*specimen, [&](QWidget *widget) {
            QApplication::setActiveWindow(widget->window());
            widget->clearFocus();
            actionsOf(widget)->doAction(QStringLiteral("SetFocus"));
            hasFocus = widget->hasFocus();
        });
        QVERIFY(hasFocus);
        QCOMPARE(lines, QStringList());
    }

    void pagesTurnAsBySwipes()
    {
        const Specimen &pages = specimen("SpSetupSliderContainer");
        for (const int way : {-130, 130}) {
            const QStringList ofTouch = said(pages, [way](QWidget *widget) {
                const QPoint from = widget->rect().center();
                touch(widget).press(from).moveTo(from.x() + way, from.y()).release();
            });
            QVERIFY(!ofTouch.isEmpty());
            QCOMPARE(said(pages,
                          [way](QWidget *w) {
                              actionsOf(w)->doAction(
                                  way < 0 ? QAccessibleActionInterface::nextPageAction()
                                          : QAccessibleActionInterface::previousPageAction());
                          }),
                     ofTouch);
        }
    }

    void aValueIsSetByATouchThere_data();
    void aValueIsSetByATouchThere();
    void everyValueCanBeSet_data() { addRows(m_sliders, "Increase"); }
    void everyValueCanBeSet();
    void aStepMovesThoughPixelsAreFew();
    void aVeryLongTrackIsTouchedInItsMiddle();
    void aFingerGoesHalfTheLengthBeyondAnEnd();
    void aRowIsPressedAsByATap();
    void aRowOutOfSightIsScrolledTo();
    void aLetterIsPressedAsByATap();
    void anySignalMayDeleteTheWidget_data();
    void anySignalMayDeleteTheWidget();
    void changesAreReported_data();
    void changesAreReported();
    void withoutAClientNothingIsWatched();
};

// By its name for a script, and by a finger whose place is worked out here by hand.
void tst_AccessibleTouch::aValueIsSetByATouchThere_data()
{
    QTest::addColumn<const Specimen *>("specimen");
    QTest::addColumn<double>("value");
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    const auto row = [this](const char *name, double value, const QPoint &from, const QPoint &to) {
        QTest::addRow("%s %g", name, value) << &specimen(name) << value << from << to;
    };
    row("SpSetupSlider", 5, {25, 32}, {25, 32});
    row("MHorSlider", -5, {2, 20}, {2, 20});
    row("MProgressBar", 0, {0, 60}, {0, 60});
    row("MProgressBar", 25, {60, 60}, {60, 60});
    row("MArcScrollBar", 49, {20, 150}, {20, 150});
    row("MRadioMovePoint", 9800, {0, 0}, {0, 0});
    row("MRadioSlider", 99.5, {300, 50}, {250, 50});
    row("MKARVOSlider", 999, {0, 0}, {0, 0});
    row("MCircularDial", 100, {0, 0}, {0, 0});
}

void tst_AccessibleTouch::aValueIsSetByATouchThere()
{
    QFETCH(const Specimen *, specimen);
    QFETCH(double, value);
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    double found = 0;
    const QStringList ofAction = said(*specimen, [&](QWidget *widget) {
        auto *values = QAccessible::queryAccessibleInterface(widget)->valueInterface();
        values->setCurrentValue(value);
        found = values->currentValue().toDouble();
    });
    QVERIFY2(qAbs(found - value) <= 0.1, qPrintable(QString::number(found)));
    if (from.isNull())
        return;
    const QStringList ofTouch = said(*specimen, [&](QWidget *widget) {
        Touch finger = touch(widget);
        finger.press(from);
        if (to != from)
            finger.moveTo(to.x(), to.y());
        finger.release();
    });
    QVERIFY(!ofTouch.isEmpty());
    QCOMPARE(ofAction, ofTouch);
}

// A step of the smallest size goes to the next value, and so on to the ends.
void tst_AccessibleTouch::everyValueCanBeSet()
{
    QFETCH(const Specimen *, specimen);
    QWidget window;
    QWidget *widget = shown(*specimen, window);
    auto *values = QAccessible::queryAccessibleInterface(widget)->valueInterface();
    const double least = values->minimumValue().toDouble();
    const double most = values->maximumValue().toDouble();
    values->setCurrentValue(least);
    double before = values->currentValue().toDouble();
    QVERIFY(before - least < 0.2);
    int steps = 0;
    for (; steps < 1000; ++steps) {
        actionsOf(widget)->doAction(QStringLiteral("Increase"));
        const double now = values->currentValue().toDouble();
        if (now <= before)
            break;
        before = now;
    }
    QVERIFY2(most - before < 0.2, qPrintable(QString::number(before)));
    QVERIFY(steps >= 10);
    QCOMPARE(values->currentValue().toDouble(), before); // beyond the end there is no place
    actionsOf(widget)->doAction(QStringLiteral("Decrease"));
    QVERIFY(values->currentValue().toDouble() < before);
}

// Of 10,000 values on 240 px a finger goes to every fortieth or so.
void tst_AccessibleTouch::aStepMovesThoughPixelsAreFew()
{
    QWidget window;
    QWidget *widget = shown(specimen("MProgressBar"), window);
    auto *bar = static_cast<MProgressBar *>(widget);
    bar->setMaxValue(10000);
    bar->setCurrentValue(5000);
    actionsOf(widget)->doAction(QStringLiteral("Increase"));
    QVERIFY(bar->currentValue() > 5000 && bar->currentValue() < 5100);
    bar->setCurrentValue(5000);
    actionsOf(widget)->doAction(QStringLiteral("Decrease"));
    QVERIFY(bar->currentValue() < 5000 && bar->currentValue() > 4900);
}

// Of its places every second is tried.
void tst_AccessibleTouch::aVeryLongTrackIsTouchedInItsMiddle()
{
    QWidget window;
    QWidget *widget = shown(specimen("MProgressBar"), window);
    widget->resize(5000, 40);
    auto *bar = static_cast<MProgressBar *>(widget);
    bar->setCurrentValue(0);
    QAccessible::queryAccessibleInterface(widget)->valueInterface()->setCurrentValue(50);
    QCOMPARE(bar->currentValue(), 50);
}

void tst_AccessibleTouch::aFingerGoesHalfTheLengthBeyondAnEnd()
{
    QWidget window;
    QWidget *widget = shown(specimen("MRadioMovePoint"), window);
    widget->resize(40, 120); // of a scale of 780 px
    auto *values = QAccessible::queryAccessibleInterface(widget)->valueInterface();
    values->setCurrentValue(10800);
    auto *needle = widget->findChild<MovePoint *>();
    QCOMPARE(values->currentValue().toInt(), needle->cacPosMapFreq(59));
}

void tst_AccessibleTouch::aRowIsPressedAsByATap()
{
    const Specimen &rows = specimen("SpTableList");
    const QStringList ofTouch = said(rows, [](QWidget *widget) {
        QWidget *viewport = static_cast<SpTableList *>(widget)->viewport();
        touch(viewport).press(100, 60).hold(60).release();
    });
    QVERIFY(ofTouch.contains(QStringLiteral("itemClicked(1)")));
    QCOMPARE(
        said(rows,
             [](QWidget *widget) { rowOf(widget, "Row 2")->actionInterface()->doAction("Press"); }),
        ofTouch);
}

void tst_AccessibleTouch::aRowOutOfSightIsScrolledTo()
{
    const QStringList lines = said(specimen("SpTableList"), [](QWidget *widget) {
        rowOf(widget, "Row 20")->actionInterface()->doAction("Press");
        QVERIFY(!rowOf(widget, "Row 20")->state().offscreen);
    });
    QVERIFY(lines.contains(QStringLiteral("itemClicked(19)")));
}

void tst_AccessibleTouch::aLetterIsPressedAsByATap()
{
    const Specimen &letters = specimen("MArcList");
    for (const auto style : {MArcList::ARCLIST_STYLE_0, MArcList::ARCLIST_STYLE_1}) {
        const auto prepare = [style](QWidget *widget) {
            auto *index = static_cast<MArcList *>(widget);
            index->setAcrListStyle(style);
            index->setRadius(200);
            index->setShowItem(4);
            index->setItemHight(style == MArcList::ARCLIST_STYLE_0 ? 6 : 30);
        };
        const QPoint second =
            style == MArcList::ARCLIST_STYLE_0 ? QPoint(197, 91) : QPoint(120, 45);
        const QStringList ofTouch = said(letters, [&](QWidget *widget) {
            prepare(widget);
            touch(widget).tap(second.x(), second.y());
        });
        QCOMPARE(ofTouch.filter(QStringLiteral("itemClicked")).size(), 1);
        QCOMPARE(said(letters,
                      [&](QWidget *widget) {
                          prepare(widget);
                          rowOf(widget, "B")->actionInterface()->doAction("Press");
                      }),
                 ofTouch);
        const QStringList far = said(letters, [&](QWidget *widget) {
            prepare(widget);
            rowOf(widget, "H")->actionInterface()->doAction("Press");
        });
        QCOMPARE(far.filter(QStringLiteral("itemClicked")).size(), 1);
        QVERIFY(far.filter(QStringLiteral("itemClicked")).at(0).contains(QStringLiteral("H")));
        said(letters, [&](QWidget *widget) {
            prepare(widget);
            widget->setEnabled(false);
            rowOf(widget, "H")->actionInterface()->doAction("Press");
            QVERIFY(rowOf(widget, "H")->state().offscreen); // nor is it brought into sight
        });
    }
}

void tst_AccessibleTouch::anySignalMayDeleteTheWidget_data()
{
    QTest::addColumn<const Specimen *>("specimen");
    QTest::addColumn<QString>("action");
    for (const auto *all : {&m_buttons, &m_sliders}) {
        for (const Specimen &each : *all) {
            for (const QString &action : QString::fromLatin1(each.actions).split('/')) {
                if (!action.isEmpty() && action != QLatin1String("SetFocus"))
                    QTest::addRow("%s %s", each.name, qPrintable(action)) << &each << action;
            }
        }
    }
    QTest::newRow("SpTableList row") << &specimen("SpTableList") << QStringLiteral("Row 2");
    QTest::newRow("MArcList row") << &specimen("MArcList") << QStringLiteral("B");
}

void tst_AccessibleTouch::anySignalMayDeleteTheWidget()
{
    QFETCH(const Specimen *, specimen);
    QFETCH(QString, action);
    const Client client;
    const auto act = [action](QWidget *widget) {
        QAccessibleInterface *row = rowOf(widget, action);
        if (row)
            row->actionInterface()->doAction("Press");
        else
            actionsOf(widget)->doAction(action);
    };
    const int count = said(*specimen, act).size();
    QVERIFY(count > 0);
    int deleted = 0;
    for (int number = 0; number < count; ++number) {
        QWidget window;
        QPointer<QWidget> widget = shown(*specimen, window);
        int seen = 0;
        const auto hear = [&](const QString &line) {
            if (seen++ == number && line != QLatin1String("beep"))
                delete widget;
        };
        SignalLog log(widget);
        log.onLine(hear);
        listenTo(widget, hear);
        act(widget);
        virtualtime::advance(5000);
        deleted += widget ? 0 : 1;
    }
    QVERIFY(deleted >= qMax(1, count - 1)); // a beep is no signal
}

void tst_AccessibleTouch::changesAreReported_data()
{
    QTest::addColumn<const Specimen *>("specimen");
    QTest::addColumn<Action>("change");
    QTest::addColumn<QStringList>("expected");
    const auto row = [this](const char *name, const char *what, const QStringList &expected,
                            const Action &change) {
        QTest::addRow("%s %s", name, what) << &specimen(name) << change << expected;
    };
    const auto set = [](const char *property, const QVariant &value) {
        return [=](QWidget *widget) { widget->setProperty(property, value); };
    };
    row("SpIconButton", "caption", {"NameChanged id"}, set("displayText", "new"));
    row("SpIconButton", "press", {"StateChanged id pressed"},
        [](QWidget *w) { touch(w).press(9, 9); });
    row("SpIconButton", "looks", {"StateChanged id disabled focused"}, [](QWidget *w) {
        w->setProperty("disableState", true);
        w->setProperty("isFocus", true);
    });
    row("SpIconButton", "tool tip", {"DescriptionChanged id"}, set("toolTip", "new"));
    row("MOnOffButton", "status", {"StateChanged id checked"}, set("onoffStatus", true));
    row("MOnOffButton", "touch", {"StateChanged id checked"},
        [](QWidget *w) { touch(w).tap(9, 9); });
    row("MSelectButton", "selection", {"StateChanged id checked"},
        [](QWidget *w) { static_cast<MSelectButton *>(w)->setSelectState(true); });
    row("MFocusButton", "choice", {"StateChanged id checked"}, set("checked", true));
    row("SpLockButton", "latch", {"StateChanged id checked"}, set("isDown", true));
    row("SpRollingText", "text", {"NameChanged id"}, set("text", "new"));
    row("MVScrollLabel", "text", {"NameChanged id"}, set("text", "new"));
    row("SpMultipleButton", "state", {"ValueChanged id 2"}, set("currentValue", 2));
    row("MOProgress", "value", {"ValueChanged id 70"}, set("currentValue", 70));
    row("MHorSlider", "value", {"ValueChanged id 2"}, set("currentValue", 2));
    row("SpSetupSlider", "value", {"ValueChanged id 2"}, set("currentValue", 2));
    row("MProgressBar", "value", {"ValueChanged id 70"},
        [](QWidget *w) { static_cast<MProgressBar *>(w)->setRealValue(70); });
    row("MCircularDial", "value", {"ValueChanged id 99"}, set("value", 99.0));
    row("MArcScrollBar", "value", {"ValueChanged id 7"}, set("value", 7));
    row("MRadioSlider", "frequency", {"ValueChanged id 99.5"},
        [](QWidget *w) { static_cast<MRadioSlider *>(w)->setCurFreq(99.5F); });
    row("MKARVOSlider", "frequency", {"ValueChanged id 603"}, set("curFreq", 603));
    row("MRadioMovePoint", "frequency", {"ValueChanged id 9700"},
        [](QWidget *w) { static_cast<MRadioMovePoint *>(w)->curFreqChangedSlot(9700); });
    row("MArcList", "letters", {"ObjectReorder id"},
        [](QWidget *w) { static_cast<MArcList *>(w)->addAlpha(QLatin1Char('Z')); });
    row("MArcList", "current letter", {"SelectionWithin id"},
        [](QWidget *w) { static_cast<MArcList *>(w)->setCurrentIndex(QLatin1Char('C')); });
}

// Once, when the event loop has run, if nothing said it before.
void tst_AccessibleTouch::changesAreReported()
{
    QFETCH(const Specimen *, specimen);
    QFETCH(Action, change);
    QFETCH(QStringList, expected);
    const Client client;
    QWidget window;
    QWidget *widget = shown(*specimen, window);
    QVERIFY(QAccessible::queryAccessibleInterface(widget)->isValid());
    virtualtime::advance(100);
    reports.clear();
    change(widget);
    virtualtime::advance(100);
    const QStringList own = reports.filter(QRegularExpression(QStringLiteral(" id( |$)")));
    QCOMPARE(own.join('/'), expected.join('/'));
}

// Qt makes interfaces of all that is shown; without a client they watch nothing.
void tst_AccessibleTouch::withoutAClientNothingIsWatched()
{
    Listened button;
    show(button);
    reports.clear();
    QAccessibleInterface *found = QAccessible::queryAccessibleInterface(&button);
    QCOMPARE(found->text(QAccessible::Name), QStringLiteral("SpIconButton_ID"));
    QVERIFY(!button.isHeard());
    button.setDisplayText("new");
    touch(&button).tap(9, 9);
    virtualtime::advance(100);
    QCOMPARE(reports, QStringList());
    const Client client;
    QCOMPARE(found->text(QAccessible::Name), QStringLiteral("new"));
    QVERIFY(button.isHeard());
}

WIDGET_TEST_MAIN(tst_AccessibleTouch)
#include "tst_accessibletouch.moc"
