// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_PLAYERBACKEND_H
#define HEADUNIT_PLAYERBACKEND_H

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

class QMediaPlayer;

namespace headunit
{

/// What plays one file for a Player.
class PlayerBackend : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Takes a file, stopped at its start. The length is what the tags say, in ms; 0 if unknown.
    virtual void load(const QString &path, qint64 length) = 0;
    /// The length of the file at hand has become known, in ms.
    virtual void setLength(qint64 length) = 0;
    virtual void play() = 0;
    virtual void pause() = 0;
    virtual void seek(qint64 position) = 0; ///< ms
    virtual void setLoudness(int percent) = 0;
    virtual qint64 position() const = 0; ///< ms

signals:
    void positionChanged(qint64 position); ///< ms; a few times a second while it plays
    void lengthFound(qint64 length); ///< ms; what the file itself says
    void ended();
    void fileFailed(); ///< this file cannot be played
    void serviceFailed(); ///< nothing can be played
};

/// Plays nothing and takes as long for it as the music would. The timer runs while it plays only.
class SilentBackend : public PlayerBackend
{
    Q_OBJECT

public:
    explicit SilentBackend(QObject *parent = nullptr);

    void load(const QString &path, qint64 length) override;
    void setLength(qint64 length) override;
    void play() override;
    void pause() override;
    void seek(qint64 position) override;
    void setLoudness(int percent) override;
    qint64 position() const override;

private:
    void tick();
    void scheduleTick();

    QTimer m_timer;
    QElapsedTimer m_clock; // valid while it plays
    qint64 m_start = 0; // the position at which the clock was started
    qint64 m_length = 0;
};

/// Plays by Qt Multimedia.
class MediaBackend : public PlayerBackend
{
    Q_OBJECT

public:
    /// False where Qt has nothing to play with, or no device to play on.
    static bool isAvailable();

    explicit MediaBackend(QObject *parent = nullptr);

    void load(const QString &path, qint64 length) override;
    void setLength(qint64 length) override;
    void play() override;
    void pause() override;
    void seek(qint64 position) override;
    void setLoudness(int percent) override;
    qint64 position() const override;

private:
    QMediaPlayer *const m_player;
    qint64 m_position = 0; // ms, as last told
};

} // namespace headunit

#endif // HEADUNIT_PLAYERBACKEND_H
