// SPDX-License-Identifier: Apache-2.0
#include "sptablelist.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/fonts.h"
#include "detail/keyrequest.h"
#include "detail/minuteclock.h"

#include <QBasicTimer>
#include <QFile>
#include <QFontMetrics>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPoint>
#include <QPointer>
#include <QScrollBar>
#include <QTimer>
#include <QTimerEvent>

#include <optional>
#include <utility>

using namespace panelkit;

namespace
{

constexpr int kDragSlop = 15; // px, vertically; beyond it a touch drags
constexpr int kShortestTap = 10; // ms; a tap has to take longer
constexpr int kClickSpeed = 100; // px/s; a click has to be slower
constexpr int kPressDelay = 260; // ms until a finger that rests shows its row pressed
constexpr int kClickDelay = 50; // ms, for which the clicked row shows pressed
constexpr int kShortestFling = 3; // ms from the first move to the release
constexpr int kLongestFling = 259; // ms
constexpr int kStepsPerSpeed = 12; // fling steps for each px/ms
constexpr int kMostFlingSteps = 500;
constexpr int kFlingInterval = 20; // ms
constexpr int kFlingStep = 50; // px
constexpr int kRollInterval = 150; // ms
constexpr int kRollStep = 2; // px
constexpr int kRollPause = 1500; // ms at rest before texts roll

// What itemClicked(int, int) says was clicked.
enum ClickPosition : int { HeaderIconClicked = 259, CentreClicked = 262, TailIconClicked = 264 };

// Up to the first NUL byte, if there is one; empty where the application has no such resource.
QString scrollBarStyleSheet()
{
    QFile file(QStringLiteral(":/qss/scrollbar.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll().constData());
}

bool isWithin(qint64 value, qint64 first, qint64 last) { return first <= value && value <= last; }

// While it lives, a view does not scroll by itself to the row that becomes the current one. The
// view's own handlers would do that on a press and on moves, and rows would slip away from under
// the finger; a list scrolls by drag and fling alone.
class ScrollingPause
{
public:
    explicit ScrollingPause(QAbstractItemView *view)
        : m_view(view), m_scrolls(view->hasAutoScroll())
    {
        view->setAutoScroll(false);
    }
    ~ScrollingPause()
    {
        if (m_view)
            m_view->setAutoScroll(m_scrolls);
    }
    Q_DISABLE_COPY(ScrollingPause)

private:
    const QPointer<QAbstractItemView> m_view;
    const bool m_scrolls;
};

// Moves a text on; past its first character, the next one follows at its end and the whole of it
// cycles. There may be fewer characters than the row has room for.
void roll(StringRollingData &record, const QFontMetrics &metrics)
{
    record.offset += kRollStep;
    if (record.offset < record.firstWidth || record.fullText.isEmpty())
        return;
    const int length = int(record.fullText.size());
    const int next = isWithin(record.nextIndex, 0, length - 1) ? record.nextIndex : 0;
    record.visibleText = record.visibleText.mid(1) + record.fullText.at(next);
    record.nextIndex = (next + 1) % length;
    record.offset = 0;
    record.firstWidth = metrics.horizontalAdvance(record.visibleText.at(0));
}

} // namespace

class Q_DECL_HIDDEN SpTableList::Private : public QObject
{
public:
    explicit Private(SpTableList *widget) : q(widget) { }

    // An index as it was: unlike a persistent one it stays at its row when the rows move.
    struct PlainIndex {
        void set(const QModelIndex &newIndex);

        QModelIndex index;
        QPointer<const QAbstractItemModel> model; // of the index, which cannot tell that it is gone
    };

    bool eventFilter(QObject *object, QEvent *event) override;
    void provideSelectionModel() const;
    bool isThere(const PlainIndex &plain) const;
    bool rollsTexts() const;
    bool showsRowPressed() const;
    void showRowPressed(bool pressed, const QPoint &pos);
    bool isLeftOfTail() const;
    int boundedScrollValue(qint64 value) const;
    void dragTo(qint64 value);
    bool startClick(const QPoint &pos);
    bool startFling(const QPoint &pos);
    void highlight(const QPoint &pos);
    void reportClick();
    void reportClickPosition(int row, int x);
    void startRolling();
    void restartRollingLater();
    void rollTexts();

    SpTableList *const q;
    QPointer<styleDelegate> delegate;
    int itemHeight = 10; // px
    int itemWidth = 10; // px
    QPoint pressPos;
    QPoint lastPos;
    PlainIndex pressIndex;
    PlainIndex selectedIndex;
    unsigned int pressTime = 0; // ms within the minute
    unsigned int releaseTime = 0; // ms within the minute
    QTimer speedTimer;
    int flingSteps = 0;
    unsigned int moveStartTime = 0; // ms within the minute, 0: not moved yet
    QBasicTimer rollRestartTimer;
    QBasicTimer clickTimer;
    QBasicTimer pressTimer;
    bool isDragging = false;
    bool useDefaultStyle = true;
    bool isMovingDown = false;
    bool wasFlinging = false;
    bool isBeep = true;
    bool highlightFlag = false;
    bool isFirstMove = true;
    std::optional<int> scrollValue; // px, none before the first drag

    QBasicTimer rollTimer; // the delegate may still hold the id of one that has stopped
};

/**
 * A list without a model. Of the scroll bars only the vertical one shows, and only when it is
 * needed: the policy stays that of any view. It has the style sheet that the application has under
 * ":/qss/scrollbar.qss"; without that resource it looks as any other.
 */
SpTableList::SpTableList(QWidget *parent) : QTableView(parent), d(std::make_unique<Private>(this))
{
    horizontalHeader()->viewport()->installEventFilter(d.get());
    verticalHeader()->viewport()->installEventFilter(d.get());
    installAccessibility();
    d->delegate = new styleDelegate(this);
    verticalScrollBar()->setStyleSheet(scrollBarStyleSheet());
    setItemDelegate(d->delegate);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setShowGrid(false);
    connect(&d->speedTimer, SIGNAL(timeout()), this, SLOT(speedTimerSlot()));
}

SpTableList::~SpTableList() = default;

int SpTableList::itemHeight() const { return d->itemHeight; }

/**
 * The height of every row in px; 10 by default, although the rows of a new list have the height
 * that the style gives them until this is set. The rows follow where a header section can have the
 * size.
 */
void SpTableList::setItemHeight(const int &height)
{
    d->itemHeight = height;
    verticalHeader()->setDefaultSectionSize(height);
}

int SpTableList::itemWidth() const { return d->itemWidth; }

/** The width of the rows in px, from which click positions count; else like itemHeight. */
void SpTableList::setItemWidth(const int &width)
{
    d->itemWidth = width;
    horizontalHeader()->setDefaultSectionSize(width);
}

int SpTableList::centerFontSize() const
{
    return d->delegate ? d->delegate->centerFont().pixelSize() : 20;
}

/** The size of the centre text in px; sizes below 1 are ignored. Stored only. */
void SpTableList::setCenterFontSize(const int &px)
{
    if (d->delegate && px >= 1)
        d->delegate->setCenterFont(resized(d->delegate->centerFont(), px));
}

int SpTableList::tailFontSize() const
{
    return d->delegate ? d->delegate->tailFont().pixelSize() : 20;
}

/** The size in px of tail text and header number; sizes below 1 are ignored. Stored only. */
void SpTableList::setTailFontSize(const int &px)
{
    if (d->delegate && px >= 1)
        d->delegate->setTailFont(resized(d->delegate->tailFont(), px));
}

QColor SpTableList::hightColor() const
{
    return d->delegate ? d->delegate->hightColor() : QColor(255, 255, 255, 255);
}

/** The colour of the texts of rows that the model marks. Stored only. */
void SpTableList::setHightColor(const QColor &color)
{
    if (d->delegate)
        d->delegate->setHightColor(color);
}

QColor SpTableList::pressColor() const
{
    return d->delegate ? d->delegate->pressColor() : QColor(255, 255, 255, 255);
}

/** The colour of the texts of the pressed row; white by default. Stored only. */
void SpTableList::setPressColor(const QColor &color)
{
    if (d->delegate)
        d->delegate->setPressColor(color);
}

bool SpTableList::useDefaultStyle() const { return d->useDefaultStyle; }

/** With false the rows are not painted: they stay blank. True by default. Stored only. */
void SpTableList::setUseDefaultStyle(bool use)
{
    d->useDefaultStyle = use;
    if (d->delegate)
        d->delegate->setUseIt(use);
}

QPixmap SpTableList::normalImage() const
{
    return d->delegate ? d->delegate->normalPix() : QPixmap();
}

/** The background of every row; without one a separator line stands below it. Stored only. */
void SpTableList::setNormalImage(QPixmap image)
{
    if (d->delegate)
        d->delegate->setNormalPix(image);
}

QPixmap SpTableList::pressImage() const
{
    return d->delegate ? d->delegate->pressPix() : QPixmap();
}

/** The background of the pressed row; used only with a normal one. Stored only. */
void SpTableList::setPressImage(QPixmap image)
{
    if (d->delegate)
        d->delegate->setPressPix(image);
}

int SpTableList::headerIconGain() const { return d->delegate ? d->delegate->headerIconGain() : 20; }

/** The distance in px from the left of the row to the header icon. Stored only. */
void SpTableList::setHeaderIconGain(const int &gain)
{
    if (d->delegate)
        d->delegate->setHeaderIconGain(gain);
}

int SpTableList::headerIconWidth() const
{
    return d->delegate ? d->delegate->headerIconWidth() : 0;
}

/** The width of the header icon for touches in px, in LIST_STYLE_4. Stored only. */
void SpTableList::setHeaderIconWidth(const int &width)
{
    if (d->delegate)
        d->delegate->setHeaderIconWidth(width);
}

int SpTableList::centerStrGain() const { return d->delegate ? d->delegate->centerStrGain() : 15; }

/** The distance in px from the header to the centre text. Stored only. */
void SpTableList::setCenterStrGain(const int &gain)
{
    if (d->delegate)
        d->delegate->setCenterStrGain(gain);
}

int SpTableList::tailIconGain() const { return d->delegate ? d->delegate->tailIconGain() : 47; }

/** The distance in px from the tail icon to the right of the row. Stored only. */
void SpTableList::setTailIconGain(const int &gain)
{
    if (d->delegate)
        d->delegate->setTailIconGain(gain);
}

int SpTableList::tailIconWidth() const { return d->delegate ? d->delegate->tailIconWidth() : 0; }

/** The width of the tail icon for touches in px, in LIST_STYLE_2 and LIST_STYLE_4. Stored only. */
void SpTableList::setTailIconWidth(const int &width)
{
    if (d->delegate)
        d->delegate->setTailIconWidth(width);
}

int SpTableList::pixmapGain() const { return d->delegate ? d->delegate->pixmapGain() : 0; }

/** The x of the background in its row in px; LIST_STYLE_2 ignores it. Stored only. */
void SpTableList::setPixmapGain(const int &gain)
{
    if (d->delegate)
        d->delegate->setPixmapGain(gain);
}

int SpTableList::tailStrWidth() const { return d->delegate ? d->delegate->tailStrWidth() : 100; }

/** The width of the tail text in px, which ends at the right of the row. Stored only. */
void SpTableList::setTailStrWidth(const int &width)
{
    if (d->delegate)
        d->delegate->setTailStrWidth(width);
}

SpTableList::LIST_STYLE SpTableList::UIStyle() const
{
    return d->delegate ? LIST_STYLE(d->delegate->style()) : LIST_STYLE_0;
}

/** How rows look and what of them can be clicked; LIST_STYLE_0 by default. Stored only. */
void SpTableList::setUIStyle(SpTableList::LIST_STYLE style)
{
    if (d->delegate)
        d->delegate->setStyle(style);
}

bool SpTableList::getHighlightFlag() const { return d->highlightFlag; }

/**
 * In highlight mode a clicked row stays pressed until it is clicked again or another one is.
 * haveItemSelect tells after every touch whether one is. Off by default. Stored only.
 */
void SpTableList::setHighlightFlag(bool highlight) { d->highlightFlag = highlight; }

bool SpTableList::getBIsBeep() const { return d->isBeep; }

/** Whether a press on a row asks the application for a click sound; on by default. */
void SpTableList::setBIsBeep(bool beep) { d->isBeep = beep; }

/** The largest x in px at which a press highlights a row in highlight mode; 512 by default. */
void SpTableList::setTailRectX(int x)
{
    if (d->delegate)
        d->delegate->setTailRectX(x);
}

/** Alignment flags that painting does not consult (kept behaviour). */
void SpTableList::setCenterTextFlag(int flag)
{
    if (d->delegate)
        d->delegate->setCenterTextFlag(flag);
}

void SpTableList::setModel(QAbstractItemModel *model) { QTableView::setModel(model); }

/**
 * Deletes the selection model, and the one that each header has made for itself: a view makes new
 * ones with every model and keeps the old. Call it before the model is replaced; without a model,
 * or a second time, it has nothing to do.
 */
void SpTableList::deleteSelectionModel()
{
    delete selectionModel();
    for (const QHeaderView *header : {verticalHeader(), horizontalHeader()})
        delete header->findChild<QItemSelectionModel *>(QString(), Qt::FindDirectChildrenOnly);
}

/**
 * The time within the current minute, 0..59999 ms. Touches are timed with it as it is: one that
 * spans a full minute has a negative duration, and is neither a click nor a fling.
 */
unsigned int SpTableList::getCurrentTime() { return unsigned(minuteClock()); }

/** Lets the texts of a new content roll at once. Connect it to the model's modelReset(). */
void SpTableList::listModelReset()
{
    if (!d->rollsTexts())
        return;
    d->delegate->clearRollData();
    d->startRolling();
}

/** Every timer event goes on to QTableView, which has timers of its own. */
void SpTableList::timerEvent(QTimerEvent *e)
{
    const QPointer<SpTableList> guard(this);
    const int timer = e->timerId();
    if (timer == d->clickTimer.timerId()) {
        d->clickTimer.stop();
        d->reportClick();
    } else if (timer == d->rollTimer.timerId()) {
        d->rollTexts();
    } else if (timer == d->rollRestartTimer.timerId()) {
        d->rollRestartTimer.stop();
        d->startRolling();
    } else if (timer == d->pressTimer.timerId()) {
        d->pressTimer.stop();
        if (!d->highlightFlag || d->isLeftOfTail())
            d->showRowPressed(true, d->pressPos);
        viewport()->update();
    }
    if (guard)
        QTableView::timerEvent(e);
}

/**
 * A press stops what moves, selects the row, asks for the click sound if it hit a row, and emits
 * listPressed. The row shows pressed if the finger rests.
 */
void SpTableList::mousePressEvent(QMouseEvent *e)
{
    d->isFirstMove = true;
    d->clickTimer.stop();
    // The delegate keeps the number of the timer that is gone, so that long texts are painted as
    // they will start to roll. The number may soon be that of another timer.
    if (d->rollsTexts()) {
        d->delegate->clearRollData();
        d->rollTimer.stop();
    }
    d->pressTime = getCurrentTime();
    d->speedTimer.stop();
    d->wasFlinging = d->flingSteps > 0;
    d->flingSteps = 0;
    d->moveStartTime = 0;
    if (d->highlightFlag)
        d->showRowPressed(false, d->pressPos);

    const QPointer<SpTableList> guard(this);
    {
        const ScrollingPause pause(this);
        QAbstractItemView::mousePressEvent(e);
    }
    if (!guard)
        return;
    d->pressPos = e->pos();
    d->pressIndex.set(indexAt(d->pressPos));
    if (d->isBeep && d->pressIndex.index.isValid())
        postKeyRequest(this, kBeepRequest);
    viewport()->update();
    d->pressTimer.start(kPressDelay, this);
    emit listPressed();
}

/**
 * Beyond the slop the list follows the finger, from the press point on, however far back it comes.
 * Leaving the list at the top or at the bottom ends the drag and whatever fling it would have made;
 * the list then stands where the last drag has left it.
 */
void SpTableList::mouseMoveEvent(QMouseEvent *e)
{
    const QPointer<SpTableList> guard(this);
    {
        const ScrollingPause pause(this);
        QAbstractItemView::mouseMoveEvent(e);
    }
    if (!guard)
        return;
    const QPoint pos = e->pos();
    if (!isWithin(pos.y(), 0, height())) {
        d->flingSteps = 0;
        d->isDragging = false;
        if (d->scrollValue)
            d->dragTo(*d->scrollValue);
        return;
    }
    if (d->moveStartTime == 0)
        d->moveStartTime = getCurrentTime();
    d->isMovingDown = pos.y() > d->pressPos.y();
    if (distance(pos.y(), d->pressPos.y()) > kDragSlop) {
        d->isDragging = true;
        if (d->showsRowPressed())
            d->showRowPressed(false, pos);
    }
    const int from = d->isFirstMove ? d->pressPos.y() : d->lastPos.y();
    d->lastPos = pos;
    if (d->isDragging) {
        d->isFirstMove = false;
        d->pressTimer.stop();
        d->dragTo(qint64(verticalScrollBar()->value()) + from - pos.y());
    }
}

/**
 * A key moves through the rows, as in QTableView, which also sends one to the list when it is
 * hidden while it has the focus. It makes a new selection model if there is none; the request for a
 * click sound does not.
 */
void SpTableList::keyPressEvent(QKeyEvent *e)
{
    if (!isKeyRequest(e, kBeepRequest))
        d->provideSelectionModel();
    QTableView::keyPressEvent(e);
}

/**
 * A release ends a drag, perhaps with a fling, or starts the click that is reported a moment later.
 * It emits currentShowIndex and, in highlight mode, haveItemSelect.
 */
void SpTableList::mouseReleaseEvent(QMouseEvent *e)
{
    const QPointer<SpTableList> guard(this);
    QAbstractItemView::mouseReleaseEvent(e);
    if (!guard)
        return;
    const QPoint pos = e->pos();
    d->lastPos = pos;
    d->releaseTime = getCurrentTime();
    d->pressTimer.stop();
    const bool isClick = d->startClick(pos);
    emit currentShowIndex(currentIndex().row());
    if (!guard)
        return;
    const bool isFling = d->startFling(pos);
    d->isDragging = false;
    d->isFirstMove = true;
    if (!isClick)
        d->showRowPressed(false, pos);
    if (!isFling)
        d->restartRollingLater();
    viewport()->update();
    if (d->highlightFlag) {
        d->highlight(pos);
        emit haveItemSelect(d->showsRowPressed());
    }
}

void SpTableList::showEvent(QShowEvent *e)
{
    QWidget::showEvent(e);
    d->restartRollingLater();
}

/** Texts stop rolling. A wait for the restart goes on, and what it starts rolls out of sight. */
void SpTableList::hideEvent(QHideEvent *e)
{
    if (d->rollsTexts()) {
        d->rollTimer.stop();
        d->delegate->setRollTimerId(0);
    }
    QWidget::hideEvent(e);
}

/**
 * One step of a fling. Its speed is always the same; only how long it lasts comes from the finger.
 * It ends at the bound of the list or, a tick after its last step, where it is, and emits
 * currentShowIndex.
 */
void SpTableList::speedTimerSlot()
{
    const QPointer<SpTableList> guard(this);
    if (d->flingSteps > 0) {
        --d->flingSteps;
        const QScrollBar *bar = verticalScrollBar();
        const qint64 target = qint64(bar->value()) + (d->isMovingDown ? -kFlingStep : kFlingStep);
        const bool goesOn = isWithin(target, bar->minimum(), bar->maximum());
        if (!goesOn) {
            d->flingSteps = 0;
            d->speedTimer.stop();
        }
        verticalScrollBar()->setValue(d->boundedScrollValue(target));
        if (goesOn || !guard)
            return;
    }
    d->speedTimer.stop();
    emit currentShowIndex(currentIndex().row());
    if (guard)
        d->restartRollingLater();
}

// A touch of a header selects.
bool SpTableList::Private::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove)
        provideSelectionModel();
    return false;
}

