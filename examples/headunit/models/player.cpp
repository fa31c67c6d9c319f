// SPDX-License-Identifier: Apache-2.0
#include "player.h"

#include "trackmodel.h"

#include <QAudio>
#include <QFileInfo>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr qint64 kMilliseconds = 1000; // in a second
constexpr qint64 kRestartAfter = 3000; // ms of a track after which previous() begins it again
constexpr int kMostFailures = 10; // files in a row
constexpr int kPercent = 100;

std::unique_ptr<PlayerBackend> bestBackend()
{
    if (MediaBackend::isAvailable())
        return std::make_unique<MediaBackend>();
    return std::make_unique<SilentBackend>();
}

} // namespace

Player::Player(QObject *parent) : Player(bestBackend(), parent) { }

Player::Player(std::unique_ptr<PlayerBackend> backend, QObject *parent)
    : QObject(parent), m_random(QRandomGenerator::securelySeeded())
{
    m_failure.setSingleShot(true);
    connect(&m_failure, &QTimer::timeout, this, &Player::onFailure);
    setBackend(std::move(backend));
}

Player::~Player() = default;

void Player::setModel(TrackModel *model)
{
    if (model == m_model)
        return;
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    if (model) {
        connect(model, &TrackModel::modelReset, this, &Player::relocate);
        connect(model, &TrackModel::rowsInserted, this, &Player::shuffleIn);
        connect(model, &TrackModel::layoutChanged, this, &Player::updateRow);
        connect(model, &TrackModel::dataChanged, this, &Player::onDataChanged);
        connect(model, &QObject::destroyed, this, &Player::relocate);
    }
    relocate();
}

TrackModel *Player::model() const { return m_model; }

bool Player::isSilent() const { return qobject_cast<const SilentBackend *>(m_backend.get()); }

qint64 Player::position() const { return m_track.path.isEmpty() ? 0 : m_backend->position(); }

int Player::row() const { return m_index.isValid() ? m_index.row() : -1; }

Track Player::track() const { return m_track; }

void Player::playRow(int row)
{
    if (!m_model || row < 0 || row >= m_model->rowCount())
        return;
    m_failures = 0;
    goTo(row, true);
}

void Player::play()
{
    if (m_isPlaying)
        return;
    m_failures = 0;
    if (m_index.isValid()) {
        start();
        return;
    }
    const int first = rowAfter(true);
    if (first < 0)
        emit problem(tr("There is no music to play."));
    else
        goTo(first, true);
}

void Player::pause()
{
    if (!m_isPlaying)
        return;
    m_failure.stop();
    m_backend->pause();
    setPlaying(false);
}

void Player::toggle()
{
    if (m_isPlaying)
        pause();
    else
        play();
}

void Player::next()
{
    m_failures = 0;
    const int row = rowAfter(true);
    if (row >= 0)
        goTo(row, m_isPlaying);
}

void Player::previous()
{
    m_failures = 0;
    const int row = rowBefore();
    if (position() >= kRestartAfter || row < 0)
        seek(0);
    else
        goTo(row, m_isPlaying);
}

void Player::seek(qint64 position)
{
    if (!m_index.isValid())
        return;
    const qint64 inTrack = qMax<qint64>(0, position);
    m_backend->seek(m_duration > 0 ? qMin(inTrack, m_duration) : inTrack);
    emit positionChanged(m_backend->position());
}

void Player::setRepeat(Repeat repeat)
{
    const bool isKnown = repeat == Repeat::Off || repeat == Repeat::All || repeat == Repeat::One;
    if (repeat == m_repeat || !isKnown)
        return;
    m_repeat = repeat;
    emit repeatChanged(repeat);
}

void Player::setShuffled(bool shuffled)
{
    if (shuffled == m_isShuffled)
        return;
    m_isShuffled = shuffled;
    shuffleAll();
    emit shuffledChanged(shuffled);
}

