// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_TOURLOG_H
#define SHARED_TOURLOG_H

#include "signalrelay.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTextStream>

/**
 * What there is to see and hear on a tour, in a directory: a picture where the script wants one,
 * and signals.log. That has a line for each signal: the step, the ms since the step began, the name
 * of the sender, and `signal(arguments)`, with tabs between.
 *
 *     TourLog log(directory);
 *     log.listenTo(volume, "volume");
 *     log.step("louder");
 *     Finger(volume).press({20, 20}).moveTo({200, 20}, 300).release();
 *     log.check(log.signalsOfStep() > 0, "The volume dial said nothing.");
 *     log.save(window.grab().toImage()); // 01-louder.png
 *     return log.conclude();
 */
class TourLog : public QObject
{
    Q_OBJECT

public:
    explicit TourLog(const QDir &directory, QObject *parent = nullptr);

    /// Writes down every signal of an object from now on, under this name.
    void listenTo(QObject *subject, const QString &name);

    /// What follows belongs to this step. Before the first step and after endStep() nothing is
    /// written down.
    void step(const QString &name);
    void endStep();

    /// Writes down a signal that another relay has heard.
    void addSignal(const QString &sender, const QString &signal);
    /// Writes down anything else; it does not count as a signal.
    void addNote(const QString &sender, const QString &text);
    /// How many signals there were since the step began.
    int signalsOfStep() const { return m_signalsOfStep; }

    /// Saves a picture, numbered and named after the step.
    void save(const QImage &picture);
    /// Saves a picture under a name of its own, relative to the directory.
    void save(const QImage &picture, const QString &fileName);
    /// Whether all pixels of a picture are alike.
    static bool isBlank(const QImage &picture);

    /// A tour fails if one of its checks does.
    void check(bool holds, const QString &failure);
    /// Says what was written and what failed; returns the exit code of the program.
    int conclude();

private:
    QDir m_directory;
    QFile m_file;
    QTextStream m_log;
    SignalRelay m_relay;
    QHash<const QObject *, QString> m_names;
    QStringList m_failures;
    QString m_step; // null between steps
    QElapsedTimer m_sinceStepBegan;
    int m_signalsOfStep = 0;
    int m_pictures = 0;
    int m_signals = 0;
};

#endif // SHARED_TOURLOG_H
