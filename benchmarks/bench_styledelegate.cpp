// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "itemlooks.h"
#include "listrows.h"
#include "rows.h"

#include <QStyledItemDelegate>
#include <sptablelist.h>
#include <styledelegate.h>

namespace
{

constexpr double kPeerLimit = 0.7; // the peer has one icon and one line less to paint
constexpr QSize kRow(kRowWidth, kRowHeight);

PaintingMaker delegateRow(const std::shared_ptr<QAbstractItemDelegate> &delegate,
                          const std::shared_ptr<QAbstractItemModel> &model, bool isSelected = false)
{
    QStyleOptionViewItem option;
    option.rect = QRect(QPoint(), kRow);
    option.font = fontOf(kCentreSize);
    option.fontMetrics = QFontMetrics(option.font);
    option.decorationSize = headerIcon().size();
    option.state = QStyle::State_Enabled;
    option.state.setFlag(QStyle::State_Selected, isSelected);
    return bareWidget(
        kRow, [=](QPainter &painter) { delegate->paint(&painter, option, model->index(0, 0)); });
}

void addLook(Rows &rows, const ItemLook &look)
{
    const auto ours = std::make_shared<styleDelegate>();
    setUp(*ours, look);
    ours->setRollTimerId(1);
    const auto model = std::make_shared<AlikeRows>(look, 1);
    rows.paint("styleDelegate", look.name, delegateRow(ours, model, look.isPressed),
               {bareWidget(kRow, look.floor)},
               {{"QStyledItemDelegate, one icon and one line",
                 delegateRow(std::make_shared<QStyledItemDelegate>(), model), 1}},
               look.style == SpTableList::LIST_STYLE_3 ? rollingLimits() : textLimit(3));
}

} // namespace

void defineRows(Rows &rows, Tag<styleDelegate>)
{
    const auto ours = std::make_shared<styleDelegate>();
    ours->setCenterFont(fontOf(kCentreSize));
    ours->setStyle(SpTableList::LIST_STYLE_5);
    const auto floor = std::make_shared<ListFloor>(1);
    const auto model = std::make_shared<ListRows>(1);
    rows.paint("styleDelegate", "two icons and two lines", delegateRow(ours, model),
               {bareWidget(kRow, [floor](QPainter &painter) { floor->draw(painter); })},
               {{"QStyledItemDelegate, one icon and one line",
                 delegateRow(std::make_shared<QStyledItemDelegate>(), model), kPeerLimit}},
               textLimit(3));
    for (const ItemLook &look : itemLooks())
        addLook(rows, look);
}
