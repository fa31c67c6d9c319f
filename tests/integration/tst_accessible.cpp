// SPDX-License-Identifier: Apache-2.0
// What a client of accessibility finds of every class: role, name, description, value, states and
// actions, the rows of the lists; and that it may hold on to what it found when the widget goes.

#include "accessiblespecimens.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QLabel>
#include <QLayout>
#include <QProcess>

#include <climits>

namespace
{

QAccessibleInterface *interfaceOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

QString valuesOf(QAccessibleInterface &found)
{
    const auto *value = found.valueInterface();
    if (!value)
        return {};
    const QVariantList all{value->currentValue(), value->minimumValue(), value->maximumValue(),
                           value->minimumStepSize()};
    QStringList texts;
    for (const QVariant &each : all)
        texts += each.toString();
    return texts.join(QLatin1Char(' '));
}

QString nameOf(QAccessibleInterface &found) { return found.text(QAccessible::Name); }

// Which bits of the state are set, of those that a widget has by itself.
QString statesOf(QWidget *widget)
{
    const QAccessible::State state = interfaceOf(widget)->state();
    QStringList names;
    const auto add = [&names](bool isSet, const char *name) {
        if (isSet)
            names += QLatin1String(name);
    };
    add(state.pressed, "pressed");
    add(state.checkable, "checkable");
    add(state.checked, "checked");
    add(state.disabled, "disabled");
    add(state.focused, "focused");
    add(state.readOnly, "readOnly");
    add(state.animated, "animated");
    add(state.invisible, "invisible");
    add(state.offscreen, "offscreen");
    return names.join(QLatin1Char(' '));
}

} // namespace

class tst_Accessible : public WidgetTest
{
    Q_OBJECT

    const std::vector<Specimen> m_all = allSpecimens();

private slots:
    // Of the parts of a tuner there are specimens inside of one.
    void thereIsASpecimenOfEachWidget()
    {
        QStringList expected;
        QStringList found;
#define NAME_OF(Class, ...) expected += QStringLiteral(#Class);
        PANELKIT_FOR_EACH_WIDGET(NAME_OF)
#undef NAME_OF
        for (const Specimen &each : m_all)
            found += QLatin1String(each.name);
        expected.sort();
        found.sort();
        QCOMPARE(found, expected);
    }

    void everyClass_data()
    {
        QTest::addColumn<const Specimen *>("specimen");
        for (const Specimen &each : m_all)
            QTest::newRow(each.name) << &each;
    }

    void everyClass()
    {
        QFETCH(const Specimen *, specimen);
        QWidget window;
        QWidget *widget = shown(*specimen, window);
        QCOMPARE(widget->metaObject()->className(), specimen->name);
        QAccessibleInterface *found = interfaceOf(widget);
        QVERIFY(found && found->isValid());
        QCOMPARE(found->object(), widget);
        QCOMPARE(found->role(), specimen->role);
        QCOMPARE(nameOf(*found), QLatin1String(specimen->text));
        QCOMPARE(found->text(QAccessible::Description), QStringLiteral("id"));
        QCOMPARE(valuesOf(*found), QLatin1String(specimen->value));
        QCOMPARE(found->actionInterface()->actionNames().join(QLatin1Char('/')),
                 QLatin1String(specimen->actions));
        QCOMPARE(found->rect(), QRect(widget->mapToGlobal(QPoint()), widget->size()));
        QCOMPARE(found->parent(), interfaceOf(&window));
        QVERIFY(found->window());
        QVERIFY(found->parent()->indexOfChild(found) >= 0);
        QCOMPARE(found->indexOfChild(nullptr), -1);
        QCOMPARE(found->indexOfChild(found->parent()), -1);
        QVERIFY(!found->child(-1) && !found->child(found->childCount()));
    }

#ifndef PANELKIT_EMULATED // a program that the processor cannot start by itself
    void aClassIsReadWhereThereIsNoOther_data() { everyClass_data(); }