void Player::setVolume(int volume)
{
    volume = qBound(0, volume, kMostVolume);
    if (volume == m_volume)
        return;
    m_volume = volume;
    applyLoudness();
    emit volumeChanged(volume);
}

void Player::setMuted(bool muted)
{
    if (muted == m_isMuted)
        return;
    m_isMuted = muted;
    applyLoudness();
    emit mutedChanged(muted);
}

void Player::setBackend(std::unique_ptr<PlayerBackend> backend)
{
    if (m_backend) { // it may be the one that calls
        m_backend->disconnect(this);
        m_backend.release()->deleteLater();
    }
    m_backend = std::move(backend);
    connect(m_backend.get(), &PlayerBackend::positionChanged, this, &Player::onPosition);
    connect(m_backend.get(), &PlayerBackend::lengthFound, this, &Player::setDuration);
    connect(m_backend.get(), &PlayerBackend::ended, this, &Player::onEnd);
    connect(m_backend.get(), &PlayerBackend::fileFailed, this, &Player::onFailure);
    connect(m_backend.get(), &PlayerBackend::serviceFailed, this, &Player::becomeSilent);
    applyLoudness();
}

// What was playing plays on, unheard.
void Player::becomeSilent()
{
    const qint64 reached = position();
    setBackend(std::make_unique<SilentBackend>());
    loadCurrent();
    m_backend->seek(reached);
    if (m_isPlaying)
        start();
}

void Player::loadCurrent() { m_backend->load(m_track.path, m_track.seconds * kMilliseconds); }

void Player::setPlaying(bool playing)
{
    if (playing == m_isPlaying)
        return;
    m_isPlaying = playing;
    emit playingChanged(playing);
}

void Player::setDuration(qint64 duration)
{
    if (duration == m_duration)
        return;
    m_duration = duration;
    emit durationChanged(duration);
}

void Player::setCurrent(int row)
{
    m_failure.stop();
    m_index = m_model->index(row);
    m_track = m_model->track(row);
    shuffleCurrentIn();
    loadCurrent();
    updateRow();
    emit trackChanged(m_track);
    setDuration(m_track.seconds * kMilliseconds);
    emit positionChanged(0);
}

void Player::clearCurrent()
{
    m_failure.stop();
    m_backend->pause();
    m_index = QPersistentModelIndex();
    const bool hadTrack = !m_track.path.isEmpty();
    m_track = Track();
    setPlaying(false);
    updateRow();
    if (!hadTrack)
        return;
    loadCurrent();
    emit trackChanged(m_track);
    setDuration(0);
    emit positionChanged(0);
}

void Player::goTo(int row, bool plays)
{
    setCurrent(row);
    if (plays && m_index.isValid())
        start();
}

void Player::start()
{
    if (isSilent() && !m_hasSaidSilent) {
        m_hasSaidSilent = true;
        emit problem(tr("No audio output was found: the music plays on without sound."));
    }
    setPlaying(true);
    // Qt finds out by itself what it cannot play; without sound nobody would.
    const bool cannotPlay = !QFileInfo::exists(m_track.path) || (isSilent() && m_track.isBroken);
    if (!cannotPlay) {
        m_backend->play();
        return;
    }
    m_failure.start(); // in the event loop, as a whole list may be like this
}

void Player::applyLoudness()
{
    const qreal linear = QAudio::convertVolume(
        qreal(m_volume) / kMostVolume, QAudio::LogarithmicVolumeScale, QAudio::LinearVolumeScale);
    m_backend->setLoudness(m_isMuted ? 0 : qRound(kPercent * linear));
}

void Player::onPosition(qint64 position)
{
    if (m_isPlaying && position > 0)
        m_failures = 0;
    emit positionChanged(position);
}

void Player::onEnd()
{
    const int row = m_repeat == Repeat::One ? this->row() : rowAfter(m_repeat == Repeat::All);
    if (row >= 0) {
        goTo(row, m_isPlaying);
        return;
    }
    m_backend->pause();
    seek(0);
    setPlaying(false);
}

