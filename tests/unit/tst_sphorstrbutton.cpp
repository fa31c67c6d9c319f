// SPDX-License-Identifier: Apache-2.0
#include <SpHorStrButton>

#include "baseorder.h"
#include "buttonimages.h"
#include "deletion.h"
#include "hostile.h"
#include "logrecord.h"
#include "newwidget.h"
#include "parent.h"
#include "pictures.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTemporaryDir>

#include <climits>
#include <memory>
#include <type_traits>

static_assert(std::is_constructible_v<SpHorStrButton, SpHorStrButton::StrPosition, QString, QString,
                                      QString, QString, QString, QWidget *>);
static_assert(std::is_default_constructible_v<SpHorStrButton>);

namespace
{

const QColor kNormal = Qt::green;
const QColor kPress = Qt::yellow;
const QColor kDisable = Qt::magenta;
const QColor kDisabledText(150, 150, 150, 150);

const QString kText = QStringLiteral("Radio");

// A button of 160 x 81 with a picture for each look.
std::unique_ptr<SpHorStrButton> makeButton(QWidget *parent = nullptr)
{
    auto button = std::make_unique<SpHorStrButton>(parent);
    button->setNormalPixmap(picture(kNormal));
    button->setPressPixmap(picture(kPress));
    button->setDisablePixmap(picture(kDisable));
    button->setDisplayString(kText);
    button->resize(160, 81);
    return button;
}

const QRect kIconRect(0, 25, 40, 30); // of makeButton()
const QRect kTextRect(50, 0, 110, 81);
constexpr int kTextFlags = 0x81;

using Action = std::function<void(SpHorStrButton &)>;
using Paint = std::function<void(QPainter &)>;

Paint plain(const QColor &color)
{
    return [color](QPainter &p) { p.drawPixmap(kIconRect, picture(color)); };
}

// The documented composition of a darkened icon, step by step.
void drawVeiled(QPainter &p, const QRect &rect, const QPixmap &pixmap)
{
    QImage image = pixmap.toImage();
    QPainter inner(&image);
    inner.setCompositionMode(QPainter::CompositionMode_Source);
    inner.fillRect(image.rect(), Qt::transparent);
    inner.setCompositionMode(QPainter::CompositionMode_SourceOver);
    inner.drawPixmap(0, 0, pixmap);
    inner.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    inner.fillRect(image.rect(), QColor(0, 0, 0, 154));
    inner.end();
    p.drawImage(rect, image);
}

Paint veiled(const QColor &color)
{
    return [color](QPainter &p) { drawVeiled(p, kIconRect, picture(color)); };
}

Paint nothing()
{
    return [](QPainter &) {};
}

// A style that paints a ground of its own for widgets, and writes down for whom.
class GroundStyle : public QProxyStyle
{
public:
    mutable QVector<const QWidget *> widgets;
    mutable QVector<QRect> rects;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_Widget) {
            widgets += widget;
            rects += option->rect;
            painter->fillRect(option->rect.adjusted(3, 3, -3, -3), Qt::blue);
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Paint)

class tst_SpHorStrButton : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction ---------------------------------------------------------------------------

    void defaults()
    {
        SpHorStrButton button;
        QCOMPARE(button.stringPosition(), SpHorStrButton::StrLeft);
        QCOMPARE(button.buttonId(), QStringLiteral("0"));
        QCOMPARE(button.getButtonId(), QStringLiteral("0"));
        QCOMPARE(button.displayString(), QStringLiteral("default"));
        QVERIFY(button.normalPixmap().isNull());
        QVERIFY(button.pressPixmap().isNull());
        QVERIFY(button.disablePixmap().isNull());
        QCOMPARE(button.normalTextColor(), QColor(255, 255, 255, 255));
        QCOMPARE(button.pressTextColor(), QColor(255, 0, 0, 255));
        QCOMPARE(button.textTopMargin(), 0);
        QCOMPARE(button.textHeight(), 0);
        QCOMPARE(button.textLeftMargin(), 0);
        QCOMPARE(button.textWidth(), 0);
        QVERIFY(button.findChildren<QObject *>().isEmpty());
        QCOMPARE(takeMessages(), QStringList());
    }

    void aNewButtonIsAPlainWidgetOtherwise() { checkIsAPlainWidget<SpHorStrButton>(); }

    void aNewButtonPaintsItsStringTenPixelsFromTheLeft()
    {
        SpHorStrButton button;
        button.resize(120, 40);
        COMPARE_PICTURES(painted(button), reference(button, [](QPainter &p) {
                             p.setPen(Qt::white);
                             p.drawText(QRect(10, 0, 110, 40), 0x81, QStringLiteral("default"));
                         }));
    }

