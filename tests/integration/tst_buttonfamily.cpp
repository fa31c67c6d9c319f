// SPDX-License-Identifier: Apache-2.0
// What every button of the library does on every kind of touch, in one table. They look alike and
// are not: how far a finger may slide, what a long hold means, which flag disables what, who asks
// for a click sound and when. Applications rely on these differences.

#include "signallog.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <MFocusButton>
#include <MOnOffButton>
#include <MPresetButton>
#include <MSelectButton>
#include <MultipleStateButton>
#include <PlayButton>
#include <QTemporaryDir>
#include <SpDisLabel>
#include <SpHorStrButton>
#include <SpIconButton>
#include <SpLockButton>
#include <SpMultipleButton>
#include <SpVerStrButton>

#include <algorithm>
#include <iterator>
#include <memory>

namespace
{

constexpr QSize kSize(100, 40); // px; the drag of a switch needs 30 px then
constexpr QPoint kFinger(40, 20);
constexpr int kLongHold = 3000; // ms; longer than any long press takes

// How a button is made for a row of the table.
enum Kind { Ready, Disabled, Latched, WithoutImage };

QPixmap image()
{
    QPixmap pixmap(30, 30);
    pixmap.fill(Qt::green);
    return pixmap;
}

using Make = std::function<std::unique_ptr<QWidget>(Kind)>;

template <class Button, class Set> Make make(Set set)
{
    return [set](Kind kind) {
        auto button = std::make_unique<Button>();
        set(*button, kind);
        return button;
    };
}

using IsDown = std::function<bool(const QWidget &)>;

template <class Button> IsDown isDown()
{
    return [](const QWidget &button) { return static_cast<const Button &>(button).isDown(); };
}

constexpr int kSlides[] = {1, 10, 11, 20, 21, 49, 50, 51}; // px, sideways

// One row of the table: what a button says, in order; a request for a click sound counts as said
// when it is delivered, which is after the event that asked for it. "-" stands for a kind that the
// class does not have.
struct Behaviour {
    const char *name;
    Make make;
    const char *press; // and nothing more
    const char *tap;
    const char *slides; // for each of kSlides: 't' if it is a tap all the same, 's' if it is not
    const char *slide; // one that is no tap
    const char *longHold;
    const char *disabledTap; // by its own flag
    const char *latchedTap;
    const char *tapWithoutImage;
};

using Column = const char *Behaviour::*;

} // namespace

Q_DECLARE_METATYPE(const Behaviour *)
Q_DECLARE_METATYPE(IsDown)

class tst_ButtonFamily : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QVector<Behaviour> m_table;

    QString file(Kind kind) const
    {
        return kind == WithoutImage ? QString() : m_folder.filePath(QStringLiteral("image.png"));
    }

    void fillTable();

    // What a button says during an action and until all that it posted has been delivered.
    static QString said(QWidget &button, const std::function<void(Touch &)> &action)
    {
        button.resize(kSize);
        SignalLog log(&button);
        Touch finger = touch(&button);
        action(finger);
        virtualtime::advance(0);
        QStringList names;
        for (const QString &line : log.take())
            names += line.section(QLatin1Char('('), 0, 0);
        return names.join(QLatin1Char(' '));
    }

    static void tap(Touch &finger) { finger.tap(kFinger.x(), kFinger.y()); }

    static std::function<void(Touch &)> slideBy(int dx)
    {
        return [dx](Touch &finger) {
            finger.press(kFinger).moveTo(kFinger.x() + dx, kFinger.y()).release();
        };
    }

    static void holdLong(Touch &finger) { finger.press(kFinger).hold(kLongHold).release(); }

