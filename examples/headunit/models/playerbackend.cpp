// SPDX-License-Identifier: Apache-2.0
#include "playerbackend.h"

#include <audiodevice.h>

#include <QMediaPlayer>
#include <QUrl>

namespace headunit
{

namespace
{

constexpr int kTick = 250; // ms between two reports of the position

// What plays nothing at all plays no WAV; GStreamer knows it by its older name only.
bool canPlay()
{
    return QMediaPlayer::hasSupport(QStringLiteral("audio/wav")) != QMultimedia::NotSupported
        || QMediaPlayer::hasSupport(QStringLiteral("audio/x-wav")) != QMultimedia::NotSupported;
}

} // namespace

SilentBackend::SilentBackend(QObject *parent) : PlayerBackend(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SilentBackend::tick);
}

void SilentBackend::load(const QString &, qint64 length)
{
    m_timer.stop();
    m_clock.invalidate();
    m_start = 0;
    m_length = length;
}

void SilentBackend::setLength(qint64 length)
{
    m_length = length;
    if (m_clock.isValid())
        scheduleTick();
}

void SilentBackend::play()
{
    if (m_clock.isValid())
        return;
    m_clock.start();
    scheduleTick();
}

void SilentBackend::pause()
{
    m_start = position();
    m_clock.invalidate();
    m_timer.stop();
}

void SilentBackend::seek(qint64 position)
{
    m_start = position;
    if (!m_clock.isValid())
        return;
    m_clock.start();
    scheduleTick();
}

void SilentBackend::setLoudness(int) { }

qint64 SilentBackend::position() const
{
    const qint64 reached = m_start + (m_clock.isValid() ? m_clock.elapsed() : 0);
    return m_length > 0 ? qMin(reached, m_length) : reached;
}

void SilentBackend::tick()
{
    const qint64 reached = position();
    if (m_length > 0 && reached >= m_length) {
        pause();
        emit ended();
        return;
    }
    scheduleTick();
    emit positionChanged(reached);
}

// At full ticks of the position, so that they do not drift; and at the end.
void SilentBackend::scheduleTick()
{
    const qint64 reached = position();
    const qint64 next = (reached / kTick + 1) * kTick;
    const qint64 stop = m_length > 0 ? qMin(next, m_length) : next;
    m_timer.start(int(qMax<qint64>(0, stop - reached)));
}

bool MediaBackend::isAvailable() { return audiodevice::isThere() && canPlay(); }

MediaBackend::MediaBackend(QObject *parent)
    : PlayerBackend(parent), m_player(new QMediaPlayer(this))
{
    m_player->setAudioRole(QAudio::MusicRole);
    m_player->setNotifyInterval(kTick);
    connect(m_player, &QMediaPlayer::positionChanged, this, [this](qint64 position) {
        m_position = position;
        emit positionChanged(position);
    });
    connect(m_player, &QMediaPlayer::durationChanged, this, [this](qint64 length) {
        if (length > 0)
            emit lengthFound(length);
    });
    // Answered when the player has returned, as the answer may be another file or another backend;
    // and only if it still holds by then.
    connect(
        m_player, &QMediaPlayer::mediaStatusChanged, this,
        [this] {
            if (m_player->mediaStatus() == QMediaPlayer::EndOfMedia)
                emit ended();
        },
        Qt::QueuedConnection);
    connect(
        m_player, QOverload<QMediaPlayer::Error>::of(&QMediaPlayer::error), this,
        [this] {
            const QMediaPlayer::Error error = m_player->error();
            if (error == QMediaPlayer::ServiceMissingError)
                emit serviceFailed();
            else if (error != QMediaPlayer::NoError)
                emit fileFailed();
        },
        Qt::QueuedConnection);
}

void MediaBackend::load(const QString &path, qint64)
{
    m_position = 0;
    m_player->setMedia(QUrl::fromLocalFile(path));
}

void MediaBackend::setLength(qint64) { }

void MediaBackend::play() { m_player->play(); }

void MediaBackend::pause() { m_player->pause(); }

// For a moment the player still tells the position before.
void MediaBackend::seek(qint64 position)
{
    m_player->setPosition(position);
    m_position = position;
}

void MediaBackend::setLoudness(int percent) { m_player->setVolume(percent); }

qint64 MediaBackend::position() const { return m_position; }

} // namespace headunit
