// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_SIGNALLOG_H
#define CATALOGUE_SIGNALLOG_H

#include <QWidget>

class QTreeWidget;
class QTreeWidgetItem;

/// What the subjects said and when, the newest at the end, with a button that clears it.
class SignalLog : public QWidget
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget *parent = nullptr);

    /// The heading of an act.
    void addHeading(const QString &text);
    void add(const QString &sender, const QString &what);
    void clear();

private:
    QTreeWidgetItem *append(const QString &sender, const QString &what);

    QTreeWidget *m_list;
};

#endif // CATALOGUE_SIGNALLOG_H
