// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_PAGE_H
#define HEADUNIT_PAGE_H

#include "view.h"

namespace headunit
{

/// A page of the head unit: a view with margins, a title and ways to other pages.
class Page : public View
{
    Q_OBJECT

public:
    using View::View;

    /// What the status bar shows while the page is open, in the language of the moment.
    virtual QString title() const = 0;

    /// Where the back key leads within the page; false if that is the home page.
    virtual bool goBack() { return false; }

signals:
    /// Another page is to be opened, by its name.
    void pageWanted(const QString &name);
    /// A popup with a sentence.
    void popupWanted(const QString &title, const QString &sentence);
    void titleChanged();

protected:
    QMargins margins(const Theme &theme) const override;
    void changeEvent(QEvent *e) override;
};

} // namespace headunit

#endif // HEADUNIT_PAGE_H
