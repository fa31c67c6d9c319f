// SPDX-License-Identifier: Apache-2.0
#include <MArcList>

#include "keptlooks.h"
#include "parent.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <climits>
#include <cmath>
#include <limits>
#include <memory>

namespace
{

constexpr auto kArc = MArcList::ARCLIST_STYLE_0;
constexpr auto kColumn = MArcList::ARCLIST_STYLE_1;
constexpr int kFar = 2000000000; // px
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

using Action = std::function<void(MArcList &)>;

void fill(MArcList &list, int count = 26)
{
    for (int i = 0; i < count; ++i)
        list.addAlpha(QChar('A' + i));
}

// A to Z on an arc around (0, 200), or in rows of 40 px of which ten are shown.
std::unique_ptr<MArcList> makeList(MArcList::ARCLIST_STYLE style, int count = 26)
{
    auto list = std::make_unique<MArcList>();
    list->resize(560, 400);
    list->setAcrListStyle(style);
    list->setPressColor(Qt::red);
    if (style == kColumn) {
        list->setItemHight(40);
        list->setShowItem(10);
        list->setPixXOffset(5);
    }
    fill(*list, count);
    return list;
}

// The point of the arc at this angle.
QPoint onArc(double degrees, double radius = 470)
{
    const double angle = degrees * M_PI / 180;
    return {qRound(radius * std::cos(angle)), 200 + qRound(radius * std::sin(angle))};
}

// Of a size that tells the two ways of halving an odd number apart.
QPixmap marker(const QSize &size = QSize(41, 27))
{
    QPixmap pixmap(size);
    pixmap.fill(QColor(0, 90, 200, 140));
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, 9, 5, Qt::yellow);
    return pixmap;
}

// What the documented arc looks like, painted step by step.
void paintArc(QPainter &p, const MArcList &list, const QString &letters, int pressed)
{
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    p.translate(QPoint(0, list.height() / 2));
    p.save();
    p.rotate(qreal(list.startAngle() - 90));
    const int first = int(-list.startAngle() / list.itemHight());
    for (int i = 0; i < letters.size(); ++i) {
        if (first - list.showItem() <= i && i <= first + list.showItem()) {
            p.save();
            p.translate(0, qreal(list.radius()));
            p.rotate(90);
            if (i == pressed)
                p.setPen(QPen(list.pressColor()));
            p.drawText(QRect(-20, 0, 40, 40), Qt::AlignCenter, letters.mid(i, 1));
            p.restore();
        }
        p.rotate(qreal(list.itemHight()));
    }
    p.restore();
}

void paintArcMarker(QPainter &p, const MArcList &list, int index)
{
    const QPixmap pixmap = list.pointPixmap();
    p.save();
    p.rotate(qreal(index * list.itemHight() + list.startAngle() + list.pixXOffset()));
    p.drawPixmap(QRect(int(list.radius() - pixmap.width() / 2), -(pixmap.height() / 2),
                       pixmap.width(), pixmap.height()),
                 pixmap);
    p.restore();
}

void paintColumn(QPainter &p, const MArcList &list, const QString &letters, int pressed)
{
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    p.translate(QPoint((list.width() - list.pointPixmap().width()) / 2, 0));
    const int first = int(list.startAngle());
    for (int i = first; i < letters.size() && i < first + list.showItem(); ++i) {
        if (i == pressed)
            p.setPen(QPen(list.pressColor()));
        p.drawText(QRect(list.getTextXOffset(), int((i - first) * list.itemHight() + 5.0), 40, 40),
                   Qt::AlignHCenter | Qt::AlignBottom, letters.mid(i, 1));
    }
}

QString alphabet(int count = 26)
{
    return QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ").left(count);
}

// A parent that counts the mouse events which come up to it.
class Handlers : public MArcList
{
public:
    using MArcList::mouseMoveEvent;
    using MArcList::mousePressEvent;
    using MArcList::mouseReleaseEvent;
};

// Lifts the finger, so many px and ms after it came down and moved, at a full second of a minute.
void flick(MArcList &list, int distance, int duration)
{
    virtualtime::startMinute();
    virtualtime::advance(1000 - duration);
    touch(&list).press(10, 100).moveTo(10, 100 + distance).hold(duration).release();
}

bool isFlinging(const MArcList &list) { return list.findChild<QTimer *>()->isActive(); }

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(MArcList::ARCLIST_STYLE)

class tst_MArcList : public WidgetTest
{
    Q_OBJECT

private slots:
    void manyLettersOfAnArcAreKeptUntilSomethingChanges()
    {
        const auto list = makeList(kArc);
        list->setItemHight(3);
        list->setShowItem(25);
        list->setStartAngle(-20);
        QString letters = alphabet();
        int pressed = -1;
        QFont font = list->font();
        font.setPixelSize(15);
        list->setFont(font);
        const auto check = [&](const char *what) {
            for (int paint = 0; paint < 3; ++paint) {
                const QImage expected =
                    reference(*list, [&](QPainter &p) { paintArc(p, *list, letters, pressed); });
                QVERIFY2(painted(*list) == expected, what);
            }
        };
        check("as it is");
        list->setRadius(430);
        check("radius");
        list->setStartAngle(-21.5);
        check("start angle");
        list->setItemHight(2.5);
        check("height of an item");
        list->setShowItem(9);
        check("shown items");
        list->setShowItem(25);
        touch(list.get()).press(onArc(-21.5 + 6 * 2.5 + 1, 430).x(), onArc(-5.5, 430).y());
        pressed = 6;
        check("pressed");
        list->setPressColor(Qt::blue);
        check("colour of the pressed letter");
        list->setPressColor(QColor(0, 0, 255, 90));
        check("colour that shines through");
        list->setPressColor(Qt::blue);
        list->addAlpha(QLatin1Char('1'));
        letters += QLatin1Char('1');
        check("another letter");
        font.setItalic(true);
        list->setFont(font);
        check("font");
        QPalette palette = list->palette();
        palette.setColor(QPalette::WindowText, Qt::darkGreen);
        list->setPalette(palette);
        check("colour");
    }

    void veryLargeLettersAreDrawnInEachPaint()
    {
        const auto make = [] {
            auto list = makeList(kArc);
            list->setItemHight(3);
            list->setShowItem(25);
            list->setStartAngle(-20);
            QFont font = list->font();
            font.setPixelSize(80);
            list->setFont(font);
            return list;
        };
        checkVeryLargeText<MArcList>(make, 29);
    }

    void keptLettersAreDrawnWhereTheyCannotBeCopied()
    {
        const auto kept = makeList(kArc);
        const auto fresh = makeList(kArc);
        for (MArcList *list : {kept.get(), fresh.get()}) {
            list->setItemHight(3);
            list->setShowItem(25);
            list->setStartAngle(-20);
        }
        using Prepare = std::function<void(QPainter &)>;
        for (const Prepare &prepare :
             {Prepare([](QPainter &p) { p.scale(qreal(1.5), qreal(1.5)); }),
              Prepare([](QPainter &p) { p.setOpacity(qreal(0.5)); }),
              Prepare([](QPainter &p) { p.translate(qreal(0.5), qreal(0.5)); })}) {
            const auto rendered = [&](MArcList &list) {
                QImage image(700, 500, QImage::Format_ARGB32_Premultiplied);
                image.fill(QColor(20, 60, 90));
                QPainter painter(&image);
                prepare(painter);
                list.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
                return image;
            };
            for (int paint = 0; paint < 3; ++paint)
                painted(*kept);
            COMPARE_PICTURES(rendered(*kept), rendered(*fresh));
        }
    }

