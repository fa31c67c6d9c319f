// SPDX-License-Identifier: Apache-2.0
// Compares the property tables of docs/classes/*.md with the classes: names, order, types,
// defaults, and whether a write repaints.

#include "panelkitclasses.h"

#include "files.h"
#include "gifs.h"
#include "pictures.h"
#include "propertytype.h"
#include "widgettest.h"

#include <QFile>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QTemporaryDir>

#include <memory>

namespace
{

// A row of a property table, for one property.
struct Row {
    QString name;
    QString type;
    QString byDefault;
    QString write;
};

// Pages put names and types in backticks.
QString code(const QString &cell) { return cell.section(QLatin1Char('`'), 1, 1); }

// One name, several with commas between them, or `image0` ... `image7`.
QStringList namesIn(const QString &cell)
{
    QStringList names;
    for (const QString &part : cell.split(QLatin1Char(',')))
        names += code(part);
    if (cell.contains(QLatin1String("..."))) {
        const QString last = cell.section(QLatin1Char('`'), 3, 3);
        const QString stem = last.chopped(1);
        for (int digit = 1; digit <= last.right(1).toInt(); ++digit)
            names += stem + QString::number(digit);
    }
    return names;
}

QVector<Row> rowsOf(const QString &line)
{
    const QStringList cells = line.split(QLatin1Char('|'));
    const auto cell = [&](int column) { return cells.value(column).trimmed(); };
    const QStringList names = namesIn(cell(1));
    const QStringList defaults = cell(3).split(QLatin1Char(','));
    QVector<Row> rows;
    for (int i = 0; i < names.size(); ++i) {
        const bool isOwn = names.size() > 1 && defaults.size() == names.size();
        rows.append({names[i], code(cell(2)), isOwn ? defaults[i].trimmed() : cell(3), cell(5)});
    }
    return rows;
}

QVector<Row> documentedRows(const QString &className)
{
    const QString path = QStringLiteral(DOCS_DIR "/%1.md").arg(className.toLower());
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(path));
    const QString text = QString::fromUtf8(file.readAll());
    const QString head = QStringLiteral(
        "| property | type | default | meaning | a write |\n|---|---|---|---|---|\n");
    QVector<Row> rows;
    const QString table = text.section(head, 1).section(QStringLiteral("\n\n"), 0, 0);
    for (const QString &line : table.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        rows += rowsOf(line);
    return rows;
}

// The numbers in a text such as "(150, 150, 150), alpha 100".
QVector<double> numbersIn(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("-?[0-9]+(\\.[0-9]+)?"));
    QVector<double> numbers;
    for (auto match = number.globalMatch(text); match.hasNext();)
        numbers += match.next().captured().toDouble();
    return numbers;
}

// "white", "black, alpha 100", "(150, 150, 150)", "(150, 150, 150), alpha 100", "invalid: black"
QColor documentedColor(const QString &text)
{
    const QVector<double> numbers = numbersIn(text);
    QColor color(text.section(QRegularExpression(QStringLiteral("[:,]")), 0, 0));
    if (numbers.size() >= 3)
        color = QColor(int(numbers[0]), int(numbers[1]), int(numbers[2]));
    if (text.contains(QLatin1String("alpha")))
        color.setAlpha(int(numbers.last()));
    return color;
}

QString namedValue(const QMetaEnum &type, int value)
{
    const QString keys = QString::fromLatin1(type.isFlag() ? type.valueToKeys(value)
                                                           : QByteArray(type.valueToKey(value)));
    return value == 0 && type.isFlag() ? QStringLiteral("none")
                                       : QStringLiteral("`%1`").arg(keys.section('|', -1));
}

QFont fontOf(int px)
{
    QFont font;
    font.setPixelSize(px);
    return font;
}

QVariant bothNumbers(double first, double second) { return QVariantList{first, second}; }

// What a page should say, or what it says, in a form that can be compared.
QVariant comparable(const QMetaProperty &property, const QVariant &value)
{
    if (property.isEnumType())
        return namedValue(property.enumerator(), value.toInt());
    switch (value.userType()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::QString:
        return value.toString().isEmpty() ? QStringLiteral("empty")
                                          : QStringLiteral("\"%1\"").arg(value.toString());
    case QMetaType::QPixmap:
        return value.value<QPixmap>().isNull();
    case QMetaType::QFont:
        return value.value<QFont>().pixelSize();
    case QMetaType::QRect:
        return value.toRect().isNull() ? QStringLiteral("none") : QStringLiteral("some");
    case QMetaType::QPoint:
    case QMetaType::QPointF:
        return bothNumbers(value.toPointF().x(), value.toPointF().y());
    case QMetaType::QSize:
        return bothNumbers(value.toSize().width(), value.toSize().height());
    default:
        return value;
    }
}

QVariant documentedDefault(const QMetaProperty &property, const QString &text)
{
    const QVector<double> numbers = numbersIn(text);
    if (property.isEnumType())
        return text;
    switch (property.userType()) {
    case QMetaType::Int: // "the application's" is a size in px
        return numbers.isEmpty() ? QFont().pixelSize() : int(numbers[0]);
    case QMetaType::Double:
        return numbers.value(0);
    case QMetaType::QPixmap:
        return text == QLatin1String("none");
    case QMetaType::QColor:
        return documentedColor(text);
    case QMetaType::QFont:
        return numbers.isEmpty() ? QFont().pixelSize() : int(numbers[0]);
    case QMetaType::QPoint:
    case QMetaType::QPointF:
    case QMetaType::QSize:
        return bothNumbers(numbers.value(0), numbers.value(1));
    default:
        return text;
    }
}

