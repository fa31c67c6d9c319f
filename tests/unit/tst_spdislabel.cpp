// SPDX-License-Identifier: Apache-2.0
#include <SpDisLabel>

#include "deletion.h"
#include "keptlooks.h"
#include "measuredtext.h"
#include "newwidget.h"
#include "parent.h"
#include "pictures.h"
#include "pressedlook.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QBitmap>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QTranslator>

#include <climits>
#include <memory>

namespace
{

const QColor kFont(10, 20, 30);
const QColor kPressFont(40, 50, 60);
const QColor kGround(70, 180, 90);
const QColor kPressGround(200, 110, 20, 130);

const QString kText = QStringLiteral("Radio");
const QString kLongText = QStringLiteral("A station with a very, very long name");

// A label of 121 x 40 with a text and colours for both looks.
std::unique_ptr<SpDisLabel> makeLabel(QWidget *parent = nullptr)
{
    auto label = std::make_unique<SpDisLabel>(parent);
    label->resize(121, 40);
    label->setFontColor(kFont);
    label->setPressFontColor(kPressFont);
    label->setNormalBackgroundColor(kGround);
    label->setPressBackgroundColor(kPressGround);
    label->setText(kText);
    return label;
}

using Action = std::function<void(SpDisLabel &)>;
using Paint = std::function<void(QPainter &)>;

Paint nothing()
{
    return [](QPainter &) {};
}

void drawText(QPainter &p, const QRect &rect, const QColor &color, const QString &text,
              int flags = 0x84)
{
    p.setPen(color);
    p.drawText(rect, flags, text);
}

// The picture of a label that only has a text on no ground. A widget that is rendered, not shown,
// leaves the direction to the text.
QImage textPicture(const SpDisLabel &label, const QString &text)
{
    return reference(label, [&](QPainter &p) {
        p.setLayoutDirection(Qt::LayoutDirectionAuto);
        drawText(p, label.rect(), Qt::white, text);
    });
}

// The documented shortening, word for word.
QString shortened(const QString &text, const QFontMetrics &metrics, int width)
{
    if (metrics.horizontalAdvance(text) <= width)
        return text;
    int n = 0;
    while (metrics.horizontalAdvance(text.left(n)) <= width - 1)
        ++n;
    QString shown = text.left(qMax(0, n - 1)) + QStringLiteral("...");
    for (int k = n - 2; k >= 0 && metrics.horizontalAdvance(shown) > width; --k)
        shown = text.left(k) + QStringLiteral("...");
    return shown;
}

// Handlers are called with what a subclass may hand them.
class Handlers : public SpDisLabel
{
public:
    using SpDisLabel::mousePressEvent;
    using SpDisLabel::mouseReleaseEvent;
};

// A translation of every text to one word.
class Translation : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isAsked = qstrcmp(context, "QObject") == 0 && qstrcmp(source, "text") == 0;
        return isAsked ? QStringLiteral("Inhalt") : QString();
    }
};

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Paint)

