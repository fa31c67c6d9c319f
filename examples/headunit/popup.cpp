// SPDX-License-Identifier: Apache-2.0
#include "popup.h"

#include "dress.h"

#include <spiconbutton.h>

#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace headunit
{

Popup::Popup(QWidget *parent)
    : SpMaskBackground(parent), m_panel(new QLabel(this)), m_title(new QLabel(m_panel)),
      m_sentence(new QLabel(m_panel)), m_close(new SpIconButton(m_panel)), m_theme({}, Theme::Night)
{
    setObjectName(QStringLiteral("popup"));
    m_close->setObjectName(QStringLiteral("popupClose"));
    setholdMouseEvent(true); // the page below is out of reach
    m_title->setAlignment(Qt::AlignCenter);
    m_sentence->setAlignment(Qt::AlignCenter);
    m_sentence->setWordWrap(true);
    m_sentence->setTextFormat(Qt::PlainText);
    auto *layout = new QVBoxLayout(m_panel);
    layout->addWidget(m_title);
    layout->addWidget(m_sentence, 1);
    layout->addWidget(m_close, 0, Qt::AlignHCenter);
    connect(m_close, &SpIconButton::btnClicked, this, &Popup::showNext);
    connect(this, &SpMaskBackground::clicked, this, &Popup::showNext);
    retranslate();
    hide();
}

void Popup::setTheme(const Theme &theme)
{
    m_theme = theme;
    setPainterColor(theme.veil);
    m_panel->layout()->setContentsMargins(theme.margin(), theme.margin(), theme.margin(),
                                          theme.margin());
    m_panel->layout()->setSpacing(theme.px(18));
    dressLabel(*m_title, theme, Theme::Title);
    dressLabel(*m_sentence, theme, Theme::Body);
    m_close->setFixedSize(theme.px(220), theme.touch());
    dressKey(*m_close, theme, Theme::Primary);
    place();
}

void Popup::say(const QString &title, const QString &sentence)
{
    m_waiting.append({title, sentence});
    if (!isVisible())
        showNext();
}

void Popup::changeEvent(QEvent *e)
{
    SpMaskBackground::changeEvent(e);
    if (e->type() == QEvent::LanguageChange)
        retranslate();
}

void Popup::resizeEvent(QResizeEvent *e)
{
    SpMaskBackground::resizeEvent(e);
    place();
}

void Popup::showNext()
{
    setVisible(!m_waiting.isEmpty());
    if (m_waiting.isEmpty())
        return;
    const auto next = m_waiting.takeFirst();
    m_title->setText(next.first);
    m_sentence->setText(next.second);
    place();
}

void Popup::retranslate() { m_close->setDisplayText(tr("Close")); }

// As high as its sentence asks for.
void Popup::place()
{
    const QLayout &layout = *m_panel->layout();
    const int width = m_theme.px(620);
    const QSize size(width,
                     std::max(layout.totalHeightForWidth(width), layout.totalSizeHint().height()));
    m_panel->setFixedSize(size);
    m_panel->setPixmap(m_theme.panel(size, m_theme.face, m_theme.line, m_theme.px(20)));
    m_panel->move(rect().center() - m_panel->rect().center());
}

} // namespace headunit
