// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DESIGNER_DESIGNERWIDGET_H
#define PANELKIT_DESIGNER_DESIGNERWIDGET_H

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QSize>
#include <QStringList>

#include <functional>

/// What Designer knows about one class: a row of the table in widgetcollection.cpp.
struct WidgetRow {
    QString className;
    const QMetaObject *type; // the nearest one that moc knows
    std::function<QWidget *(QWidget *parent)> create;
    bool isMadeByUic; // has the constructor that uic calls, Class(QWidget *)
    QString header;
    QString family;
    QString toolTip;
    QSize size; // px
    QStringList initialProperties; // "property=value"
};

/// Any PanelKit class in Designer.
class DesignerWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit DesignerWidget(WidgetRow row, QObject *parent = nullptr);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *core) override;
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;

private:
    QString baseClassName() const;
    void groupProperties(QDesignerFormEditorInterface *core, QWidget *widget) const;

    WidgetRow m_row;
    bool m_isInitialized = false;
};

#endif // PANELKIT_DESIGNER_DESIGNERWIDGET_H