class tst_SpDisLabel : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction ---------------------------------------------------------------------------

    void defaults()
    {
        const SpDisLabel label;
        QCOMPARE(label.displayMode(), SpDisLabel::String);
        QCOMPARE(label.fontColor(), QColor(Qt::white));
        QCOMPARE(label.pressFontColor(), QColor(Qt::white));
        QCOMPARE(label.normalBackgroundColor(), QColor(0, 0, 0, 0));
        QCOMPARE(label.pressBackgroundColor(), QColor(0, 0, 0, 0));
        QCOMPARE(label.text(), QStringLiteral("text"));
        QVERIFY(label.icon().isNull());
        QCOMPARE(label.iconSize(), QSize(32, 32));
        QCOMPARE(label.fontSize(), 30);
        QCOMPARE(label.isDown(), false);
        QCOMPARE(label.isLock(), false);
        QCOMPARE(label.holdMouseEvent(), true);
        QCOMPARE(label.getAlignment(), Qt::Alignment(0x84));
        QCOMPARE(label.isBeep(), true);
        QCOMPARE(label.btnID(), 0);
        QCOMPARE(label.roundXY(), 0);
        QVERIFY(label.findChildren<QObject *>().isEmpty());
    }

    void theFirstTextIsTranslated()
    {
        Translation translation;
        QVERIFY(QCoreApplication::installTranslator(&translation));
        const SpDisLabel label;
        QCoreApplication::removeTranslator(&translation);
        QCOMPARE(label.text(), QStringLiteral("Inhalt"));
    }

    void aNewLabelIsAPlainWidgetOtherwise() { checkIsAPlainWidget<SpDisLabel>(); }

    void aNewLabelPaintsNothing()
    {
        SpDisLabel label;
        label.resize(100, 40);
        COMPARE_PICTURES(painted(label), reference(label, nothing()));
        label.setDisplayMode(SpDisLabel::Picture);
        COMPARE_PICTURES(painted(label), reference(label, nothing()));
    }

    void instancesComeAndGo() { checkInstancesComeAndGo<SpDisLabel>(); }

    // --- Setters --------------------------------------------------------------------------------

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("displayMode", 0, [](auto &l) { l.setDisplayMode(SpDisLabel::Picture); });
        row("fontColor", 1, [](auto &l) { l.setFontColor(Qt::red); });
        row("pressFontColor", 0, [](auto &l) { l.setPressFontColor(Qt::red); });
        row("normalBackgroundColor", 0, [](auto &l) { l.setNormalBackgroundColor(Qt::red); });
        row("pressBackgroundColor", 0, [](auto &l) { l.setPressBackgroundColor(Qt::red); });
        row("text", 1, [](auto &l) { l.setText(QStringLiteral("x")); });
        row("text unchanged", 1, [](auto &l) { l.setText(kText); });
        row("normalText", 1, [](auto &l) { l.setNormalText(QStringLiteral("x")); });
        row("icon", 1, [](auto &l) { l.setIcon(picture(Qt::red)); });
        row("icon null", 1, [](auto &l) { l.setIcon({}); });
        row("iconSize of the label", 1, [](auto &l) { l.setIconSize({121, 40}); });
        row("fontsize", 1, [](auto &l) { l.setFontSize(9); });
        row("isDown", 1, [](auto &l) { l.setIsDown(true); });
        row("isDown unchanged", 1, [](auto &l) { l.setIsDown(false); });
        row("isLock", 0, [](auto &l) { l.setIsLock(true); });
        row("holdMouseEvent", 0, [](auto &l) { l.setholdMouseEvent(false); });
        row("alignment", 0, [](auto &l) { l.setAlignment(Qt::AlignLeft); });
        row("isBeep", 0, [](auto &l) { l.setIsBeep(false); });
        row("btnID", 0, [](auto &l) { l.setBtnID(3); });
        row("roundXY", 0, [](auto &l) { l.setRoundXY(3); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot()
    {
        QWidget parent;
        const auto label = makeLabel(&parent);
        show(parent);
        virtualtime::advance(10);
        checkRepaints(*label);
        QCOMPARE(label->size(), QSize(121, 40));
        label->setParent(nullptr);
    }

    void nothingRepaintsWhileNothingChanges()
    {
        const auto label = makeLabel();
        show(*label);
        QCOMPARE(paints(*label, [] { virtualtime::advance(5000); }), 0);
    }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("displayMode", 1);
        row("fontColor", QColor(1, 2, 3, 4));
        row("pressFontColor", QColor(2, 2, 3, 4));
        row("normalBackgroundColor", QColor(3, 2, 3, 4));
        row("pressBackgroundColor", QColor(4, 2, 3, 4));
        row("text", kLongText);
        row("iconSize", QSize(70, 60));
        row("fontsize", -7);
        row("isDown", true);
        row("isLock", true);
        row("holdMouseEvent", false);
        row("alignment", int(Qt::AlignRight | Qt::AlignTop));
        row("isBeep", false);
        row("btnID", INT_MIN);
        row("roundXY", -4);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(SpDisLabel()); }

    void anIconSetsIconSizeAndMinimumSize()
    {
        SpDisLabel label;
        label.setIcon(picture(Qt::red, {70, 44}));
        QCOMPARE(label.icon().toImage(), picture(Qt::red, {70, 44}).toImage());
        QCOMPARE(label.iconSize(), QSize(70, 44));
        QCOMPARE(label.minimumSize(), QSize(70, 44));
        QCOMPARE(label.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        label.setIcon({});
        QVERIFY(label.icon().isNull());
        QCOMPARE(label.iconSize(), QSize(70, 44));
        QCOMPARE(label.minimumSize(), QSize(70, 44));
    }

    void anIconSizeFixesTheSizeOfTheLabel()
    {
        SpDisLabel label;
        label.setIconSize({70, 44});
        QCOMPARE(label.minimumSize(), QSize(70, 44));
        QCOMPARE(label.maximumSize(), QSize(70, 44));
        QCOMPARE(label.size(), QSize(70, 44));
    }

    void anIconSizeThatNoWidgetCanHaveIsLimited_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("negative") << QSize(-5, INT_MIN) << QSize(0, 0);
        QTest::newRow("invalid") << QSize() << QSize(0, 0);
        QTest::newRow("huge") << QSize(INT_MAX, 20) << QSize(QWIDGETSIZE_MAX, 20);
        QTest::newRow("empty") << QSize(0, 30) << QSize(0, 30);
    }

    void anIconSizeThatNoWidgetCanHaveIsLimited()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, expected);
        SpDisLabel label;
        label.setIconSize(size);
        QCOMPARE(label.iconSize(), size);
        QCOMPARE(label.maximumSize(), expected);
        QCOMPARE(takeMessages(), QStringList());
    }

    void setFontSizeChangesOnlyThePixelSize()
    {
        SpDisLabel label;
        label.setFontSize(0);
        QVERIFY(!label.testAttribute(Qt::WA_SetFont)); // it follows its parent's
        QFont expected = label.font();
        expected.setPixelSize(29);
        label.setFontSize(29);
        QCOMPARE(label.fontSize(), 29);
        QCOMPARE(label.font(), expected);
        for (int px : {0, -1, INT_MIN}) {
            label.setFontSize(px);
            QCOMPARE(label.fontSize(), px);
            QCOMPARE(label.font(), expected);
        }
        QCOMPARE(takeMessages(), QStringList());
    }

    void theTextIsPaintedInTheWidgetsFont()
    {
        SpDisLabel label;
        label.resize(200, 60);
        label.setText(kText);
        COMPARE_PICTURES(painted(label), textPicture(label, kText));
        label.setFontSize(29);
        COMPARE_PICTURES(painted(label), textPicture(label, kText));
    }

    // --- Shortening -----------------------------------------------------------------------------

    void aTextIsShortenedToEveryWidth_data()
    {
        const QString arabic = QStringLiteral("سلسلة من المحطات الموسيقية");
        QTest::addColumn<QString>("text");
        QTest::newRow("words") << kLongText;
        QTest::newRow("narrow") << QString(120, QLatin1Char('i'));
        QTest::newRow("wide") << QString(30, QLatin1Char('W'));
        QTest::newRow("kerned") << QStringLiteral("AVAVAVAV To Te Ty LT LV");
        QTest::newRow("dots") << QString(60, QLatin1Char('.'));
        QTest::newRow("two letters") << QStringLiteral("WW");
        QTest::newRow("one letter") << QStringLiteral("W");
        QTest::newRow("arabic") << arabic;
        QTest::newRow("pairs") << QString::fromUtf8("🎵🎵🎵🎵🎵🎵🎵🎵🎵🎵");
        QTest::newRow("marks") << QString(10, QChar(0xe9));
        QTest::newRow("no width inside")
            << QStringLiteral("A station") + QString(200, QChar(0x200B)) + kLongText;
        QTest::newRow("empty") << QString();
    }

    void aTextIsShortenedToEveryWidth()
    {
        QFETCH(QString, text);
        SpDisLabel label;
        const QFontMetrics metrics(label.font());
        for (int width = 1; width < 420; width += width < 60 ? 1 : 7) {
            label.resize(width, 24);
            label.setText(text);
            QCOMPARE(label.text(), text);
            COMPARE_PICTURES(painted(label), textPicture(label, shortened(text, metrics, width)));
        }
    }

    void shorteningGoesOnForHundredsOfNarrowCharacters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("narrow") << QString(1500, QLatin1Char('i'));
        QTest::newRow("no width, then words")
            << QString(700, QChar(0x200B)) + kLongText.repeated(40);
    }

    void shorteningGoesOnForHundredsOfNarrowCharacters()
    {
        QFETCH(QString, text);
        SpDisLabel label;
        const QFontMetrics metrics(label.font());
        for (int width : {3000, 3001, 3333}) {
            label.resize(width, 24);
            label.setText(text);
            const QString expected = shortened(text, metrics, width);
            QVERIFY(expected.size() > 600);
            QVERIFY(expected != text);
            COMPARE_PICTURES(painted(label), textPicture(label, expected));
        }
    }

    void aTextThatJustFitsIsWhole()
    {
        SpDisLabel label;
        const int width = QFontMetrics(label.font()).horizontalAdvance(kLongText);
        label.resize(width, 24);
        label.setText(kLongText);
        COMPARE_PICTURES(painted(label), textPicture(label, kLongText));
        label.resize(width - 1, 24);
        label.setText(kLongText);
        QVERIFY(painted(label) != textPicture(label, kLongText));
        COMPARE_PICTURES(
            painted(label),
            textPicture(label, shortened(kLongText, QFontMetrics(label.font()), width - 1)));
    }

    void aShortenedTextIsAPrefixWithDotsThatFits()
    {
        SpDisLabel label;
        label.resize(100, 24);
        const QFontMetrics metrics(label.font());
        QVERIFY(metrics.horizontalAdvance(kLongText) > 250);
        const QString expected = shortened(kLongText, metrics, 100);
        QVERIFY(expected.endsWith(QStringLiteral("...")));
        QVERIFY(kLongText.startsWith(expected.chopped(3)));
        QVERIFY(expected.size() > 5);
        QVERIFY(metrics.horizontalAdvance(expected) <= 100);
        label.setText(kLongText);
        COMPARE_PICTURES(painted(label), textPicture(label, expected));
    }

    void aTextSetBeforeThereIsRoomIsOnlyDots()
    {
        SpDisLabel label;
        label.resize(0, 24);
        label.setText(kLongText);
        label.resize(100, 24);
        COMPARE_PICTURES(painted(label), textPicture(label, QStringLiteral("...")));
        label.resize(0, 24);
        label.setText({});
        label.resize(100, 24);
        COMPARE_PICTURES(painted(label), reference(label, nothing()));
    }

    void aLaterSizeOrFontDoesNotShortenAnew()
    {
        SpDisLabel label;
        label.resize(100, 24);
        const QString shown = shortened(kLongText, QFontMetrics(label.font()), 100);
        label.setText(kLongText);
        label.resize(300, 30);
        COMPARE_PICTURES(painted(label), textPicture(label, shown));
        label.resize(30, 30);
        COMPARE_PICTURES(painted(label), textPicture(label, shown));
        label.setFontSize(9);
        COMPARE_PICTURES(painted(label), textPicture(label, shown));
    }

    void theFontOfTheWidgetIsTheOneMeasured()
    {
        SpDisLabel label;
        label.resize(150, 40);
        label.setFontSize(28);
        label.setText(kLongText);
        COMPARE_PICTURES(painted(label),
                         textPicture(label, shortened(kLongText, QFontMetrics(label.font()), 150)));
    }

    void aNormalTextIsNotShortened()
    {
        SpDisLabel label;
        label.resize(100, 24);
        label.setNormalText(kLongText);
        QCOMPARE(label.text(), kLongText);
        COMPARE_PICTURES(painted(label), textPicture(label, kLongText));
        label.setText(kLongText);
        QVERIFY(painted(label) != textPicture(label, kLongText));
    }

    void longTextsAreShortenedSoon_data()
    {
        QTest::addColumn<QString>("text");
        const QString nothingWide(20000, QChar(0x200B));
        QTest::newRow("letters") << QString(20000, QLatin1Char('W'));
        QTest::newRow("no width, then letters") << nothingWide + kLongText + kLongText;
        QTest::newRow("letters, no width, letters")
            << QStringLiteral("A station") + nothingWide + kLongText + kLongText;
        QTest::newRow("lines") << QString(1000, QLatin1Char('\n')) + kLongText + kLongText;
        QTest::newRow("lone surrogates") << QString(10000, QChar(0xD800));
        QTest::newRow("nulls") << QString(10000, QChar(0));
    }

    void longTextsAreShortenedSoon()
    {
        QFETCH(QString, text);
        SpDisLabel label;
        for (int width : {0, 3, 100}) {
            label.resize(width, 24);
            // The first 512 places to cut are tried one by one, the others by halves.
            const qint64 count = measured::during([&] { label.setText(text); });
            QVERIFY2(count <= 512 * 512 + 100 * text.size(), qPrintable(QString::number(count)));
            QCOMPARE(label.text(), text);
            label.resize(50, 24);
            painted(label);
        }
    }

    // --- Looks ----------------------------------------------------------------------------------

    void strings_data()
    {
        const TableRows<QColor, QColor, int, Action> row("ground", "pen", "flags", "state");
        row("normal", kGround, kFont, 0x84, [](auto &) {});
        row("pressed", kPressGround, kPressFont, 0x84, [](auto &l) { l.setIsDown(true); });
        row("aligned", kGround, kFont, 0x21,
            [](auto &l) { l.setAlignment(Qt::AlignLeft | Qt::AlignTop); });
        row("aligned at the bottom", kGround, kFont, 0x42,
            [](auto &l) { l.setAlignment(Qt::AlignRight | Qt::AlignBottom); });
        row("disabled as a widget", kGround, kFont, 0x84, [](auto &l) { l.setEnabled(false); });
        row("an icon plays no part", kGround, kFont, 0x84,
            [](auto &l) { l.setIcon(picture(Qt::red)); });
        row("transparent", QColor(0, 0, 0, 0), kFont, 0x84,
            [](auto &l) { l.setNormalBackgroundColor(QColor(0, 0, 0, 0)); });
    }

    void strings()
    {
        QFETCH(Action, state);
        QFETCH(QColor, ground);
        QFETCH(QColor, pen);
        QFETCH(int, flags);
        const auto label = makeLabel();
        state(*label);
        for (int radius : {0, 10, 1, 20, 500, -3}) {
            label->setRoundXY(radius);
            const QImage expected = reference(*label, [&](QPainter &p) {
                if (radius == 0) {
                    p.fillRect(label->rect(), ground);
                } else {
                    p.setRenderHint(QPainter::Antialiasing);
                    p.setPen(Qt::NoPen);
                    p.setBrush(ground);
                    p.drawRoundedRect(QRectF(label->rect()), qreal(radius), qreal(radius),
                                      Qt::AbsoluteSize);
                }
                drawText(p, label->rect(), pen, kText, flags);
            });
            for (int paint = 0; paint < 3; ++paint)
                COMPARE_PICTURES(painted(*label), expected);
        }
    }

    void theRoundedGroundFollowsItsColourAndSize()
    {
        const auto label = makeLabel();
        label->setNormalText({});
        label->setRoundXY(12);
        for (const QSize &size : {QSize(121, 40), QSize(90, 61)}) {
            label->resize(size);
            for (const QColor &color :
                 {kGround, QColor(70, 180, 91), QColor(70, 180, 91, 100), QColor()}) {
                label->setNormalBackgroundColor(color);
                const QImage expected = reference(*label, [&](QPainter &p) {
                    p.setRenderHint(QPainter::Antialiasing);
                    p.setPen(Qt::NoPen);
                    p.setBrush(color);
                    p.drawRoundedRect(QRectF(label->rect()), 12, 12, Qt::AbsoluteSize);
                });
                for (int paint = 0; paint < 3; ++paint)
                    COMPARE_PICTURES(painted(*label), expected);
            }
        }
    }

    void aRoundedTransparentGroundShowsNothing()
    {
        SpDisLabel label;
        label.resize(100, 40);
        label.setRoundXY(10);
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(painted(label), reference(label, nothing()));
    }

    void pictures_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("topLeft");
        QTest::newRow("even") << QSize(100, 80) << QPoint(30, 25);
        QTest::newRow("odd") << QSize(101, 81) << QPoint(30, 25);
        QTest::newRow("exact") << QSize(40, 30) << QPoint(0, 0);
        QTest::newRow("smaller by one") << QSize(39, 29) << QPoint(0, 0);
        QTest::newRow("smaller by two") << QSize(38, 28) << QPoint(-1, -1);
        QTest::newRow("smaller by three") << QSize(37, 27) << QPoint(-1, -1);
    }

    void pictures()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, topLeft);
        const auto label = makeLabel();
        label->setDisplayMode(SpDisLabel::Picture);
        label->setIcon(picture(Qt::red));
        label->setRoundXY(10);
        label->setMinimumSize(0, 0);
        label->resize(size);
        for (bool down : {false, true}) {
            label->setIsDown(down);
            COMPARE_PICTURES(painted(*label), reference(*label, [&](QPainter &p) {
                                 p.drawPixmap(topLeft, picture(Qt::red));
                             }));
        }
    }

    void anIconSizeDoesNotScaleThePicture()
    {
        SpDisLabel label;
        label.setDisplayMode(SpDisLabel::Picture);
        label.setIcon(picture(Qt::red));
        label.setIconSize({80, 90});
        COMPARE_PICTURES(painted(label), reference(label, [](QPainter &p) {
                             p.drawPixmap(20, 30, picture(Qt::red));
                         }));
    }

    void aModeThatIsNoneShowsNothing()
    {
        const auto label = makeLabel();
        label->setIcon(picture(Qt::red));
        for (int mode : {-1, 2, INT_MAX}) {
            label->setDisplayMode(SpDisLabel::DispalyMode(mode));
            COMPARE_PICTURES(painted(*label), reference(*label, nothing()));
        }
    }

    // --- Touch ----------------------------------------------------------------------------------

    void aTapIsPressedThenReleased()
    {
        const auto label = makeLabel();
        label->setBtnID(7);
        checkReportsOfTap(*label, "pressed(7)", "released(7)");
    }

    void aReleaseIsReportedAnywhere()
    {
        const auto label = makeLabel();
        label->setIsBeep(false);
        SignalLog log(label.get());
        touch(label.get()).press(10, 10).moveTo(500, -300).release();
        QCOMPARE(log.take(), (QStringList{"pressed(0)", "released(0)"}));
        touch(label.get()).release();
        QCOMPARE(log.take(), QStringList{"released(0)"});
    }

    void withoutIsBeepNoSoundIsAskedFor()
    {
        const auto label = makeLabel();
        label->setIsBeep(false);
        SignalLog log(label.get());
        touch(label.get()).tap(10, 10).hold(10);
        QCOMPARE(log.take(), (QStringList{"pressed(0)", "released(0)"}));
    }

    void aPressShowsAndAReleaseEndsThePressedLook()
    {
        checkAPressShowsUntilTheRelease(*makeLabel());
    }

    void thePressedLookIsThatOfTheSignal() { checkReportsComeWithTheLook(*makeLabel()); }

    void aLatchedLabelStaysDown()
    {
        checkLatches(*makeLabel(), {"pressed(0)", "beep", "released(0)"});
    }

    void aTouchedPictureReportsWithoutRepainting_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("picture") << 1;
        QTest::newRow("no mode") << 5;
    }

    void aTouchedPictureReportsWithoutRepainting()
    {
        QFETCH(int, mode);
        const auto label = makeLabel();
        label->setDisplayMode(SpDisLabel::DispalyMode(mode));
        label->setIcon(picture(Qt::red));
        show(*label);
        SignalLog log(label.get());
        Touch finger = touch(label.get());
        QCOMPARE(paints(*label, [&] { finger.press(10, 10); }), 0);
        QVERIFY(!label->isDown());
        QCOMPARE(paints(*label, [&] { finger.release(); }), 0);
        QCOMPARE(log.take(), (QStringList{"pressed(0)", "beep", "released(0)"}));
        label->setIsDown(true);
        finger.release();
        QVERIFY(label->isDown());
    }

    void aWidgetThatIsNotEnabledGetsNoTouches()
    {
        const auto label = makeLabel();
        label->setEnabled(false);
        SignalLog log(label.get());
        touch(label.get()).tap(10, 10).hold(10);
        QCOMPARE(log.take(), QStringList());
    }

    void touchesEndHere()
    {
        Parent parent;
        const auto label = makeLabel(&parent);
        label->setIsBeep(false);
        Touch finger = touch(label.get());
        QVERIFY(finger.press(10, 10).wasAccepted());
        QVERIFY(finger.moveTo(12, 12).wasAccepted());
        QVERIFY(finger.release().wasAccepted());
        QCOMPARE(parent.events, QStringList());
        label->setParent(nullptr);
    }

    void withoutHoldingTouchesGoOnToTheParent_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("string") << 0;
        QTest::newRow("picture") << 1;
    }

    void withoutHoldingTouchesGoOnToTheParent()
    {
        QFETCH(int, mode);
        Parent parent;
        const auto label = makeLabel(&parent);
        label->setDisplayMode(SpDisLabel::DispalyMode(mode));
        label->setholdMouseEvent(false);
        label->setIsBeep(false);
        SignalLog log(label.get());
        touch(label.get()).press(10, 10).moveTo(12, 12).release();
        QCOMPARE(parent.events, (QStringList{"press", "move", "release"}));
        QCOMPARE(log.take(), (QStringList{"pressed(0)", "released(0)"}));
        label->setParent(nullptr);
    }

    // QWidget has left the event to the parent by the time that a slot hears of it.
    void theBaseHandlersComeBeforeTheSignalsUnlessTheTouchIsHeld_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("isHeld");
        QTest::newRow("string, passed on") << 0 << false;
        QTest::newRow("string, held") << 0 << true;
        QTest::newRow("picture, passed on") << 1 << false;
        QTest::newRow("picture, held") << 1 << true;
    }

    void theBaseHandlersComeBeforeTheSignalsUnlessTheTouchIsHeld()
    {
        QFETCH(int, mode);
        QFETCH(bool, isHeld);
        Handlers label;
        label.setDisplayMode(SpDisLabel::DispalyMode(mode));
        label.setIsBeep(false);
        label.setholdMouseEvent(isHeld);
        SignalLog log(&label);
        QVector<bool> accepted;
        const auto send = [&](QEvent::Type type, void (Handlers::*handler)(QMouseEvent *)) {
            QMouseEvent event(type, QPointF(5, 6), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            log.onLine([&](const QString &) { accepted += event.isAccepted(); });
            (label.*handler)(&event);
        };
        send(QEvent::MouseButtonPress, &Handlers::mousePressEvent);
        send(QEvent::MouseButtonRelease, &Handlers::mouseReleaseEvent);
        QCOMPARE(accepted, QVector<bool>(2, isHeld));
    }

    void theRequestForAClickSoundGoesUpToTheParent() { checkSoundGoesUp(makeLabel); }

    void theIdentifierIsTheOneOfTheMoment()
    {
        const auto label = makeLabel();
        SignalLog log(label.get());
        log.onLine([&](const QString &) { label->setBtnID(9); });
        touch(label.get()).tap(10, 10);
        QCOMPARE(log.take(), (QStringList{"pressed(0)", "released(9)"}));
    }

    // --- Hard to break --------------------------------------------------------------------------

    void theLabelMayBeDeletedInAnyOfItsSignals_data() { addDeletionsAt({"pressed", "released"}); }

    void theLabelMayBeDeletedInAnyOfItsSignals()
    {
        for (bool hold : {false, true}) {
            SpDisLabel *label = makeLabel(new QWidget).release();
            label->setholdMouseEvent(hold);
            checkMayBeDeleted(label);
        }
    }

    void picturesOfAnyKindStandInTheMiddle_data()
    {
        QTest::addColumn<QPixmap>("image");
        QBitmap bitmap(16, 16);
        bitmap.fill(Qt::color1);
        QPixmap dense(64, 64);
        dense.setDevicePixelRatio(2);
        dense.fill(Qt::red);
        QTest::newRow("20,000 wide") << picture(Qt::red, {20000, 4});
        QTest::newRow("20,000 high") << picture(Qt::red, {4, 20000});
        QTest::newRow("one pixel") << picture(Qt::red, {1, 1});
        QTest::newRow("bitmap") << QPixmap(bitmap);
        QTest::newRow("opaque") << QPixmap::fromImage(QImage(30, 30, QImage::Format_RGB32));
        QTest::newRow("high resolution") << dense;
    }

    void picturesOfAnyKindStandInTheMiddle()
    {
        QFETCH(QPixmap, image);
        SpDisLabel label;
        label.setDisplayMode(SpDisLabel::Picture);
        label.setIcon(image);
        label.setMinimumSize(0, 0);
        label.resize(50, 50);
        const QPoint topLeft((50 - image.width()) / 2, (50 - image.height()) / 2);
        COMPARE_PICTURES(painted(label),
                         reference(label, [&](QPainter &p) { p.drawPixmap(topLeft, image); }));
    }

    void textsStandOnTheirGroundWithAnyNumbers()
    {
        SpDisLabel label;
        label.resize(50, 50);
        label.setNormalBackgroundColor(Qt::red);
        for (const QString &text :
             {QString(20000, QLatin1Char('W')), QString(1000, QLatin1Char('\n')),
              QString(QChar(0xD800)), QString(QChar(0)), QString()}) {
            label.setNormalText(text);
            for (int extreme : {INT_MIN, -1, 0, 1, INT_MAX}) {
                label.setRoundXY(extreme);
                label.setAlignment(Qt::Alignment(QFlag(extreme)));
                COMPARE_PICTURES(painted(label), reference(label, [&](QPainter &p) {
                                     if (extreme == 0) {
                                         p.fillRect(label.rect(), Qt::red);
                                     } else {
                                         p.setRenderHint(QPainter::Antialiasing);
                                         p.setPen(Qt::NoPen);
                                         p.setBrush(Qt::red);
                                         p.drawRoundedRect(QRectF(label.rect()), qreal(extreme),
                                                           qreal(extreme), Qt::AbsoluteSize);
                                     }
                                     drawText(p, label.rect(), Qt::white, text, extreme);
                                 }));
            }
        }
    }

    void fontsOfAnySizeAreMeasuredAndDrawn()
    {
        SpDisLabel label;
        label.resize(1500, 1200);
        for (int px : {1, 300, 1000, 100000, INT_MAX}) {
            label.setFontSize(px);
            label.setText(kText);
            const QString shown = shortened(kText, QFontMetrics(label.font()), 1500);
            COMPARE_PICTURES(painted(label), textPicture(label, shown));
        }
    }

    void aLabelWithoutExtentPaintsNothing()
    {
        QWidget window;
        window.resize(80, 60);
        const auto label = makeLabel(&window);
        label->setRoundXY(10);
        show(window);
        for (const QSize &size : {QSize(0, 0), QSize(0, 50), QSize(50, 0)}) {
            label->resize(size);
            COMPARE_PICTURES(painted(window), reference(window, nothing()));
        }
        label->resize(50, 50);
        QVERIFY(painted(window) != reference(window, nothing()));
    }

    void aVeryLargeTextIsDrawnInEachPaint()
    {
        const auto make = [] {
            auto label = makeLabel();
            label->resize(300, 110);
            label->setFontSize(80);
            label->setText(QStringLiteral("98.5"));
            return label;
        };
        checkVeryLargeText<SpDisLabel>(make, 29);
    }

    void aRoundedLabelThatIsKeptFollowsItsInputs()
    {
        const auto make = [] {
            auto label = makeLabel();
            label->setRoundXY(12);
            return label;
        };
        checkKeptLook<SpDisLabel>(
            make,
            {{"roundXY", [](SpDisLabel &l) { l.setRoundXY(9); }},
             {"text", [](SpDisLabel &l) { l.setText(QStringLiteral("Tuner")); }},
             {"fontColor", [](SpDisLabel &l) { l.setFontColor(Qt::red); }},
             {"normalBackgroundColor",
              [](SpDisLabel &l) { l.setNormalBackgroundColor(QColor(90, 90, 200, 77)); }},
             {"alignment", [](SpDisLabel &l) { l.setAlignment(Qt::AlignLeft | Qt::AlignTop); }},
             {"fontsize", [](SpDisLabel &l) { l.setFontSize(23); }},
             {"isDown", [](SpDisLabel &l) { l.setIsDown(true); }},
             {"pressFontColor", [](SpDisLabel &l) { l.setPressFontColor(Qt::cyan); }},
             {"pressBackgroundColor", [](SpDisLabel &l) { l.setPressBackgroundColor(Qt::blue); }},
             {"size", [](SpDisLabel &l) { l.resize(140, 50); }},
             {"picture",
              [](SpDisLabel &l) {
                  l.setIcon(picture(Qt::green));
                  l.setDisplayMode(SpDisLabel::Picture);
              }},
             {"square",
              [](SpDisLabel &l) {
                  l.setDisplayMode(SpDisLabel::String);
                  l.setRoundXY(0);
              }},
             {"text of a square", [](SpDisLabel &l) { l.setText(QStringLiteral("FM")); }},
             {"ground of a square", [](SpDisLabel &l) { l.setPressBackgroundColor(Qt::green); }},
             {"square without text", [](SpDisLabel &l) { l.setText(QString()); }},
             {"size of a square", [](SpDisLabel &l) { l.resize(120, 44); }}});
        checkKeptLookElsewhere<SpDisLabel>(make);
        checkKeptLookFollowsItsSize<SpDisLabel>(make);
    }
};

WIDGET_TEST_MAIN(tst_SpDisLabel)
#include "tst_spdislabel.moc"
