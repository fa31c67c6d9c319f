// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_GRABS_H
#define SHARED_GRABS_H

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <array>

/// Writes a picture of a window to a file each time the process gets the signal SIGUSR1, so that
/// what a person sees somewhere else can be compared with what was painted. The ending of its
/// name says which format it has. It is complete when it is there: it is written under another name
/// first.
class Grabs : public QObject
{
    Q_OBJECT

public:
    Grabs(QWidget &window, const QString &path, QObject *parent = nullptr);
    ~Grabs() override;

private:
    void save();

    QPointer<QWidget> m_window;
    const QString m_path;
    std::array<int, 2> m_pipe{-1, -1}; // from the signal to the event loop
};

#endif // SHARED_GRABS_H
