#include "sptablelist.h"

#include "detail/arithmetic.h"
#include "detail/fonts.h"
#include "detail/keyrequest.h"
#include "detail/minuteclock.h"

#include <QFile>
#include <QFontMetrics>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>

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

bool isWithin(qint64 value, qint64 first, qint64 last)
{
    return first <= value && value <= last;
}

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
    const int length = record.fullText.size();
    const int next = isWithin(record.nextIndex, 0, length - 1) ? record.nextIndex : 0;
    record.visibleText = record.visibleText.mid(1) + record.fullText.at(next);
    record.nextIndex = (next + 1) % length;
    record.offset = 0;
    record.firstWidth = metrics.horizontalAdvance(record.visibleText.at(0));
}

} // namespace

/**
 * A list without a model. Of the scroll bars only the vertical one shows, and only when it is
 * needed: the policy stays that of any view. It has the style sheet that the application has under
 * ":/qss/scrollbar.qss"; without that resource it looks as any other.
 */
SpTableList::SpTableList(QWidget *parent) : QTableView(parent), m_delegate(new styleDelegate(this))
{
    verticalScrollBar()->setStyleSheet(scrollBarStyleSheet());
    setItemDelegate(m_delegate);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setShowGrid(false);
    connect(&m_speedTimer, SIGNAL(timeout()), this, SLOT(speedTimerSlot()));
}

SpTableList::~SpTableList() = default;

/**
 * The height of every row in px; 10 by default, although the rows of a new list have the height
 * that the style gives them until this is set. The rows follow where a header section can have the
 * size.
 */
void SpTableList::setItemHeight(const int &height)
{
    m_itemHeight = height;
    verticalHeader()->setDefaultSectionSize(height);
}

/** The width of the rows in px, from which click positions count; else like itemHeight. */
void SpTableList::setItemWidth(const int &width)
{
    m_itemWidth = width;
    horizontalHeader()->setDefaultSectionSize(width);
}

int SpTableList::centerFontSize() const
{
    return m_delegate ? m_delegate->centerFont().pixelSize() : 20;
}

/** The size of the centre text in px; sizes below 1 are ignored. Stored only. */
void SpTableList::setCenterFontSize(const int &px)
{
    if (m_delegate && px >= 1)
        m_delegate->setCenterFont(resized(m_delegate->centerFont(), px));
}

int SpTableList::tailFontSize() const
{
    return m_delegate ? m_delegate->tailFont().pixelSize() : 20;
}

/** The size in px of tail text and header number; sizes below 1 are ignored. Stored only. */
void SpTableList::setTailFontSize(const int &px)
{
    if (m_delegate && px >= 1)
        m_delegate->setTailFont(resized(m_delegate->tailFont(), px));
}

QColor SpTableList::hightColor() const
{
    return m_delegate ? m_delegate->hightColor() : QColor(255, 255, 255, 255);
}

/** The colour of the texts of rows that the model marks. Stored only. */
void SpTableList::setHightColor(const QColor &color)
{
    if (m_delegate)
        m_delegate->setHightColor(color);
}

QColor SpTableList::pressColor() const
{
    return m_delegate ? m_delegate->pressColor() : QColor(255, 255, 255, 255);
}

/** The colour of the texts of the pressed row; white by default. Stored only. */
void SpTableList::setPressColor(const QColor &color)
{
    if (m_delegate)
        m_delegate->setPressColor(color);
}

/** With false the rows are not painted: they stay blank. True by default. Stored only. */
void SpTableList::setUseDefaultStyle(bool use)
{
    m_useDefaultStyle = use;
    if (m_delegate)
        m_delegate->setUseIt(use);
}

QPixmap SpTableList::normalImage() const
{
    return m_delegate ? m_delegate->normalPix() : QPixmap();
}

/** The background of every row; without one a separator line stands below it. Stored only. */
void SpTableList::setNormalImage(QPixmap image)
{
    if (m_delegate)
        m_delegate->setNormalPix(image);
}

