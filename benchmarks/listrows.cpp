// SPDX-License-Identifier: Apache-2.0
#include "listrows.h"

#include "pictures.h"

#include <QColor>
#include <QPainter>
#include <QRect>

namespace
{

constexpr int kContent = 0x1F00F; // header icon, centre text, tail icon
constexpr int kHeaderLeft = 20; // px
constexpr int kTailRight = 47; // px
constexpr int kIconSize = 44; // px

// Between the icons, narrowed to the two lines.
QRect linesRect(int row)
{
    const int left = kHeaderLeft + kIconSize + 15;
    const int right = kRowWidth - kIconSize - kTailRight - 21;
    return {QPoint(left, row * kRowHeight + 12), QPoint(right, (row + 1) * kRowHeight - 1 - 9)};
}

} // namespace

const QPixmap &headerIcon()
{
    static const QPixmap icon = keyPicture(QColor(40, 90, 160), {kIconSize, kIconSize});
    return icon;
}

const QPixmap &tailIcon()
{
    static const QPixmap icon = keyPicture(QColor(230, 120, 20), {kIconSize, kIconSize});
    return icon;
}

QString upperText(int row) { return QStringLiteral("The title of row number %1").arg(row); }

QString lowerText(int row) { return QStringLiteral("An artist, %1").arg(row % 100); }

int ListRows::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : m_count; }

QVariant ListRows::data(const QModelIndex &index, int role) const
{
    switch (role) {
    case 258:
        return kContent;
    case 259:
    case Qt::DecorationRole:
        return headerIcon();
    case 262:
        return QString(upperText(index.row()) + QLatin1Char('/') + lowerText(index.row()));
    case 264:
        return tailIcon();
    case Qt::DisplayRole:
        return upperText(index.row());
    case Qt::UserRole:
        return lowerText(index.row());
    default:
        return {};
    }
}

ListFloor::ListFloor(int count) : m_upperFont(fontOf(kCentreSize)), m_lowerFont(fontOf(kLowerSize))
{
    for (int index = 0; index < count; ++index) {
        const QRect rect = linesRect(index);
        m_rows.push_back({
            laidOut(upperText(index), m_upperFont, rect, Qt::AlignLeft | Qt::AlignTop),
            laidOut(lowerText(index), m_lowerFont, rect, Qt::AlignLeft | Qt::AlignBottom),
        });
    }
}

void ListFloor::draw(QPainter &painter) const
{
    int top = 0;
    const int iconTop = (kRowHeight - kIconSize) / 2;
    for (const Row &row : m_rows) {
        painter.fillRect(20, top + kRowHeight - 1, kRowWidth - 19, 1, QColor(100, 100, 100));
        painter.drawPixmap(kHeaderLeft, top + iconTop, headerIcon());
        painter.drawPixmap(kRowWidth - kIconSize - kTailRight, top + iconTop, tailIcon());
        painter.setFont(m_upperFont);
        row.upper.draw(painter, Qt::white);
        painter.setFont(m_lowerFont);
        row.lower.draw(painter, Qt::darkGray);
        top += kRowHeight;
    }
}
