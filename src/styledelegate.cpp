// SPDX-License-Identifier: Apache-2.0
#include "styledelegate.h"

#include "detail/arithmetic.h"
#include "detail/deviceview.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagelook.h"
#include "detail/listroles.h"
#include "detail/listtextcache.h"
#include "sptablelist.h"

#include <QFontMetrics>
#include <QPainter>

#include <utility>

using namespace panelkit;

namespace
{

constexpr int kLineStart = 20; // px, from the left of the row to the separator
constexpr int kNumberLeft = 20; // px
constexpr int kNumberWidth = 50; // px
constexpr int kWideNumberWidth = 60; // px, for a number above kLargestNarrowNumber
constexpr double kLargestNarrowNumber = 999;
constexpr int kCentreToTail = 21; // px, from the right edge of the centre to the left of the tail
constexpr int kUpperMargin = 12; // px, above the upper of two lines
constexpr int kLowerMargin = 9; // px, below the lower one
constexpr int kSplitGap = 10; // px, between the background and the tail icon of LIST_STYLE_2
constexpr int kGrayTailSize = 20; // px
constexpr int kLowerLineSize = 26; // px
constexpr int kSmallerBy = 10; // from the point size of a font to the pixel size of its small form
constexpr int kRollingMargin = 3; // characters that roll beyond those that fit
constexpr int kSpacesAfterRolling = 16;

constexpr int kLineAlign = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int kUpperAlign = Qt::AlignLeft | Qt::AlignTop;
constexpr int kLowerAlign = Qt::AlignLeft | Qt::AlignBottom;

const QColor kLineColor(100, 100, 100, 255);

// A line has no soft edges.
bool paintsWholePixels(const QPainter &painter)
{
    return isOnPixels(painter) && !painter.testRenderHint(QPainter::Antialiasing);
}

} // namespace

class Q_DECL_HIDDEN styleDelegate::Private
{
public:
    struct Row;
    class RollRecords;

    bool showsPressPix(const Row &row) const;
    bool showsPressedHeaderIcon(const Row &row) const;
    bool showsPressedTailIcon(const Row &row) const;
    QRect centreRect(const Row &row) const;
    void applyTextColor(const Row &row) const;
    void drawSeparator(const Row &row) const;
    void drawBackground(const Row &row) const;
    void drawSplitRow(Row &row) const;
    void drawSplitBackground(Row &row) const;
    void drawHeader(Row &row) const;
    void drawHeaderNumber(Row &row) const;
    void drawTail(Row &row) const;
    void drawTailText(const Row &row) const;
    void drawCentre(const Row &row) const;
    void drawPlainCentre(const Row &row, const QString &text) const;
    void drawTwoLineCentre(const Row &row, const QString &text) const;
    void drawThreePartCentre(const Row &row, const QString &text) const;
    void drawRollingCentre(const Row &row, const QString &text) const;
    const StringRollingData &rollingRecord(const Row &row, const QString &text, int width) const;
    void drawText(const Row &row, const QRect &rect, int flags, const QFont &font,
                  const QString &text) const;

    QFont centerFont;
    QFont tailFont;
    QColor hightColor;
    QColor pressColor{255, 255, 255, 255};
    QPixmap normalPix;
    QPixmap pressPix;
    int style = 0; // an SpTableList::LIST_STYLE
    int tailRectX = 512; // px
    std::unique_ptr<RollRecords> records;
    int rollTimerId = 0; // 0: texts stand still
    int headerIconGain = 20; // px
    int headerIconWidth = 0; // px
    int centerStrGain = 15; // px
    int tailIconGain = 47; // px
    int tailIconWidth = 0; // px
    int pixmapGain = 0; // px
    int tailStrWidth = 100; // px
    int centerTextFlag = Qt::AlignLeft | Qt::AlignVCenter;
    QPoint pressedPoint; // in the view
    bool itemPressed = false;
    bool useIt = true;