// QTableView takes for granted that there is one when something selects. Between
// deleteSelectionModel() and the next model there is none.
void SpTableList::Private::provideSelectionModel() const
{
    if (q->model() && !q->selectionModel())
        q->setSelectionModel(new QItemSelectionModel(q->model(), q));
}

void SpTableList::Private::PlainIndex::set(const QModelIndex &newIndex)
{
    index = newIndex;
    model = newIndex.model();
}

// The model is asked, never the index: after a change its internal pointer may point nowhere.
bool SpTableList::Private::isThere(const PlainIndex &plain) const
{
    return plain.model && plain.model == q->model()
        && plain.model->hasIndex(plain.index.row(), plain.index.column(), q->rootIndex());
}

bool SpTableList::Private::rollsTexts() const { return q->UIStyle() == LIST_STYLE_3; }

bool SpTableList::Private::showsRowPressed() const { return delegate && delegate->itemPressed(); }

void SpTableList::Private::showRowPressed(bool pressed, const QPoint &pos)
{
    if (delegate)
        delegate->setItemPressed(pressed, pos);
}

// In highlight mode a press farther right belongs to the tail and highlights nothing.
bool SpTableList::Private::isLeftOfTail() const
{
    return delegate && delegate->tailRectX() >= pressPos.x();
}

