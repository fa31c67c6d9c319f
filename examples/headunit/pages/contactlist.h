// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_CONTACTLIST_H
#define HEADUNIT_CONTACTLIST_H

#include "view.h"

#include <memory>

namespace Ui
{
class ContactList;
}

namespace headunit
{

/// Everybody by name, with the letters that there are. A tap calls the first number.
class ContactList : public View
{
    Q_OBJECT

public:
    explicit ContactList(Context &context, QWidget *parent = nullptr);
    ~ContactList() override;

signals:
    void numberChosen(const QString &number);

protected:
    void dress() override;
    void retranslate() override;
    QMargins margins(const Theme &theme) const override;

private:
    const std::unique_ptr<Ui::ContactList> m_ui;
};

} // namespace headunit

#endif // HEADUNIT_CONTACTLIST_H
