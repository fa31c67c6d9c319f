// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_PICTUREEDITOR_H
#define CATALOGUE_PICTUREEDITOR_H

#include "valueeditor.h"

#include <QComboBox>
#include <QSize>

/// One of the catalogue's own pictures, or none.
class PictureEditor : public ValueEditor
{
    Q_OBJECT

public:
    PictureEditor();

    void showValue(const QVariant &value) override;

private:
    void report();

    QComboBox m_box;
    QSize m_size; // of the last picture shown
};

#endif // CATALOGUE_PICTUREEDITOR_H
