// SPDX-License-Identifier: Apache-2.0
#include "art.h"

#include <QDir>
#include <QPainter>
#include <QSvgRenderer>
#include <QVector>

namespace
{

const QString kDirectory = QStringLiteral(":/panelkit/art/");

struct Rendering {
    QString name;
    QSize size;
    QPixmap pixmap;
};

QVector<Rendering> &renderings()
{
    static QVector<Rendering> kept;
    return kept;
}

QPixmap render(const QString &name, const QSize &wanted)
{
    QSvgRenderer drawing(Art::file(name));
    if (!drawing.isValid())
        return {};
    QPixmap pixmap(wanted.isValid() ? wanted : drawing.defaultSize());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing.render(&painter);
    return pixmap;
}

} // namespace

namespace Art
{

QStringList names()
{
    QStringList names =
        QDir(kDirectory).entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name.chop(4);
    return names;
}

QString file(const QString &name) { return kDirectory + name + QStringLiteral(".svg"); }

QString animation(const QString &name) { return kDirectory + name + QStringLiteral(".gif"); }

QPixmap pixmap(const QString &name, const QSize &size)
{
    for (const Rendering &kept : qAsConst(renderings())) {
        if (kept.name == name && kept.size == size)
            return kept.pixmap;
    }
    const QPixmap rendered = render(name, size);
    if (!rendered.isNull())
        renderings().append({name, size, rendered});
    return rendered;
}

QString nameOf(const QPixmap &pixmap)
{
    for (const Rendering &kept : qAsConst(renderings())) {
        if (kept.pixmap.cacheKey() == pixmap.cacheKey())
            return kept.name;
    }
    return {};
}

} // namespace Art
