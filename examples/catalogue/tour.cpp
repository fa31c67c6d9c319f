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

// All pictures of a page on one, small and with their names, as the documentation shows them.
QImage contactSheet(const QVector<QImage> &pictures, const QStringList &names)
{
    constexpr int kColumns = 4;
    constexpr int kGap = 8; // px
    constexpr QSize kPicture(240, 134);
    constexpr QSize kCell(kPicture.width() + kGap, kPicture.height() + kGap + 20);
    const int rows = (pictures.size() + kColumns - 1) / kColumns;
    QImage sheet(kColumns * kCell.width() + kGap, rows * kCell.height() + kGap,
                 QImage::Format_RGB32);
    sheet.fill(Theme::kLine);
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (int i = 0; i < pictures.size(); ++i) {
        const QPoint corner(kGap + i % kColumns * kCell.width(),
                            kGap + i / kColumns * kCell.height());
        const QImage small =
            pictures.at(i).scaled(kPicture, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        const QSize spare = kPicture - small.size();
        painter.drawImage(corner + QPoint(spare.width(), spare.height()) / 2, small);
        painter.drawText(QRect(corner + QPoint(0, kPicture.height()), QSize(kPicture.width(), 20)),
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