    void aClassIsReadWhereThereIsNoOther()
    {
        QFETCH(const Specimen *, specimen);
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("everyClass:%1").arg(QLatin1String(specimen->name))});
        QVERIFY(process.waitForFinished(-1));
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                 process.readAllStandardOutput());
    }
#endif

    void theApplicationsWordsComeFirst_data() { everyClass_data(); }

    void theApplicationsWordsComeFirst()
    {
        QFETCH(const Specimen *, specimen);
        QWidget window;
        QWidget *widget = shown(*specimen, window);
        QAccessibleInterface *found = interfaceOf(widget);
        widget->setToolTip(QStringLiteral("tip"));
        QCOMPARE(found->text(QAccessible::Description), QStringLiteral("tip"));
        widget->setAccessibleDescription(QStringLiteral("what it does"));
        QCOMPARE(found->text(QAccessible::Description), QStringLiteral("what it does"));
        widget->setAccessibleName(QStringLiteral("its name"));
        QCOMPARE(nameOf(*found), QStringLiteral("its name"));
    }

    void everyWidgetsStates_data() { everyClass_data(); }

    void everyWidgetsStates()
    {
        QFETCH(const Specimen *, specimen);
        QWidget window;
        QWidget *widget = shown(*specimen, window);
        const auto has = [widget](const char *state) {
            return statesOf(widget).split(QLatin1Char(' ')).contains(QLatin1String(state));
        };
        QVERIFY(!has("disabled") && !has("invisible") && !has("offscreen") && !has("pressed"));
        const bool isForReading =
            qstrlen(specimen->value) > 0 && !QByteArray(specimen->actions).contains("Increase");
        QCOMPARE(has("readOnly"), isForReading);
        QCOMPARE(has("animated"), specimen->role == QAccessible::Animation);
        widget->setEnabled(false);
        QVERIFY(has("disabled"));
        widget->move(2000, 0);
        QVERIFY(has("offscreen"));
        widget->hide();
        QVERIFY(has("invisible"));
    }

    void statesOfTheClassesOwn()
    {
        SpIconButton icon;
        icon.setIsDown(true);
        icon.setFocus(true);
        icon.setDisableState(true);
        QCOMPARE(statesOf(&icon), QStringLiteral("pressed disabled focused invisible"));
        SpHorStrButton horizontal;
        horizontal.setPressState(true);
        QCOMPARE(statesOf(&horizontal), QStringLiteral("pressed invisible"));
        horizontal.setBtnDisable(true);
        QCOMPARE(statesOf(&horizontal), QStringLiteral("pressed disabled invisible"));
        SpVerStrButton vertical;
        vertical.setIsDown(true);
        vertical.setDisable(true);
        QCOMPARE(statesOf(&vertical), QStringLiteral("pressed disabled invisible"));
        MOnOffButton onOff;
        QCOMPARE(statesOf(&onOff), QStringLiteral("checkable invisible"));
        onOff.setOnoffStatus(true);
        onOff.setBtnDisable(true);
        QCOMPARE(statesOf(&onOff), QStringLiteral("checkable checked disabled invisible"));
        MSelectButton select;
        select.setSelectState(true);
        select.setDisableState(true);
        QCOMPARE(statesOf(&select), QStringLiteral("checkable checked disabled invisible"));
        MPresetButton preset;
        preset.setChecked(true);
        QCOMPARE(statesOf(&preset), QStringLiteral("checkable checked invisible"));
        SpLockButton lock;
        lock.setIsDown(true);
        QCOMPARE(statesOf(&lock), QStringLiteral("checkable checked invisible"));
        SpMultipleButton multiple;
        multiple.setDisableState(true);
        QCOMPARE(statesOf(&multiple), QStringLiteral("disabled readOnly invisible"));
        PlayButton play(0, 0, 1, QString(), QString());
        QCOMPARE(statesOf(&play), QStringLiteral("disabled invisible"));
        MultipleStateButton state(0, 0, 1, {}, {}, QString());
        QCOMPARE(statesOf(&state), QStringLiteral("disabled readOnly invisible"));
    }

    // An identifier stands in for what is called nothing else.
    void whatHasNoNameIsCalledByItsIdentifier()
    {
        MOnOffButton onOff;
        onOff.setBtnID(QStringLiteral("loudness"));
        QCOMPARE(nameOf(*interfaceOf(&onOff)), QStringLiteral("loudness"));
        SpDisLabel picture;
        picture.setDisplayMode(SpDisLabel::Picture);
        QCOMPARE(nameOf(*interfaceOf(&picture)), QString());
    }

    void theDialSaysItsUnit()
    {
        MCircularDial dial;
        dial.setUnit(QStringLiteral(" MHz"));
        QCOMPARE(interfaceOf(&dial)->text(QAccessible::Value), QStringLiteral("87.5 MHz"));
    }

    void partsOfATuner()
    {
        MRadioMovePoint tuner;
        auto *needle = tuner.findChild<MovePoint *>();
        QCOMPARE(interfaceOf(needle)->role(), QAccessible::Indicator);
        const auto labels = tuner.findChildren<QLabel *>();
        QCOMPARE(labels.size(), 2);
        QWidget *scale = labels.at(labels.at(0) == needle ? 1 : 0);
        QVERIFY(dynamic_cast<ScaleBkg *>(scale));
        QCOMPARE(interfaceOf(scale)->role(), QAccessible::Graphic);
        QLabel plain;
        QCOMPARE(interfaceOf(&plain)->role(), QAccessible::StaticText);
    }

    void aClassOfTheApplicationIsWhatItDerivesFrom()
    {
        class Popup : public SpMaskBackground
        {
        };
        Popup popup;
        QCOMPARE(interfaceOf(&popup)->role(), QAccessible::LayeredPane);
    }

    void rowsOfATableList();
    void rowsAreThoseThatTheModelHasNow();
    void lettersOfAnIndex();
    void lettersStandOnTheirArc();
    void hostileValuesAreRead_data() { everyClass_data(); }
    void hostileValuesAreRead();
    void aClientMayKeepWhatItHas_data() { everyClass_data(); }
    void aClientMayKeepWhatItHas();
};

