// SPDX-License-Identifier: Apache-2.0
#include <MArcList>
#include <MHorSlider>
#include <MOnOffButton>
#include <MOProgress>
#include <MProgressBar>
#include <MRadioSlider>
#include <MVScrollLabel>
#include <SpBackgroundImage>
#include <SpDisLabel>
#include <SpLabel>
#include <SpLoadingRound>
#include <SpMaskBackground>
#include <SpRollingText>
#include <SpSetupSlider>

#include "pictures.h"
#include "sliderpictures.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QPainter>
#include <QPaintEvent>

#include <malloc.h>
#include <memory>

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

// What a widget keeps of its looks has a bound: twice the pixels of its own area.

namespace
{

using Widget = std::shared_ptr<QWidget>;
using Make = std::function<Widget()>;
using Move = std::function<void(QWidget &)>;

constexpr int kPixel = 4; // bytes
constexpr qint64 kBookkeeping = 64 * 1024; // bytes, of paths, layouts and keys

// The bytes of memory in use.
qint64 bytesInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
#endif
}

// Paints widgets in a window of its own, which hands out the same ground each time.
class Screen
{
public:
    void paint(QWidget &widget)
    {
        m_image.fill(QColor(13, 70, 101));
        QPainter painter(&m_image);
        widget.render(&painter, QPoint(20, 20), QRegion(), QWidget::DrawChildren);
    }

private:
    QImage m_image{700, 540, QImage::Format_ARGB32_Premultiplied};
};

// A widget of this size, made ready by a function.
template <class Class> Make made(const QSize &size, const std::function<void(Class &)> &prepare)
{
    return [=]() -> Widget {
        auto widget = std::make_shared<Class>();
        prepare(*widget);
        widget->setMinimumSize(0, 0);
        widget->resize(size);
        return widget;
    };
}

// A finger goes on by a pixel.
void dragByOne(QWidget &widget)
{
    const int x = widget.property("finger").toInt() + 1;
    widget.setProperty("finger", x);
    touch(&widget).press(200, 10).moveTo(200 + x, 10);
}

Move nothing()
{
    return [](QWidget &) {};
}

// Pictures live outside of the widgets: these are those of all.
const SliderPictures &pictures(Qt::Orientation orientation)
{
    static const SliderPictures lying(Qt::Horizontal);
    static const SliderPictures upright(Qt::Vertical);
    return orientation == Qt::Horizontal ? lying : upright;
}

const QPixmap &backdrop()
{
    static const QPixmap picture = filled(Qt::darkGreen, {90, 80});
    return picture;
}

} // namespace

Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Move)

