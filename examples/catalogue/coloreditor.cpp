// SPDX-License-Identifier: Apache-2.0
#include "coloreditor.h"

#include "theme.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QPainter>

namespace
{

constexpr QSize kSwatchSize(28, 14);

// Over halves of black and white, on which its opacity shows.
QPixmap swatch(const QColor &color)
{
    QPixmap pixmap(kSwatchSize);
    pixmap.fill(Qt::black);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect().adjusted(kSwatchSize.width() / 2, 0, 0, 0), Qt::white);
    painter.fillRect(pixmap.rect(), color);
    painter.setPen(Theme::kLine);
    painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
    return pixmap;
}

} // namespace

ColorEditor::ColorEditor()
{
    m_swatch.setIconSize(kSwatchSize);
    m_swatch.setAutoRaise(true);
    m_name.setMinimumWidth(1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(&m_swatch);
    layout->addWidget(&m_name);
    connect(&m_swatch, &QToolButton::clicked, this, &ColorEditor::chooseInDialog);
    connect(&m_name, &QLineEdit::editingFinished, this, &ColorEditor::takeName);
}

void ColorEditor::showValue(const QVariant &value)
{
    m_color = value.value<QColor>();
    m_swatch.setIcon(swatch(m_color));
    m_name.setText(m_color.isValid() ? m_color.name(QColor::HexArgb) : QString());
}

void ColorEditor::chooseInDialog()
{
    const QColor chosen =
        QColorDialog::getColor(m_color, this, QString(), QColorDialog::ShowAlphaChannel);
    if (chosen.isValid())
        emit edited(chosen);
}

void ColorEditor::takeName()
{
    if (m_name.isModified())
        emit edited(QColor(m_name.text()));
}
