// SPDX-License-Identifier: Apache-2.0
#include "pagelist.h"

#include "catalogue.h"
#include "theme.h"

namespace
{
constexpr int kPageIndex = Qt::UserRole;
constexpr int kIconSize = 24; // px
} // namespace

PageList::PageList(const Catalogue &catalogue, QWidget *parent) : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(12);
    setIconSize({kIconSize, kIconSize});
    setFrameShape(QFrame::NoFrame);
    Theme::darken(*this);
    for (std::size_t i = 0; i < catalogue.pages().size(); ++i) {
        const Page &page = catalogue.pages()[i];
        auto *item = new QTreeWidgetItem(family(page.classInfo.family), {page.name});
        item->setIcon(
            0, QIcon(QStringLiteral(":/panelkit/icons/%1.svg").arg(page.classInfo.name.toLower())));
        item->setToolTip(0, page.classInfo.toolTip);
        item->setData(0, kPageIndex, int(i));
        item->setSizeHint(0, {1, kIconSize + 10});
    }
    expandAll();
    connect(this, &QTreeWidget::currentItemChanged, this,
            [this, &catalogue](QTreeWidgetItem *item) {
                if (item)
                    emit chosen(catalogue.pages()[item->data(0, kPageIndex).toUInt()]);
            });
}

void PageList::setCurrentPage(const Page &page)
{
    const auto items = findItems(page.name, Qt::MatchExactly | Qt::MatchRecursive);
    for (QTreeWidgetItem *item : items) {
        if (item->parent())
            setCurrentItem(item);
    }
}

QTreeWidgetItem *PageList::family(const QString &name)
{
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (topLevelItem(i)->text(0) == name)
            return topLevelItem(i);
    }
    auto *heading = new QTreeWidgetItem(this, {name});
    heading->setFlags(Qt::ItemIsEnabled);
    heading->setForeground(0, Theme::kQuietText);
    heading->setSizeHint(0, {1, kIconSize + 8});
    return heading;
}
