// SPDX-License-Identifier: Apache-2.0
#include "headunit.h"

#include "page.h"
#include "pages/home.h"
#include "pages/media.h"
#include "pages/phone.h"
#include "pages/radio.h"
#include "pages/sound.h"
#include "popup.h"
#include "statusbar.h"

#include <spbackgroundimage.h>

#include <QStackedWidget>
#include <QTextStream>
#include <QVBoxLayout>

namespace headunit
{

HeadUnit::HeadUnit(Context &context, const QSize &screen, Theme::Look look, QWidget *parent)
    : QWidget(parent), m_context(context), m_theme(screen, look),
      m_backdrop(new SpBackgroundImage(this)), m_statusBar(new StatusBar(this)),
      m_stack(new QStackedWidget(this)), m_popup(new Popup(this))
{
    setFixedSize(screen);
    setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_statusBar);
    layout->addWidget(m_stack, 1);
    m_backdrop->lower();
    connect(m_statusBar, &StatusBar::homeWanted, this,
            [this] { openPage(QStringLiteral("home")); });
    connect(m_statusBar, &StatusBar::backWanted, this, &HeadUnit::goBack);

    addPage(QStringLiteral("home"), new HomePage(context));
    addPage(QStringLiteral("radio"), new RadioPage(context));
    addPage(QStringLiteral("media"), new MediaPage(context));
    addPage(QStringLiteral("phone"), new PhonePage(context));
    addPage(QStringLiteral("sound"), new SoundPage(context));
    setLook(look);
    openPage(QStringLiteral("home"));
}

QString HeadUnit::currentPage() const { return m_names.value(m_stack->currentIndex()); }

QWidget *HeadUnit::page(const QString &name) const { return m_pages.value(name); }

void HeadUnit::openPage(const QString &name)
{
    Page *page = m_pages.value(name);
    if (!page) {
        say(tr("Not ready"), tr("This application is not ready yet."));
        return;
    }
    m_stack->setCurrentWidget(page);
    showTitle();
    emit pageOpened(name);
}

void HeadUnit::setLook(Theme::Look look)
{
    m_theme = Theme(size(), look);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, m_theme.ground);
    colors.setColor(QPalette::WindowText, m_theme.text);
    setPalette(colors);
    setFont(m_theme.font(Theme::Body));
    m_backdrop->setPixmap(m_theme.drawing(look == Theme::Day ? QStringLiteral("backdrop-day")
                                                             : QStringLiteral("backdrop-night"),
                                          size()));
    m_statusBar->setTheme(m_theme);
    m_popup->setTheme(m_theme);
    for (Page *page : qAsConst(m_pages))
        page->setTheme(m_theme);
}

void HeadUnit::say(const QString &title, const QString &sentence)
{
    QTextStream(stderr) << sentence << '\n';
    m_popup->say(title, sentence);
}

void HeadUnit::resizeEvent(QResizeEvent *e)
{
    QWidget::resizeEvent(e);
    m_backdrop->setGeometry(rect());
    m_popup->setGeometry(rect());
}

void HeadUnit::addPage(const QString &name, Page *page)
{
    page->setObjectName(name);
    m_names.append(name);
    m_pages.insert(name, page);
    m_stack->addWidget(page);
    connect(page, &Page::pageWanted, this, &HeadUnit::openPage);
    connect(page, &Page::popupWanted, this, &HeadUnit::say);
    connect(page, &Page::titleChanged, this, &HeadUnit::showTitle);
}

void HeadUnit::goBack()
{
    Page *page = m_pages.value(currentPage());
    if (page && !page->goBack())
        openPage(QStringLiteral("home"));
}

void HeadUnit::showTitle()
{
    const Page *page = m_pages.value(currentPage());
    m_statusBar->setTitle(page ? page->title() : QString());
    m_statusBar->setKeysShown(currentPage() != QLatin1String("home"));
}

} // namespace headunit
