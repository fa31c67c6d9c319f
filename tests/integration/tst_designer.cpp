// SPDX-License-Identifier: Apache-2.0
// The Designer plugin as Designer and QUiLoader use it: what it says of each class, and forms.

#include "panelkitclasses.h"

#include "formvalues.h"
#include "propertygroup.h"
#include "signallog.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include "ui_compiled.h"

#include <QBuffer>
#include <QPluginLoader>
#include <QRandomGenerator>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <memory>

namespace
{

QList<QDesignerCustomWidgetInterface *> offeredWidgets()
{
    QPluginLoader loader(QStringLiteral(DESIGNER_PLUGIN));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    if (!collection)
        qFatal("%s", qPrintable(loader.errorString()));
    return collection->customWidgets();
}

QDesignerCustomWidgetInterface *offered(const QString &className)
{
    for (QDesignerCustomWidgetInterface *widget : offeredWidgets()) {
        if (widget->name() == className)
            return widget;
    }
    return nullptr;
}

std::unique_ptr<QWidget> loadForm(QIODevice &form)
{
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(QStringLiteral(DESIGNER_PLUGIN)).path());
    return std::unique_ptr<QWidget>(loader.load(&form));
}

using Create = std::function<QWidget *(QWidget *)>;

const QRect kPlace(10, 20, 190, 120);

// A form with one widget, which has these values.
QByteArray formOf(const QString &className, const QVector<FormValue> &values)
{
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("4.0"));
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), QStringLiteral("QWidget"));
    writeFormWidget(xml, className, QStringLiteral("one"), kPlace, values);
    xml.writeEndElement();
    xml.writeEndElement();
    return text;
}

// What a form says, in code: in the same order, but for the translated texts. uic and QUiLoader set
// these last, in a function that may be called again.
QWidget *inCode(const Create &create, const QVector<FormValue> &values, QWidget *form)
{
    QWidget *widget = create(form);
    widget->setGeometry(kPlace);
    for (const bool isTranslated : {false, true}) {
        for (const FormValue &value : values) {
            if (value.isTranslated() == isTranslated)
                widget->setProperty(value.property().name(), value.value());
        }
    }
    return widget;
}

// The properties of its own class, one a line; a picture by what it shows.
QStringList stateOf(const QWidget &widget)
{
    const QMetaObject *type = widget.metaObject();
    QStringList lines;
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        QVariant value = type->property(i).read(&widget);
        if (value.userType() == QMetaType::QPixmap)
            value = value.value<QPixmap>().toImage();
        QString text;
        QDebug(&text) << value;
        if (value.userType() == QMetaType::QImage) {
            const QImage image = value.value<QImage>();
            text = QStringLiteral("%1 x %2, %3")
                       .arg(image.width())
                       .arg(image.height())
                       .arg(image.isNull() ? 0 : image.pixel(0, 0));
        }
        lines += QString::fromLatin1(type->property(i).name()) + QStringLiteral(" = ") + text;
    }
    return lines;
}

} // namespace

Q_DECLARE_METATYPE(Create)
Q_DECLARE_METATYPE(const QMetaObject *)

class tst_Designer : public WidgetTest
{
    Q_OBJECT

private slots:
    void everyListedWidgetIsOffered()
    {
        QStringList names;
        for (const QDesignerCustomWidgetInterface *widget : offeredWidgets())
            names += widget->name();
        QStringList listed;
#define NAME_ROW(Class, ...) listed += QStringLiteral(#Class);
        PANELKIT_FOR_EACH_WIDGET(NAME_ROW)
#undef NAME_ROW
        QCOMPARE(names, listed);
    }

    void anOfferedWidgetIntroducesItself_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("header");
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("isMadeByUic");
#define OFFER_ROW(Class, create, header, family, toolTip, width, height, initial) \
    QTest::newRow(#Class) << QStringLiteral(#Class) << QStringLiteral(header)     \
                          << QStringLiteral(family) << QStringLiteral(toolTip)    \
                          << QSize(width, height)                                 \
                          << std::is_constructible<Class, QWidget *>::value;
        PANELKIT_FOR_EACH_WIDGET(OFFER_ROW)
#undef OFFER_ROW
    }