// Another value than the one there is, which the property accepts.
QVariant otherValue(const QMetaProperty &property, const QVariant &value, const QString &file)
{
    if (property.isEnumType()) {
        return property.isFlagType() ? int(Qt::AlignRight | Qt::AlignBottom)
                                     : (value.toInt() == 0 ? 1 : 0);
    }
    switch (property.userType()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Int:
        return value.toInt() + 1;
    case QMetaType::Double:
        return value.toDouble() + 1;
    case QMetaType::QString:
        return file;
    case QMetaType::QPixmap:
        return filled(Qt::blue, {20, 20});
    case QMetaType::QColor:
        return QColor(1, 2, 3, 4);
    case QMetaType::QFont:
        return fontOf(33);
    case QMetaType::QRect:
        return QRect(1, 2, 30, 40);
    case QMetaType::QPoint:
        return QPoint(5, 6);
    case QMetaType::QPointF:
        return QPointF(5, 6);
    case QMetaType::QSize:
        return QSize(55, 66);
    default:
        qFatal("no other value of %s", property.typeName());
    }
}

// What has to be set before a write has the effect of its row.
void prepare(QWidget &widget, const QString &property)
{
    if (widget.inherits("SpHomeIcon"))
        widget.setProperty("normalImage", filled(Qt::red, {30, 30}));
    if (property == QLatin1String("timerInterval"))
        widget.setProperty("supportLongPress", true);
    if (property == QLatin1String("decBtnPressImage"))
        widget.setProperty("hasAddDecBtn", true);
    if (property == QLatin1String("fitPixmapSize"))
        widget.setProperty("pixmap", filled(Qt::red, {20, 20}));
}

using Make = std::function<QObject *()>;

} // namespace

Q_DECLARE_METATYPE(Make)

class tst_Documentation : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_dir;

    static QVector<QMetaProperty> propertiesOf(const QObject &object)
    {
        const QMetaObject &type = *object.metaObject();
        QVector<QMetaProperty> properties;
        for (int i = type.propertyOffset(); i < type.propertyCount(); ++i) {
            // One name may be declared twice; the second entry adds nothing to say.
            if (i == type.propertyOffset()
                || qstrcmp(type.property(i).name(), type.property(i - 1).name()) != 0)
                properties += type.property(i);
        }
        return properties;
    }

    static void addClasses()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Make>("make");
        QWidget *const parent = nullptr;
#define CLASS_ROW(Class, create) \
    QTest::newRow(#Class) << QStringLiteral(#Class) << Make([parent] { return create; });
        PANELKIT_FOR_EACH_CLASS(CLASS_ROW)
#undef CLASS_ROW
    }

private slots:
    void everyPropertyStandsInItsTableInOrder_data() { addClasses(); }

    void everyPropertyStandsInItsTableInOrder()
    {
        QFETCH(QString, name);
        QFETCH(Make, make);
        const std::unique_ptr<QObject> object(make());
        QStringList actual;
        for (const QMetaProperty &property : propertiesOf(*object))
            actual +=
                QStringLiteral("%1 %2").arg(writtenType(property), QLatin1String(property.name()));
        QStringList documented;
        for (const Row &row : documentedRows(name))
            documented += QStringLiteral("%1 %2").arg(row.type, row.name);
        QCOMPARE(documented, actual);
    }

    void aNewObjectHasTheDefaults_data() { addClasses(); }

    void aNewObjectHasTheDefaults()
    {
        QFETCH(QString, name);
        QFETCH(Make, make);
        const std::unique_ptr<QObject> object(make());
        const QVector<Row> rows = documentedRows(name);
        const QVector<QMetaProperty> properties = propertiesOf(*object);
        QCOMPARE(rows.size(), properties.size());
        QStringList wrong;
        for (int i = 0; i < rows.size(); ++i) {
            const QVariant value = comparable(properties[i], properties[i].read(object.get()));
            const QVariant documented = documentedDefault(properties[i], rows[i].byDefault);
            if (value != documented)
                wrong += rows[i].name;
        }
        QCOMPARE(wrong, QStringList());
    }

    void aWriteRepaintsIfItsRowSaysSo_data() { addClasses(); }

    void aWriteRepaintsIfItsRowSaysSo()
    {
        QFETCH(QString, name);
        QFETCH(Make, make);
        const QString file =
            writtenFile(m_dir.filePath(QStringLiteral("a.gif")), gifOf(gifFrames(1)));
        QStringList wrong;
        for (const Row &row : documentedRows(name)) {
            QWidget window;
            auto *const widget = qobject_cast<QWidget *>(make());
            QVERIFY(widget);
            widget->setParent(&window);
            widget->resize(200, 200);
            prepare(*widget, row.name);
            show(window);
            const QMetaObject &type = *widget->metaObject();
            const QMetaProperty property = type.property(type.indexOfProperty(row.name.toLatin1()));
            const QVariant value = otherValue(property, property.read(widget), file);
            const int count = paints(*widget, [&] { property.write(widget, value); });
            const bool isSaid =
                row.write.section(QLatin1Char(';'), 0, 0).contains(QLatin1String("repaints"));
            if ((count > 0) != isSaid)
                wrong += row.name;
        }
        QCOMPARE(wrong, QStringList());
    }
};

WIDGET_TEST_MAIN(tst_Documentation)
#include "tst_documentation.moc"
