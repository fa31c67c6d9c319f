// SPDX-License-Identifier: Apache-2.0
#include <styleDelegate>

#include "widgettest.h"

#include <SpTableList>

#include <QPainter>
#include <QStandardItemModel>

#include <malloc.h>

#include <climits>
#include <cstddef>
#include <memory>

extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

namespace
{

enum Role : int {
    Content = 258,
    HeaderIcon,
    PressedHeaderIcon,
    Number,
    Centre,
    Tail,
    TailIcon,
    PressedTailIcon,
    Marked,
    HeaderPressed,
    TailPressed
};

constexpr int kHeaderIcon = 0x1;
constexpr int kNumber = 0x10;
constexpr int kCentre = 0x1000;
constexpr int kTailIcon = 0x10000;
constexpr int kTailText = 0x100000;

constexpr int kLine = Qt::AlignLeft | Qt::AlignVCenter;
const QRect kRow(7, 5, 400, 61);
const QColor kViewPen(0, 200, 120); // as a view's palette might have it
const QColor kGround(30, 40, 60);
const QString kLongText =
    QStringLiteral("A title that is very much longer than the room it has here");

QPixmap picture(const QColor &color, const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(pixmap.rect()).adjusted(1, 1, -1, -1), 5, 5);
    return pixmap;
}

QFont sized(int px)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(px);
    return font;
}

struct Pictures {
    QPixmap normal = picture(QColor(40, 60, 90), {380, 58});
    QPixmap press = picture(QColor(220, 120, 20), {376, 56});
    QPixmap header = picture(Qt::cyan, {40, 32});
    QPixmap headerPressed = picture(Qt::yellow, {44, 31});
    QPixmap tail = picture(Qt::magenta, {36, 28});
    QPixmap tailPressed = picture(Qt::red, {36, 33});
};

const Pictures &pictures()
{
    static const Pictures instance;
    return instance;
}

using Paint = std::function<void(QPainter &)>;
using Roles = QMap<int, QVariant>;

// A row with everything in its roles; its content flags decide what of it shows.
Roles allRoles(int content)
{
    return {{Content, content},
            {HeaderIcon, pictures().header},
            {PressedHeaderIcon, pictures().headerPressed},
            {Number, QStringLiteral("42")},
            {Centre, QStringLiteral("Title")},
            {Tail, QStringLiteral("3:45")},
            {TailIcon, pictures().tail},
            {PressedTailIcon, pictures().tailPressed},
            {Marked, false},
            {HeaderPressed, false},
            {TailPressed, false}};
}

