// SPDX-License-Identifier: Apache-2.0
#include "itemlooks.h"

#include "floors.h"
#include "listrows.h"
#include "pictures.h"

#include <QApplication>
#include <QBrush>
#include <QFontMetrics>
#include <QPainter>
#include <sptablelist.h>
#include <styledelegate.h>

namespace
{

constexpr QSize kRow(kRowWidth, kRowHeight);
constexpr int kIconTop = 8; // px
constexpr int kHeaderLeft = 20; // px
constexpr int kCentreLeft = 79; // px, beside an icon
constexpr int kRight = 779; // px, of a centre text without a tail
constexpr int kTailLeft = 709; // px, of an icon
constexpr int kTailTextLeft = 700; // px
constexpr int kToTail = 21; // px
constexpr int kBeside = Qt::AlignLeft | Qt::AlignVCenter;

// What a model says of its rows.
constexpr int kContent = 258;
constexpr int kHeaderIcon = 259;
constexpr int kPressedHeaderIcon = 260;
constexpr int kNumber = 261;
constexpr int kCentreText = 262;
constexpr int kTailText = 263;
constexpr int kTailIcon = 264;
constexpr int kPressedTailIcon = 265;
constexpr int kIsMarked = 266;
constexpr int kShowsPressedHeader = 267;
constexpr int kShowsPressedTail = 268;

constexpr int kWithHeaderIcon = 0xF;
constexpr int kWithNumber = 0xF0;
constexpr int kWithText = 0xF000;
constexpr int kWithTailIcon = 0xF0000;
constexpr int kWithTailText = 0xF00000;

const QColor kMarkedColor(120, 230, 255);
const QColor kPressedColor(255, 210, 120);

const QPixmap &background()
{
    static const QPixmap picture = keyPicture(QColor(50, 60, 80), kRow);
    return picture;
}

const QPixmap &pressedBackground()
{
    static const QPixmap picture = keyPicture(QColor(90, 60, 40), kRow);
    return picture;
}

const QPixmap &pressedIcon()
{
    static const QPixmap icon = keyPicture(QColor(255, 200, 60), headerIcon().size());
    return icon;
}

QString title() { return upperText(1); }

QFont centreFont() { return fontOf(kCentreSize); }

QColor viewColor() { return QApplication::palette().color(QPalette::Text); }

/// What a look shows, from the left to the right, with everything about it prepared.
class Parts
{
public:
    Parts &separator()
    {
        m_hasSeparator = true;
        return *this;
    }

    Parts &picture(int left, int top, const QPixmap &picture)
    {
        m_pictures.push_back({{left, top}, picture});
        return *this;
    }

    Parts &text(const QRect &rect, int flags, const QFont &font, const QColor &color,
                const QString &text)
    {
        m_texts.push_back({laidOut(text, font, rect, flags), font, color});
        return *this;
    }

    // From there to the other place, in the middle of the row.
    Parts &centre(int left, int right, const QColor &color, const QString &shown = title())
    {
        return text({QPoint(left, 0), QPoint(right, kRowHeight - 1)}, kBeside, centreFont(), color,
                    shown);
    }

    void operator()(QPainter &painter) const
    {
        if (m_hasSeparator)
            painter.fillRect(20, kRowHeight - 1, kRowWidth - 19, 1, QColor(100, 100, 100));
        for (const Picture &part : m_pictures)
            painter.drawPixmap(part.at, part.picture);
        for (const Text &part : m_texts) {
            painter.setFont(part.font);
            part.text.draw(painter, part.color);
        }
    }

private:
    struct Picture {
        QPoint at;
        QPixmap picture;
    };
    struct Text {
        LaidOutText text;
        QFont font;
        QColor color;
    };