    QFont lowerLineFont; // of LIST_STYLE_5, made from the centre font
    QFont smallFont; // of LIST_STYLE_6, made from the centre font
    QFont grayTailFont; // of LIST_STYLE_5, made from the tail font
    mutable ListTextCache texts;
    mutable ImageLook normalLook;
    mutable ImageLook pressLook;
};

// The row that is being painted, in its own coordinates: its top left is (0, 0). What the header
// and the tail leave to the centre text comes to be known on the way.
struct styleDelegate::Private::Row {
    Row(QPainter *rowPainter, const QStyleOptionViewItem &option, const QModelIndex &rowIndex)
        : painter(rowPainter), index(rowIndex),
          topLeft(boundedPixel(option.rect.left()), boundedPixel(option.rect.top())),
          size(boundedPixel(option.rect.right()) - topLeft.x() + 1,
               boundedPixel(option.rect.bottom()) - topLeft.y() + 1),
          content(data(ContentRole).toInt()), isMarked(data(SelectedRole).toBool())
    {
    }

    QVariant data(ListRole role) const { return index.data(role); }
    QPixmap pixmap(ListRole role) const { return data(role).value<QPixmap>(); }
    bool has(int part) const { return (content & part) != 0; }
    int iconTop(const QPixmap &icon) const
    {
        return centredTowardMinusInfinity(icon.size(), QRect(QPoint(), size)).top();
    }

    QPainter *const painter;
    const QModelIndex index;
    const QPoint topLeft; // in the view
    const QSize size;
    const int content;
    const bool isMarked; // by the model
    bool isPressed = false;
    int pressX = 0;
    int headerRight = 0;
    int tailLeft = 0;
};

// The rolling texts, which the delegate owns.
class styleDelegate::Private::RollRecords
{
public:
    RollRecords() = default;
    ~RollRecords() { clear(); }
    Q_DISABLE_COPY(RollRecords)

    StringRollingData *first() const { return m_first; }
    int count() const { return m_count; }

    StringRollingData *of(int row, bool isLastOneCompared) const
    {
        for (StringRollingData *record = m_first; record; record = record->next) {
            if (record->row == row && (record->next || isLastOneCompared))
                return record;
        }
        return nullptr;
    }

    // A record that is in the list already stays where it is.
    void append(StringRollingData *record)
    {
        StringRollingData **end = &m_first;
        for (; *end; end = &(*end)->next) {
            if (*end == record)
                return;
        }
        record->next = nullptr;
        *end = record;
        ++m_count;
    }

    void clear()
    {
        while (m_first)
            delete std::exchange(m_first, m_first->next);
    }

private:
    StringRollingData *m_first = nullptr;
    int m_count = 0;
};

/** A delegate of LIST_STYLE_0 with the default font, without background pictures. */
styleDelegate::styleDelegate(QObject *parent)
    : QStyledItemDelegate(parent), d(std::make_unique<Private>())
{
    d->records = std::make_unique<Private::RollRecords>();
    setCenterFont(d->centerFont);
    setTailFont(d->tailFont);
}

styleDelegate::~styleDelegate() = default;

QFont styleDelegate::centerFont() const { return d->centerFont; }

/**
 * The font of the centre text; the application's by default. The small first part of LIST_STYLE_6
 * takes the number of its point size, less ten, for its size in px (kept behaviour). A font whose
 * size is given in px has no point size, so that its small form is no smaller.
 */
void styleDelegate::setCenterFont(const QFont &font)
{
    d->centerFont = font;
    d->lowerLineFont = resized(font, kLowerLineSize);
    d->smallFont = resized(font, font.pointSize() - kSmallerBy);
}

QFont styleDelegate::tailFont() const { return d->tailFont; }

/** The font of the tail text and of the header number; the application's by default. */
void styleDelegate::setTailFont(const QFont &font)
{
    d->tailFont = font;
    d->grayTailFont = resized(font, kGrayTailSize);
}

QColor styleDelegate::hightColor() const { return d->hightColor; }

/** The colour of the texts of a row that the model marks; invalid by default, which is black. */
void styleDelegate::setHightColor(const QColor &color) { d->hightColor = color; }

