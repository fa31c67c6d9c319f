// SPDX-License-Identifier: Apache-2.0
#include "designerwidget.h"

#include "initialproperty.h"
#include "propertygroup.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <QIcon>
#include <QMetaProperty>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <QXmlStreamWriter>

namespace
{

void writeGeometry(QXmlStreamWriter &xml, const QSize &size)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("geometry"));
    xml.writeStartElement(QStringLiteral("rect"));
    xml.writeTextElement(QStringLiteral("x"), QStringLiteral("0"));
    xml.writeTextElement(QStringLiteral("y"), QStringLiteral("0"));
    xml.writeTextElement(QStringLiteral("width"), QString::number(size.width()));
    xml.writeTextElement(QStringLiteral("height"), QString::number(size.height()));
    xml.writeEndElement();
    xml.writeEndElement();
}

// The names of files, and identifiers, are no texts for a translator.
void writeUntranslated(QXmlStreamWriter &xml, const QMetaObject &type)
{
    xml.writeStartElement(QStringLiteral("propertyspecifications"));
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        if (property.userType() != QMetaType::QString || propertyGroup(property).isEmpty())
            continue;
        xml.writeEmptyElement(QStringLiteral("stringpropertyspecification"));
        xml.writeAttribute(QStringLiteral("name"), QString::fromLatin1(property.name()));
        xml.writeAttribute(QStringLiteral("type"), QStringLiteral("singleline"));
        xml.writeAttribute(QStringLiteral("notr"), QStringLiteral("true"));
    }
    xml.writeEndElement();
}

void writeCustomWidget(QXmlStreamWriter &xml, const QString &className,
                       const QString &baseClassName, const QMetaObject &type)
{
    xml.writeStartElement(QStringLiteral("customwidgets"));
    xml.writeStartElement(QStringLiteral("customwidget"));
    xml.writeTextElement(QStringLiteral("class"), className);
    xml.writeTextElement(QStringLiteral("extends"), baseClassName);
    writeUntranslated(xml, type);
    xml.writeEndElement();
    xml.writeEndElement();
}

/// "SpIconButton" makes "spIconButton", "pushButton" in the manner of Designer.
QString initialName(QString className)
{
    className[0] = className[0].toLower();
    return className;
}

} // namespace

DesignerWidget::DesignerWidget(WidgetRow row, QObject *parent)
    : QObject(parent), m_row(std::move(row))
{
}

QString DesignerWidget::name() const { return m_row.className; }

QString DesignerWidget::group() const { return QStringLiteral("PanelKit: ") + m_row.family; }

QString DesignerWidget::toolTip() const { return m_row.toolTip; }

/** Says more than the tool tip where a form that uses the class cannot be compiled. */
QString DesignerWidget::whatsThis() const
{
    const QString text = QStringLiteral("%1: %2.").arg(m_row.className, m_row.toolTip);
    return m_row.isMadeByUic ? text
                             : text
            + QStringLiteral(" Its constructor takes more than its parent: a form with it can be "
                             "loaded at run time, but what uic makes of it does not compile.");
}

QString DesignerWidget::includeFile() const { return m_row.header; }

/** Rendered here, so that the picture needs no icon plug-in of Qt. */
QIcon DesignerWidget::icon() const
{
    QSvgRenderer drawing(QStringLiteral(":/panelkit/icons/%1.svg").arg(m_row.className.toLower()));
    QIcon icon;
    for (const int size : {22, 44}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

bool DesignerWidget::isContainer() const { return false; }

bool DesignerWidget::isInitialized() const { return m_isInitialized; }

/** Every widget of this class on every form, whether drawn there or loaded. */
void DesignerWidget::initialize(QDesignerFormEditorInterface *core)
{
    if (m_isInitialized)
        return;
    m_isInitialized = true;
    connect(core->formWindowManager(), &QDesignerFormWindowManagerInterface::formWindowAdded, this,
            [this, core](QDesignerFormWindowInterface *form) {
                connect(form, &QDesignerFormWindowInterface::widgetManaged, this,
                        [this, core](QWidget *widget) { groupProperties(core, widget); });
            });
}

void DesignerWidget::groupProperties(QDesignerFormEditorInterface *core, QWidget *widget) const
{
    if (m_row.className != QLatin1String(widget->metaObject()->className()))
        return;
    auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(core->extensionManager(), widget);
    for (int i = m_row.type->propertyOffset(); sheet && i < m_row.type->propertyCount(); ++i) {
        const QMetaProperty property = m_row.type->property(i);
        const QString group = propertyGroup(property);
        if (!group.isEmpty())
            sheet->setPropertyGroup(sheet->indexOf(QString::fromLatin1(property.name())), group);
    }
}

QWidget *DesignerWidget::createWidget(QWidget *parent) { return m_row.create(parent); }

/** What a new one looks like: its size, then its initial properties in the order of the list. */
QString DesignerWidget::domXml() const
{
    QString form;
    QXmlStreamWriter xml(&form);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("language"), QStringLiteral("c++"));
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), m_row.className);
    xml.writeAttribute(QStringLiteral("name"), initialName(m_row.className));
    writeGeometry(xml, m_row.size);
    for (const QString &assignment : m_row.initialProperties) {
        if (!writeInitialProperty(xml, *m_row.type, assignment))
            qWarning("%s cannot start with %s", qUtf8Printable(m_row.className),
                     qUtf8Printable(assignment));
    }
    xml.writeEndElement();
    writeCustomWidget(xml, m_row.className, baseClassName(), *m_row.type);
    xml.writeEndElement();
    return form;
}

// A class that moc does not know has the meta-object of its base class.
QString DesignerWidget::baseClassName() const
{
    const bool isOwn = m_row.className == QLatin1String(m_row.type->className());
    return QString::fromLatin1((isOwn ? m_row.type->superClass() : m_row.type)->className());
}