    void theLongConstructorTakesEverything()
    {
        const QTemporaryDir dir;
        const QString normal = dir.filePath(QStringLiteral("normal.png"));
        const QString press = dir.filePath(QStringLiteral("press.png"));
        const QString disable = dir.filePath(QStringLiteral("disable.png"));
        QVERIFY(picture(kNormal).save(normal));
        QVERIFY(picture(kPress).save(press));
        QVERIFY(picture(kDisable).save(disable));
        QWidget parent;
        SpHorStrButton button(SpHorStrButton::StrRight, QStringLiteral("left"), kText, normal,
                              press, disable, &parent);
        QCOMPARE(button.parentWidget(), &parent);
        QCOMPARE(button.stringPosition(), SpHorStrButton::StrRight);
        QCOMPARE(button.buttonId(), QStringLiteral("left"));
        QCOMPARE(button.displayString(), kText);
        QCOMPARE(button.normalPixmap().toImage(), picture(kNormal).toImage());
        QCOMPARE(button.pressPixmap().toImage(), picture(kPress).toImage());
        QCOMPARE(button.disablePixmap().toImage(), picture(kDisable).toImage());
        QCOMPARE(button.textTopMargin(), 0);
        QCOMPARE(button.textHeight(), 0);
        QCOMPARE(button.textLeftMargin(), 0);
        QCOMPARE(button.textWidth(), 0);
        QCOMPARE(button.minimumSize(), QSize(0, 0));

        button.resize(160, 81);
        const auto expected = [&](const QPixmap &icon) {
            return reference(button, [&](QPainter &p) {
                p.drawPixmap(QRect(120, 25, 40, 30), icon);
                p.setPen(Qt::black);
                p.drawText(QRect(0, 0, 110, 81), 0x82, kText);
            });
        };
        COMPARE_PICTURES(painted(button), expected(picture(kNormal)));
        button.setPressState(true);
        COMPARE_PICTURES(painted(button), expected(picture(kPress)));
    }

    void theLongConstructorLeavesTheColoursInvalid()
    {
        const SpHorStrButton button(SpHorStrButton::StrLeft, {}, {}, {}, {}, {}, nullptr);
        QVERIFY(!button.normalTextColor().isValid());
        QVERIFY(!button.pressTextColor().isValid());
        QCOMPARE(button.buttonId(), QString());
        QCOMPARE(button.displayString(), QString());
    }

    void theLongConstructorLogsItsIconSize_data()
    {
        QTest::addColumn<bool>("readable");
        QTest::addColumn<QString>("expected");
        QTest::newRow("a picture")
            << true << QStringLiteral("[SpHorStrButton]instance,icon size: QSize(40, 30)");
        QTest::newRow("unreadable")
            << false << QStringLiteral("[SpHorStrButton]instance,icon size: QSize(0, 0)");
    }

