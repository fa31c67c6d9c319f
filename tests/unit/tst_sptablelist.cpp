// SPDX-License-Identifier: Apache-2.0
#include <SpTableList>

#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QDataStream>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStringListModel>

#include <dlfcn.h>

#include <algorithm>
#include <climits>
#include <memory>
#include <optional>
#include <type_traits>

// Whoever includes the list has its delegate and the records of rolling texts.
static_assert(std::is_base_of_v<QStyledItemDelegate, styleDelegate>);
static_assert(std::is_same_v<decltype(StringRollingData::row), int>);

// What the resource compiler's output calls.
Q_CORE_EXPORT bool qRegisterResourceData(int, const uchar *, const uchar *, const uchar *);
Q_CORE_EXPORT bool qUnregisterResourceData(int, const uchar *, const uchar *, const uchar *);

namespace
{

constexpr int kRowHeight = 60;
constexpr int kWidth = 400;
constexpr int kHeight = 300;
const QString kLongText =
    QStringLiteral("A title that is very much longer than all the room it has");

enum Role : int { Content = 258, HeaderIcon = 259, Centre = 262 };
constexpr int kCentre = 0x1000;

// The resource that an application may have compiled in, for as long as this lives.
class ScrollBarResource
{
public:
    explicit ScrollBarResource(const QByteArray &content)
    {
        QDataStream data(&m_data, QIODevice::WriteOnly);
        data << content;
        addNode(0, kDirectory, 1); // the root
        addNode(addName(QStringLiteral("qss")), kDirectory, 2);
        addNode(addName(QStringLiteral("scrollbar.qss")), kFile, 0);
        change(&qRegisterResourceData);
    }
    ~ScrollBarResource() { change(&qUnregisterResourceData); }
    Q_DISABLE_COPY(ScrollBarResource)

private:
    enum Kind : quint16 { kFile = 0, kDirectory = 2 };

    static const uchar *bytes(const QByteArray &array)
    {
        return reinterpret_cast<const uchar *>(array.constData());
    }

    void change(bool (*action)(int, const uchar *, const uchar *, const uchar *))
    {
        action(1, bytes(m_tree), bytes(m_names), bytes(m_data));
    }

    quint32 addName(const QString &name)
    {
        quint32 hash = 0;
        for (const QChar c : name) {
            hash = (hash << 4) + c.unicode();
            hash ^= (hash & 0xF0000000) >> 23;
            hash &= 0x0FFFFFFF;
        }
        const auto offset = quint32(m_names.size());
        QDataStream names(&m_names, QIODevice::Append);
        names << quint16(name.size()) << hash;
        for (const QChar c : name)
            names << quint16(c.unicode());
        return offset;
    }

    // A directory has one child; a file has neither country nor language.
    void addNode(quint32 name, Kind kind, quint32 target)
    {
        QDataStream tree(&m_tree, QIODevice::Append);
        tree << name << quint16(kind) << quint32(kind == kDirectory ? 1 : 0x00000001) << target;
    }

    QByteArray m_tree;
    QByteArray m_names;
    QByteArray m_data;
};

class Rows : public QAbstractListModel
{
public:
    explicit Rows(int count, QString text = QString()) : m_count(count), m_text(std::move(text)) { }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : m_count;
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        ++reads[role];
        if (role == Content)
            return kCentre;
        if (role == Centre)
            return m_text.isEmpty() ? QStringLiteral("Title %1").arg(index.row()) : m_text;
        if (role == Qt::DisplayRole)
            return QStringLiteral("beep %1").arg(index.row());
        return {};
    }
    void reset(int count)
    {
        beginResetModel();
        m_count = count;
        endResetModel();
    }
    void insertAtTheTop(int count)
    {
        beginInsertRows({}, 0, count - 1);
        m_count += count;
        endInsertRows();
    }
    void shrink(int count)
    {
        if (count >= m_count)
            return;
        beginRemoveRows({}, count, m_count - 1);
        m_count = count;
        endRemoveRows();
    }

    mutable QMap<int, int> reads;

private:
    int m_count;
    QString m_text;
};

// A list of rows of 60 px, shown at 400 x 300, without a frame: five rows in sight.
std::unique_ptr<SpTableList> makeList(QAbstractItemModel *model, QWidget *parent = nullptr)
{
    auto list = std::make_unique<SpTableList>(parent);
    list->setFrameShape(QFrame::NoFrame);
    list->setModel(model);
    list->setItemHeight(kRowHeight);
    list->setItemWidth(kWidth);
    list->resize(kWidth, kHeight);
    return list;
}

styleDelegate *delegateOf(const SpTableList &list)
{
    return static_cast<styleDelegate *>(list.itemDelegate());
}

int scrolled(const SpTableList &list) { return list.verticalScrollBar()->value(); }

// Signals with the index as "row", which is what can be compared.
const QString kSelected = QStringLiteral("haveItemSelect(true)");
const QString kNotSelected = QStringLiteral("haveItemSelect(false)");

QStringList taken(SignalLog &log)
{
    QStringList lines = log.take();
    lines.replaceInStrings(QRegularExpression(QStringLiteral("QModelIndex\\((-?\\d+),.*\\)")),
                           QStringLiteral("index \\1)"));
    return lines;
}

// Lets a full minute and so many ms begin. A coarse timer may be early or late by 5 % so as to
// expire at a round time; one that is due at such a time is exact.
void waitUntil(int ms)
{
    virtualtime::startMinute();
    virtualtime::advance(ms);
}

// A tap that is slow enough to click.
void tap(SpTableList &list, int x, int y, int ms = 100)
{
    touch(list.viewport()).press(x, y).hold(ms).release();
}

// A drag that starts 200 ms after its press and flings nothing.
void slowDrag(SpTableList &list, int from, int to)
{
    touch(list.viewport()).press(100, from).moveTo(100, to).hold(300).release();
}

// The timer events of an object, by their timers.
class TimerEvents : public QObject
{
public:
    QVector<int> timers;

protected:
    bool eventFilter(QObject *, QEvent *e) override
    {
        if (e->type() == QEvent::Timer)
            timers += static_cast<QTimerEvent *>(e)->timerId();
        return false;
    }
};

// Those that a list has handed on to its base class.
QVector<int> timersOfTheView;

// What a subclass of the application's may see.
class Watching : public SpTableList
{
public:
    QVector<QRect> painted;

    using SpTableList::timerEvent;

protected:
    void paintEvent(QPaintEvent *e) override
    {
        for (const QRect &rect : e->region())
            painted += rect;
        SpTableList::paintEvent(e);
    }
};

} // namespace

// Stands before the function of the same name in Qt's library, and calls it.
void QTableView::timerEvent(QTimerEvent *e)
{
    timersOfTheView += e->timerId();
    using Handler = void (*)(QTableView *, QTimerEvent *);
    static const auto original =
        reinterpret_cast<Handler>(dlsym(RTLD_NEXT, "_ZN10QTableView10timerEventEP11QTimerEvent"));
    original(this, e);
}

void checkGeometryIsThatOfANewList(const SpTableList &list)
{
    QVERIFY(list.normalImage().isNull());
    QVERIFY(list.pressImage().isNull());
    QCOMPARE(list.headerIconGain(), 20);
    QCOMPARE(list.headerIconWidth(), 0);
    QCOMPARE(list.centerStrGain(), 15);
    QCOMPARE(list.tailIconGain(), 47);
    QCOMPARE(list.tailIconWidth(), 0);
    QCOMPARE(list.pixmapGain(), 0);
    QCOMPARE(list.tailStrWidth(), 100);
    QCOMPARE(list.UIStyle(), SpTableList::LIST_STYLE_0);
}