QColor styleDelegate::pressColor() const { return d->pressColor; }

/** The colour of the texts of the pressed row; white by default. */
void styleDelegate::setPressColor(const QColor &color) { d->pressColor = color; }

QPixmap styleDelegate::normalPix() const { return d->normalPix; }

/** The background of every row; without one a separator line stands below it. */
void styleDelegate::setNormalPix(const QPixmap &pixmap) { d->normalPix = pixmap; }

QPixmap styleDelegate::pressPix() const { return d->pressPix; }

/** The background of the pressed row; used only with a normal one. */
void styleDelegate::setPressPix(const QPixmap &pixmap) { d->pressPix = pixmap; }

int styleDelegate::style() const { return d->style; }

/** The style, an SpTableList::LIST_STYLE; a number that is none of them paints as LIST_STYLE_0. */
void styleDelegate::setStyle(int style) { d->style = style; }

int styleDelegate::tailRectX() const { return d->tailRectX; }

/** The largest x in px at which a press highlights a row in the list's highlight mode. */
void styleDelegate::setTailRectX(int x) { d->tailRectX = x; }

int styleDelegate::rollTimerId() const { return d->rollTimerId; }

/** The timer of the rolling texts. While it is 0, texts that are too long stand still. */
void styleDelegate::setRollTimerId(int id) { d->rollTimerId = id; }

int styleDelegate::headerIconGain() const { return d->headerIconGain; }

/** The distance in px from the left of the row to the header icon. */
void styleDelegate::setHeaderIconGain(const int &gain) { d->headerIconGain = gain; }

int styleDelegate::headerIconWidth() const { return d->headerIconWidth; }

/** The width in px of the header icon for touches; the icon is painted in its own size. */
void styleDelegate::setHeaderIconWidth(const int &width) { d->headerIconWidth = width; }

int styleDelegate::centerStrGain() const { return d->centerStrGain; }

/** The distance in px from the header to the centre text. */
void styleDelegate::setCenterStrGain(const int &gain) { d->centerStrGain = gain; }

int styleDelegate::tailIconGain() const { return d->tailIconGain; }

/** The distance in px from the tail icon to the right of the row; LIST_STYLE_2 has none. */
void styleDelegate::setTailIconGain(const int &gain) { d->tailIconGain = gain; }

int styleDelegate::tailIconWidth() const { return d->tailIconWidth; }

/** The width in px of the tail icon for touches; the icon is painted in its own size. */
void styleDelegate::setTailIconWidth(const int &width) { d->tailIconWidth = width; }

int styleDelegate::pixmapGain() const { return d->pixmapGain; }

/** The x in px of the background in its row; LIST_STYLE_2 ignores it. */
void styleDelegate::setPixmapGain(const int &gain) { d->pixmapGain = gain; }

int styleDelegate::tailStrWidth() const { return d->tailStrWidth; }

/** The width in px of the tail text, which ends at the right of the row. */
void styleDelegate::setTailStrWidth(const int &width) { d->tailStrWidth = width; }

int styleDelegate::getCenterTextFlag() const { return d->centerTextFlag; }

/** Without effect: the centre text is always left-aligned (kept behaviour). */
void styleDelegate::setCenterTextFlag(int flag) { d->centerTextFlag = flag; }

QPoint styleDelegate::pressedPoint() const { return d->pressedPoint; }

bool styleDelegate::itemPressed() const { return d->itemPressed; }

/**
 * Whether the selected row looks pressed, and where in the view it was pressed: the point decides
 * which of its icons looks pressed with it.
 */
void styleDelegate::setItemPressed(bool pressed, QPoint point)
{
    d->itemPressed = pressed;
    d->pressedPoint = point;
}

bool styleDelegate::useIt() const { return d->useIt; }

/** With false, nothing at all is painted. */
void styleDelegate::setUseIt(bool use) { d->useIt = use; }

StringRollingData *styleDelegate::rollData() const { return d->records->first(); }

int styleDelegate::rollDataCount() const { return d->records->count(); }

StringRollingData *styleDelegate::getRollData(int row) { return d->records->of(row, true); }