QPixmap SpTableList::pressImage() const
{
    return m_delegate ? m_delegate->pressPix() : QPixmap();
}

/** The background of the pressed row; used only with a normal one. Stored only. */
void SpTableList::setPressImage(QPixmap image)
{
    if (m_delegate)
        m_delegate->setPressPix(image);
}

int SpTableList::headerIconGain() const
{
    return m_delegate ? m_delegate->headerIconGain() : 20;
}

/** The distance in px from the left of the row to the header icon. Stored only. */
void SpTableList::setHeaderIconGain(const int &gain)
{
    if (m_delegate)
        m_delegate->setHeaderIconGain(gain);
}

int SpTableList::headerIconWidth() const
{
    return m_delegate ? m_delegate->headerIconWidth() : 0;
}

/** The width of the header icon for touches in px, in LIST_STYLE_4. Stored only. */
void SpTableList::setHeaderIconWidth(const int &width)
{
    if (m_delegate)
        m_delegate->setHeaderIconWidth(width);
}

int SpTableList::centerStrGain() const
{
    return m_delegate ? m_delegate->centerStrGain() : 15;
}

/** The distance in px from the header to the centre text. Stored only. */
void SpTableList::setCenterStrGain(const int &gain)
{
    if (m_delegate)
        m_delegate->setCenterStrGain(gain);
}

int SpTableList::tailIconGain() const
{
    return m_delegate ? m_delegate->tailIconGain() : 47;
}

/** The distance in px from the tail icon to the right of the row. Stored only. */
void SpTableList::setTailIconGain(const int &gain)
{
    if (m_delegate)
        m_delegate->setTailIconGain(gain);
}

int SpTableList::tailIconWidth() const
{
    return m_delegate ? m_delegate->tailIconWidth() : 0;
}

/** The width of the tail icon for touches in px, in LIST_STYLE_2 and LIST_STYLE_4. Stored only. */
void SpTableList::setTailIconWidth(const int &width)
{
    if (m_delegate)
        m_delegate->setTailIconWidth(width);
}

int SpTableList::pixmapGain() const
{
    return m_delegate ? m_delegate->pixmapGain() : 0;
}

/** The x of the background in its row in px; LIST_STYLE_2 ignores it. Stored only. */
void SpTableList::setPixmapGain(const int &gain)
{
    if (m_delegate)
        m_delegate->setPixmapGain(gain);
}

int SpTableList::tailStrWidth() const
{
    return m_delegate ? m_delegate->tailStrWidth() : 100;
}

/** The width of the tail text in px, which ends at the right of the row. Stored only. */
void SpTableList::setTailStrWidth(const int &width)
{
    if (m_delegate)
        m_delegate->setTailStrWidth(width);
}

SpTableList::LIST_STYLE SpTableList::UIStyle() const
{
    return m_delegate ? LIST_STYLE(m_delegate->style()) : LIST_STYLE_0;
}

/** How rows look and what of them can be clicked; LIST_STYLE_0 by default. Stored only. */
void SpTableList::setUIStyle(SpTableList::LIST_STYLE style)
{
    if (m_delegate)
        m_delegate->setStyle(style);
}

/**
 * In highlight mode a clicked row stays pressed until it is clicked again or another one is.
 * haveItemSelect tells after every touch whether one is. Off by default. Stored only.
 */
void SpTableList::setHighlightFlag(bool highlight)
{
    m_highlightFlag = highlight;
}

/** Whether a press on a row asks the application for a click sound; on by default. */
void SpTableList::setBIsBeep(bool beep)
{
    m_isBeep = beep;
}

/** The largest x in px at which a press highlights a row in highlight mode; 512 by default. */
void SpTableList::setTailRectX(int x)
{
    if (m_delegate)
        m_delegate->setTailRectX(x);
}

