// SPDX-License-Identifier: Apache-2.0
#include <MVScrollLabel>

#include "measuredtext.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QAbstractEventDispatcher>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QShowEvent>
#include <QTimerEvent>

#include <climits>
#include <memory>

namespace
{

int alignmentsAsked = 0; // one for each copy of the text that a paint looks at

constexpr int kDelay = 2000; // ms, from a text to its scrolling
constexpr int kSpeed = 50; // ms for each px
const QString kSentence =
    QStringLiteral("You may use this as you like, and nobody promises much. ");

QString tall() { return kSentence.repeated(6); }

std::unique_ptr<MVScrollLabel> makeLabel(int width = 160, int height = 60)
{
    auto label = std::make_unique<MVScrollLabel>(nullptr, Qt::WindowFlags());
    label->resize(width, height);
    return label;
}

// The text as it is wrapped, by the documentation.
QString wrapped(const QLabel &label, const QString &text, int *lines = nullptr)
{
    const QFontMetrics metrics(label.font());
    QString result;
    int count = 1;
    int x = 0;
    for (const char c : text.toLatin1()) {
        if (result.size() > 1022)
            break;
        const int width = metrics.horizontalAdvance(QLatin1Char(c));
        if (c == '\n' || x + width > label.width()) {
            result += QLatin1Char('\n');
            ++count;
            x = 0;
        }
        if (c != '\n' && result.size() < 1023) {
            result += QLatin1Char(c);
            x += width;
        }
    }
    if (lines)
        *lines = count;
    return result;
}

int heightOf(const QLabel &label, int lines)
{
    return lines * QFontMetrics(label.font()).height() + 10;
}

int wrappedHeight(const QLabel &label, const QString &text)
{
    int lines = 0;
    wrapped(label, text, &lines);
    return heightOf(label, lines);
}

// The documented picture at an offset, for the height that the label had when it was laid out.
QImage documented(const MVScrollLabel &label, int offset, int laidOutHeight = -1)
{
    const QString text = label.text();
    const int cycle = heightOf(label, 1 + text.count(QLatin1Char('\n')))
        + (laidOutHeight < 0 ? label.height() : laidOutHeight);
    return reference(label, [&](QPainter &p) {
        for (int y = -offset; y <= label.height() - 1; y += cycle)
            p.drawText(QRect(0, y, label.width(), cycle), int(label.alignment()), text);
    });
}

int cycleOf(const MVScrollLabel &label)
{
    return heightOf(label, 1 + label.text().count(QLatin1Char('\n'))) + label.height();
}

using Action = std::function<void(MVScrollLabel &)>;
using Prepare = std::function<void(QPainter &)>;

int runningTimers(MVScrollLabel &label)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(&label).size();
}

class Handlers : public MVScrollLabel
{
public:
    using MVScrollLabel::mouseMoveEvent;
    using MVScrollLabel::mousePressEvent;
    using MVScrollLabel::mouseReleaseEvent;
    using MVScrollLabel::MVScrollLabel;
    using MVScrollLabel::timerEvent;
};

QStringList lines(std::initializer_list<const char *> texts)
{
    QStringList result;
    for (const char *text : texts)
        result += QString::fromLatin1(text);
    return result;
}

// What stands on the screen, with pixels that were moved without a paint.
QImage onScreen(const QWidget &window)
{
    const QImage shown = window.screen()->grabWindow(window.winId()).toImage();
    return shown.size() == window.size() ? shown : QImage();
}

// How much of it each paint has to paint.
class PaintedRects : public MVScrollLabel
{
public:
    using MVScrollLabel::MVScrollLabel;

    QVector<QRect> rects;

protected:
    void paintEvent(QPaintEvent *e) override
    {
        rects += e->rect();
        MVScrollLabel::paintEvent(e);
    }
};

} // namespace

Q_DECLARE_METATYPE(Action)

// Stands before the function of the same name in Qt's library, and calls it.
Qt::Alignment QLabel::alignment() const
{
    ++alignmentsAsked;
    using Function = Qt::Alignment (*)(const QLabel *);
    static const auto original =
        reinterpret_cast<Function>(dlsym(RTLD_NEXT, "_ZNK6QLabel9alignmentEv"));
    return original(this);
}

