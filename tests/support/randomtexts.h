// SPDX-License-Identifier: Apache-2.0
#ifndef RANDOMTEXTS_H
#define RANDOMTEXTS_H

#include <QFont>
#include <QImage>
#include <QRandomGenerator>
#include <QString>

#include <functional>

class QPainter;

/// A text and how it is drawn.
struct RandomText {
    QString text;
    QFont font;
    int flags;
    Qt::LayoutDirection direction;

    /// Gives a painter the font and the direction.
    void prepare(QPainter &painter) const;
    /// All of it for a report; what is not a plain character stands as its number.
    QString inWords() const;
};

/// Texts that are hard to lay out, by chance, but the same ones in each run.
class RandomTexts
{
public:
    explicit RandomTexts(quint32 seed) : m_random(seed) { }

    /// A text in any font, alignment and direction. The alignment is horizontal and vertical, each
    /// perhaps none, and absolute now and then.
    RandomText next(int mostPieces);
    /// Up to so many pieces: words of three directions, digits, brackets, runs of spaces, tabs,
    /// line feeds, carriage returns, combining marks, marks of direction and a few characters that
    /// mean something to drawText().
    QString text(int mostPieces);
    /// A number from the first to the last, both included.
    int between(int first, int last) { return m_random.bounded(first, last + 1); }

private:
    QString piece();
    QFont font();
    int alignment();

    QRandomGenerator m_random;
};

/// The picture of a text once Qt has drawn all its glyphs: in a few fonts it takes those that it
/// has not drawn yet to be a little narrower or wider.
QImage settled(const std::function<QImage()> &drawn);

#endif // RANDOMTEXTS_H
