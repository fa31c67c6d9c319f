// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "listrows.h"
#include "rows.h"

#include <QStyledItemDelegate>
#include <sptablelist.h>
#include <styledelegate.h>

namespace
{

constexpr double kPeerLimit = 0.7; // the peer has one icon and one line less to paint

PaintingMaker delegateRow(const std::shared_ptr<QAbstractItemDelegate> &delegate)
{
    const auto model = std::make_shared<ListRows>(1);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, kRowWidth, kRowHeight);
    option.font = fontOf(kCentreSize);
    option.fontMetrics = QFontMetrics(option.font);
    option.decorationSize = headerIcon().size();
    option.state = QStyle::State_Enabled;
    return bareWidget(option.rect.size(), [=](QPainter &painter) {
        delegate->paint(&painter, option, model->index(0));
    });
}

} // namespace

void defineRows(Rows &rows, Tag<styleDelegate>)
{
    const auto ours = std::make_shared<styleDelegate>();
    ours->setCenterFont(fontOf(kCentreSize));
    ours->setStyle(SpTableList::LIST_STYLE_5);
    const auto floor = std::make_shared<ListFloor>(1);
    rows.paint(
        "styleDelegate", "two icons and two lines", delegateRow(ours),
        {bareWidget({kRowWidth, kRowHeight}, [floor](QPainter &painter) { floor->draw(painter); })},
        {{"QStyledItemDelegate, one icon and one line",
          delegateRow(std::make_shared<QStyledItemDelegate>()), kPeerLimit}},
        textLimit(3));
}
