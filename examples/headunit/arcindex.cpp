// SPDX-License-Identifier: Apache-2.0
#include "arcindex.h"

#include "theme.h"

#include <marclist.h>
#include <marcscrollbar.h>
#include <sptablelist.h>

#include <QFontMetrics>
#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kPlaces = 60; // of the bent scroll bar, each with a tick
constexpr int kTickPitch = 6; // px from tick to tick of the straight one
constexpr int kBarMargin = 50; // px that the straight bar leaves free at either end
constexpr double kTickStart = 0.93; // of the bar's radius
constexpr int kLetterBox = 40; // px, what a letter has on any screen
constexpr int kColumnTop = 5; // px above a letter's box in a column
constexpr int kLeastPitch = 57; // px from letter to letter, as with keys

int ringSide(const Theme &theme) { return std::max(44, theme.px(46)); }

int pitch(const Theme &theme) { return std::max(kLeastPitch, theme.px(kLeastPitch)); }

// Lower by so many px than its picture.
QPixmap ring(const Theme &theme, int drop = 0)
{
    const int side = ringSide(theme);
    QPixmap picture(side, side + drop);
    picture.fill(Qt::transparent);
    const int pen = theme.px(3);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme.accent, pen));
    painter.drawEllipse(QRect(0, drop, side, side).adjusted(pen, pen, -pen, -pen));
    return picture;
}

} // namespace

ArcIndex::ArcIndex(QWidget *parent)
    : QWidget(parent), m_bar(new MArcScrollBar(this)), m_arc(new MArcList(this))
{
    m_bar->setObjectName(QStringLiteral("bar"));
    m_arc->setObjectName(QStringLiteral("arc"));
    connect(m_arc, &MArcList::itemClicked, this, &ArcIndex::goToLetter);
    // What the finger says and nothing else: the list's own places lie closer than the bar's.
    connect(m_bar, &MArcScrollBar::sliderMoved, this, &ArcIndex::goToPlace);
    connect(m_bar, &MArcScrollBar::sliderReleased, this, &ArcIndex::goToPlace);
}

void ArcIndex::setList(SpTableList *list, const ListLetters &letters)
{
    if (m_model)
        disconnect(m_model, nullptr, this, nullptr);
    if (m_list)
        disconnect(m_list->verticalScrollBar(), nullptr, this, nullptr);
    m_list = list;
    m_letters = letters;
    m_model = list->model();
    const QAbstractItemModel *model = m_model;
    connect(model, &QAbstractItemModel::modelReset, this, &ArcIndex::readLetters);
    connect(model, &QAbstractItemModel::layoutChanged, this, &ArcIndex::readLetters);
    connect(model, &QAbstractItemModel::rowsInserted, this, &ArcIndex::readLetters);
    const QScrollBar *place = list->verticalScrollBar();
    connect(place, &QScrollBar::valueChanged, this, &ArcIndex::showPlace);
    connect(place, &QScrollBar::rangeChanged, this, &ArcIndex::showPlace);
    readLetters();
}

// At the ends of their arc the letters stand farther to the left than in its middle, by its
// sagitta.
ArcIndex::Arcs::Arcs(const Theme &theme, int height)
{
    const double half = height / 2.0;
    const double sagitta = theme.px(36);
    const double ring = ringSide(theme) / 2.0;
    letters = (half * half + sagitta * sagitta) / (2 * sagitta);
    border = letters + ring;
    bar = (border + theme.px(8)) / kTickStart;
    center = QPointF(qRound(sagitta + ring - letters), half);
    width = qCeil(center.x() + bar) + theme.px(4);
}

void ArcIndex::dress(const Theme &theme, int height)
{
    dressColors(theme);
    if (isRightToLeft()) {
        straighten(theme, height);
    } else {
        const Arcs arcs(theme, height);
        setFixedWidth(arcs.width);
        resize(arcs.width, height);
        bendLetters(theme, arcs);
        bendBar(theme, arcs);
    }
    m_letter = QChar(); // where it stands depends on the form
    showPlace();
}

void ArcIndex::dressColors(const Theme &theme)
{
    QFont font = theme.font(Theme::Body, true);
    font.setPixelSize(std::min(font.pixelSize(), kLetterBox * 3 / 4));
    m_arc->setFont(font);
    QPalette colors = m_arc->palette();
    colors.setColor(m_arc->foregroundRole(), theme.text);
    m_arc->setPalette(colors);
    m_arc->setPressColor(theme.accent);
    QColor ticks = theme.quietText;
    ticks.setAlphaF(0.6);
    colors = m_bar->palette();
    colors.setColor(m_bar->foregroundRole(), ticks);
    m_bar->setPalette(colors);
}

