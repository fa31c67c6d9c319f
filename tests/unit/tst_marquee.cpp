// SPDX-License-Identifier: Apache-2.0
#include "detail/marquee.h"

#include "detail/linescache.h"
#include "textcanvas.h"
#include "widgettest.h"

#include <QPainter>

using namespace panelkit;

namespace
{

// One text under a fade, drawn by a marquee or directly.
struct Subject {
    QSize area{200, 36};
    QColor color = Qt::white;
    QFont font = fontOf(21);
    Qt::LayoutDirection direction = Qt::LeftToRight;
    int flags = Qt::AlignCenter;
    QString text = QStringLiteral("Paper Motorway, \"Rain affine\" and more than that");
    int width = 640; // px, of the place of the text

    QRect place(int offset) const { return {-offset, 0, width, area.height()}; }
};

Subject leftAligned()
{
    Subject subject;
    subject.flags = Qt::AlignLeft | Qt::AlignVCenter;
    return subject;
}

using Prepare = std::function<void(QPainter &)>;

QImage onCanvas(const Subject &s, const Prepare &prepare,
                const std::function<void(QPainter &)> &paint)
{
    return ::onCanvas(s.area + QSize(20, 10), [&](QPainter &p) {
        p.setFont(s.font);
        p.setLayoutDirection(s.direction);
        p.setClipRect(QRect(QPoint(10, 5), s.area));
        p.translate(10, 5);
        prepare(p);
        paint(p);
    });
}

void nothing(QPainter &) { }

QImage expected(const Subject &s, int offset, const Prepare &prepare = nothing)
{
    return onCanvas(s, prepare, [&](QPainter &p) {
        p.setPen(Marquee::pen(s.area, s.color));
        p.drawText(s.place(offset), s.flags, s.text);
    });
}

// With the lines of a text, as a widget has it.
class Shown
{
public:
    Marquee marquee;
    bool isDrawn = false;

    QImage at(const Subject &s, int offset, int reach = 40, const Prepare &prepare = nothing)
    {
        return onCanvas(s, prepare, [&](QPainter &p) {
            const QRect place = s.place(offset);
            const Marquee::Look look{s.color.rgba(),
                                     s.area,
                                     m_lines.beginning(p, place, s.flags, s.text),
                                     {s.text, place.size(), s.flags, s.font, s.direction}};
            isDrawn = marquee.draw(p, look, offset, reach, [&](QPainter &q, int first) {
                return m_lines.drawEverySecond(q, place, s.flags, s.text, first);
            });
        });
    }

private:
    LinesCache m_lines;
};

} // namespace

Q_DECLARE_METATYPE(Subject)
Q_DECLARE_METATYPE(Prepare)

class tst_Marquee : public WidgetTest
{
    Q_OBJECT

private slots:
    void everyStepIsWhatDrawingShows_data()
    {
        QTest::addColumn<Subject>("subject");
        const auto row = [](const char *name, const std::function<void(Subject &)> &change) {
            Subject subject;
            change(subject);
            QTest::newRow(name) << subject;
        };
        row("as it is", [](Subject &) {});
        row("colour", [](Subject &s) { s.color = QColor(250, 120, 3); });
        row("small", [](Subject &s) { s.font = fontOf(12); });
        row("large", [](Subject &s) {
            s.font = fontOf(40);
            s.area = QSize(300, 60);
            s.width = 1200;
        });
        row("italic", [](Subject &s) { s.font.setItalic(true); });
        row("serif, letters that touch", [](Subject &s) {
            s.font.setFamily(QStringLiteral("DejaVu Serif"));
            s.text = QStringLiteral("ffi VAWA rnrn fluff Affe ffj TTTT AVAVAVA wwww");
        });
        row("arabic", [](Subject &s) {
            s.text = QStringLiteral("\u0644\u064a\u0644 \u0627\u0644\u0645\u062f\u064a\u0646\u0629")
                         .repeated(4);
        });
        row("top left", [](Subject &s) { s.flags = Qt::AlignTop | Qt::AlignLeft; });
        row("long stretches of ink", [](Subject &s) {
            s.font.setBold(true);
            s.text = QStringLiteral("\u2014\u2014 \u2014W\u2014 MM\u2014\u2014\u2014 ").repeated(3);
        });
        row("high", [](Subject &s) { s.area = QSize(200, 60); });
    }

