// SPDX-License-Identifier: Apache-2.0
#include "signallog.h"

#include "theme.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTime>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace
{
enum Column { Time, Sender, What };
constexpr int kMaximumLength = 1000; // entries
} // namespace

SignalLog::SignalLog(QWidget *parent) : QWidget(parent), m_list(new QTreeWidget)
{
    m_list->setHeaderLabels({tr("Time"), tr("Sender"), tr("Signal")});
    m_list->setRootIsDecorated(false);
    Theme::darken(*m_list);
    m_list->setUniformRowHeights(true);
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->header()->resizeSection(Time, 100);
    m_list->header()->resizeSection(Sender, 170);

    auto *clearButton = new QPushButton(tr("Clear"));
    connect(clearButton, &QPushButton::clicked, this, &SignalLog::clear);
    auto *head = new QHBoxLayout;
    head->addWidget(new QLabel(tr("Signals and press feedback")));
    head->addStretch();
    head->addWidget(clearButton);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(head);
    layout->addWidget(m_list);
}

void SignalLog::addHeading(const QString &text)
{
    QTreeWidgetItem *item = append({}, text);
    for (const Column column : {Time, What})
        item->setForeground(column, Theme::kQuietText);
}

void SignalLog::add(const QString &sender, const QString &what) { append(sender, what); }

void SignalLog::clear() { m_list->clear(); }

QTreeWidgetItem *SignalLog::append(const QString &sender, const QString &what)
{
    if (m_list->topLevelItemCount() == kMaximumLength)
        delete m_list->takeTopLevelItem(0);
    const QString time = QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz"));
    auto *item = new QTreeWidgetItem(m_list, {time, sender, what});
    m_list->scrollToItem(item);
    return item;
}
