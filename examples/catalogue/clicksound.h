// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_CLICKSOUND_H
#define CATALOGUE_CLICKSOUND_H

#include <QObject>
#include <QTemporaryDir>

class QSoundEffect;

/// A short click, made when the catalogue starts; silent where there is nothing to sound it.
class ClickSound : public QObject
{
    Q_OBJECT

public:
    explicit ClickSound(QObject *parent = nullptr);

    void play();

private:
    QTemporaryDir m_directory;
    QSoundEffect *m_effect = nullptr;
};

#endif // CATALOGUE_CLICKSOUND_H
