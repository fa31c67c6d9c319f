// SPDX-License-Identifier: Apache-2.0
#ifndef VALUES_H
#define VALUES_H

#include "track.h"

#include <QAbstractItemModel>
#include <QByteArray>
#include <QFont>
#include <QPainterPath>
#include <QPixmap>
#include <QPointF>
#include <QRect>
#include <QStringList>
#include <QVariant>

#include <initializer_list>
#include <limits>
#include <type_traits>

class QMetaProperty;
struct MapPixAndHz;
QDebug operator<<(QDebug debug, const MapPixAndHz &map);

/// Turns bytes into whatever a drive asks for: decisions, and ordinary and hostile values of all
/// types that the library's functions take. The same bytes give the same answers; behind their end
/// everything is the first choice. Where two are asked for at once, braces keep them in order: the
/// order of a function's arguments is up to the compiler.
class Values
{
public:
    explicit Values(QByteArray bytes) : m_bytes(std::move(bytes)) { }

    /// So many bytes from a random generator.
    static QByteArray randomBytes(quint32 seed, int count);

    bool isEmpty() const { return m_at >= m_bytes.size(); }
    /// From 0 to one less than the limit, which is 65,536 at most.
    int below(int limit);
    /// Once in so many times.
    bool once(int inSoMany) { return below(inSoMany) == 1 % inSoMany; }
    template <typename T> T oneOf(std::initializer_list<T> values)
    {
        return *(values.begin() + below(int(values.size())));
    }

    int number();
    double real();
    QString text();
    QPixmap picture();
    QColor color();
    QVariant valueFor(const QMetaProperty &property);

    /// A value of a type that a function takes; for a reference that the function writes to, a
    /// place that lives as long as these values.
    template <typename T> T value();

    /// What has been done with these values.
    Track track;

    /// What fits to the objects driven: a parent, and a model with its rows.
    QWidget *parent = nullptr;
    QAbstractItemModel *model = nullptr;
    /// Pictures and animations that text() may name.
    QStringList files;

private:
    template <typename T> QList<T> list()
    {
        QList<T> result;
        for (int count = below(5); count > 0; --count)
            result += value<T>();
        return result;
    }
    template <typename T> T &scratch()
    {
        static T place;
        place = value<T>();
        return place;
    }

    QByteArray m_bytes;
    int m_at = 0;
};

template <typename T> T Values::value()
{
    if constexpr (std::is_lvalue_reference_v<T>)
        return scratch<std::remove_reference_t<T>>();
    else if constexpr (std::is_enum_v<T>)
        return T(below(2)); // what lies beside an enumeration comes with its property
    else if constexpr (std::is_same_v<T, Qt::Alignment>)
        return T(QFlag(oneOf({0x84, 0x01, 0x02, 0x21, 0x48, 0, -1})));
    else if constexpr (std::is_same_v<T, Qt::WindowFlags>)
        return T();
    else if constexpr (std::is_same_v<T, QWidget *> || std::is_same_v<T, QObject *>)
        return parent;
    else if constexpr (std::is_same_v<T, QAbstractItemModel *>)
        return once(4) ? nullptr : model;
    else if constexpr (std::is_same_v<T, QModelIndex>)
        return model ? model->index(below(40), 0) : QModelIndex();
    else if constexpr (std::is_same_v<T, bool>)
        return below(2) == 1;
    else if constexpr (std::is_same_v<T, int>)
        return number();
    else if constexpr (std::is_floating_point_v<T>)
        return T(real());
    else if constexpr (std::is_same_v<T, QString>)
        return text();
    else if constexpr (std::is_same_v<T, QChar>)
        return QChar(ushort(number()));
    else if constexpr (std::is_same_v<T, QPixmap>)
        return picture();
    else if constexpr (std::is_same_v<T, QColor>)
        return color();
    else if constexpr (std::is_same_v<T, QPoint>)
        return QPoint{value<int>(), value<int>()};
    else if constexpr (std::is_same_v<T, QPointF>)
        return QPointF{value<qreal>(), value<qreal>()};
    else if constexpr (std::is_same_v<T, QSize>)
        return QSize{value<int>(), value<int>()};
    else if constexpr (std::is_same_v<T, QRect>)
        return QRect{value<QPoint>(), value<QPoint>()};
    else if constexpr (std::is_same_v<T, QRectF>)
        return QRectF{value<QPointF>(), value<QPointF>()};
    else if constexpr (std::is_same_v<T, QPainterPath>)
        return QPainterPath();
    else if constexpr (std::is_same_v<T, QFont>) {
        QFont font;
        font.setPixelSize(oneOf({16, 1, 7, 200}));
        return font;
    } else if constexpr (std::is_same_v<T, QStringList>)
        return list<QString>();
    else if constexpr (std::is_same_v<T, MapPixAndHz>) {
        T map;
        map.pix = value<int>();
        map.hz = value<int>();
        return map;
    } else if constexpr (std::is_base_of_v<QList<typename T::value_type>, T>)
        return list<typename T::value_type>();
}

#endif // VALUES_H
