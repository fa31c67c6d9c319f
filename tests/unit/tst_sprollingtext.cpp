// SPDX-License-Identifier: Apache-2.0
#include <SpRollingText>

#include "keptlooks.h"
#include "measuredtext.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QAbstractEventDispatcher>
#include <QFontMetrics>
#include <QGraphicsDropShadowEffect>
#include <QPainter>
#include <QPaintEvent>
#include <QTimer>

#include <climits>
#include <limits>
#include <memory>

namespace
{

constexpr int kTick = 150; // ms
const QString kLong = QStringLiteral("Midnight Lanterns, from the album Maps for Sundays");

int widthOf(const QFont &font, const QString &text)
{
    return QFontMetrics(font).horizontalAdvance(text);
}

std::unique_ptr<SpRollingText> makeText(int width = 160, int height = 30)
{
    auto text = std::make_unique<SpRollingText>();
    text->resize(width, height);
    return text;
}

// How many characters a text of this width displays while it rolls: as many as there are dots in
// it, with what the font puts between them, and three more. Less than none are none.
int countOf(const SpRollingText &widget)
{
    const int dot = widthOf(widget.font(), QStringLiteral("."));
    return (dot == 0 ? 0 : qMax(0, widget.width() / dot)) + 3;
}

// What is documented of a text that rolls, step by step.
struct Marquee {
    Marquee(const SpRollingText &widget, const QString &text)
        : metrics(widget.font()), source(text + QString(16, QLatin1Char(' '))),
          shown(source.left(countOf(widget))), next(countOf(widget)),
          first(metrics.horizontalAdvance(shown.at(0)))
    {
    }

    void step()
    {
        offset += 2;
        if (offset >= first) {
            shown.remove(0, 1);
            shown += source.at(next % source.size());
            next = next % source.size() + 1;
            offset = 0;
            first = metrics.horizontalAdvance(shown.at(0));
        }
        if (next >= source.size())
            next = 0;
    }