class tst_MVScrollLabel : public WidgetTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        QWidget parent;
        MVScrollLabel label(&parent, Qt::Tool);
        QCOMPARE(label.buttonID(), QStringLiteral("ID_MVScrollLabel"));
        QCOMPARE(label.scrollSpeed(), kSpeed);
        QCOMPARE(label.isScroll(), false);
        QCOMPARE(label.parentWidget(), &parent);
        QCOMPARE(label.windowType(), Qt::Tool);
        QCOMPARE(label.text(), QString());
        QCOMPARE(runningTimers(label), 0);
    }

    void bothPropertiesAreOnlyStored()
    {
        const auto label = makeLabel();
        label->setText(tall());
        show(*label);
        label->startScroll();
        QCOMPARE(paints(*label,
                        [&] {
                            QVERIFY(label->setProperty("buttonID", QStringLiteral("licence")));
                            QVERIFY(label->setProperty("scrollSpeed", 20));
                        }),
                 0);
        QCOMPARE(label->buttonID(), QStringLiteral("licence"));
        QCOMPARE(label->scrollSpeed(), 20);
        QCOMPARE(
            QAbstractEventDispatcher::instance()->registeredTimers(label.get()).first().interval,
            kSpeed);
        label->startScroll();
        QCOMPARE(
            QAbstractEventDispatcher::instance()->registeredTimers(label.get()).first().interval,
            20);
    }

    // --- The text -------------------------------------------------------------------------------

    void theSameTextTwiceIsReportedOnce()
    {
        const auto label = makeLabel();
        SignalLog log(label.get());
        label->setText(QStringLiteral("short"));
        QCOMPARE(log.take(), lines({"currentTextChanged()"}));
        label->setText(QStringLiteral("short"));
        label->setText(QStringLiteral("short"));
        QCOMPARE(log.take(), QStringList());
        label->setText(QString());
        QCOMPARE(log.take(), lines({"currentTextChanged()"}));
        label->setText(QStringLiteral(""));
        QCOMPARE(log.take(), QStringList());
    }

    void aTextIsComparedWithTheOneThatIsWrapped()
    {
        const auto label = makeLabel();
        label->setText(tall());
        SignalLog log(label.get());
        label->setText(tall());
        QCOMPARE(log.take(), lines({"currentTextChanged()"}));
        label->setText(wrapped(*label, tall()));
        QCOMPARE(log.take(), QStringList());
    }

    void theTextIsWrappedBeforeTheChangeIsReported()
    {
        const auto label = makeLabel();
        QString seen;
        connect(label.get(), &MVScrollLabel::currentTextChanged, this,
                [&] { seen = label->text(); });
        label->setText(tall());
        QCOMPARE(seen, wrapped(*label, tall()));
    }

    void wrapping_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("sentences") << tall();
        QTest::newRow("one long word") << QString(200, QLatin1Char('x'));
        QTest::newRow("own line feeds") << QStringLiteral("a\n\nbc\n") + kSentence;
        QTest::newRow("umlauts")
            << QStringLiteral("\u00c4\u00d6\u00dc \u00e4\u00f6\u00fc\u00df ").repeated(20);
        QTest::newRow("narrow and wide") << QStringLiteral("iiiWWWlll...MMM").repeated(20);
        QTest::newRow("empty") << QString();
        QTest::newRow("one") << QStringLiteral("x");
        QTest::newRow("only line feeds") << QString(40, QLatin1Char('\n'));
        QTest::newRow("controls")
            << QStringLiteral("tab\tand\rreturn\abell\u009c\u0085 \u00ad").repeated(9);
    }

    void wrapping()
    {
        QFETCH(QString, text);
        for (const int width : {0, 1, 3, 11, 12, 13, 60, 160, 900}) {
            const auto label = makeLabel(width);
            label->setText(text);
            QCOMPARE(label->text(), wrapped(*label, text));
            QCOMPARE(label->text().remove(QLatin1Char('\n')),
                     QString(text)
                         .remove(QLatin1Char('\n'))
                         .left(label->text().remove(QLatin1Char('\n')).size()));
            const auto other = makeLabel(width);
            other->QLabel::setText(text);
            QCOMPARE(other->getHeight(), wrappedHeight(*other, text));
        }
    }

    void aWordIsBrokenBetweenCharactersThatJustFit()
    {
        const auto label = makeLabel();
        const int w = QFontMetrics(label->font()).horizontalAdvance(QLatin1Char('x'));
        label->resize(5 * w, 60);
        label->setText(QString(11, QLatin1Char('x')));
        QCOMPARE(label->text(), QStringLiteral("xxxxx\nxxxxx\nx"));
        label->resize(5 * w - 1, 60);
        label->setText(QString(9, QLatin1Char('x')));
        QCOMPARE(label->text(), QStringLiteral("xxxx\nxxxx\nx"));
    }

    void aCharacterThatFitsNowhereHasItsOwnLine()
    {
        const auto label = makeLabel(1);
        label->setText(QStringLiteral("ab"));
        QCOMPARE(label->text(), QStringLiteral("\na\nb"));
        QCOMPARE(label->getHeight(), heightOf(*label, 5)); // each time it gets more
    }

    void wrappingAgainChangesNothingWhereAllFits()
    {
        const auto label = makeLabel();
        label->setText(tall());
        const QString once = label->text();
        const int height = label->getHeight();
        QCOMPARE(label->text(), once);
        QCOMPARE(label->getHeight(), height);
        QCOMPARE(height, wrappedHeight(*label, tall()));
    }

    void gettingTheHeightIsNoChangeOfText()
    {
        const auto label = makeLabel();
        label->QLabel::setText(tall());
        SignalLog log(label.get());
        label->getHeight();
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(label->text(), wrapped(*label, tall()));
        virtualtime::advance(10000);
        QCOMPARE(runningTimers(*label), 0);
    }

    void theTextIsCutAt1023Bytes_data()
    {
        QTest::addColumn<int>("length");
        for (const int length : {1021, 1022, 1023, 1024, 1025, 5000, 1000000})
            QTest::addRow("%d", length) << length;
    }

    void theTextIsCutAt1023Bytes()
    {
        QFETCH(int, length);
        const auto label = makeLabel(20000);
        const QString text(length, QLatin1Char('x'));
        QVERIFY(measured::during([&] { label->setText(text); }) <= 1023);
        QCOMPARE(label->text(), text.left(1023));
        // Line feeds count.
        label->resize(160, 60);
        label->setText(text + QLatin1Char('y'));
        QCOMPARE(label->text().size(), qMin(1023, wrapped(*label, text).size() + 1));
        QCOMPARE(label->text(), wrapped(*label, text + QLatin1Char('y')));
    }

    void aLineFeedMayBeTheLastByte()
    {
        const auto label = makeLabel();
        const int w = QFontMetrics(label->font()).horizontalAdvance(QLatin1Char('x'));
        // Lines of 30 characters and their line feeds make 1023 bytes of 33 lines.
        label->resize(30 * w, 60);
        label->QLabel::setText(QString(2000, QLatin1Char('x')));
        QCOMPARE(label->getHeight(), heightOf(*label, 34));
        QCOMPARE(label->text().size(), 1023);
        QVERIFY(label->text().endsWith(QStringLiteral("x\n")));
        label->QLabel::setText(QString(1022, QLatin1Char('\n')) + QStringLiteral("x\nx"));
        QCOMPARE(label->getHeight(), heightOf(*label, 1023));
        label->QLabel::setText(QString(3000, QLatin1Char('\n')));
        QCOMPARE(label->getHeight(), heightOf(*label, 1024));
        QCOMPARE(label->text(), QString(1023, QLatin1Char('\n')));
    }

    void charactersOutsideLatin1AreLost()
    {
        const auto label = makeLabel();
        label->setText(QStringLiteral("a\u6625b\u0416\u00e4"));
        QCOMPARE(label->text(), QStringLiteral("a?b?\u00e4"));
    }

    // --- Painting -------------------------------------------------------------------------------

    void nothingIsPaintedBeforeTheTextIsLaidOut()
    {
        const auto label = makeLabel();
        label->QLabel::setText(QStringLiteral("Radio"));
        COMPARE_PICTURES(painted(*label), reference(*label, [](QPainter &) {}));
        label->setFrameStyle(QFrame::Box);
        COMPARE_PICTURES(painted(*label), reference(*label, [](QPainter &) {}));
    }

    void theTextStandsInItsCycle_data()
    {
        QTest::addColumn<int>("alignment");
        QTest::addColumn<QString>("text");
        for (const int alignment : {0x81, 0x21, 0x84, 0x24, 0x42, 0x22}) {
            QTest::addRow("short, 0x%x", unsigned(alignment))
                << alignment << QStringLiteral("Radio");
            QTest::addRow("tall, 0x%x", unsigned(alignment)) << alignment << tall();
        }
    }

    void theTextStandsInItsCycle()
    {
        QFETCH(int, alignment);
        QFETCH(QString, text);
        const auto label = makeLabel();
        label->setAlignment(Qt::Alignment(QFlag(alignment)));
        label->setText(text);
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
        label->setText(kSentence);
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
    }

    void theLookIsThatOfTheLabel()
    {
        const auto label = makeLabel();
        label->setText(tall());
        QPalette palette = label->palette();
        palette.setColor(QPalette::Active, QPalette::WindowText, Qt::yellow);
        label->setPalette(palette);
        QFont font = label->font();
        font.setPixelSize(11);
        label->setFont(font);
        label->setFrameStyle(QFrame::Box); // is not painted
        // The text is not wrapped anew for the font, so that the cycle is the old one.
        const int cycle = (1 + label->text().count(QLatin1Char('\n')))
                * QFontMetrics(QApplication::font()).height()
            + 10 + label->height();
        COMPARE_PICTURES(painted(*label), reference(*label, [&](QPainter &p) {
                             p.setPen(Qt::yellow);
                             p.drawText(QRect(0, 0, label->width(), cycle), int(label->alignment()),
                                        label->text());
                         }));
    }

    void inARightToLeftApplicationTheTextStandsWhereDrawTextPutsIt_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("spaces at the end of a line") << QStringLiteral("You may  \nuse this");
        QTest::newRow("more spaces") << QStringLiteral("You    \nmay \n   use\t\t\n\rthis");
        QTest::newRow("sentence") << kSentence;
    }

    void inARightToLeftApplicationTheTextStandsWhereDrawTextPutsIt()
    {
        QFETCH(QString, text);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        const auto label = makeLabel();
        label->setText(text);
        show(*label);
        const QImage picture = onScreen(*label);
        const int cycle = cycleOf(*label);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QVERIFY(!picture.isNull());
        QImage expected(label->size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(label->palette().color(QPalette::Window));
        QPainter p(&expected);
        p.setLayoutDirection(Qt::RightToLeft);
        p.setFont(label->font());
        p.setPen(label->palette().color(QPalette::WindowText));
        p.drawText(QRect(0, 0, label->width(), cycle), int(label->alignment()), label->text());
        p.end();
        COMPARE_PICTURES(picture.convertToFormat(expected.format()), expected);
    }

    void markupIsPaintedAsItIs()
    {
        const auto label = makeLabel(300);
        label->setText(QStringLiteral("<b>bold</b> &amp; &x"));
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
    }

    void aTallerLabelShowsMoreRepetitions()
    {
        const auto label = makeLabel();
        label->setText(QStringLiteral("Radio"));
        label->resize(160, 400);
        COMPARE_PICTURES(painted(*label), documented(*label, 0, 60));
    }

    // --- Scrolling ------------------------------------------------------------------------------

    void aTallTextScrollsAfterTwoSeconds()
    {
        const auto label = makeLabel();
        SignalLog log(label.get());
        label->setText(tall());
        QVERIFY(label->isVisible() == false);
        QCOMPARE(log.take(), lines({"currentTextChanged()"}));
        virtualtime::advance(kDelay - 1);
        QVERIFY(!label->isScroll());
        QCOMPARE(log.take(), QStringList());
        virtualtime::advance(1);
        QVERIFY(label->isScroll());
        QCOMPARE(log.take(), lines({"scrollStateChanged(true)"}));
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
        virtualtime::advance(1000);
        COMPARE_PICTURES(painted(*label), documented(*label, 20));
    }

    void aTextThatFitsNeverScrolls()
    {
        const auto label = makeLabel();
        SignalLog log(label.get());
        label->resize(160, heightOf(*label, 3));
        label->setText(QStringLiteral("one\ntwo\nthree"));
        show(*label);
        QCOMPARE(paints(*label, [] { virtualtime::advance(60000); }), 0);
        QVERIFY(!label->isScroll());
        label->stopScroll();
        QCOMPARE(log.take(), lines({"currentTextChanged()"}));
        label->resize(160, heightOf(*label, 3) - 1);
        label->setText(QStringLiteral("one\ntwo\n3"));
        virtualtime::advance(kDelay);
        QVERIFY(label->isScroll());
    }

    void theTextRepeatsAfterEachCycle()
    {
        const auto label = makeLabel(160, 40);
        label->setAlignment(Qt::AlignTop);
        label->setText(kSentence);
        const int cycle = cycleOf(*label);
        virtualtime::advance(kDelay);
        for (int offset = 1; offset <= 2 * cycle + 3; ++offset) {
            virtualtime::advance(kSpeed);
            COMPARE_PICTURES(painted(*label), documented(*label, offset % cycle));
        }
    }

    void theSpeedIsTheIntervalOfATick_data()
    {
        QTest::addColumn<int>("speed");
        for (const int speed : {100, 25, 200})
            QTest::addRow("%d", speed) << speed;
    }

    void theSpeedIsTheIntervalOfATick()
    {
        QFETCH(int, speed);
        const auto label = makeLabel();
        label->setText(tall());
        label->setScrollSpeed(speed);
        label->startScroll();
        const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(label.get());
        QCOMPARE(timers.size(), 1);
        QCOMPARE(timers.first().interval, speed);
        virtualtime::advance(7 * speed);
        COMPARE_PICTURES(painted(*label), documented(*label, 7));
    }

    void aNegativeSpeedMovesNothing()
    {
        const auto label = makeLabel();
        label->setText(tall());
        SignalLog log(label.get());
        for (const int speed : {-1, INT_MIN}) {
            label->startScroll();
            label->setScrollSpeed(speed);
            label->startScroll();
            QVERIFY(label->isScroll());
            QCOMPARE(runningTimers(*label), 0);
            QCOMPARE(log.take(), lines({"scrollStateChanged(true)", "scrollStateChanged(true)"}));
            label->stopScroll();
            QVERIFY(label->isScroll());
            QCOMPARE(log.take(), QStringList());
        }
    }

    void aSpeedOfZeroScrollsInEveryRoundOfTheEventLoop()
    {
        const auto label = makeLabel();
        label->setAlignment(Qt::AlignTop);
        label->setText(tall());
        label->setScrollSpeed(0);
        label->startScroll();
        for (int i = 0; i < 30; ++i)
            QCoreApplication::processEvents();
        label->stopScroll();
        QVERIFY(painted(*label) != documented(*label, 0));
    }

    void startingTwiceReportsTwiceAndScrollsOnce()
    {
        const auto label = makeLabel();
        label->setText(tall());
        SignalLog log(label.get());
        label->startScroll();
        label->startScroll();
        QCOMPARE(log.take(), lines({"scrollStateChanged(true)", "scrollStateChanged(true)"}));
        QCOMPARE(runningTimers(*label), 1);
        virtualtime::advance(10 * kSpeed);
        COMPARE_PICTURES(painted(*label), documented(*label, 10));
        label->stopScroll();
        QCOMPARE(log.take(), lines({"scrollStateChanged(false)"}));
        QCOMPARE(runningTimers(*label), 0);
        label->stopScroll();
        QCOMPARE(log.take(), QStringList());
    }

    void twoTextsInARowStartTheScrollingTwice()
    {
        const auto label = makeLabel();
        SignalLog log(label.get());
        label->setText(tall());
        virtualtime::advance(500);
        label->setText(tall().toUpper());
        log.take();
        virtualtime::advance(kDelay - 500);
        QCOMPARE(log.take(), lines({"scrollStateChanged(true)"}));
        virtualtime::advance(499);
        QCOMPARE(log.take(), QStringList());
        virtualtime::advance(1);
        QCOMPARE(log.take(), lines({"scrollStateChanged(true)"}));
        virtualtime::advance(10000);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(runningTimers(*label), 1);
    }

    void aNewTextInTheMiddleOfATickGoesOnWithIt()
    {
        const auto label = makeLabel();
        label->setAlignment(Qt::AlignTop);
        label->setScrollSpeed(100);
        label->setText(tall());
        label->startScroll();
        virtualtime::advance(550);
        COMPARE_PICTURES(painted(*label), documented(*label, 5));
        label->setText(tall().toUpper());
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
        virtualtime::advance(49);
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
        virtualtime::advance(1);
        COMPARE_PICTURES(painted(*label), documented(*label, 1));
    }

    void stoppingStaysWhereItIs()
    {
        const auto label = makeLabel();
        label->setText(tall());
        show(*label);
        label->startScroll();
        virtualtime::advance(10 * kSpeed);
        label->stopScroll();
        QVERIFY(!label->isScroll());
        QCOMPARE(paints(*label, [] { virtualtime::advance(1000); }), 0);
        COMPARE_PICTURES(painted(*label), documented(*label, 10));
    }

    void aNewTextStartsAtItsTop()
    {
        const auto label = makeLabel();
        label->setText(tall());
        show(*label);
        label->startScroll();
        virtualtime::advance(10 * kSpeed);
        const QString other = tall().toUpper();
        QCOMPARE(paints(*label, [&] { label->setText(other); }), 1);
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
        QVERIFY(label->isScroll());
        virtualtime::advance(3 * kSpeed);
        COMPARE_PICTURES(painted(*label), documented(*label, 3));
    }

    void aShortTextEndsTheScrolling()
    {
        const auto label = makeLabel();
        label->setText(tall());
        label->startScroll();
        SignalLog log(label.get());
        label->setText(QStringLiteral("short"));
        QCOMPARE(log.take(), lines({"scrollStateChanged(false)", "currentTextChanged()"}));
        QVERIFY(!label->isScroll());
        QCOMPARE(runningTimers(*label), 0);
    }

    void aStepRepaintsTheOwnRectangleAndNothingElse()
    {
        QWidget window;
        window.resize(300, 200);
        auto *label = new MVScrollLabel(&window, {});
        label->setGeometry(20, 30, 160, 60);
        QWidget neighbour(&window);
        neighbour.setGeometry(20, 92, 160, 60);
        label->setText(tall());
        show(window);
        label->startScroll();
        QCOMPARE(paints(neighbour, [] { virtualtime::advance(10 * kSpeed); }), 0);
        QCOMPARE(paints(*label, [] { virtualtime::advance(10 * kSpeed); }), 10);
    }

    void eachInputShowsInAKeptText_data()
    {
        const TableRows<Action> row("action");
        row("colour", [](MVScrollLabel &l) {
            QPalette palette = l.palette();
            palette.setColor(QPalette::WindowText, QColor(250, 120, 3));
            l.setPalette(palette);
        });
        row("alignment", [](MVScrollLabel &l) { l.setAlignment(Qt::AlignHCenter | Qt::AlignTop); });
        row("font", [](MVScrollLabel &l) {
            QFont font = l.font();
            font.setItalic(true);
            l.setFont(font);
        });
        row("text", [](MVScrollLabel &l) { l.QLabel::setText(l.text().toUpper()); });
        row("width", [](MVScrollLabel &l) { l.resize(150, 60); });
        row("offset", [](MVScrollLabel &l) { touch(&l).press(5, 50).moveTo(5, 30).release(); });
    }

    void eachInputShowsInAKeptText()
    {
        QFETCH(Action, action);
        const auto label = makeLabel();
        label->setText(tall());
        label->setAlignment(Qt::AlignRight | Qt::AlignTop);
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(painted(*label), documented(*label, 0));
        const QImage before = painted(*label);
        const int cycle = cycleOf(*label);
        action(*label);
        const bool isMoved = QTest::currentDataTag() == QByteArray("offset");
        QVERIFY(painted(*label) != before);
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(painted(*label), documented(*label, isMoved ? 20 : 0));
        QCOMPARE(cycleOf(*label), cycle);
    }

    void aKeptTextIsLaidOutAnewForAnotherHeight()
    {
        const auto label = makeLabel();
        label->setText(tall());
        label->resize(160, 90);
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(painted(*label), documented(*label, 0, 60));
        QShowEvent shown;
        QCoreApplication::sendEvent(label.get(), &shown);
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(painted(*label), documented(*label, 0));
    }

    void aKeptTextFollowsTheFingerBackAndForth()
    {
        const auto label = makeLabel();
        label->setText(tall());
        int offset = 0;
        for (const int way : {30, 40, 70, -10, -100, -29, 160, 5, -150}) {
            touch(label.get()).press(5, 500).moveTo(5, 500 - way).release();
            offset += way;
            for (int paint = 0; paint < 2; ++paint)
                COMPARE_PICTURES(painted(*label), documented(*label, offset));
        }
        touch(label.get()).press(5, 500).moveTo(5, 520 + offset).release(); // before the beginning
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(painted(*label), documented(*label, -20));
    }

    void aKeptTextIsOneForPaintersThatCopyIt()
    {
        const auto label = makeLabel();
        label->setText(tall());
        const auto rendered = [](MVScrollLabel &shown, const Prepare &prepare) {
            QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
            image.fill(QColor(20, 60, 90));
            QPainter painter(&image);
            prepare(painter);
            shown.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
            return image;
        };
        const std::vector<Prepare> painters{
            [](QPainter &p) { p.scale(qreal(1.5), qreal(1.5)); },
            [](QPainter &p) { p.setOpacity(qreal(0.5)); },
            [](QPainter &p) { p.translate(qreal(10.5), qreal(4.5)); },
            [](QPainter &p) { p.translate(10, 4); },
        };
        for (const Prepare &prepare : painters) {
            const auto fresh = makeLabel();
            fresh->setText(tall());
            const QImage direct = rendered(*fresh, prepare);
            for (int paint = 0; paint < 3; ++paint)
                painted(*label);
            COMPARE_PICTURES(rendered(*label, prepare), direct);
        }
    }

    void theScreenShowsEachStep_data()
    {
        QTest::addColumn<bool>("isOpaque");
        QTest::newRow("opaque: the pixels are moved") << true;
        QTest::newRow("translucent: all is painted") << false;
    }

    void theScreenShowsEachStep()
    {
        QFETCH(bool, isOpaque);
        QWidget window;
        window.resize(200, 120);
        auto *label = new MVScrollLabel(&window, {});
        label->setGeometry(10, 10, 160, 60);
        label->setAutoFillBackground(isOpaque);
        label->setText(tall());
        show(window);
        label->startScroll();
        for (int i = 0; i < 40; ++i) {
            virtualtime::advance(kSpeed);
            const QImage shown = onScreen(window);
            QVERIFY(!shown.isNull());
            label->update();
            virtualtime::advance(0);
            COMPARE_PICTURES(shown, onScreen(window));
        }
    }

    void aStepOfAnOpaqueLabelPaintsOneLineOfPixels()
    {
        PaintedRects label(nullptr, {});
        label.resize(160, 60);
        label.setText(tall());
        show(label);
        label.startScroll();
        label.rects.clear();
        virtualtime::advance(3 * kSpeed);
        QCOMPARE(label.rects, QVector<QRect>(3, QRect(0, 59, 160, 1)));
    }

    void afterACycleTheTextCanBePushedOffItsTopAgain()
    {
        const auto label = makeLabel(160, 40);
        label->setAlignment(Qt::AlignTop);
        label->setText(kSentence);
        const int cycle = cycleOf(*label);
        virtualtime::advance(kDelay + cycle * kSpeed);
        label->stopScroll();
        touch(label.get()).press(20, 10).moveTo(20, 80).release();
        COMPARE_PICTURES(painted(*label), documented(*label, -70));
    }

    void ticksOfOthersGoOn()
    {
        Handlers label(nullptr, Qt::WindowFlags());
        label.resize(160, 60);
        label.setText(tall());
        label.startScroll();
        const int own =
            QAbstractEventDispatcher::instance()->registeredTimers(&label).first().timerId;
        QTimerEvent other(own + 1);
        label.timerEvent(&other);
        COMPARE_PICTURES(painted(label), documented(label, 0));
        QTimerEvent tick(own);
        label.timerEvent(&tick);
        COMPARE_PICTURES(painted(label), documented(label, 1));
        label.hide();
        label.stopScroll();
        QTimerEvent late(own);
        label.timerEvent(&late);
        COMPARE_PICTURES(painted(label), documented(label, 1));
    }

    // --- Shown and hidden -----------------------------------------------------------------------

    void showingWrapsToTheWidthOfThatMoment()
    {
        const auto label = makeLabel();
        label->setText(kSentence);
        const QString before = label->text();
        label->resize(90, 60);
        QCOMPARE(label->text(), before);
        SignalLog log(label.get());
        show(*label);
        QCOMPARE(label->text(), wrapped(*label, before));
        QVERIFY(label->text() != before);
        QCOMPARE(log.take(), QStringList());
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
    }

    void aTallTextScrollsTwoSecondsAfterItIsShown()
    {
        const auto label = makeLabel();
        label->QLabel::setText(tall());
        SignalLog log(label.get());
        show(*label);
        virtualtime::advance(kDelay - 1);
        QCOMPARE(log.take(), QStringList());
        virtualtime::advance(1);
        QCOMPARE(log.take(), lines({"scrollStateChanged(true)"}));
    }

    void hidingStopsTheTimerButNotTheState()
    {
        const auto label = makeLabel();
        label->setText(tall());
        show(*label);
        virtualtime::advance(kDelay + 10 * kSpeed);
        SignalLog log(label.get());
        label->hide();
        QVERIFY(label->isScroll());
        QCOMPARE(runningTimers(*label), 0);
        QCOMPARE(log.take(), QStringList());
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
        virtualtime::advance(10000);
        COMPARE_PICTURES(painted(*label), documented(*label, 0));

        show(*label);
        QVERIFY(label->isScroll());
        QCOMPARE(log.take(), QStringList());
        virtualtime::advance(kDelay - 1);
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
        virtualtime::advance(1);
        QCOMPARE(log.take(), lines({"scrollStateChanged(true)"}));
        virtualtime::advance(5 * kSpeed);
        COMPARE_PICTURES(painted(*label), documented(*label, 5));
    }

    void theStateOfAHiddenLabelCanStillBeStopped()
    {
        const auto label = makeLabel();
        label->setText(tall());
        show(*label);
        virtualtime::advance(kDelay);
        label->hide();
        label->hide();
        QHideEvent again;
        QCoreApplication::sendEvent(label.get(), &again);
        SignalLog log(label.get());
        label->stopScroll();
        QVERIFY(!label->isScroll());
        QCOMPARE(log.take(), lines({"scrollStateChanged(false)"}));
        label->stopScroll();
        QCOMPARE(log.take(), QStringList());
    }

    void showingATextThatFitsByThenEndsTheState()
    {
        const auto label = makeLabel();
        label->setText(tall());
        show(*label);
        virtualtime::advance(kDelay);
        label->hide();
        label->resize(160, 2000);
        SignalLog log(label.get());
        show(*label);
        QVERIFY(!label->isScroll());
        QCOMPARE(log.take(), lines({"scrollStateChanged(false)"}));
    }

    // --- Touches --------------------------------------------------------------------------------

    void aFingerPushesTheText()
    {
        const auto label = makeLabel();
        label->setAlignment(Qt::AlignTop);
        label->setText(tall());
        Touch finger = touch(label.get());
        finger.press(20, 50).moveTo(20, 30);
        COMPARE_PICTURES(painted(*label), documented(*label, 20));
        finger.moveTo(80, 25);
        COMPARE_PICTURES(painted(*label), documented(*label, 25));
        finger.release();
        COMPARE_PICTURES(painted(*label), documented(*label, 25));
        finger.press(20, 10).moveTo(20, 18).release();
        COMPARE_PICTURES(painted(*label), documented(*label, 17));
    }

    void aReleaseElsewhereMovesTheTextToo()
    {
        Handlers label(nullptr, Qt::WindowFlags());
        label.resize(160, 60);
        label.setAlignment(Qt::AlignTop);
        label.setText(tall());
        touch(&label).press(10, 50);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(10, 38), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        label.mouseReleaseEvent(&release);
        COMPARE_PICTURES(painted(label), documented(label, 12));
        // A release does not become the last touch.
        label.mouseReleaseEvent(&release);
        COMPARE_PICTURES(painted(label), documented(label, 24));
    }

    void pushedDownTheTextLeavesItsTop()
    {
        const auto label = makeLabel();
        label->setAlignment(Qt::AlignTop);
        label->setText(tall());
        touch(label.get()).press(20, 10).moveTo(20, 45).release();
        COMPARE_PICTURES(painted(*label), documented(*label, -35));
        virtualtime::advance(kDelay + 40 * kSpeed);
        COMPARE_PICTURES(painted(*label), documented(*label, 5));
    }

    void pushedBeyondItsCycleTheTextIsAtItsTop()
    {
        const auto label = makeLabel();
        label->setAlignment(Qt::AlignTop);
        label->setText(kSentence);
        const int cycle = cycleOf(*label);
        touch(label.get()).press(20, cycle).moveTo(20, 1).release();
        COMPARE_PICTURES(painted(*label), documented(*label, cycle - 1));
        touch(label.get()).press(20, 1).moveTo(20, 0).release();
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
        touch(label.get()).press(20, 0).moveTo(20, 90).release();
        COMPARE_PICTURES(painted(*label), documented(*label, -90));
    }

    void thePixelsOfAnOpaqueLabelMoveTheOtherWay()
    {
        QWidget window;
        window.resize(200, 120);
        auto *label = new MVScrollLabel(&window, {});
        label->setGeometry(10, 10, 160, 60);
        label->setAutoFillBackground(true);
        label->setAlignment(Qt::AlignTop);
        label->setText(tall());
        show(window);
        const QImage before = onScreen(window);
        QVERIFY(!before.isNull());
        touch(label).press(20, 30).moveTo(20, 35).release();
        virtualtime::advance(0);
        QCOMPARE(onScreen(window).copy(10, 10, 160, 55), before.copy(10, 15, 160, 55));
        label->update();
        virtualtime::advance(0);
        QCOMPARE(onScreen(window).copy(10, 15, 160, 55), before.copy(10, 10, 160, 55));
    }

    void aTranslucentLabelShowsThePlaceAtOnce()
    {
        const auto label = makeLabel();
        label->setText(tall());
        show(*label);
        const QImage before = painted(*label);
        QCOMPARE(paints(*label, [&] { touch(label.get()).press(20, 30).release(); }), 0);
        QCOMPARE(paints(*label, [&] { touch(label.get()).press(20, 30).moveTo(20, 20); }), 1);
        QVERIFY(painted(*label) != before);
    }

    // QLabel tells of a link under the finger while it handles the touch.
    void theTextIsPushedBeforeTheLabelHandlesTheTouch()
    {
        Handlers label(nullptr, Qt::WindowFlags());
        label.resize(900, 60);
        label.setTextInteractionFlags(Qt::LinksAccessibleByMouse);
        label.setText(QStringLiteral("<a href=\"x\">You may use this</a>"));
        int hovers = 0;
        int activations = 0;
        QImage seen;
        connect(&label, &QLabel::linkHovered, this, [&] {
            ++hovers;
            seen = painted(label);
        });
        connect(&label, &QLabel::linkActivated, this, [&] {
            ++activations;
            seen = painted(label);
        });
        const auto send = [&](QEvent::Type type, int y, void (Handlers::*handler)(QMouseEvent *)) {
            QMouseEvent event(type, QPointF(QPoint(10, y)), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            (label.*handler)(&event);
        };
        send(QEvent::MouseButtonPress, 26, &Handlers::mousePressEvent);
        send(QEvent::MouseMove, 31, &Handlers::mouseMoveEvent);
        QCOMPARE(hovers, 1);
        COMPARE_PICTURES(seen, documented(label, -5));
        send(QEvent::MouseButtonRelease, 34, &Handlers::mouseReleaseEvent);
        QCOMPARE(activations, 1);
        COMPARE_PICTURES(seen, documented(label, -8));
    }

    void touchesGoOnToTheParent()
    {
        const auto label = makeLabel();
        label->setText(tall());
        Touch finger = touch(label.get());
        QVERIFY(!finger.press(5, 5).wasAccepted());
        QVERIFY(!finger.moveTo(6, 5).wasAccepted());
        QVERIFY(!finger.release().wasAccepted());
    }

    // --- Robustness -----------------------------------------------------------------------------

    void hostileTouches()
    {
        const auto label = makeLabel();
        label->setText(tall());
        show(*label);
        const auto copiesPainted = [&] {
            const int before = alignmentsAsked;
            painted(*label);
            return alignmentsAsked - before;
        };
        constexpr int kFar = 2000000000;
        for (int i = 0; i < 5; ++i) {
            touch(label.get()).press(5, kFar).moveTo(5, -kFar).release();
            QCOMPARE(copiesPainted(), 1);
            touch(label.get()).press(5, -kFar).moveTo(5, kFar).release();
            QCOMPARE(copiesPainted(), 0);
        }
        QCOMPARE(painted(*label), reference(*label, [](QPainter &) {})); // far below
    }

    void scrollingWithoutALayoutStaysAtTheTop()
    {
        const auto label = makeLabel();
        label->startScroll();
        virtualtime::advance(10 * kSpeed);
        label->setAlignment(Qt::AlignTop);
        label->setText(tall());
        COMPARE_PICTURES(painted(*label), documented(*label, 0));
    }

    void smallLabelsAreBounded()
    {
        for (const QSize &size : {QSize(0, 0), QSize(0, 60), QSize(60, 0), QSize(1, 1)}) {
            const auto label = makeLabel(size.width(), size.height());
            for (const int length : {0, 1, 1022, 1023, 1024, 1000000}) {
                for (const char c : {'n', '\n'}) {
                    const qint64 count = measured::during([&] {
                        label->setText(QString(length, QLatin1Char(c)));
                        for (int i = 0; i < 3; ++i) {
                            label->hide();
                            show(*label);
                        }
                        label->startScroll();
                        virtualtime::advance(10 * kSpeed);
                        painted(*label);
                    });
                    QVERIFY(label->text().size() <= 1023);
                    QVERIFY2(count <= 4 * 1023, qPrintable(QString::number(count)));
                }
            }
        }
    }

    void aLabelMayBeDeletedByAnyReport()
    {
        for (const char *report :
             {"currentTextChanged()", "scrollStateChanged(true)", "scrollStateChanged(false)"}) {
            auto *label = makeLabel().release();
            const QPointer<MVScrollLabel> guard(label);
            SignalLog log(label);
            log.onLine([&](const QString &line) {
                if (line == QLatin1String(report))
                    delete label;
            });
            label->setText(tall());
            if (guard)
                label->startScroll();
            if (guard)
                label->setText(QStringLiteral("short"));
            QVERIFY(!guard);
        }
    }
};

WIDGET_TEST_MAIN(tst_MVScrollLabel)
#include "tst_mvscrolllabel.moc"
