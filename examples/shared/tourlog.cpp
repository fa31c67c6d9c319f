// SPDX-License-Identifier: Apache-2.0
#include "tourlog.h"

#include <cstdio>

TourLog::TourLog(const QDir &directory, QObject *parent)
    : QObject(parent), m_directory(directory), m_file(directory.filePath("signals.log")),
      m_relay([this](QObject *sender, const QString &signal) {
          addSignal(m_names.value(sender), signal);
      })
{
    m_directory.mkpath(QStringLiteral("."));
    check(m_file.open(QIODevice::WriteOnly | QIODevice::Text),
          tr("%1 cannot be written").arg(m_file.fileName()));
    m_log.setDevice(&m_file);
    m_log.setCodec("UTF-8");
}

void TourLog::listenTo(QObject *subject, const QString &name)
{
    m_names.insert(subject, name);
    m_relay.watch(subject);
}

void TourLog::step(const QString &name)
{
    m_step = name;
    m_signalsOfStep = 0;
    m_sinceStepBegan.start();
}

void TourLog::endStep() { m_step.clear(); }

void TourLog::addSignal(const QString &sender, const QString &signal)
{
    if (m_step.isNull())
        return;
    ++m_signalsOfStep;
    ++m_signals;
    addNote(sender, signal);
}

void TourLog::addNote(const QString &sender, const QString &text)
{
    if (!m_step.isNull())
        m_log << m_step << '\t' << m_sinceStepBegan.elapsed() << " ms\t" << sender << '\t' << text
              << '\n';
}

void TourLog::save(const QImage &picture)
{
    const QString name = QString(m_step).replace(QLatin1Char(' '), QLatin1Char('-'));
    save(picture,
         QStringLiteral("%1-%2.png").arg(m_pictures + 1, 2, 10, QLatin1Char('0')).arg(name));
}

void TourLog::save(const QImage &picture, const QString &fileName)
{
    const QString path = m_directory.filePath(fileName);
    const bool isSaved = picture.save(path);
    check(isSaved, tr("%1 cannot be written").arg(path));
    m_pictures += isSaved;
}

bool TourLog::isBlank(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                return false;
        }
    }
    return true;
}

void TourLog::check(bool holds, const QString &failure)
{
    if (!holds)
        m_failures.append(failure);
}

int TourLog::conclude()
{
    m_log.flush();
    check(m_log.status() == QTextStream::Ok, tr("%1 is incomplete").arg(m_file.fileName()));
    for (const QString &failure : qAsConst(m_failures))
        std::fprintf(stderr, "%s\n", qUtf8Printable(failure));
    std::printf("%d pictures and %d signals written to %s\n", m_pictures, m_signals,
                qUtf8Printable(m_directory.path()));
    return m_failures.isEmpty() ? 0 : 1;
}
