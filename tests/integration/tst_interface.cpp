// Compares the meta-object of every listed class with its written interface,
// tests/interface/<class>.txt: enumerations, properties with their flags and order, signals, slots.

#include "panelkitclasses.h"

#include "widgettest.h"

#include <QFile>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaProperty>

namespace
{

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

QString describedEnum(const QMetaEnum &type)
{
    QStringList values;
    for (int i = 0; i < type.keyCount(); ++i)
        values += QStringLiteral("%1 = %2").arg(latin(type.key(i))).arg(type.value(i));
    return QStringLiteral("%1 %2: %3")
        .arg(type.isFlag() ? latin("flags") : latin("enum"), latin(type.name()),
             values.join(latin(", ")));
}

QString describedProperty(const QMetaProperty &property)
{
    QStringList flags;
    const auto add = [&](bool isSet, const char *flag) {
        if (isSet)
            flags += latin(flag);
    };
    add(property.isReadable(), "read");
    add(property.isWritable(), "write");
    add(property.isResettable(), "reset");
    add(property.hasNotifySignal(), "notify");
    add(property.isDesignable(), "designable");
    add(property.isScriptable(), "scriptable");
    add(property.isStored(), "stored");
    add(property.isUser(), "user");
    add(property.isConstant(), "constant");
    add(property.isFinal(), "final");
    return QStringLiteral("property %1 %2: %3")
        .arg(latin(property.typeName()), latin(property.name()), flags.join(latin(" ")));
}

QString describedMethod(const QMetaMethod &method)
{
    static const char *const accesses[] = {"private", "protected", "public"};
    static const char *const kinds[] = {"method", "signal", "slot", "constructor"};
    const QList<QByteArray> types = method.parameterTypes();
    const QList<QByteArray> names = method.parameterNames();
    QStringList parameters;
    for (int i = 0; i < types.size(); ++i)
        parameters += latin((types[i] + ' ' + names[i]).trimmed());
    const QString result = method.returnType() == QMetaType::Void
        ? QString()
        : latin(method.typeName()) + QLatin1Char(' ');
    return QStringLiteral("%1 %2 %3%4(%5)")
        .arg(latin(accesses[method.access()]), latin(kinds[method.methodType()]), result,
             latin(method.name()), parameters.join(latin(", ")));
}

// A class that moc does not know has the meta-object of its base class.
QStringList described(const QMetaObject &type, const QString &className)
{
    if (latin(type.className()) != className)
        return {QStringLiteral("class %1 : %2, unknown to moc")
                    .arg(className, latin(type.className()))};
    QStringList lines{QStringLiteral("class %1 : %2")
                          .arg(latin(type.className()), latin(type.superClass()->className()))};
    for (int i = type.enumeratorOffset(); i < type.enumeratorCount(); ++i)
        lines += describedEnum(type.enumerator(i));
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        lines += describedProperty(type.property(i));
    for (int i = type.methodOffset(); i < type.methodCount(); ++i)
        lines += describedMethod(type.method(i));
    return lines;
}

QStringList written(const QString &className)
{
    QFile file(QStringLiteral(INTERFACE_DIR "/%1.txt").arg(className.toLower()));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QStringList lines;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        if (!line.trimmed().isEmpty() && !line.startsWith(QLatin1Char('#')))
            lines += line;
    }
    return lines;
}

} // namespace

Q_DECLARE_METATYPE(const QMetaObject *)

class tst_Interface : public WidgetTest
{
    Q_OBJECT

private slots:
    void theMetaObjectIsTheWrittenOne_data()
    {
        QTest::addColumn<const QMetaObject *>("type");
#define PART_ROW(Class) QTest::newRow(#Class) << &Class::staticMetaObject;
#define CLASS_ROW(Class, create) PART_ROW(Class)
        PANELKIT_FOR_EACH_CLASS(CLASS_ROW)
        PANELKIT_FOR_EACH_PART(PART_ROW)
#undef CLASS_ROW
#undef PART_ROW
    }

    void theMetaObjectIsTheWrittenOne()
    {
        QFETCH(const QMetaObject *, type);
        const QString className = latin(QTest::currentDataTag());
        const QStringList actual = described(*type, className);
        const QStringList expected = written(className);
        for (int i = 0; i < qMin(actual.size(), expected.size()); ++i)
            QCOMPARE(actual[i], expected[i]);
        QCOMPARE(actual.size(), expected.size());
    }
};

WIDGET_TEST_MAIN(tst_Interface)
#include "tst_interface.moc"
