// SPDX-License-Identifier: Apache-2.0
#include "listrows.h"

#include "dress.h"
#include "texts.h"

#include <sptablelist.h>

#include <QGuiApplication>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kRowUnits = 78; // of a row's height, about

QVariant answer(const ListRow &row, int role)
{
    if (role == kRowRole)
        return QVariant::fromValue(row);
    return role == Qt::DisplayRole ? QVariant(row.title) : QVariant();
}

QRect mirrored(const QRect &rect, const QRect &within)
{
    return QStyle::visualRect(QGuiApplication::layoutDirection(), within, rect);
}

// Nothing, so that the list's ground is seen.
QPixmap restingFace(const QSize &size)
{
    QPixmap face(size);
    face.fill(Qt::transparent);
    return face;
}

int lineHeight(const Theme &theme, Theme::TextSize size) { return theme.textPx(size) * 4 / 3; }

// A line that begins where the language begins, shortened to its room.
void drawLine(QPainter &painter, const QRect &area, const QString &text)
{
    painter.drawText(area, int(leadingAlignment()) | Qt::TextSingleLine,
                     shortened(text, painter.fontMetrics(), area.width()));
}

QPixmap pressedFace(const QSize &size, const Theme &theme)
{
    const int inset = theme.px(4);
    QPixmap face(size);
    face.fill(Qt::transparent);
    QPainter painter(&face);
    painter.drawPixmap(
        inset, inset,
        theme.panel(size - QSize(2 * inset, 2 * inset), theme.pressedFace, {}, theme.radius()));
    return face;
}

} // namespace

QVariant RowsOfModel::data(const QModelIndex &index, int role) const
{
    return index.isValid() && role == kRowRole ? QVariant::fromValue(row(index.row()))
                                               : QIdentityProxyModel::data(index, role);
}

void RowsOfModel::refresh(int row)
{
    const QModelIndex changed = index(row, 0);
    if (changed.isValid())
        emit dataChanged(changed, changed);
}

void RowList::setRows(const QVector<ListRow> &rows)
{
    if (!rows.isEmpty() && rows.size() == m_rows.size()) {
        m_rows = rows;
        emit dataChanged(index(0), index(rows.size() - 1));
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int RowList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QVariant RowList::data(const QModelIndex &index, int role) const
{
    return index.isValid() ? answer(m_rows.at(index.row()), role) : QVariant();
}

RowPainter::RowPainter(SpTableList *list)
    : QStyledItemDelegate(list), m_faces(qobject_cast<styleDelegate *>(list->itemDelegate())),
      m_theme({}, Theme::Night)
{
    list->setItemDelegate(this);
}

void RowPainter::paint(QPainter *painter, const QStyleOptionViewItem &option,
                       const QModelIndex &index) const
{
    m_faces->paint(painter, option, index);
    if (index.row() + 1 < index.model()->rowCount())
        drawDivider(*painter, option.rect);
    const auto row = index.data(kRowRole).value<ListRow>();
    painter->save();
    drawTexts(*painter, option.rect, drawPicture(*painter, option.rect, row), row);
    painter->restore();
}

// From row to row; below the last one there is nothing that it would divide from.
void RowPainter::drawDivider(QPainter &painter, const QRect &whole) const
{
    const int inset = m_theme.gap();
    painter.fillRect(whole.left() + inset, whole.bottom(), whole.width() - 2 * inset, 1,
                     m_theme.line);
}

// Tells where the texts begin, as in a language that is read from the left.
int RowPainter::drawPicture(QPainter &painter, const QRect &whole, const ListRow &row) const
{
    const int left = whole.left() + m_theme.gap();
    if (row.icon.isEmpty() && row.initials.isEmpty())
        return left;
    const int side = m_theme.px(44);
    const QRect place =
        mirrored({left, whole.top() + (whole.height() - side) / 2, side, side}, whole);
    const QColor color = row.isMarked ? m_theme.accent : m_theme.quietText;
    const QPixmap picture = row.initials.isEmpty() ? m_theme.icon(row.icon, m_theme.px(30), color)
                                                   : initialsDisc(m_theme, side, row.initials);
    painter.drawPixmap(place.left() + (side - picture.width()) / 2,
                       place.top() + (side - picture.height()) / 2, picture);
    return left + side + m_theme.gap();
}

void RowPainter::drawTexts(QPainter &painter, const QRect &whole, int left,
                           const ListRow &row) const
{
    int right = whole.right() + 1 - m_theme.gap() - row.room;
    painter.setFont(m_theme.font(Theme::Small));
    painter.setPen(m_theme.quietText);
    if (!row.tail.isEmpty()) {
        const int width = painter.fontMetrics().horizontalAdvance(row.tail) + m_theme.px(2);
        right -= width;
        drawLine(painter, mirrored({right, whole.top(), width, whole.height()}, whole), row.tail);
        right -= m_theme.gap();
    }
    const int titleHeight = lineHeight(m_theme, Theme::Body);
    const int detailHeight = row.detail.isEmpty() ? 0 : lineHeight(m_theme, Theme::Small);
    const int top = whole.top() + (whole.height() - titleHeight - detailHeight) / 2;
    drawLine(painter, mirrored({left, top + titleHeight, right - left, detailHeight}, whole),
             row.detail);
    painter.setFont(m_theme.font(Theme::Body));
    painter.setPen(row.isMarked ? m_theme.accent : m_theme.text);
    drawLine(painter, mirrored({left, top, right - left, titleHeight}, whole), row.title);
}

int rowsIn(const Theme &theme, int height)
{
    return std::max(1,
                    std::min(qRound(double(height) / theme.px(kRowUnits)), height / theme.touch()));
}

void dressList(SpTableList &list, const Theme &theme)
{
    auto *painter = qobject_cast<RowPainter *>(list.itemDelegate());
    if (!painter)
        painter = new RowPainter(&list);
    painter->setTheme(theme);
    list.setFrameShape(QFrame::NoFrame);
    list.setFocusPolicy(Qt::NoFocus);
    list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list.viewport()->setAutoFillBackground(false);
    // What is pressed is in the faces of the rows; a style marks the row touched last besides.
    QPalette palette = list.palette();
    palette.setBrush(QPalette::Highlight, Qt::transparent);
    list.setPalette(palette);
    const QSize row(list.width(), list.height() / rowsIn(theme, list.height()));
    list.setItemHeight(row.height());
    list.setItemWidth(row.width());
    list.setNormalImage(restingFace(row));
    list.setPressImage(pressedFace(row, theme));
    list.viewport()->update();
}

QPixmap initialsDisc(const Theme &theme, int side, const QString &initials)
{
    constexpr int kHues = 8;
    constexpr int kHueStep = 360 / kHues;
    const QString key = QStringLiteral("disc %1 %2 %3").arg(side).arg(theme.look()).arg(initials);
    return theme.picture(key, {side, side}, [&](QPainter &painter) {
        const QRect disc(0, 0, side, side);
        const int hue = int(qHash(initials, 0) % kHues) * kHueStep;
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromHsv(hue, 150, 120));
        painter.drawEllipse(disc);
        QFont font = theme.font(Theme::Body, true);
        font.setPixelSize(side * 2 / 5);
        const int wide = QFontMetrics(font).horizontalAdvance(initials);
        if (wide > side * 2 / 3)
            font.setPixelSize(font.pixelSize() * side * 2 / 3 / wide);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(disc, Qt::AlignCenter, initials);
    });
}

} // namespace headunit
