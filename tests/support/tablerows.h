// SPDX-License-Identifier: Apache-2.0
#ifndef TABLEROWS_H
#define TABLEROWS_H

#include <QTest>

/// The table of a test function whose rows have one value of each of these types: `const
/// TableRows<int, QColor> row("width", "color");` names the columns and `row("thin", 1, Qt::red);`
/// adds a row.
template <typename... Values> class TableRows
{
public:
    template <typename... Names> explicit TableRows(Names... names)
    {
        (QTest::addColumn<Values>(names), ...);
    }

    void operator()(const char *name, const Values &...values) const
    {
        (QTest::newRow(name) << ... << values);
    }
};

#endif // TABLEROWS_H
