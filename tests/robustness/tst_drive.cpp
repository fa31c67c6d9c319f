// SPDX-License-Identifier: Apache-2.0
// The robustness drive: every listed class, thousands of random steps with hostile values (property
// writes, sizes, touches, keys, change events, time, deletion inside its own signals). Nothing may
// crash, warn or trip a sanitizer. Each run is repeatable: its seed is the name of its row.

#include "panelkitclasses.h"

#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QAbstractEventDispatcher>
#include <QBitmap>
#include <QKeyEvent>
#include <QMetaProperty>
#include <QPainter>
#include <QRandomGenerator>
#include <QWidget>

#include <climits>
#include <limits>

namespace
{

constexpr int kSteps = 2000;
// Each costs an emulated processor many minutes.
#ifdef PANELKIT_EMULATED
constexpr int kSeeds = 1;
#else
constexpr int kSeeds = 4;
#endif
// The sanitizers look at other drives than those that run without them.
#ifdef __SANITIZE_ADDRESS__
constexpr int kFirstSeed = kSeeds + 1;
#else
constexpr int kFirstSeed = 1;
#endif

using Create = std::function<QObject *(QWidget *)>;

// Values that have broken widgets before, by the type of the property.
class HostileValues
{
public:
    explicit HostileValues(quint32 seed) : m_random(seed) { }

    int below(int limit) { return int(m_random.bounded(limit)); }

    template <typename T> T oneOf(std::initializer_list<T> values)
    {
        return *(values.begin() + below(int(values.size())));
    }

    int number()
    {
        return oneOf({INT_MIN, INT_MIN + 1, -32769, -256, -1, 0, 1, 2, 3, 50, 154, 255, 256, 1000,
                      32768, INT_MAX - 1, INT_MAX});
    }

    double real()
    {
        using Double = std::numeric_limits<double>;
        return oneOf({Double::quiet_NaN(), Double::infinity(), -Double::infinity(), Double::max(),
                      Double::denorm_min(), -0.0, 0.0, 0.1, 1.0, -1.0, 98.7, 1e9, -1e9});
    }

    QString text()
    {
        return oneOf({QString(), QStringLiteral("a"), QStringLiteral("Radio"),
                      QStringLiteral("two\nlines"), QString(5000, QLatin1Char('W')),
                      QString(QChar(0xD800)), QString(QChar(0)),
                      QStringLiteral("\u0645\u0648\u0633\u064a\u0642\u0649"), QStringLiteral("/"),
                      QStringLiteral("/absent.png"), QStringLiteral(":/absent")});
    }

    QPixmap picture()
    {
        const QSize size = oneOf({QSize(0, 0), QSize(1, 1), QSize(40, 30), QSize(333, 7),
                                  QSize(20000, 2), QSize(2, 20000)});
        if (below(8) == 0)
            return QBitmap(16, 16);
        QPixmap pixmap(size);
        pixmap.fill(QColor(10, 200, 90, below(256)));
        return pixmap;
    }

    QVariant valueFor(const QMetaProperty &property)
    {
        switch (property.isEnumType() ? int(QMetaType::Int) : property.userType()) {
        case QMetaType::Bool:
            return below(2) == 1;
        case QMetaType::Float:
            return float(real());
        case QMetaType::Double:
            return real();
        case QMetaType::QString:
            return text();
        case QMetaType::QColor:
            return oneOf({QColor(), QColor(Qt::red), QColor(0, 0, 0, 0)});
        case QMetaType::QPixmap:
            return picture();
        case QMetaType::QPoint:
            return QPoint(number(), number());
        case QMetaType::QPointF:
            return QPointF(qreal(real()), qreal(real()));
        case QMetaType::QSize:
            return QSize(number(), number());
        case QMetaType::QRect:
            return QRect(QPoint(number(), number()), QPoint(number(), number()));
        case QMetaType::QFont: {
            QFont font;
            font.setPixelSize(oneOf({1, 7, 200}));
            return font;
        }
        default:
            return number();
        }
    }

private:
    QRandomGenerator m_random;
};

// Receives every signal of an object and, now and then, deletes the object in the middle of it.
class Assassin : public QObject
{
public:
    Assassin(QObject *victim, HostileValues &values) : m_victim(victim), m_values(values)
    {
        const QMetaObject *type = victim->metaObject();
        for (int i = QObject::staticMetaObject.methodCount(); i < type->methodCount(); ++i) {
            const QMetaMethod method = type->method(i);
            if (method.methodType() == QMetaMethod::Signal && isSurvivedByQt(method))
                QMetaObject::connect(victim, i, this, QObject::staticMetaObject.methodCount(),
                                     isInsideQt(method) ? Qt::QueuedConnection
                                                        : Qt::DirectConnection);
        }
    }

    // These are emitted while Qt paints or shows the widget, and goes on with it. Their deletion
    // comes from the event loop.
    static bool isInsideQt(const QMetaMethod &signal)
    {
        static const QByteArrayList inside{"paintFinish", "scrollStateChanged"};
        return inside.contains(signal.name());
    }

    // After these QAbstractSlider, QAbstractButton and QCheckBox go on to their members, in any
    // class derived from them.
    static bool isSurvivedByQt(const QMetaMethod &signal)
    {
        static const QByteArrayList fatal{"actionTriggered", "released", "toggled", "stateChanged"};
        const bool isOfQt = *signal.enclosingMetaObject()->className() == 'Q';
        return !isOfQt || !fatal.contains(signal.name());
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        if (m_values.below(40) == 0)
            delete m_victim;
        return -1;
    }

private:
    QPointer<QObject> m_victim;
    HostileValues &m_values;
};

// One run: an object of the class, made anew whenever it was deleted, under random steps.
class Drive
{
public:
    Drive(Create create, quint32 seed) : m_create(std::move(create)), m_values(seed) { }

