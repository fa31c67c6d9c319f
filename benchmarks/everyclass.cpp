// SPDX-License-Identifier: Apache-2.0
#include "everyclass.h"

#include "canvas.h"
#include "mouse.h"
#include "rows.h"
#include "ticks.h"
#include "widgetclasses.h"

#include <QAbstractScrollArea>
#include <QMetaProperty>
#include <QPushButton>
#include <QSlider>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <utility>

namespace
{

constexpr double kMakingLimit = 2; // of a QWidget
constexpr double kPeerLimit = 1;

StepMaker madeAndDeleted(Maker maker)
{
    return [maker] { return [maker] { delete maker(nullptr); }; };
}

std::shared_ptr<QWidget> shown(Maker maker, const QSize &size)
{
    const std::shared_ptr<QWidget> widget(maker(nullptr));
    showOffScreen(*widget, size);
    QCoreApplication::processEvents();
    return widget;
}

// What a finger in the middle of it touches.
QWidget *touched(QWidget &widget)
{
    if (auto *area = qobject_cast<QAbstractScrollArea *>(&widget))
        return area->viewport();
    QWidget *child = widget.childAt(widget.rect().center());
    return child != nullptr ? child : &widget;
}

// Requests for a beep would wait for a window to take them.
void dropRequests() { QCoreApplication::removePostedEvents(nullptr, QEvent::KeyPress); }

StepMaker pressAndRelease(Maker maker, const QSize &size)
{
    return [maker, size]() -> Step {
        const auto widget = shown(maker, size);
        QWidget *target = touched(*widget);
        return [widget, target] {
            sendMouse(*target, QEvent::MouseButtonPress, target->rect().center());
            sendMouse(*target, QEvent::MouseButtonRelease, target->rect().center());
            dropRequests();
        };
    };
}

// Each step is one move; the picture that it asks for is measured elsewhere.
StepMaker dragged(Maker maker, const QSize &size)
{
    return [maker, size]() -> Step {
        const auto widget = shown(maker, size);
        QWidget *target = touched(*widget);
        const QPoint middle = target->rect().center();
        sendMouse(*target, QEvent::MouseButtonPress, middle);
        return [widget, target, middle, way = 12]() mutable {
            way = -way;
            sendMouse(*target, QEvent::MouseMove, middle + QPoint(way, way));
            dropRequests();
        };
    };
}

// The first property of its own that holds a text, a number or a switch; Qt's widget that has one
// of that kind, and two values.
struct Write {
    QByteArray name;
    std::array<QVariant, 2> values;
    const char *peerName = nullptr;
    Maker peer = nullptr;
    QByteArray peerProperty;
};

Write writeOf(const QMetaProperty &property)
{
    switch (int(property.type())) {
    case QVariant::String:
        return {property.name(),
                {QStringLiteral("One"), QStringLiteral("Two")},
                "QPushButton",
                make<QPushButton>,
                "text"};
    case QVariant::Int:
        return {property.name(), {1, 2}, "QSlider", make<QSlider>, "value"};
    case QVariant::Bool:
        return {property.name(), {true, false}, "QPushButton", make<QPushButton>, "checkable"};
    default:
        return {};
    }
}

Write firstWrite(const WidgetClass &of)
{
    const std::unique_ptr<QWidget> widget(of.make(nullptr));
    const QMetaObject *meta = widget->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const Write write = property.isEnumType() ? Write() : writeOf(property);
        if (!write.name.isEmpty() && property.isWritable())
            return write;
    }
    return {};
}

// A name that begins a page of memory. Elsewhere its place within the page would decide whether
// strcmp() takes 11 instructions more for each of the up to 20 names that Qt compares it with.
class AlignedName
{
public:
    explicit AlignedName(const QByteArray &name)
    {
        Q_ASSERT(std::size_t(name.size()) < sizeof m_text);
        qstrncpy(m_text, name.constData(), sizeof m_text);
    }
    const char *text() const { return m_text; }

private:
    alignas(4096) char m_text[64];
};

StepMaker writing(Maker maker, const QSize &size, const QByteArray &property,
                  const std::array<QVariant, 2> &values)
{
    return [=]() -> Step {
        const auto widget = shown(maker, size);
        const auto name = std::make_shared<const AlignedName>(property);
        return [widget, name, values, next = 0U]() mutable {
            widget->setProperty(name->text(), values[next]);
            next = 1 - next;
        };
    };
}

// A tick of the first timer that runs in a widget that nobody touches.
StepMaker ticking(Maker maker, const QSize &size)
{
    return [maker, size]() -> Step {
        const auto widget = shown(maker, size);
        return [widget, timer = timerOf(*widget)] { sendTick(*widget, timer); };
    };
}

bool hasTimer(const WidgetClass &of) { return timerOf(*shown(of.make, of.size)) != 0; }

StepMaker nothingButAnEvent()
{
    return []() -> Step {
        const auto widget = shown(make<QWidget>, {100, 100});
        return [widget] { sendTick(*widget, 0); };
    };
}