int SpTableList::Private::boundedScrollValue(qint64 value) const
{
    const QScrollBar *bar = q->verticalScrollBar();
    return int(qBound(qint64(bar->minimum()), value, qint64(bar->maximum())));
}

// The last to be done: whoever hears that the bar has moved may delete the list.
void SpTableList::Private::dragTo(qint64 value)
{
    const int bounded = boundedScrollValue(value);
    scrollValue = bounded;
    q->verticalScrollBar()->setValue(bounded);
}

/**
 * Whether a release starts a click: on the pressed row, without a drag, slow enough, and not the
 * touch that stopped a fling. A model that is reset or gets rows under the finger swallows no tap:
 * it goes to whatever stands in the row by then. A row that is gone meanwhile cannot be clicked.
 */
bool SpTableList::Private::startClick(const QPoint &pos)
{
    if (isDragging || wasFlinging || !isThere(pressIndex) || pressIndex.index != q->indexAt(pos))
        return false;
    const int duration = int(releaseTime) - int(pressTime);
    if (duration <= kShortestTap
        || distance(pos.y(), pressPos.y()) * 1000 / duration >= kClickSpeed)
        return false;
    if (!highlightFlag || isLeftOfTail())
        showRowPressed(true, pos);
    clickTimer.start(kClickDelay, q);
    return true;
}