// At (1, 1) of the list there is a row; Qt counts an invisible header before each.
void tst_Accessible::rowsOfATableList()
{
    QWidget window;
    SpTableList list(&window);
    list.setItemHeight(40);
    list.setItemWidth(200);
    list.setModel(rowsModel(20, &list));
    list.setGeometry(0, 0, 200, 100);
    list.setObjectName(QStringLiteral("id"));
    window.show();
    QAccessibleInterface *found = interfaceOf(&list);
    QStringList inSight;
    int rows = 0;
    for (int i = 0; i < found->childCount(); ++i) {
        QAccessibleInterface *row = found->child(i);
        QCOMPARE(found->indexOfChild(row), i);
        QCOMPARE(row->parent(), found);
        const bool isRow = row->role() == QAccessible::ListItem;
        QCOMPARE(bool(row->state().selectable), isRow);
        QCOMPARE(row->actionInterface() != nullptr, isRow);
        rows += isRow ? 1 : 0;
        if (!row->state().invisible && !row->state().offscreen)
            inSight += nameOf(*row);
    }
    QCOMPARE(rows, 20);
    QCOMPARE(inSight, (QStringList{"Row 1", "Row 2", "Row 3"}));
    QAccessibleInterface *second = found->childAt(found->rect().x() + 1, found->rect().y() + 41);
    QCOMPARE(nameOf(*second), QStringLiteral("Row 2"));
    QCOMPARE(second->text(QAccessible::Description), QStringLiteral("2, tail"));
    QVERIFY(second->state().selected);
    QCOMPARE(second->rect().height(), 40);
    QCOMPARE(second->rect().topLeft(), found->rect().topLeft() + QPoint(1, 41));
    QCOMPARE(second->actionInterface()->actionNames(), QStringList{"Press"});
    QVERIFY(!found->childAt(found->rect().right() + 10, found->rect().top()));
    QVERIFY(!second->state().pressed);
    touch(list.viewport()).press(50, 50).hold(300);
    QVERIFY(second->state().pressed && !found->child(3)->state().pressed);
}