bool isMadeForDragging(const WidgetClass &of)
{
    const QByteArray family = of.family;
    return family == "Sliders" || family == "Radio scales" || family == "Scrolling lists";
}

// What takes more than Qt's widget beside it, and why.
struct Excess {
    const char *row;
    double limit; // of the peer
    const char *why;
};

constexpr char kQtsOwn[] = "nearly all of it makes and deletes the class of Qt that it is";
constexpr char kEffect[] = "a graphics effect is made with it";
constexpr char kChildren[] = "labels of Qt are made with it, for its knob and its texts";
constexpr char kTimers[] = "its timer, and connections to slots that are part of its interface";
constexpr char kMeasuring[] =
    "nine tenths of it measure the text, to shorten it where it is too wide";
constexpr char kMoves[] = "it works out its value and its new place, and says so in signals";

constexpr Excess kExcesses[] = {
    {"SpDisLabel/write of text", 7.6, kMeasuring},
    {"MFocusButton/construction", 1.3, kQtsOwn},
    {"MFocusButton/press and release", 2.7, "Qt repaints it at once, twice, with a picture"},
    {"MPresetButton/construction", 1.4, kQtsOwn},
    {"SpMultipleButton/construction", 1.1, kEffect},
    {"MultipleStateButton/construction", 1.25, kEffect},
    {"PlayButton/construction", 1.25, kEffect},
    {"MGifPlay/write of gifImage", 42, "it opens the file"},
    {"SpTableList/construction", 97, kQtsOwn},
    {"SpTableList/write of itemHeight", 1.1, "its header hears of it"},
    {"MArcList/construction", 1.3, kTimers},
    {"MArcScrollBar/drag step, unpainted", 1.85, kMoves},
    {"MArcScrollBar/write of showTicks", 1.35, "it asks for a repaint, a QPushButton does not"},
    {"SpRollingText/construction", 1.6, kTimers},
    {"SpRollingText/write of text", 7.5, kMeasuring},
    {"MVScrollLabel/construction", 1.3, kQtsOwn},
    {"SpSetupSlider/construction", 4.85, kChildren},
    {"SpSetupSlider/write of hasAddDecBtn", 1.05,
     "of 850 instructions, 840 are those of any write"},
    {"SpSetupSliderContainer/construction", 1.25, kQtsOwn},
    {"SpSetupSliderContainer/write of totalNumber", 1.1, "it differs by less than a hundredth"},
    {"MHorSlider/construction", 3.4, kChildren},
    {"MRadioMovePoint/construction", 10.3,
     "three widgets of Qt, their connections and a log in it"},
    {"MRadioMovePoint/drag step, unpainted", 2.5, kMoves},
    {"MRadioSlider/drag step, unpainted", 1.95, kMoves},
};

// Adds a row, held to the peer's cost, or beyond both to what is known.
void add(Rows &rows, const WidgetClass &of, const std::string &state, const StepMaker &ours,
         const Floor<StepMaker> &floor, const std::string &peerName, const StepMaker &peer)
{
    const auto *excess =
        std::find_if(std::begin(kExcesses), std::end(kExcesses), [&](const Excess &known) {
            return known.row == std::string(of.name) + '/' + state;
        });
    const bool isKnown = excess != std::end(kExcesses);
    rows.work(of.name, state, ours, {floor.make, isKnown ? kNoLimit : floor.limit},
              {{peerName, peer, isKnown ? excess->limit : kPeerLimit}}, isKnown ? excess->why : "");
}

void defineRowsOf(Rows &rows, const WidgetClass &of)
{
    add(rows, of, "construction", madeAndDeleted(of.make),
        {madeAndDeleted(make<QWidget>), kMakingLimit}, "QPushButton",
        madeAndDeleted(make<QPushButton>));
    add(rows, of, "press and release", pressAndRelease(of.make, of.size),
        {pressAndRelease(make<QWidget>, of.size)}, "QPushButton",
        pressAndRelease(make<QPushButton>, of.size));
    if (isMadeForDragging(of))
        add(rows, of, "drag step, unpainted", dragged(of.make, of.size),
            {dragged(make<QWidget>, of.size)}, "QSlider", dragged(make<QSlider>, of.size));
    if (hasTimer(of))
        rows.work(of.name, "timer tick, unpainted", ticking(of.make, of.size),
                  {nothingButAnEvent()}, {});
    const Write write = firstWrite(of);
    if (!write.name.isEmpty())
        add(rows, of, "write of " + write.name.toStdString(),
            writing(of.make, of.size, write.name, write.values),
            {writing(make<QWidget>, of.size, "whatsThis", write.values)},
            write.peerName + std::string("::") + write.peerProperty.toStdString(),
            writing(write.peer, of.size, write.peerProperty, write.values));
}

} // namespace

void defineRowsOfEveryClass(Rows &rows)
{
    for (const WidgetClass &of : widgetClasses())
        defineRowsOf(rows, of);
}
