// SPDX-License-Identifier: Apache-2.0
#include "view.h"

#include <QEvent>
#include <QLayout>

namespace headunit
{

View::View(Context &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_theme({}, Theme::Night)
{
}

void View::setTheme(const Theme &theme)
{
    m_theme = theme;
    if (layout()) {
        layout()->setContentsMargins(margins(theme));
        layout()->setSpacing(theme.gap());
    }
    dressAgain();
}

QMargins View::margins(const Theme &) const { return {}; }

void View::changeEvent(QEvent *e)
{
    QWidget::changeEvent(e);
    if (e->type() == QEvent::LanguageChange)
        retranslate();
}

// The layout has given the widgets their places by now.
void View::resizeEvent(QResizeEvent *e)
{
    QWidget::resizeEvent(e);
    dressAgain();
}

void View::showEvent(QShowEvent *e)
{
    QWidget::showEvent(e);
    if (!m_isDressed)
        dressNow();
}

void View::dressAgain()
{
    m_isDressed = false;
    if (isVisible())
        dressNow();
}

void View::dressNow()
{
    m_isDressed = true;
    dress();
}

} // namespace headunit