void tst_Accessible::rowsAreThoseThatTheModelHasNow()
{
    SpTableList list;
    auto *model = rowsModel(3, &list);
    list.setModel(model);
    QAccessibleInterface *found = interfaceOf(&list);
    QAccessibleInterface *last = found->child(found->childCount() - 1);
    QCOMPARE(nameOf(*last), QStringLiteral("Row 3"));
    list.setUIStyle(SpTableList::LIST_STYLE_5);
    model->setData(model->index(2, 0), QStringLiteral("Title/Artist"), 262);
    QCOMPARE(nameOf(*last), QStringLiteral("Title, Artist"));
    model->setData(model->index(2, 0), 0, 258);
    model->setData(model->index(2, 0), QStringLiteral("of a plain model"), Qt::DisplayRole);
    QCOMPARE(nameOf(*last), QStringLiteral("of a plain model"));
    model->setData(model->index(2, 0), QStringLiteral("said"), Qt::AccessibleTextRole);
    QCOMPARE(nameOf(*last), QStringLiteral("said"));
    model->removeRow(0);
    QVERIFY(!last->isValid());
    QCOMPARE(nameOf(*last), QString());
    QCOMPARE(nameOf(*found->child(found->childCount() - 1)), QStringLiteral("said"));
    QAccessibleInterface *cell = found->child(3);
    QCOMPARE(nameOf(*cell), QStringLiteral("Row 2"));
    model->setColumnCount(2);
    QCOMPARE(found->child(3)->role(), QAccessible::RowHeader);
    QCOMPARE(nameOf(*found->child(4)), QStringLiteral("Row 2"));
    QCOMPARE(found->child(5)->role(), QAccessible::RowHeader);
    list.setModel(nullptr);
    QCOMPARE(found->childCount(), 0);
}

void tst_Accessible::lettersOfAnIndex()
{
    for (const auto style : {MArcList::ARCLIST_STYLE_0, MArcList::ARCLIST_STYLE_1}) {
        QWidget window;
        MArcList index(&window);
        index.setAcrListStyle(style);
        index.setRadius(180);
        index.setItemHight(style == MArcList::ARCLIST_STYLE_0 ? 10 : 40);
        index.setGeometry(0, 0, 200, 200);
        for (const QChar letter : QStringLiteral("ABCDEFGHIJ"))
            index.addAlpha(letter);
        window.show();
        index.setCurrentIndex(QLatin1Char('B'));
        QAccessibleInterface *found = interfaceOf(&index);
        QCOMPARE(found->childCount(), 10);
        QAccessibleInterface *third = found->child(2);
        QCOMPARE(nameOf(*third), QStringLiteral("C"));
        QCOMPARE(third->childCount(), 0);
        QVERIFY(found->child(1)->state().selected && !third->state().selected);
        QVERIFY(found->child(9)->state().offscreen && !third->state().offscreen);
        QVERIFY(!found->childAt(found->rect().left() + 1, found->rect().bottom() - 1));
        QCOMPARE(found->childAt(third->rect().center().x(), third->rect().center().y()), third);
        touch(&index).press(third->rect().center() - found->rect().topLeft());
        QVERIFY(third->state().pressed && !found->child(1)->state().pressed);
    }
}

