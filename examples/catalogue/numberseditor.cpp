// SPDX-License-Identifier: Apache-2.0
#include "numberseditor.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QRectF>
#include <QSignalBlocker>

#include <limits>

namespace
{

constexpr double kLowest = std::numeric_limits<int>::min();
constexpr double kHighest = std::numeric_limits<int>::max();

struct Shape {
    int type;
    QVector<const char *> parts; // tool tips; a plain number needs none
    int decimals;
};

const QVector<Shape> &shapes()
{
    static const QVector<Shape> all{
        {QMetaType::Int, {""}, 0},
        {QMetaType::UInt, {""}, 0},
        {QMetaType::Float, {""}, 3},
        {QMetaType::Double, {""}, 3},
        {QMetaType::QPoint, {"x", "y"}, 0},
        {QMetaType::QPointF, {"x", "y"}, 2},
        {QMetaType::QSize, {"width", "height"}, 0},
        {QMetaType::QSizeF, {"width", "height"}, 2},
        {QMetaType::QRect, {"x", "y", "width", "height"}, 0},
        {QMetaType::QRectF, {"x", "y", "width", "height"}, 2},
    };
    return all;
}

const Shape *shapeOf(int type)
{
    for (const Shape &shape : shapes()) {
        if (shape.type == type)
            return &shape;
    }
    return nullptr;
}

QVector<double> numbersOf(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QPoint:
    case QMetaType::QPointF: {
        const QPointF point = value.toPointF();
        return {double(point.x()), double(point.y())};
    }
    case QMetaType::QSize:
    case QMetaType::QSizeF: {
        const QSizeF size = value.toSizeF();
        return {double(size.width()), double(size.height())};
    }
    case QMetaType::QRect:
    case QMetaType::QRectF: {
        const QRectF rect = value.toRectF();
        return {double(rect.x()), double(rect.y()), double(rect.width()), double(rect.height())};
    }
    default:
        return {value.toDouble()};
    }
}

QVariant valueOf(int type, const QVector<double> &n)
{
    switch (type) {
    case QMetaType::QPoint:
        return QPoint(int(n[0]), int(n[1]));
    case QMetaType::QPointF:
        return QPointF(qreal(n[0]), qreal(n[1]));
    case QMetaType::QSize:
        return QSize(int(n[0]), int(n[1]));
    case QMetaType::QSizeF:
        return QSizeF(qreal(n[0]), qreal(n[1]));
    case QMetaType::QRect:
        return QRect(int(n[0]), int(n[1]), int(n[2]), int(n[3]));
    case QMetaType::QRectF:
        return QRectF(qreal(n[0]), qreal(n[1]), qreal(n[2]), qreal(n[3]));
    case QMetaType::Float:
        return float(n[0]);
    case QMetaType::Int:
        return int(n[0]);
    case QMetaType::UInt:
        return uint(qMax(0.0, n[0]));
    default:
        return n[0];
    }
}

} // namespace

NumbersEditor::NumbersEditor(int type) : m_type(type)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    const Shape &shape = *shapeOf(type);
    for (const char *part : shape.parts) {
        auto *box = new QDoubleSpinBox;
        box->setDecimals(shape.decimals);
        box->setRange(kLowest, kHighest);
        box->setKeyboardTracking(false); // half a number is not yet what is meant
        box->setMinimumWidth(1);
        box->setToolTip(QString::fromLatin1(part));
        if (shape.parts.size() > 1)
            box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                &NumbersEditor::report);
        layout->addWidget(box, 1);
        m_boxes.append(box);
    }
}

bool NumbersEditor::canEdit(int type) { return shapeOf(type) != nullptr; }

void NumbersEditor::showValue(const QVariant &value)
{
    const QVector<double> numbers = numbersOf(value);
    for (int i = 0; i < m_boxes.size(); ++i) {
        const QSignalBlocker noEdit(m_boxes[i]);
        m_boxes[i]->setValue(numbers[i]);
    }
}

void NumbersEditor::report()
{
    QVector<double> numbers;
    for (const QDoubleSpinBox *box : qAsConst(m_boxes))
        numbers.append(box->value());
    emit edited(valueOf(m_type, numbers));
}