/** Alignment flags that the delegate keeps for callers; painting does not consult them. */
void SpTableList::setCenterTextFlag(int flag)
{
    if (m_delegate)
        m_delegate->setCenterTextFlag(flag);
}

void SpTableList::setModel(QAbstractItemModel *model)
{
    QTableView::setModel(model);
}

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
unsigned int SpTableList::getCurrentTime()
{
    return unsigned(minuteClock());
}

/** Lets the texts of a new content roll at once. Connect it to the model's modelReset(). */
void SpTableList::listModelReset()
{
    if (!rollsTexts())
        return;
    m_delegate->clearRollData();
    startRolling();
}

/** Every timer event goes on to QTableView, which has timers of its own. */
void SpTableList::timerEvent(QTimerEvent *e)
{
    if (!e)
        return;
    const QPointer<SpTableList> guard(this);
    const int timer = e->timerId();
    if (timer == m_clickTimer) {
        stop(m_clickTimer);
        reportClick();
    } else if (timer == m_rollTimer) {
        rollTexts();
    } else if (timer == m_rollRestartTimer) {
        stop(m_rollRestartTimer);
        startRolling();
    } else if (timer == m_pressTimer) {
        stop(m_pressTimer);
        if (!m_highlightFlag || isLeftOfTail())
            showRowPressed(true, m_pressPos);
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
    if (!e)
        return;
    m_isFirstMove = true;
    stop(m_clickTimer);
    // The delegate keeps the number of the timer that is gone, on purpose: with it, long texts are
    // painted as they will start to roll. The number may soon be that of another timer.
    if (rollsTexts()) {
        m_delegate->clearRollData();
        stop(m_rollTimer);
    }
    m_pressTime = getCurrentTime();
    m_speedTimer.stop();
    m_wasFlinging = m_flingSteps > 0;
    m_flingSteps = 0;
    m_moveStartTime = 0;
    if (m_highlightFlag)
        showRowPressed(false, m_pressPos);

    const QPointer<SpTableList> guard(this);
    {
        const ScrollingPause pause(this);
        QAbstractItemView::mousePressEvent(e);
    }
    if (!guard)
        return;
    m_pressPos = e->pos();
    m_pressIndex.set(indexAt(m_pressPos));
    if (m_isBeep && m_pressIndex.index.isValid())
        postKeyRequest(this, kBeepRequest);
    viewport()->update();
    start(m_pressTimer, kPressDelay);
    emit listPressed();
}

/**
 * Beyond the slop the list follows the finger, from the press point on, however far back it comes.
 * Leaving the list at the top or at the bottom ends the drag and whatever fling it would have made;
 * the list then stands where the last drag has left it.
 */
void SpTableList::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<SpTableList> guard(this);
    {
        const ScrollingPause pause(this);
        QAbstractItemView::mouseMoveEvent(e);
    }
    if (!guard)
        return;
    const QPoint pos = e->pos();
    if (!isWithin(pos.y(), 0, height())) {
        m_flingSteps = 0;
        m_isDragging = false;
        if (m_scrollValue)
            dragTo(*m_scrollValue);
        return;
    }
    if (m_moveStartTime == 0)
        m_moveStartTime = getCurrentTime();
    m_isMovingDown = pos.y() > m_pressPos.y();
    if (distance(pos.y(), m_pressPos.y()) > kDragSlop) {
        m_isDragging = true;
        if (showsRowPressed())
            showRowPressed(false, pos);
    }
    const int from = m_isFirstMove ? m_pressPos.y() : m_lastPos.y();
    m_lastPos = pos;
    if (m_isDragging) {
        m_isFirstMove = false;
        stop(m_pressTimer);
        dragTo(qint64(verticalScrollBar()->value()) + from - pos.y());
    }
}

/**
 * A release ends a drag, perhaps with a fling, or starts the click that is reported a moment later.
 * It emits currentShowIndex and, in highlight mode, haveItemSelect.
 */