// The third one at 25 degrees below the level of the arc's middle.
void tst_Accessible::lettersStandOnTheirArc()
{
    QWidget window;
    MArcList index(&window);
    index.setRadius(1000);
    index.setItemHight(10);
    index.setGeometry(0, 0, 1100, 1100);
    for (const QChar letter : QStringLiteral("ABC"))
        index.addAlpha(letter);
    window.show();
    QAccessibleInterface *found = interfaceOf(&index);
    const QPoint place(906, 550 + 422); // the cosine of 25 degrees is 0.9063, the sine 0.4226
    QCOMPARE(found->child(2)->rect(),
             QRect(place - QPoint(20, 20), QSize(40, 40)).translated(found->rect().topLeft()));
}

// Whatever the properties are: what is read agrees with the widget, and a touch is one or none.
void tst_Accessible::hostileValuesAreRead()
{
    QFETCH(const Specimen *, specimen);
    const QVariantList values{INT_MIN, -1,     0,     1,    INT_MAX,
                              qQNaN(), qInf(), 1e300, true, QString(QChar(0xD800))};
    QWidget window;
    QWidget *widget = shown(*specimen, window);
    QAccessibleInterface *found = interfaceOf(widget);
    const QMetaObject *type = widget->metaObject();
    for (int i = QWidget::staticMetaObject.propertyCount(); i < type->propertyCount(); ++i) {
        const QVariant before = widget->property(type->property(i).name());
        for (const QVariant &value : values) {
            widget->setProperty(type->property(i).name(), value);
            for (auto *each : {found, found->child(0), found->child(found->childCount() - 1)}) {
                if (!each)
                    continue;
                each->state();
                each->text(QAccessible::Name);
                QVERIFY(each->rect().isEmpty() || each != found
                        || each->rect().size() == widget->size());
                if (auto *actions = each->actionInterface())
                    actions->doAction(QAccessibleActionInterface::pressAction());
            }
            found->childAt(found->rect().x() + 5, found->rect().y() + 5);
            found->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
            if (auto *own = found->valueInterface())
                own->setCurrentValue(1e300);
        }
        widget->setProperty(type->property(i).name(), before);
    }
}

// From its destructor on a widget is none of its class; then Qt takes its interface away.
void tst_Accessible::aClientMayKeepWhatItHas()
{
    QFETCH(const Specimen *, specimen);
    QWidget window;
    QWidget *widget = specimen->make(&window);
    QAccessibleInterface *found = nullptr;
    QAccessible::Id id = 0;
    int looks = 0;
    const auto look = [&] {
        if (QAccessible::accessibleInterface(id) != found)
            return; // one that was there before this listened is the first to go
        ++looks;
        found->state();
        for (const auto which : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
            found->text(which);
        for (int i = 0; i < found->childCount(); ++i)
            found->child(i)->state();
        found->childAt(1, 1);
        found->rect();
        found->parent();
        found->window();
        valuesOf(*found);
        if (auto *value = found->valueInterface())
            value->setCurrentValue(1);
        const QStringList names = found->actionInterface()->actionNames();
        for (const QString &name : names + QStringList{"Press", "Increase", "NextPage"})
            found->actionInterface()->doAction(name);
    };
    // First while the widget is a plain one, whose layout goes, then, before Qt's own cache hears
    // of it, when it is nothing any more.
    connect(new QVBoxLayout(widget), &QObject::destroyed, look);
    connect(widget, &QObject::destroyed, look);
    window.show();
    found = interfaceOf(widget);
    id = QAccessible::uniqueId(found);
    QAccessible::Id row = 0;
    if (found->role() == QAccessible::List)
        row = QAccessible::uniqueId(found->child(found->childCount() - 1));
    delete widget;
    QVERIFY(looks >= 1);
    QVERIFY(!QAccessible::accessibleInterface(id));
    QVERIFY(row == 0 || !QAccessible::accessibleInterface(row));
}

WIDGET_TEST_MAIN(tst_Accessible)
#include "tst_accessible.moc"
