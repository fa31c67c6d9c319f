// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_VALUEEDITOR_H
#define CATALOGUE_VALUEEDITOR_H

#include <QVariant>
#include <QWidget>

class QMetaProperty;

/// Shows one value and lets a person change it.
class ValueEditor : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows a value without reporting an edit.
    virtual void showValue(const QVariant &value) = 0;

signals:
    void edited(const QVariant &value);

protected:
    /// Makes this widget the whole of the editor.
    void fillWith(QWidget *widget);
};

/// The editor that suits a property; one that only shows the value if it cannot be edited here.
ValueEditor *createValueEditor(const QMetaProperty &property);

#endif // CATALOGUE_VALUEEDITOR_H
