// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_COLOREDITOR_H
#define CATALOGUE_COLOREDITOR_H

#include "valueeditor.h"

#include <QColor>
#include <QLineEdit>
#include <QToolButton>

/// A colour by its name, #AARRGGBB, or chosen in a dialog behind its swatch.
class ColorEditor : public ValueEditor
{
    Q_OBJECT

public:
    ColorEditor();

    void showValue(const QVariant &value) override;

private:
    void chooseInDialog();
    void takeName();

    QToolButton m_swatch;
    QLineEdit m_name;
    QColor m_color;
};

#endif // CATALOGUE_COLOREDITOR_H