/**
 * Whether a release starts a fling. Its distance counts from the press and its time from the first
 * move, so that a finger that rests before it flings is not thought slow.
 */
bool SpTableList::Private::startFling(const QPoint &pos)
{
    const int duration = int(releaseTime) - int(moveStartTime);
    if (!isDragging || moveStartTime == 0 || duration < kShortestFling || duration > kLongestFling)
        return false;
    const long long steps = distance(pos.y(), pressPos.y()) * kStepsPerSpeed / duration;
    flingSteps = int(qMin<long long>(steps, kMostFlingSteps));
    speedTimer.start(kFlingInterval);
    return true;
}

// A second click on the highlighted row takes the highlight away; so does a touch beside the rows
// or on the tail of any.
void SpTableList::Private::highlight(const QPoint &pos)
{
    const QModelIndex index = q->indexAt(pos);
    const bool isSelected = isThere(selectedIndex) && selectedIndex.index == index;
    const bool isNew = index.isValid() && !isSelected;
    if (!isNew)
        showRowPressed(false, pos);
    selectedIndex.set(isNew && isLeftOfTail() ? index : QModelIndex());
}

/**
 * The click that a release has started: itemClicked with the index, with the row, and in two styles
 * with the row and the part of it. The index is that of the row as it is now, whatever has become
 * of the model; a row that went away in between is not reported.
 */
