// SPDX-License-Identifier: Apache-2.0
#ifndef WITNESS_H
#define WITNESS_H

#include "signallog.h"

#include <QString>
#include <QTextStream>
#include <QVariantList>

class QWidget;

/// Writes what a widget makes of an action, as one line: the signals, the numbers among its
/// properties that have changed, and where the mark stands in its picture. Every number has all of
/// its digits.
class Witness
{
public:
    /// Each line begins with the title.
    Witness(QTextStream &out, QWidget &widget, const QString &title);

    void write(const QString &action);

private:
    QVariantList numbers() const;

    QTextStream &m_out;
    QWidget &m_widget;
    const QString m_title;
    const bool m_hasMark;
    SignalLog m_log;
    QVariantList m_numbers;
};

#endif // WITNESS_H
