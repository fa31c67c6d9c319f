// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_ACTBAR_H
#define CATALOGUE_ACTBAR_H

#include <QVector>
#include <QWidget>

class QPushButton;
struct Page;

/// One button for each act of a page, in as many rows as they need; the act that was performed last
/// stays marked.
class ActBar : public QWidget
{
    Q_OBJECT

public:
    explicit ActBar(QWidget *parent = nullptr);

    void setPage(const Page &page);
    void setCurrent(int act);

signals:
    void chosen(int act);

protected:
    void resizeEvent(QResizeEvent *e) override;

private:
    void arrange();

    QVector<QPushButton *> m_buttons;
};

#endif // CATALOGUE_ACTBAR_H
