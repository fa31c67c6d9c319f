// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_TOUR_H
#define CATALOGUE_TOUR_H

#include "tourlog.h"

#include <QDir>
#include <QImage>
#include <QObject>
#include <QStringList>
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
    int conclude() { return m_log.conclude(); }

private:
    void play(const Page &page, int act);
    void saveScene();
    QString inPage(const QString &fileName) const;

    MainWindow &m_window;
    QDir m_directory;
    TourLog m_log;

    const Page *m_page = nullptr;
    const Act *m_act = nullptr;
    QVector<QImage> m_picturesOfPage;
    QStringList m_namesOfPage;
};

#endif // CATALOGUE_TOUR_H