    void everyStepIsWhatDrawingShows()
    {
        QFETCH(Subject, subject);
        Shown shown;
        for (int offset = 0; offset < 40; ++offset) {
            const QImage actual = shown.at(subject, offset);
            QVERIFY(shown.isDrawn);
            QVERIFY2(distance(actual, expected(subject, offset)) <= 1,
                     qPrintable(QString::number(offset)));
        }
        QVERIFY(shown.marquee.compositions() <= 2); // at rest, and moved
        QCOMPARE(shown.marquee.fades(), 1);
    }

    // Where no pixel belongs to two letters there is nothing to round. The text begins to the right
    // of the canvas's left edge, where Qt would cut its place the other way.
    void lettersApartAreExact_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("text");
        const QString words = QStringLiteral("Paper Motorway and more than that, and more of it");
        const QString dashes = QStringLiteral("\u2014\u2014 \u2014\u2014\u2014 ").repeated(6);
        QTest::newRow("white") << QColor(Qt::white) << words;
        QTest::newRow("coloured") << QColor(250, 120, 3) << words;
        QTest::newRow("long stretches") << QColor(Qt::white) << dashes;
        QTest::newRow("long stretches, coloured") << QColor(250, 120, 3) << dashes;
    }

    void lettersApartAreExact()
    {
        QFETCH(QColor, color);
        QFETCH(QString, text);
        Subject subject = leftAligned();
        subject.area = QSize(400, 36);
        subject.width = 1200;
        subject.color = color;
        subject.text = QString(6, QLatin1Char(' ')) + text;
        subject.font.setLetterSpacing(QFont::AbsoluteSpacing, 4);
        Shown shown;
        for (int offset = 0; offset < 40; ++offset) {
            const QImage actual = shown.at(subject, offset);
            QVERIFY(shown.isDrawn);
            COMPARE_PICTURES(actual, expected(subject, offset));
        }
    }

    void aTextIsCutAtTheEndOfItsPlace()
    {
        Subject subject;
        subject.flags = Qt::AlignLeft | Qt::AlignVCenter;
        Shown shown;
        for (const int width : {640, 120, 640, 121}) {
            subject.width = width;
            const QImage actual = shown.at(subject, 8);
            QVERIFY(shown.isDrawn);
            QVERIFY(distance(actual, expected(subject, 8)) <= 1);
        }
    }

    void theSamePaintComposesNothing()
    {
        const Subject subject;
        Shown shown;
        const QImage first = shown.at(subject, 3);
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(shown.at(subject, 3), first);
        QCOMPARE(shown.marquee.compositions(), 1);
        QCOMPARE(shown.marquee.fades(), 1);
    }

    void eachInputCounts_data()
    {
        QTest::addColumn<Subject>("subject");
        const auto row = [](const char *name, const std::function<void(Subject &)> &change) {
            Subject subject = leftAligned();
            change(subject);
            QTest::newRow(name) << subject;
        };
        row("colour", [](Subject &s) { s.color = Qt::red; });
        row("width", [](Subject &s) { s.area.rwidth() += 1; });
        row("height", [](Subject &s) { s.area.rheight() += 2; });
        row("text", [](Subject &s) { s.text[1] = QLatin1Char('W'); });
        row("font", [](Subject &s) { s.font.setBold(true); });
        row("alignment", [](Subject &s) { s.flags = Qt::AlignCenter; });
        row("height of the text", [](Subject &s) { s.flags = Qt::AlignLeft | Qt::AlignTop; });
        row("place", [](Subject &s) { s.width = 666; });
        row("direction", [](Subject &s) { s.direction = Qt::RightToLeft; });
    }

    void eachInputCounts()
    {
        QFETCH(Subject, subject);
        Shown shown;
        shown.at(leftAligned(), 8);
        const QImage actual = shown.at(subject, 8);
        QVERIFY(shown.isDrawn);
        QVERIFY(distance(actual, expected(subject, 8)) <= 1);
        QCOMPARE(shown.marquee.compositions(), 2);
    }

    // Where it begins is cut toward zero, so that the letters lie a trace farther to the right once
    // that is to the left of the area.
    void aTextThatBeginsToMoveMayBeRoundedTheOtherWay()
    {
        Subject subject;
        int differing = 0;
        for (const char *more : {"", "i", "l", "ij", "w", "e", "ea", "t"}) {
            subject.text = Subject().text + QLatin1String(more);
            subject.width = QFontMetrics(subject.font).horizontalAdvance(subject.text) + 1;
            Shown shown;
            for (const int offset : {0, 10}) {
                const QImage actual = shown.at(subject, offset);
                QVERIFY(shown.isDrawn);
                QVERIFY(distance(actual, expected(subject, offset)) <= 1);
            }
            differing += shown.marquee.compositions() == 2;
        }
        QVERIFY(differing > 0);
        QVERIFY(differing < 8);
    }

    void whatCannotBeCopiedIsLeftToThePainter_data()
    {
        QTest::addColumn<Subject>("subject");
        QTest::addColumn<Prepare>("prepare");
        const auto row = [](const char *name, const Subject &subject, const Prepare &prepare) {
            QTest::newRow(name) << subject << prepare;
        };
        row("scaled", {}, [](QPainter &p) { p.scale(qreal(1.5), 1); });
        row("half a pixel", {}, [](QPainter &p) { p.translate(qreal(0.5), 0); });
        row("faded", {}, [](QPainter &p) { p.setOpacity(qreal(0.5)); });
        row("mixed", {}, [](QPainter &p) { p.setCompositionMode(QPainter::CompositionMode_Plus); });
        Subject subject;
        subject.color.setAlpha(200);
        row("colour that shines through", subject, nothing);
        subject = {};
        subject.area = QSize(1, 36);
        row("no width", subject, nothing);
        subject.area = QSize(30, 200);
        row("ends without a middle", subject, nothing);
        subject = {};
        subject.font.setUnderline(true);
        row("underlined", subject, nothing);
        subject = {};
        subject.text = QStringLiteral("e\u0301\u0302\u0303");
        row("letters upon letters", subject, nothing);
    }

    void whatCannotBeCopiedIsLeftToThePainter()
    {
        QFETCH(Subject, subject);
        QFETCH(Prepare, prepare);
        Shown shown;
        shown.at({}, 4);
        const QImage blank = onCanvas(subject, prepare, nothing);
        COMPARE_PICTURES(shown.at(subject, 4, 40, prepare), blank);
        QVERIFY(!shown.isDrawn);
    }

    void whatIsKeptIsAtMostTwiceTheArea()
    {
        for (const QSize &area : {QSize(200, 36), QSize(200, 21), QSize(80, 22), QSize(700, 24)}) {
            Subject subject;
            subject.area = area;
            subject.font = fontOf(15);
            subject.flags = Qt::AlignLeft | Qt::AlignVCenter;
            subject.width = 3000;
            subject.text = subject.text.repeated(4);
            Shown shown;
            shown.at(subject, 0, 5000);
            QVERIFY2(shown.isDrawn, qPrintable(QString::number(area.width())));
            const int most = 2 * area.width() * area.height();
            QVERIFY2(shown.marquee.pixels() <= most, qPrintable(QString::number(area.width())));
            QVERIFY(shown.marquee.pixels() > most / 2);
        }
    }

    void onlyRowsWithInkAreKept()
    {
        int pixels[3] = {};
        for (int i : {0, 1, 2}) {
            Subject subject;
            subject.area = QSize(200, 90);
            subject.flags = Qt::AlignLeft
                | (i == 0       ? Qt::AlignTop
                       : i == 1 ? Qt::AlignVCenter
                                : Qt::AlignBottom);
            Shown shown;
            shown.at(subject, 0);
            QVERIFY(shown.isDrawn);
            pixels[i] = shown.marquee.pixels();
        }
        QCOMPARE(pixels[1], pixels[0]);
        QCOMPARE(pixels[2], pixels[0]);
    }

    void aTextWithoutInkIsNothing()
    {
        Subject subject;
        subject.text = QString(20, QLatin1Char(' '));
        Shown shown;
        COMPARE_PICTURES(shown.at(subject, 2), onCanvas(subject, nothing, nothing));
        QVERIFY(shown.isDrawn);
    }
};

WIDGET_TEST_MAIN(tst_Marquee)
#include "tst_marquee.moc"