    void anOfferedWidgetIntroducesItself()
    {
        QFETCH(QString, name);
        QFETCH(QString, header);
        QFETCH(QString, family);
        QFETCH(QString, toolTip);
        QFETCH(QSize, size);
        QFETCH(bool, isMadeByUic);
        QDesignerCustomWidgetInterface *widget = offered(name);
        QVERIFY(widget);
        QCOMPARE(widget->group(), QStringLiteral("PanelKit: ") + family);
        QCOMPARE(widget->includeFile(), header);
        QCOMPARE(widget->toolTip(), toolTip);
        QVERIFY(widget->whatsThis().startsWith(name + QStringLiteral(": ") + toolTip));
        QCOMPARE(!widget->whatsThis().contains(QStringLiteral("uic")), isMadeByUic);
        QVERIFY(!widget->isContainer());
        const QImage icon = widget->icon().pixmap(22, 22).toImage();
        QImage blank(icon.size(), QImage::Format_ARGB32_Premultiplied);
        blank.fill(Qt::transparent);
        QCOMPARE(icon.size(), QSize(22, 22));
        QVERIFY(icon.convertToFormat(blank.format()) != blank);

        QByteArray xml = widget->domXml().toUtf8();
        QBuffer form(&xml);
        const std::unique_ptr<QWidget> made = loadForm(form);
        QVERIFY(made);
        QCOMPARE(QString::fromLatin1(made->metaObject()->className()), name);
        QCOMPARE(made->size(), size.expandedTo(made->minimumSize()));
    }

    // Designer offers these to translators otherwise, and a translated identifier finds nothing.
    void identifiersAndFilesAreNotTranslated_data() { anOfferedWidgetIntroducesItself_data(); }