// The letters lie above the bar and take the touches as far as their arc goes.
void ArcIndex::bendLetters(const Theme &theme, const Arcs &arcs)
{
    const int reach = qRound(arcs.border);
    m_arc->setAcrListStyle(MArcList::ARCLIST_STYLE_0);
    m_arc->setGeometry(int(arcs.center.x()), 0, reach, height());
    const QPoint center(0, height() / 2);
    m_arc->setMask(QRegion(QRect(center - QPoint(reach, reach), QSize(2 * reach, 2 * reach)),
                           QRegion::Ellipse));
    m_arc->setRadius(arcs.letters);
    m_arc->setItemHight(qRadiansToDegrees(pitch(theme) / arcs.letters));
    m_arc->setShowItem((height() / 2 - kLetterBox) / pitch(theme)); // on either side; all whole
    m_arc->setPointPixmap(ring(theme));
    // A letter hangs below its place on the arc; the ring goes around its middle.
    m_arc->setPixXOffset(qRadiansToDegrees(kLetterBox / 2.0 / arcs.letters));
}

void ArcIndex::bendBar(const Theme &theme, const Arcs &arcs)
{
    const double reach = qRadiansToDegrees(qAsin((height() / 2.0 - theme.px(10)) / arcs.bar));
    m_bar->setRange(0, kPlaces);
    m_bar->setGeometry(rect());
    m_bar->setRadius(arcs.bar);
    m_bar->setCenterPoint(arcs.center);
    m_bar->setStartAngle(180 - reach);
    m_bar->setPointPixmap(theme.panel({theme.px(8), qRound(arcs.bar * (1 - kTickStart))},
                                      theme.accent, {}, theme.px(4)));
}

// The letters next to the rows, the bar at the edge, each as wide as a finger.
void ArcIndex::straighten(const Theme &theme, int height)
{
    const int touch = theme.touch();
    const int rows = height / pitch(theme);
    const int gap = theme.px(12);
    setFixedWidth(2 * touch + 2 * gap);
    resize(width(), height);
    m_bar->setRange(0, std::max(1, (height - 2 * kBarMargin) / kTickPitch));
    m_bar->setGeometry(gap, 0, touch, height);
    m_bar->setRadius(0);
    m_bar->setPointPixmap(theme.panel({touch, theme.px(8)}, theme.accent, {}, theme.px(4)));
    m_arc->clearMask();
    m_arc->setAcrListStyle(MArcList::ARCLIST_STYLE_1);
    m_arc->setGeometry(width() - touch, (height - rows * pitch(theme)) / 2, touch,
                       rows * pitch(theme));
    m_arc->setItemHight(pitch(theme));
    m_arc->setShowItem(rows);
    // A letter stands on the bottom of its box, in the middle of the ring.
    const QFontMetrics metrics(m_arc->font());
    const int middle = kColumnTop + kLetterBox - metrics.descent() - metrics.capHeight() / 2;
    m_arc->setPointPixmap(ring(theme, std::max(0, middle - ringSide(theme) / 2)));
    m_arc->setTextXOffset((ringSide(theme) - kLetterBox) / 2);
    m_arc->setPixXOffset(0);
}

void ArcIndex::readLetters()
{
    m_arc->clearData();
    const auto letters = m_letters.letters();
    for (const QChar letter : letters)
        m_arc->addAlpha(letter);
    m_letter = QChar();
    showPlace();
}

void ArcIndex::showPlace()
{
    if (!m_list || m_isGoing)
        return;
    moveBar();
    showLetter(m_letters.letterOf(m_list->rowAt(0)));
}

void ArcIndex::moveBar()
{
    const QScrollBar *place = m_list->verticalScrollBar();
    m_bar->setVisible(place->maximum() > 0);
    if (place->maximum() > 0)
        m_bar->setValue(qRound(double(place->value()) * m_bar->maximum() / place->maximum()));
}

void ArcIndex::showLetter(QChar letter)
{
    if (letter.isNull() || letter == m_letter)
        return;
    m_letter = letter;
    m_arc->setCurrentIndex(letter);
}

// At its end the list cannot bring the letter's rows to the top; the letter is the current one all
// the same.
void ArcIndex::goToLetter(QChar letter)
{
    const int row = m_letters.rowOf(letter);
    if (!m_list || row < 0)
        return;
    m_isGoing = true;
    m_list->scrollTo(m_list->model()->index(row, 0), QAbstractItemView::PositionAtTop);
    m_isGoing = false;
    moveBar();
    showLetter(letter);
}

void ArcIndex::goToPlace()
{
    if (!m_list)
        return;
    QScrollBar *place = m_list->verticalScrollBar();
    place->setValue(qRound(double(m_bar->value()) * place->maximum() / m_bar->maximum()));
}

} // namespace headunit