private slots:
    void initTestCase()
    {
        QVERIFY(image().save(file(Ready)));
        fillTable();
    }

    void everyCellOfTheTable_data()
    {
        QTest::addColumn<const Behaviour *>("behaviour");
        for (const Behaviour &behaviour : qAsConst(m_table))
            QTest::newRow(behaviour.name) << &behaviour;
    }

    void everyCellOfTheTable()
    {
        QFETCH(const Behaviour *, behaviour);
        struct Cell {
            Column column;
            Kind kind;
            std::function<void(Touch &)> action;
        };
        const Cell cells[] = {
            {&Behaviour::press, Ready, [](Touch &finger) { finger.press(kFinger); }},
            {&Behaviour::tap, Ready, tap},
            {&Behaviour::longHold, Ready, holdLong},
            {&Behaviour::disabledTap, Disabled, tap},
            {&Behaviour::latchedTap, Latched, tap},
            {&Behaviour::tapWithoutImage, WithoutImage, tap},
        };
        for (const Cell &cell : cells) {
            const QString expected = QLatin1String(behaviour->*cell.column);
            if (expected == QLatin1String("-"))
                continue; // there is no such kind of this button
            QCOMPARE(said(*behaviour->make(cell.kind), cell.action), expected);
        }
        QCOMPARE(qstrlen(behaviour->slides), uint(std::size(kSlides)));
        for (std::size_t i = 0; i < std::size(kSlides); ++i) {
            const char *expected = behaviour->slides[i] == 't' ? behaviour->tap : behaviour->slide;
            QCOMPARE(said(*behaviour->make(Ready), slideBy(kSlides[i])), QLatin1String(expected));
        }
    }

    void aWidgetThatIsNotEnabledSaysNothing_data() { everyCellOfTheTable_data(); }

    void aWidgetThatIsNotEnabledSaysNothing()
    {
        QFETCH(const Behaviour *, behaviour);
        const auto button = behaviour->make(Ready);
        button->setEnabled(false);
        QCOMPARE(said(*button, tap), QString());
        QCOMPARE(said(*button, holdLong), QString());
    }

    // Of the buttons that can be latched.
    void onlyALatchedButtonStaysDown_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<IsDown>("isDown");
        QTest::addColumn<bool>("isAlwaysLatched");
        QTest::newRow("SpIconButton")
            << QByteArray("SpIconButton") << isDown<SpIconButton>() << false;
        QTest::newRow("SpVerStrButton")
            << QByteArray("SpVerStrButton") << isDown<SpVerStrButton>() << false;
        QTest::newRow("SpDisLabel") << QByteArray("SpDisLabel") << isDown<SpDisLabel>() << false;
        QTest::newRow("SpLockButton")
            << QByteArray("SpLockButton") << isDown<SpLockButton>() << true;
    }

    void onlyALatchedButtonStaysDown()
    {
        QFETCH(QByteArray, name);
        QFETCH(IsDown, isDown);
        QFETCH(bool, isAlwaysLatched);
        const auto behaviour =
            std::find_if(m_table.cbegin(), m_table.cend(),
                         [&](const Behaviour &candidate) { return candidate.name == name; });
        QVERIFY(behaviour != m_table.cend());
        const auto button = behaviour->make(Ready);
        said(*button, tap);
        QCOMPARE(isDown(*button), isAlwaysLatched);
        const auto latched = behaviour->make(Latched);
        said(*latched, tap);
        QCOMPARE(isDown(*latched), true);
    }

    void anySignalMayDeleteItsButton_data() { everyCellOfTheTable_data(); }

    void anySignalMayDeleteItsButton()
    {
        QFETCH(const Behaviour *, behaviour);
        for (const auto &action : {std::function<void(Touch &)>(tap),
                                   std::function<void(Touch &)>(holdLong), slideBy(49)}) {
            const QString all = said(*behaviour->make(Ready), action);
            const int count = all.isEmpty() ? 0 : all.count(QLatin1Char(' ')) + 1;
            for (int number = 0; number < count; ++number) {
                QWidget *button = behaviour->make(Ready).release();
                button->resize(kSize);
                const QPointer<QWidget> guard(button);
                int seen = 0;
                SignalLog log(button);
                log.onLine([&](const QString &line) {
                    if (seen++ == number && line != QLatin1String("beep"))
                        delete button;
                });
                Touch finger = touch(button);
                action(finger);
                virtualtime::advance(0);
                if (guard)
                    delete button; // that line was a request for a sound
                QVERIFY(!guard);
            }
        }
    }
};

