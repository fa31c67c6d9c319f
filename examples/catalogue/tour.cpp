// SPDX-License-Identifier: Apache-2.0
#include "tour.h"

#include "catalogue.h"
#include "mainwindow.h"
#include "theme.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

namespace
{

// What of a picture is not the bare glass, and a little around it.
QRect contentOf(const QImage &picture)
{
    constexpr int kMargin = 8; // px
    const QRgb glass = Theme::kGlass.rgb();
    int left = picture.width();
    int right = -1;
    int top = picture.height();
    int bottom = -1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if ((picture.pixel(x, y) | 0xff000000) == glass)
                continue;
            left = qMin(left, x);
            right = qMax(right, x);
            top = qMin(top, y);
            bottom = qMax(bottom, y);
        }
    }
    if (right < 0)
        return {};
    const QRect content(QPoint(left, top), QPoint(right, bottom));
    return content.adjusted(-kMargin, -kMargin, kMargin, kMargin) & picture.rect();
}

// All pictures of a page on one, small and with their names, as the documentation shows them: the
// same part of each, in which is all that any of them shows.
QImage contactSheet(const QVector<QImage> &pictures, const QStringList &names)
{
    constexpr int kColumns = 4;
    constexpr int kGap = 8; // px
    constexpr int kName = 20; // px
    constexpr QSize kLargest(240, 180);
    QRect part;
    for (const QImage &picture : pictures)
        part |= contentOf(picture);
    const QSize shown = part.width() > kLargest.width() || part.height() > kLargest.height()
        ? part.size().scaled(kLargest, Qt::KeepAspectRatio)
        : part.size();
    const QSize cell(kLargest.width() + kGap, shown.height() + kName + kGap);
    const int rows = (pictures.size() + kColumns - 1) / kColumns;
    QImage sheet(kColumns * cell.width() + kGap, rows * cell.height() + kGap, QImage::Format_RGB32);
    sheet.fill(Theme::kLine);
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (int i = 0; i < pictures.size(); ++i) {
        const QPoint corner(kGap + i % kColumns * cell.width(),
                            kGap + i / kColumns * cell.height());
        const QImage small = pictures.at(i).copy(part).scaled(shown, Qt::IgnoreAspectRatio,
                                                              Qt::SmoothTransformation);
        painter.drawImage(corner + QPoint((kLargest.width() - shown.width()) / 2, 0), small);
        painter.drawText(QRect(corner + QPoint(0, shown.height()), QSize(kLargest.width(), kName)),
                         Qt::AlignCenter, names.at(i));
    }
    return sheet;
}

} // namespace

Tour::Tour(MainWindow &window, const QDir &directory)
    : m_window(window), m_directory(directory), m_log(directory)
{
    connect(&window, &MainWindow::signalEmitted, &m_log, &TourLog::addSignal);
    connect(&window, &MainWindow::pressFeedbackAsked, &m_log,
            [this](const QString &sender) { m_log.addNote(sender, QStringLiteral("beep")); });
    connect(&window, &MainWindow::pictureWorthy, this, &Tour::saveScene);
}

// Besides its acts, a page gives a sheet of all of them and a picture of the window. That one is
// taken last, when its log is full, with the first act on the stage.
void Tour::play(const Page &page)
{
    m_page = &page;
    m_act = nullptr;
    m_picturesOfPage.clear();
    m_namesOfPage.clear();
    m_directory.mkpath(page.name);
    m_window.showPage(page);
    for (std::size_t act = 0; act < page.acts.size(); ++act)
        play(page, int(act));

    m_act = nullptr;
    m_log.endStep();
    m_log.save(contactSheet(m_picturesOfPage, m_namesOfPage), inPage(QStringLiteral("sheet.png")));
    m_window.perform(0);
    m_log.save(m_window.grab().toImage(), inPage(QStringLiteral("window.png")));
}

void Tour::play(const Page &page, int act)
{
    m_act = &page.acts.at(std::size_t(act));
    m_log.step(page.name + QLatin1Char('\t') + m_act->name);
    m_window.perform(act);

    const QString name = page.name + QStringLiteral(", ") + m_act->name;
    m_log.check(m_act->kind != Act::Touches || m_log.signalsOfStep() > 0,
                tr("%1: the touches made no signal").arg(name));
    m_log.check(m_act->kind != Act::SilentTouches || m_log.signalsOfStep() == 0,
                tr("%1: touches meant to be silent made signals").arg(name));
}

void Tour::saveScene()
{
    if (!m_act)
        return;
    const QImage picture = m_window.scene()->grab().toImage();
    const QString name = QString(m_act->name).replace(QLatin1Char(' '), QLatin1Char('-'));
    m_picturesOfPage.append(picture);
    m_namesOfPage.append(m_act->name);
    m_log.save(picture,
               inPage(QStringLiteral("%1-%2.png")
                          .arg(m_picturesOfPage.size(), 2, 10, QLatin1Char('0'))
                          .arg(name)));
    const bool isBlank = TourLog::isBlank(picture);
    m_log.check(isBlank == (m_act->kind == Act::EmptyState),
                tr("%1, %2: the picture is %3")
                    .arg(m_page->name, m_act->name,
                         isBlank ? tr("blank") : tr("meant to be blank and is not")));
}

QString Tour::inPage(const QString &fileName) const
{
    return m_page->name + QLatin1Char('/') + fileName;
}
