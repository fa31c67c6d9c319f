// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_ALIGNMENTEDITOR_H
#define CATALOGUE_ALIGNMENTEDITOR_H

#include "valueeditor.h"

#include <QComboBox>

/// An alignment as one choice for each direction.
class AlignmentEditor : public ValueEditor
{
    Q_OBJECT

public:
    AlignmentEditor();

    void showValue(const QVariant &value) override;

private:
    void report();

    QComboBox m_horizontal;
    QComboBox m_vertical;
};

#endif // CATALOGUE_ALIGNMENTEDITOR_H