void tst_ButtonFamily::fillTable()
{
    const auto icon = make<SpIconButton>([](SpIconButton &b, Kind kind) {
        b.setSupportLongPress(true);
        b.setDisableState(kind == Disabled);
        b.setIsLock(kind == Latched);
        if (kind != WithoutImage)
            b.setNormalImage(image());
    });
    const auto horizontal = make<SpHorStrButton>([](SpHorStrButton &b, Kind kind) {
        b.setBtnDisable(kind == Disabled);
        if (kind != WithoutImage)
            b.setNormalPixmap(image());
    });
    const auto vertical = make<SpVerStrButton>([](SpVerStrButton &b, Kind kind) {
        b.setDisable(kind == Disabled);
        b.setIsLock(kind == Latched);
        if (kind != WithoutImage)
            b.setNormalPixmap(image());
    });
    const auto label = make<SpDisLabel>([](SpDisLabel &b, Kind kind) {
        b.setIsLock(kind == Latched);
        if (kind == WithoutImage)
            b.setDisplayMode(SpDisLabel::Picture);
    });
    const auto onOff = make<MOnOffButton>([](MOnOffButton &b, Kind kind) {
        b.setMinimumSize(0, 0);
        b.setBtnDisable(kind == Disabled);
        if (kind != WithoutImage) {
            b.setNormalBkgPix(image());
            b.setNormalChunkPix(image());
        }
    });
    const auto focus = make<MFocusButton>([](MFocusButton &b, Kind kind) {
        if (kind != WithoutImage)
            b.setNormalImage(image());
    });
    const auto preset = make<MPresetButton>([](MPresetButton &b, Kind kind) {
        if (kind != WithoutImage)
            b.setNormalImage(image());
    });
    const auto select = make<MSelectButton>([](MSelectButton &b, Kind kind) {
        b.setDisableState(kind == Disabled);
        if (kind != WithoutImage)
            b.setNormalImage(image());
    });
    const auto multiple = make<SpMultipleButton>([](SpMultipleButton &b, Kind kind) {
        b.setDisableState(kind == Disabled);
        if (kind != WithoutImage)
            b.setPixmapList(QList<QPixmap>{image(), image()}, QList<QPixmap>{image(), image()});
    });
    const Make states = [this](Kind kind) {
        auto b = std::make_unique<MultipleStateButton>(0, 0, 1, QStringList{file(kind)},
                                                       QStringList{file(kind)}, QString());
        if (kind == Disabled)
            b->setButtonDisable(true);
        return b;
    };
    const Make play = [this](Kind kind) {
        auto b = std::make_unique<PlayButton>(0, 0, 1, file(kind), file(kind));
        if (kind == Disabled)
            b->setButtonDisable(true);
        return b;
    };
    const auto lock = make<SpLockButton>([](SpLockButton &b, Kind kind) {
        b.setDisableState(kind == Disabled);
        if (kind != WithoutImage)
            b.setNormalImage(image());
    });

    const char *const iconTap = "btnPressed btnClicked btnReleased beep";
    const char *const vertTap = "pressed clicked beep";
    const char *const disTap = "pressed released beep";
    const char *const switchTap = "buttonClicked onoffStatusChanged beep";
    const char *const lockTap = "btnPressed btnReleased beep";
    const char *const always = "tttttttt";
    const char *const none = "-";

    m_table = {
        // name, press, tap, slides, slide, long hold, disabled, latched, without an image
        {"SpIconButton", icon, "btnPressed beep", iconTap, "ttttttss",
         "btnPressed btnReleased beep", "btnPressed beep btnLongPress btnLongRelease btnReleased",
         "", iconTap, iconTap},
        {"SpHorStrButton", horizontal, "beep", "clicked beep", always, none, "beep clicked",
         "clicked", none, "clicked beep"},
        {"SpVerStrButton", vertical, "pressed beep", vertTap, always, none, "pressed beep clicked",
         "", vertTap, vertTap},
        {"SpDisLabel", label, "pressed beep", disTap, always, none, "pressed beep released", none,
         disTap, disTap},
        {"MOnOffButton", onOff, "buttonClicked beep", switchTap, "ttttsttt", "buttonClicked beep",
         "buttonClicked beep onoffStatusChanged", "buttonClicked", none, switchTap},
        {"MFocusButton", focus, "", "btnClicked beep", always, none, "btnLongClicked", none, none,
         "btnClicked beep"},
        {"MPresetButton", preset, "beep", "btnClicked beep", "ssssssss", "beep",
         "beep btnLongClicked", none, none, "btnClicked beep"},
        {"MSelectButton", select, "beep", "btnClicked beep", "ttssssss", "beep",
         "beep btnLongClicked", "", none, "btnClicked beep"},
        {"SpMultipleButton", multiple, "beep", "clicked beep", always, none, "beep clicked", "",
         none, ""},
        {"MultipleStateButton", states, "", "clicked", always, none, "clicked", "", none, ""},
        {"PlayButton", play, "", "clicked", always, none, "clicked", "", none, ""},
        {"SpLockButton", lock, "btnPressed beep", lockTap, always, none,
         "btnPressed beep btnReleased", "", lockTap, lockTap},
    };
}

WIDGET_TEST_MAIN(tst_ButtonFamily)
#include "tst_buttonfamily.moc"