QImage onCanvas(const Paint &paint)
{
    QImage image(430, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(kGround);
    QPainter painter(&image);
    painter.setPen(kViewPen);
    paint(painter);
    return image;
}

// A delegate, a model of one row, and the option with which a view would have it painted.
class Subject
{
public:
    explicit Subject(const Roles &roles = {}, int style = SpTableList::LIST_STYLE_0)
    {
        delegate.setCenterFont(sized(22));
        delegate.setTailFont(sized(17));
        delegate.setHightColor(QColor(250, 240, 10));
        delegate.setPressColor(QColor(10, 240, 250));
        delegate.setStyle(style);
        model.setRowCount(1);
        model.setColumnCount(1);
        option.rect = kRow;
        for (auto role = roles.begin(); role != roles.end(); ++role)
            set(role.key(), role.value());
    }

    void set(int role, const QVariant &value) { model.setData(model.index(0, 0), value, role); }
    void giveBackgrounds()
    {
        delegate.setNormalPix(pictures().normal);
        delegate.setPressPix(pictures().press);
    }
    void press(int x)
    {
        delegate.setItemPressed(true, QPoint(x, 30));
        option.state |= QStyle::State_Selected;
    }
    void paint(QPainter &painter) { delegate.paint(&painter, option, model.index(0, 0)); }
    QImage painted()
    {
        return onCanvas([this](QPainter &painter) { paint(painter); });
    }

    styleDelegate delegate;
    QStandardItemModel model;
    QStyleOptionViewItem option;
};

// The parts of a row, painted one by one with plain calls and at their absolute places.
void drawSeparator(QPainter &p)
{
    p.setPen(QColor(100, 100, 100, 255));
    p.drawLine(kRow.left() + 20, kRow.bottom(), kRow.left() + kRow.width(), kRow.bottom());
    p.setPen(QColor(255, 255, 255, 255));
}

int centredTop(const QPixmap &icon)
{
    return kRow.top() + int(std::floor((kRow.height() - icon.height()) / 2.0));
}

void drawHeaderIcon(QPainter &p, const QPixmap &icon)
{
    p.drawPixmap(kRow.left() + 20, centredTop(icon), icon);
}

void drawTailIcon(QPainter &p, const QPixmap &icon)
{
    p.drawPixmap(kRow.left() + kRow.width() - icon.width() - 47, centredTop(icon), icon);
}

// Centre text between a header that ends and a tail that begins here.
QRect centreRect(int headerRight, int tailLeft)
{
    return {QPoint(headerRight + 1 + 15, kRow.top()), QPoint(tailLeft - 21, kRow.bottom())};
}

const int kNoHeader = kRow.left() + 20 - 1; // where the header ends that is not there
const int kNoTail = kRow.left() + kRow.width();

QString elided(const QString &text, int width, const QFont &font = sized(22))
{
    return QFontMetrics(font).elidedText(text, Qt::ElideRight, width, Qt::TextShowMnemonic);
}

void drawCentre(QPainter &p, const QRect &rect, const QString &text = QStringLiteral("Title"))
{
    p.setFont(sized(22));
    p.drawText(rect, kLine, elided(text, rect.width()));
}

void drawTailText(QPainter &p, const QString &text = QStringLiteral("3:45"), int width = 100)
{
    p.setFont(sized(17));
    p.drawText(QRect(kNoTail - width, kRow.top(), width, kRow.height()), kLine, text);
}

StringRollingData *record(int row, const QString &text = QStringLiteral("x"))
{
    auto *data = new StringRollingData;
    data->row = row;
    data->fullText = text;
    return data;
}

QVector<int> rows(const styleDelegate &delegate)
{
    QVector<int> result;
    for (const auto *data = delegate.rollData(); data; data = data->next)
        result += data->row;
    return result;
}

// What the program has allocated now; the allocator of a sanitized build counts by itself.
std::size_t allocatedBytes()
{
    if (__sanitizer_get_current_allocated_bytes)
        return __sanitizer_get_current_allocated_bytes();
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// Everything a row's paint might ask, answered as no model should.
class HostileModel : public QAbstractListModel
{
public:
    std::function<QVariant(int)> answer;
    int rowCount(const QModelIndex &) const override { return 1; }
    QVariant data(const QModelIndex &, int role) const override { return answer(role); }
};

} // namespace

Q_DECLARE_METATYPE(Paint)

class tst_StyleDelegate : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction and accessors -------------------------------------------------------------

    void defaults()
    {
        QObject parent;
        auto *delegate = new styleDelegate(&parent);
        QCOMPARE(delegate->parent(), &parent);
        QCOMPARE(delegate->centerFont(), QFont());
        QCOMPARE(delegate->tailFont(), QFont());
        QVERIFY(!delegate->hightColor().isValid());
        QCOMPARE(delegate->pressColor(), QColor(255, 255, 255, 255));
        QVERIFY(delegate->normalPix().isNull());
        QVERIFY(delegate->pressPix().isNull());
        QCOMPARE(delegate->style(), 0);
        QCOMPARE(delegate->tailRectX(), 512);
        QVERIFY(!delegate->rollData());
        QCOMPARE(delegate->rollDataCount(), 0);
        QCOMPARE(delegate->rollTimerId(), 0);
        QCOMPARE(delegate->headerIconGain(), 20);
        QCOMPARE(delegate->headerIconWidth(), 0);
        QCOMPARE(delegate->centerStrGain(), 15);
        QCOMPARE(delegate->tailIconGain(), 47);
        QCOMPARE(delegate->tailIconWidth(), 0);
        QCOMPARE(delegate->pixmapGain(), 0);
        QCOMPARE(delegate->tailStrWidth(), 100);
        QCOMPARE(delegate->getCenterTextFlag(), 129);
        QCOMPARE(delegate->pressedPoint(), QPoint(0, 0));
        QCOMPARE(delegate->itemPressed(), false);
        QCOMPARE(delegate->useIt(), true);
    }

    void everySettingIsKeptAsGiven()
    {
        styleDelegate delegate;
        for (int value : {INT_MIN, -1, 0, 77, INT_MAX}) {
            delegate.setHeaderIconGain(value);
            QCOMPARE(delegate.headerIconGain(), value);
            delegate.setHeaderIconWidth(value);
            QCOMPARE(delegate.headerIconWidth(), value);
            delegate.setCenterStrGain(value);
            QCOMPARE(delegate.centerStrGain(), value);
            delegate.setTailIconGain(value);
            QCOMPARE(delegate.tailIconGain(), value);
            delegate.setTailIconWidth(value);
            QCOMPARE(delegate.tailIconWidth(), value);
            delegate.setPixmapGain(value);
            QCOMPARE(delegate.pixmapGain(), value);
            delegate.setTailStrWidth(value);
            QCOMPARE(delegate.tailStrWidth(), value);
            delegate.setCenterTextFlag(value);
            QCOMPARE(delegate.getCenterTextFlag(), value);
            delegate.setTailRectX(value);
            QCOMPARE(delegate.tailRectX(), value);
            delegate.setStyle(value);
            QCOMPARE(delegate.style(), value);
            delegate.setRollTimerId(value);
            QCOMPARE(delegate.rollTimerId(), value);
        }
        delegate.setCenterFont(sized(31));
        QCOMPARE(delegate.centerFont(), sized(31));
        delegate.setTailFont(sized(32));
        QCOMPARE(delegate.tailFont(), sized(32));
        delegate.setHightColor(Qt::red);
        QCOMPARE(delegate.hightColor(), QColor(Qt::red));
        delegate.setPressColor(Qt::blue);
        QCOMPARE(delegate.pressColor(), QColor(Qt::blue));
        delegate.setNormalPix(pictures().normal);
        QCOMPARE(delegate.normalPix().cacheKey(), pictures().normal.cacheKey());
        delegate.setPressPix(pictures().press);
        QCOMPARE(delegate.pressPix().cacheKey(), pictures().press.cacheKey());
        delegate.setItemPressed(true, QPoint(3, 4));
        QCOMPARE(delegate.itemPressed(), true);
        QCOMPARE(delegate.pressedPoint(), QPoint(3, 4));
        delegate.setUseIt(false);
        QCOMPARE(delegate.useIt(), false);
    }

    void theSizeHintIsThatOfAnyDelegate()
    {
        Subject s(allRoles(-1));
        QCOMPARE(s.delegate.sizeHint(s.option, s.model.index(0, 0)),
                 QStyledItemDelegate().sizeHint(s.option, s.model.index(0, 0)));
    }

    // --- The records of rolling texts -----------------------------------------------------------

    void addedRecordsStandInOrderAndAreCounted()
    {
        styleDelegate delegate;
        for (int row : {4, 2, 4})
            delegate.addRollData(record(row));
        delegate.addRollData(nullptr);
        QCOMPARE(rows(delegate), (QVector<int>{4, 2, 4}));
        QCOMPARE(delegate.rollDataCount(), 3);
    }

    void theFirstRecordOfARowIsFound()
    {
        styleDelegate delegate;
        auto *first = record(4);
        delegate.addRollData(first);
        delegate.addRollData(record(4));
        auto *last = record(5);
        delegate.addRollData(last);
        QCOMPARE(delegate.getRollData(4), first);
        QCOMPARE(delegate.getRollData(5), last);
        QVERIFY(!delegate.getRollData(6));
    }

    void clearingKeepsTheCount()
    {
        styleDelegate delegate;
        delegate.clearRollData();
        for (int row : {1, 2})
            delegate.addRollData(record(row));
        delegate.clearRollData();
        QVERIFY(!delegate.rollData());
        QCOMPARE(delegate.rollDataCount(), 2);
        delegate.addRollData(record(3));
        QCOMPARE(rows(delegate), QVector<int>{3});
        QCOMPARE(delegate.rollDataCount(), 3);
    }

    void anEmptyListTakesTheRecord()
    {
        styleDelegate delegate;
        auto *data = record(9);
        QCOMPARE(delegate.getAddRollData(data), data);
        QCOMPARE(delegate.rollData(), data);
        QVERIFY(!delegate.getAddRollData(nullptr));
        QCOMPARE(rows(delegate), QVector<int>{9});
    }

    void theLastRecordIsNeverCompared()
    {
        styleDelegate delegate;
        auto *first = record(1);
        auto *second = record(2);
        delegate.addRollData(first);
        delegate.addRollData(second);
        auto *again = record(2);
        QCOMPARE(delegate.getAddRollData(again), again); // the last one has the same row
        QCOMPARE(rows(delegate), (QVector<int>{1, 2, 2}));
        const std::unique_ptr<StringRollingData> notKept(record(2));
        QCOMPARE(delegate.getAddRollData(notKept.get()), second); // by now it is not the last
        const std::unique_ptr<StringRollingData> neitherKept(record(1));
        QCOMPARE(delegate.getAddRollData(neitherKept.get()), first);
        QCOMPARE(delegate.rollDataCount(), 3);
    }

    void aRecordCannotBeInTheListTwice()
    {
        styleDelegate delegate;
        auto *data = record(1);
        delegate.addRollData(data);
        delegate.addRollData(data);
        QCOMPARE(delegate.getAddRollData(data), data);
        QCOMPARE(rows(delegate), QVector<int>{1});
    }

    // --- Backgrounds ----------------------------------------------------------------------------

    void withoutUseItNothingIsPainted()
    {
        Subject s(allRoles(-1));
        s.giveBackgrounds();
        s.delegate.setUseIt(false);
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &) {}));
    }

    void aRowWithoutContentIsItsBackground_data()
    {
        QTest::addColumn<int>("style");
        for (int style = 0; style <= 6; ++style)
            QTest::addRow("style %d", style) << style;
        QTest::newRow("no style") << 57;
        QTest::newRow("negative") << -1;
    }

    void aRowWithoutContentIsItsBackground()
    {
        QFETCH(int, style);
        Subject s(allRoles(0), style);
        COMPARE_PICTURES(s.painted(), onCanvas(drawSeparator));
        s.giveBackgrounds();
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &p) {
                             p.drawPixmap(kRow.topLeft(), pictures().normal);
                         }));
    }

    void pressedBackgrounds_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("pressed");
        QTest::addColumn<bool>("marked");
        QTest::addColumn<bool>("shown");
        for (int style = 0; style <= 6; ++style) {
            for (bool pressed : {false, true}) {
                for (bool marked : {false, true}) {
                    bool shown = pressed;
                    if (style == 1)
                        shown = pressed || marked;
                    if (style == 4)
                        shown = marked;
                    QTest::addRow("style %d, pressed %d, marked %d", style, pressed, marked)
                        << style << pressed << marked << shown;
                }
            }
        }
    }

    void pressedBackgrounds()
    {
        QFETCH(int, style);
        QFETCH(bool, pressed);
        QFETCH(bool, marked);
        QFETCH(bool, shown);
        Subject s(allRoles(0), style);
        s.giveBackgrounds();
        s.set(Marked, marked);
        if (pressed)
            s.press(100);
        COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                             p.drawPixmap(kRow.topLeft(),
                                          shown ? pictures().press : pictures().normal);
                         }));
    }

    void pressedNeedsTheFlagAndTheSelection()
    {
        Subject s(allRoles(0));
        s.giveBackgrounds();
        const QImage normal = s.painted();
        s.option.state |= QStyle::State_Selected;
        COMPARE_PICTURES(s.painted(), normal);
        s.option.state = QStyle::State_None;
        s.delegate.setItemPressed(true, QPoint(100, 20));
        COMPARE_PICTURES(s.painted(), normal);
    }

    void aMissingPressedBackgroundIsSkipped()
    {
        Subject s(allRoles(0));
        s.delegate.setNormalPix(pictures().normal);
        s.press(100);
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &) {}));
        s.delegate.setNormalPix(QPixmap());
        s.delegate.setPressPix(pictures().press);
        COMPARE_PICTURES(s.painted(), onCanvas(drawSeparator));
    }

    void theBackgroundIsMovedByItsGain()
    {
        for (int gain : {13, -13}) {
            Subject s(allRoles(0));
            s.giveBackgrounds();
            s.delegate.setPixmapGain(gain);
            COMPARE_PICTURES(s.painted(), onCanvas([=](QPainter &p) {
                                 p.drawPixmap(kRow.topLeft() + QPoint(gain, 0), pictures().normal);
                             }));
        }
    }

    void thePainterIsLeftAsItWas()
    {
        for (int style = 0; style <= 6; ++style) {
            Subject s(allRoles(-1), style);
            s.set(Centre, QStringLiteral("a/b/c"));
            onCanvas([&](QPainter &p) {
                p.setFont(sized(9));
                const QFont font = p.font();
                s.paint(p);
                QCOMPARE(p.pen(), QPen(kViewPen));
                QCOMPARE(p.font(), font);
                QVERIFY(p.transform().isIdentity());
            });
        }
    }

    // --- Header ---------------------------------------------------------------------------------

    void theHeaderIconIsCentredDownward_data()
    {
        QTest::addColumn<int>("height");
        for (int height : {1, 31, 32, 60, 61, 62, 63, 64, 65, 70})
            QTest::addRow("%d px", height) << height;
    }

    // Rounded toward minus infinity: an icon that is larger by an odd number sticks out above.
    void theHeaderIconIsCentredDownward()
    {
        QFETCH(int, height);
        const QPixmap icon = picture(Qt::cyan, {40, height});
        Subject s(allRoles(kHeaderIcon));
        s.set(HeaderIcon, icon);
        COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                             drawSeparator(p);
                             drawHeaderIcon(p, icon);
                         }));
        Subject tail(allRoles(kTailIcon));
        tail.set(TailIcon, icon);
        COMPARE_PICTURES(tail.painted(), onCanvas([&](QPainter &p) {
                             drawSeparator(p);
                             drawTailIcon(p, icon);
                         }));
    }

    void theTailLiesOverTheHeader()
    {
        const QPixmap header = picture(Qt::cyan, {230, 40});
        const QPixmap tail = picture(Qt::magenta, {210, 30});
        Subject s(allRoles(kHeaderIcon | kTailIcon));
        s.set(HeaderIcon, header);
        s.set(TailIcon, tail);
        COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                             drawSeparator(p);
                             drawHeaderIcon(p, header);
                             drawTailIcon(p, tail);
                         }));
    }

    void anyBitOfAPartShowsIt_data()
    {
        QTest::addColumn<int>("content");
        QTest::addColumn<Paint>("expected");
        const Paint header = [](QPainter &p) { drawHeaderIcon(p, pictures().header); };
        const Paint number = [](QPainter &p) {
            p.setFont(sized(17));
            p.drawText(QRect(kRow.left() + 20, kRow.top(), 50, kRow.height()), Qt::AlignCenter,
                       QStringLiteral("42"));
        };
        const Paint centre = [](QPainter &p) { drawCentre(p, centreRect(kNoHeader, kNoTail)); };
        const Paint tailIcon = [](QPainter &p) { drawTailIcon(p, pictures().tail); };
        const Paint tailText = [](QPainter &p) { drawTailText(p); };
        const Paint nothing = [](QPainter &) {};
        const auto rowsOf = [](const char *name, int shift, const Paint &paint) {
            for (int bit = shift; bit < shift + 4; ++bit)
                QTest::addRow("%s, bit %d", name, bit) << (1 << bit) << paint;
        };
        rowsOf("header icon", 0, header);
        rowsOf("number", 4, number);
        rowsOf("nothing", 8, nothing);
        rowsOf("centre", 12, centre);
        rowsOf("tail icon", 16, tailIcon);
        rowsOf("tail text", 20, tailText);
        rowsOf("nothing", 24, nothing);
        QTest::newRow("an icon goes before a number") << 0x1F << header;
        QTest::newRow("an icon goes before a text") << 0xF10000 << tailIcon;
    }

    void anyBitOfAPartShowsIt()
    {
        QFETCH(int, content);
        QFETCH(Paint, expected);
        Subject s(allRoles(content));
        COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                             drawSeparator(p);
                             expected(p);
                         }));
    }

    void theNumberIsWidenedBeyond999_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<int>("width");
        QTest::newRow("999") << "999" << 50;
        QTest::newRow("1000") << "1000" << 60;
        QTest::newRow("12345") << "12345" << 60;
        QTest::newRow("negative") << "-1000" << 50;
        QTest::newRow("no number") << "radio" << 50;
        QTest::newRow("beyond an int") << "99999999999" << 60;
        QTest::newRow("leading zeros") << "0999" << 50;
        QTest::newRow("empty") << "" << 50;
    }

    void theNumberIsWidenedBeyond999()
    {
        QFETCH(QString, number);
        QFETCH(int, width);
        Subject s(allRoles(kNumber | kCentre));
        s.set(Number, number);
        COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                             drawSeparator(p);
                             p.setFont(sized(17));
                             p.drawText(QRect(kRow.left() + 20, kRow.top(), width, kRow.height()),
                                        Qt::AlignCenter, number);
                             drawCentre(p, centreRect(kRow.left() + 20 + width - 1, kNoTail));
                         }));
    }

    void theNumberHasTheViewsPen()
    {
        Subject s(allRoles(kNumber));
        s.giveBackgrounds();
        s.set(Marked, true);
        COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                             p.drawPixmap(kRow.topLeft(), pictures().normal);
                             p.setFont(sized(17));
                             p.drawText(QRect(kRow.left() + 20, kRow.top(), 50, kRow.height()),
                                        Qt::AlignCenter, QStringLiteral("42"));
                         }));
    }

    // --- Header, tail and centre together -------------------------------------------------------

    void theCentreStandsBetweenHeaderAndTail_data()
    {
        QTest::addColumn<int>("parts");
        QTest::addColumn<int>("headerRight");
        QTest::addColumn<int>("tailLeft");
        const int icon = kRow.left() + 20 + 40 - 1;
        const int number = kRow.left() + 69;
        const int tailIcon = kNoTail - 36 - 47;
        const int tailText = kNoTail - 100;
        QTest::newRow("alone") << 0 << kNoHeader << kNoTail;
        QTest::newRow("icon") << kHeaderIcon << icon << kNoTail;
        QTest::newRow("number") << kNumber << number << kNoTail;
        QTest::newRow("tail icon") << kTailIcon << kNoHeader << tailIcon;
        QTest::newRow("tail text") << kTailText << kNoHeader << tailText;
        QTest::newRow("two icons") << (kHeaderIcon | kTailIcon) << icon << tailIcon;
        QTest::newRow("two texts") << (kNumber | kTailText) << number << tailText;
    }

    void theCentreStandsBetweenHeaderAndTail()
    {
        QFETCH(int, parts);
        QFETCH(int, headerRight);
        QFETCH(int, tailLeft);
        Subject without(allRoles(parts));
        Subject s(allRoles(parts | kCentre));
        s.set(Centre, kLongText);
        QImage expected = without.painted();
        QPainter p(&expected);
        p.setPen(Qt::white);
        const QRect rect = centreRect(headerRight, tailLeft);
        QVERIFY(elided(kLongText, rect.width()) != kLongText);
        drawCentre(p, rect, kLongText);
        p.end();
        COMPARE_PICTURES(s.painted(), expected);
    }

    // To the pixel: a text as wide as its room is whole, and one that is wider by a pixel is not.
    void theCentreEnds21pxBeforeTheTail()
    {
        const QString text = QStringLiteral("Title");
        int width = 1;
        while (elided(text, width) != text)
            ++width;
        for (int tooWide : {0, 1}) {
            Subject s(allRoles(kCentre));
            const int left = kRow.width() - 21 - width + 1 + tooWide;
            s.delegate.setCenterStrGain(left - 20);
            const QString shown = elided(text, width - tooWide);
            QCOMPARE(shown == text, tooWide == 0);
            COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                                 drawSeparator(p);
                                 p.setFont(sized(22));
                                 p.drawText(QRect(kRow.left() + left, kRow.top(), width - tooWide,
                                                  kRow.height()),
                                            kLine, shown);
                             }));
        }
    }

    void gainsAndWidthsMoveTheParts()
    {
        Subject s(allRoles(kHeaderIcon | kCentre | kTailIcon));
        s.delegate.setHeaderIconGain(3);
        s.delegate.setHeaderIconWidth(200); // for touches only
        s.delegate.setCenterStrGain(-4);
        s.delegate.setTailIconGain(9);
        s.delegate.setTailIconWidth(200); // for touches only
        s.set(Centre, kLongText);
        COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                             drawSeparator(p);
                             p.drawPixmap(kRow.left() + 3, centredTop(pictures().header),
                                          pictures().header);
                             const int tailLeft = kNoTail - 36 - 9;
                             p.drawPixmap(tailLeft, centredTop(pictures().tail), pictures().tail);
                             drawCentre(p,
                                        QRect(QPoint(kRow.left() + 3 + 40 - 4, kRow.top()),
                                              QPoint(tailLeft - 21, kRow.bottom())),
                                        kLongText);
                         }));
    }

    void aLongTailTextIsCutNotShortened()
    {
        Subject s(allRoles(kTailText));
        s.delegate.setTailStrWidth(70);
        s.set(Tail, kLongText);
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &p) {
                             drawSeparator(p);
                             drawTailText(p, kLongText, 70);
                         }));
    }

    void theCentreTextFlagIsNotConsulted()
    {
        Subject s(allRoles(kCentre));
        const QImage before = s.painted();
        s.delegate.setCenterTextFlag(Qt::AlignRight | Qt::AlignBottom);
        COMPARE_PICTURES(s.painted(), before);
    }

    void aTextWithAnAmpersandIsShownAsItIs()
    {
        Subject s(allRoles(kCentre));
        s.set(Centre, QStringLiteral("Drum & Bass"));
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &p) {
                             drawSeparator(p);
                             drawCentre(p, centreRect(kNoHeader, kNoTail),
                                        QStringLiteral("Drum & Bass"));
                         }));
    }

    // --- Colours --------------------------------------------------------------------------------

    void textColours_data()
    {
        QTest::addColumn<bool>("background");
        QTest::addColumn<bool>("pressed");
        QTest::addColumn<bool>("marked");
        QTest::addColumn<QColor>("expected");
        const QColor high(250, 240, 10);
        const QColor press(10, 240, 250);
        QTest::newRow("with separator") << false << false << false << QColor(Qt::white);
        QTest::newRow("with background") << true << false << false << kViewPen;
        QTest::newRow("pressed") << false << true << false << press;
        QTest::newRow("marked") << true << false << true << high;
        QTest::newRow("marked goes before pressed") << true << true << true << high;
    }

    void textColours()
    {
        QFETCH(bool, background);
        QFETCH(bool, pressed);
        QFETCH(bool, marked);
        QFETCH(QColor, expected);
        for (int style : {0, 1, 4}) {
            Subject s(allRoles(kCentre | kTailText), style);
            if (background)
                s.giveBackgrounds();
            s.set(Marked, marked);
            if (pressed)
                s.press(200);
            Subject empty(allRoles(0), style);
            if (background)
                empty.giveBackgrounds();
            empty.set(Marked, marked);
            if (pressed)
                empty.press(200);
            QImage image = empty.painted();
            QPainter p(&image);
            p.setPen(expected);
            drawTailText(p);
            drawCentre(p, centreRect(kNoHeader, kNoTail - 100));
            p.end();
            COMPARE_PICTURES(s.painted(), image);
        }
    }

    void anInvalidHighlightColourIsBlack()
    {
        Subject s(allRoles(kCentre));
        s.delegate.setHightColor(QColor());
        s.set(Marked, true);
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &p) {
                             drawSeparator(p);
                             p.setPen(Qt::black);
                             drawCentre(p, centreRect(kNoHeader, kNoTail));
                         }));
    }

    // --- LIST_STYLE_2 ---------------------------------------------------------------------------

    // Background scaled and drawn beside the tail icon, which stands at the very right.
    static void drawSplit(QPainter &p, const QPixmap &background, const QPixmap &icon)
    {
        const int width = background.width() - pictures().tail.width() - 10;
        p.drawPixmap(QRect(kRow.left(), kRow.top(), width, background.height()), background);
        p.drawPixmap(kNoTail - 36, centredTop(pictures().tail), icon);
    }

    void theSplitRow_data()
    {
        QTest::addColumn<int>("x"); // of the press, negative for none
        QTest::addColumn<bool>("restPressed");
        QTest::addColumn<bool>("tailPressed");
        QTest::newRow("unpressed") << -1 << false << false;
        QTest::newRow("pressed") << 100 << true << false;
        QTest::newRow("just beside the tail") << kNoTail - 37 << true << false;
        QTest::newRow("just on the tail") << kNoTail - 36 << false << true;
        QTest::newRow("beyond the tail") << kNoTail + 50 << false << true;
    }

    void theSplitRow()
    {
        QFETCH(int, x);
        QFETCH(bool, restPressed);
        QFETCH(bool, tailPressed);
        Subject s(allRoles(kHeaderIcon | kTailIcon | kCentre), SpTableList::LIST_STYLE_2);
        s.giveBackgrounds();
        s.delegate.setPixmapGain(11); // not in this style
        s.set(Centre, kLongText);
        if (x >= 0)
            s.press(x);
        const auto expected = onCanvas([&](QPainter &p) {
            drawSplit(p, restPressed ? pictures().press : pictures().normal,
                      tailPressed ? pictures().tailPressed : pictures().tail);
            drawHeaderIcon(p, pictures().header);
            if (x >= 0)
                p.setPen(QColor(10, 240, 250));
            drawCentre(p, centreRect(kRow.left() + 59, kNoTail - 36), kLongText);
        });
        COMPARE_PICTURES(s.painted(), expected);
        COMPARE_PICTURES(s.painted(), expected);
    }

    // Whatever the model says of it and wherever the row is pressed.
    void theSplitRowHasNoPressedHeaderIcon()
    {
        for (const bool hasTail : {false, true}) {
            Subject s(allRoles(kHeaderIcon | (hasTail ? kTailIcon : 0)), SpTableList::LIST_STYLE_2);
            s.giveBackgrounds();
            s.delegate.setHeaderIconWidth(50);
            s.set(HeaderPressed, true);
            s.press(kRow.left() + 20 + 10);
            COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                                 if (hasTail)
                                     drawSplit(p, pictures().press, pictures().tail);
                                 else
                                     p.drawPixmap(kRow.topLeft(), pictures().press);
                                 drawHeaderIcon(p, pictures().header);
                             }));
        }
    }

    void theSplitRowWithoutNormalPictureHasNoTailIcon()
    {
        Subject s(allRoles(kTailIcon | kCentre), SpTableList::LIST_STYLE_2);
        s.delegate.setPressPix(pictures().press);
        s.set(Centre, kLongText);
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &p) {
                             drawSeparator(p);
                             drawCentre(p, centreRect(kNoHeader, kNoTail - 36), kLongText);
                         }));
    }

    void theSplitRowWithoutTailIconIsWhole()
    {
        Subject s(allRoles(kCentre | kTailText | kNumber), SpTableList::LIST_STYLE_2);
        s.giveBackgrounds();
        s.delegate.setPixmapGain(11); // not in this style
        for (bool pressed : {false, true}) {
            if (pressed)
                s.press(100);
            COMPARE_PICTURES(
                s.painted(), onCanvas([&](QPainter &p) {
                    p.drawPixmap(kRow.topLeft(), pressed ? pictures().press : pictures().normal);
                    p.setFont(sized(17));
                    p.drawText(QRect(kRow.left() + 20, kRow.top(), 50, kRow.height()),
                               Qt::AlignCenter, QStringLiteral("42"));
                    if (pressed)
                        p.setPen(QColor(10, 240, 250));
                    drawCentre(p, centreRect(kRow.left() + 69, kNoTail)); // and no tail text
                }));
        }
    }

    void theSplitRowMarksItsText()
    {
        Subject s(allRoles(kCentre), SpTableList::LIST_STYLE_2);
        s.set(Marked, true);
        s.press(100);
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &p) {
                             drawSeparator(p);
                             p.setPen(QColor(250, 240, 10));
                             drawCentre(p, centreRect(kNoHeader, kNoTail));
                         }));
    }

    void aTailIconAsWideAsTheBackgroundLeavesNone()
    {
        for (int width : {370, 380, 500}) {
            const QPixmap icon = picture(Qt::magenta, {width, 20});
            Subject s(allRoles(kTailIcon), SpTableList::LIST_STYLE_2);
            s.giveBackgrounds();
            s.set(TailIcon, icon);
            COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                                 p.drawPixmap(kNoTail - width, centredTop(icon), icon);
                             }));
        }
    }

    // --- LIST_STYLE_4 ---------------------------------------------------------------------------

    void iconsThatShowPresses_data()
    {
        QTest::addColumn<int>("x"); // of the press in the view, negative for none
        QTest::addColumn<bool>("headerRole");
        QTest::addColumn<bool>("tailRole");
        QTest::addColumn<bool>("header");
        QTest::addColumn<bool>("tail");
        const int headerEnd = kRow.left() + 20 + 50;
        const int tailStart = kNoTail - 47 - 60;
        QTest::newRow("unpressed") << -1 << false << false << false << false;
        QTest::newRow("model: header") << -1 << true << false << true << false;
        QTest::newRow("model: tail") << -1 << false << true << false << true;
        QTest::newRow("middle") << 200 << false << false << false << false;
        QTest::newRow("at the header's end") << headerEnd << false << false << true << false;
        QTest::newRow("past the header") << headerEnd + 1 << false << false << false << false;
        QTest::newRow("left of the header") << 0 << false << false << true << false;
        QTest::newRow("at the tail's start") << tailStart << false << false << false << true;
        QTest::newRow("before the tail") << tailStart - 1 << false << false << false << false;
        QTest::newRow("right of the tail") << kNoTail + 5 << false << false << false << true;
    }

    void iconsThatShowPresses()
    {
        QFETCH(int, x);
        QFETCH(bool, headerRole);
        QFETCH(bool, tailRole);
        QFETCH(bool, header);
        QFETCH(bool, tail);
        for (int style : {0, 1, 3, 4, 5, 6}) {
            const bool shows = style == 4;
            Subject s(allRoles(kHeaderIcon | kTailIcon | kCentre), style);
            s.delegate.setHeaderIconWidth(50);
            s.delegate.setTailIconWidth(60);
            s.set(HeaderPressed, headerRole);
            s.set(TailPressed, tailRole);
            s.set(Centre, QString());
            if (x >= 0)
                s.press(x);
            COMPARE_PICTURES(
                s.painted(), onCanvas([&](QPainter &p) {
                    drawSeparator(p);
                    drawHeaderIcon(p,
                                   shows && header ? pictures().headerPressed : pictures().header);
                    drawTailIcon(p, shows && tail ? pictures().tailPressed : pictures().tail);
                }));
        }
    }

    void thePressedHeaderIconMovesTheCentre()
    {
        Subject s(allRoles(kHeaderIcon | kCentre), SpTableList::LIST_STYLE_4);
        s.set(HeaderPressed, true);
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &p) {
                             drawSeparator(p);
                             drawHeaderIcon(p, pictures().headerPressed);
                             drawCentre(p, centreRect(kRow.left() + 20 + 44 - 1, kNoTail));
                         }));
    }

    // --- LIST_STYLE_5 ---------------------------------------------------------------------------

    static QRect lines(const QRect &rect) { return rect.adjusted(0, 12, 0, -9); }

    void twoLines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("two parts") << "Upper/Lower";
        QTest::newRow("split at the first slash") << "Upper/Lower/more";
        QTest::newRow("long upper") << kLongText + "/Lower";
        QTest::newRow("long lower") << "Upper/" + kLongText;
        QTest::newRow("empty upper") << "/Lower";
        QTest::newRow("empty lower") << "Upper/";
        QTest::newRow("only a slash") << "/";
    }

    void twoLines()
    {
        QFETCH(QString, text);
        Subject s(allRoles(kCentre), SpTableList::LIST_STYLE_5);
        s.giveBackgrounds();
        s.set(Centre, text);
        COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                             p.drawPixmap(kRow.topLeft(), pictures().normal);
                             const QRect rect = centreRect(kNoHeader, kNoTail);
                             const int slash = text.indexOf('/');
                             p.setFont(sized(22));
                             p.drawText(lines(rect), Qt::AlignLeft | Qt::AlignTop,
                                        elided(text.left(slash), rect.width()));
                             p.setFont(sized(26));
                             p.setPen(Qt::darkGray);
                             p.drawText(lines(rect), Qt::AlignLeft | Qt::AlignBottom,
                                        text.mid(slash + 1));
                         }));
    }

    void withoutASlashThereIsOneLineInTheMiddle()
    {
        Subject s(allRoles(kCentre), SpTableList::LIST_STYLE_5);
        s.set(Centre, kLongText);
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &p) {
                             drawSeparator(p);
                             drawCentre(p, centreRect(kNoHeader, kNoTail), kLongText);
                         }));
    }

    void theGrayTailLeavesAWhitePen()
    {
        Subject s(allRoles(kCentre | kTailText), SpTableList::LIST_STYLE_5);
        s.giveBackgrounds();
        s.set(Marked, true); // this style does not colour texts
        s.press(100);
        COMPARE_PICTURES(s.painted(), onCanvas([](QPainter &p) {
                             p.drawPixmap(kRow.topLeft(), pictures().press);
                             p.setPen(Qt::darkGray);
                             p.setFont(sized(20));
                             p.drawText(QRect(kNoTail - 100, kRow.top(), 100, kRow.height()), kLine,
                                        QStringLiteral("3:45"));
                             p.setPen(Qt::white);
                             drawCentre(p, centreRect(kNoHeader, kNoTail - 100));
                         }));
    }

    // Neither mark nor press colours a text of this style: the pen is what stands before, and white
    // behind the gray tail.
    void twoLinesHaveColoursOfTheirOwn_data() { rowStates(); }

    void twoLinesHaveColoursOfTheirOwn()
    {
        QFETCH(bool, marked);
        QFETCH(bool, pressed);
        QFETCH(bool, background);
        QFETCH(bool, tail);
        for (const bool hasSlash : {true, false}) {
            const QString text = hasSlash ? QStringLiteral("Upper/Lower") : QStringLiteral("Upper");
            Subject s(allRoles(kCentre | (tail ? kTailText : 0)), SpTableList::LIST_STYLE_5);
            prepare(s, marked, pressed, background);
            s.set(Centre, text);
            COMPARE_PICTURES(
                s.painted(), onCanvas([&](QPainter &p) {
                    drawRowGround(p, background, pressed);
                    if (tail) {
                        p.setPen(Qt::darkGray);
                        p.setFont(sized(20));
                        p.drawText(QRect(kNoTail - 100, kRow.top(), 100, kRow.height()), kLine,
                                   QStringLiteral("3:45"));
                        p.setPen(Qt::white);
                    }
                    const QRect rect = centreRect(kNoHeader, tail ? kNoTail - 100 : kNoTail);
                    p.setFont(sized(22));
                    p.drawText(hasSlash ? lines(rect) : rect,
                               hasSlash ? int(Qt::AlignLeft | Qt::AlignTop) : kLine,
                               QStringLiteral("Upper"));
                    if (!hasSlash)
                        return;
                    p.setPen(Qt::darkGray);
                    p.setFont(sized(26));
                    p.drawText(lines(rect), Qt::AlignLeft | Qt::AlignBottom,
                               QStringLiteral("Lower"));
                }));
        }
    }

    // --- LIST_STYLE_6 ---------------------------------------------------------------------------

    // Only the tail is coloured, and with it what follows in its pen: the small part.
    void threePartsHaveColoursOfTheirOwn_data() { rowStates(); }

    void threePartsHaveColoursOfTheirOwn()
    {
        QFETCH(bool, marked);
        QFETCH(bool, pressed);
        QFETCH(bool, background);
        QFETCH(bool, tail);
        Subject s(allRoles(kCentre | (tail ? kTailText : 0)), SpTableList::LIST_STYLE_6);
        prepare(s, marked, pressed, background);
        s.set(Centre, QStringLiteral("small/gray/white"));
        COMPARE_PICTURES(
            s.painted(), onCanvas([&](QPainter &p) {
                drawRowGround(p, background, pressed);
                if (tail) {
                    if (marked)
                        p.setPen(QColor(250, 240, 10));
                    else if (pressed)
                        p.setPen(QColor(10, 240, 250));
                    drawTailText(p);
                }
                const QRect rect = lines(centreRect(kNoHeader, tail ? kNoTail - 100 : kNoTail));
                p.setFont(sized(22));
                p.drawText(rect, Qt::AlignLeft | Qt::AlignTop, QStringLiteral("small"));
                p.setPen(Qt::darkGray);
                p.drawText(rect, Qt::AlignLeft | Qt::AlignBottom, QStringLiteral("gray"));
                p.setPen(Qt::white);
                p.drawText(rect, Qt::AlignLeft | Qt::AlignBottom, QStringLiteral("white"));
            }));
    }

    void threeParts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QFont>("font");
        QTest::addColumn<QFont>("small");
        QFont points(QStringLiteral("DejaVu Sans"));
        points.setPointSize(24);
        QFont smallOfPoints = points;
        smallOfPoints.setPixelSize(14);
        QFont tenPoints = points;
        tenPoints.setPointSize(10);
        QFont elevenPoints = points;
        elevenPoints.setPointSize(11);
        QFont onePixel = points;
        onePixel.setPixelSize(1);
        QTest::newRow("three") << "small/gray/white" << points << smallOfPoints;
        QTest::newRow("empty parts are kept") << "//white" << points << smallOfPoints;
        QTest::newRow("four") << "small/gray/white/none" << points << smallOfPoints;
        QTest::newRow("a size in px stays") << "small/gray/white" << sized(22) << sized(22);
        QTest::newRow("ten points stay") << "small/gray/white" << tenPoints << tenPoints;
        QTest::newRow("eleven points") << "small/gray/white" << elevenPoints << onePixel;
    }

    void threeParts()
    {
        QFETCH(QString, text);
        QFETCH(QFont, font);
        QFETCH(QFont, small);
        Subject s(allRoles(kCentre), SpTableList::LIST_STYLE_6);
        s.giveBackgrounds();
        s.delegate.setCenterFont(font);
        s.set(Centre, text);
        COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                             const QStringList parts = text.split('/');
                             const QRect rect = lines(centreRect(kNoHeader, kNoTail));
                             p.drawPixmap(kRow.topLeft(), pictures().normal);
                             p.setFont(small);
                             p.drawText(rect, Qt::AlignLeft | Qt::AlignTop, parts[0]);
                             p.setFont(font);
                             p.setPen(Qt::darkGray);
                             p.drawText(rect, Qt::AlignLeft | Qt::AlignBottom, parts[1]);
                             p.setPen(Qt::white);
                             p.drawText(rect, Qt::AlignLeft | Qt::AlignBottom, parts[2]);
                         }));
    }

    void twoPartsOrFewerLeaveTheCentreEmpty()
    {
        for (const QString &text : {QStringLiteral("a/b"), QStringLiteral("a"), QString()}) {
            Subject s(allRoles(kCentre), SpTableList::LIST_STYLE_6);
            s.set(Centre, text);
            COMPARE_PICTURES(s.painted(), onCanvas(drawSeparator));
        }
    }

    // --- LIST_STYLE_3 ---------------------------------------------------------------------------

    static Subject *makeRolling(const QString &text = kLongText)
    {
        auto *s = new Subject(allRoles(kCentre), SpTableList::LIST_STYLE_3);
        s->delegate.setRollTimerId(5);
        s->set(Centre, text);
        return s;
    }

    void aTextThatFitsStandsStill()
    {
        const std::unique_ptr<Subject> s(makeRolling(QStringLiteral("Title")));
        COMPARE_PICTURES(s->painted(), onCanvas([](QPainter &p) {
                             drawSeparator(p);
                             drawCentre(p, centreRect(kNoHeader, kNoTail));
                         }));
        QVERIFY(!s->delegate.rollData());
    }

    void withoutATimerEveryTextStandsStill()
    {
        const std::unique_ptr<Subject> s(makeRolling());
        s->delegate.setRollTimerId(0);
        COMPARE_PICTURES(s->painted(), onCanvas([](QPainter &p) {
                             drawSeparator(p);
                             drawCentre(p, centreRect(kNoHeader, kNoTail), kLongText);
                         }));
        QVERIFY(!s->delegate.rollData());
    }

    void otherStylesDoNotRoll()
    {
        for (int style : {0, 1, 2, 4, 5, 6}) {
            const std::unique_ptr<Subject> s(makeRolling());
            s->delegate.setStyle(style);
            s->painted();
            QVERIFY(!s->delegate.rollData());
        }
    }

    void theFirstPaintMakesARecord()
    {
        const std::unique_ptr<Subject> s(makeRolling());
        s->painted();
        const StringRollingData *data = s->delegate.rollData();
        QVERIFY(data);
        QVERIFY(!data->next);
        const QFontMetrics metrics(sized(22));
        const int count =
            centreRect(kNoHeader, kNoTail).width() / metrics.horizontalAdvance('.') + 3;
        QVERIFY(count < kLongText.size());
        QCOMPARE(data->fullText, kLongText + QString(16, ' '));
        QCOMPARE(data->visibleText, kLongText.left(count));
        QCOMPARE(data->nextIndex, count);
        QCOMPARE(data->offset, 0);
        QCOMPARE(data->firstWidth, metrics.horizontalAdvance('A'));
        QCOMPARE(data->row, 0);
    }

    void theRollingTextIsShiftedAndNotClipped_data()
    {
        QTest::addColumn<bool>("marked");
        QTest::addColumn<bool>("pressed");
        QTest::addColumn<int>("offset");
        QTest::newRow("at its start") << false << false << 0;
        QTest::newRow("shifted") << false << false << 9;
        QTest::newRow("shifted and marked") << true << false << 30;
        QTest::newRow("shifted and pressed") << false << true << 30;
        QTest::newRow("shifted, marked and pressed") << true << true << 30;
    }

    void theRollingTextIsShiftedAndNotClipped()
    {
        QFETCH(bool, marked);
        QFETCH(bool, pressed);
        QFETCH(int, offset);
        const std::unique_ptr<Subject> s(makeRolling());
        s->set(Content, kCentre | kTailIcon | kHeaderIcon);
        s->set(Marked, marked);
        if (pressed)
            s->press(200);
        auto *data = record(0, QStringLiteral("unused"));
        data->visibleText = QStringLiteral("rolling");
        data->offset = offset;
        s->delegate.addRollData(data);
        s->delegate.addRollData(record(99));
        const QFontMetrics metrics(sized(22));
        const QRect centre = centreRect(kRow.left() + 59, kNoTail - 83);
        for (const QString &visible :
             {QStringLiteral("rolling"), kLongText, QStringLiteral("ends in spaces   ")}) {
            data->visibleText = visible;
            COMPARE_PICTURES(s->painted(), onCanvas([&](QPainter &p) {
                                 drawSeparator(p);
                                 drawHeaderIcon(p, pictures().header);
                                 drawTailIcon(p, pictures().tail);
                                 if (marked)
                                     p.setPen(QColor(250, 240, 10));
                                 else if (pressed)
                                     p.setPen(QColor(10, 240, 250));
                                 p.setFont(sized(22));
                                 p.drawText(QRect(centre.left() - offset, kRow.top(),
                                                  metrics.horizontalAdvance(visible),
                                                  kRow.height()),
                                            kLine, visible);
                             }));
        }
        QCOMPARE(rows(s->delegate), (QVector<int>{0, 99}));
    }

    // The row at the end of the records gets another one when it is painted again, which starts
    // from its beginning; from the third paint on the first is drawn.
    void theRowOfTheLastRecordGetsASecondOne()
    {
        const std::unique_ptr<Subject> s(makeRolling());
        const QImage start = s->painted();
        s->delegate.rollData()->offset = 10;
        COMPARE_PICTURES(s->painted(), start);
        QCOMPARE(rows(s->delegate), (QVector<int>{0, 0}));
        QVERIFY(s->painted() != start);
        QCOMPARE(rows(s->delegate), (QVector<int>{0, 0}));
        QCOMPARE(s->delegate.rollDataCount(), 2);
    }

    void aRecordShiftedOutOfSightShowsNothing()
    {
        const std::unique_ptr<Subject> s(makeRolling());
        for (int offset : {INT_MIN, -100000, 100000, INT_MAX}) {
            auto *data = record(0, QString());
            data->visibleText = QStringLiteral("rolling");
            data->offset = offset;
            s->delegate.addRollData(data);
            s->delegate.addRollData(record(1));
            COMPARE_PICTURES(s->painted(), onCanvas(drawSeparator));
            s->delegate.clearRollData();
        }
    }

    void aShortTextOfWideCharactersRollsWhole()
    {
        const QString text = QString(18, QLatin1Char('W'));
        const std::unique_ptr<Subject> s(makeRolling(text));
        s->painted();
        QVERIFY(s->delegate.rollData());
        QCOMPARE(s->delegate.rollData()->visibleText, text + QString(16, ' '));
        QVERIFY(s->delegate.rollData()->nextIndex > 34);
    }

    void aCentreWithoutRoomRollsWithTheFewCharactersThatAreLeft_data()
    {
        QTest::addColumn<int>("tailWidth");
        QTest::addColumn<int>("characters");
        QTest::newRow("a little too wide") << 360 << 1;
        QTest::newRow("far too wide") << 100000 << 0;
    }

    void aCentreWithoutRoomRollsWithTheFewCharactersThatAreLeft()
    {
        QFETCH(int, tailWidth);
        QFETCH(int, characters);
        const std::unique_ptr<Subject> s(makeRolling());
        s->set(Content, kCentre | kTailText);
        s->set(Tail, QString());
        s->delegate.setTailStrWidth(tailWidth);
        s->painted();
        QVERIFY(s->delegate.rollData());
        QCOMPARE(s->delegate.rollData()->visibleText, kLongText.left(characters));
        QCOMPARE(s->delegate.rollData()->nextIndex, characters);
    }

    // --- Speed ----------------------------------------------------------------------------------

    void aRowThatHasMovedHasTheSamePixels()
    {
        for (int style = 0; style <= 6; ++style) {
            Subject s(allRoles(kNumber | kCentre | kTailText), style);
            s.set(Centre, QStringLiteral("Upper, AV/Lower fi/Part of three"));
            const QImage still = s.painted();
            for (int top = -70; top < 80; top += 7) {
                s.option.rect = kRow.translated(top / 3, top);
                QImage fresh(430, 80, QImage::Format_ARGB32_Premultiplied);
                fresh.fill(kGround);
                QPainter p(&fresh);
                p.setPen(kViewPen);
                Subject other(allRoles(kNumber | kCentre | kTailText), style);
                other.set(Centre, QStringLiteral("Upper, AV/Lower fi/Part of three"));
                other.option.rect = s.option.rect;
                other.paint(p);
                p.end();
                COMPARE_PICTURES(s.painted(), fresh);
            }
            s.option.rect = kRow;
            COMPARE_PICTURES(s.painted(), still);
        }
    }

    void theSeparatorIsALineHoweverItIsPainted_data()
    {
        QTest::addColumn<Paint>("prepare");
        QTest::newRow("plain") << Paint([](QPainter &) {});
        QTest::newRow("moved") << Paint([](QPainter &p) { p.translate(3, -2); });
        for (int tenths = -9; tenths < 10; tenths += 3) {
            QTest::addRow("moved by %d tenths of a pixel", tenths) << Paint(
                [tenths](QPainter &p) { p.translate(qreal(tenths) / 10, qreal(tenths) / 10); });
        }
        QTest::newRow("enlarged") << Paint([](QPainter &p) { p.scale(1.5, 1.25); });
        QTest::newRow("turned") << Paint([](QPainter &p) { p.rotate(2); });
        QTest::newRow("smooth") << Paint(
            [](QPainter &p) { p.setRenderHint(QPainter::Antialiasing); });
    }

    void theSeparatorIsALineHoweverItIsPainted()
    {
        QFETCH(Paint, prepare);
        for (int width : {400, 21, 20, 19, 5}) {
            Subject s(allRoles(0));
            s.option.rect.setWidth(width);
            COMPARE_PICTURES(onCanvas([&](QPainter &p) {
                                 prepare(p);
                                 s.paint(p);
                             }),
                             onCanvas([&](QPainter &p) {
                                 prepare(p);
                                 p.setPen(QColor(100, 100, 100, 255));
                                 p.drawLine(kRow.left() + 20, kRow.bottom(), kRow.left() + width,
                                            kRow.bottom());
                             }));
        }
    }

    // What is kept of the texts is bounded, however many rows pass by.
    void theMemoryDoesNotGrowWithTheRowsPainted()
    {
        Subject s(allRoles(kCentre | kTailText));
        const QString rest(1000, QLatin1Char('w'));
        const auto paintRows = [&](int first, int count) {
            onCanvas([&](QPainter &p) {
                for (int row = first; row < first + count; ++row) {
                    s.set(Centre, QString(QString::number(row) + rest));
                    s.set(Tail, QString::number(row));
                    s.paint(p);
                }
            });
        };
        paintRows(0, 2000); // fills what there is to fill
        const std::size_t before = allocatedBytes();
        paintRows(2000, 1000);
        const std::size_t after = allocatedBytes();
        QVERIFY(before > 0);
        QVERIFY2(after < before + 100000, qPrintable(QString::number(after - before)));
    }

    void theFontsOfTheMomentCount()
    {
        for (int style : {0, 5, 6}) {
            Subject s(allRoles(kNumber | kCentre | kTailText), style);
            s.set(Centre, QStringLiteral("one/two/three"));
            s.painted();
            s.delegate.setCenterFont(sized(25));
            s.delegate.setTailFont(sized(13));
            Subject fresh(allRoles(kNumber | kCentre | kTailText), style);
            fresh.set(Centre, QStringLiteral("one/two/three"));
            fresh.delegate.setCenterFont(sized(25));
            fresh.delegate.setTailFont(sized(13));
            COMPARE_PICTURES(s.painted(), fresh.painted());
        }
    }

    // --- Hard to break --------------------------------------------------------------------------

    void hostileModels_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("invalid") << QVariant();
        QTest::newRow("a string") << QVariant(QStringLiteral("radio"));
        QTest::newRow("a list") << QVariant(QStringList{"a", "b"});
        QTest::newRow("a null picture") << QVariant(QPixmap());
        QTest::newRow("an image") << QVariant(QImage(20, 20, QImage::Format_RGB32));
        QTest::newRow("a huge picture") << QVariant(picture(Qt::red, {20000, 3}));
        QTest::newRow("100,000 characters") << QVariant(QString(100000, QLatin1Char('W')));
        QTest::newRow("200,000 characters") << QVariant(QString(200000, QLatin1Char('i')));
        QTest::newRow("slashes") << QVariant(QString(5000, QLatin1Char('/')));
        QTest::newRow("a lone surrogate") << QVariant(QString(QChar(0xD800)));
        QTest::newRow("surrogates") << QVariant(QString(300, QChar(0xDC00)));
        QTest::newRow("nul") << QVariant(QString(3, QChar(0)));
        QTest::newRow("lines") << QVariant(QString(500, QLatin1Char('\n')));
        QTest::newRow("negative") << QVariant(-1);
        QTest::newRow("smallest") << QVariant(INT_MIN);
        QTest::newRow("not a number") << QVariant(qQNaN());
        QTest::newRow("number as text") << QVariant(QStringLiteral("-99999999999999999999"));
    }

    // An answer of the wrong type is what a variant makes of it, which mostly is nothing.
    void hostileModels()
    {
        QFETCH(QVariant, value);
        Roles converted;
        for (int role : {HeaderIcon, PressedHeaderIcon, TailIcon, PressedTailIcon})
            converted[role] = value.value<QPixmap>();
        for (int role : {Number, Centre, Tail})
            converted[role] = value.toString();
        for (int role : {Marked, HeaderPressed, TailPressed})
            converted[role] = value.toBool();
        const bool isLong = value.toString().size() > 10000; // and takes its time in each style
        for (int style = isLong ? 0 : -1; style <= 7; style += isLong ? 3 : 1) {
            for (const QVariant &content : {QVariant(0x0F1F1F), QVariant(0xF0F0F0), value}) {
                HostileModel model;
                model.answer = [&](int role) { return role == Content ? content : value; };
                converted[Content] = content.toInt();
                Subject tame(converted, style);
                Subject s({}, style);
                for (Subject *subject : {&tame, &s}) {
                    subject->delegate.setRollTimerId(1);
                    subject->giveBackgrounds();
                    subject->press(100);
                }
                for (int i = 0; i < 3; ++i) {
                    COMPARE_PICTURES(onCanvas([&](QPainter &p) {
                                         s.delegate.paint(&p, s.option, model.index(0));
                                     }),
                                     tame.painted());
                }
            }
        }
    }

    // A number without bounds puts things where no row has ever been, as a large one does.
    void hostileNumbersPutThingsOutOfSight()
    {
        for (int style = 0; style <= 6; ++style) {
            for (const auto &[number, large] : {std::pair(INT_MIN, -100000),
                                                {INT_MIN + 1, -100000},
                                                {INT_MAX - 1, 100000},
                                                {INT_MAX, 100000}}) {
                Subject hostile(allRoles(-1), style);
                setNumbers(hostile, number);
                Subject far(allRoles(-1), style);
                setNumbers(far, large);
                COMPARE_PICTURES(hostile.painted(), far.painted());
                for (Subject *s : {&hostile, &far}) {
                    s->set(Content, kNumber | kCentre | kTailText);
                    s->giveBackgrounds();
                }
                COMPARE_PICTURES(hostile.painted(), far.painted());
            }
        }
    }

    void hostileRectanglesShowTheirBackgroundAndLeaveThePainter_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<bool>("isInSight");
        const QPoint start(INT_MIN, INT_MIN);
        const QPoint end(INT_MAX, INT_MAX);
        QTest::newRow("none") << QRect() << true;
        QTest::newRow("inverted") << QRect(QPoint(50, 50), QPoint(-50, -50)) << true;
        QTest::newRow("everything") << QRect(start, end) << false;
        QTest::newRow("at the end") << QRect(end, end) << false;
        QTest::newRow("one pixel") << QRect(3, 3, 1, 1) << true;
        QTest::newRow("low") << QRect(3, 3, 300, 5) << true;
    }

    void hostileRectanglesShowTheirBackgroundAndLeaveThePainter()
    {
        QFETCH(QRect, rect);
        QFETCH(bool, isInSight);
        for (int style = 0; style <= 6; ++style) {
            Subject s(allRoles(-1), style);
            s.set(Centre, QStringLiteral("one/two/three"));
            s.giveBackgrounds();
            s.option.rect = rect;
            s.press(10);
            onCanvas([&](QPainter &p) {
                const QFont font = p.font();
                s.paint(p);
                QCOMPARE(p.pen(), QPen(kViewPen));
                QCOMPARE(p.font(), font);
                QVERIFY(p.transform().isIdentity());
            });
            s.set(Content, 0);
            s.delegate.setItemPressed(false, QPoint());
            COMPARE_PICTURES(s.painted(), onCanvas([&](QPainter &p) {
                                 if (isInSight)
                                     p.drawPixmap(rect.topLeft(), pictures().normal);
                             }));
        }
    }

    void noPainterIsNoHarm()
    {
        Subject s(allRoles(-1));
        s.delegate.paint(nullptr, s.option, s.model.index(0, 0));
    }

    void anIndexThatIsNoneIsNoHarm()
    {
        Subject s;
        COMPARE_PICTURES(
            onCanvas([&](QPainter &p) { s.delegate.paint(&p, s.option, QModelIndex()); }),
            onCanvas(drawSeparator));
    }

