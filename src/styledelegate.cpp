#include "styledelegate.h"

#include "detail/arithmetic.h"
#include "detail/deviceview.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagelook.h"
#include "detail/kepttexts.h"
#include "sptablelist.h"

#include <QFontMetrics>
#include <QPainter>

#include <utility>

using namespace panelkit;

namespace
{

// The model's roles.
enum Role : int {
    ContentRole = Qt::UserRole + 2, // int: which parts the row has
    HeaderIconRole, // QPixmap
    PressedHeaderIconRole, // QPixmap
    HeaderNumberRole, // QString
    CentreTextRole, // QString
    TailTextRole, // QString
    TailIconRole, // QPixmap
    PressedTailIconRole, // QPixmap
    SelectedRole, // bool: the model marks the row
    HeaderPressedRole, // bool
    TailPressedRole // bool
};

// The bits of ContentRole; any bit of a part says that the row has it.
constexpr int kHasHeaderIcon = 0x0000000F;
constexpr int kHasHeaderNumber = 0x000000F0;
constexpr int kHasCentreText = 0x0000F000;
constexpr int kHasTailIcon = 0x000F0000;
constexpr int kHasTailText = 0x00F00000;

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

// The row that is being painted, in its own coordinates: its top left is (0, 0). What the header
// and the tail leave to the centre text comes to be known on the way.
struct styleDelegate::Row {
    Row(QPainter *rowPainter, const QStyleOptionViewItem &option, const QModelIndex &rowIndex)
        : painter(rowPainter), index(rowIndex),
          topLeft(boundedPixel(option.rect.left()), boundedPixel(option.rect.top())),
          size(boundedPixel(option.rect.right()) - topLeft.x() + 1,
               boundedPixel(option.rect.bottom()) - topLeft.y() + 1),
          content(data(ContentRole).toInt()), isMarked(data(SelectedRole).toBool())
    {
    }