    // --- Construction and setters ---------------------------------------------------------------

    void defaults()
    {
        const MArcList list;
        QCOMPARE(list.radius(), 470.0);
        QCOMPARE(list.startAngle(), 0.0);
        QCOMPARE(list.itemHight(), 8.0);
        QCOMPARE(list.pixXOffset(), 2.5);
        QCOMPARE(list.pressColor(), QColor(255, 255, 255, 255));
        QCOMPARE(list.acrListStyle(), kArc);
        QCOMPARE(list.showItem(), 15);
        QVERIFY(list.pointPixmap().isNull());
        QCOMPARE(list.getTextXOffset(), 0);
        QVERIFY(!isFlinging(list));
    }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("radius", -3.5);
        row("startAngle", 400.25);
        row("itemHight", -1.5);
        row("pressColor", QColor(1, 2, 3, 4));
        row("acrListStyle", 1);
        row("showItem", -7);
        row("pixXOffset", -0.5);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(MArcList()); }

    void theTextOffsetIsKeptToo()
    {
        MArcList list;
        list.setTextXOffset(-12);
        QCOMPARE(list.getTextXOffset(), -12);
    }

    void onlyTheMarkerAndTheContentRepaint_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("radius", 0, [](auto &l) { l.setRadius(300); });
        row("pointPixmap", 1, [](auto &l) { l.setPointPixmap(marker()); });
        row("pointPixmap null", 1, [](auto &l) { l.setPointPixmap({}); });
        row("startAngle", 0, [](auto &l) { l.setStartAngle(-20); });
        row("itemHight", 0, [](auto &l) { l.setItemHight(5); });
        row("pressColor", 0, [](auto &l) { l.setPressColor(Qt::blue); });
        row("acrListStyle", 0, [](auto &l) { l.setAcrListStyle(kColumn); });
        row("showItem", 0, [](auto &l) { l.setShowItem(3); });
        row("pixXOffset", 0, [](auto &l) { l.setPixXOffset(3); });
        row("textXOffset", 0, [](auto &l) { l.setTextXOffset(3); });
        row("addAlpha", 1, [](auto &l) { l.addAlpha('a'); });
        row("addAlpha of one that is there", 0, [](auto &l) { l.addAlpha('A'); });
        row("clearData", 1, [](auto &l) { l.clearData(); });
        row("setCurrentIndex", 1, [](auto &l) { l.setCurrentIndex('C'); });
        row("setCurrentIndex of one that is not there", 0, [](auto &l) { l.setCurrentIndex('c'); });
        row("moveList", 1, [](auto &l) { l.moveList({0, 0}); });
    }

    void onlyTheMarkerAndTheContentRepaint() { checkRepaints(*makeList(kArc)); }

    // --- Content --------------------------------------------------------------------------------

    void aCharacterIsAddedOnce()
    {
        const auto list = makeList(kArc, 3);
        const QImage before = painted(*list);
        list->addAlpha('B');
        COMPARE_PICTURES(painted(*list), before);
        COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                             paintArc(p, *list, QStringLiteral("ABC"), -1);
                         }));
    }

    void charactersStandInTheOrderOfTheirAddition()
    {
        MArcList list;
        list.resize(560, 400);
        for (char c : {'Z', '#', 'M'})
            list.addAlpha(QChar(c));
        COMPARE_PICTURES(painted(list), reference(list, [&](QPainter &p) {
                             paintArc(p, list, QStringLiteral("Z#M"), -1);
                         }));
    }

    void clearingGoesBackToTheStart()
    {
        const auto list = makeList(kArc);
        list->setPointPixmap(marker());
        list->setCurrentIndex('C');
        list->clearData();
        QCOMPARE(list->startAngle(), 0.0);
        fill(*list);
        COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                             paintArc(p, *list, alphabet(), -1);
                         }));
    }

    void clearingLeavesThePressedCharacter()
    {
        const auto list = makeList(kArc);
        touch(list.get()).press(onArc(12));
        list->clearData();
        fill(*list);
        COMPARE_PICTURES(painted(*list),
                         reference(*list, [&](QPainter &p) { paintArc(p, *list, alphabet(), 1); }));
    }

    void clearingAnEmptyListIsNothing()
    {
        MArcList list;
        list.resize(100, 100);
        list.setStartAngle(-33);
        show(list);
        QCOMPARE(paints(list, [&] { list.clearData(); }), 0);
        QCOMPARE(list.startAngle(), -33.0);
    }

    void aSelectedCharacterIsScrolledToTheStart_data()
    {
        QTest::addColumn<MArcList::ARCLIST_STYLE>("style");
        QTest::addColumn<int>("count");
        QTest::addColumn<QChar>("letter");
        QTest::addColumn<double>("expected");
        QTest::newRow("arc, first") << kArc << 26 << QChar('A') << 0.0;
        QTest::newRow("arc, third") << kArc << 26 << QChar('C') << -16.0;
        QTest::newRow("arc, last") << kArc << 26 << QChar('Z') << -200.0;
        QTest::newRow("column, first") << kColumn << 26 << QChar('A') << 0.0;
        QTest::newRow("column, third") << kColumn << 26 << QChar('C') << 2.0;
        QTest::newRow("column, last that fits") << kColumn << 26 << QChar('Q') << 16.0;
        QTest::newRow("column, beyond") << kColumn << 26 << QChar('R') << 16.0;
        QTest::newRow("column, all shown") << kColumn << 10 << QChar('J') << 0.0;
        QTest::newRow("column, fewer than shown") << kColumn << 4 << QChar('D') << 0.0;
        QTest::newRow("neither") << MArcList::ARCLIST_STYLE(7) << 26 << QChar('D') << 3.0;
    }

    void aSelectedCharacterIsScrolledToTheStart()
    {
        QFETCH(MArcList::ARCLIST_STYLE, style);
        QFETCH(int, count);
        QFETCH(QChar, letter);
        const auto list = makeList(style, count);
        list->setStartAngle(3);
        SignalLog log(list.get());
        list->setCurrentIndex(letter);
        QTEST(list->startAngle(), "expected");
        QCOMPARE(log.take(), QStringList());
    }

    void theArcIsNeverTurnedBeyondItsEnd()
    {
        const auto list = makeList(kArc, 4);
        list->setItemHight(-5);
        list->setCurrentIndex('B');
        QCOMPARE(list->startAngle(), 20.0); // -(-5 x 4) is above -(-5 x 1)
    }

    void anUnknownCharacterChangesNothing()
    {
        const auto list = makeList(kArc);
        list->setCurrentIndex('D');
        const QImage before = painted(*list);
        list->setCurrentIndex('d');
        QCOMPARE(list->startAngle(), -24.0);
        COMPARE_PICTURES(painted(*list), before);
    }

    // --- Pictures of the arc --------------------------------------------------------------------

    void theArcIsTheDocumentedOne_data()
    {
        const TableRows<Action> row("action");
        row("default", [](auto &) {});
        row("turned", [](auto &l) { l.setStartAngle(-37.3); });
        row("turned before its start", [](auto &l) { l.setStartAngle(13.9); });
        row("few shown", [](auto &l) { l.setShowItem(2); });
        row("few shown in the middle", [](auto &l) {
            l.setShowItem(1);
            l.setStartAngle(-31.9);
        });
        row("first is truncated toward zero", [](auto &l) {
            l.setShowItem(0);
            l.setStartAngle(7.9);
        });
        row("none shown", [](auto &l) {
            l.setShowItem(-1);
            l.addAlpha('.');
        });
        row("small and dense", [](auto &l) {
            l.setRadius(150.5);
            l.setItemHight(9.7);
            l.setShowItem(100);
        });
        row("backwards", [](auto &l) {
            l.setItemHight(-6);
            l.setShowItem(40);
        });
        row("odd height", [](auto &l) { l.resize(560, 401); });
        row("letters that need care", [](auto &l) {
            l.clearData();
            for (const int c : {0x627, 0x5d0, 0x9c, 0x20, 0x26, 0x4b, 0x66, 0x301, 0x4e2d, 0xd83d})
                l.addAlpha(QChar(c));
        });
        row("letters taller than their box", [](auto &l) {
            QFont font = l.font();
            font.setPixelSize(50);
            l.setFont(font);
        });
        row("underlined", [](auto &l) {
            QFont font = l.font();
            font.setUnderline(true);
            l.setFont(font);
        });
        row("italic", [](auto &l) {
            QFont font = l.font();
            font.setItalic(true);
            l.setFont(font);
        });
    }

    void theArcIsTheDocumentedOne()
    {
        QFETCH(Action, action);
        const auto list = makeList(kArc);
        QString letters = alphabet();
        action(*list);
        const QByteArray row = QTest::currentDataTag();
        if (row == "none shown")
            letters += '.';
        if (row == "letters that need care") {
            letters.clear();
            for (const int c : {0x627, 0x5d0, 0x9c, 0x20, 0x26, 0x4b, 0x66, 0x301, 0x4e2d, 0xd83d})
                letters += QChar(c);
        }
        for (int paint = 0; paint < 3; ++paint) {
            COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                                 paintArc(p, *list, letters, -1);
                             }));
        }
    }

    void theArcIsRightAtEveryAngle()
    {
        const auto list = makeList(kArc);
        for (double angle = 15; angle > -208; angle -= 7.77) {
            list->setStartAngle(angle);
            COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                                 paintArc(p, *list, alphabet(), -1);
                             }));
        }
    }

    // What is kept of the last paint does not outlive what it depends on.
    void everySettingOfTheArcShowsAtTheNextPaint()
    {
        const auto list = makeList(kArc, 20);
        QString letters = alphabet(20);
        const Action changes[] = {[](MArcList &l) { l.setRadius(300); },
                                  [](MArcList &l) { l.setStartAngle(-30.5); },
                                  [](MArcList &l) { l.setItemHight(11); },
                                  [](MArcList &l) { l.setShowItem(2); },
                                  [&](MArcList &l) {
                                      l.addAlpha('x');
                                      letters += 'x';
                                      l.setShowItem(100);
                                  },
                                  [](MArcList &l) { l.resize(500, 300); },
                                  [](MArcList &l) {
                                      QFont font = l.font();
                                      font.setPixelSize(30);
                                      l.setFont(font);
                                  }};
        painted(*list);
        for (const Action &change : changes) {
            change(*list);
            COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                                 paintArc(p, *list, letters, -1);
                             }));
        }
    }

    void onlyThePressedCharacterOfTheArcIsColoured()
    {
        const auto list = makeList(kArc);
        touch(list.get()).press(onArc(12));
        COMPARE_PICTURES(painted(*list),
                         reference(*list, [&](QPainter &p) { paintArc(p, *list, alphabet(), 1); }));
    }

    void theLettersHaveTheColourOfThePalette()
    {
        const auto list = makeList(kArc);
        list->setPalette(QPalette(Qt::darkGreen, Qt::black));
        QPalette palette = list->palette();
        palette.setColor(QPalette::WindowText, Qt::green);
        list->setPalette(palette);
        COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                             p.setPen(Qt::green);
                             paintArc(p, *list, alphabet(), -1);
                         }));
    }

    void theMarkersStandAtThePressedAndTheCurrentCharacter_data()
    {
        QTest::addColumn<QChar>("current");
        QTest::addColumn<int>("pressed");
        QTest::addColumn<QVector<int>>("expected");
        using Markers = QVector<int>;
        QTest::newRow("none") << QChar('?') << -1 << Markers{};
        QTest::newRow("current") << QChar('C') << -1 << Markers{2};
        QTest::newRow("pressed") << QChar('?') << 1 << Markers{1};
        QTest::newRow("both") << QChar('C') << 3 << Markers{3, 2};
        QTest::newRow("the same") << QChar('C') << 2 << Markers{2};
    }

    void theMarkersStandAtThePressedAndTheCurrentCharacter()
    {
        QFETCH(QChar, current);
        QFETCH(int, pressed);
        QFETCH(QVector<int>, expected);
        const auto list = makeList(kArc);
        list->setPointPixmap(marker());
        list->setCurrentIndex(current);
        list->setStartAngle(-3.3);
        if (pressed >= 0)
            touch(list.get()).press(onArc(pressed * 8 + 4 - 3.3));
        list->setStartAngle(-3.3);
        for (int paint = 0; paint < 3; ++paint) {
            COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                                 paintArc(p, *list, alphabet(), pressed);
                                 for (int index : expected)
                                     paintArcMarker(p, *list, index);
                             }));
        }
    }

    void theMarkerOfTheArcIsPlacedByItsOwnSize_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("offset");
        QTest::newRow("odd") << QSize(41, 27) << 470.0 << 2.5;
        QTest::newRow("even") << QSize(60, 40) << 470.0 << 2.5;
        QTest::newRow("radius with a fraction") << QSize(41, 27) << 300.9 << 0.0;
        QTest::newRow("larger than the radius") << QSize(91, 27) << 40.3 << -4.0;
    }

    void theMarkerOfTheArcIsPlacedByItsOwnSize()
    {
        QFETCH(QSize, size);
        QFETCH(double, radius);
        QFETCH(double, offset);
        const auto list = makeList(kArc);
        list->setRadius(radius);
        list->setPixXOffset(offset);
        list->setPointPixmap(marker(size));
        list->setCurrentIndex('B');
        for (double angle : {0.0, -8.0, 4.25}) {
            list->setStartAngle(angle);
            for (int paint = 0; paint < 3; ++paint) {
                COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                                     paintArc(p, *list, alphabet(), -1);
                                     paintArcMarker(p, *list, 1);
                                 }));
            }
        }
    }

    // --- Pictures of the column -----------------------------------------------------------------

    void theColumnIsTheDocumentedOne_data()
    {
        const TableRows<Action> row("action");
        row("default", [](auto &) {});
        row("scrolled", [](auto &l) { l.setStartAngle(5); });
        row("scrolled by a part of a row", [](auto &l) { l.setStartAngle(5.99); });
        row("scrolled to the end", [](auto &l) { l.setStartAngle(24); });
        row("text offset", [](auto &l) { l.setTextXOffset(-33); });
        row("row height with a fraction", [](auto &l) { l.setItemHight(33.3); });
        row("upwards", [](auto &l) { l.setItemHight(-33.3); });
        row("few rows", [](auto &l) { l.setShowItem(2); });
        row("no rows", [](auto &l) {
            l.setShowItem(0);
            l.setTextXOffset(1);
        });
        row("marker moves the letters", [](auto &l) { l.setPointPixmap(marker()); });
        row("marker wider than the list", [](auto &l) {
            l.setPointPixmap(marker({61, 9}));
            l.resize(50, 400);
        });
        row("tall letters", [](auto &l) {
            QFont font = l.font();
            font.setPixelSize(50);
            l.setFont(font);
        });
    }

    void theColumnIsTheDocumentedOne()
    {
        QFETCH(Action, action);
        const auto list = makeList(kColumn);
        action(*list);
        for (int paint = 0; paint < 2; ++paint) {
            COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                                 paintColumn(p, *list, alphabet(), -1);
                             }));
        }
    }

    void aColumnBeforeItsStartBeginsFartherDown()
    {
        const auto list = makeList(kColumn);
        list->setStartAngle(-2);
        COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                             p.setRenderHints(QPainter::Antialiasing);
                             p.translate(280, 0);
                             for (int i = 0; i < 8; ++i)
                                 p.drawText(QRect(0, (i + 2) * 40 + 5, 40, 40),
                                            Qt::AlignHCenter | Qt::AlignBottom,
                                            alphabet().mid(i, 1));
                         }));
    }

    void fromThePressedRowOnAllRowsAreColoured()
    {
        const auto list = makeList(kColumn);
        touch(list.get()).press(280, 2 * 40 + 20); // the third row of ten
        const QImage actual = painted(*list);
        COMPARE_PICTURES(
            actual, reference(*list, [&](QPainter &p) { paintColumn(p, *list, alphabet(), 2); }));
        COMPARE_PICTURES(
            actual, reference(*list, [&](QPainter &p) {
                p.setRenderHints(QPainter::Antialiasing);
                p.translate(280, 0);
                for (int i = 0; i < 10; ++i) {
                    p.setPen(i < 2 ? list->palette().color(QPalette::WindowText) : QColor(Qt::red));
                    p.drawText(QRect(0, i * 40 + 5, 40, 40), Qt::AlignHCenter | Qt::AlignBottom,
                               alphabet().mid(i, 1));
                }
            }));
    }

    void theMarkerOfTheColumnStandsAtTheCurrentRowOrThePressedOne_data()
    {
        QTest::addColumn<QChar>("current");
        QTest::addColumn<int>("pressedRow");
        QTest::addColumn<int>("expectedRow");
        QTest::newRow("none") << QChar('?') << -1 << -1;
        QTest::newRow("current") << QChar('D') << -1 << 1;
        QTest::newRow("pressed") << QChar('?') << 3 << 3;
        QTest::newRow("current goes first") << QChar('D') << 3 << 1;
        QTest::newRow("current above the first row") << QChar('B') << 3 << -1001;
    }

    void theMarkerOfTheColumnStandsAtTheCurrentRowOrThePressedOne()
    {
        QFETCH(QChar, current);
        QFETCH(int, pressedRow);
        QFETCH(int, expectedRow);
        const auto list = makeList(kColumn);
        list->setPointPixmap(marker());
        list->setPixXOffset(-7.9);
        list->setItemHight(33.7);
        list->setCurrentIndex(current);
        list->setStartAngle(2.6);
        if (pressedRow >= 0)
            touch(list.get()).press(280, int((pressedRow + 0.5) * 33.7));
        COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                             paintColumn(p, *list, alphabet(),
                                         pressedRow < 0 ? -1 : pressedRow + 2);
                             const int row = expectedRow == -1001 ? -1 : expectedRow;
                             if (expectedRow != -1)
                                 p.drawPixmap(-7, int(row * 33.7), marker());
                         }));
    }

    void aStyleOutOfRangeShowsNothingAndTakesNoTouches()
    {
        const auto list = makeList(MArcList::ARCLIST_STYLE(2));
        list->setPointPixmap(marker());
        list->setCurrentIndex('B');
        COMPARE_PICTURES(painted(*list), reference(*list, [](QPainter &) {}));
        SignalLog log(list.get());
        touch(list.get()).tap(470, 210);
        QCOMPARE(log.take(), QStringList());
    }

    // Inside a window the pixels are those of the whole window.
    void aListInAWindowIsPaintedWhereItStands()
    {
        for (const auto style : {kArc, kColumn}) {
            QWidget window;
            window.resize(700, 500);
            MArcList *list = makeList(style).release();
            list->setParent(&window);
            list->move(90, 70);
            list->setPointPixmap(marker());
            list->setCurrentIndex('C');
            show(window);
            const QImage expected = reference(window, [&](QPainter &p) {
                p.fillRect(window.rect(), window.palette().window());
                p.translate(list->pos());
                p.setClipRect(list->rect());
                if (style == kArc) {
                    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
                    paintArc(p, *list, alphabet(), -1);
                    paintArcMarker(p, *list, 2);
                } else {
                    paintColumn(p, *list, alphabet(), -1);
                    p.drawPixmap(5, 0, marker());
                }
            });
            for (int paint = 0; paint < 4; ++paint) {
                const QPixmap shown = QGuiApplication::primaryScreen()->grabWindow(window.winId());
                COMPARE_PICTURES(shown.toImage().convertToFormat(QImage::Format_RGB32),
                                 expected.convertToFormat(QImage::Format_RGB32));
                list->update();
                virtualtime::advance(0);
            }
        }
    }

    // --- Touching the arc -----------------------------------------------------------------------

    void theReachOfTheArc_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<bool>("isTouched");
        // 300-400-500: the point (400, 300 below the middle) is 500 from the centre.
        QTest::newRow("99 outside") << 401.0 << true;
        QTest::newRow("just inside the outer end") << 400.001 << true;
        QTest::newRow("100 outside") << 400.0 << false;
        QTest::newRow("101 outside") << 399.0 << false;
        QTest::newRow("99 inside") << 599.0 << true;
        QTest::newRow("100 inside") << 600.0 << false;
        QTest::newRow("101 inside") << 601.0 << false;
        QTest::newRow("no number") << kNan << false;
    }

    void theReachOfTheArc()
    {
        QFETCH(double, radius);
        QFETCH(bool, isTouched);
        const auto list = makeList(kArc);
        list->resize(560, 801); // halved to 400
        list->setRadius(radius);
        SignalLog log(list.get());
        touch(list.get()).tap(400, 700);
        QCOMPARE(log.take(),
                 isTouched ? (QStringList{"listMoveing(-1)", "listMoveing(-1)", "itemClicked('E')"})
                           : QStringList());
    }

    void everyCharacterOfTheArcCanBeTapped()
    {
        const auto list = makeList(kArc);
        list->setShowItem(1); // is no limit for touches
        const QPoint p = onArc(4);
        for (int i = 0; i < 26; ++i) {
            SignalLog log(list.get());
            list->setStartAngle(-8 * i);
            touch(list.get()).tap(p.x(), p.y());
            QCOMPARE(log.take().last(), QStringLiteral("itemClicked('%1')").arg(alphabet().at(i)));
        }
    }

    void theEdgesOfACharacter_data()
    {
        QTest::addColumn<double>("angle");
        QTest::addColumn<QString>("clicked");
        QTest::newRow("below the first by more than one") << -8.5 << QString();
        QTest::newRow("below the first by less than one") << -7.5 << "itemClicked('A')";
        QTest::newRow("first") << 7.5 << "itemClicked('A')";
        QTest::newRow("second") << 8.5 << "itemClicked('B')";
        QTest::newRow("last") << 31.5 << "itemClicked('D')";
        QTest::newRow("beyond the last") << 32.5 << QString();
        QTest::newRow("left below") << 120.0 << QString();
        QTest::newRow("left above") << 200.0 << QString();
    }

    void theEdgesOfACharacter()
    {
        QFETCH(double, angle);
        QFETCH(QString, clicked);
        const auto list = makeList(kArc, 4);
        SignalLog log(list.get());
        const QPoint p = onArc(angle);
        touch(list.get()).tap(p.x(), p.y());
        QStringList expected{"listMoveing(-1)", "listMoveing(-1)"};
        if (!clicked.isEmpty())
            expected += clicked;
        QCOMPARE(log.take(), expected);
    }

    void theQuadrantsOfTheArc_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<double>("angle");
        // By the coarse pi of the touch angles, 45 degrees are 45.00004 degrees.
        const double eighth = std::atan2(300.0, 300.0) * 180 / 3.14159;
        QTest::newRow("right above") << QPoint(300, -100) << eighth - 90;
        QTest::newRow("right below") << QPoint(300, 500) << eighth;
        QTest::newRow("left below") << QPoint(-300, 500) << eighth + 90;
        QTest::newRow("left above") << QPoint(-300, -100) << eighth + 180;
    }

    void theQuadrantsOfTheArc()
    {
        QFETCH(QPoint, point);
        QFETCH(double, angle);
        const auto list = makeList(kArc);
        list->setItemHight(1e-6);
        const auto clickedWith = [&](double startAngle) {
            list->setStartAngle(startAngle);
            SignalLog log(list.get());
            list->calcCurValue(point, true);
            return log.take().value(1);
        };
        QCOMPARE(clickedWith(angle - 3.5e-6), QStringLiteral("itemClicked('D')"));
        QCOMPARE(clickedWith(angle + 0.5e-6), QStringLiteral("itemClicked('A')"));
        QCOMPARE(clickedWith(angle + 1.5e-6), QString());
    }

    void touchesOnTheAxesOfTheArcOnlyCountAsMovement_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::newRow("right of the centre") << QPoint(470, 200);
        QTest::newRow("left of the centre") << QPoint(-470, 200);
        QTest::newRow("above the centre") << QPoint(0, -270);
        QTest::newRow("below the centre") << QPoint(0, 670);
    }

    void touchesOnTheAxesOfTheArcOnlyCountAsMovement()
    {
        QFETCH(QPoint, point);
        const auto list = makeList(kArc);
        list->setStartAngle(-100);
        const QImage before = painted(*list);
        SignalLog log(list.get());
        Touch finger = touch(list.get());
        finger.press(point);
        COMPARE_PICTURES(painted(*list), before);
        finger.release();
        QCOMPARE(log.take(), (QStringList{"listMoveing(-1)", "listMoveing(-1)"}));
    }

    void anyMoveCancelsAClickOnTheArc()
    {
        const auto list = makeList(kArc);
        SignalLog log(list.get());
        const QPoint p = onArc(12);
        touch(list.get()).press(p).moveTo(p.x(), p.y()).release();
        QCOMPARE(log.take(),
                 (QStringList{"listMoveing(-1)", "listMoveing(-1)", "listMoveing(-1)"}));
        QCOMPARE(list->startAngle(), 0.0);
    }

    void aMoveEndsThePressedLook()
    {
        for (const auto style : {kArc, kColumn}) {
            const auto list = makeList(style);
            const QPoint p = style == kArc ? onArc(12) : QPoint(280, 60);
            const QImage before = painted(*list);
            Touch finger = touch(list.get());
            finger.press(p);
            QVERIFY(painted(*list) != before);
            finger.moveTo(p.x(), p.y());
            COMPARE_PICTURES(painted(*list), before);
        }
    }

    void listMoveingCarriesTheSelectedIndexNotTheTouchedOne()
    {
        for (const auto style : {kArc, kColumn}) {
            const auto list = makeList(style);
            list->setCurrentIndex('C');
            list->setStartAngle(0);
            const QPoint p = style == kArc ? onArc(4) : QPoint(280, 20);
            SignalLog log(list.get());
            touch(list.get()).tap(p.x(), p.y()).tap(p.x(), p.y());
            QCOMPARE(log.take(),
                     (QStringList{"listMoveing(2)", "listMoveing(2)", "itemClicked('A')",
                                  "listMoveing(0)", "listMoveing(0)", "itemClicked('A')"}));
        }
    }

    void theCharacterIsSelectedButStillPressedWhenTheClickIsReported()
    {
        for (const auto style : {kArc, kColumn}) {
            const auto list = makeList(style);
            list->setPointPixmap(marker());
            QImage during;
            connect(list.get(), &MArcList::itemClicked, this, [&] { during = painted(*list); });
            const QPoint p = style == kArc ? onArc(12) : QPoint(280, 60);
            touch(list.get()).tap(p.x(), p.y());
            COMPARE_PICTURES(during, reference(*list, [&](QPainter &painter) {
                                 if (style == kArc) {
                                     paintArc(painter, *list, alphabet(), 1);
                                     paintArcMarker(painter, *list, 1);
                                 } else {
                                     paintColumn(painter, *list, alphabet(), 1);
                                     painter.drawPixmap(5, 40, marker());
                                 }
                             }));
            COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &painter) {
                                 if (style == kArc) {
                                     paintArc(painter, *list, alphabet(), -1);
                                     paintArcMarker(painter, *list, 1);
                                 } else {
                                     paintColumn(painter, *list, alphabet(), -1);
                                     painter.drawPixmap(5, 40, marker());
                                 }
                             }));
        }
    }

    // --- Touching the column --------------------------------------------------------------------

    void theRowsOfTheColumn_data()
    {
        QTest::addColumn<int>("y");
        QTest::addColumn<QString>("clicked");
        QTest::newRow("above the list") << -120 << QString();
        QTest::newRow("in the first row above the list") << -119 << "itemClicked('A')";
        QTest::newRow("above the first row") << -1 << "itemClicked('B')";
        QTest::newRow("first row") << 0 << "itemClicked('C')";
        QTest::newRow("end of the first row") << 39 << "itemClicked('C')";
        QTest::newRow("second row") << 40 << "itemClicked('D')";
        QTest::newRow("last of the list") << 959 << "itemClicked('Z')";
        QTest::newRow("below the list") << 960 << QString();
    }

    void theRowsOfTheColumn()
    {
        QFETCH(int, y);
        QFETCH(QString, clicked);
        const auto list = makeList(kColumn);
        list->setStartAngle(2.9); // whole rows count
        SignalLog log(list.get());
        list->calcCurValue({280, y}, false);
        const bool isRow = !clicked.isEmpty();
        QCOMPARE(log.take(), isRow ? QStringList{"listMoveing(-1)"} : QStringList());
        list->setStartAngle(2.9);
        touch(list.get()).tap(-2000, y); // how far to the side makes no difference
        QCOMPARE(log.take(),
                 isRow ? (QStringList{"listMoveing(-1)", "listMoveing(-1)", clicked})
                       : QStringList());
    }

    void theSlopOfATapInTheColumn_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("isTap");
        for (int far : {98, 99, 100}) {
            for (const QPoint &way :
                 {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1), QPoint(1, -1)}) {
                const QPoint offset = way * far;
                QTest::addRow("%d,%d", offset.x(), offset.y()) << offset << (far <= 99);
            }
        }
    }

    void theSlopOfATapInTheColumn()
    {
        QFETCH(QPoint, offset);
        QFETCH(bool, isTap);
        const auto list = makeList(kColumn);
        SignalLog log(list.get());
        const QPoint p = QPoint(280, 200) + offset;
        touch(list.get()).press(280, 200).hold(400).moveTo(p.x(), p.y()).hold(400).release();
        QCOMPARE(log.take().filter(QStringLiteral("itemClicked")).size(), isTap ? 1 : 0);
        // Either way the touch is over.
        const QImage after = painted(*list);
        list->setPressColor(Qt::blue);
        COMPARE_PICTURES(painted(*list), after);
    }

    void aTouchOfTheColumnBesideItsRowsLeavesThePressedRow()
    {
        const auto list = makeList(kColumn, 5);
        touch(list.get()).press(280, 60);
        list->calcCurValue({280, 5 * 40}, true);
        COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &p) {
                             paintColumn(p, *list, alphabet(5), 1);
                         }));
    }

    // --- Scrolling ------------------------------------------------------------------------------

    void theFingerScrolls_data()
    {
        QTest::addColumn<MArcList::ARCLIST_STYLE>("style");
        QTest::addColumn<double>("start");
        QTest::addColumn<int>("dy");
        QTest::addColumn<double>("expected");
        QTest::newRow("arc down") << kArc << -50.0 << 30 << -48.0;
        QTest::newRow("arc up") << kArc << -50.0 << -20 << -50.0 - 20 / 15.0;
        QTest::newRow("arc to its start") << kArc << 14.0 << 15 << 15.0;
        QTest::newRow("arc beyond its start") << kArc << 14.0 << 16 << 15.0;
        QTest::newRow("arc to its end") << kArc << -207.0 << -15 << -208.0;
        QTest::newRow("arc beyond its end") << kArc << -207.0 << -16 << -208.0;
        QTest::newRow("column down") << kColumn << 8.0 << 30 << 6.5;
        QTest::newRow("column up") << kColumn << 8.0 << -21 << 9.05;
        QTest::newRow("column to its start") << kColumn << 1.0 << 20 << 0.0;
        QTest::newRow("column beyond its start") << kColumn << 1.0 << 21 << 0.0;
        QTest::newRow("column to its end") << kColumn << 15.0 << -20 << 16.0;
        QTest::newRow("column beyond its end") << kColumn << 15.0 << -21 << 16.0;
        QTest::newRow("neither") << MArcList::ARCLIST_STYLE(9) << 3.0 << 40 << 3.0;
    }

    void theFingerScrolls()
    {
        QFETCH(MArcList::ARCLIST_STYLE, style);
        QFETCH(double, start);
        QFETCH(int, dy);
        const auto list = makeList(style);
        list->setStartAngle(start);
        touch(list.get()).press(10, 100).moveTo(10, 100 + dy);
        QTEST(list->startAngle(), "expected");
    }

    void theFingerScrollsFromPointToPoint()
    {
        const auto list = makeList(kArc);
        list->setStartAngle(-100);
        Touch finger = touch(list.get());
        finger.press(10, 100).moveTo(10, 130);
        QCOMPARE(list->startAngle(), -98.0);
        finger.moveTo(10, 160);
        QCOMPARE(list->startAngle(), -96.0);
        finger.moveTo(10, 145);
        QCOMPARE(list->startAngle(), -97.0);
        finger.release();
        QCOMPARE(list->startAngle(), -97.0);
    }

    void theReleaseScrollsToo()
    {
        const auto list = makeList(kArc);
        list->setStartAngle(-100);
        touch(list.get()).press(10, 100).hold(1000);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(10, 130), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list.get(), &release);
        QCOMPARE(list->startAngle(), -98.0);
    }

    // The list goes the last way first: what the finger hits is what lies there then.
    void theReleaseHitsWhatLiesThereAfterItHasScrolled_data()
    {
        QTest::addColumn<MArcList::ARCLIST_STYLE>("style");
        QTest::addColumn<QPoint>("press");
        QTest::addColumn<QPoint>("release");
        QTest::addColumn<QString>("clicked");
        // 45 px turn the arc by 3 degrees; 40 px move the column by two rows.
        QTest::newRow("arc") << kArc << onArc(10) - QPoint(0, 45) << onArc(10)
                             << QStringLiteral("itemClicked('A')");
        QTest::newRow("column") << kColumn << QPoint(280, 100) << QPoint(280, 60)
                                << QStringLiteral("itemClicked('D')");
    }

    void theReleaseHitsWhatLiesThereAfterItHasScrolled()
    {
        QFETCH(MArcList::ARCLIST_STYLE, style);
        QFETCH(QPoint, press);
        QFETCH(QPoint, release);
        QFETCH(QString, clicked);
        const auto list = makeList(style);
        touch(list.get()).press(press);
        SignalLog log(list.get());
        QMouseEvent event(QEvent::MouseButtonRelease, QPointF(release), Qt::LeftButton,
                          Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list.get(), &event);
        QCOMPARE(log.take().last(), clicked);
    }

    void aTapBringsTheListWithinItsBounds()
    {
        for (double start : {100.0, kInfinity, kNan}) {
            const auto arc = makeList(kArc);
            arc->setStartAngle(start);
            touch(arc.get()).tap(10, 100);
            QCOMPARE(arc->startAngle(), 15.0);
        }
        const auto column = makeList(kColumn);
        column->setStartAngle(100);
        touch(column.get()).tap(10, -9000);
        QCOMPARE(column->startAngle(), 16.0);
        column->setStartAngle(-3);
        touch(column.get()).tap(10, -9000);
        QCOMPARE(column->startAngle(), 0.0);
    }

    void aListThatFitsStaysAtItsStart()
    {
        const auto list = makeList(kColumn, 4);
        touch(list.get()).press(10, 100).moveTo(10, -500);
        QCOMPARE(list->startAngle(), 0.0);
    }

    void everyEventRepaintsOnce()
    {
        const auto list = makeList(kArc);
        show(*list);
        Touch finger = touch(list.get());
        const QPoint p = onArc(12);
        QCOMPARE(paints(*list, [&] { finger.press(p); }), 1);
        QCOMPARE(paints(*list, [&] { finger.moveTo(p.x(), p.y() + 15); }), 1);
        QCOMPARE(paints(*list, [&] { finger.hold(500).release(); }), 1);
        QCOMPARE(paints(*list, [&] { virtualtime::advance(5000); }), 0);
        QCOMPARE(paints(*list, [&] { finger.press(5, 5); }), 0); // beside the arc
    }

    void aTouchThatIsHandledByHandRepaintsToo()
    {
        for (const auto style : {kArc, kColumn}) {
            const auto list = makeList(style);
            const QPoint p = style == kArc ? onArc(12) : QPoint(280, 60);
            show(*list);
            QCOMPARE(paints(*list, [&] { list->calcCurValue(p, false); }), 1);
            QCOMPARE(paints(*list, [&] { list->calcCurValue(p, true); }), 1);
        }
    }

    // --- Flinging -------------------------------------------------------------------------------

    void theTimeOfAFlick_data()
    {
        QTest::addColumn<int>("duration");
        QTest::addColumn<bool>("flings");
        for (int duration : {0, 1, 2, 3, 4, 100, 258, 259, 260, 300})
            QTest::addRow("%d ms", duration) << duration << (duration >= 3 && duration <= 259);
    }

    void theTimeOfAFlick()
    {
        QFETCH(int, duration);
        QFETCH(bool, flings);
        const auto list = makeList(kArc);
        touch(list.get()).press(10, 100).hold(700).moveTo(10, 90).hold(duration).release();
        QCOMPARE(isFlinging(*list), flings);
        if (flings)
            QCOMPARE(list->findChild<QTimer *>()->interval(), 20);
    }

    void theTimeOfAFlickCountsFromTheFirstMove()
    {
        const auto list = makeList(kArc);
        virtualtime::advance(10);
        touch(list.get()).press(10, 100).moveTo(10, 90).hold(200).moveTo(10, 80).hold(60).release();
        QVERIFY(!isFlinging(*list));
    }

    void withoutAMoveThereIsNoFling()
    {
        const auto list = makeList(kArc);
        touch(list.get()).press(10, 100).moveTo(10, 90).hold(500).release();
        virtualtime::startMinute();
        virtualtime::advance(10);
        touch(list.get()).press(10, 100).hold(100).release();
        QVERIFY(!isFlinging(*list));
    }

    void aFlickAcrossTheMinuteDoesNotFling()
    {
        const auto list = makeList(kArc);
        virtualtime::advance(59950);
        touch(list.get()).press(10, 100).moveTo(10, 90).hold(100).release();
        QCOMPARE(list->getCurrentTime(), 50);
        QVERIFY(!isFlinging(*list));
    }

    void aMoveAtTheFullMinuteCountsAsNone()
    {
        const auto list = makeList(kArc);
        QCOMPARE(list->getCurrentTime(), 0);
        Touch finger = touch(list.get());
        finger.press(10, 100).moveTo(10, 90).hold(100).release();
        QVERIFY(!isFlinging(*list));
    }

    void theClockIsThatOfTheMinute()
    {
        MArcList list;
        QCOMPARE(list.getCurrentTime(), 0);
        virtualtime::advance(1234);
        QCOMPARE(list.getCurrentTime(), 1234);
        virtualtime::advance(58765);
        QCOMPARE(list.getCurrentTime(), 59999);
        virtualtime::advance(1);
        QCOMPARE(list.getCurrentTime(), 0);
    }

    // 200 px below the press, 100 ms after the first move: four ticks of 20 ms.
    void aFlickOf200PxIn100MsRunsForFourTicks()
    {
        const auto list = makeList(kArc);
        list->setStartAngle(-100);
        flick(*list, 200, 100);
        const double start = -100 + 200 / 15.0;
        QCOMPARE(list->startAngle(), start);
        QVector<double> angles;
        for (int tick = 0; tick < 6; ++tick) {
            virtualtime::advance(20);
            angles += list->startAngle() - start;
        }
        QCOMPARE(angles, (QVector<double>{15, 30, 45, 60, 60, 60}));
        QVERIFY(!isFlinging(*list));
    }

    void theTickAfterTheLastStepOfAFlingRepaintsNothing()
    {
        for (const auto style : {kArc, kColumn}) {
            const auto list = makeList(style);
            list->setStartAngle(style == kArc ? -100 : 10);
            show(*list);
            flick(*list, 50, 100); // one step
            QCOMPARE(paints(*list, [] { virtualtime::advance(20); }), 1);
            QVERIFY(isFlinging(*list));
            QCOMPARE(paints(*list, [] { virtualtime::advance(20); }), 0);
            QVERIFY(!isFlinging(*list));
        }
    }

    void theTicksOfAFling_data()
    {
        QTest::addColumn<int>("distance");
        QTest::addColumn<int>("duration");
        QTest::addColumn<int>("ticks");
        QTest::newRow("one") << 50 << 100 << 1;
        QTest::newRow("just not one") << 49 << 100 << 0;
        QTest::newRow("upwards") << -99 << 100 << 1;
        QTest::newRow("fastest") << 9 << 3 << 6;
        QTest::newRow("slowest") << 130 << 259 << 1;
        QTest::newRow("halves are cut") << 74 << 100 << 1;
    }

    void theTicksOfAFling()
    {
        QFETCH(int, distance);
        QFETCH(int, duration);
        QFETCH(int, ticks);
        const auto list = makeList(kArc);
        list->setStartAngle(-100);
        flick(*list, distance, duration);
        const double start = list->startAngle();
        virtualtime::advance(1000);
        QCOMPARE(list->startAngle(), start + (distance < 0 ? -15.0 : 15.0) * ticks);
    }

    void theDistanceOfAFlingCountsFromThePressAndItsWayFromTheLastMove()
    {
        for (const int last : {10, -1}) { // upwards and, by a single pixel, downwards
            const auto list = makeList(kArc);
            list->setStartAngle(-100);
            virtualtime::advance(10);
            Touch finger = touch(list.get());
            finger.press(10, 100).moveTo(10, 300 + last).moveTo(10, 300).hold(100).release();
            const double start = list->startAngle();
            virtualtime::advance(1000);
            QCOMPARE(list->startAngle(), start + (last > 0 ? -60 : 60));
        }
    }

    void theColumnFlingsTheOtherWay()
    {
        const auto list = makeList(kColumn);
        list->setStartAngle(10);
        flick(*list, 40, 40); // two ticks
        QCOMPARE(list->startAngle(), 8.0);
        virtualtime::advance(1000);
        QCOMPARE(list->startAngle(), 4.0);
        flick(*list, -20, 20);
        QCOMPARE(list->startAngle(), 5.0);
        virtualtime::advance(1000);
        QCOMPARE(list->startAngle(), 9.0);
    }

    void aFlingEndsAtTheBoundItPasses_data()
    {
        QTest::addColumn<MArcList::ARCLIST_STYLE>("style");
        QTest::addColumn<int>("count");
        QTest::addColumn<double>("start");
        QTest::addColumn<bool>("down");
        QTest::addColumn<double>("expected");
        QTest::addColumn<bool>("goesOn");
        QTest::newRow("arc, just to its start") << kArc << 26 << 0.0 << true << 15.0 << true;
        QTest::newRow("arc, beyond its start") << kArc << 26 << 0.5 << true << 15.0 << false;
        QTest::newRow("arc, just to its end") << kArc << 26 << -193.0 << false << -208.0 << true;
        QTest::newRow("arc, beyond its end") << kArc << 26 << -193.5 << false << -208.0 << false;
        QTest::newRow("column, just to its start") << kColumn << 26 << 2.0 << true << 0.0 << true;
        QTest::newRow("column, beyond its start") << kColumn << 26 << 1.5 << true << 0.0 << false;
        QTest::newRow("column, just to its end") << kColumn << 26 << 14.0 << false << 16.0 << true;
        QTest::newRow("column, beyond its end") << kColumn << 26 << 14.5 << false << 16.0 << false;
        QTest::newRow("column that fits") << kColumn << 4 << 2.0 << true << 0.0 << false;
    }

    void aFlingEndsAtTheBoundItPasses()
    {
        QFETCH(MArcList::ARCLIST_STYLE, style);
        QFETCH(int, count);
        QFETCH(double, start);
        QFETCH(bool, down);
        QFETCH(bool, goesOn);
        const auto list = makeList(style, count);
        show(*list);
        flick(*list, down ? 300 : -300, 100);
        list->setStartAngle(start);
        QCOMPARE(paints(*list, [] { virtualtime::advance(20); }), 1);
        QTEST(list->startAngle(), "expected");
        QCOMPARE(isFlinging(*list), goesOn);
        list->setStartAngle(start);
        virtualtime::advance(19);
        QCOMPARE(list->startAngle(), start);
    }

    void aTouchStopsAFling()
    {
        const auto list = makeList(kArc);
        list->setStartAngle(-100);
        virtualtime::advance(10);
        Touch finger = touch(list.get());
        finger.press(10, 100).moveTo(10, 400).hold(50).release();
        QVERIFY(isFlinging(*list));
        finger.press(10, 100);
        QVERIFY(!isFlinging(*list));
        const double stopped = list->startAngle();
        QMetaObject::invokeMethod(list.get(), "speedTimerSlot"); // none of its steps is left
        QCOMPARE(list->startAngle(), stopped);
        finger.hold(1000).release().hold(1000);
        QCOMPARE(list->startAngle(), stopped);
    }

    void theTouchThatStopsAFlingClicksLikeAnyOther()
    {
        const auto list = makeList(kArc);
        virtualtime::advance(10);
        touch(list.get()).press(10, 100).moveTo(10, 50).hold(50).release();
        QVERIFY(isFlinging(*list));
        SignalLog log(list.get());
        const QPoint p = onArc(10);
        touch(list.get()).tap(p.x(), p.y());
        QCOMPARE(log.take().filter(QStringLiteral("itemClicked")).size(), 1);
    }

    void anIdleListRepaintsNothing()
    {
        const auto list = makeList(kArc);
        show(*list);
        QCOMPARE(paints(*list, [] { virtualtime::advance(100000); }), 0);
        QVERIFY(!isFlinging(*list));
    }

    // --- Events ---------------------------------------------------------------------------------

    void mouseEventsEndHereAndNoSoundIsAskedFor()
    {
        Parent parent;
        auto *list = new MArcList(&parent);
        fill(*list);
        SignalLog log(list);
        touch(list).press(10, 10).moveTo(12, 12).release().hold(100);
        QCOMPARE(parent.events, QStringList());
        QVERIFY(!log.take().contains(QStringLiteral("beep")));
    }

    void noEventIsNoHarm()
    {
        Handlers list;
        fill(list);
        list.setStartAngle(3);
        SignalLog log(&list);
        list.mousePressEvent(nullptr);
        list.mouseMoveEvent(nullptr);
        list.mouseReleaseEvent(nullptr);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(list.startAngle(), 3.0);
    }

    void noPainterIsNoHarm()
    {
        const auto list = makeList(kArc);
        list->setPointPixmap(marker());
        list->setCurrentIndex(QLatin1Char('B'));
        list->drawTicks(nullptr);
        list->drawPointer(nullptr);
        list->drawTicks1(nullptr);
        list->drawPointer1(nullptr);
    }

    void thePainterOfTheCallerIsLeftAsItWas()
    {
        const auto list = makeList(kColumn);
        list->setPointPixmap(marker());
        touch(list.get()).press(280, 60);
        QImage image(560, 400, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setPen(Qt::green);
        const QTransform transform = painter.transform();
        list->drawTicks(&painter);
        list->drawPointer(&painter);
        QCOMPARE(painter.pen(), QPen(Qt::green));
        QCOMPARE(painter.transform(), transform);
        list->drawPointer1(&painter);
        QCOMPARE(painter.pen(), QPen(Qt::green));
        list->drawTicks1(&painter);
        QCOMPARE(painter.pen(), QPen(Qt::red)); // all but this one: it leaves its pen on purpose
        QCOMPARE(painter.transform(), transform);
    }

    // --- Hard to break --------------------------------------------------------------------------

    void theListMayBeDeletedInAnyOfItsSignals_data()
    {
        QTest::addColumn<MArcList::ARCLIST_STYLE>("style");
        QTest::addColumn<QString>("signal");
        for (const auto style : {kArc, kColumn}) {
            for (const char *signal : {"listMoveing", "itemClicked"})
                QTest::addRow("%d %s", style, signal) << style << QString::fromLatin1(signal);
        }
    }

    void theListMayBeDeletedInAnyOfItsSignals()
    {
        QFETCH(MArcList::ARCLIST_STYLE, style);
        QFETCH(QString, signal);
        QPointer<MArcList> list = makeList(style).release();
        SignalLog log(list);
        log.onLine([&](const QString &line) {
            if (line.startsWith(signal))
                delete list;
        });
        const QPoint p = style == kArc ? onArc(4) : QPoint(280, 20);
        touch(list).tap(p.x(), p.y());
        QVERIFY(!list);
    }

    void theListMayBeEmptiedInAnyOfItsSignals()
    {
        for (const auto style : {kArc, kColumn}) {
            for (const char *signal : {"listMoveing", "itemClicked"}) {
                const auto list = makeList(style);
                SignalLog log(list.get());
                log.onLine([&](const QString &line) {
                    if (line.startsWith(QLatin1String(signal)))
                        list->clearData();
                });
                const QPoint p = style == kArc ? onArc(4) : QPoint(280, 20);
                touch(list.get()).tap(p.x(), p.y());
                QCOMPARE(list->startAngle(), 0.0);
                COMPARE_PICTURES(painted(*list), reference(*list, [](QPainter &) {}));
                fill(*list);
                COMPARE_PICTURES(painted(*list), reference(*list, [&](QPainter &painter) {
                                     if (style == kArc)
                                         paintArc(painter, *list, alphabet(), -1);
                                     else
                                         paintColumn(painter, *list, alphabet(), -1);
                                 }));
            }
        }
    }

    // Whatever was set, painted and touched: afterwards the list is as any other.
    void hostileNumbersLeaveNoTrace()
    {
        for (const auto style : {kArc, kColumn}) {
            for (double number : {kNan, kInfinity, -kInfinity, 1e300, -1e300, 1e9, -1e9, 0.0}) {
                const auto list = makeList(style);
                list->setPointPixmap(marker());
                const Action setters[] = {[=](MArcList &l) { l.setRadius(number); },
                                          [=](MArcList &l) { l.setStartAngle(number); },
                                          [=](MArcList &l) { l.setItemHight(number); },
                                          [=](MArcList &l) { l.setPixXOffset(number); }};
                for (const Action &set : setters) {
                    set(*list);
                    for (int count : {INT_MIN, -1, 0, INT_MAX}) {
                        list->setShowItem(count);
                        list->setTextXOffset(count);
                        painted(*list);
                        touch(list.get()).tap(470, 210).press(kFar, -kFar).moveTo(3, kFar);
                    }
                }
                list->setRadius(470);
                list->setItemHight(style == kArc ? 8 : 40);
                list->setPixXOffset(style == kArc ? 2.5 : 5);
                list->setShowItem(style == kArc ? 15 : 10);
                list->setTextXOffset(0);
                list->setStartAngle(0);
                compareTapped(*list);
            }
        }
    }

    void aLongListIsTheDocumentedOne()
    {
        MArcList list;
        list.resize(560, 400);
        QString letters;
        for (int c = 0x4e00; c < 0x5e00; ++c) {
            list.addAlpha(QChar(c));
            letters += QChar(c);
        }
        QCOMPARE(letters.size(), 4096);
        list.setStartAngle(-3000);
        list.setShowItem(1000000);
        COMPARE_PICTURES(painted(list),
                         reference(list, [&](QPainter &p) { paintArc(p, list, letters, -1); }));
        list.setAcrListStyle(kColumn);
        list.setStartAngle(3000);
        const QImage column = painted(list);
        COMPARE_PICTURES(column,
                         reference(list, [&](QPainter &p) { paintColumn(p, list, letters, -1); }));
        list.setShowItem(INT_MAX);
        COMPARE_PICTURES(painted(list), column);
    }

private:
    // A tap of the second character shows in the whole picture.
    static void compareTapped(MArcList &list)
    {
        const bool isArc = list.acrListStyle() == kArc;
        const QPoint p = isArc ? onArc(12) : QPoint(280, 60);
        SignalLog log(&list);
        touch(&list).tap(p.x(), p.y());
        QCOMPARE(log.take().last(), QStringLiteral("itemClicked('B')"));
        COMPARE_PICTURES(painted(list), reference(list, [&](QPainter &painter) {
                             if (isArc) {
                                 paintArc(painter, list, alphabet(), -1);
                                 paintArcMarker(painter, list, 1);
                             } else {
                                 paintColumn(painter, list, alphabet(), -1);
                                 painter.drawPixmap(5, 40, marker());
                             }
                         }));
    }
};

WIDGET_TEST_MAIN(tst_MArcList)
#include "tst_marclist.moc"