    void run()
    {
        for (int i = 0; i < kSteps; ++i) {
            if (!m_object)
                revive();
            step();
        }
        delete m_object;
    }

private:
    void revive()
    {
        m_object = m_create(&m_parent);
        m_assassin = std::make_unique<Assassin>(m_object, m_values);
        if (auto *widget = qobject_cast<QWidget *>(m_object)) {
            widget->resize(120, 80);
            widget->show();
            m_parent.show();
        }
    }

    void step()
    {
        if (m_values.below(3) == 0) {
            writeProperty();
            return;
        }
        if (auto *widget = qobject_cast<QWidget *>(m_object))
            disturb(*widget);
        if (m_values.below(4) == 0)
            virtualtime::advance(qMin(m_values.oneOf({0, 1, 99, 1000, 61000}), longestWait()));
    }

    // A hundred ticks of the fastest timer are enough of it; one without an interval has the clock
    // stand still.
    int longestWait() const
    {
        constexpr int kTicks = 100;
        int interval = INT_MAX / kTicks;
        if (m_object) {
            for (const auto &timer :
                 QAbstractEventDispatcher::instance()->registeredTimers(m_object))
                interval = qBound(0, timer.interval, interval);
        }
        return kTicks * interval;
    }

    void writeProperty()
    {
        const QMetaObject *type = m_object->metaObject();
        const int first = type->propertyOffset();
        if (type->propertyCount() == first)
            return;
        const QMetaProperty property =
            type->property(first + m_values.below(type->propertyCount() - first));
        QVariant value = m_values.valueFor(property);
        // The virtual clock stands still while a timer without interval runs.
        if (qstrcmp(property.name(), "scrollSpeed") == 0 && value.toInt() >= 0)
            value = qMax(50, value.toInt());
        property.write(m_object, value);
        if (m_object)
            property.read(m_object);
    }

    void disturb(QWidget &widget)
    {
        switch (m_values.below(8)) {
        case 0:
            widget.setMinimumSize(0, 0);
            widget.resize(
                m_values.oneOf({QSize(0, 0), QSize(1, 1), QSize(3, 900), QSize(800, 480)}));
            break;
        case 1:
        case 2:
            playTouch(widget);
            break;
        case 3:
            playKeys(widget);
            break;
        case 4:
            widget.setEnabled(m_values.below(2) == 1);
            break;
        case 5:
            widget.setVisible(m_values.below(4) > 0);
            break;
        case 6:
            sendChange(widget);
            break;
        default:
            QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
            widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        }
    }

    void playTouch(QWidget &widget)
    {
        const auto position = [&] {
            return QPoint(m_values.oneOf({-500, -1, 0, 5, 60, 119, 500}),
                          m_values.oneOf({-500, -1, 0, 5, 40, 79, 500}));
        };
        Touch finger = touch(&widget);
        finger.press(position());
        for (int moves = m_values.below(4); moves > 0; --moves) {
            const QPoint next = position();
            finger.moveTo(next.x(), next.y());
            if (m_values.below(3) == 0)
                finger.hold(m_values.oneOf({1, 200, 3000}));
        }
        if (m_values.below(5) > 0)
            finger.release();
    }

    void playKeys(QWidget &widget)
    {
        const int key = m_values.oneOf({int(Qt::Key_Meta), int(Qt::Key_Space), int(Qt::Key_Left)});
        const QString text = m_values.oneOf({QStringLiteral("beep"), QStringLiteral("pressicon"),
                                             QStringLiteral("grayicon"), QString()});
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&widget, &event);
    }

    void sendChange(QWidget &widget)
    {
        QEvent event(m_values.oneOf({QEvent::FontChange, QEvent::PaletteChange,
                                     QEvent::LanguageChange, QEvent::StyleChange,
                                     QEvent::LayoutDirectionChange, QEvent::EnabledChange}));
        QCoreApplication::sendEvent(&widget, &event);
    }

    Create m_create;
    HostileValues m_values;
    QWidget m_parent;
    QPointer<QObject> m_object;
    std::unique_ptr<Assassin> m_assassin;
};

} // namespace

Q_DECLARE_METATYPE(Create)

class tst_Drive : public WidgetTest
{
    Q_OBJECT

private slots:
    void everyClassSurvives_data()
    {
        QTest::addColumn<Create>("create");
        QTest::addColumn<int>("seed");
        const auto add = [](const char *name, const Create &create) {
            for (int seed = kFirstSeed; seed < kFirstSeed + kSeeds; ++seed)
                QTest::addRow("%s %d", name, seed) << create << seed;
        };
#define DRIVE_ROW(Class, create) add(#Class, [](QWidget *parent) -> QObject * { return create; });
        PANELKIT_FOR_EACH_CLASS(DRIVE_ROW)
#undef DRIVE_ROW
    }

    void everyClassSurvives()
    {
        QFETCH(Create, create);
        QFETCH(int, seed);
        Drive(create, quint32(seed)).run();
    }
};

WIDGET_TEST_MAIN(tst_Drive)
#include "tst_drive.moc"
