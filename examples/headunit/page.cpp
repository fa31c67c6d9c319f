// SPDX-License-Identifier: Apache-2.0
#include "page.h"

#include <QEvent>
#include <QLayout>

namespace headunit
{

Page::Page(Context &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_theme({}, Theme::Night)
{
}

void Page::setTheme(const Theme &theme)
{
    m_theme = theme;
    if (layout()) {
        layout()->setContentsMargins(theme.margin(), theme.gap(), theme.margin(), theme.margin());
        layout()->setSpacing(theme.gap());
    }
    m_isDressed = false;
    if (isVisible())
        dressNow();
}

void Page::changeEvent(QEvent *e)
{
    QWidget::changeEvent(e);
    if (e->type() == QEvent::LanguageChange) {
        retranslate();
        emit titleChanged();
    }
}

// The layout has given the widgets their places by now.
void Page::resizeEvent(QResizeEvent *e)
{
    QWidget::resizeEvent(e);
    m_isDressed = false;
    if (isVisible())
        dressNow();
}

void Page::showEvent(QShowEvent *e)
{
    QWidget::showEvent(e);
    if (!m_isDressed)
        dressNow();
}

void Page::dressNow()
{
    m_isDressed = true;
    dress();
}

} // namespace headunit
