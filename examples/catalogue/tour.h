// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_TOUR_H
#define CATALOGUE_TOUR_H

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QObject>
#include <QStringList>
#include <QTextStream>
#include <QVector>

struct Act;
class MainWindow;
struct Page;

/**
 * Plays every act of every page and writes down what there was to see and hear: a picture of each
 * act, one of the window for each page, and signals.log. It fails where a picture is blank that
 * should not be, or touches do not make the signals that they should.
 */
class Tour : public QObject
{
    Q_OBJECT

public:
    Tour(MainWindow &window, const QDir &directory);

    /// Plays one page.
    void play(const Page &page);
    /// Says what was written and what failed; returns the exit code of the program.
    int conclude();

private:
    void play(const Page &page, int act);
    void saveScene();
    void save(const QImage &picture, const QString &fileName);
    void check(bool holds, const QString &failure);
    void log(const QString &sender, const QString &what);
    void logSignal(const QString &sender, const QString &signal);

    MainWindow &m_window;
    QDir m_directory;
    QFile m_logFile;
    QTextStream m_log;
    QStringList m_failures;

    const Page *m_page = nullptr;
    const Act *m_act = nullptr;
    QElapsedTimer m_sinceActBegan;
    QVector<QImage> m_picturesOfPage;
    QStringList m_namesOfPage;
    int m_signalsOfAct = 0;
    int m_pictures = 0;
    int m_signals = 0;
};

#endif // CATALOGUE_TOUR_H
