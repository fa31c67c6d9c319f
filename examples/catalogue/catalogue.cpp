// SPDX-License-Identifier: Apache-2.0
#include "catalogue.h"

#include <panelkitclasses.h>

#include <algorithm>

#define DECLARE_PAGES(Class, ...) void definePages(PagesOf<Class> &pages);
PANELKIT_FOR_EACH_WIDGET(DECLARE_PAGES)
#undef DECLARE_PAGES

Catalogue::Catalogue(){
#define DEFINE_PAGES(Class, create, header, family, toolTip, ...) \
    {                                                             \
        PagesOf<Class> pages(*this, {#Class, family, toolTip});   \
        definePages(pages);                                       \
    }
    PANELKIT_FOR_EACH_WIDGET(DEFINE_PAGES)
#undef DEFINE_PAGES
}

Page &Catalogue::add(Page page)
{
    m_pages.push_back(std::move(page));
    return m_pages.back();
}

const Page *Catalogue::find(const QString &name) const
{
    const auto found = std::find_if(m_pages.begin(), m_pages.end(),
                                    [&name](const Page &page) { return page.name == name; });
    return found == m_pages.end() ? nullptr : &*found;
}