void SpTableList::Private::reportClick()
{
    const QPointer<SpTableList> guard(q);
    if (!highlightFlag)
        showRowPressed(false, lastPos);
    const int row = pressIndex.index.row();
    const int x = pressPos.x();
    if (isThere(pressIndex)) {
        emit q->itemClicked(q->model()->index(row, pressIndex.index.column(), q->rootIndex()));
        if (guard)
            emit q->itemClicked(row);
        if (guard)
            reportClickPosition(row, x);
    }
    if (guard)
        q->viewport()->update();
}

void SpTableList::Private::reportClickPosition(int row, int x)
{
    const qint64 width = itemWidth;
    const qint64 header = q->headerIconGain();
    const qint64 tail = width - q->tailIconGain();
    switch (q->UIStyle()) {
    case LIST_STYLE_2: {
        const bool isTail = isWithin(x, width - q->tailIconWidth(), width);
        emit q->itemClicked(row, isTail ? TailIconClicked : CentreClicked);
        break;
    }
    case LIST_STYLE_4:
        if (isWithin(x, tail - q->tailIconWidth(), tail))
            emit q->itemClicked(row, TailIconClicked);
        else if (isWithin(x, header, header + q->headerIconWidth()))
            emit q->itemClicked(row, HeaderIconClicked);
        break;
    default:
        break;
    }
}

void SpTableList::Private::startRolling()
{
    rollTimer.start(kRollInterval, q);
    if (delegate)
        delegate->setRollTimerId(rollTimer.timerId());
}

void SpTableList::Private::restartRollingLater()
{
    if (rollsTexts())
        rollRestartTimer.start(kRollPause, q);
}

/**
 * One step of the rolling texts. All rows are repainted with them: pictures of other rows may reach
 * into those that roll, and what the application has set meanwhile shows in all of them at once.
 */
void SpTableList::Private::rollTexts()
{
    if (!delegate || !delegate->rollData())
        return;
    const QFontMetrics metrics(delegate->centerFont());
    for (StringRollingData *record = delegate->rollData(); record; record = record->next)
        roll(*record, metrics);
    q->viewport()->update();
}