/** Appends a record, which the delegate then owns. A null record is ignored. */
void styleDelegate::addRollData(StringRollingData *record)
{
    if (record)
        d->records->append(record);
}

/**
 * The record of the same row that is in the list already, or else this one, which is appended and
 * then owned. The last record of the list is never compared: the row that it belongs to gets a
 * second record when it is painted again (kept behaviour).
 */
StringRollingData *styleDelegate::getAddRollData(StringRollingData *record)
{
    if (!record)
        return nullptr;
    if (StringRollingData *known = d->records->of(record->row, false))
        return known;
    d->records->append(record);
    return record;
}

/** Deletes all records. The count of those ever added stays. */
void styleDelegate::clearRollData() { d->records->clear(); }

void styleDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    if (!d->useIt || !painter)
        return;
    Private::Row row(painter, option, index);
    row.isPressed = d->itemPressed && (option.state & QStyle::State_Selected);
    row.pressX = boundedPixel(d->pressedPoint.x()) - row.topLeft.x();

    painter->save();
    painter->translate(row.topLeft);
    if (d->style == SpTableList::LIST_STYLE_2) {
        d->drawSplitRow(row);
    } else {
        d->drawBackground(row);
        d->drawHeader(row);
        d->drawTail(row);
    }
    d->drawCentre(row);
    painter->restore();
}

// A press shows everywhere but in LIST_STYLE_4, where only the icons show it.
bool styleDelegate::Private::showsPressPix(const Row &row) const
{
    switch (style) {
    case SpTableList::LIST_STYLE_1:
        return row.isPressed || row.isMarked;
    case SpTableList::LIST_STYLE_4:
        return row.isMarked;
    default:
        return row.isPressed;
    }
}

bool styleDelegate::Private::showsPressedHeaderIcon(const Row &row) const
{
    const int right = boundedPixel(headerIconGain) + boundedPixel(headerIconWidth);
    return style == SpTableList::LIST_STYLE_4
        && (row.data(HeaderPressedRole).toBool() || (row.isPressed && row.pressX <= right));
}

bool styleDelegate::Private::showsPressedTailIcon(const Row &row) const
{
    const int left = row.size.width() - boundedPixel(tailIconGain) - boundedPixel(tailIconWidth);
    return style == SpTableList::LIST_STYLE_4
        && (row.data(TailPressedRole).toBool() || (row.isPressed && row.pressX >= left));
}

// A row that is neither marked nor pressed leaves the pen as the layer before has left it.
void styleDelegate::Private::applyTextColor(const Row &row) const
{
    if (row.isMarked)
        row.painter->setPen(hightColor);
    else if (row.isPressed)
        row.painter->setPen(pressColor);
}

/**
 * The line below a row without background picture, one px farther than the row is wide. Its white
 * pen stays for the layers that follow; with a picture they have the view's own.
 */
void styleDelegate::Private::drawSeparator(const Row &row) const
{
    const QPoint start(kLineStart, row.size.height() - 1);
    const QPoint end(row.size.width(), start.y());
    if (paintsWholePixels(*row.painter)) { // the same pixels for a tenth of the cost
        row.painter->fillRect(
            QRect(qMin(start.x(), end.x()), start.y(), qAbs(end.x() - start.x()) + 1, 1),
            kLineColor);
    } else {
        row.painter->setPen(kLineColor);
        row.painter->drawLine(start, end);
    }
    row.painter->setPen(QColor(255, 255, 255, 255));
}

void styleDelegate::Private::drawBackground(const Row &row) const
{
    if (normalPix.isNull()) {
        drawSeparator(row);
        return;
    }
    row.painter->drawPixmap(boundedPixel(pixmapGain), 0, showsPressPix(row) ? pressPix : normalPix);
}

/**
 * Background, header and tail of LIST_STYLE_2, whose tail icon is a key of its own: it stands at
 * the very right, the background ends before it, and either of the two looks pressed. Without a
 * background picture there is no tail icon either; its place stays free.
 */
