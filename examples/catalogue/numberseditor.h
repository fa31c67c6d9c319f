// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_NUMBERSEDITOR_H
#define CATALOGUE_NUMBERSEDITOR_H

#include "valueeditor.h"

#include <QVector>

class QDoubleSpinBox;

/// A number, or a value made of up to four: a point, a size or a rectangle.
class NumbersEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit NumbersEditor(int type);

    /// True if the values of this type are numbers or made of them.
    static bool canEdit(int type);

    void showValue(const QVariant &value) override;

private:
    void report();

    int m_type;
    QVector<QDoubleSpinBox *> m_boxes;
};

#endif // CATALOGUE_NUMBERSEDITOR_H