void SpTableList::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<SpTableList> guard(this);
    QAbstractItemView::mouseReleaseEvent(e);
    if (!guard)
        return;
    const QPoint pos = e->pos();
    m_lastPos = pos;
    m_releaseTime = getCurrentTime();
    stop(m_pressTimer);
    const bool isClick = startClick(pos);
    emit currentShowIndex(currentIndex().row());
    if (!guard)
        return;
    const bool isFling = startFling(pos);
    m_isDragging = false;
    m_isFirstMove = true;
    if (!isClick)
        showRowPressed(false, pos);
    if (!isFling)
        restartRollingLater();
    viewport()->update();
    if (m_highlightFlag) {
        highlight(pos);
        emit haveItemSelect(showsRowPressed());
    }
}

void SpTableList::showEvent(QShowEvent *e)
{
    QWidget::showEvent(e);
    restartRollingLater();
}

/** Texts stop rolling. A wait for the restart goes on, and what it starts rolls out of sight. */
void SpTableList::hideEvent(QHideEvent *e)
{
    if (rollsTexts()) {
        stop(m_rollTimer);
        m_delegate->setRollTimerId(0);
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
    if (m_flingSteps > 0) {
        --m_flingSteps;
        const QScrollBar *bar = verticalScrollBar();
        const qint64 target = qint64(bar->value()) + (m_isMovingDown ? -kFlingStep : kFlingStep);
        const bool goesOn = isWithin(target, bar->minimum(), bar->maximum());
        if (!goesOn) {
            m_flingSteps = 0;
            m_speedTimer.stop();
        }
        verticalScrollBar()->setValue(boundedScrollValue(target));
        if (goesOn || !guard)
            return;
    }
    m_speedTimer.stop();
    emit currentShowIndex(currentIndex().row());
    if (guard)
        restartRollingLater();
}

void SpTableList::PlainIndex::set(const QModelIndex &newIndex)
{
    index = newIndex;
    model = newIndex.model();
}

// The model is asked, never the index: after a change its internal pointer may point nowhere.
bool SpTableList::isThere(const PlainIndex &plain) const
{
    return plain.model && plain.model == model()
        && plain.model->hasIndex(plain.index.row(), plain.index.column(), rootIndex());
}

bool SpTableList::rollsTexts() const
{
    return UIStyle() == LIST_STYLE_3;
}

bool SpTableList::showsRowPressed() const
{
    return m_delegate && m_delegate->itemPressed();
}

void SpTableList::showRowPressed(bool pressed, const QPoint &pos)
{
    if (m_delegate)
        m_delegate->setItemPressed(pressed, pos);
}

// In highlight mode a press farther right belongs to the tail and highlights nothing.
bool SpTableList::isLeftOfTail() const
{
    return m_delegate && m_delegate->tailRectX() >= m_pressPos.x();
}

void SpTableList::start(int &timer, int ms)
{
    stop(timer);
    timer = startTimer(ms);
}

void SpTableList::stop(int &timer)
{
    if (timer != 0)
        killTimer(std::exchange(timer, 0));
}

int SpTableList::boundedScrollValue(qint64 value) const
{
    const QScrollBar *bar = verticalScrollBar();
    return int(qBound(qint64(bar->minimum()), value, qint64(bar->maximum())));
}

// The last to be done: whoever hears that the bar has moved may delete the list.
void SpTableList::dragTo(qint64 value)
{
    const int bounded = boundedScrollValue(value);
    m_scrollValue = bounded;
    verticalScrollBar()->setValue(bounded);
}

/**
 * Whether a release starts a click: on the pressed row, without a drag, slow enough, and not the
 * touch that stopped a fling. A model that is reset or gets rows under the finger swallows no tap:
 * it goes to whatever stands in the row by then. A row that is gone meanwhile cannot be clicked.
 */
bool SpTableList::startClick(const QPoint &pos)
{
    if (m_isDragging || m_wasFlinging || !isThere(m_pressIndex)
        || m_pressIndex.index != indexAt(pos))
        return false;
    const int duration = int(m_releaseTime) - int(m_pressTime);
    if (duration <= kShortestTap
        || distance(pos.y(), m_pressPos.y()) * 1000 / duration >= kClickSpeed)
        return false;
    if (!m_highlightFlag || isLeftOfTail())
        showRowPressed(true, pos);
    start(m_clickTimer, kClickDelay);
    return true;
}

/**
 * Whether a release starts a fling. Its distance counts from the press and its time from the first
 * move: that is meant, so that a finger that rests before it flings is not thought slow.
 */
bool SpTableList::startFling(const QPoint &pos)
{
    const int duration = int(m_releaseTime) - int(m_moveStartTime);
    if (!m_isDragging || m_moveStartTime == 0 || duration < kShortestFling
        || duration > kLongestFling)
        return false;
    const long long steps = distance(pos.y(), m_pressPos.y()) * kStepsPerSpeed / duration;
    m_flingSteps = int(qMin<long long>(steps, kMostFlingSteps));
    m_speedTimer.start(kFlingInterval);
    return true;
}

// A second click on the highlighted row takes the highlight away; so does a touch beside the rows
// or on the tail of any.
void SpTableList::highlight(const QPoint &pos)
{
    const QModelIndex index = indexAt(pos);
    const bool isSelected = isThere(m_selectedIndex) && m_selectedIndex.index == index;
    const bool isNew = index.isValid() && !isSelected;
    if (!isNew)
        showRowPressed(false, pos);
    m_selectedIndex.set(isNew && isLeftOfTail() ? index : QModelIndex());
}

/**
 * The click that a release has started: itemClicked with the index, with the row, and in two styles
 * with the row and the part of it. The index is that of the row as it is now, whatever has become
 * of the model; a row that went away in between is not reported.
 */
void SpTableList::reportClick()
{
    const QPointer<SpTableList> guard(this);
    if (!m_highlightFlag)
        showRowPressed(false, m_lastPos);
    const int row = m_pressIndex.index.row();
    const int x = m_pressPos.x();
    if (isThere(m_pressIndex)) {
        emit itemClicked(model()->index(row, m_pressIndex.index.column(), rootIndex()));
        if (guard)
            emit itemClicked(row);
        if (guard)
            reportClickPosition(row, x);
    }
    if (guard)
        viewport()->update();
}

void SpTableList::reportClickPosition(int row, int x)
{
    const qint64 width = m_itemWidth;
    const qint64 header = headerIconGain();
    const qint64 tail = width - tailIconGain();
    switch (UIStyle()) {
    case LIST_STYLE_2: {
        const bool isTail = isWithin(x, width - tailIconWidth(), width);
        emit itemClicked(row, isTail ? TailIconClicked : CentreClicked);
        break;
    }
    case LIST_STYLE_4:
        if (isWithin(x, tail - tailIconWidth(), tail))
            emit itemClicked(row, TailIconClicked);
        else if (isWithin(x, header, header + headerIconWidth()))
            emit itemClicked(row, HeaderIconClicked);
        break;
    default:
        break;
    }
}

void SpTableList::startRolling()
{
    start(m_rollTimer, kRollInterval);
    if (m_delegate)
        m_delegate->setRollTimerId(m_rollTimer);
}

void SpTableList::restartRollingLater()
{
    if (rollsTexts())
        start(m_rollRestartTimer, kRollPause);
}

/**
 * One step of the rolling texts. All rows are repainted with them: pictures of other rows may reach
 * into those that roll, and what the application has set meanwhile shows in all of them at once.
 */
void SpTableList::rollTexts()
{
    if (!m_delegate || !m_delegate->rollData())
        return;
    const QFontMetrics metrics(m_delegate->centerFont());
    for (StringRollingData *record = m_delegate->rollData(); record; record = record->next)
        roll(*record, metrics);
    viewport()->update();
}