void styleDelegate::Private::drawSplitRow(Row &row) const
{
    row.tailLeft = row.size.width();
    if (row.has(kHasTailIcon)) {
        drawSplitBackground(row);
    } else if (normalPix.isNull()) {
        drawSeparator(row);
    } else {
        row.painter->drawPixmap(0, 0, row.isPressed ? pressPix : normalPix);
    }
    drawHeader(row);
}

void styleDelegate::Private::drawSplitBackground(Row &row) const
{
    const QPixmap icon = row.pixmap(TailIconRole);
    row.tailLeft -= icon.width();
    if (normalPix.isNull()) {
        drawSeparator(row);
        return;
    }
    const bool isTailPressed = row.isPressed && row.pressX >= row.tailLeft;
    const bool isRestPressed = row.isPressed && !isTailPressed;
    const QPixmap &background = isRestPressed ? pressPix : normalPix;
    ImageLook &look = isRestPressed ? pressLook : normalLook;
    const QRect target(0, 0, background.width() - icon.width() - kSplitGap, background.height());
    if (!target.isEmpty())
        look.drawScaled(*row.painter, target, background);
    row.painter->drawPixmap(row.tailLeft, row.iconTop(icon),
                            isTailPressed ? row.pixmap(PressedTailIconRole) : icon);
}

void styleDelegate::Private::drawHeader(Row &row) const
{
    row.headerRight = boundedPixel(headerIconGain) - 1;
    if (row.has(kHasHeaderIcon)) {
        const QPixmap icon =
            row.pixmap(showsPressedHeaderIcon(row) ? PressedHeaderIconRole : HeaderIconRole);
        row.painter->drawPixmap(boundedPixel(headerIconGain), row.iconTop(icon), icon);
        row.headerRight += icon.width();
    } else if (row.has(kHasHeaderNumber)) {
        drawHeaderNumber(row);
    }
}

void styleDelegate::Private::drawHeaderNumber(Row &row) const
{
    const QString number = row.data(HeaderNumberRole).toString();
    const int width = number.toDouble() > kLargestNarrowNumber ? kWideNumberWidth : kNumberWidth;
    const QRect rect(kNumberLeft, 0, width, row.size.height());
    drawText(row, rect, Qt::AlignCenter, tailFont, number);
    row.headerRight = rect.right();
}

void styleDelegate::Private::drawTail(Row &row) const
{
    row.tailLeft = row.size.width();
    if (row.has(kHasTailIcon)) {
        const QPixmap icon =
            row.pixmap(showsPressedTailIcon(row) ? PressedTailIconRole : TailIconRole);
        row.tailLeft -= icon.width() + boundedPixel(tailIconGain);
        row.painter->drawPixmap(row.tailLeft, row.iconTop(icon), icon);
    } else if (row.has(kHasTailText)) {
        row.tailLeft -= boundedPixel(tailStrWidth);
        drawTailText(row);
    }
}

void styleDelegate::Private::drawTailText(const Row &row) const
{
    const QRect rect(row.tailLeft, 0, row.size.width() - row.tailLeft, row.size.height());
    const QString text = row.data(TailTextRole).toString();
    if (style == SpTableList::LIST_STYLE_5) {
        row.painter->setPen(Qt::darkGray);
        drawText(row, rect, kLineAlign, grayTailFont, text);
        row.painter->setPen(Qt::white);
    } else {
        applyTextColor(row);
        drawText(row, rect, kLineAlign, tailFont, text);
    }
}

void styleDelegate::Private::drawCentre(const Row &row) const
{
    if (!row.has(kHasCentreText))
        return;
    const QString text = row.data(CentreTextRole).toString();
    switch (style) {
    case SpTableList::LIST_STYLE_3:
        drawRollingCentre(row, text);
        break;
    case SpTableList::LIST_STYLE_5:
        drawTwoLineCentre(row, text);
        break;
    case SpTableList::LIST_STYLE_6:
        drawThreePartCentre(row, text);
        break;
    default:
        drawPlainCentre(row, text);
    }
}

