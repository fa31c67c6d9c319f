// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_PAGELIST_H
#define CATALOGUE_PAGELIST_H

#include <QTreeWidget>

class Catalogue;
struct Page;

/// All pages, grouped by the family of their class, each with the icon of its class.
class PageList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit PageList(const Catalogue &catalogue, QWidget *parent = nullptr);

    void setCurrentPage(const Page &page);

signals:
    void chosen(const Page &page);

private:
    QTreeWidgetItem *family(const QString &name);
};

#endif // CATALOGUE_PAGELIST_H
