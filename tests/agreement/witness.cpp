// SPDX-License-Identifier: Apache-2.0
#include "witness.h"

#include "samples.h"
#include "widgettest.h"

#include <QImage>
#include <QRect>
#include <QWidget>

#include <algorithm>

namespace
{

// A pixel at the edge of a turned mark counts if it is more than half covered.
bool isMarked(QRgb pixel)
{
    constexpr int kHalf = 128;
    return qRed(pixel) >= kHalf && qBlue(pixel) >= kHalf && qGreen(pixel) < kHalf;
}

QRect markIn(const QImage &image)
{
    QRect result;
    const int width = image.width();
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        const QRgb *first = std::find_if(line, line + width, isMarked);
        if (first == line + width)
            continue;
        const QRgb *last = line + width - 1;
        while (!isMarked(*last))
            --last;
        result |= QRect(QPoint(int(first - line), y), QPoint(int(last - line), y));
    }
    return result;
}

QString described(const QRect &rect)
{
    return QStringLiteral("mark=%1,%2,%3,%4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

} // namespace

Witness::Witness(QTextStream &out, QWidget &widget, const QString &title)
    : m_out(out), m_widget(widget), m_title(title), m_hasMark(takesMark(widget)), m_log(&widget),
      m_numbers(numbers())
{
    m_log.writeAllDigits();
}

QVariantList Witness::numbers() const
{
    QVariantList result;
    for (const QMetaProperty &property : numberProperties(m_widget))
        result += property.read(&m_widget);
    return result;
}

void Witness::write(const QString &action)
{
    QStringList words = m_log.take();
    const QVector<QMetaProperty> properties = numberProperties(m_widget);
    const QVariantList now = numbers();
    for (int i = 0; i < properties.size(); ++i) {
        if (allDigits(now[i]) != allDigits(m_numbers[i]))
            words += QLatin1String(properties[i].name()) + QLatin1Char('=') + allDigits(now[i]);
    }
    m_numbers = now;
    if (m_hasMark) {
        const QRect mark = markIn(painted(m_widget));
        words += mark.isValid() ? described(mark) : QStringLiteral("no mark");
    }
    m_out << m_title << ' ' << action << ": " << words.join(QStringLiteral("; ")) << '\n';
}