QRect styleDelegate::Private::centreRect(const Row &row) const
{
    return {QPoint(row.headerRight + 1 + boundedPixel(centerStrGain), 0),
            QPoint(row.tailLeft - kCentreToTail, row.size.height() - 1)};
}

void styleDelegate::Private::drawPlainCentre(const Row &row, const QString &text) const
{
    const QRect rect = centreRect(row);
    applyTextColor(row);
    drawText(row, rect, kLineAlign, centerFont, texts.elided(centerFont, text, rect.width()));
}

// These two styles have colours of their own instead of those of marked and pressed rows.
void styleDelegate::Private::drawTwoLineCentre(const Row &row, const QString &text) const
{
    const QRect rect = centreRect(row);
    const int slash = int(text.indexOf(QLatin1Char('/')));
    const QString upper = slash < 0 ? text : text.left(slash);
    const QString shown = texts.elided(centerFont, upper, rect.width());
    if (slash < 0) {
        drawText(row, rect, kLineAlign, centerFont, shown);
        return;
    }
    const QRect lines = rect.adjusted(0, kUpperMargin, 0, -kLowerMargin);
    drawText(row, lines, kUpperAlign, centerFont, shown);
    row.painter->setPen(Qt::darkGray);
    drawText(row, lines, kLowerAlign, lowerLineFont, text.mid(slash + 1));
}

void styleDelegate::Private::drawThreePartCentre(const Row &row, const QString &text) const
{
    const QStringList parts = text.split(QLatin1Char('/'));
    if (parts.size() < 3)
        return;
    const QRect lines = centreRect(row).adjusted(0, kUpperMargin, 0, -kLowerMargin);
    drawText(row, lines, kUpperAlign, smallFont, parts[0]);
    row.painter->setPen(Qt::darkGray);
    drawText(row, lines, kLowerAlign, centerFont, parts[1]);
    row.painter->setPen(Qt::white);
    drawText(row, lines, kLowerAlign, centerFont,
             parts[2]); // over the part before (kept behaviour)
}

/** A text that fits stands still, and so does every text while there is no timer to roll it. */
void styleDelegate::Private::drawRollingCentre(const Row &row, const QString &text) const
{
    const QRect rect = centreRect(row);
    if (rollTimerId == 0 || texts.elided(centerFont, text, rect.width()) == text) {
        drawPlainCentre(row, text);
        return;
    }
    const StringRollingData &record = rollingRecord(row, text, rect.width());
    applyTextColor(row);
    const int width = QFontMetrics(centerFont).horizontalAdvance(record.visibleText);
    row.painter->translate(QPoint(rect.left() - boundedPixel(record.offset), 0));
    drawText(row, QRect(0, 0, width, row.size.height()), kLineAlign, centerFont,
             record.visibleText);
}

// The record that getAddRollData() finds for a new one of the row; one that it would not keep is
// not made.
const StringRollingData &styleDelegate::Private::rollingRecord(const Row &row, const QString &text,
                                                               int width) const
{
    if (const StringRollingData *known = records->of(row.index.row(), false))
        return *known;
    const QFontMetrics metrics(centerFont);
    const int count = quotient(width, metrics.horizontalAdvance(QLatin1Char('.'))) + kRollingMargin;
    auto *record = new StringRollingData;
    record->fullText = text + QString(kSpacesAfterRolling, QLatin1Char(' '));
    record->nextIndex = qMax(0, count);
    record->visibleText = record->fullText.left(record->nextIndex);
    record->firstWidth = metrics.horizontalAdvance(record->fullText.at(0));
    record->row = row.index.row();
    records->append(record);
    return *record;
}

// An empty rectangle shows nothing. Where a layout is kept it is the one of the row's coordinates,
// so that it is found again wherever the list has scrolled.
void styleDelegate::Private::drawText(const Row &row, const QRect &rect, int flags,
                                      const QFont &font, const QString &text) const
{
    if (rect.isEmpty() || text.isEmpty())
        return;
    row.painter->setFont(font);
    texts.draw(*row.painter, rect, flags, text);
}
