// SPDX-License-Identifier: Apache-2.0
#include "designerwidget.h"

#include "initialproperty.h"

#include <QIcon>
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

void writeCustomWidget(QXmlStreamWriter &xml, const QString &className,
                       const QString &baseClassName)
{
    xml.writeStartElement(QStringLiteral("customwidgets"));
    xml.writeStartElement(QStringLiteral("customwidget"));
    xml.writeTextElement(QStringLiteral("class"), className);
    xml.writeTextElement(QStringLiteral("extends"), baseClassName);
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

QString DesignerWidget::group() const { return QStringLiteral("PanelKit"); }

QString DesignerWidget::toolTip() const { return m_row.toolTip; }

QString DesignerWidget::whatsThis() const
{
    return m_row.className + QStringLiteral(": ") + m_row.toolTip;
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
    writeCustomWidget(xml, m_row.className, baseClassName());
    xml.writeEndElement();
    return form;
}

// A class that moc does not know has the meta-object of its base class.
QString DesignerWidget::baseClassName() const
{
    const bool isOwn = m_row.className == QLatin1String(m_row.type->className());
    return QString::fromLatin1((isOwn ? m_row.type->superClass() : m_row.type)->className());
}
