// SPDX-License-Identifier: Apache-2.0
#include "tour.h"

#include "catalogue.h"
#include "mainwindow.h"
#include "theme.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <cstdio>

namespace
{

bool isBlank(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                return false;
        }
    }
    return true;
}

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
    : m_window(window), m_directory(directory), m_logFile(directory.filePath("signals.log"))
{
    m_directory.mkpath(QStringLiteral("."));
    check(m_logFile.open(QIODevice::WriteOnly | QIODevice::Text),
          tr("%1 cannot be written").arg(m_logFile.fileName()));
    m_log.setDevice(&m_logFile);
    m_log.setCodec("UTF-8");
    connect(&window, &MainWindow::signalEmitted, this, &Tour::logSignal);
    connect(&window, &MainWindow::pressFeedbackAsked, this,
            [this](const QString &sender) { log(sender, QStringLiteral("beep")); });
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
    save(contactSheet(m_picturesOfPage, m_namesOfPage), QStringLiteral("sheet.png"));
    m_window.perform(0);
    save(m_window.grab().toImage(), QStringLiteral("window.png"));
}

int Tour::conclude()
{
    m_log.flush();
    check(m_log.status() == QTextStream::Ok, tr("%1 is incomplete").arg(m_logFile.fileName()));
    for (const QString &failure : qAsConst(m_failures))
        std::fprintf(stderr, "%s\n", qUtf8Printable(failure));
    std::printf("%d pictures and %d signals written to %s\n", m_pictures, m_signals,
                qUtf8Printable(m_directory.path()));
    return m_failures.isEmpty() ? 0 : 1;
}

void Tour::play(const Page &page, int act)
{
    m_act = &page.acts.at(std::size_t(act));
    m_signalsOfAct = 0;
    m_sinceActBegan.start();
    m_window.perform(act);

    const QString name = page.name + QStringLiteral(", ") + m_act->name;
    check(m_act->kind != Act::Touches || m_signalsOfAct > 0,
          tr("%1: the touches made no signal").arg(name));
    check(m_act->kind != Act::SilentTouches || m_signalsOfAct == 0,
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
    save(picture,
         QStringLiteral("%1-%2.png")
             .arg(m_picturesOfPage.size(), 2, 10, QLatin1Char('0'))
             .arg(name));
    check(isBlank(picture) == (m_act->kind == Act::EmptyState),
          tr("%1, %2: the picture is %3")
              .arg(m_page->name, m_act->name,
                   isBlank(picture) ? tr("blank") : tr("meant to be blank and is not")));
}

void Tour::save(const QImage &picture, const QString &fileName)
{
    const QString path = m_directory.filePath(m_page->name + QLatin1Char('/') + fileName);
    const bool isSaved = picture.save(path);
    check(isSaved, tr("%1 cannot be written").arg(path));
    m_pictures += isSaved;
}

void Tour::check(bool holds, const QString &failure)
{
    if (!holds)
        m_failures.append(failure);
}

void Tour::log(const QString &sender, const QString &what)
{
    if (m_act)
        m_log << m_page->name << '\t' << m_act->name << '\t' << m_sinceActBegan.elapsed() << " ms\t"
              << sender << '\t' << what << '\n';
}

void Tour::logSignal(const QString &sender, const QString &signal)
{
    if (!m_act)
        return;
    ++m_signalsOfAct;
    ++m_signals;
    log(sender, signal);
}
