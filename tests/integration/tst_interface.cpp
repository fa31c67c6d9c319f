// SPDX-License-Identifier: Apache-2.0
// Compares every listed class with its written interface, tests/interface/<class>.txt: what its
// meta-object has (enumerations, properties with their flags and order, signals, slots), and every
// function that the library exports for it. And holds the installed headers to being nothing else.

#include "panelkitclasses.h"

#include "propertytype.h"
#include "widgettest.h"

#include <QDir>
#include <QFile>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaProperty>

#include <algorithm>
#include <cstdio>
#include <type_traits>

namespace
{

// The class of Qt, or of this library, that a class derives from directly.
template <class Class, class Base, class... Others> constexpr std::size_t sizeOfBase()
{
    if constexpr (std::is_base_of_v<Base, Class> && !std::is_same_v<Base, Class>)
        return sizeof(Base);
    else
        return sizeOfBase<Class, Others...>();
}

// All that a class has of its own is a pointer, so that what it keeps may change within 1.x.
#define HOLDS_ONE_POINTER(Class)                                                         \
    static_assert(sizeof(Class)                                                          \
                      == sizeOfBase<Class, QScrollBar, QTableView, QLabel, QRadioButton, \
                                    QCheckBox, QStyledItemDelegate, QWidget>()           \
                          + sizeof(void *),                                              \
                  #Class " has more than its private pointer");
#define CLASS_HOLDS_ONE_POINTER(Class, create) HOLDS_ONE_POINTER(Class)
PANELKIT_FOR_EACH_CLASS(CLASS_HOLDS_ONE_POINTER)
HOLDS_ONE_POINTER(ScaleBkg)
HOLDS_ONE_POINTER(MovePoint)
static_assert(sizeof(FmMovePoint) == sizeof(MovePoint), "the needle adds nothing to its base");

QString latin(const char *text) { return QString::fromLatin1(text); }

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
        .arg(writtenType(property), latin(property.name()), flags.join(latin(" ")));
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

// The functions that the library defines, as a linker sees them; those of moc are not written down.
QStringList exportedFunctions()
{
    std::FILE *const nm = popen("nm -DC --defined-only " LIBRARY, "r");
    QFile output;
    if (!nm || !output.open(nm, QIODevice::ReadOnly))
        qFatal("nm cannot be run");
    const QString symbols = latin(output.readAll());
    if (pclose(nm) != 0)
        qFatal("nm cannot read " LIBRARY);
    static const QRegularExpression line(QStringLiteral("^[0-9a-f]+ T (.*)$"),
                                         QRegularExpression::MultilineOption);
    static const QRegularExpression ofMoc(
        QStringLiteral("::(metaObject\\(\\) "
                       "const|qt_metacast|qt_metacall|qt_static_metacall)|^non-virtual thunk"));
    QStringList functions;
    for (auto match = line.globalMatch(symbols); match.hasNext();) {
        const QString name = match.next().captured(1);
        if (!name.contains(ofMoc))
            functions += name;
    }
    functions.sort();
    functions.removeDuplicates(); // constructors and destructors have several entries
    return functions;
}

QStringList exportedBy(const QString &className)
{
    static const QStringList functions = exportedFunctions();
    QStringList lines;
    for (const QString &function : functions) {
        if (function.startsWith(className + latin("::")))
            lines += latin("function ") + function;
    }
    return lines;
}

QString headerText(const QString &name)
{
    QFile file(QDir(latin(HEADER_DIR)).filePath(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    return QString::fromUtf8(file.readAll());
}

// The lines of functions as the symbols have them: in Qt 6 a QStringList is a QList<QString>, which
// also stands elsewhere in the order of the letters.
QStringList asLinked(QStringList lines)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const auto isFunction = [](const QString &line) { return line.startsWith(latin("function ")); };
    const auto functions = std::find_if(lines.begin(), lines.end(), isFunction);
    for (auto line = functions; line != lines.end(); ++line)
        line->replace(latin("QStringList"), latin("QList<QString>"));
    std::sort(functions, lines.end());
#endif
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
    return asLinked(lines);
}

} // namespace

Q_DECLARE_METATYPE(const QMetaObject *)

class tst_Interface : public WidgetTest
{
    Q_OBJECT

private slots:
    void theInterfaceIsTheWrittenOne_data()
    {
        QTest::addColumn<const QMetaObject *>("type");
#define PART_ROW(Class) QTest::newRow(#Class) << &Class::staticMetaObject;
#define CLASS_ROW(Class, create) PART_ROW(Class)
        PANELKIT_FOR_EACH_CLASS(CLASS_ROW)
        PANELKIT_FOR_EACH_PART(PART_ROW)
#undef CLASS_ROW
#undef PART_ROW
    }

    void theInterfaceIsTheWrittenOne()
    {
        QFETCH(const QMetaObject *, type);
        const QString className = latin(QTest::currentDataTag());
        const QStringList actual = described(*type, className) + exportedBy(className);
        const QStringList expected = written(className);
        for (int i = 0; i < qMin(actual.size(), expected.size()); ++i)
            QCOMPARE(actual[i], expected[i]);
        QCOMPARE(actual.size(), expected.size());
    }

    void nothingElseIsExported()
    {
        QStringList classes;
#define PART_NAME(Class) classes += latin(#Class "::");
#define CLASS_NAME(Class, create) PART_NAME(Class)
        PANELKIT_FOR_EACH_CLASS(CLASS_NAME)
        PANELKIT_FOR_EACH_PART(PART_NAME)
#undef CLASS_NAME
#undef PART_NAME
        QStringList others;
        for (const QString &function : exportedFunctions()) {
            const bool isOfAClass =
                std::any_of(classes.cbegin(), classes.cend(),
                            [&](const QString &name) { return function.startsWith(name); });
            if (!isOfAClass)
                others += function;
        }
        QCOMPARE(others, QStringList{latin("transFormTime(long long, QString&)")});
    }

    void headersShowTheInterfaceAlone_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : QDir(latin(HEADER_DIR)).entryList({latin("*.h")}))
            QTest::newRow(qPrintable(name)) << name;
    }

    // No function body, no name of the shared rooms, and no class longer than a few screens.
    void headersShowTheInterfaceAlone()
    {
        QFETCH(QString, name);
        const QString text = headerText(name);
        QVERIFY(!text.contains(latin("panelkit::")));
        QVERIFY(
            !text.contains(QRegularExpression(QStringLiteral("\\)( const)?( override)?\\s*\\{"))));
        static const QRegularExpression oneClass(
            QStringLiteral("^class PANELKIT_EXPORT .*?^\\};"),
            QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
        for (auto match = oneClass.globalMatch(text); match.hasNext();)
            QVERIFY(match.next().captured().count(QLatin1Char('\n')) < 160);
    }

    void halfOfTheHeadersFitOnTwoScreens()
    {
        QVector<int> lines;
        for (const QString &name : QDir(latin(HEADER_DIR)).entryList({latin("*.h")}))
            lines += headerText(name).count(QLatin1Char('\n'));
        std::sort(lines.begin(), lines.end());
        QVERIFY2(lines[lines.size() / 2] <= 95,
                 qPrintable(QString::number(lines[lines.size() / 2])));
    }
};

WIDGET_TEST_MAIN(tst_Interface)
#include "tst_interface.moc"
