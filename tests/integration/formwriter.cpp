// SPDX-License-Identifier: Apache-2.0
// Writes two forms with a widget of each class and a value for each of its properties:
// everywidget.ui, and compiled.ui without the classes that lack the constructor that uic calls.
//
// usage: formwriter FOLDER

#include "panelkitclasses.h"

#include "formvalues.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QXmlStreamWriter>

#include <type_traits>

namespace
{

constexpr int kColumns = 5;
constexpr QSize kCell(200, 130); // px

struct FormClass {
    QString name;
    QString header;
    const QMetaObject *type;
    bool isMadeByUic;
};

QVector<FormClass> formClasses()
{
#define CLASS_ROW(Class, create, header, family, toolTip, width, height, initial) \
    {QStringLiteral(#Class), QStringLiteral(header), &Class::staticMetaObject,    \
     std::is_constructible<Class, QWidget *>::value},
    return {PANELKIT_FOR_EACH_WIDGET(CLASS_ROW)};
#undef CLASS_ROW
}

void writeWidgets(QXmlStreamWriter &xml, const QVector<FormClass> &classes, const QString &folder)
{
    for (int i = 0; i < classes.size(); ++i) {
        const QPoint place(kCell.width() * (i % kColumns), kCell.height() * (i / kColumns));
        writeFormWidget(xml, classes[i].name, classes[i].name.toLower(),
                        QRect(place, kCell - QSize(10, 10)),
                        formValues(*classes[i].type, 1, folder));
    }
}

void writeCustomWidgets(QXmlStreamWriter &xml, const QVector<FormClass> &classes)
{
    xml.writeStartElement(QStringLiteral("customwidgets"));
    for (const FormClass &formClass : classes) {
        xml.writeStartElement(QStringLiteral("customwidget"));
        xml.writeTextElement(QStringLiteral("class"), formClass.name);
        xml.writeTextElement(QStringLiteral("extends"),
                             QString::fromLatin1(formClass.type->superClass()->className()));
        xml.writeTextElement(QStringLiteral("header"), formClass.header);
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void writeForm(const QString &folder, const QString &name, const QVector<FormClass> &classes)
{
    QFile file(QDir(folder).filePath(name.toLower() + QStringLiteral(".ui")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(file.fileName()));
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("4.0"));
    xml.writeTextElement(QStringLiteral("class"), name);
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), QStringLiteral("QWidget"));
    xml.writeAttribute(QStringLiteral("name"), name);
    writeFormPlace(xml, QRect(QPoint(0, 0), QSize(kCell.width() * kColumns, 7 * kCell.height())));
    writeWidgets(xml, classes, folder);
    xml.writeEndElement();
    writeCustomWidgets(xml, classes);
    xml.writeEndDocument();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const QString folder = QFile::decodeName(argv[argc - 1]);
    writeFormPictures(folder);
    QVector<FormClass> classes = formClasses();
    writeForm(folder, QStringLiteral("EveryWidget"), classes);
    classes.erase(std::remove_if(classes.begin(), classes.end(),
                                 [](const FormClass &each) { return !each.isMadeByUic; }),
                  classes.end());
    writeForm(folder, QStringLiteral("Compiled"), classes);
    return 0;
}
