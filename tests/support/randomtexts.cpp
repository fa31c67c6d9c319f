// SPDX-License-Identifier: Apache-2.0
#include "randomtexts.h"

#include <QPainter>
#include <QVector>

namespace
{

// What a text is made of. Spaces and line feeds come up most, because they are what layouts treat
// most differently.
const QVector<QString> &words()
{
    static const QVector<QString> instance{
        QStringLiteral("Radio"),
        QStringLiteral("AVA To fi"),
        QStringLiteral("x"),
        QStringLiteral("\u0645\u0648\u0633\u064a\u0642\u0649"),
        QStringLiteral("\u0644\u0627"),
        QStringLiteral("\u05e9\u05dc\u05d5\u05dd"),
        QStringLiteral("\u05d0"),
        QStringLiteral("98.7"),
        QStringLiteral("-1,024%"),
        QStringLiteral("\u0661\u0662\u0663"),
        QStringLiteral("(a)"),
        QStringLiteral("["),
        QStringLiteral("?!"),
        QStringLiteral("&"),
        QStringLiteral("\u6536\u97f3"),
        QStringLiteral("\U0001F3B5"),
    };
    return instance;
}

const QVector<QString> &signs()
{
    static const QVector<QString> instance{
        QStringLiteral("\u0301"), QStringLiteral("e\u0301\u0302"), QStringLiteral("\u05b8"),
        QStringLiteral("\u064e"), QStringLiteral("\u00a0"),        QStringLiteral("\u00ad"),
        QStringLiteral("\u200b"), QStringLiteral("\u200d"),        QStringLiteral("\u200e"),
        QStringLiteral("\u200f"), QStringLiteral("\u202e"),        QStringLiteral("\u202c"),
        QStringLiteral("\u2067"), QStringLiteral("\u2069"),        QStringLiteral("\u2003"),
        QStringLiteral("\u3000"), QStringLiteral("\ufffc"),        QString(QChar(0xd83c)),
    };
    return instance;
}

const QVector<QString> &breaks()
{
    static const QVector<QString> instance{
        QStringLiteral("\t"),   QStringLiteral("\r"),     QStringLiteral("\r\n"),
        QStringLiteral("\t\n"), QStringLiteral("\u2028"), QStringLiteral("\u2029"),
        QStringLiteral("\v"),   QStringLiteral("\u009c"), QStringLiteral("\u0085"),
    };
    return instance;
}

} // namespace

void RandomText::prepare(QPainter &painter) const
{
    painter.setFont(font);
    painter.setLayoutDirection(direction);
}

QString RandomText::inWords() const
{
    QString result;
    for (const QChar c : text) {
        if (c.unicode() > 0x20 && c.unicode() < 0x7f)
            result += c;
        else
            result += QStringLiteral("<%1>").arg(c.unicode(), 0, 16);
    }
    return QStringLiteral("%1 | %2 | 0x%3 | direction %4")
        .arg(result, font.toString())
        .arg(flags, 0, 16)
        .arg(int(direction));
}

RandomText RandomTexts::next(int mostPieces)
{
    RandomText result;
    result.text = text(mostPieces);
    result.font = font();
    result.flags = alignment();
    result.direction = Qt::LayoutDirection(between(Qt::LeftToRight, Qt::LayoutDirectionAuto));
    return result;
}

QString RandomTexts::text(int mostPieces)
{
    QString result;
    for (int i = between(1, mostPieces); i > 0; --i)
        result += piece();
    return result;
}

QString RandomTexts::piece()
{
    const auto oneOf = [this](const QVector<QString> &all) {
        return all[between(0, all.size() - 1)];
    };
    switch (between(0, 11)) {
    case 0:
    case 1:
    case 2:
        return QString(between(1, 4), QLatin1Char(' '));
    case 3:
    case 4:
        return QString(between(1, 2), QLatin1Char('\n'));
    case 5:
        return oneOf(signs());
    case 6:
        return oneOf(breaks());
    default:
        return oneOf(words());
    }
}

QFont RandomTexts::font()
{
    const char *const families[] = {"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono",
                                    "WenQuanYi Micro Hei"};
    QFont font(QString::fromLatin1(families[between(0, 3)]));
    if (between(0, 3) == 0)
        font.setPointSizeF(qreal(between(60, 200)) / 10);
    else
        font.setPixelSize(between(7, 34));
    font.setItalic(between(0, 4) == 0);
    font.setBold(between(0, 4) == 0);
    font.setUnderline(between(0, 14) == 0);
    if (between(0, 6) == 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, qreal(between(-8, 20)) / 8);
    if (between(0, 9) == 0)
        font.setWordSpacing(qreal(between(-8, 20)) / 8);
    if (between(0, 9) == 0)
        font.setCapitalization(QFont::SmallCaps);
    return font;
}

int RandomTexts::alignment()
{
    const int horizontal[] = {0, Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignJustify};
    const int vertical[] = {0, Qt::AlignTop, Qt::AlignBottom, Qt::AlignVCenter, Qt::AlignBaseline};
    return horizontal[between(0, 4)] | vertical[between(0, 4)]
        | (between(0, 3) == 0 ? int(Qt::AlignAbsolute) : 0);
}

QImage settled(const std::function<QImage()> &drawn)
{
    QImage picture = drawn();
    for (QImage next = drawn(); next != picture; next = drawn())
        picture = next;
    return picture;
}