class tst_KeptPixels : public WidgetTest
{
    Q_OBJECT

private slots:
    void whatAWidgetKeepsIsAtMostTwiceItsArea_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<Move>("move"); // before each paint but the last ones
        QTest::addColumn<double>("least"); // times its own area
        const auto row = [](const char *name, const Make &make, double least,
                            const Move &move = nothing()) {
            QTest::newRow(name) << make << move << least;
        };
        const Move moveValue = [](QWidget &w) {
            w.setProperty("currentValue", w.property("currentValue").toInt() + 1);
        };
        row("switch", made<MOnOffButton>({600, 240}, [](auto &) {}), 1.9);
        row("flat switch",
            made<MOnOffButton>({600, 240},
                               [](auto &b) { b.setUIStyle(MOnOffButton::ONOFF_STYLE_1); }),
            1.9);
        row("flat switch in motion",
            made<MOnOffButton>({600, 240},
                               [](auto &b) { b.setUIStyle(MOnOffButton::ONOFF_STYLE_1); }),
            1.9, [](QWidget &w) { dragByOne(w); });
        row("progress ring", made<MOProgress>({440, 440}, [](auto &r) { r.setRadius(200); }), 1.5,
            moveValue);
        row("ring larger than its widget",
            made<MOProgress>({440, 240}, [](auto &r) { r.setRadius(380); }), 1.9, moveValue);
        row("plain bar", made<MProgressBar>({600, 160}, [](auto &b) { b.setPonitRadius(160); }),
            1.9, moveValue);
        row("pictured bar",
            made<MProgressBar>({260, 60}, [](auto &b) { pictures(Qt::Horizontal).giveTo(b); }), 0.6,
            moveValue);
        row("setup slider",
            made<SpSetupSlider>({50, 230}, [](auto &s) { pictures(Qt::Vertical).giveTo(s); }), 0.6);
        row("slider",
            made<MHorSlider>({200, 40}, [](auto &s) { pictures(Qt::Horizontal).giveTo(s); }), 0.9);
        row("busy ring", made<SpLoadingRound>({400, 400}, [](auto &r) { r.setRadius(196); }), 1.8);
        row("rounded label",
            made<SpDisLabel>({600, 180},
                             [](auto &l) {
                                 l.setText(QStringLiteral("Radio"));
                                 l.setRoundXY(20);
                             }),
            1.9);
        row("square label",
            made<SpDisLabel>({600, 180}, [](auto &l) { l.setText(QStringLiteral("Radio")); }), 1.9);
        row("mask",
            made<SpMaskBackground>({600, 400},
                                   [](auto &m) {
                                       m.setRoundX(30);
                                       m.setRoundY(30);
                                   }),
            0);
        row("stretched backdrop",
            made<SpBackgroundImage>({600, 400}, [](auto &b) { b.setPixmap(backdrop()); }), 0.9);
        row("turned backdrop",
            made<SpBackgroundImage>({600, 60},
                                    [](auto &b) {
                                        b.setPixmap(backdrop());
                                        b.setRotateAngle(45);
                                    }),
            0.1);
        const QString text = QStringLiteral("Midnight Lanterns, from the album Maps for Sundays. ");
        const auto rolling = [text](SpRollingText &t) {
            t.setFontSize(24);
            t.setWaitRoll(1);
            t.setText(text);
        };
        const Move step = [](QWidget &w) {
            virtualtime::advance(200);
            w.update();
        };
        row("rolling text", made<SpRollingText>({600, 120}, rolling), 0.7, step);
        row("text cleared while it rolls", made<SpRollingText>({600, 120}, rolling), 0,
            [step](QWidget &w) {
                step(w);
                const int steps = w.property("steps").toInt() + 1;
                w.setProperty("steps", steps);
                if (steps == 6)
                    static_cast<SpRollingText &>(w).clear();
            });
        row("text at rest",
            made<SpRollingText>({600, 120}, [](auto &t) { t.setText(QStringLiteral("Radio")); }),
            1.9);
        row("letters on an arc",
            made<MArcList>({560, 400},
                           [](MArcList &l) {
                               for (char c = 'A'; c <= 'Z'; ++c)
                                   l.addAlpha(QLatin1Char(c));
                               l.setItemHight(3);
                               l.setShowItem(25);
                           }),
            0.2);
        row("scrolling text",
            made<MVScrollLabel>({600, 160}, [text](auto &l) { l.setText(text.repeated(9)); }), 1.9);
        row("tape of a radio", made<MRadioSlider>({600, 120}, [](auto &) {}), 0.9);
        row("veiled picture", made<SpLabel>({600, 400}, [](auto &l) { l.setImage(backdrop()); }),
            1.9);
    }

    void whatAWidgetKeepsIsAtMostTwiceItsArea()
    {
        QFETCH(Make, make);
        QFETCH(Move, move);
        QFETCH(double, least);
        Screen screen;
        // The first one fills the caches that all widgets share.
        for (const bool isMeasured : {false, true}) {
            const Widget widget = make();
            const double area = double(widget->width()) * widget->height() * kPixel;
            const qint64 before = bytesInUse();
            for (int paint = 0; paint < 10; ++paint) {
                if (paint < 6)
                    move(*widget);
                screen.paint(*widget);
                const qint64 kept = bytesInUse() - before;
                if (!isMeasured)
                    continue;
                QVERIFY2(double(kept) <= 2 * area + kBookkeeping,
                         qPrintable(QString::number(kept)));
                if (paint == 9)
                    QVERIFY2(double(kept) >= least * area, qPrintable(QString::number(kept)));
            }
        }
    }

    void aSwitchThatIsGivenPicturesKeepsNothing()
    {
        Screen screen;
        MOnOffButton button;
        button.resize(600, 240);
        const qint64 before = bytesInUse();
        for (int paint = 0; paint < 4; ++paint)
            screen.paint(button);
        QVERIFY(bytesInUse() - before > button.width() * button.height() * kPixel);
        button.setNormalBkgPix(backdrop());
        button.setNormalChunkPix(backdrop());
        screen.paint(button);
        QVERIFY(bytesInUse() - before < kBookkeeping);
    }
};

WIDGET_TEST_MAIN(tst_KeptPixels)
#include "tst_keptpixels.moc"
