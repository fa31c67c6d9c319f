// SPDX-License-Identifier: Apache-2.0
#include "alignmenteditor.h"

#include <QHBoxLayout>

AlignmentEditor::AlignmentEditor()
{
    m_horizontal.addItem(tr("left"), Qt::AlignLeft);
    m_horizontal.addItem(tr("centre"), Qt::AlignHCenter);
    m_horizontal.addItem(tr("right"), Qt::AlignRight);
    m_horizontal.addItem(tr("justify"), Qt::AlignJustify);
    m_vertical.addItem(tr("top"), Qt::AlignTop);
    m_vertical.addItem(tr("middle"), Qt::AlignVCenter);
    m_vertical.addItem(tr("bottom"), Qt::AlignBottom);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (QComboBox *box : {&m_horizontal, &m_vertical}) {
        box->setMinimumWidth(1);
        layout->addWidget(box, 1);
        connect(box, QOverload<int>::of(&QComboBox::activated), this, &AlignmentEditor::report);
    }
}

void AlignmentEditor::showValue(const QVariant &value)
{
    const auto alignment = value.value<Qt::Alignment>();
    m_horizontal.setCurrentIndex(m_horizontal.findData(int(alignment & Qt::AlignHorizontal_Mask)));
    m_vertical.setCurrentIndex(m_vertical.findData(int(alignment & Qt::AlignVertical_Mask)));
}

void AlignmentEditor::report()
{
    const int alignment = m_horizontal.currentData().toInt() | m_vertical.currentData().toInt();
    emit edited(QVariant::fromValue(Qt::Alignment(alignment)));
}
