// SPDX-License-Identifier: Apache-2.0
#include "actbar.h"

#include "art.h"
#include "catalogue.h"

#include <QIcon>
#include <QPushButton>

namespace
{

constexpr int kIconSize = 14; // px
constexpr int kButtonHeight = 26; // px
constexpr int kSpacing = 6; // px

const QString kStyle = QStringLiteral(
    "QPushButton { background: #2b313b; color: #e3e8ee; border: 1px solid #3b4450;"
    " border-radius: 5px; padding: 0 10px; }"
    "QPushButton:hover { background: #343c48; }"
    "QPushButton:checked { background: #2b6cac; border-color: #5ab2ff; color: white; }"
    "QPushButton:disabled:!checked { color: #6a7583; }");

} // namespace

ActBar::ActBar(QWidget *parent) : QWidget(parent) { setStyleSheet(kStyle); }

void ActBar::setPage(const Page &page)
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    for (const Act &act : page.acts) {
        const int id = m_buttons.size();
        auto *button = new QPushButton(act.name, this);
        button->setCheckable(true);
        button->setAutoExclusive(true);
        button->setFocusPolicy(Qt::TabFocus);
        if (act.isTouched()) {
            button->setIcon(Art::pixmap(QStringLiteral("touch"), {kIconSize, kIconSize}));
            button->setToolTip(tr("Plays touches on the screen"));
        }
        connect(button, &QPushButton::clicked, this, [this, id] { emit chosen(id); });
        button->show();
        m_buttons.append(button);
    }
    arrange();
}

void ActBar::setCurrent(int act) { m_buttons.at(act)->setChecked(true); }

void ActBar::resizeEvent(QResizeEvent *e)
{
    QWidget::resizeEvent(e);
    arrange();
}

void ActBar::arrange()
{
    QPoint pos;
    for (QPushButton *button : qAsConst(m_buttons)) {
        const int buttonWidth = button->sizeHint().width();
        if (pos.x() > 0 && pos.x() + buttonWidth > width())
            pos = QPoint(0, pos.y() + kButtonHeight + kSpacing);
        button->setGeometry(pos.x(), pos.y(), buttonWidth, kButtonHeight);
        pos.rx() += buttonWidth + kSpacing;
    }
    setFixedHeight(pos.y() + kButtonHeight);
}
