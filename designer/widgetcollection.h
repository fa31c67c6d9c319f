// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DESIGNER_WIDGETCOLLECTION_H
#define PANELKIT_DESIGNER_WIDGETCOLLECTION_H

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/// The plug-in: all PanelKit widgets for Qt Designer and for forms loaded at run time.
class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit WidgetCollection(QObject *parent = nullptr);

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

#endif // PANELKIT_DESIGNER_WIDGETCOLLECTION_H