    QFontMetrics metrics;
    QString source;
    QString shown;
    int next;
    int first;
    int offset = 0;
};

QImage rolling(const SpRollingText &widget, const QString &shown, int offset)
{
    return reference(widget, [&](QPainter &p) {
        QLinearGradient fade(widget.rect().topLeft(), widget.rect().bottomRight());
        fade.setColorAt(0, Qt::transparent);
        fade.setColorAt(qreal(0.08), widget.textColor());
        fade.setColorAt(qreal(0.92), widget.textColor());
        fade.setColorAt(1, Qt::transparent);
        if (widget.isVisible()) // a painter on a widget that is only rendered has no direction
            p.setLayoutDirection(QGuiApplication::layoutDirection());
        p.setPen(
            QPen(QBrush(fade), qreal(widget.width()), Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        p.drawText(QRect(-offset, 0, widthOf(widget.font(), shown), widget.height()),
                   int(widget.textAlignment()), shown);
    });
}

QImage rolling(const SpRollingText &widget, const Marquee &marquee)
{
    return rolling(widget, marquee.shown, marquee.offset);
}

QImage resting(const SpRollingText &widget, const QString &shown)
{
    return reference(widget, [&](QPainter &p) {
        p.setPen(widget.textColor());
        p.drawText(widget.rect(), int(widget.textAlignment()), shown);
    });
}

// The text with its end cut off, length by length, as it is documented. So many of its first
// characters are known to take no room, and are passed over if the dots leave any.
QString shortened(const SpRollingText &widget, const QString &text, int weightless = 0)
{
    const QString source = text + QString(16, QLatin1Char(' '));
    const QFont font = widget.font();
    int n = widthOf(font, QStringLiteral("...")) <= widget.width() - 1 ? weightless + 1 : 1;
    while (n < source.size()
           && widthOf(font, QStringLiteral("...")) + widthOf(font, source.left(n))
               <= widget.width() - 1)
        ++n;
    return source.left(n - 1) + QStringLiteral("...");
}

// What the widget painted last, when it was shown; each paint of its own would be a step.
class LastPaint : public SpRollingText
{
public:
    LastPaint() { resize(160, 30); }

    QImage picture;
    QRegion region;
    int count = 0;

protected:
    QPaintDevice *redirected(QPoint *offset) const override
    {
        return m_canvas.isNull() ? SpRollingText::redirected(offset) : &m_canvas;
    }

    void paintEvent(QPaintEvent *e) override
    {
        m_canvas = QImage(size(), QImage::Format_ARGB32_Premultiplied);
        m_canvas.fill(Qt::transparent);
        SpRollingText::paintEvent(e);
        picture = std::exchange(m_canvas, {});
        region = e->region();
        ++count;
    }

private:
    mutable QImage m_canvas;
};

// A subclass that keeps to itself when it is shown and hidden.
class Reserved : public LastPaint
{
protected:
    void showEvent(QShowEvent *) override { }
    void hideEvent(QHideEvent *) override { }
};

bool isTicking(const SpRollingText &text)
{
    const auto *timer = text.findChild<QTimer *>();
    return timer && timer->isActive();
}

QGraphicsDropShadowEffect *shadowOf(const SpRollingText &text)
{
    return qobject_cast<QGraphicsDropShadowEffect *>(text.graphicsEffect());
}

// A step, as after a paint.
void step(SpRollingText &text)
{
    painted(text);
    QCoreApplication::processEvents();
}

QFont fontNamed(const char *family, int px)
{
    QFont font(QString::fromLatin1(family));
    font.setPixelSize(px);
    return font;
}

using Action = std::function<void(SpRollingText &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_SpRollingText : public WidgetTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        const SpRollingText text;
        QCOMPARE(text.text(), QString());
        QCOMPARE(text.fontSize(), 20);
        QCOMPARE(text.font(), QApplication::font());
        QCOMPARE(text.textColor(), QColor(255, 255, 255, 255));
        QCOMPARE(int(text.textAlignment()), 0x84);
        QCOMPARE(text.dropShodow(), false);
        QCOMPARE(text.shadowColor(), QColor(0, 0, 0, 255));
        QVERIFY(text.shadowOffset() == QPointF(2, 2));
        QCOMPARE(text.autoRoll(), true);
        QVERIFY(!text.graphicsEffect());
        const auto timers = text.findChildren<QTimer *>();
        QCOMPARE(timers.size(), 1);
        QCOMPARE(timers.first()->interval(), kTick);
        QVERIFY(!timers.first()->isActive());
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("text", 1, [](auto &t) { t.setText(QStringLiteral("Radio")); });
        row("no text", 1, [](auto &t) { t.setText({}); });
        row("long text", 1, [](auto &t) { t.setText(kLong); });
        row("clear", 1, [](auto &t) { t.clear(); });
        row("textColor", 0, [](auto &t) { t.setTextColor(Qt::red); });
        row("textAlignment", 0, [](auto &t) { t.setTextAlignment(Qt::AlignLeft); });
        row("dropShodow off", 1, [](auto &t) { t.setDropShodow(false); });
        row("shadowColor", 1, [](auto &t) { t.setShadowColor(Qt::red); });
        row("shadowOffset", 1, [](auto &t) { t.setShadowOffset({1, 1}); });
        row("effectDropShadow", 1, [](auto &t) { t.effectDropShadow(); });
        row("autoRoll on", 1, [](auto &t) { t.setAutoRoll(true); });
        row("autoRoll off", 1, [](auto &t) { t.setAutoRoll(false); });
        row("wait", 0, [](auto &t) { t.setWaitRoll(1000); });
        row("fontSize as it is", 0, [](auto &t) { t.setFontSize(t.font().pixelSize()); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot()
    {
        const auto text = makeText();
        text->setText(QStringLiteral("Radio"));
        text->setFontSize(16); // so that another write of it does not change the font
        checkRepaints(*text);
    }

    void colourAndAlignmentShowAtTheNextRepaint()
    {
        LastPaint text;
        text.setText(QStringLiteral("Radio"));
        show(text);
        const QImage before = text.picture;
        text.setTextColor(Qt::red);
        text.setTextAlignment(Qt::AlignRight | Qt::AlignTop);
        virtualtime::advance(1000);
        QCOMPARE(text.picture, before);
        text.update();
        virtualtime::advance(0);
        COMPARE_PICTURES(text.picture, resting(text, QStringLiteral("Radio")));
    }

    void fontSizeSetsTheFontAndNothingElse()
    {
        const auto text = makeText();
        QFont bold = text->font();
        bold.setBold(true);
        text->setFont(bold);
        text->setText(QStringLiteral("Radio"));
        text->setFontSize(60);
        QCOMPARE(text->fontSize(), 60);
        QCOMPARE(text->font().pixelSize(), 60);
        QVERIFY(text->font().bold());
        // Too wide by now, but as it was laid out.
        QVERIFY(widthOf(text->font(), text->text()) > text->width());
        COMPARE_PICTURES(painted(*text), resting(*text, QStringLiteral("Radio")));
        QVERIFY(!isTicking(*text));
        text->setText(QStringLiteral("Radio"));
        QVERIFY(isTicking(*text));
    }

    void aFontSizeThatIsNoneIsStoredAndTheFontStays()
    {
        SpRollingText text;
        text.setFontSize(30);
        for (const int size : {0, -1, INT_MIN}) {
            text.setFontSize(size);
            QCOMPARE(text.fontSize(), size);
            QCOMPARE(text.font().pixelSize(), 30);
        }
    }

    void aTextThatRollsKeepsItsCountOfCharactersInAnotherFont()
    {
        const auto text = makeText();
        text->setText(kLong);
        Marquee marquee(*text, kLong);
        text->setFontSize(11);
        COMPARE_PICTURES(painted(*text), rolling(*text, marquee));
        QCoreApplication::processEvents();
        marquee.metrics = QFontMetrics(text->font());
        for (int i = 0; i < 30; ++i) {
            marquee.step();
            COMPARE_PICTURES(painted(*text), rolling(*text, marquee));
            QCoreApplication::processEvents();
        }
        text->setText(kLong);
        COMPARE_PICTURES(painted(*text), rolling(*text, Marquee(*text, kLong)));
    }

    // --- At rest --------------------------------------------------------------------------------

    void aTextThatFitsIsDrawnPlainly_data()
    {
        QTest::addColumn<int>("alignment");
        for (const int alignment : {0x84, 0x21, 0x42, 0x22, 0x81, 0x24, 0x04, 0})
            QTest::addRow("0x%x", unsigned(alignment)) << alignment;
    }

    void aTextThatFitsIsDrawnPlainly()
    {
        QFETCH(int, alignment);
        const auto text = makeText();
        text->setTextAlignment(Qt::Alignment(QFlag(alignment)));
        text->setTextColor(QColor(20, 200, 90, 180));
        for (const bool isRolling : {true, false}) {
            text->setAutoRoll(isRolling);
            for (const char *shown : {"Radio", "a", "two\nlines", "\xD9\x85\xD9\x88\xD8\xB3", ""}) {
                text->setText(QString::fromUtf8(shown));
                COMPARE_PICTURES(painted(*text), resting(*text, QString::fromUtf8(shown)));
                QVERIFY(!isTicking(*text));
            }
        }
    }

    void aTextAtRestIsTheSameInEachPaint()
    {
        const auto text = makeText();
        text->setText(QStringLiteral("Radio (98.5)"));
        const auto check = [&](const char *what) {
            for (int paint = 0; paint < 3; ++paint)
                QVERIFY2(painted(*text) == resting(*text, text->text()), what);
        };
        check("as it is");
        text->setTextColor(QColor(250, 120, 3));
        check("colour");
        text->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        check("alignment");
        QFont italic = text->font();
        italic.setItalic(true);
        text->setFont(italic);
        check("font");
        text->setText(QStringLiteral("Radio (98.6)"));
        check("text");
        text->setTextAlignment(Qt::AlignRight | Qt::AlignTop);
        check("alignment to the right");
        text->resize(170, 30);
        check("width");
        text->setTextColor(QColor(250, 120, 3, 100));
        check("colour that shines through");
    }

    void aTextThatIsKeptIsDrawnWhereItCannotBeCopied()
    {
        using Prepare = std::function<void(QPainter &)>;
        const auto rendered = [](SpRollingText &shown, const Prepare &prepare) {
            QImage image(400, 120, QImage::Format_ARGB32_Premultiplied);
            image.fill(QColor(20, 60, 90));
            QPainter painter(&image);
            prepare(painter);
            shown.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
            return image;
        };
        for (const QString &content : {QStringLiteral("Radio"), kLong}) {
            for (const Prepare &prepare : {
                     Prepare([](QPainter &p) { p.scale(qreal(1.5), qreal(1.5)); }),
                     Prepare([](QPainter &p) { p.setOpacity(qreal(0.5)); }),
                     Prepare([](QPainter &p) { p.translate(qreal(10.5), qreal(4.5)); }),
                 }) {
                const auto kept = makeText();
                const auto fresh = makeText();
                kept->setText(content);
                fresh->setText(content);
                for (int paint = 0; paint < 3; ++paint)
                    painted(*kept);
                COMPARE_PICTURES(rendered(*kept, prepare), rendered(*fresh, prepare));
            }
        }
    }

    // Sixteen bits of colour round a copy in another way.
    void onADeviceOfFewColoursATextIsDrawn()
    {
        for (const QString &content : {QStringLiteral("Radio (98.5)"), kLong}) {
            const auto text = makeText();
            text->setText(content);
            QImage first;
            for (int paint = 0; paint < 3; ++paint) {
                QImage image(160, 30, QImage::Format_RGB16);
                image.fill(QColor(20, 60, 90));
                text->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
                if (paint == 0)
                    first = image;
                COMPARE_PICTURES(image, first);
            }
        }
    }

    void aVeryLargeTextIsDrawnInEachPaint()
    {
        for (const bool isRolling : {false, true}) {
            const auto make = [isRolling] {
                auto text = makeText();
                text->resize(600, 110);
                text->setFontSize(80);
                text->setAutoRoll(isRolling);
                text->setWaitRoll(10000);
                text->setText(isRolling ? kLong : QStringLiteral("Radio 98.5"));
                return text;
            };
            checkVeryLargeText<SpRollingText>(make, isRolling ? 27 : 29);
        }
    }

    void aTextAsWideAsTheWidgetIsShownWhole()
    {
        const auto text = makeText();
        for (const bool rolls : {true, false}) {
            text->setAutoRoll(rolls);
            text->resize(widthOf(text->font(), kLong), 30);
            text->setText(kLong);
            QVERIFY(!isTicking(*text));
            COMPARE_PICTURES(painted(*text), resting(*text, kLong));
            text->resize(text->width() - 1, 30);
            text->setText(kLong);
            QCOMPARE(isTicking(*text), rolls);
            QVERIFY(painted(*text) != resting(*text, kLong));
        }
    }

    void onlyANewTextIsLaidOut()
    {
        const auto text = makeText(600);
        text->setAutoRoll(false);
        text->setText(kLong);
        text->resize(100, 30);
        COMPARE_PICTURES(painted(*text), resting(*text, kLong));
        text->setText(kLong);
        COMPARE_PICTURES(painted(*text), resting(*text, shortened(*text, kLong)));
        const QString kept = shortened(*text, kLong);
        text->resize(600, 30);
        COMPARE_PICTURES(painted(*text), resting(*text, kept));
    }

    void withoutAutoRollATextIsShortened_data()
    {
        QTest::addColumn<QString>("content");
        QTest::newRow("latin") << kLong;
        QTest::newRow("kerning") << QStringLiteral("AVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAV");
        QTest::newRow("narrow") << QString(120, QLatin1Char('i'));
        QTest::newRow("arabic")
            << QStringLiteral("\u0644\u064a\u0644 \u0627\u0644\u0645\u062f\u064a\u0646\u0629")
                   .repeated(12);
        QTest::newRow("chinese") << QStringLiteral("\u6625\u5929\u7684\u706f\u706b").repeated(6);
        QTest::newRow("marks") << QStringLiteral("e\u0301\u0302").repeated(60);
        QTest::newRow("spaces") << QString(90, QLatin1Char(' ')) + QLatin1Char('x');
    }

    void withoutAutoRollATextIsShortened()
    {
        QFETCH(QString, content);
        const auto text = makeText();
        text->setAutoRoll(false);
        const QString dots = QStringLiteral("...");
        for (int width = 1; width < 300; width += 7) {
            text->resize(width, 30);
            text->setText(content);
            const QString expected = shortened(*text, content);
            COMPARE_PICTURES(painted(*text), resting(*text, expected));
            if (expected != dots)
                QVERIFY(widthOf(text->font(), expected.chopped(3)) + widthOf(text->font(), dots)
                        <= width - 1);
            QVERIFY(!isTicking(*text));
        }
        QCOMPARE(text->text(), content);
    }

    void shorteningGoesOnForHundredsOfNarrowCharacters()
    {
        const auto text = makeText(4000);
        text->setAutoRoll(false);
        const QString content(2000, QLatin1Char('i'));
        text->setText(content);
        QVERIFY(shortened(*text, content).size() > 600);
        COMPARE_PICTURES(painted(*text), resting(*text, shortened(*text, content)));
    }

    // --- Rolling --------------------------------------------------------------------------------

    void theShownTextAndOffsetAreExactOverAWholeCycle_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QFont>("font");
        QTest::addColumn<int>("width");
        const QString chinese = QStringLiteral("\u6625\u5929\u7684\u706f\u706b\uff0c\u8def\u4e0a");
        const QString arabic = QStringLiteral("\u0644\u064a\u0644 \u0627\u0644\u0645\u062f\u064a"
                                              "\u0646\u0629 \u0627\u0644\u0645\u062f\u064a\u0646");
        for (const int width : {1, 37, 90}) {
            QTest::addRow("latin, %d", width)
                << QStringLiteral("Maps for Sundays") << fontNamed("DejaVu Sans", 16) << width;
            QTest::addRow("small serif, %d", width)
                << QStringLiteral("Paper Motorway, live") << fontNamed("DejaVu Serif", 9) << width;
            QTest::addRow("large, %d", width)
                << QStringLiteral("Willow") << fontNamed("DejaVu Sans", 40) << width;
            QTest::addRow("chinese, %d", width)
                << chinese << fontNamed("WenQuanYi Micro Hei", 20) << width;
            QTest::addRow("arabic, %d", width) << arabic << fontNamed("DejaVu Sans", 18) << width;
            // From right to left it shows how many characters there are.
            QFont spaced = fontNamed("DejaVu Sans", 15);
            spaced.setLetterSpacing(QFont::AbsoluteSpacing, 3);
            QTest::addRow("spaced hebrew, %d", width)
                << QStringLiteral("\u05e9\u05dc\u05d5\u05dd").repeated(6) << spaced << width;
        }
    }

    void theShownTextAndOffsetAreExactOverAWholeCycle()
    {
        QFETCH(QString, content);
        QFETCH(QFont, font);
        QFETCH(int, width);
        LastPaint text;
        text.setFont(font);
        text.resize(width, 30);
        text.setText(content);
        QVERIFY(isTicking(text));
        show(text);
        Marquee marquee(text, content);
        QCOMPARE(text.count, 1);
        COMPARE_PICTURES(text.picture, rolling(text, marquee));
        int removed = 0;
        for (int tick = 1; removed <= marquee.source.size(); ++tick) {
            const QString before = marquee.shown;
            marquee.step();
            removed += marquee.shown != before || marquee.offset == 0;
            virtualtime::advance(kTick);
            QCOMPARE(text.count, 1 + tick);
            COMPARE_PICTURES(text.picture, rolling(text, marquee));
        }
    }

    void theEndsFadeWhereTheWidgetIs()
    {
        QWidget window;
        window.resize(300, 100);
        SpRollingText text(&window);
        text.setGeometry(70, 30, 160, 30);
        text.setText(kLong);
        Marquee marquee(text, kLong);
        for (int i = 0; i < 12; ++i) {
            COMPARE_PICTURES(painted(window).copy(text.geometry()), rolling(text, marquee));
            QCoreApplication::processEvents();
            marquee.step();
        }
    }

    void everyPaintIsAStep()
    {
        const auto text = makeText();
        text->setText(kLong);
        Marquee marquee(*text, kLong);
        for (int i = 0; i < 10; ++i) {
            COMPARE_PICTURES(painted(*text), rolling(*text, marquee));
            QCoreApplication::processEvents();
            marquee.step();
        }
        COMPARE_PICTURES(painted(*text), rolling(*text, marquee));
        COMPARE_PICTURES(painted(*text), rolling(*text, marquee)); // a step is queued, not taken
    }

    void theStepItselfDoesNotRepaint()
    {
        LastPaint text;
        text.setText(kLong);
        show(text);
        virtualtime::advance(kTick - 1);
        QCOMPARE(text.count, 1);
        virtualtime::advance(1);
        QCOMPARE(text.count, 2);
    }

    void aTickRepaintsTheOwnRectangleAndNothingElse()
    {
        QWidget window;
        window.resize(300, 100);
        LastPaint text;
        text.setParent(&window);
        text.setGeometry(20, 30, 160, 30);
        QWidget neighbour(&window);
        neighbour.setGeometry(20, 62, 160, 30);
        text.setText(kLong);
        show(window);
        QCOMPARE(paints(neighbour, [] { virtualtime::advance(10 * kTick); }), 0);
        QCOMPARE(text.count, 11);
        QCOMPARE(text.region, QRegion(text.rect()));
    }

    void fewWideCharactersGoRoundToo()
    {
        // More characters fit by the width of a dot than there are.
        const QString content = QStringLiteral("MMMMMMMMMMMMMMMMMMMMM");
        const auto text = makeText(280);
        text->setText(content);
        QVERIFY(isTicking(*text));
        const QString source = content + QString(16, QLatin1Char(' '));
        QVERIFY(280 / widthOf(text->font(), QStringLiteral(".")) + 3 > source.size());
        QString shown = source;
        int offset = 0;
        int next = 0;
        for (int i = 0; i < 300; ++i) {
            COMPARE_PICTURES(painted(*text), rolling(*text, shown, offset));
            QCoreApplication::processEvents();
            offset += 2;
            if (offset >= QFontMetrics(text->font()).horizontalAdvance(shown.at(0))) {
                shown = shown.mid(1) + source.at(next);
                next = (next + 1) % source.size();
                offset = 0;
            }
        }
    }

    void narrowFirstCharactersOfAWholeTextGoRoundToo()
    {
        // The first character leaves with the very first step, when none is next.
        const QString content = QStringLiteral("\u0301") + QString(21, QLatin1Char('M'));
        const auto text = makeText(280);
        text->setText(content);
        const QString source = content + QString(16, QLatin1Char(' '));
        step(*text);
        COMPARE_PICTURES(painted(*text), rolling(*text, source.mid(1) + source.at(0), 0));
    }

    void aNewTextStartsAtItsBeginning()
    {
        const auto text = makeText();
        text->setText(kLong);
        for (int i = 0; i < 20; ++i)
            step(*text);
        const QString other = kLong.toUpper();
        text->setText(other);
        COMPARE_PICTURES(painted(*text), rolling(*text, Marquee(*text, other)));
        text->setText(QStringLiteral("short"));
        QVERIFY(!isTicking(*text));
        COMPARE_PICTURES(painted(*text), resting(*text, QStringLiteral("short")));
        QCOMPARE(text->text(), QStringLiteral("short"));
    }

    void autoRollLaysTheTextOutAnew()
    {
        const auto text = makeText();
        text->setText(kLong);
        for (int i = 0; i < 20; ++i)
            step(*text);
        QVERIFY(text->setProperty("autoRoll", false));
        QCOMPARE(text->autoRoll(), false);
        QVERIFY(!isTicking(*text));
        COMPARE_PICTURES(painted(*text), resting(*text, shortened(*text, kLong)));
        text->setAutoRoll(true);
        QVERIFY(isTicking(*text));
        COMPARE_PICTURES(painted(*text), rolling(*text, Marquee(*text, kLong)));
        QCOMPARE(text->text(), kLong);
    }

    void clearShowsNothingAndKeepsTheText()
    {
        const auto text = makeText();
        text->setText(kLong);
        step(*text);
        text->clear();
        QCOMPARE(text->text(), kLong);
        QVERIFY(!isTicking(*text));
        COMPARE_PICTURES(painted(*text), resting(*text, {}));
        QCoreApplication::processEvents();
        COMPARE_PICTURES(painted(*text), resting(*text, {}));
        text->setAutoRoll(true);
        COMPARE_PICTURES(painted(*text), rolling(*text, Marquee(*text, kLong)));
    }

    void clearForgetsAStepThatIsQueued()
    {
        const auto text = makeText();
        text->setText(kLong);
        painted(*text);
        text->clear();
        QCoreApplication::processEvents();
        COMPARE_PICTURES(painted(*text), resting(*text, {}));
    }

    // --- The wait -------------------------------------------------------------------------------

    void theWaitIsCountedInWholeTicks_data()
    {
        QTest::addColumn<int>("ms");
        QTest::addColumn<int>("ticks");
        QTest::newRow("1000") << 1000 << 6;
        QTest::newRow("900") << 900 << 6;
        QTest::newRow("899") << 899 << 5;
        QTest::newRow("150") << 150 << 1;
        QTest::newRow("149") << 149 << 0;
        QTest::newRow("100") << 100 << 0;
        QTest::newRow("0") << 0 << 0;
        QTest::newRow("-1000") << -1000 << 0;
        QTest::newRow("least") << INT_MIN << 0;
    }

    void theWaitIsCountedInWholeTicks()
    {
        QFETCH(int, ms);
        QFETCH(int, ticks);
        LastPaint text;
        text.setWaitRoll(ms);
        text.setText(kLong);
        show(text);
        Marquee marquee(text, kLong);
        QCOMPARE(text.count, 1);
        // The ticks of the wait do not repaint. The one after them does, but what it shows has not
        // moved yet: only its paint is followed by a step.
        virtualtime::advance(ticks * kTick);
        QCOMPARE(text.count, 1);
        if (ticks == 0)
            marquee.step();
        for (int i = 0; i < 8; ++i) {
            virtualtime::advance(kTick);
            QCOMPARE(text.count, 2 + i);
            COMPARE_PICTURES(text.picture, rolling(text, marquee));
            marquee.step();
        }
    }

    void aNewTextInTheMiddleOfATickStartsTheTickAnew()
    {
        LastPaint text;
        text.setText(kLong);
        show(text);
        virtualtime::advance(kTick + 50);
        QCOMPARE(text.count, 2);
        const QString other = kLong.toUpper();
        text.setText(other);
        virtualtime::advance(0);
        QCOMPARE(text.count, 3);
        Marquee marquee(text, other);
        COMPARE_PICTURES(text.picture, rolling(text, marquee));
        virtualtime::advance(kTick - 1);
        QCOMPARE(text.count, 3);
        virtualtime::advance(1);
        QCOMPARE(text.count, 4);
        marquee.step();
        COMPARE_PICTURES(text.picture, rolling(text, marquee));
    }

    void aNewTextDoesNotWaitAgain()
    {
        LastPaint text;
        text.setWaitRoll(300);
        text.setText(kLong);
        show(text);
        virtualtime::advance(2 * kTick);
        text.setText(kLong.toUpper());
        virtualtime::advance(0);
        QCOMPARE(text.count, 2);
        virtualtime::advance(kTick);
        QCOMPARE(text.count, 3);
    }

    void aWaitPausesATextThatRolls()
    {
        LastPaint text;
        text.setText(kLong);
        show(text);
        virtualtime::advance(5 * kTick);
        QCOMPARE(text.count, 6);
        text.setWaitRoll(450);
        virtualtime::advance(3 * kTick);
        QCOMPARE(text.count, 6);
        virtualtime::advance(kTick);
        QCOMPARE(text.count, 7);
        text.setWaitRoll(450);
        text.setWaitRoll(-1);
        virtualtime::advance(kTick);
        QCOMPARE(text.count, 8);
    }

    void aPaintDuringTheWaitIsNoStep()
    {
        const auto text = makeText();
        text->setWaitRoll(300);
        text->setText(kLong);
        for (int i = 0; i < 5; ++i)
            step(*text);
        COMPARE_PICTURES(painted(*text), rolling(*text, Marquee(*text, kLong)));
    }

    // --- Idle -----------------------------------------------------------------------------------

    void nothingTicksOrRepaintsWhileATextIsAtRest()
    {
        for (const char *content : {"", "Radio"}) {
            LastPaint text;
            text.setText(QString::fromLatin1(content));
            show(text);
            const int before = text.count;
            virtualtime::advance(10000);
            QCOMPARE(text.count, before);
            QVERIFY(!isTicking(text));
        }
        LastPaint text;
        text.setAutoRoll(false);
        text.setText(kLong);
        show(text);
        const int before = text.count;
        virtualtime::advance(10000);
        QCOMPARE(text.count, before);
        QVERIFY(!isTicking(text));
    }

    void aHiddenTextTicksAndStaysWhereItIs()
    {
        LastPaint text;
        text.setText(kLong);
        show(text);
        virtualtime::advance(5 * kTick);
        text.hide();
        const int before = text.count;
        virtualtime::advance(10000);
        QVERIFY(isTicking(text));
        QCOMPARE(text.count, before);
        Marquee marquee(text, kLong);
        for (int i = 0; i < 6; ++i)
            marquee.step();
        show(text);
        QCOMPARE(text.count, before + 1);
        COMPARE_PICTURES(text.picture, rolling(text, marquee));
        virtualtime::advance(kTick);
        marquee.step();
        QCOMPARE(text.count, before + 2);
        COMPARE_PICTURES(text.picture, rolling(text, marquee));
    }

    void beingShownDoesNotMoveTheTicks()
    {
        LastPaint text;
        text.setText(kLong);
        virtualtime::advance(10 * kTick + 70);
        QVERIFY(isTicking(text));
        show(text);
        QCOMPARE(text.count, 1);
        virtualtime::advance(kTick - 71);
        QCOMPARE(text.count, 1);
        virtualtime::advance(1);
        QCOMPARE(text.count, 2);
    }

    void aSubclassRollsWhateverItDoesWhenItIsShown()
    {
        Reserved text;
        text.setText(kLong);
        virtualtime::advance(10 * kTick);
        show(text);
        const int before = text.count;
        virtualtime::advance(5 * kTick);
        QCOMPARE(text.count, before + 5);
        text.hide();
        virtualtime::advance(5 * kTick);
        show(text);
        virtualtime::advance(5 * kTick);
        QCOMPARE(text.count, before + 11);
    }

    void theWaitGoesOnWhileHidden()
    {
        LastPaint text;
        text.setText(kLong);
        show(text);
        text.setWaitRoll(450);
        text.hide();
        virtualtime::advance(2 * kTick);
        show(text);
        const int before = text.count;
        virtualtime::advance(kTick);
        QCOMPARE(text.count, before);
        virtualtime::advance(kTick);
        QCOMPARE(text.count, before + 1);
    }

    void aWaitDoesNotWakeATextAtRest()
    {
        const auto text = makeText();
        text->setText(QStringLiteral("Radio"));
        text->setWaitRoll(1000);
        QVERIFY(!isTicking(*text));
    }

    // --- Signal ---------------------------------------------------------------------------------

    void everyPaintIsReportedWhileAutoRollIsOn()
    {
        const auto text = makeText();
        SignalLog log(text.get());
        for (const QString &content : {QString(), QStringLiteral("Radio"), kLong}) {
            text->setText(content);
            painted(*text);
            QCOMPARE(log.take(), QStringList(QStringLiteral("paintFinish()")));
        }
        text->setAutoRoll(false);
        painted(*text);
        QCOMPARE(log.take(), QStringList());
    }

    void thePainterIsClosedWhenAPaintIsReported()
    {
        const auto text = makeText();
        bool isPainting = true;
        connect(text.get(), &SpRollingText::paintFinish, this,
                [&] { isPainting = text->paintingActive(); });
        painted(*text);
        QVERIFY(!isPainting);
    }

    void aReportMayLeadToDeletion()
    {
        auto *text = makeText().release();
        const QPointer<SpRollingText> guard(text);
        connect(text, &SpRollingText::paintFinish, text, &QObject::deleteLater);
        text->setText(kLong);
        text->show();
        virtualtime::advance(0);
        QVERIFY(!guard);
    }

    void aReleaseGoesToTheParent()
    {
        const auto text = makeText();
        Touch finger = touch(text.get());
        QVERIFY(!finger.press(5, 5).wasAccepted());
        QVERIFY(!finger.release().wasAccepted());
    }

    // --- Shadow ---------------------------------------------------------------------------------

    void theShadowIsAnEffect()
    {
        SpRollingText text;
        text.setShadowColor(Qt::red);
        text.setShadowOffset({3, -4});
        QVERIFY(!text.graphicsEffect());
        text.setDropShodow(true);
        QCOMPARE(text.dropShodow(), true);
        QVERIFY(shadowOf(text));
        QCOMPARE(shadowOf(text)->parent(), &text);
        QVERIFY(shadowOf(text)->offset() == QPointF(3, -4));
        QCOMPARE(shadowOf(text)->color(), QColor(Qt::red));
        QVERIFY(shadowOf(text)->blurRadius() == 0.5);
    }

    void aChangeOfTheShadowReplacesTheEffect()
    {
        SpRollingText text;
        text.setDropShodow(true);
        QPointer<QGraphicsDropShadowEffect> first = shadowOf(text);
        text.setShadowColor(Qt::blue);
        QVERIFY(!first);
        QCOMPARE(shadowOf(text)->color(), QColor(Qt::blue));
        first = shadowOf(text);
        text.setShadowOffset({7, 8});
        QVERIFY(!first);
        QVERIFY(shadowOf(text)->offset() == QPointF(7, 8));
        QVERIFY(text.shadowOffset() == QPointF(7, 8));
        QCOMPARE(text.findChildren<QGraphicsDropShadowEffect *>().size(), 1);
    }

    void theEffectStaysWhenTheShadowIsSwitchedOff()
    {
        SpRollingText text;
        text.setDropShodow(true);
        const QPointer<QGraphicsDropShadowEffect> effect = shadowOf(text);
        text.setDropShodow(false);
        text.setShadowColor(Qt::green);
        QCOMPARE(text.dropShodow(), false);
        QVERIFY(effect);
        QCOMPARE(text.graphicsEffect(), effect.data());
        QCOMPARE(effect->color(), QColor(Qt::black));
    }

    void theShadowLiesUnderTheText()
    {
        QWidget window;
        window.resize(200, 60);
        auto *text = new SpRollingText(&window);
        text->setGeometry(0, 0, 160, 30);
        text->setText(QStringLiteral("Radio"));
        const auto grabbed = [&] {
            QImage image(window.size(), QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            window.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
            return image;
        };
        show(window);
        const QImage plain = grabbed();
        text->setShadowColor(Qt::red);
        text->setShadowOffset({0, 8});
        text->setDropShodow(true);
        const QImage shadowed = grabbed();
        int moved = 0;
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 160; ++x) {
                if (qAlpha(plain.pixel(x, y)) == 255) {
                    QCOMPARE(shadowed.pixel(x, y), plain.pixel(x, y));
                    if (qAlpha(plain.pixel(x, y + 8)) == 0) {
                        QVERIFY(qRed(shadowed.pixel(x, y + 8)) > qGreen(shadowed.pixel(x, y + 8)));
                        ++moved;
                    }
                }
            }
        }
        QVERIFY(moved > 20);
    }

    void theShadowFallsAsFarAsItIsTold()
    {
        SpRollingText text;
        text.setDropShodow(true);
        for (const QPointF &offset : {QPointF(257, -3000), QPointF(-16384, 16384),
                                      QPointF(qreal(0.25), 0), QPointF(16384, -16384)}) {
            text.setShadowOffset(offset);
            QVERIFY(text.shadowOffset() == offset);
            QVERIFY(shadowOf(text)->offset() == offset);
            QVERIFY(shadowOf(text)->isEnabled());
        }
    }

    void aShadowFarAwayIsSeenThere()
    {
        QWidget window;
        window.resize(160, 700);
        auto *text = new SpRollingText(&window);
        text->setGeometry(0, 0, 160, 30);
        text->setText(QStringLiteral("Radio"));
        text->setShadowColor(Qt::red);
        text->setShadowOffset({0, 640});
        text->setDropShodow(true);
        show(window);
        const QImage picture = window.grab().toImage();
        int red = 0;
        for (int y = 640; y < 670; ++y) {
            for (int x = 0; x < 160; ++x) {
                const QRgb pixel = picture.pixel(x, y);
                red += qRed(pixel) > 200 && qGreen(pixel) < 100;
            }
        }
        QVERIFY2(red > 50, qPrintable(QString::number(red)));
    }

    void aShadowOutOfReachIsNotSeenAndCostsNothing()
    {
        QWidget window;
        window.resize(200, 60);
        auto *text = new SpRollingText(&window);
        text->setGeometry(0, 0, 160, 30);
        text->setText(QStringLiteral("Radio"));
        show(window);
        const QImage plain = window.grab().toImage();
        text->setShadowColor(Qt::red);
        text->setDropShodow(true);
        QVERIFY(window.grab().toImage() != plain);
        using Real = std::numeric_limits<qreal>;
        for (const qreal far : {Real::quiet_NaN(), Real::infinity(), -Real::infinity(), Real::max(),
                                qreal(1e9), qreal(-16385), qreal(16385)}) {
            for (const QPointF &offset : {QPointF(far, 3), QPointF(3, far), QPointF(far, far)}) {
                text->setShadowOffset(offset);
                QCOMPARE(qIsNaN(text->shadowOffset().x()), qIsNaN(offset.x()));
                QVERIFY(shadowOf(*text));
                COMPARE_PICTURES(window.grab().toImage(), plain);
            }
        }
        text->setShadowOffset({3, 3});
        QVERIFY(window.grab().toImage() != plain);
    }

    // --- Robustness -----------------------------------------------------------------------------

    void textsOfAnyLength_data()
    {
        QTest::addColumn<int>("length");
        for (const int length : {0, 1, 1022, 1023, 1024, 4095, 4096, 4097, 1000000})
            QTest::addRow("%d", length) << length;
    }

    void textsOfAnyLength()
    {
        QFETCH(int, length);
        const QString content(length, QLatin1Char('n'));
        for (const bool rolls : {true, false}) {
            for (const int width : {0, 1, 160}) {
                const auto text = makeText(width);
                text->setAutoRoll(rolls);
                const qint64 count = measured::during([&] {
                    text->setText(content);
                    for (int i = 0; i < 4; ++i)
                        step(*text);
                });
                QVERIFY2(count < 5000, qPrintable(QString::number(count))); // of any length
                QCOMPARE(text->text(), content);
                QCOMPARE(isTicking(*text),
                         rolls && widthOf(text->font(), content.left(99)) > width);
                if (!rolls)
                    COMPARE_PICTURES(
                        painted(*text),
                        resting(*text,
                                isTooWide(*text, content) ? shortened(*text, content) : content));
            }
        }
    }

    void aVeryLongTextThatJustFitsIsShownWhole()
    {
        const QString content(5000, QLatin1Char('i'));
        const auto text = makeText(widthOf(QApplication::font(), content));
        text->setText(content);
        QVERIFY(!isTicking(*text));
        text->resize(text->width() - 1, 30);
        text->setText(content);
        QVERIFY(isTicking(*text));
    }

    void charactersThatTakeNoRoom_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<int>("weightless"); // so many of the first ones take no room
        QTest::newRow("line feeds") << QString(100000, QLatin1Char('\n')) << 100000;
        QTest::newRow("marks") << QString(100000, QChar(0x301)) << 100000;
        QTest::newRow("line feeds, then wide")
            << QString(20000, QLatin1Char('\n')) + QString(100, QLatin1Char('W')) << 20000;
        QTest::newRow("surrogates") << QString(1000, QChar(0xD83C)) << 0;
        QTest::newRow("emoji") << QStringLiteral("\U0001F3B5").repeated(300) << 0;
        QTest::newRow("nulls") << QString(1000, QChar(0)) << 0;
        QTest::newRow("variants") << QStringLiteral("a long one\u009cshort").repeated(50) << 0;
        QTest::newRow("tabs") << QString(200, QLatin1Char('\t')) << 0;
    }

    void charactersThatTakeNoRoom()
    {
        QFETCH(QString, content);
        QFETCH(int, weightless);
        for (const bool rolls : {true, false}) {
            for (const int width : {0, 1, 160}) {
                const auto text = makeText(width);
                text->setAutoRoll(rolls);
                const qint64 count = measured::during([&] { text->setText(content); });
                QVERIFY2(count < 10000 + 40 * content.size(), qPrintable(QString::number(count)));
                const bool isWide = widthOf(text->font(), content) > width;
                QCOMPARE(isTicking(*text), isWide && rolls);
                if (isWide && rolls) {
                    Marquee marquee(*text, content);
                    for (int i = 0; i < 3; ++i) {
                        COMPARE_PICTURES(painted(*text), rolling(*text, marquee));
                        QCoreApplication::processEvents();
                        marquee.step();
                    }
                } else {
                    COMPARE_PICTURES(
                        painted(*text),
                        resting(*text, isWide ? shortened(*text, content, weightless) : content));
                }
            }
        }
    }

    void aTextLaidOutWithoutExtentDisplaysThreeCharactersAndMore()
    {
        for (const QSize &size : {QSize(0, 0), QSize(0, 30), QSize(30, 0), QSize(1, 1)}) {
            LastPaint text;
            text.resize(size);
            text.setText(kLong);
            Marquee marquee(text, kLong);
            show(text);
            virtualtime::advance(5 * kTick);
            for (int i = 0; i < text.count; ++i)
                marquee.step();
            text.hide();
            text.resize(160, 30);
            show(text);
            COMPARE_PICTURES(text.picture, rolling(text, marquee));
        }
    }

    void aFontThatSpacesLettersBackwardsRollsToo()
    {
        const auto text = makeText(20);
        QFont font = text->font();
        font.setLetterSpacing(QFont::AbsoluteSpacing, -8);
        text->setFont(font);
        QVERIFY(widthOf(font, QStringLiteral(".")) < 0);
        const QString content(40, QLatin1Char('W'));
        text->setText(content);
        Marquee marquee(*text, content);
        for (int i = 0; i < 200; ++i) {
            COMPARE_PICTURES(painted(*text), rolling(*text, marquee));
            QCoreApplication::processEvents();
            marquee.step();
        }
        text->setAutoRoll(false);
        COMPARE_PICTURES(painted(*text), resting(*text, shortened(*text, content)));
    }

private:
    static bool isTooWide(const SpRollingText &widget, const QString &text)
    {
        return widthOf(widget.font(), text.left(99)) > widget.width();
    }
};

WIDGET_TEST_MAIN(tst_SpRollingText)
#include "tst_sprollingtext.moc"