    void theLongConstructorLogsItsIconSize()
    {
        QFETCH(bool, readable);
        QFETCH(QString, expected);
        const QTemporaryDir dir;
        const QString normal = dir.filePath(QStringLiteral("normal.png"));
        if (readable)
            QVERIFY(picture(kNormal).save(normal));
        LogRecord record;
        const SpHorStrButton button(SpHorStrButton::StrLeft, {}, {}, normal, {}, {}, nullptr);
        const QVector<LoggedLine> lines = record.take();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines.first().text, expected);
        QCOMPARE(lines.first().file, QStringLiteral("src/sphorstrbutton"));
        QCOMPARE(lines.first().line, 67);
        QVERIFY(lines.first().function.startsWith(QStringLiteral("SpHorStrButton::")));
    }

    void theLogLineIsADebugLineOfTheDefaultCategory()
    {
        const SpHorStrButton button(SpHorStrButton::StrLeft, {}, {}, {}, {}, {}, nullptr);
        QCOMPARE(takeMessages(),
                 QStringList("debug: [SpHorStrButton]instance,icon size: QSize(0, 0)"));
        static QByteArray category;
        const QtMessageHandler previous =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &context,
                                      const QString &) { category = context.category; });
        const SpHorStrButton other(SpHorStrButton::StrLeft, {}, {}, {}, {}, {}, nullptr);
        qInstallMessageHandler(previous);
        QCOMPARE(category, QByteArray("default"));
    }

    void whatIsNoPictureFileLeavesTheIconNull_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("empty path") << QString();
        QTest::newRow("one character") << QStringLiteral("/");
        QTest::newRow("directory") << QStringLiteral(".");
        QTest::newRow("absent") << QStringLiteral("absent.png");
        QTest::newRow("text") << QStringLiteral("text.png");
        QTest::newRow("empty file") << QStringLiteral("empty.png");
        QTest::newRow("truncated") << QStringLiteral("truncated.png");
        QTest::newRow("very long") << QString(10000, QLatin1Char('x'));
    }

    void whatIsNoPictureFileLeavesTheIconNull()
    {
        QFETCH(QString, name);
        const QTemporaryDir dir;
        const auto write = [&](const char *fileName, const QByteArray &bytes) {
            QFile file(dir.filePath(QString::fromLatin1(fileName)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(bytes);
        };
        write("text.png", "no picture at all");
        write("empty.png", "");
        QByteArray png;
        QBuffer buffer(&png);
        QVERIFY(buffer.open(QIODevice::WriteOnly) && picture(kNormal).save(&buffer, "PNG"));
        write("truncated.png", png.left(png.size() / 2));

        const QString path = name.size() > 1 ? dir.filePath(name) : name;
        const SpHorStrButton button(SpHorStrButton::StrLeft, {}, {}, path, path, path, nullptr);
        QVERIFY(button.normalPixmap().isNull());
        QVERIFY(button.pressPixmap().isNull());
        QVERIFY(button.disablePixmap().isNull());
        QCOMPARE(takeMessages(),
                 QStringList("debug: [SpHorStrButton]instance,icon size: QSize(0, 0)"));
    }

    // --- Setters --------------------------------------------------------------------------------

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("stringPosition", 0, [](auto &b) { b.setStringPosition(SpHorStrButton::StrRight); });
        row("buttonId", 0, [](auto &b) { b.setButtonId(QStringLiteral("x")); });
        row("displayString", 1, [](auto &b) { b.setDisplayString(QStringLiteral("x")); });
        row("displayString unchanged", 1, [](auto &b) { b.setDisplayString(kText); });
        row("normalPixmap", 1, [](auto &b) { b.setNormalPixmap(picture(Qt::red, {9, 9})); });
        row("normalPixmap null", 0, [](auto &b) { b.setNormalPixmap(QPixmap()); });
        row("pressPixmap", 0, [](auto &b) { b.setPressPixmap(picture(Qt::red)); });
        row("disablePixmap", 0, [](auto &b) { b.setDisablePixmap(picture(Qt::red)); });
        row("normalTextColor", 1, [](auto &b) { b.setNormalTextColor(Qt::red); });
        row("pressTextColor", 1, [](auto &b) { b.setPressTextColor(Qt::blue); });
        row("textTopMargin", 0, [](auto &b) { b.setTextTopMargin(3); });
        row("textHeight", 0, [](auto &b) { b.setTextHeight(3); });
        row("textLeftMargin", 0, [](auto &b) { b.setTextLeftMargin(3); });
        row("textWidth", 0, [](auto &b) { b.setTextWidth(3); });
        row("font size", 1, [](auto &b) { b.setFontSize(9); });
        row("btnDisable", 1, [](auto &b) { b.setBtnDisable(true); });
        row("btnDisable unchanged", 1, [](auto &b) { b.setBtnDisable(false); });
        row("pressState", 1, [](auto &b) { b.setPressState(true); });
        row("pressState unchanged", 1, [](auto &b) { b.setPressState(false); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot()
    {
        const auto button = makeButton();
        checkRepaints(*button);
        QCOMPARE(button->size(), QSize(160, 81));
        QCOMPARE(button->minimumSize(), QSize(0, 0));
        QCOMPARE(button->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

    void nothingRepaintsWhileNothingChanges()
    {
        const auto button = makeButton();
        show(*button);
        QCOMPARE(paints(*button, [] { virtualtime::advance(5000); }), 0);
    }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("stringPosition", 2);
        row("buttonId", QStringLiteral("left"));
        row("displayString", QStringLiteral("text"));
        row("normalTextColor", QColor(1, 2, 3, 4));
        row("pressTextColor", QColor(2, 2, 3, 4));
        row("textTopMargin", -5);
        row("textHeight", INT_MIN);
        row("textLeftMargin", INT_MAX);
        row("textWidth", 8);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(SpHorStrButton()); }

    void picturesAreKept()
    {
        const auto button = makeButton();
        QCOMPARE(button->normalPixmap().toImage(), picture(kNormal).toImage());
        QCOMPARE(button->pressPixmap().toImage(), picture(kPress).toImage());
        QCOMPARE(button->disablePixmap().toImage(), picture(kDisable).toImage());
    }

    void bothGettersOfTheIdentifierAgree()
    {
        SpHorStrButton button;
        button.setButtonId(QStringLiteral("left"));
        QCOMPARE(button.getButtonId(), QStringLiteral("left"));
    }

    void aNullNormalPixmapKeepsTheIconRectangle()
    {
        const auto button = makeButton();
        button->setDisplayString({});
        button->setNormalPixmap(QPixmap());
        QVERIFY(button->normalPixmap().isNull());
        COMPARE_PICTURES(painted(*button), reference(*button, nothing()));
        button->setPressState(true);
        COMPARE_PICTURES(painted(*button), reference(*button, plain(kPress)));
        button->setDisplayString(kText);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             plain(kPress)(p);
                             p.setPen(Qt::red);
                             p.drawText(kTextRect, kTextFlags, kText);
                         }));
    }

    void setFontSizeChangesOnlyThePixelSize() { checkSetFontSize(SpHorStrButton()); }

    void theStringIsPaintedInTheWidgetsFont()
    {
        const auto button = makeButton();
        button->setFontSize(29);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             plain(kNormal)(p);
                             p.setPen(Qt::white);
                             p.drawText(kTextRect, kTextFlags, kText);
                         }));
    }

    // --- Layout ---------------------------------------------------------------------------------

    void layouts_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QRect>("numbers"); // left margin, top margin, width, height
        QTest::addColumn<QRect>("icon");
        QTest::addColumn<QRect>("text");
        QTest::addColumn<int>("flags");
        const auto row = [](const char *name, int position, const QRect &numbers, const QRect &icon,
                            const QRect &text, int flags) {
            QTest::newRow(name) << position << numbers << icon << text << flags;
        };
        const QRect none(0, 0, 0, 0);
        const QRect margins(7, 5, 0, 0);
        const QRect wide(7, 5, 60, 0);
        const QRect high(7, 5, 0, 50);
        const QRect both(7, 5, 60, 50);
        const QRect least(7, 5, 1, 1);
        const QRect negative(7, 5, -1, -1);
        const QRect back(-7, -5, 60, 50);

        const QRect left(0, 25, 40, 30);
        const QRect leftMoved(0, 30, 40, 30);
        row("left", 0, none, left, {50, 0, 110, 81}, 0x81);
        row("left, margins alone", 0, margins, left, {50, 0, 110, 81}, 0x81);
        row("left, width", 0, wide, left, {57, 0, 60, 81}, 0x81);
        row("left, height: the icon moves", 0, high, leftMoved, {50, 0, 110, 50}, 0x81);
        row("left, both", 0, both, leftMoved, {57, 0, 60, 50}, 0x81);
        row("left, one pixel", 0, least, leftMoved, {57, 0, 1, 1}, 0x81);
        row("left, negative sizes", 0, negative, left, {50, 0, 110, 81}, 0x81);
        row("left, negative margins", 0, back, {0, 20, 40, 30}, {43, 0, 60, 50}, 0x81);

        const QRect right(120, 25, 40, 30);
        row("right", 1, none, right, {0, 0, 110, 81}, 0x82);
        row("right, margins alone", 1, margins, right, {0, 0, 110, 81}, 0x82);
        row("right, width", 1, wide, right, {7, 0, 60, 81}, 0x82);
        row("right, height: the string moves", 1, high, right, {0, 5, 110, 50}, 0x82);
        row("right, both", 1, both, right, {7, 5, 60, 50}, 0x82);
        row("right, one pixel", 1, least, right, {7, 5, 1, 1}, 0x82);
        row("right, negative sizes", 1, negative, right, {0, 0, 110, 81}, 0x82);
        row("right, negative margins", 1, back, right, {-7, -5, 60, 50}, 0x82);

        const QRect corner(0, 0, 40, 30);
        row("centre: inside the icon", 2, none, corner, corner, 0x84);
        row("centre, margins alone", 2, margins, corner, corner, 0x84);
        row("centre, width", 2, wide, corner, {7, 0, 60, 30}, 0x84);
        row("centre, height", 2, high, corner, {0, 5, 40, 50}, 0x84);
        row("centre, both", 2, both, corner, {7, 5, 60, 50}, 0x84);
        row("centre, one pixel", 2, least, corner, {7, 5, 1, 1}, 0x84);
        row("centre, negative sizes", 2, negative, corner, corner, 0x84);
        row("centre, negative margins", 2, back, corner, {-7, -5, 60, 50}, 0x84);

        row("no position", 3, none, left, {50, 0, 110, 81}, 0x81);
        row("no position, margins alone", 3, margins, left, {50, 0, 110, 81}, 0x81);
        row("no position, height: the string moves", 3, high, left, {50, 5, 110, 50}, 0x81);
        row("no position, both", -1, both, left, {57, 5, 60, 50}, 0x81);
    }

    void layouts()
    {
        QFETCH(int, position);
        QFETCH(QRect, numbers);
        QFETCH(QRect, icon);
        QFETCH(QRect, text);
        QFETCH(int, flags);
        const auto button = makeButton();
        button->setStringPosition(SpHorStrButton::StrPosition(position));
        button->setTextLeftMargin(numbers.left());
        button->setTextTopMargin(numbers.top());
        button->setTextWidth(numbers.width());
        button->setTextHeight(numbers.height());
        const QImage expected = reference(*button, [&](QPainter &p) {
            p.drawPixmap(icon, picture(kNormal));
            p.setPen(Qt::white);
            p.drawText(text, flags, kText);
        });
        COMPARE_PICTURES(painted(*button), expected);
        COMPARE_PICTURES(painted(*button), expected);
    }

    void theIconIsCentredTowardMinusInfinity_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("topLeft");
        for (int position : {0, 1, 3}) {
            const auto row = [position](int height, int top) {
                QTest::addRow("position %d, %d high", position, height)
                    << position << QSize(60, height) << QPoint(position == 1 ? 20 : 0, top);
            };
            row(80, 25);
            row(81, 25);
            row(30, 0);
            row(29, -1);
            row(28, -1);
            row(25, -3);
        }
        QTest::newRow("narrower than the icon") << 1 << QSize(35, 30) << QPoint(-5, 0);
    }

    void theIconIsCentredTowardMinusInfinity()
    {
        QFETCH(int, position);
        QFETCH(QSize, size);
        QFETCH(QPoint, topLeft);
        const auto button = makeButton();
        button->setDisplayString({});
        button->setStringPosition(SpHorStrButton::StrPosition(position));
        button->resize(size);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             p.drawPixmap(topLeft, picture(kNormal));
                         }));
    }

    // What is left for the string may be nothing, or less.
    void aButtonTooSmallForItsString_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("width");
        for (int position : {0, 1, 2}) {
            for (int width : {90, 51, 50, 49, 45, 1})
                QTest::addRow("position %d, %d wide", position, width) << position << width;
        }
    }

    void aButtonTooSmallForItsString()
    {
        QFETCH(int, position);
        QFETCH(int, width);
        const auto button = makeButton();
        button->setStringPosition(SpHorStrButton::StrPosition(position));
        button->resize(width, 40);
        const QRect text =
            position == 2 ? QRect(0, 0, 40, 30) : QRect(position == 0 ? 50 : 0, 0, width - 50, 40);
        const int flags = position == 0 ? 0x81 : position == 1 ? 0x82 : 0x84;
        COMPARE_PICTURES(
            painted(*button), reference(*button, [&](QPainter &p) {
                p.drawPixmap(QRect(position == 1 ? width - 40 : 0, position == 2 ? 0 : 5, 40, 30),
                             picture(kNormal));
                p.setPen(Qt::white);
                p.drawText(text, flags, kText);
            }));
    }

    // --- Pictures -------------------------------------------------------------------------------

    void looks_data()
    {
        QTest::addColumn<Action>("state");
        QTest::addColumn<Paint>("icon");
        QTest::addColumn<QColor>("pen");
        const auto row = [](const char *name, const Action &state, const Paint &icon,
                            const QColor &pen) { QTest::newRow(name) << state << icon << pen; };
        const auto press = [](SpHorStrButton &b) { b.setPressState(true); };
        const auto disable = [](SpHorStrButton &b) { b.setBtnDisable(true); };
        row(
            "normal", [](auto &) {}, plain(kNormal), QColor(1, 2, 3));
        row("pressed", press, plain(kPress), QColor(4, 5, 6));
        row("disabled", disable, plain(kDisable), kDisabledText);
        row(
            "disabled and pressed",
            [=](auto &b) {
                press(b);
                disable(b);
            },
            plain(kDisable), kDisabledText);
        row(
            "disabled without its icon",
            [=](auto &b) {
                b.setDisablePixmap({});
                disable(b);
            },
            veiled(kNormal), kDisabledText);
        row(
            "disabled and pressed without its icon",
            [=](auto &b) {
                b.setDisablePixmap({});
                disable(b);
                press(b);
            },
            veiled(kNormal), kDisabledText);
        row(
            "disabled without any icon",
            [=](auto &b) {
                b.setDisablePixmap({});
                b.setNormalPixmap({});
                disable(b);
            },
            nothing(), kDisabledText);
        row(
            "disabled without the normal icon",
            [=](auto &b) {
                b.setNormalPixmap({});
                disable(b);
            },
            plain(kDisable), kDisabledText);
        row(
            "pressed without its icon",
            [=](auto &b) {
                b.setPressPixmap({});
                press(b);
            },
            nothing(), QColor(4, 5, 6));
        row(
            "without the normal icon", [](auto &b) { b.setNormalPixmap({}); }, nothing(),
            QColor(1, 2, 3));
        row(
            "disabled as a widget only", [](auto &b) { b.setEnabled(false); }, plain(kNormal),
            QColor(1, 2, 3));
        row(
            "an invalid colour is black", [](auto &b) { b.setNormalTextColor(QColor()); },
            plain(kNormal), QColor(0, 0, 0));
    }

    void looks()
    {
        QFETCH(Action, state);
        QFETCH(Paint, icon);
        QFETCH(QColor, pen);
        const auto button = makeButton();
        button->setNormalTextColor(QColor(1, 2, 3));
        button->setPressTextColor(QColor(4, 5, 6));
        state(*button);
        const QImage expected = reference(*button, [&](QPainter &p) {
            icon(p);
            p.setPen(pen);
            p.drawText(kTextRect, kTextFlags, kText);
        });
        COMPARE_PICTURES(painted(*button), expected);
        COMPARE_PICTURES(painted(*button), expected);
    }

    void picturesAreStretchedToTheSizeOfTheNormalOne_data() { addStretchedPictures("disable"); }

    void picturesAreStretchedToTheSizeOfTheNormalOne()
    {
        QFETCH(bool, pressed);
        QFETCH(QSize, size);
        const QPixmap image = picture(Qt::red, size);
        const auto button = makeButton();
        button->setDisplayString({});
        pressed ? button->setPressPixmap(image) : button->setDisablePixmap(image);
        button->setBtnDisable(!pressed);
        button->setPressState(pressed);
        checkPaintsStretched(*button, image, kIconRect);
    }

    void withoutANormalIconTheOthersHaveNoRoom()
    {
        SpHorStrButton button;
        button.resize(80, 40);
        button.setDisplayString({});
        button.setPressPixmap(picture(kPress));
        button.setPressState(true);
        COMPARE_PICTURES(painted(button), reference(button, nothing()));
    }

    void theDarkenedIconFollowsTheNormalOne()
    {
        const auto button = makeButton();
        button->setDisplayString({});
        button->setDisablePixmap({});
        button->setBtnDisable(true);
        for (const QColor &color : {kNormal, QColor(Qt::red)}) {
            button->setNormalPixmap(picture(color));
            COMPARE_PICTURES(painted(*button), reference(*button, veiled(color)));
        }
        const QPixmap larger = picture(kNormal, {60, 41});
        button->setNormalPixmap(larger);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             drawVeiled(p, QRect(0, 20, 60, 41), larger);
                         }));
    }

    void theStringStandsOverTheIcon()
    {
        const auto button = makeButton();
        button->setStringPosition(SpHorStrButton::StrCenter);
        button->setBtnDisable(true);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(QRect(0, 0, 40, 30), picture(kDisable));
                             p.setPen(kDisabledText);
                             p.drawText(QRect(0, 0, 40, 30), 0x84, kText);
                         }));
    }

    void theStylePaintsTheBackgroundFirst()
    {
        GroundStyle style;
        const auto button = makeButton();
        button->setStyle(&style);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             p.fillRect(button->rect().adjusted(3, 3, -3, -3), Qt::blue);
                             plain(kNormal)(p);
                             p.setPen(Qt::white);
                             p.drawText(kTextRect, kTextFlags, kText);
                         }));
        QCOMPARE(style.widgets, QVector<const QWidget *>{button.get()});
        QCOMPARE(style.rects, QVector<QRect>{button->rect()});
        button->setStyle(nullptr);
    }

    void aStyleSheetGivesTheBackground()
    {
        const auto button = makeButton();
        button->setStyleSheet(
            QStringLiteral("SpHorStrButton { background-color: #204060; border: 2px solid red; }"));
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             p.fillRect(button->rect(), Qt::red);
                             p.fillRect(button->rect().adjusted(2, 2, -2, -2),
                                        QColor(0x20, 0x40, 0x60));
                             plain(kNormal)(p);
                             p.setPen(Qt::white);
                             p.drawText(kTextRect, kTextFlags, kText);
                         }));
    }

    // --- Touch ----------------------------------------------------------------------------------

    void aReleaseIsAClick()
    {
        const auto button = makeButton();
        button->setButtonId(QStringLiteral("left"));
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(10);
        QCOMPARE(log.take(), QStringList{"beep"});
        finger.release().hold(10);
        QCOMPARE(log.take(), QStringList{"clicked(\"left\")"});
    }

    void aReleaseAnywhereIsAClick_data()
    {
        QTest::addColumn<QPoint>("pos");
        QTest::newRow("beside the press") << QPoint(90, 70);
        QTest::newRow("outside") << QPoint(500, -300);
        QTest::newRow("farthest") << QPoint(INT_MIN / 4, INT_MAX / 4);
    }

    void aReleaseAnywhereIsAClick()
    {
        QFETCH(QPoint, pos);
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).press(10, 10).moveTo(pos.x(), pos.y()).release();
        QCOMPARE(log.take(), QStringList{"clicked(\"0\")"});
    }

    void aReleaseWithoutAPressIsAClick()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).release();
        QCOMPARE(log.take(), QStringList{"clicked(\"0\")"});
    }

    void aPressShowsAndAReleaseEndsThePressedLook()
    {
        const auto button = makeButton();
        button->setDisplayString({});
        show(*button);
        Touch finger = touch(button.get());
        QCOMPARE(paints(*button, [&] { finger.press(10, 10); }), 1);
        COMPARE_PICTURES(painted(*button), reference(*button, plain(kPress)));
        QCOMPARE(paints(*button, [&] { finger.moveTo(500, 500); }), 0);
        COMPARE_PICTURES(painted(*button), reference(*button, plain(kPress)));
        QCOMPARE(paints(*button, [&] { finger.release(); }), 1);
        COMPARE_PICTURES(painted(*button), reference(*button, plain(kNormal)));
    }

    void thePressedLookIsGoneWhenTheClickIsReported()
    {
        const auto button = makeButton();
        button->setDisplayString({});
        SignalLog log(button.get());
        QImage shown;
        log.onLine([&](const QString &line) {
            if (line.startsWith(QLatin1String("clicked")))
                shown = painted(*button);
        });
        touch(button.get()).tap(10, 10);
        COMPARE_PICTURES(shown, reference(*button, plain(kNormal)));
    }

    void aDisabledButtonIsMuteButClicks()
    {
        const auto button = makeButton();
        button->setDisplayString({});
        button->setBtnDisable(true);
        show(*button);
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        QCOMPARE(paints(*button, [&] { finger.press(10, 10).hold(10); }), 1);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(paints(*button, [&] { finger.release().hold(10); }), 1);
        QCOMPARE(log.take(), QStringList{"clicked(\"0\")"});
        button->setBtnDisable(false);
        COMPARE_PICTURES(painted(*button), reference(*button, plain(kNormal)));
    }

    void aButtonDisabledDuringATouchStaysPressed()
    {
        const auto button = makeButton();
        button->setDisplayString({});
        Touch finger = touch(button.get());
        finger.press(10, 10);
        button->setBtnDisable(true);
        finger.release();
        button->setBtnDisable(false);
        COMPARE_PICTURES(painted(*button), reference(*button, plain(kPress)));
    }

    void mouseEventsGoOnToTheParent_data() { addDisabled(); }

    void mouseEventsGoOnToTheParent()
    {
        checkMouseEventsGoOn(makeButton, &SpHorStrButton::setBtnDisable);
    }

    void theBaseHandlerComesAfterTheSignal()
    {
        const auto button = makeButton();
        BaseOrder order(button.get());
        touch(button.get()).tap(10, 10);
        QCOMPARE(order.before, QStringList{"clicked"});
        QCOMPARE(order.after, QStringList());
    }

    void theRequestForAClickSoundGoesUpToTheParent()
    {
        Parent parent;
        const auto button = makeButton(&parent);
        touch(button.get()).press(10, 10);
        QCOMPARE(parent.events, QStringList{"press"});
        QCoreApplication::processEvents();
        QCOMPARE(parent.events, (QStringList{"press", "beep"}));
        button->setParent(nullptr);
    }

    void theIdentifierIsTheOneOfTheMoment()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10);
        button->setButtonId(QStringLiteral("renamed"));
        finger.release();
        QCOMPARE(log.take(), QStringList{"clicked(\"renamed\")"});
    }

    // --- Hard to break --------------------------------------------------------------------------

    void theButtonMayBeDeletedInItsSignal_data() { addDeletionsAt({"clicked"}); }

    void theButtonMayBeDeletedInItsSignal()
    {
        checkMayBeDeleted(makeButton(new QWidget).release());
    }

    void hostilePicturesAreShown_data() { addHostilePictures(); }

    void hostilePicturesAreShown()
    {
        QFETCH(QPixmap, image);
        const auto iconTop = [](int height) { return (50 - height - (height > 50 ? 1 : 0)) / 2; };
        SpHorStrButton button;
        button.setDisplayString({});
        button.resize(50, 50);
        button.setNormalPixmap(image);
        button.setPressPixmap(image);
        for (const QPixmap &disable : {image, QPixmap()}) {
            button.setDisablePixmap(disable);
            for (int position : {0, 1, 2, 57}) {
                for (int bits = 0; bits < 4; ++bits) {
                    button.setStringPosition(SpHorStrButton::StrPosition(position));
                    button.setPressState(bits & 1);
                    button.setBtnDisable(bits & 2);
                    const QRect rect(QPoint(position == 1 ? 50 - image.width() : 0,
                                            position == 2 ? 0 : iconTop(image.height())),
                                     image.size());
                    COMPARE_PICTURES(painted(button), reference(button, [&](QPainter &p) {
                                         if ((bits & 2) != 0 && disable.isNull())
                                             drawVeiled(p, rect, image);
                                         else
                                             p.drawPixmap(rect, image);
                                     }));
                }
            }
        }
    }

    void hostileStringsAreShown_data() { addHostileStrings(); }

    void hostileStringsAreShown()
    {
        QFETCH(QString, text);
        const auto button = makeButton();
        button->setDisplayString(text);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             plain(kNormal)(p);
                             p.setPen(Qt::white);
                             p.drawText(kTextRect, kTextFlags, text);
                         }));
    }

    // Numbers count as far as a widget can reach.
    void hostileNumbersPutIconAndStringOutOfSight_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("number");
        for (int position : {INT_MIN, 0, 1, 2, INT_MAX}) {
            for (int number : {INT_MIN, -1, 0, 1, INT_MAX})
                QTest::addRow("position %d, %d", position, number) << position << number;
        }
    }

    void hostileNumbersPutIconAndStringOutOfSight()
    {
        constexpr int kFarthest = QWIDGETSIZE_MAX;
        QFETCH(int, position);
        QFETCH(int, number);
        const int width = number == INT_MIN ? INT_MAX : -number;
        const auto button = makeButton();
        button->setStringPosition(SpHorStrButton::StrPosition(position));
        button->setTextLeftMargin(number);
        button->setTextTopMargin(number);
        button->setTextWidth(width);
        button->setTextHeight(number);

        const int left = width > 0 ? qMax(number, -kFarthest) : 0;
        const int top = number > 0 ? qMin(number, kFarthest) : 0;
        const bool isLeft = position == SpHorStrButton::StrLeft;
        const bool isRight = position == SpHorStrButton::StrRight;
        const bool isCentre = position == SpHorStrButton::StrCenter;
        const QRect text(isRight || isCentre ? left : 50 + left, isLeft ? 0 : top,
                         width > 0 ? qMin(width, kFarthest) : (isCentre ? 40 : 110),
                         top > 0 ? top : (isCentre ? 30 : 81));
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             p.drawPixmap(isRight ? 120 : 0, isCentre ? 0 : 25 + (isLeft ? top : 0),
                                          picture(kNormal));
                             p.setPen(Qt::white);
                             p.drawText(text, isCentre ? 0x84 : isRight ? 0x82 : 0x81, kText);
                         }));
    }

    void aButtonThatWasEmptyIsWholeAgain()
    {
        const auto button = makeButton();
        for (const QSize &size : {QSize(0, 0), QSize(0, 50), QSize(50, 0)}) {
            button->resize(size);
            show(*button);
            QCOMPARE(paints(*button, [&] { button->repaint(); }), 0);
            button->resize(160, 81);
            COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                                 plain(kNormal)(p);
                                 p.setPen(Qt::white);
                                 p.drawText(kTextRect, kTextFlags, kText);
                             }));
        }
    }
};

WIDGET_TEST_MAIN(tst_SpHorStrButton)
#include "tst_sphorstrbutton.moc"