class tst_SpTableList : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction ---------------------------------------------------------------------------

    void defaults()
    {
        SpTableList list;
        QCOMPARE(list.itemHeight(), 10);
        QCOMPARE(list.itemWidth(), 10);
        QCOMPARE(list.centerFontSize(), QFont().pixelSize());
        QCOMPARE(list.tailFontSize(), QFont().pixelSize());
        QVERIFY(!list.hightColor().isValid());
        QCOMPARE(list.pressColor(), QColor(255, 255, 255, 255));
        QCOMPARE(list.useDefaultStyle(), true);
        checkGeometryIsThatOfANewList(list);
        QCOMPARE(list.getBIsBeep(), true);
        QCOMPARE(list.getHighlightFlag(), false);
        QVERIFY(!list.model());
    }

    void theViewIsSetUpForFingers()
    {
        SpTableList list;
        QVERIFY(qobject_cast<styleDelegate *>(list.itemDelegate()));
        QCOMPARE(list.itemDelegate()->parent(), &list);
        QVERIFY(list.horizontalHeader()->isHidden());
        QVERIFY(list.verticalHeader()->isHidden());
        QCOMPARE(list.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(list.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
        QCOMPARE(list.selectionMode(), QAbstractItemView::SingleSelection);
        QCOMPARE(list.selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(list.verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QVERIFY(!list.showGrid());
    }

    void aNewListLeavesTheHeaderSizes()
    {
        SpTableList list;
        const QTableView view;
        QCOMPARE(list.verticalHeader()->defaultSectionSize(),
                 view.verticalHeader()->defaultSectionSize());
        QCOMPARE(list.horizontalHeader()->defaultSectionSize(),
                 view.horizontalHeader()->defaultSectionSize());
    }

    void theScrollBarHasTheApplicationsStyleSheet()
    {
        QCOMPARE(SpTableList().verticalScrollBar()->styleSheet(), QString());
        QCOMPARE(takeMessages(), QStringList());
        const QByteArray sheet = QByteArrayLiteral("QScrollBar { width: 7px }\0ignored");
        const ScrollBarResource resource(sheet);
        QVERIFY(QFile::exists(QStringLiteral(":/qss/scrollbar.qss")));
        SpTableList list;
        QCOMPARE(list.verticalScrollBar()->styleSheet(),
                 QStringLiteral("QScrollBar { width: 7px }"));
    }

    // --- Properties -----------------------------------------------------------------------------

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("itemHeight", 61);
        row("itemWidth", 401);
        row("centerFontSize", 23);
        row("tailFontSize", 19);
        row("hightColor", QColor(1, 2, 3, 4));
        row("pressColor", QColor(4, 3, 2, 1));
        row("useDefaultStyle", false);
        row("headerIconGain", -1);
        row("headerIconWidth", 51);
        row("centerStrGain", 52);
        row("tailIconGain", 53);
        row("tailIconWidth", 54);
        row("pixmapGain", 55);
        row("tailStrWidth", INT_MIN);
        row("UIStyle", 4);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(SpTableList()); }

    void propertiesReachTheDelegate()
    {
        SpTableList list;
        const styleDelegate &delegate = *delegateOf(list);
        const QPixmap pixmap(3, 4);
        list.setCenterFontSize(23);
        QCOMPARE(delegate.centerFont().pixelSize(), 23);
        list.setTailFontSize(19);
        QCOMPARE(delegate.tailFont().pixelSize(), 19);
        QCOMPARE(delegate.centerFont().pixelSize(), 23);
        list.setHightColor(Qt::red);
        QCOMPARE(delegate.hightColor(), QColor(Qt::red));
        list.setPressColor(Qt::blue);
        QCOMPARE(delegate.pressColor(), QColor(Qt::blue));
        list.setUseDefaultStyle(false);
        QCOMPARE(delegate.useIt(), false);
        list.setNormalImage(pixmap);
        QCOMPARE(delegate.normalPix().cacheKey(), pixmap.cacheKey());
        QCOMPARE(list.normalImage().cacheKey(), pixmap.cacheKey());
        QVERIFY(list.pressImage().isNull());
        list.setPressImage(pixmap);
        QCOMPARE(delegate.pressPix().cacheKey(), pixmap.cacheKey());
        QCOMPARE(list.pressImage().cacheKey(), pixmap.cacheKey());
        list.setHeaderIconGain(1);
        QCOMPARE(delegate.headerIconGain(), 1);
        list.setHeaderIconWidth(2);
        QCOMPARE(delegate.headerIconWidth(), 2);
        list.setCenterStrGain(3);
        QCOMPARE(delegate.centerStrGain(), 3);
        list.setTailIconGain(4);
        QCOMPARE(delegate.tailIconGain(), 4);
        list.setTailIconWidth(5);
        QCOMPARE(delegate.tailIconWidth(), 5);
        list.setPixmapGain(6);
        QCOMPARE(delegate.pixmapGain(), 6);
        list.setTailStrWidth(7);
        QCOMPARE(delegate.tailStrWidth(), 7);
        list.setUIStyle(SpTableList::LIST_STYLE_6);
        QCOMPARE(delegate.style(), 6);
        list.setTailRectX(8);
        QCOMPARE(delegate.tailRectX(), 8);
        list.setCenterTextFlag(9);
        QCOMPARE(delegate.getCenterTextFlag(), 9);
    }

    void theClockIsThatOfTheMinute()
    {
        SpTableList list;
        QCOMPARE(list.getCurrentTime(), 0U);
        virtualtime::advance(1234);
        QCOMPARE(list.getCurrentTime(), 1234U);
        virtualtime::advance(58765);
        QCOMPARE(list.getCurrentTime(), 59999U);
        virtualtime::advance(1);
        QCOMPARE(list.getCurrentTime(), 0U);
    }

    void theFlagOfTheListIsItsOwn()
    {
        SpTableList list;
        delegateOf(list)->setUseIt(false);
        QCOMPARE(list.useDefaultStyle(), true);
    }

    void fontSizesBelowOneAreIgnored()
    {
        SpTableList list;
        list.setCenterFontSize(23);
        list.setTailFontSize(19);
        for (int px : {0, -1, INT_MIN}) {
            list.setCenterFontSize(px);
            list.setTailFontSize(px);
            QCOMPARE(list.centerFontSize(), 23);
            QCOMPARE(list.tailFontSize(), 19);
        }
    }

    void itemSizesAreThoseOfTheHeaders()
    {
        SpTableList list;
        list.setItemHeight(61);
        list.setItemWidth(402);
        QCOMPARE(list.verticalHeader()->defaultSectionSize(), 61);
        QCOMPARE(list.horizontalHeader()->defaultSectionSize(), 402);
        list.setItemHeight(-5);
        QCOMPARE(list.itemHeight(), -5);
        QCOMPARE(list.verticalHeader()->defaultSectionSize(), 61);
    }

    void settersDoNotRepaint()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        const int count = paints(*list->viewport(), [&] {
            list->setCenterFontSize(30);
            list->setTailFontSize(30);
            list->setHightColor(Qt::red);
            list->setPressColor(Qt::red);
            list->setUseDefaultStyle(false);
            list->setNormalImage(QPixmap(3, 3));
            list->setPressImage(QPixmap(3, 3));
            list->setHeaderIconGain(1);
            list->setHeaderIconWidth(1);
            list->setCenterStrGain(1);
            list->setTailIconGain(1);
            list->setTailIconWidth(1);
            list->setPixmapGain(1);
            list->setTailStrWidth(1);
            list->setUIStyle(SpTableList::LIST_STYLE_4);
            list->setTailRectX(1);
            list->setCenterTextFlag(1);
            list->setHighlightFlag(true);
            list->setBIsBeep(false);
        });
        QCOMPARE(count, 0);
    }

    void withoutItsDelegateAListAnswersWithDefaults()
    {
        SpTableList list;
        list.setUIStyle(SpTableList::LIST_STYLE_3);
        list.setHeaderIconGain(99);
        delete delegateOf(list);
        list.setCenterFontSize(33);
        list.setTailFontSize(33);
        list.setHightColor(Qt::red);
        list.setPressColor(Qt::red);
        list.setUseDefaultStyle(false);
        list.setNormalImage(QPixmap(3, 3));
        list.setPressImage(QPixmap(3, 3));
        list.setHeaderIconGain(33);
        list.setHeaderIconWidth(33);
        list.setCenterStrGain(33);
        list.setTailIconGain(33);
        list.setTailIconWidth(33);
        list.setPixmapGain(33);
        list.setTailStrWidth(33);
        list.setUIStyle(SpTableList::LIST_STYLE_3);
        list.setTailRectX(33);
        list.setCenterTextFlag(33);
        QCOMPARE(list.centerFontSize(), 20);
        QCOMPARE(list.tailFontSize(), 20);
        QCOMPARE(list.hightColor(), QColor(255, 255, 255, 255));
        QCOMPARE(list.pressColor(), QColor(255, 255, 255, 255));
        QCOMPARE(list.useDefaultStyle(), false);
        checkGeometryIsThatOfANewList(list);
        list.setHighlightFlag(true);
        list.resize(200, 200);
        show(list);
        touch(list.viewport()).press(10, 100).moveTo(10, 10).release().hold(3000);
        tap(list, 10, 10, 400);
        list.listModelReset();
        list.hide();
        virtualtime::advance(2000);
    }

    // --- Pictures -------------------------------------------------------------------------------

    // Rows as their delegate alone paints them, on the ground of the view.
    static QImage expectedRows(const SpTableList &list)
    {
        return reference(*list.viewport(), [&](QPainter &p) {
            p.fillRect(list.viewport()->rect(), list.palette().base());
            QStyleOptionViewItem option;
            for (int row = 0; row < list.model()->rowCount(); ++row) {
                option.rect = QRect(0, row * kRowHeight, kWidth, kRowHeight);
                list.itemDelegate()->paint(&p, option, list.model()->index(row, 0));
            }
        });
    }

    void rowsArePaintedByTheDelegate()
    {
        Rows rows(3);
        const auto list = makeList(&rows);
        list->setCenterFontSize(22);
        show(*list);
        COMPARE_PICTURES(painted(*list->viewport()), expectedRows(*list));
    }

    void withoutUseDefaultStyleRowsAreBlank()
    {
        Rows rows(3);
        Rows none(0);
        const auto list = makeList(&rows);
        show(*list);
        const QImage withRows = painted(*list->viewport());
        list->setUseDefaultStyle(false);
        const QImage blank = painted(*list->viewport());
        QVERIFY(blank != withRows);
        list->setModel(&none);
        COMPARE_PICTURES(blank, expectedRows(*list));
    }

    // --- Press ----------------------------------------------------------------------------------

    void aPressIsReportedAndAsksForAClickSound()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        Touch finger = touch(list->viewport());
        finger.press(100, 70);
        QCOMPARE(taken(log), QStringList{"listPressed()"});
        QCoreApplication::processEvents();
        QCOMPARE(taken(log), QStringList{"beep"});
        QCOMPARE(list->currentIndex().row(), 1);
        QVERIFY(list->selectionModel()->isSelected(rows.index(1)));
    }

    void theViewsOwnSignalsComeFirst()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        QStringList order;
        connect(list.get(), &SpTableList::pressed, this, [&] { order += "pressed"; });
        connect(list.get(), &SpTableList::listPressed, this, [&] { order += "listPressed"; });
        connect(list.get(), &SpTableList::clicked, this, [&] { order += "clicked"; });
        connect(list.get(), &SpTableList::currentShowIndex, this,
                [&] { order += "currentShowIndex"; });
        tap(*list, 100, 70);
        QCOMPARE(order, (QStringList{"pressed", "listPressed", "clicked", "currentShowIndex"}));
    }

    void withoutBeepOrRowNoSoundIsAskedFor()
    {
        Rows rows(2);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        touch(list->viewport()).press(100, 200).hold(0); // below the rows
        QCOMPARE(taken(log), QStringList{"listPressed()"});
        list->setBIsBeep(false);
        touch(list->viewport()).press(100, 70).hold(0);
        QCOMPARE(taken(log), QStringList{"listPressed()"});
    }

    void theRequestForASoundGoesOnToTheParent()
    {
        QWidget parent;
        SpTableList list(&parent);
        SignalLog log(&parent);
        Rows rows(100);
        list.setModel(&rows);
        list.resize(400, 300);
        parent.show();
        touch(list.viewport()).press(5, 5).hold(0);
        QCOMPARE(taken(log), QStringList{"beep"});
        parent.hide();
    }

    void theSoundIsNoKeyTheListSearchesFor()
    {
        Rows rows(1000); // all of them start with "beep"
        const auto list = makeList(&rows);
        tap(*list, 100, 70);
        rows.reads.clear();
        virtualtime::advance(1000);
        QCOMPARE(list->currentIndex().row(), 1);
        QCOMPARE(rows.reads.value(Qt::DisplayRole), 0);
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QCoreApplication::sendEvent(list.get(), &down);
        QCOMPARE(list->currentIndex().row(), 2);
    }

    void theSoundOpensNoEditor()
    {
        QStringListModel model({"a", "b"}); // its rows can be edited
        const auto list = makeList(&model);
        show(*list);
        tap(*list, 100, 70);
        virtualtime::advance(1000);
        QVERIFY(list->viewport()->findChildren<QWidget *>().isEmpty());
    }

    void theRowShowsPressedAfter260ms()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        const styleDelegate &delegate = *delegateOf(*list);
        Touch finger = touch(list->viewport());
        waitUntil(240);
        finger.press(100, 70).hold(259);
        QVERIFY(!delegate.itemPressed());
        QCOMPARE(paints(*list->viewport(), [&] { finger.hold(1); }), 1);
        QVERIFY(delegate.itemPressed());
        QCOMPARE(delegate.pressedPoint(), QPoint(100, 70));
        QCOMPARE(paints(*list->viewport(), [&] { finger.hold(1000); }), 0); // once
    }

    void aSecondPressWaitsAnew()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        Touch finger = touch(list->viewport());
        waitUntil(40);
        finger.press(100, 70).hold(200).press(100, 130).hold(259);
        QVERIFY(!delegateOf(*list)->itemPressed());
        finger.hold(1);
        QCOMPARE(delegateOf(*list)->pressedPoint(), QPoint(100, 130));
        show(*list);
        QCOMPARE(paints(*list->viewport(), [&] { finger.hold(1000); }), 0); // no timer is left over
    }

    void pressAndReleaseRepaint()
    {
        Rows rows(2);
        const auto list = makeList(&rows);
        show(*list);
        Touch finger = touch(list->viewport());
        QCOMPARE(paints(*list->viewport(), [&] { finger.press(100, 200); }), 1);
        QCOMPARE(paints(*list->viewport(), [&] { finger.release(); }), 1);
    }

    void anIdleListDoesNothing()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        tap(*list, 100, 70, 400);
        virtualtime::advance(5000);
        QCOMPARE(paints(*list->viewport(), [] { virtualtime::advance(60000); }), 0);
    }

    // --- Click ----------------------------------------------------------------------------------

    void aTapClicks50msLater()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        list->setBIsBeep(false);
        show(*list);
        SignalLog log(list.get());
        Touch finger = touch(list->viewport());
        finger.press(100, 70).hold(100).release();
        QCOMPARE(taken(log), (QStringList{"listPressed()", "currentShowIndex(1)"}));
        QVERIFY(delegateOf(*list)->itemPressed());
        QCOMPARE(delegateOf(*list)->pressedPoint(), QPoint(100, 70));
        virtualtime::advance(49);
        QCOMPARE(taken(log), QStringList());
        QCOMPARE(paints(*list->viewport(), [&] { virtualtime::advance(1); }), 1);
        QCOMPARE(taken(log), (QStringList{"itemClicked(index 1)", "itemClicked(1)"}));
        QVERIFY(!delegateOf(*list)->itemPressed());
        virtualtime::advance(1000);
        QCOMPARE(taken(log), QStringList());
    }

    void theShortestTap_data()
    {
        QTest::addColumn<int>("ms");
        QTest::addColumn<bool>("clicks");
        QTest::newRow("at once") << 0 << false;
        QTest::newRow("10 ms") << 10 << false;
        QTest::newRow("11 ms") << 11 << true;
        QTest::newRow("long") << 20000 << true;
        QTest::newRow("almost a minute") << 59999 << true;
        QTest::newRow("a minute") << 60000 << false;
        QTest::newRow("a minute and 10 ms") << 60010 << false;
        QTest::newRow("a minute and 11 ms") << 60011 << true;
    }

    void theShortestTap()
    {
        QFETCH(int, ms);
        QFETCH(bool, clicks);
        Rows rows(100);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        tap(*list, 100, 70, ms);
        QCOMPARE(delegateOf(*list)->itemPressed(), clicks);
        virtualtime::advance(60);
        QCOMPARE(taken(log).contains("itemClicked(1)"), clicks);
    }

    void theSlownessOfAClick_data()
    {
        QTest::addColumn<int>("px");
        QTest::addColumn<int>("ms");
        QTest::addColumn<bool>("clicks");
        QTest::newRow("100 px/s") << 10 << 100 << false;
        QTest::newRow("99 px/s, truncated") << 10 << 101 << true;
        QTest::newRow("upward, 100 px/s") << -10 << 100 << false;
        QTest::newRow("upward, 99 px/s") << -10 << 101 << true;
        QTest::newRow("15 px in 150 ms") << 15 << 150 << false;
        QTest::newRow("15 px in 151 ms") << 15 << 151 << true;
        QTest::newRow("16 px") << 16 << 1000 << false;
        QTest::newRow("-15 px") << -15 << 1000 << true;
        QTest::newRow("-16 px") << -16 << 1000 << false;
    }

    void theSlownessOfAClick()
    {
        QFETCH(int, px);
        QFETCH(int, ms);
        QFETCH(bool, clicks);
        Rows rows(100);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        touch(list->viewport()).press(100, 90).moveTo(100, 90 + px).hold(ms).release().hold(60);
        QCOMPARE(taken(log).contains("itemClicked(1)"), clicks);
    }

    void aReleaseOnAnotherRowIsNoClick()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        touch(list->viewport()).press(100, 118).moveTo(100, 120).hold(500).release().hold(50);
        QVERIFY(taken(log).filter("itemClicked").isEmpty());
        QVERIFY(!delegateOf(*list)->itemPressed());
    }

    void aTouchBesideTheRowsIsNoClick()
    {
        Rows rows(1);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        tap(*list, 100, 200);
        virtualtime::advance(50);
        QCOMPARE(taken(log), (QStringList{"listPressed()", "currentShowIndex(-1)"}));
        QVERIFY(!delegateOf(*list)->itemPressed());
    }

    void aReleaseAfterTheFullMinuteIsNoClick()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        virtualtime::advance(59900);
        tap(*list, 100, 70, 200); // until 0.1 s of the next minute
        virtualtime::advance(50);
        QVERIFY(taken(log).filter("itemClicked").isEmpty());
    }

    // The pressed look ends where the finger has left, whether with a click or without.
    void theRowIsReleasedWhereTheFingerIs()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        const styleDelegate &delegate = *delegateOf(*list);
        Touch finger = touch(list->viewport());
        finger.press(100, 70).moveTo(103, 75).hold(1000).release();
        QCOMPARE(delegate.pressedPoint(), QPoint(103, 75));
        delegateOf(*list)->setItemPressed(true, QPoint());
        finger.hold(60);
        QCOMPARE(delegate.pressedPoint(), QPoint(103, 75));
        QVERIFY(!delegate.itemPressed());
        finger.press(100, 70).moveTo(104, 90).hold(1000);
        delegateOf(*list)->setItemPressed(true, QPoint());
        finger.release();
        QCOMPARE(delegate.pressedPoint(), QPoint(104, 90));
        QVERIFY(!delegate.itemPressed());
    }

    void aPressTakesBackAPendingClick()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        tap(*list, 100, 70);
        virtualtime::advance(49);
        touch(list->viewport()).press(100, 130).hold(200);
        QVERIFY(taken(log).filter("itemClicked").isEmpty());
    }

    void aHeldRowIsClickedToo()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        tap(*list, 100, 70, 1000);
        QVERIFY(delegateOf(*list)->itemPressed());
        virtualtime::advance(50);
        QVERIFY(taken(log).contains("itemClicked(1)"));
        QVERIFY(!delegateOf(*list)->itemPressed());
    }

    void clickPositions_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("position"); // 0: none is reported
        // Rows 300 px wide; header 20..70, tail 40 px wide, in LIST_STYLE_4 30 px from the right.
        QTest::newRow("2, before the tail") << 2 << 259 << 262;
        QTest::newRow("2, tail starts") << 2 << 260 << 264;
        QTest::newRow("2, tail ends") << 2 << 300 << 264;
        QTest::newRow("2, past the tail") << 2 << 301 << 262;
        QTest::newRow("2, header") << 2 << 30 << 262;
        QTest::newRow("4, before the header") << 4 << 19 << 0;
        QTest::newRow("4, header starts") << 4 << 20 << 259;
        QTest::newRow("4, header ends") << 4 << 70 << 259;
        QTest::newRow("4, past the header") << 4 << 71 << 0;
        QTest::newRow("4, before the tail") << 4 << 229 << 0;
        QTest::newRow("4, tail starts") << 4 << 230 << 264;
        QTest::newRow("4, tail ends") << 4 << 270 << 264;
        QTest::newRow("4, past the tail") << 4 << 271 << 0;
        for (int style : {0, 1, 3, 5, 6}) {
            QTest::addRow("%d, header", style) << style << 30 << 0;
            QTest::addRow("%d, tail", style) << style << 265 << 0;
        }
    }

    void clickPositions()
    {
        QFETCH(int, style);
        QFETCH(int, x);
        QFETCH(int, position);
        Rows rows(100);
        const auto list = makeList(&rows);
        list->horizontalHeader()->resizeSection(0, kWidth); // wider than what counts for clicks
        list->setItemWidth(300);
        list->horizontalHeader()->resizeSection(0, kWidth);
        list->setUIStyle(SpTableList::LIST_STYLE(style));
        list->setHeaderIconWidth(50);
        list->setTailIconWidth(40);
        list->setTailIconGain(30);
        SignalLog log(list.get());
        tap(*list, x, 70);
        virtualtime::advance(50);
        QStringList expected{"itemClicked(index 1)", "itemClicked(1)"};
        if (position != 0)
            expected += QStringLiteral("itemClicked(1, %1)").arg(position);
        QCOMPARE(taken(log).filter("itemClicked"), expected);
    }

    void theTailGoesBeforeTheHeader()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        list->setUIStyle(SpTableList::LIST_STYLE_4);
        list->setHeaderIconWidth(400);
        list->setTailIconWidth(400);
        SignalLog log(list.get());
        tap(*list, 100, 70);
        virtualtime::advance(50);
        QVERIFY(taken(log).contains("itemClicked(1, 264)"));
    }

    void aChangedModelSwallowsNoTap_data()
    {
        QTest::addColumn<bool>("isReset");
        QTest::addColumn<bool>("beforeTheRelease");
        for (bool isReset : {false, true}) {
            for (bool before : {false, true})
                QTest::addRow("%s, %s", isReset ? "reset" : "rows inserted",
                              before ? "before the release" : "before the click")
                    << isReset << before;
        }
    }

    void aChangedModelSwallowsNoTap()
    {
        QFETCH(bool, isReset);
        QFETCH(bool, beforeTheRelease);
        Rows rows(100);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        const auto change = [&] {
            if (isReset)
                rows.reset(90);
            else
                rows.insertAtTheTop(3);
        };
        Touch finger = touch(list->viewport());
        finger.press(100, 70).hold(100);
        if (beforeTheRelease)
            change();
        finger.release();
        if (!beforeTheRelease)
            change();
        virtualtime::advance(50);
        QCOMPARE(taken(log).filter("itemClicked"),
                 (QStringList{"itemClicked(index 1)", "itemClicked(1)"}));
    }

    // The old index may no longer be asked for anything: its parent is gone.
    void theReportedIndexIsThatOfTheRowAsItIsNow()
    {
        QStandardItemModel model(10, 1);
        const auto list = makeList(&model);
        QModelIndex reported;
        connect(list.get(), QOverload<QModelIndex>::of(&SpTableList::itemClicked), this,
                [&](const QModelIndex &index) { reported = index; });
        tap(*list, 100, 70);
        model.clear();
        model.setColumnCount(1);
        model.setRowCount(5);
        virtualtime::advance(50);
        QVERIFY(reported.isValid());
        QCOMPARE(reported, model.index(1, 0));
    }

    // --- Drag -----------------------------------------------------------------------------------

    void aDragBeginsBeyond15px_data()
    {
        QTest::addColumn<int>("px");
        QTest::addColumn<int>("expected");
        QTest::newRow("15 up") << -15 << 500;
        QTest::newRow("16 up") << -16 << 516;
        QTest::newRow("15 down") << 15 << 500;
        QTest::newRow("16 down") << 16 << 484;
    }

    void aDragBeginsBeyond15px()
    {
        QFETCH(int, px);
        QFETCH(int, expected);
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        list->verticalScrollBar()->setValue(500);
        touch(list->viewport()).press(100, 150).moveTo(100, 150 + px);
        QCOMPARE(scrolled(*list), expected);
    }

    void sidewaysIsNoDrag()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        SignalLog log(list.get());
        touch(list->viewport()).press(100, 70).moveTo(390, 70).hold(100).release().hold(50);
        QCOMPARE(scrolled(*list), 0);
        QVERIFY(taken(log).contains("itemClicked(1)"));
    }

    void theFirstStepCountsFromThePress()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        Touch finger = touch(list->viewport());
        finger.press(100, 150).moveTo(100, 140).moveTo(100, 136);
        QCOMPARE(scrolled(*list), 0);
        finger.moveTo(100, 134); // 16 px
        QCOMPARE(scrolled(*list), 16);
        finger.moveTo(100, 130);
        QCOMPARE(scrolled(*list), 20);
        finger.moveTo(100, 148); // back within the slop: still a drag
        QCOMPARE(scrolled(*list), 2);
    }

    void everyTouchStartsFromItsOwnPress()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        slowDrag(*list, 200, 150);
        QCOMPARE(scrolled(*list), 50);
        slowDrag(*list, 250, 200);
        QCOMPARE(scrolled(*list), 100);
    }

    // The view selects the row that was under the finger before the list follows it.
    void theViewHearsOfAMoveBeforeTheListScrolls()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        touch(list->viewport()).press(100, 70).moveTo(100, 20);
        QCOMPARE(scrolled(*list), 50);
        QCOMPARE(list->currentIndex().row(), 0);
    }

    void aDragStopsAtBothBounds()
    {
        Rows rows(8); // 480 px, 180 of them out of sight
        const auto list = makeList(&rows);
        show(*list);
        Touch finger = touch(list->viewport());
        finger.press(100, 250).moveTo(100, 10);
        QCOMPARE(scrolled(*list), 180);
        finger.moveTo(100, 11);
        QCOMPARE(scrolled(*list), 179);
        finger.moveTo(100, 290);
        QCOMPARE(scrolled(*list), 0);
    }

    void aDragTakesBackThePressedRow()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        Touch finger = touch(list->viewport());
        finger.press(100, 70).hold(300);
        QVERIFY(delegateOf(*list)->itemPressed());
        finger.moveTo(101, 85); // 15 px
        QVERIFY(delegateOf(*list)->itemPressed());
        finger.moveTo(102, 86);
        QVERIFY(!delegateOf(*list)->itemPressed());
        QCOMPARE(delegateOf(*list)->pressedPoint(), QPoint(102, 86));
    }

    void aDragTakesBackTheWaitForThePressedRow()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        touch(list->viewport()).press(100, 70).hold(250).moveTo(100, 86).hold(1000);
        QVERIFY(!delegateOf(*list)->itemPressed());
    }

    void aMoveWithinTheSlopKeepsTheWait()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        touch(list->viewport()).press(100, 70).hold(250).moveTo(100, 85).hold(10);
        QVERIFY(delegateOf(*list)->itemPressed());
    }

    void aDragIsNoClick()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        touch(list->viewport())
            .press(100, 70)
            .moveTo(100, 100)
            .hold(500)
            .moveTo(100, 70)
            .release()
            .hold(50);
        QVERIFY(taken(log).filter("itemClicked").isEmpty());
    }

    void leavingAtTheTopOrBottomEndsTheDrag_data()
    {
        QTest::addColumn<int>("y");
        QTest::addColumn<bool>("ends");
        QTest::newRow("top") << 0 << false;
        QTest::newRow("above") << -1 << true;
        QTest::newRow("bottom") << kHeight << false;
        QTest::newRow("below") << kHeight + 1 << true;
        QTest::newRow("far above") << INT_MIN / 2 << true;
    }

    void leavingAtTheTopOrBottomEndsTheDrag()
    {
        QFETCH(int, y);
        QFETCH(bool, ends);
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        list->verticalScrollBar()->setValue(1000);
        SignalLog log(list.get());
        Touch finger = touch(list->viewport());
        virtualtime::advance(1);
        finger.press(100, 150).moveTo(100, 170);
        QCOMPARE(scrolled(*list), 980);
        finger.moveTo(100, y);
        QCOMPARE(scrolled(*list), ends ? 980 : 980 + 170 - y);
        finger.hold(50).release();
        const int before = scrolled(*list);
        virtualtime::advance(200);
        QCOMPARE(scrolled(*list) == before, ends); // whether it was flung
        QVERIFY(taken(log).filter("itemClicked").isEmpty());
    }

    void leavingPutsTheListWhereTheLastDragLeftIt()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        slowDrag(*list, 200, 150);
        list->verticalScrollBar()->setValue(700);
        Touch finger = touch(list->viewport());
        finger.press(100, 150).moveTo(100, -1);
        QCOMPARE(scrolled(*list), 50);
        rows.shrink(5); // the range is empty now
        virtualtime::advance(0);
        finger.moveTo(100, -2);
        QCOMPARE(scrolled(*list), 0);
    }

    // The view would scroll to a row that is in sight only in part when it becomes the current one.
    void rowsDoNotSlipAwayFromUnderTheFinger()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        list->verticalScrollBar()->setValue(1030);
        Touch finger = touch(list->viewport());
        finger.press(100, 5).hold(2000);
        QCOMPARE(scrolled(*list), 1030);
        finger.moveTo(100, 299);
        QCOMPARE(scrolled(*list), 1030 - 294);
        finger.release();
        list->setCurrentIndex(rows.index(50)); // what the application chooses is scrolled to
        QVERIFY(scrolled(*list) > 2000);
    }

    void leavingKeepsTheWaitForThePressedRow()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        touch(list->viewport()).press(100, 10).moveTo(100, -1).hold(300);
        QVERIFY(delegateOf(*list)->itemPressed());
        QCOMPARE(delegateOf(*list)->pressedPoint(), QPoint(100, 10));
    }

    void leavingBeforeAnyDragMovesNothing()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        list->verticalScrollBar()->setValue(700);
        touch(list->viewport()).press(100, 150).moveTo(100, -1).release();
        QCOMPARE(scrolled(*list), 700);
    }

    void afterLeavingADragGoesOnFromTheLastPlaceInside()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        touch(list->viewport()).press(100, 200).moveTo(100, 100).moveTo(100, -50).moveTo(100, 90);
        QCOMPARE(scrolled(*list), 110);
    }

    // --- Fling ----------------------------------------------------------------------------------

    // Drags upward by so many px, with this time from the first move to the release.
    static void fling(SpTableList &list, int px, int ms)
    {
        virtualtime::advance(1); // the clock says 0 for "not moved yet"
        touch(list.viewport()).press(100, 290).moveTo(100, 290 - px).hold(ms).release();
    }

    void theTimeOfAFling_data()
    {
        QTest::addColumn<int>("ms");
        QTest::addColumn<bool>("flings");
        QTest::newRow("0 ms") << 0 << false;
        QTest::newRow("2 ms") << 2 << false;
        QTest::newRow("3 ms") << 3 << true;
        QTest::newRow("259 ms") << 259 << true;
        QTest::newRow("260 ms") << 260 << false;
        QTest::newRow("59 s") << 59000 << false;
    }

    void theTimeOfAFling()
    {
        QFETCH(int, ms);
        QFETCH(bool, flings);
        Rows rows(1000);
        const auto list = makeList(&rows);
        show(*list);
        fling(*list, 100, ms);
        QCOMPARE(scrolled(*list), 100);
        virtualtime::advance(1000);
        QCOMPARE(scrolled(*list) > 100, flings);
    }

    void aFlingGoes50pxEvery20ms()
    {
        Rows rows(1000);
        const auto list = makeList(&rows);
        show(*list);
        SignalLog log(list.get());
        virtualtime::advance(19); // so that its ticks are at full 20 ms
        fling(*list, 100, 200); // 6 steps
        taken(log);
        for (int step = 1; step <= 6; ++step) {
            virtualtime::advance(19);
            QCOMPARE(scrolled(*list), 100 + (step - 1) * 50);
            virtualtime::advance(1);
            QCOMPARE(scrolled(*list), 100 + step * 50);
        }
        QCOMPARE(taken(log), QStringList());
        virtualtime::advance(20);
        QCOMPARE(taken(log), (QStringList{"currentShowIndex(3)"}));
        virtualtime::advance(5000);
        QCOMPARE(taken(log), QStringList());
        QCOMPARE(scrolled(*list), 400);
    }

    void theTickAfterTheLastStepOfAFlingRepaintsNothing()
    {
        Rows rows(1000);
        const auto list = makeList(&rows);
        show(*list);
        virtualtime::advance(19);
        fling(*list, 100, 200); // 6 steps
        SignalLog log(list.get());
        for (int step = 0; step < 6; ++step)
            QVERIFY(paints(*list->viewport(), [] { virtualtime::advance(20); }) > 0);
        QCOMPARE(taken(log), QStringList());
        QCOMPARE(paints(*list->viewport(), [] { virtualtime::advance(20); }), 0);
        QCOMPARE(taken(log), QStringList{"currentShowIndex(3)"});
    }

    void theStepsOfAFling_data()
    {
        QTest::addColumn<int>("px");
        QTest::addColumn<int>("ms");
        QTest::addColumn<int>("steps");
        QTest::newRow("truncated") << 100 << 259 << 4;
        QTest::newRow("none") << 16 << 193 << 0;
        QTest::newRow("one") << 16 << 192 << 1;
        QTest::newRow("just below the most") << 290 << 7 << 497;
        QTest::newRow("the most") << 280 << 6 << 500;
        QTest::newRow("exactly the most") << 250 << 6 << 500;
    }

    void theStepsOfAFling()
    {
        QFETCH(int, px);
        QFETCH(int, ms);
        QFETCH(int, steps);
        Rows rows(1000);
        const auto list = makeList(&rows);
        show(*list);
        SignalLog log(list.get());
        fling(*list, px, ms);
        virtualtime::advance(20000);
        QCOMPARE(scrolled(*list), px + steps * 50);
        QCOMPARE(taken(log).filter("currentShowIndex").size(), 2);
    }

    void aDragOf600pxIn10msGives500Steps()
    {
        Rows rows(1000);
        const auto list = makeList(&rows);
        list->resize(kWidth, 700);
        show(*list);
        virtualtime::advance(1);
        touch(list->viewport()).press(100, 690).moveTo(100, 90).hold(10).release().hold(20000);
        QCOMPARE(scrolled(*list), 600 + 500 * 50);
    }

    void aFlingDownwardGoesBack()
    {
        Rows rows(1000);
        const auto list = makeList(&rows);
        show(*list);
        list->verticalScrollBar()->setValue(5000);
        virtualtime::advance(1);
        touch(list->viewport()).press(100, 100).moveTo(100, 200).hold(200).release().hold(5000);
        QCOMPARE(scrolled(*list), 4900 - 6 * 50);
    }

    void aFlingEndsExactlyAtTheBound_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("end");
        const int maximum = 100 * kRowHeight - kHeight;
        QTest::newRow("bottom") << maximum - 130 << 250 << 150 << maximum;
        QTest::newRow("at the bottom") << maximum << 250 << 150 << maximum;
        QTest::newRow("a whole step to the bottom") << maximum - 150 << 250 << 150 << maximum;
        QTest::newRow("top") << 130 << 150 << 250 << 0;
        QTest::newRow("a whole step to the top") << 150 << 150 << 250 << 0;
    }

    void aFlingEndsExactlyAtTheBound()
    {
        QFETCH(int, start);
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(int, end);
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        list->verticalScrollBar()->setValue(start);
        SignalLog log(list.get());
        virtualtime::advance(1);
        touch(list->viewport()).press(100, from).moveTo(100, to).hold(100).release();
        virtualtime::advance(60);
        QCOMPARE(scrolled(*list), end);
        virtualtime::advance(5000);
        QCOMPARE(scrolled(*list), end);
        QCOMPARE(taken(log).filter("currentShowIndex").size(), 2); // by the release and at the end
        tap(*list, 100, 70); // there is nothing left to stop
        virtualtime::advance(50);
        QCOMPARE(taken(log).filter("itemClicked").size(), 2);
    }

    void aTapStopsAFlingWithoutAClick()
    {
        Rows rows(1000);
        const auto list = makeList(&rows);
        show(*list);
        fling(*list, 250, 50); // 60 steps
        virtualtime::advance(200);
        SignalLog log(list.get());
        const int before = scrolled(*list);
        tap(*list, 100, 70);
        virtualtime::advance(2000);
        QCOMPARE(scrolled(*list), before);
        QVERIFY(taken(log).filter("itemClicked").isEmpty());
        tap(*list, 100, 70);
        virtualtime::advance(50);
        QCOMPARE(taken(log).filter("itemClicked").size(), 2); // the next one clicks
    }

    // A fling that has done its last step only waits to report its end: a touch stops nothing then.
    void aTapAfterTheLastStepOfAFlingClicks()
    {
        Rows rows(1000);
        const auto list = makeList(&rows);
        show(*list);
        fling(*list, 16, 193); // no steps at all
        SignalLog log(list.get());
        Touch finger = touch(list->viewport());
        finger.press(100, 70).hold(100).release();
        virtualtime::advance(60);
        QCOMPARE(taken(log).filter("itemClicked").size(), 2);
    }

    void aFlingAcrossTheFullMinuteIsNone()
    {
        Rows rows(1000);
        const auto list = makeList(&rows);
        show(*list);
        virtualtime::advance(59900);
        touch(list->viewport()).press(100, 290).moveTo(100, 190).hold(150).release().hold(1000);
        QCOMPARE(scrolled(*list), 100);
    }

    void theTimeOfAFlingCountsFromTheFirstMove()
    {
        Rows rows(1000);
        const auto list = makeList(&rows);
        show(*list);
        virtualtime::advance(1);
        Touch finger = touch(list->viewport());
        finger.press(100, 290).hold(2000).moveTo(100, 190).hold(100).release().hold(5000);
        QCOMPARE(scrolled(*list), 100 + 12 * 50);
        list->verticalScrollBar()->setValue(0);
        finger.press(100, 290).moveTo(100, 285).hold(200).moveTo(100, 190).hold(60).release();
        finger.hold(5000);
        QCOMPARE(scrolled(*list), 100); // 260 ms from a move within the slop
        list->verticalScrollBar()->setValue(0);
        finger.press(100, 290).moveTo(100, 190).hold(100).release().hold(5000);
        QCOMPARE(scrolled(*list), 100 + 12 * 50); // each touch has a first move of its own
    }

    // At a full minute the clock shows 0, which also means that nothing has moved yet.
    void aFirstMoveAtTheFullMinuteIsForgotten()
    {
        Rows rows(1000);
        const auto list = makeList(&rows);
        show(*list);
        virtualtime::startMinute();
        Touch finger = touch(list->viewport());
        finger.press(100, 290).moveTo(100, 190).hold(100).release().hold(1000);
        QCOMPARE(scrolled(*list), 100);
    }

    // --- Highlight mode -------------------------------------------------------------------------

    static std::unique_ptr<SpTableList> makeHighlighting(QAbstractItemModel *model)
    {
        auto list = makeList(model);
        list->setBIsBeep(false);
        list->setHighlightFlag(true);
        list->setTailRectX(300);
        return list;
    }

    // Highlights the second row.
    static void select(SpTableList &list)
    {
        tap(list, 100, 70);
        virtualtime::advance(50);
    }

    // What a list says last of a tap.
    static QString selectionAfterTap(SpTableList &list, int x, int y)
    {
        SignalLog log(&list);
        tap(list, x, y);
        return taken(log).last();
    }

    void aClickedRowStaysHighlighted()
    {
        Rows rows(100);
        const auto list = makeHighlighting(&rows);
        SignalLog log(list.get());
        tap(*list, 300, 70);
        QCOMPARE(taken(log),
                 (QStringList{"listPressed()", "currentShowIndex(1)", "haveItemSelect(true)"}));
        virtualtime::advance(50);
        QCOMPARE(taken(log), (QStringList{"itemClicked(index 1)", "itemClicked(1)"}));
        QVERIFY(delegateOf(*list)->itemPressed());
    }

    void aSecondClickTakesTheHighlightAway()
    {
        Rows rows(100);
        const auto list = makeHighlighting(&rows);
        tap(*list, 100, 70);
        virtualtime::advance(50);
        SignalLog log(list.get());
        Touch finger = touch(list->viewport());
        finger.press(100, 70);
        QVERIFY(!delegateOf(*list)->itemPressed());
        finger.hold(100).release();
        QCOMPARE(taken(log).last(), "haveItemSelect(false)");
        QVERIFY(!delegateOf(*list)->itemPressed());
        virtualtime::advance(50);
        QVERIFY(taken(log).contains("itemClicked(1)"));
        tap(*list, 100, 70); // and a third one brings it back
        QCOMPARE(taken(log).last(), "haveItemSelect(true)");
    }

    void aSecondClickAfterTheModelHasChangedTakesTheHighlightAwayToo()
    {
        for (bool isReset : {false, true}) {
            Rows rows(100);
            const auto list = makeHighlighting(&rows);
            tap(*list, 100, 70);
            virtualtime::advance(50);
            if (isReset)
                rows.reset(90);
            else
                rows.insertAtTheTop(3);
            SignalLog log(list.get());
            tap(*list, 100, 70);
            QCOMPARE(taken(log).last(), "haveItemSelect(false)");
            QVERIFY(!delegateOf(*list)->itemPressed());
        }
    }

    // One that stands at the same place in memory is another model all the same.
    void theHighlightDoesNotSurviveItsModel()
    {
        std::optional<Rows> rows(std::in_place, 100);
        const auto list = makeHighlighting(&*rows);
        select(*list);
        rows.emplace(100);
        list->setModel(&*rows);
        QCOMPARE(selectionAfterTap(*list, 100, 70), kSelected);
    }

    void anotherRowTakesTheHighlightOver()
    {
        Rows rows(100);
        const auto list = makeHighlighting(&rows);
        select(*list);
        QCOMPARE(selectionAfterTap(*list, 100, 130), kSelected);
        QCOMPARE(selectionAfterTap(*list, 100, 70), kSelected);
    }

    void thePressInHighlightModeHasTheOldPoint()
    {
        Rows rows(100);
        const auto list = makeHighlighting(&rows);
        touch(list->viewport()).press(101, 71).press(200, 80);
        QCOMPARE(delegateOf(*list)->pressedPoint(), QPoint(101, 71));
    }

    void thePressOutsideHighlightModeLeavesTheRowPressed()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        touch(list->viewport()).press(100, 70).hold(300).press(100, 130);
        QVERIFY(delegateOf(*list)->itemPressed());
    }

    void aTouchOnTheTailHighlightsNothingButClicks()
    {
        Rows rows(100);
        const auto list = makeHighlighting(&rows);
        SignalLog log(list.get());
        Touch finger = touch(list->viewport());
        finger.press(301, 70).hold(300);
        QVERIFY(!delegateOf(*list)->itemPressed());
        finger.release();
        QVERIFY(!delegateOf(*list)->itemPressed());
        QCOMPARE(taken(log).last(), "haveItemSelect(false)");
        virtualtime::advance(50);
        QCOMPARE(taken(log), (QStringList{"itemClicked(index 1)", "itemClicked(1)"}));
        finger.press(300, 70).hold(260);
        QVERIFY(delegateOf(*list)->itemPressed());
    }

    void aTouchOnTheTailForgetsTheSelectedRow()
    {
        for (int y : {70, 130}) {
            Rows rows(100);
            const auto list = makeHighlighting(&rows);
            select(*list);
            tap(*list, 350, 130);
            virtualtime::advance(50);
            QCOMPARE(selectionAfterTap(*list, 100, y), kSelected);
        }
    }

    void aTouchBesideTheRowsForgetsTheSelectedRow()
    {
        Rows rows(3);
        const auto list = makeHighlighting(&rows);
        select(*list);
        QCOMPARE(selectionAfterTap(*list, 100, 250), kNotSelected);
        QCOMPARE(selectionAfterTap(*list, 100, 70), kSelected);
    }

    void outsideHighlightModeNoSelectionIsReported()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        SignalLog log(list.get());
        tap(*list, 100, 70);
        QVERIFY(taken(log).filter("haveItemSelect").isEmpty());
    }

    // --- Rolling texts --------------------------------------------------------------------------

    static std::unique_ptr<Watching> makeRolling(QAbstractItemModel *model)
    {
        auto list = std::make_unique<Watching>();
        list->setFrameShape(QFrame::NoFrame);
        list->setModel(model);
        list->setItemHeight(kRowHeight);
        list->setItemWidth(kWidth);
        list->resize(kWidth, kHeight);
        list->setUIStyle(SpTableList::LIST_STYLE_3);
        list->setCenterFontSize(22);
        return list;
    }

    void textsRoll1500msAfterTheListIsShown()
    {
        Rows rows(3, kLongText);
        const auto list = makeRolling(&rows);
        show(*list);
        const styleDelegate &delegate = *delegateOf(*list);
        virtualtime::advance(1499);
        QCOMPARE(delegate.rollTimerId(), 0);
        virtualtime::advance(1);
        QVERIFY(delegate.rollTimerId() != 0);
        list->viewport()->update();
        virtualtime::advance(149);
        QCOMPARE(delegate.rollData()->offset, 0);
        virtualtime::advance(1);
        QCOMPARE(delegate.rollData()->offset, 2);
        virtualtime::advance(150);
        QCOMPARE(delegate.rollData()->offset, 4);
    }

    void otherStylesHaveNoRollTimer()
    {
        Rows rows(3, kLongText);
        const auto list = makeRolling(&rows);
        list->setUIStyle(SpTableList::LIST_STYLE_0);
        show(*list);
        list->listModelReset();
        tap(*list, 100, 70);
        fling(*list, 100, 100);
        virtualtime::advance(5000);
        QCOMPARE(delegateOf(*list)->rollTimerId(), 0);
        QVERIFY(!delegateOf(*list)->rollData());
    }

    void aModelResetRollsAtOnce()
    {
        Rows rows(3, kLongText);
        const auto list = makeRolling(&rows);
        auto *old = new StringRollingData;
        old->row = 77;
        delegateOf(*list)->addRollData(old);
        connect(&rows, &Rows::modelReset, list.get(), &SpTableList::listModelReset);
        show(*list);
        rows.reset(4);
        QVERIFY(!delegateOf(*list)->rollData());
        QVERIFY(delegateOf(*list)->rollTimerId() != 0);
        virtualtime::advance(0);
        for (int row : {0, 1, 2, 3})
            QVERIFY(delegateOf(*list)->getRollData(row));
        virtualtime::advance(150);
        QCOMPARE(delegateOf(*list)->rollData()->offset, 2);
    }

    void aTextCycles()
    {
        SpTableList list;
        list.setUIStyle(SpTableList::LIST_STYLE_3);
        list.setCenterFontSize(22);
        list.listModelReset();
        const QFontMetrics metrics(delegateOf(list)->centerFont());
        auto *record = new StringRollingData;
        record->fullText = QStringLiteral("WiW.x");
        record->visibleText = QStringLiteral("WiW");
        record->nextIndex = 3;
        record->firstWidth = metrics.horizontalAdvance('W');
        delegateOf(list)->addRollData(record);
        QString expected = QStringLiteral("WiW");
        int next = 3;
        for (int character = 0; character < 12; ++character) {
            const int width = metrics.horizontalAdvance(expected.at(0));
            for (int offset = 2; offset < width; offset += 2) {
                virtualtime::advance(150);
                QCOMPARE(record->offset, offset);
                QCOMPARE(record->visibleText, expected);
            }
            virtualtime::advance(150);
            expected = expected.mid(1) + record->fullText.at(next);
            next = (next + 1) % 5;
            QCOMPARE(record->offset, 0);
            QCOMPARE(record->visibleText, expected);
            QCOMPARE(record->nextIndex, next);
            QCOMPARE(record->firstWidth, metrics.horizontalAdvance(expected.at(0)));
        }
    }

    void aTextThatIsShownWholeCyclesFromItsStart()
    {
        SpTableList list;
        list.setUIStyle(SpTableList::LIST_STYLE_3);
        list.listModelReset();
        auto *record = new StringRollingData;
        record->fullText = QStringLiteral("abc");
        record->visibleText = QStringLiteral("abc");
        record->nextIndex = 40; // there was room for more characters than it has
        record->firstWidth = 1;
        delegateOf(list)->addRollData(record);
        virtualtime::advance(150);
        QCOMPARE(record->visibleText, QStringLiteral("bca"));
        QCOMPARE(record->nextIndex, 1);
    }

    void hostileRecordsRollOnWithWhatTheyHave()
    {
        SpTableList list;
        list.setUIStyle(SpTableList::LIST_STYLE_3);
        list.listModelReset();
        for (int number : {INT_MIN, -1, INT_MAX}) {
            auto *record = new StringRollingData;
            record->nextIndex = number;
            record->row = number;
            record->firstWidth = number;
            delegateOf(list)->addRollData(record);
            record = new StringRollingData;
            record->fullText = QStringLiteral("a");
            record->nextIndex = number;
            record->row = number;
            delegateOf(list)->addRollData(record);
        }
        virtualtime::advance(6 * 150);
        int count = 0;
        for (const auto *record = delegateOf(list)->rollData(); record; record = record->next) {
            const bool isEmpty = count++ % 2 == 0;
            QCOMPARE(record->visibleText, isEmpty ? QString() : QStringLiteral("a"));
            QCOMPARE(record->nextIndex, isEmpty ? record->row : 0);
            if (isEmpty)
                QCOMPARE(record->offset, 6 * 2);
        }
        QCOMPARE(count, 6);
    }

    // Rows 1 and 3 of five are too long.
    static void fillRolling(QStandardItemModel &model)
    {
        model.setColumnCount(1);
        model.setRowCount(5);
        for (int row = 0; row < 5; ++row) {
            model.setData(model.index(row, 0), kCentre, Content);
            model.setData(model.index(row, 0), row == 1 || row == 3 ? kLongText : "Title", Centre);
        }
    }

    void aTickWithARecordRepaintsAllRows()
    {
        QStandardItemModel model;
        fillRolling(model);
        const auto list = makeRolling(&model);
        show(*list);
        list->listModelReset();
        list->viewport()->update();
        virtualtime::advance(0);
        QCOMPARE(rowsOf(*list), (QVector<int>{1, 3}));
        for (int tick = 0; tick < 4; ++tick) {
            list->painted.clear();
            virtualtime::advance(150);
            QCOMPARE(list->painted, QVector<QRect>{list->viewport()->rect()});
        }
    }

    void aTickWithoutARecordRepaintsNothing()
    {
        Rows rows(3);
        const auto list = makeRolling(&rows);
        show(*list);
        list->listModelReset();
        TimerEvents events;
        list->installEventFilter(&events);
        QCOMPARE(paints(*list->viewport(), [] { virtualtime::advance(1200); }), 0);
        QCOMPARE(events.timers.count(delegateOf(*list)->rollTimerId()), 8);
    }

    // A list that rolls, so far that painting it makes no more records.
    static std::unique_ptr<Watching> makeRollingSteadily(QAbstractItemModel *model)
    {
        auto list = makeRolling(model);
        show(*list);
        list->listModelReset();
        list->viewport()->update();
        virtualtime::advance(0);
        auto *last = new StringRollingData;
        last->row = 999;
        delegateOf(*list)->addRollData(last);
        virtualtime::advance(150);
        return list;
    }

    static QImage shown(const QWidget &list)
    {
        const QPixmap shown = QGuiApplication::primaryScreen()->grabWindow(list.winId());
        return shown.toImage().convertToFormat(QImage::Format_RGB32);
    }

    void aPictureThatReachesIntoARollingRowStaysWhole()
    {
        QStandardItemModel model;
        fillRolling(model);
        QPixmap icon(50, 100);
        icon.fill(Qt::magenta);
        model.setData(model.index(2, 0), kCentre | 0x1, Content);
        model.setData(model.index(2, 0), icon, HeaderIcon);
        const auto list = makeRollingSteadily(&model);
        for (int tick = 0; tick < 3; ++tick) {
            virtualtime::advance(150);
            COMPARE_PICTURES(shown(*list),
                             expectedRows(*list).convertToFormat(QImage::Format_RGB32));
        }
        QCOMPARE(shown(*list).pixelColor(30, 2 * kRowHeight - 10), QColor(Qt::magenta));
        QCOMPARE(shown(*list).pixelColor(30, 3 * kRowHeight + 10), QColor(Qt::magenta));
    }

    // From day to night: no row keeps the old look longer than until the next tick.
    void whatIsSetWhileTextsRollShowsInAllRowsAtTheNextTick()
    {
        QStandardItemModel model;
        fillRolling(model);
        const auto list = makeRollingSteadily(&model);
        QPixmap background(kWidth, kRowHeight);
        background.fill(QColor(20, 20, 90));
        list->setNormalImage(background);
        virtualtime::advance(149);
        const QImage before = shown(*list);
        virtualtime::advance(1);
        QVERIFY(shown(*list) != before);
        COMPARE_PICTURES(shown(*list), expectedRows(*list).convertToFormat(QImage::Format_RGB32));
    }

    void theFirstTickGivesEveryLongTextItsRecord()
    {
        Rows rows(3, kLongText);
        const auto list = makeRolling(&rows);
        show(*list);
        virtualtime::advance(1500);
        QVERIFY(!delegateOf(*list)->rollData()); // nothing has repainted them
        QCOMPARE(paints(*list->viewport(), [] { virtualtime::advance(1500); }), 0);
        list->update(rows.index(1));
        virtualtime::advance(0);
        QCOMPARE(rowsOf(*list), QVector<int>{1});
        virtualtime::advance(150);
        QCOMPARE(sorted(rowsOf(*list)), (QVector<int>{0, 1, 2}));
    }

    static QVector<int> sorted(QVector<int> numbers)
    {
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }

    void aPressStopsRollingButKeepsTheTimersNumber()
    {
        Rows rows(3, kLongText);
        const auto list = makeRolling(&rows);
        show(*list);
        virtualtime::advance(1500);
        list->viewport()->update();
        virtualtime::advance(600);
        const int id = delegateOf(*list)->rollTimerId();
        QVERIFY(delegateOf(*list)->rollData()->offset > 0);
        Touch finger = touch(list->viewport());
        waitUntil(500);
        finger.press(100, 70);
        QVERIFY(!delegateOf(*list)->rollData());
        QCOMPARE(delegateOf(*list)->rollTimerId(), id);
        finger.hold(0); // long texts are painted from their start
        QCOMPARE(rowsOf(*list), (QVector<int>{0, 1, 2}));
        finger.hold(3000);
        QCOMPARE(delegateOf(*list)->rollData()->offset, 0);
        finger.release();
        virtualtime::advance(1649);
        QCOMPARE(delegateOf(*list)->rollData()->offset, 0);
        virtualtime::advance(1);
        QCOMPARE(delegateOf(*list)->rollData()->offset, 2);
        QCOMPARE(takeMessages(), QStringList()); // a timer that is gone is not killed again
    }

    void aPressOutsideThisStyleLeavesTheRecords()
    {
        Rows rows(3);
        const auto list = makeList(&rows);
        delegateOf(*list)->addRollData(new StringRollingData);
        touch(list->viewport()).press(100, 70);
        QVERIFY(delegateOf(*list)->rollData());
    }

    void rollingWaitsForTheEndOfAFling()
    {
        Rows rows(1000, kLongText);
        const auto list = makeRolling(&rows);
        show(*list);
        virtualtime::advance(1600);
        const int id = delegateOf(*list)->rollTimerId();
        waitUntil(159);
        fling(*list, 100, 120); // 10 steps and a last tick, which ends at 500
        virtualtime::advance(220 + 1499);
        QCOMPARE(delegateOf(*list)->rollTimerId(), id);
        virtualtime::advance(1);
        QVERIFY(delegateOf(*list)->rollTimerId() != id);
    }

    void rollingWaitsForTheEndOfAFlingAtTheBound()
    {
        Rows rows(10, kLongText);
        const auto list = makeRolling(&rows);
        show(*list);
        virtualtime::advance(1600);
        const int id = delegateOf(*list)->rollTimerId();
        waitUntil(359);
        fling(*list, 280, 100); // 33 steps; the second one, at 500, crosses the bound
        virtualtime::advance(40 + 1499);
        QCOMPARE(delegateOf(*list)->rollTimerId(), id);
        virtualtime::advance(1);
        QVERIFY(delegateOf(*list)->rollTimerId() != id);
    }

    void hidingStopsRollingAndShowingStartsItAgain()
    {
        Rows rows(3, kLongText);
        const auto list = makeRolling(&rows);
        show(*list);
        virtualtime::advance(1500);
        list->viewport()->update();
        virtualtime::advance(500);
        QCOMPARE(delegateOf(*list)->rollData()->offset, 6);
        list->hide();
        QCOMPARE(delegateOf(*list)->rollTimerId(), 0);
        virtualtime::advance(10000);
        QCOMPARE(delegateOf(*list)->rollTimerId(), 0);
        QCOMPARE(delegateOf(*list)->rollData()->offset, 6);
        show(*list);
        virtualtime::advance(1499);
        QCOMPARE(delegateOf(*list)->rollTimerId(), 0);
        virtualtime::advance(1);
        QVERIFY(delegateOf(*list)->rollTimerId() != 0);
        virtualtime::advance(150);
        QCOMPARE(delegateOf(*list)->rollData()->offset, 8);
    }

    void showingAgainWaits1500msAnew()
    {
        Rows rows(3, kLongText);
        const auto list = makeRolling(&rows);
        show(*list);
        virtualtime::advance(500);
        list->hide();
        virtualtime::advance(500);
        show(*list); // 1000 ms after it was shown first
        virtualtime::advance(1499);
        QCOMPARE(delegateOf(*list)->rollTimerId(), 0);
        virtualtime::advance(1);
        QVERIFY(delegateOf(*list)->rollTimerId() != 0);
    }

    // Nobody asks whether the list is in sight when a wait ends or the model is reset.
    void textsRollOutOfSight()
    {
        Rows rows(3, kLongText);
        const auto list = makeRolling(&rows);
        show(*list);
        virtualtime::advance(1500);
        waitUntil(400);
        tap(*list, 100, 70);
        virtualtime::advance(100);
        QVERIFY(delegateOf(*list)->rollData());
        list->hide();
        virtualtime::advance(1399);
        QCOMPARE(delegateOf(*list)->rollTimerId(), 0);
        virtualtime::advance(1);
        QVERIFY(delegateOf(*list)->rollTimerId() != 0);
        virtualtime::advance(300);
        QCOMPARE(delegateOf(*list)->rollData()->offset, 4);
        list->listModelReset();
        QVERIFY(!delegateOf(*list)->rollData());
        QVERIFY(delegateOf(*list)->rollTimerId() != 0);
        delegateOf(*list)->addRollData(new StringRollingData);
        delegateOf(*list)->rollData()->firstWidth = 100;
        virtualtime::advance(150);
        QCOMPARE(delegateOf(*list)->rollData()->offset, 2);
    }

    void hidingInAnotherStyleLeavesTheTimersNumber()
    {
        Rows rows(3);
        const auto list = makeList(&rows);
        delegateOf(*list)->setRollTimerId(12345);
        show(*list);
        list->hide();
        QCOMPARE(delegateOf(*list)->rollTimerId(), 12345);
    }

    // --- Timers ---------------------------------------------------------------------------------

    void everyTimerEventReachesTheView()
    {
        Rows rows(100, kLongText);
        const auto list = makeRolling(&rows);
        TimerEvents events;
        list->installEventFilter(&events);
        timersOfTheView.clear();
        show(*list);
        virtualtime::advance(1500); // the wait for rolling, and timers of the view
        const int roll = delegateOf(*list)->rollTimerId();
        list->viewport()->update();
        virtualtime::advance(300); // two ticks
        tap(*list, 100, 70, 300); // the press timer
        virtualtime::advance(60); // the click timer
        QVERIFY(events.timers.size() >= 6);
        QVERIFY(events.timers.count(roll) >= 2);
        QCOMPARE(timersOfTheView, events.timers);
    }

    // The view has timers of its own, such as the one that asks a model for more rows.
    void theTimersOfTheViewWork()
    {
        class Growing : public Rows
        {
        public:
            Growing() : Rows(2) { }
            bool canFetchMore(const QModelIndex &) const override { return !isWhole; }
            void fetchMore(const QModelIndex &) override { isWhole = true; }
            bool isWhole = false;
        };
        Growing rows;
        const auto list = makeList(&rows);
        show(*list);
        virtualtime::advance(10);
        QVERIFY(rows.isWhole);
    }

    // A coarse timer is early or late by up to 5 % so as to expire at a rounder time.
    void theTimersAreCoarse()
    {
        Rows rows(100, kLongText);
        const auto list = makeRolling(&rows);
        const styleDelegate &delegate = *delegateOf(*list);
        SignalLog log(list.get());
        waitUntil(3);
        list->listModelReset();
        auto *record = new StringRollingData;
        record->firstWidth = 100;
        delegateOf(*list)->addRollData(record);
        virtualtime::advance(146);
        QCOMPARE(record->offset, 0);
        virtualtime::advance(1); // at 150, not at 153
        QCOMPARE(record->offset, 2);

        waitUntil(7);
        Touch finger = touch(list->viewport());
        finger.press(100, 70).hold(267);
        QVERIFY(!delegate.itemPressed());
        finger.hold(1); // at 275, not at 267
        QVERIFY(delegate.itemPressed());

        finger.hold(532).release(); // at 807
        finger.hold(47);
        QVERIFY(taken(log).filter("itemClicked").isEmpty());
        finger.hold(1); // at 855, not at 857
        QVERIFY(taken(log).contains("itemClicked(1)"));

        const auto other = makeRolling(&rows);
        waitUntil(20);
        show(*other);
        virtualtime::advance(1479);
        QCOMPARE(delegateOf(*other)->rollTimerId(), 0);
        virtualtime::advance(1); // at 1500, not at 1520
        QVERIFY(delegateOf(*other)->rollTimerId() != 0);
    }

    // --- Speed ----------------------------------------------------------------------------------

    void rowsOutOfSightAreNotAskedFor()
    {
        Rows rows(1000000);
        const auto list = makeList(&rows);
        show(*list);
        rows.reads.clear();
        touch(list->viewport()).press(100, 200).moveTo(100, 100).hold(300).release().hold(100);
        QVERIFY(rows.reads.value(Content) > 0);
        QVERIFY(rows.reads.value(Content) < 40);
        QVERIFY(rows.reads.value(Qt::DisplayRole) == 0);
    }

    // --- Selection models -----------------------------------------------------------------------

    static int selectionModels(const SpTableList &list)
    {
        return list.findChildren<QItemSelectionModel *>().size();
    }

    void selectionModelsAreDeletedOneOfEach()
    {
        Rows rows(10);
        SpTableList list;
        list.setModel(&rows);
        QCOMPARE(selectionModels(list), 3);
        list.deleteSelectionModel();
        QVERIFY(!list.selectionModel());
        QCOMPARE(selectionModels(list), 0);
    }

    void selectionModelsCanBeDeletedTwiceOrWithoutAModel()
    {
        SpTableList list;
        list.deleteSelectionModel();
        list.deleteSelectionModel();
        Rows rows(10);
        list.setModel(&rows);
        list.deleteSelectionModel();
        list.deleteSelectionModel();
        QCOMPARE(selectionModels(list), 0);
    }

    void afterAReplacedModelTheOldSelectionModelsGoToo()
    {
        Rows first(10);
        Rows second(20);
        const auto list = makeList(&first);
        list->setModel(&second);
        const int before = selectionModels(*list);
        list->deleteSelectionModel();
        QCOMPARE(selectionModels(*list), before - 3);
        list->setModel(&first);
        QVERIFY(list->selectionModel());
        show(*list);
        SignalLog log(list.get());
        tap(*list, 100, 70);
        virtualtime::advance(50);
        QVERIFY(taken(log).contains("itemClicked(1)"));
    }

    void aListWithoutSelectionModelCanStillBeTouched()
    {
        Rows rows(100, kLongText);
        const auto list = makeRolling(&rows);
        show(*list);
        list->deleteSelectionModel();
        SignalLog log(list.get());
        tap(*list, 100, 70, 400);
        virtualtime::advance(50);
        QVERIFY(taken(log).contains("itemClicked(1)"));
        fling(*list, 100, 100);
        virtualtime::advance(3000);
        QVERIFY(scrolled(*list) > 100);
        list->repaint();
    }

    void aListWithoutSelectionModelCanStillBeMovedThroughWithKeys()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        show(*list);
        list->deleteSelectionModel();
        tap(*list, 100, 70);
        virtualtime::advance(50);
        QVERIFY(!list->selectionModel()); // the request for a click sound is no such key
        QTest::keyClick(list.get(), Qt::Key_Down);
        QCOMPARE(list->currentIndex().row(), 0);
        QTest::keyClick(list.get(), Qt::Key_Down);
        QCOMPARE(list->currentIndex().row(), 1);
        list->deleteSelectionModel();
        QCOMPARE(selectionModels(*list), 0);
        list->setModel(nullptr);
        QTest::keyClick(list.get(), Qt::Key_Down);
        list->deleteSelectionModel();
        QTest::keyClick(list.get(), Qt::Key_Down);
        QVERIFY(!list->selectionModel());
    }

    void theHeadersOfAListWithoutSelectionModelCanStillBeTouched()
    {
        Rows rows(100);
        const auto list = makeList(&rows);
        list->verticalHeader()->show();
        list->horizontalHeader()->show();
        show(*list);
        for (QHeaderView *header : {list->verticalHeader(), list->horizontalHeader()}) {
            list->deleteSelectionModel();
            touch(header->viewport()).press(5, 5);
            QVERIFY(list->selectionModel());
            list->deleteSelectionModel();
            touch(header->viewport()).press(5, 5).moveTo(6, 6).release();
        }
    }

    // Qt gives the focus of what it hides away, with the key that does so.
    void aListWithFocusWithoutSelectionModelCanBeHidden()
    {
        Rows rows(100);
        QWidget page;
        QLineEdit other(&page);
        const auto list = makeList(&rows, &page);
        show(page);
        list->setFocus();
        QVERIFY(list->hasFocus());
        list->deleteSelectionModel();
        list->hide();
        QVERIFY(list->selectionModel());
    }

    // --- Hard to break --------------------------------------------------------------------------

    // What a model may do at any moment of a touch.
    static void spoil(std::unique_ptr<Rows> &rows, const QString &what)
    {
        if (what == QLatin1String("reset"))
            rows->reset(100);
        else if (what == QLatin1String("emptied"))
            rows->reset(0);
        else if (what == QLatin1String("shrunk"))
            rows->shrink(1);
        else
            rows.reset();
    }

    void theModelMayChangeAtAnyMoment_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<QString>("moment");
        for (const char *what : {"reset", "emptied", "shrunk", "deleted"}) {
            for (const char *moment : {"press", "held", "drag", "fling", "pending click", "signal"})
                QTest::addRow("%s, %s", what, moment)
                    << QString::fromLatin1(what) << QString::fromLatin1(moment);
        }
    }

    void theModelMayChangeAtAnyMoment()
    {
        QFETCH(QString, what);
        QFETCH(QString, moment);
        for (bool highlights : {false, true}) {
            auto rows = std::make_unique<Rows>(200, kLongText);
            const auto list = makeRolling(rows.get());
            connect(rows.get(), &Rows::modelReset, list.get(), &SpTableList::listModelReset);
            list->setHighlightFlag(highlights);
            show(*list);
            virtualtime::advance(1700);
            bool isDone = false;
            const auto spoilAt = [&](const char *now) {
                if (moment == QLatin1String(now) && !isDone) {
                    isDone = true;
                    spoil(rows, what);
                }
            };
            SignalLog log(list.get());
            log.onLine([&](const QString &line) {
                if (line.startsWith("itemClicked"))
                    spoilAt("signal");
            });
            Touch finger = touch(list->viewport());
            finger.press(100, 130);
            spoilAt("press");
            finger.hold(300);
            spoilAt("held");
            finger.release();
            spoilAt("pending click");
            finger.hold(2000);
            finger.press(100, 200).moveTo(100, 150);
            spoilAt("drag");
            finger.moveTo(100, 120).hold(30).moveTo(100, 20).release().hold(60);
            spoilAt("fling");
            finger.hold(10000);
            tap(*list, 100, 70);
            virtualtime::advance(3000);
            QVERIFY(isDone);
            QVERIFY(list->isVisible());
        }
    }

    void aRowThatIsGoneIsNotClicked()
    {
        for (const char *change : {"emptied", "shrunk", "deleted"}) {
            const QString what = QString::fromLatin1(change);
            auto rows = std::make_unique<Rows>(100);
            const auto list = makeList(rows.get());
            SignalLog log(list.get());
            tap(*list, 100, 130);
            spoil(rows, what);
            virtualtime::advance(1000);
            QVERIFY(taken(log).filter("itemClicked").isEmpty());
            QVERIFY(!delegateOf(*list)->itemPressed());
        }
    }

    // Neither at the release nor when the click is due, and wherever in memory the new one stands.
    void aRowOfAnotherModelIsNotClicked()
    {
        for (bool isReplacedByAnother : {false, true}) {
            for (bool beforeTheRelease : {false, true}) {
                std::optional<Rows> rows(std::in_place, 100);
                Rows others(100);
                const auto list = makeList(&*rows);
                SignalLog log(list.get());
                const auto replace = [&] {
                    if (!isReplacedByAnother)
                        rows.emplace(100); // at the same place
                    list->setModel(isReplacedByAnother ? &others : &*rows);
                };
                Touch finger = touch(list->viewport());
                finger.press(100, 70).hold(100);
                if (beforeTheRelease)
                    replace();
                finger.release();
                QCOMPARE(delegateOf(*list)->itemPressed(), !beforeTheRelease);
                if (!beforeTheRelease)
                    replace();
                virtualtime::advance(1000);
                QVERIFY(taken(log).filter("itemClicked").isEmpty());
                QVERIFY(!delegateOf(*list)->itemPressed());
            }
        }
    }

    void theListMayBeDeletedInAnyOfItsSignals_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<int>("style");
        const QStringList signalNames{
            "listPressed",    "currentShowIndex", "haveItemSelect", "itemClicked(QModel",
            "itemClicked(2)", "itemClicked(2, ",  "scrolled"};
        for (const QString &signal : signalNames) {
            for (int style : {2, 3, 4}) {
                if (style != 3 || signal != QLatin1String("itemClicked(2, ")) // which it has not
                    QTest::addRow("%s, style %d", qPrintable(signal), style) << signal << style;
            }
        }
    }

    void theListMayBeDeletedInAnyOfItsSignals()
    {
        QFETCH(QString, signal);
        QFETCH(int, style);
        Rows rows(200, kLongText);
        SpTableList *list = makeList(&rows).release();
        QPointer<SpTableList> guard(list);
        list->setUIStyle(SpTableList::LIST_STYLE(style));
        list->setHighlightFlag(true);
        list->setHeaderIconWidth(300);
        show(*list);
        connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this, [&] {
            if (signal == QLatin1String("scrolled"))
                delete guard;
        });
        SignalLog log(list);
        log.onLine([&](const QString &line) {
            if (guard && line.startsWith(signal))
                delete guard;
        });
        Touch finger = touch(list->viewport());
        finger.press(100, 130).hold(100).release().hold(200);
        finger.press(100, 200).moveTo(100, 150).hold(20).moveTo(100, 100).release().hold(5000);
        QVERIFY(!guard);
    }

    void theListMayBeDeletedDuringAFling()
    {
        Rows rows(200);
        SpTableList *list = makeList(&rows).release();
        QPointer<SpTableList> guard(list);
        show(*list);
        fling(*list, 100, 100);
        connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this, [&] { delete guard; });
        virtualtime::advance(1000);
        QVERIFY(!guard);
    }

    // Whatever was set, painted and touched: afterwards the list is as any other.
    void hostileNumbersLeaveNoTrace()
    {
        Rows rows(100);
        for (int style = -1; style <= 7; ++style) {
            for (int number : {INT_MIN, -1, 0, 1, INT_MAX}) {
                const auto list = makeList(&rows);
                setNumbers(*list, number);
                list->setUIStyle(SpTableList::LIST_STYLE(style));
                show(*list);
                tap(*list, 100, 70);
                virtualtime::advance(100);
                touch(list->viewport())
                    .press(INT_MIN / 2, INT_MIN / 2)
                    .moveTo(INT_MAX / 2, 100)
                    .release();
                virtualtime::advance(100);
                touch(list->viewport()).press(100, INT_MIN / 2).moveTo(0, 0).release();
                virtualtime::advance(20000);

                list->setUIStyle(SpTableList::LIST_STYLE_0);
                setNumbers(*list, 20);
                list->setItemHeight(kRowHeight);
                list->setItemWidth(kWidth);
                list->verticalScrollBar()->setValue(0);
                list->clearSelection();
                virtualtime::advance(0);
                COMPARE_PICTURES(painted(*list->viewport()), expectedRows(*list));
                SignalLog log(list.get());
                tap(*list, 100, 70);
                virtualtime::advance(50);
                QVERIFY(taken(log).contains("itemClicked(1)"));
            }
        }
    }

private:
    static void setNumbers(SpTableList &list, int number)
    {
        list.setItemHeight(number);
        list.setItemWidth(number);
        list.setHeaderIconGain(number);
        list.setHeaderIconWidth(number);
        list.setTailIconGain(number);
        list.setTailIconWidth(number);
        list.setTailRectX(number);
        list.setCenterFontSize(number);
        list.setTailFontSize(number);
    }

    static QVector<int> rowsOf(const SpTableList &list)
    {
        QVector<int> result;
        for (const auto *record = delegateOf(list)->rollData(); record; record = record->next)
            result += record->row;
        return result;
    }
};

WIDGET_TEST_MAIN(tst_SpTableList)
#include "tst_sptablelist.moc"