    void identifiersAndFilesAreNotTranslated()
    {
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const std::unique_ptr<QWidget> widget(offered(name)->createWidget(nullptr));
        const QMetaObject *type = widget->metaObject();
        QStringList expected;
        for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
            const QMetaProperty property = type->property(i);
            if (property.userType() == QMetaType::QString && !propertyGroup(property).isEmpty())
                expected += QString::fromLatin1(property.name());
        }
        QStringList fixed;
        QXmlStreamReader xml(offered(name)->domXml());
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement
                && xml.name() == QLatin1String("stringpropertyspecification")) {
                QCOMPARE(xml.attributes().value(QLatin1String("notr")), QLatin1String("true"));
                fixed += xml.attributes().value(QLatin1String("name")).toString();
            }
        }
        QCOMPARE(fixed, expected);
    }

    void noTwoIconsAreAlike()
    {
        QVector<QPair<QString, QImage>> icons;
        for (const QDesignerCustomWidgetInterface *widget : offeredWidgets()) {
            const QImage icon = widget->icon().pixmap(22, 22).toImage();
            for (const auto &other : icons)
                QVERIFY2(icon != other.second, qPrintable(widget->name() + ' ' + other.first));
            icons.append({widget->name(), icon});
        }
    }

    void propertiesAreGrouped_data()
    {
        QTest::addColumn<QString>("group");
        QTest::newRow("normalImage") << "Pictures";
        QTest::newRow("pressImgPath") << "Pictures";
        QTest::newRow("focusTextColor") << "Colours";
        QTest::newRow("buttonID") << "Identifiers";
        QTest::newRow("displayText") << "";
        QTest::newRow("textAlign") << "";
        QTest::newRow("timerInterval") << "";
    }

    void propertiesAreGrouped()
    {
        const QMetaObject &type = SpIconButton::staticMetaObject;
        const QMetaProperty property = type.property(type.indexOfProperty(QTest::currentDataTag()));
        QTEST(propertyGroup(property), "group");
    }

    void aFormMakesTheWidgetThatCodeMakes_data()
    {
        QTest::addColumn<Create>("create");
        QTest::addColumn<const QMetaObject *>("type");
#define CREATE_ROW(Class, create, ...)                                                   \
    QTest::newRow(#Class) << Create([](QWidget *parent) -> QWidget * { return create; }) \
                          << &Class::staticMetaObject;
        PANELKIT_FOR_EACH_WIDGET(CREATE_ROW)
#undef CREATE_ROW
    }

    // In the order of the class, as Designer saves them, and in others, as other hands do.
    void aFormMakesTheWidgetThatCodeMakes()
    {
        QFETCH(Create, create);
        QFETCH(const QMetaObject *, type);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        QRandomGenerator random(7);
        for (int number = 1; number <= 4; ++number) {
            QVector<FormValue> values = formValues(*type, number, QStringLiteral(FORMS));
            if (number > 1)
                std::shuffle(values.begin(), values.end(), random);
            QByteArray text = formOf(name, values);
            QBuffer form(&text);
            const std::unique_ptr<QWidget> loadedForm = loadForm(form);
            QVERIFY(loadedForm);
            auto *loaded = loadedForm->findChild<QWidget *>(QStringLiteral("one"));
            QWidget codedForm;
            QWidget *coded = inCode(create, values, &codedForm);
            QVERIFY(loaded);
            QCOMPARE(stateOf(*loaded), stateOf(*coded));
            QCOMPARE(loaded->geometry(), coded->geometry());
            COMPARE_PICTURES(painted(*loaded), painted(*coded));
        }
    }

    void whatUicMakesOfAFormIsWhatIsLoaded()
    {
        QFile file(QStringLiteral(FORMS "/compiled.ui"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> loaded = loadForm(file);
        QVERIFY(loaded);
        QWidget compiled;
        Ui::Compiled().setupUi(&compiled);
        int count = 0;
#define COMPARE_ROW(Class, ...)                                                      \
    if (std::is_constructible<Class, QWidget *>::value) {                            \
        const QString name = QStringLiteral(#Class).toLower();                       \
        auto *one = loaded->findChild<Class *>(name, Qt::FindDirectChildrenOnly);    \
        auto *other = compiled.findChild<Class *>(name, Qt::FindDirectChildrenOnly); \
        QVERIFY2(one &&other, #Class);                                               \
        QCOMPARE(stateOf(*one), stateOf(*other));                                    \
        COMPARE_PICTURES(painted(*one), painted(*other));                            \
        ++count;                                                                     \
    }
        PANELKIT_FOR_EACH_WIDGET(COMPARE_ROW)
#undef COMPARE_ROW
        QVERIFY(count > 25);
    }

    void aFormWithEveryWidgetLoads()
    {
        QFile file(QStringLiteral(FORMS "/everywidget.ui"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> form = loadForm(file);
        QVERIFY(form);
        for (const QDesignerCustomWidgetInterface *offer : offeredWidgets()) {
            const auto *widget = form->findChild<QWidget *>(offer->name().toLower());
            QVERIFY2(widget, qPrintable(offer->name()));
            QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), offer->name());
        }
    }

    void aFormWithTwoButtonsLoadsAndBehaves()
    {
        QFile file(QStringLiteral(TWO_BUTTONS));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> form = loadForm(file);
        QVERIFY(form);
        auto *left = form->findChild<SpIconButton *>(QStringLiteral("leftButton"));
        auto *right = form->findChild<SpIconButton *>(QStringLiteral("rightButton"));
        QVERIFY(left && right);
        QCOMPARE(left->showMode(), SpIconButton::AlphaMode);
        QCOMPARE(left->disableMode(), SpIconButton::Show_DisableImage);
        QCOMPARE(left->imageAlpha(), 90);
        QCOMPARE(left->displayText(), QStringLiteral("Back & home"));
        QCOMPARE(left->pressTextColor(), QColor(20, 90, 160, 200));
        QVERIFY(right->supportLongPress());

        SignalLog leftLog(left);
        touch(left).tap(10, 10).hold(10);
        QCOMPARE(leftLog.take(),
                 (QStringList{"btnPressed(\"left\")", "btnClicked(\"left\")",
                              "btnReleased(\"left\")", "beep"}));
        SignalLog rightLog(right);
        Touch finger = touch(right);
        finger.tap(10, 10);
        QCOMPARE(rightLog.take(),
                 (QStringList{"btnPressed(\"right\")", "btnClicked(\"right\")",
                              "btnReleased(\"right\")"}));
        virtualtime::startMinute();
        finger.press(10, 10).hold(799);
        QCOMPARE(rightLog.take(), QStringList{"btnPressed(\"right\")"});
        finger.hold(1).release();
        QCOMPARE(rightLog.take(),
                 (QStringList{"btnLongPress(\"right\")", "btnLongRelease(\"right\")",
                              "btnReleased(\"right\")"}));
    }
};

WIDGET_TEST_MAIN(tst_Designer)
#include "tst_designer.moc"