    QVariant data(Role role) const { return index.data(role); }
    QPixmap pixmap(Role role) const { return data(role).value<QPixmap>(); }
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
class styleDelegate::RollRecords
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
    : QStyledItemDelegate(parent), m_records(std::make_unique<RollRecords>()),
      m_texts(std::make_unique<KeptTexts>()), m_normalLook(std::make_unique<ImageLook>()),
      m_pressLook(std::make_unique<ImageLook>())
{
    setCenterFont(m_centerFont);
    setTailFont(m_tailFont);
}

styleDelegate::~styleDelegate() = default;

/**
 * The font of the centre text; the application's by default. The small first part of LIST_STYLE_6
 * takes the number of its point size, less ten, for its size in px: that is meant, and a font whose
 * size is given in px has no point size, so that its small form is no smaller.
 */
void styleDelegate::setCenterFont(const QFont &font)
{
    m_centerFont = font;
    m_lowerLineFont = resized(font, kLowerLineSize);
    m_smallFont = resized(font, font.pointSize() - kSmallerBy);
}

/** The font of the tail text and of the header number; the application's by default. */
void styleDelegate::setTailFont(const QFont &font)
{
    m_tailFont = font;
    m_grayTailFont = resized(font, kGrayTailSize);
}

/** The colour of the texts of a row that the model marks; invalid by default, which is black. */
void styleDelegate::setHightColor(const QColor &color)
{
    m_hightColor = color;
}

/** The colour of the texts of the pressed row; white by default. */
void styleDelegate::setPressColor(const QColor &color)
{
    m_pressColor = color;
}

/** The background of every row; without one a separator line stands below it. */
void styleDelegate::setNormalPix(const QPixmap &pixmap)
{
    m_normalPix = pixmap;
}

/** The background of the pressed row; used only with a normal one. */
void styleDelegate::setPressPix(const QPixmap &pixmap)
{
    m_pressPix = pixmap;
}

/** The style, an SpTableList::LIST_STYLE; a number that is none of them paints as LIST_STYLE_0. */
void styleDelegate::setStyle(int style)
{
    m_style = style;
}

/** The largest x in px at which a press highlights a row in the list's highlight mode. */
void styleDelegate::setTailRectX(int x)
{
    m_tailRectX = x;
}

/** The timer of the rolling texts. While it is 0, texts that are too long stand still. */
void styleDelegate::setRollTimerId(int id)
{
    m_rollTimerId = id;
}

/** The distance in px from the left of the row to the header icon. */
void styleDelegate::setHeaderIconGain(const int &gain)
{
    m_headerIconGain = gain;
}

/** The width in px of the header icon for touches; the icon is painted in its own size. */
void styleDelegate::setHeaderIconWidth(const int &width)
{
    m_headerIconWidth = width;
}

/** The distance in px from the header to the centre text. */
void styleDelegate::setCenterStrGain(const int &gain)
{
    m_centerStrGain = gain;
}

/** The distance in px from the tail icon to the right of the row; LIST_STYLE_2 has none. */
void styleDelegate::setTailIconGain(const int &gain)
{
    m_tailIconGain = gain;
}

/** The width in px of the tail icon for touches; the icon is painted in its own size. */
void styleDelegate::setTailIconWidth(const int &width)
{
    m_tailIconWidth = width;
}

/** The x in px of the background in its row; LIST_STYLE_2 ignores it. */
void styleDelegate::setPixmapGain(const int &gain)
{
    m_pixmapGain = gain;
}

/** The width in px of the tail text, which ends at the right of the row. */
void styleDelegate::setTailStrWidth(const int &width)
{
    m_tailStrWidth = width;
}

/** Kept for callers; the centre text is always left-aligned, whatever this says. */
void styleDelegate::setCenterTextFlag(int flag)
{
    m_centerTextFlag = flag;
}

/**
 * Whether the selected row looks pressed, and where in the view it was pressed: the point decides
 * which of its icons looks pressed with it.
 */
void styleDelegate::setItemPressed(bool pressed, QPoint point)
{
    m_itemPressed = pressed;
    m_pressedPoint = point;
}

/** With false, nothing at all is painted. */
void styleDelegate::setUseIt(bool use)
{
    m_useIt = use;
}

StringRollingData *styleDelegate::rollData() const
{
    return m_records->first();
}

int styleDelegate::rollDataCount() const
{
    return m_records->count();
}

StringRollingData *styleDelegate::getRollData(int row)
{
    return m_records->of(row, true);
}

/** Appends a record, which the delegate then owns. A null record is ignored. */
void styleDelegate::addRollData(StringRollingData *record)
{
    if (record)
        m_records->append(record);
}

/**
 * The record of the same row that is in the list already, or else this one, which is appended and
 * then owned. The last record of the list is never compared: the row that it belongs to gets a
 * second record when it is painted again. That is meant, and what rolls depends on it.
 */
StringRollingData *styleDelegate::getAddRollData(StringRollingData *record)
{
    if (!record)
        return nullptr;
    if (StringRollingData *known = m_records->of(record->row, false))
        return known;
    m_records->append(record);
    return record;
}

/** Deletes all records. The count of those ever added stays. */
void styleDelegate::clearRollData()
{
    m_records->clear();
}

void styleDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    if (!m_useIt || !painter)
        return;
    Row row(painter, option, index);
    row.isPressed = m_itemPressed && (option.state & QStyle::State_Selected);
    row.pressX = boundedPixel(m_pressedPoint.x()) - row.topLeft.x();