private:
    static void rowStates()
    {
        QTest::addColumn<bool>("marked");
        QTest::addColumn<bool>("pressed");
        QTest::addColumn<bool>("background");
        QTest::addColumn<bool>("tail");
        for (int bits = 0; bits < 16; ++bits) {
            const auto has = [bits](int bit) { return (bits >> bit & 1) != 0; };
            QTest::addRow("marked %d, pressed %d, background %d, tail %d", has(0), has(1), has(2),
                          has(3))
                << has(0) << has(1) << has(2) << has(3);
        }
    }

    static void prepare(Subject &s, bool marked, bool pressed, bool background)
    {
        s.set(Marked, marked);
        if (pressed)
            s.press(200);
        if (background)
            s.giveBackgrounds();
    }

    static void drawRowGround(QPainter &p, bool background, bool pressed)
    {
        if (background)
            p.drawPixmap(kRow.topLeft(), pressed ? pictures().press : pictures().normal);
        else
            drawSeparator(p);
    }

    static void setNumbers(Subject &s, int number)
    {
        s.set(Centre, QStringLiteral("one/two/three"));
        s.delegate.setHeaderIconGain(number);
        s.delegate.setHeaderIconWidth(number);
        s.delegate.setCenterStrGain(number);
        s.delegate.setTailIconGain(number);
        s.delegate.setTailIconWidth(number);
        s.delegate.setPixmapGain(number);
        s.delegate.setTailStrWidth(number);
        s.delegate.setRollTimerId(number);
        s.press(number);
    }
};

WIDGET_TEST_MAIN(tst_StyleDelegate)
#include "tst_styledelegate.moc"