    bool m_hasSeparator = false;
    std::vector<Picture> m_pictures;
    std::vector<Text> m_texts;
};

// What the model says of a row, and the same to Qt's delegate: one text, one icon, a background.
QHash<int, QVariant> rolesOf(QHash<int, QVariant> said)
{
    const int content = said.value(kContent).toInt();
    if ((content & kWithHeaderIcon) != 0)
        said[Qt::DecorationRole] = said[kHeaderIcon] = headerIcon();
    if ((content & kWithTailIcon) != 0)
        said[kTailIcon] = tailIcon();
    said[kPressedHeaderIcon] = said[kPressedTailIcon] = pressedIcon();
    said[Qt::DisplayRole] = said[kCentreText];
    return said;
}

ItemLook textAlone()
{
    return {"text alone", SpTableList::LIST_STYLE_0,
            rolesOf({{kContent, kWithText}, {kCentreText, title()}}),
            Parts().separator().centre(35, kRight, Qt::white)};
}

ItemLook numbered()
{
    const QFont tailFont = QApplication::font();
    return {"picture, number and tail text", SpTableList::LIST_STYLE_0,
            rolesOf({{kContent, kWithNumber | kWithText | kWithTailText},
                     {kNumber, QStringLiteral("12")},
                     {kCentreText, title()},
                     {kTailText, QStringLiteral("3:45")},
                     {Qt::BackgroundRole, QBrush(background())}}),
            Parts()
                .picture(0, 0, background())
                .text({20, 0, 50, kRowHeight}, Qt::AlignCenter, tailFont, viewColor(),
                      QStringLiteral("12"))
                .text({kTailTextLeft, 0, 100, kRowHeight}, kBeside, tailFont, viewColor(),
                      QStringLiteral("3:45"))
                .centre(85, kTailTextLeft - kToTail, viewColor())};
}

ItemLook marked()
{
    return {"marked", SpTableList::LIST_STYLE_1,
            rolesOf({{kContent, kWithHeaderIcon | kWithText},
                     {kCentreText, title()},
                     {kIsMarked, true},
                     {Qt::BackgroundRole, QBrush(pressedBackground())}}),
            Parts()
                .picture(0, 0, pressedBackground())
                .picture(kHeaderLeft, kIconTop, headerIcon())
                .centre(kCentreLeft, kRight, kMarkedColor)};
}

// Its tail icon is a key of its own, and its background ends before it.
ItemLook split(bool isPressed)
{
    constexpr int kKeyLeft = 756; // px
    const QPixmap &ground = isPressed ? pressedBackground() : background();
    return {isPressed ? "split and pressed" : "split", SpTableList::LIST_STYLE_2,
            rolesOf({{kContent, kWithHeaderIcon | kWithText | kWithTailIcon},
                     {kCentreText, title()},
                     {Qt::BackgroundRole, QBrush(ground)}}),
            Parts()
                .picture(0, 0, stretched(ground, {kKeyLeft - 10, kRowHeight}))
                .picture(kKeyLeft, kIconTop, tailIcon())
                .picture(kHeaderLeft, kIconTop, headerIcon())
                .centre(kCentreLeft, kKeyLeft - kToTail, isPressed ? kPressedColor : viewColor()),
            isPressed};
}

ItemLook rolling()
{
    const QString text = QStringLiteral("Midnight Lanterns, from the album Maps for Sundays, as it "
                                        "was played on the night of the lanterns themselves");
    const QFontMetrics metrics(centreFont());
    const int shown = (kRight - 35 + 1) / metrics.horizontalAdvance(QLatin1Char('.')) + 3;
    const QString visible = (text + QString(16, QLatin1Char(' '))).left(shown);
    return {"rolling", SpTableList::LIST_STYLE_3,
            rolesOf({{kContent, kWithText}, {kCentreText, text}}),
            Parts().separator().centre(35, 35 + metrics.horizontalAdvance(visible) - 1, Qt::white,
                                       visible)};
}

ItemLook pressedIcons()
{
    return {"pressed icons", SpTableList::LIST_STYLE_4,
            rolesOf({{kContent, kWithHeaderIcon | kWithText | kWithTailIcon},
                     {kCentreText, title()},
                     {kShowsPressedHeader, true},
                     {kShowsPressedTail, true},
                     {Qt::BackgroundRole, QBrush(background())}}),
            Parts()
                .picture(0, 0, background())
                .picture(kHeaderLeft, kIconTop, pressedIcon())
                .picture(kTailLeft, kIconTop, pressedIcon())
                .centre(kCentreLeft, kTailLeft - kToTail, viewColor())};
}

ItemLook grayTail()
{
    return {"grey tail text", SpTableList::LIST_STYLE_5,
            rolesOf({{kContent, kWithHeaderIcon | kWithText | kWithTailText},
                     {kCentreText, title()},
                     {kTailText, QStringLiteral("3:45")}}),
            Parts()
                .separator()
                .picture(kHeaderLeft, kIconTop, headerIcon())
                .text({kTailTextLeft, 0, 100, kRowHeight}, kBeside, fontOf(20), Qt::darkGray,
                      QStringLiteral("3:45"))
                .centre(kCentreLeft, kTailTextLeft - kToTail, Qt::white)};
}

ItemLook threeParts()
{
    const QRect lines(QPoint(kCentreLeft, 12), QPoint(kRight, kRowHeight - 1 - 9));
    const int bottom = Qt::AlignLeft | Qt::AlignBottom;
    return {
        "three parts", SpTableList::LIST_STYLE_6,
        rolesOf({{kContent, kWithHeaderIcon | kWithText},
                 {kCentreText, QStringLiteral("The title/An artist and more/An artist")}}),
        Parts()
            .separator()
            .picture(kHeaderLeft, kIconTop, headerIcon())
            .text(lines, Qt::AlignLeft | Qt::AlignTop, centreFont(), Qt::white,
                  QStringLiteral("The title"))
            .text(lines, bottom, centreFont(), Qt::darkGray, QStringLiteral("An artist and more"))
            .text(lines, bottom, centreFont(), Qt::white, QStringLiteral("An artist"))};
}

} // namespace

const std::vector<ItemLook> &itemLooks()
{
    static const std::vector<ItemLook> looks{textAlone(),    numbered(),  marked(),
                                             split(false),   split(true), rolling(),
                                             pressedIcons(), grayTail(),  threeParts()};
    return looks;
}

OwnLimits rollingLimits()
{
    return {"its text goes on beyond the row and is drawn from kept glyphs, for 290,000 "
            "instructions, after its width is measured in each paint, for 185,000",
            9.2, 1.7};
}

void setUp(styleDelegate &delegate, const ItemLook &look)
{
    delegate.setStyle(look.style);
    delegate.setCenterFont(centreFont());
    delegate.setHightColor(kMarkedColor);
    delegate.setPressColor(kPressedColor);
    if (look.roles.contains(Qt::BackgroundRole)) {
        delegate.setNormalPix(background());
        delegate.setPressPix(pressedBackground());
    }
    delegate.setItemPressed(look.isPressed, {100, 10});
}