    painter->save();
    painter->translate(row.topLeft);
    if (m_style == SpTableList::LIST_STYLE_2) {
        drawSplitRow(row);
    } else {
        drawBackground(row);
        drawHeader(row);
        drawTail(row);
    }
    drawCentre(row);
    painter->restore();
}

// A press shows everywhere but in LIST_STYLE_4, where only the icons show it.
bool styleDelegate::showsPressPix(const Row &row) const
{
    switch (m_style) {
    case SpTableList::LIST_STYLE_1:
        return row.isPressed || row.isMarked;
    case SpTableList::LIST_STYLE_4:
        return row.isMarked;
    default:
        return row.isPressed;
    }
}

bool styleDelegate::showsPressedHeaderIcon(const Row &row) const
{
    const int right = boundedPixel(m_headerIconGain) + boundedPixel(m_headerIconWidth);
    return m_style == SpTableList::LIST_STYLE_4
        && (row.data(HeaderPressedRole).toBool() || (row.isPressed && row.pressX <= right));
}

bool styleDelegate::showsPressedTailIcon(const Row &row) const
{
    const int left =
        row.size.width() - boundedPixel(m_tailIconGain) - boundedPixel(m_tailIconWidth);
    return m_style == SpTableList::LIST_STYLE_4
        && (row.data(TailPressedRole).toBool() || (row.isPressed && row.pressX >= left));
}

// A row that is neither marked nor pressed leaves the pen as the layer before has left it.
void styleDelegate::applyTextColor(const Row &row) const
{
    if (row.isMarked)
        row.painter->setPen(m_hightColor);
    else if (row.isPressed)
        row.painter->setPen(m_pressColor);
}

/**
 * The line below a row without background picture, one px farther than the row is wide. Its white
 * pen stays for the layers that follow; with a picture they have the view's own.
 */
void styleDelegate::drawSeparator(const Row &row) const
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

void styleDelegate::drawBackground(const Row &row) const
{
    if (m_normalPix.isNull()) {
        drawSeparator(row);
        return;
    }
    row.painter->drawPixmap(boundedPixel(m_pixmapGain), 0,
                            showsPressPix(row) ? m_pressPix : m_normalPix);
}

/**
 * Background, header and tail of LIST_STYLE_2, whose tail icon is a key of its own: it stands at
 * the very right, the background ends before it, and either of the two looks pressed. Without a
 * background picture there is no tail icon either; its place stays free.
 */
void styleDelegate::drawSplitRow(Row &row) const
{
    row.tailLeft = row.size.width();
    if (row.has(kHasTailIcon)) {
        drawSplitBackground(row);
    } else if (m_normalPix.isNull()) {
        drawSeparator(row);
    } else {
        row.painter->drawPixmap(0, 0, row.isPressed ? m_pressPix : m_normalPix);
    }
    drawHeader(row);
}

void styleDelegate::drawSplitBackground(Row &row) const
{
    const QPixmap icon = row.pixmap(TailIconRole);
    row.tailLeft -= icon.width();
    if (m_normalPix.isNull()) {
        drawSeparator(row);
        return;
    }
    const bool isTailPressed = row.isPressed && row.pressX >= row.tailLeft;
    const bool isRestPressed = row.isPressed && !isTailPressed;
    const QPixmap &background = isRestPressed ? m_pressPix : m_normalPix;
    ImageLook &look = isRestPressed ? *m_pressLook : *m_normalLook;
    const QRect target(0, 0, background.width() - icon.width() - kSplitGap, background.height());
    if (!target.isEmpty())
        look.drawScaled(*row.painter, target, background);
    row.painter->drawPixmap(row.tailLeft, row.iconTop(icon),
                            isTailPressed ? row.pixmap(PressedTailIconRole) : icon);
}

void styleDelegate::drawHeader(Row &row) const
{
    row.headerRight = boundedPixel(m_headerIconGain) - 1;
    if (row.has(kHasHeaderIcon)) {
        const QPixmap icon =
            row.pixmap(showsPressedHeaderIcon(row) ? PressedHeaderIconRole : HeaderIconRole);
        row.painter->drawPixmap(boundedPixel(m_headerIconGain), row.iconTop(icon), icon);
        row.headerRight += icon.width();
    } else if (row.has(kHasHeaderNumber)) {
        drawHeaderNumber(row);
    }
}

void styleDelegate::drawHeaderNumber(Row &row) const
{
    const QString number = row.data(HeaderNumberRole).toString();
    const int width = number.toDouble() > kLargestNarrowNumber ? kWideNumberWidth : kNumberWidth;
    const QRect rect(kNumberLeft, 0, width, row.size.height());
    drawText(row, rect, Qt::AlignCenter, m_tailFont, number);
    row.headerRight = rect.right();
}

void styleDelegate::drawTail(Row &row) const
{
    row.tailLeft = row.size.width();
    if (row.has(kHasTailIcon)) {
        const QPixmap icon =
            row.pixmap(showsPressedTailIcon(row) ? PressedTailIconRole : TailIconRole);
        row.tailLeft -= icon.width() + boundedPixel(m_tailIconGain);
        row.painter->drawPixmap(row.tailLeft, row.iconTop(icon), icon);
    } else if (row.has(kHasTailText)) {
        row.tailLeft -= boundedPixel(m_tailStrWidth);
        drawTailText(row);
    }
}

void styleDelegate::drawTailText(const Row &row) const
{
    const QRect rect(row.tailLeft, 0, row.size.width() - row.tailLeft, row.size.height());
    const QString text = row.data(TailTextRole).toString();
    if (m_style == SpTableList::LIST_STYLE_5) {
        row.painter->setPen(Qt::darkGray);
        drawText(row, rect, kLineAlign, m_grayTailFont, text);
        row.painter->setPen(Qt::white);
    } else {
        applyTextColor(row);
        drawText(row, rect, kLineAlign, m_tailFont, text);
    }
}

void styleDelegate::drawCentre(const Row &row) const
{
    if (!row.has(kHasCentreText))
        return;
    const QString text = row.data(CentreTextRole).toString();
    switch (m_style) {
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

QRect styleDelegate::centreRect(const Row &row) const
{
    return {QPoint(row.headerRight + 1 + boundedPixel(m_centerStrGain), 0),
            QPoint(row.tailLeft - kCentreToTail, row.size.height() - 1)};
}

void styleDelegate::drawPlainCentre(const Row &row, const QString &text) const
{
    const QRect rect = centreRect(row);
    applyTextColor(row);
    drawText(row, rect, kLineAlign, m_centerFont,
             m_texts->elided(m_centerFont, text, rect.width()));
}

// These two styles have colours of their own instead of those of marked and pressed rows.
void styleDelegate::drawTwoLineCentre(const Row &row, const QString &text) const
{
    const QRect rect = centreRect(row);
    const int slash = text.indexOf(QLatin1Char('/'));
    const QString upper = slash < 0 ? text : text.left(slash);
    const QString shown = m_texts->elided(m_centerFont, upper, rect.width());
    if (slash < 0) {
        drawText(row, rect, kLineAlign, m_centerFont, shown);
        return;
    }
    const QRect lines = rect.adjusted(0, kUpperMargin, 0, -kLowerMargin);
    drawText(row, lines, kUpperAlign, m_centerFont, shown);
    row.painter->setPen(Qt::darkGray);
    drawText(row, lines, kLowerAlign, m_lowerLineFont, text.mid(slash + 1));
}

void styleDelegate::drawThreePartCentre(const Row &row, const QString &text) const
{
    const QStringList parts = text.split(QLatin1Char('/'));
    if (parts.size() < 3)
        return;
    const QRect lines = centreRect(row).adjusted(0, kUpperMargin, 0, -kLowerMargin);
    drawText(row, lines, kUpperAlign, m_smallFont, parts[0]);
    row.painter->setPen(Qt::darkGray);
    drawText(row, lines, kLowerAlign, m_centerFont, parts[1]);
    row.painter->setPen(Qt::white);
    drawText(row, lines, kLowerAlign, m_centerFont,
             parts[2]); // over the part before: that is meant
}

/** A text that fits stands still, and so does every text while there is no timer to roll it. */
void styleDelegate::drawRollingCentre(const Row &row, const QString &text) const
{
    const QRect rect = centreRect(row);
    if (m_rollTimerId == 0 || m_texts->elided(m_centerFont, text, rect.width()) == text) {
        drawPlainCentre(row, text);
        return;
    }
    const StringRollingData &record = rollingRecord(row, text, rect.width());
    applyTextColor(row);
    const int width = QFontMetrics(m_centerFont).horizontalAdvance(record.visibleText);
    row.painter->translate(QPoint(rect.left() - boundedPixel(record.offset), 0));
    drawText(row, QRect(0, 0, width, row.size.height()), kLineAlign, m_centerFont,
             record.visibleText);
}

// The record that getAddRollData() finds for a new one of the row; one that it would not keep is
// not made.
const StringRollingData &styleDelegate::rollingRecord(const Row &row, const QString &text,
                                                      int width) const
{
    if (const StringRollingData *known = m_records->of(row.index.row(), false))
        return *known;
    const QFontMetrics metrics(m_centerFont);
    const int count = quotient(width, metrics.horizontalAdvance(QLatin1Char('.'))) + kRollingMargin;
    auto *record = new StringRollingData;
    record->fullText = text + QString(kSpacesAfterRolling, QLatin1Char(' '));
    record->nextIndex = qMax(0, count);
    record->visibleText = record->fullText.left(record->nextIndex);
    record->firstWidth = metrics.horizontalAdvance(record->fullText.at(0));
    record->row = row.index.row();
    m_records->append(record);
    return *record;
}

// An empty rectangle shows nothing. Where a layout is kept it is the one of the row's coordinates,
// so that it is found again wherever the list has scrolled.
void styleDelegate::drawText(const Row &row, const QRect &rect, int flags, const QFont &font,
                             const QString &text) const
{
    if (rect.isEmpty() || text.isEmpty())
        return;
    row.painter->setFont(font);
    m_texts->draw(*row.painter, rect, flags, text);
}