// The next one plays instead; but where nothing plays at all, that comes to an end.
void Player::onFailure()
{
    if (!m_isPlaying || !m_index.isValid())
        return;
    emit problem(tr("%1 cannot be played.").arg(m_track.title));
    if (!m_index.isValid())
        return;
    const int row = ++m_failures < kMostFailures ? rowAfter(m_repeat == Repeat::All) : -1;
    if (row < 0 || row == this->row())
        pause();
    else
        goTo(row, true);
}

// After the list has become another one: the track at hand may be in it, too.
void Player::relocate()
{
    const int row = m_model ? m_model->rowOfPath(m_track.path) : -1;
    m_index = row < 0 ? QPersistentModelIndex() : QPersistentModelIndex(m_model->index(row));
    shuffleAll();
    if (row < 0)
        clearCurrent();
    else
        updateRow();
}

void Player::onDataChanged(const QModelIndex &first, const QModelIndex &last)
{
    if (!m_index.isValid() || m_index.row() < first.row() || m_index.row() > last.row())
        return;
    m_track = m_model->track(m_index.row());
    const qint64 length = m_track.seconds * kMilliseconds;
    if (length > 0) {
        m_backend->setLength(length);
        setDuration(length);
    }
    emit trackChanged(m_track);
    if (isSilent() && m_track.isBroken)
        onFailure();
}

void Player::updateRow()
{
    if (row() == m_row)
        return;
    m_row = row();
    emit rowChanged(m_row);
}

// What follows the current track; -1 for nothing.
int Player::rowAfter(bool wraps)
{
    const int count = m_model ? m_model->rowCount() : 0;
    if (count == 0)
        return -1;
    if (!m_isShuffled) {
        const int next = row() + 1;
        if (next < count)
            return next;
        return wraps ? 0 : -1;
    }
    if (m_place + 1 < m_shuffle.size())
        return m_model->rowOfPath(m_shuffle.at(m_place + 1));
    if (!wraps)
        return -1;
    shuffleAll(); // puts the current one first
    return m_model->rowOfPath(m_shuffle.at(qMin(1, m_shuffle.size() - 1)));
}

// What was before the current track; -1 for nothing.
int Player::rowBefore() const
{
    const int count = m_model ? m_model->rowCount() : 0;
    if (count == 0 || row() < 0)
        return -1;
    if (!m_isShuffled)
        return (row() + count - 1) % count;
    return m_place > 0 ? m_model->rowOfPath(m_shuffle.at(m_place - 1)) : -1;
}

// A new order of all files by chance; the current one, if there is any, begins it.
void Player::shuffleAll()
{
    m_shuffle.clear();
    m_place = -1;
    if (!m_isShuffled || !m_model)
        return;
    for (int row = 0; row < m_model->rowCount(); ++row)
        m_shuffle.append(m_model->track(row).path);
    std::shuffle(m_shuffle.begin(), m_shuffle.end(), m_random);
    shuffleCurrentIn();
}

// New files come in somewhere after the current one.
void Player::shuffleIn(const QModelIndex &, int first, int last)
{
    if (!m_isShuffled)
        return;
    for (int row = first; row <= last; ++row)
        m_shuffle.append(m_model->track(row).path);
    std::shuffle(m_shuffle.begin() + m_place + 1, m_shuffle.end(), m_random);
}

// The current file takes the place after the one that was current, from wherever it was, so that
// the way back leads through what was really played.
void Player::shuffleCurrentIn()
{
    if (!m_isShuffled || !m_index.isValid())
        return;
    const int from = m_shuffle.indexOf(m_track.path);
    if (from < 0)
        return;
    if (from == m_place || from == m_place - 1 || from == m_place + 1) {
        m_place = from; // one step on or back, or none
        return;
    }
    const int to = from < m_place ? m_place : m_place + 1;
    m_shuffle.move(from, to);
    m_place = to;
}

} // namespace headunit
