// SPDX-License-Identifier: Apache-2.0
#include "values.h"

#include <MRadioMovePoint>

#include <QBitmap>
#include <QMetaProperty>
#include <QRandomGenerator>

#include <climits>

QDebug operator<<(QDebug debug, const MapPixAndHz &map)
{
    return debug << "pix" << map.pix << "hz" << map.hz;
}

QByteArray Values::randomBytes(quint32 seed, int count)
{
    QByteArray bytes(count, Qt::Uninitialized);
    QRandomGenerator random(seed);
    for (char &byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

int Values::below(int limit)
{
    int number = 0;
    for (int reach = 1; reach < limit && m_at < m_bytes.size(); reach *= 256)
        number = number * 256 + uchar(m_bytes[m_at++]);
    return number % limit;
}

int Values::number()
{
    if (once(2))
        return below(256);
    return oneOf({0, 1, 2, 3, -1, INT_MIN, INT_MIN + 1, -32769, -256, 50, 154, 255, 256, 1000,
                  32768, INT_MAX - 1, INT_MAX});
}

double Values::real()
{
    using Double = std::numeric_limits<double>;
    if (once(2))
        return below(65536) / 16.0;
    return oneOf({0.0, Double::quiet_NaN(), Double::infinity(), -Double::infinity(), Double::max(),
                  Double::denorm_min(), -0.0, 0.1, 1.0, -1.0, 98.7, 1e9, -1e9});
}

QString Values::text()
{
    if (!files.isEmpty() && once(4))
        return files[below(files.size())];
    return oneOf({QString(), QStringLiteral("a"), QStringLiteral("Radio"),
                  QStringLiteral("two\nlines"), QStringLiteral("a/b/c"), QStringLiteral("///"),
                  QString(5000, QLatin1Char('W')), QString(300, QChar(0xD800)), QString(QChar(0)),
                  QStringLiteral("\u0645\u0648\u0633\u064a\u0642\u0649 abc \u0645"),
                  QStringLiteral("/"), QStringLiteral("/absent.png"), QStringLiteral(":/absent")});
}

QPixmap Values::picture()
{
    const QSize size = oneOf({QSize(40, 30), QSize(0, 0), QSize(1, 1), QSize(333, 7),
                              QSize(390, 58), QSize(1500, 2), QSize(2, 1500)});
    if (once(8))
        return QBitmap(16, 16);
    QPixmap pixmap(size);
    pixmap.fill(QColor(10, 200, 90, below(256)));
    return pixmap;
}

QColor Values::color() { return oneOf({QColor(Qt::red), QColor(), QColor(0, 0, 0, 0)}); }

QVariant Values::valueFor(const QMetaProperty &property)
{
    switch (property.isEnumType() ? int(QMetaType::Int) : property.userType()) {
    case QMetaType::Bool:
        return value<bool>();
    case QMetaType::Float:
        return value<float>();
    case QMetaType::Double:
        return value<double>();
    case QMetaType::QString:
        return text();
    case QMetaType::QColor:
        return color();
    case QMetaType::QPixmap:
        return picture();
    case QMetaType::QPoint:
        return value<QPoint>();
    case QMetaType::QPointF:
        return value<QPointF>();
    case QMetaType::QSize:
        return value<QSize>();
    case QMetaType::QRect:
        return value<QRect>();
    case QMetaType::QFont:
        return value<QFont>();
    default:
        return number();
    }
}
