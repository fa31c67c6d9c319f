// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_PLAYER_H
#define HEADUNIT_PLAYER_H

#include "playerbackend.h"
#include "track.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QRandomGenerator>
#include <QStringList>
#include <QTimer>

#include <memory>

namespace headunit
{

class TrackModel;

/**
 * Plays the tracks of a list. Where there is nothing to sound them it goes on silently, by the
 * clock, and says so once.
 */
class Player : public QObject
{
    Q_OBJECT

public:
    enum class Repeat : int { Off, All, One };
    Q_ENUM(Repeat)

    static constexpr int kMostVolume = 40;

    /// Plays by Qt Multimedia if that can play here.
    explicit Player(QObject *parent = nullptr);
    explicit Player(std::unique_ptr<PlayerBackend> backend, QObject *parent = nullptr);
    ~Player() override;

    /// The list to play from; the player follows it. A track that plays and is in this list too
    /// plays on, any other one stops.
    void setModel(TrackModel *model);
    TrackModel *model() const;

    bool isPlaying() const { return m_isPlaying; }
    bool isSilent() const; ///< there is nothing to sound the music
    qint64 position() const; ///< ms
    qint64 duration() const { return m_duration; } ///< ms; 0 if unknown
    int row() const; ///< of the current track; -1 without one
    Track track() const; ///< an empty one if there is none
    Repeat repeat() const { return m_repeat; }
    bool isShuffled() const { return m_isShuffled; }
    int volume() const { return m_volume; } ///< 0 to kMostVolume
    bool isMuted() const { return m_isMuted; }

    /// Makes the orders made by chance the same each time.
    void seedShuffle(quint32 seed) { m_random.seed(seed); }

public slots:
    /// Plays a row of the list from its start.
    void playRow(int row);
    void play(); ///< goes on, or begins with the first track
    void pause();
    void toggle();
    void next(); ///< after the last track the first one follows
    void previous(); ///< after three seconds the start of this track, before them the track before
    void seek(qint64 position); ///< ms
    void setRepeat(headunit::Player::Repeat repeat);
    void setShuffled(bool shuffled); ///< each track once, in an order made by chance
    void setVolume(int volume);
    void setMuted(bool muted);

signals:
    void trackChanged(const headunit::Track &track); ///< another one, or its tags have been read
    void rowChanged(int row);
    void playingChanged(bool playing);
    void positionChanged(qint64 position); ///< ms
    void durationChanged(qint64 duration); ///< ms
    void repeatChanged(headunit::Player::Repeat repeat);
    void shuffledChanged(bool shuffled);
    void volumeChanged(int volume);
    void mutedChanged(bool muted);

    /// A sentence for the user: why something is not heard.
    void problem(const QString &sentence);

private:
    void setBackend(std::unique_ptr<PlayerBackend> backend);
    void becomeSilent();
    void loadCurrent();
    void setPlaying(bool playing);
    void setDuration(qint64 duration);
    void setCurrent(int row);
    void clearCurrent();
    void goTo(int row, bool plays);
    void start();
    void applyLoudness();
    void onPosition(qint64 position);
    void onEnd();
    void onFailure();
    void relocate();
    void onDataChanged(const QModelIndex &first, const QModelIndex &last);
    void updateRow();
    int rowAfter(bool wraps);
    int rowBefore() const;
    void shuffleAll();
    void shuffleIn(const QModelIndex &parent, int first, int last);
    void shuffleCurrentIn();

    std::unique_ptr<PlayerBackend> m_backend;
    QPointer<TrackModel> m_model;
    QPersistentModelIndex m_index; // of the current track
    Track m_track;
    QStringList m_shuffle; // the files in the order made by chance
    int m_place = -1; // of the current one in it
    QRandomGenerator m_random;
    QTimer m_failure; // runs for a moment, when the file at hand is found not to play
    qint64 m_duration = 0;
    Repeat m_repeat = Repeat::All;
    int m_row = -1; // as last told
    int m_volume = kMostVolume / 2;
    int m_failures = 0; // in a row
    bool m_isPlaying = false;
    bool m_isShuffled = false;
    bool m_isMuted = false;
    bool m_hasSaidSilent = false;
};

} // namespace headunit

Q_DECLARE_METATYPE(headunit::Player::Repeat)

#endif // HEADUNIT_PLAYER_H
