// SPDX-License-Identifier: Apache-2.0
// The robustness drive of lists with rows: random touches, property writes and changes of a model
// that answers anything. Each run is repeatable: its seed is the name of its row.

#include <SpTableList>

#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <styleDelegate>

#include <QImage>
#include <QKeyEvent>
#include <QMetaProperty>
#include <QRandomGenerator>
#include <QScrollBar>

#include <climits>
#include <memory>

namespace
{

constexpr int kSteps = 500;
#ifdef PANELKIT_EMULATED
constexpr int kSeeds = 1;
#else
constexpr int kSeeds = 6;
#endif

class Values
{
public:
    explicit Values(quint32 seed) : m_random(seed) { }

    int below(int limit) { return int(m_random.bounded(limit)); }
    template <typename T> T oneOf(std::initializer_list<T> values)
    {
        return *(values.begin() + below(int(values.size())));
    }
    int number() { return oneOf({INT_MIN, -1, 0, 1, 20, 60, 300, 70000, INT_MAX}); }
    QPixmap picture()
    {
        QPixmap pixmap(oneOf({QSize(0, 0), QSize(1, 1), QSize(40, 30), QSize(390, 58)}));
        pixmap.fill(QColor(10, 200, 90, below(256)));
        return pixmap;
    }
    QString text()
    {
        return oneOf({QString(), QStringLiteral("a/b/c"), QStringLiteral("///"),
                      QString(400, QLatin1Char('W')), QString(300, QChar(0xD800)),
                      QString(20000, QLatin1Char('i')), QStringLiteral("two\nlines"),
                      QStringLiteral("\u0645\u0648\u0633\u064a\u0642\u0649 abc \u0645")});
    }

private:
    QRandomGenerator m_random;
};

// Answers each role with something, which may be of the wrong type, and never the same twice.
class WildModel : public QAbstractListModel
{
public:
    explicit WildModel(Values &values) : m_values(values), m_count(values.below(200)) { }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : m_count;
    }
    QVariant data(const QModelIndex &, int role) const override
    {
        if (role == 258 && m_values.below(8) > 0)
            return m_values.oneOf({0x11111, 0x1001, 0x1010, 0x111000, -1});
        switch (m_values.below(6)) {
        case 0:
            return {};
        case 1:
            return m_values.number();
        case 2:
            return m_values.picture();
        case 3:
            return m_values.below(2) == 1;
        default:
            return m_values.text();
        }
    }
    void change()
    {
        const int rows = m_values.below(40);
        switch (m_values.below(4)) {
        case 0:
            beginResetModel();
            m_count = m_values.below(200);
            endResetModel();
            break;
        case 1:
            beginInsertRows({}, 0, rows);
            m_count += rows + 1;
            endInsertRows();
            break;
        case 2:
            if (rows >= m_count)
                break;
            beginRemoveRows({}, 0, rows);
            m_count -= rows + 1;
            endRemoveRows();
            break;
        default:
            if (m_count > 0)
                emit dataChanged(index(0), index(m_count - 1));
        }
    }

private:
    Values &m_values;
    int m_count;
};

class Drive
{
public:
    explicit Drive(quint32 seed) : m_values(seed) { }

    void run()
    {
        for (int i = 0; i < kSteps; ++i) {
            if (!m_list)
                revive();
            step();
        }
        delete m_list;
    }

private:
    void revive()
    {
        m_model = std::make_unique<WildModel>(m_values);
        m_list = new SpTableList(&m_parent);
        m_list->setModel(m_model.get());
        m_list->setItemHeight(m_values.oneOf({10, 60, 61}));
        m_list->setItemWidth(400);
        m_list->setUIStyle(SpTableList::LIST_STYLE(m_values.below(7)));
        m_list->setHighlightFlag(m_values.below(2) == 1);
        m_list->resize(400, 300);
        const auto perhapsDelete = [this] {
            if (m_values.below(60) == 0)
                delete m_list;
            else if (m_values.below(20) == 0 && m_model)
                m_model->change();
        };
        const SpTableList *list = m_list;
        QObject::connect(list, &SpTableList::listPressed, perhapsDelete);
        QObject::connect(list, &SpTableList::currentShowIndex, perhapsDelete);
        QObject::connect(list, &SpTableList::haveItemSelect, perhapsDelete);
        QObject::connect(list, QOverload<int>::of(&SpTableList::itemClicked), perhapsDelete);
        QObject::connect(list, QOverload<int, int>::of(&SpTableList::itemClicked), perhapsDelete);
        m_parent.resize(400, 300);
        m_parent.show();
        m_list->show();
    }

    void step()
    {
        switch (m_values.below(10)) {
        case 0:
            writeProperty();
            break;
        case 1:
            if (m_model)
                m_model->change();
            break;
        case 2:
            replaceModel();
            break;
        case 3:
            m_list->setVisible(m_values.below(3) > 0);
            break;
        case 4:
            m_list->listModelReset();
            break;
        case 5:
            sendKey();
            break;
        case 6: {
            QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
            m_list->render(&image);
            break;
        }
        default:
            playTouch();
        }
        virtualtime::advance(m_values.oneOf({0, 1, 30, 60, 300, 1700}));
    }

    void writeProperty()
    {
        const QMetaObject &type = SpTableList::staticMetaObject;
        const int first = type.propertyOffset();
        const QMetaProperty property =
            type.property(first + m_values.below(type.propertyCount() - first));
        switch (property.userType()) {
        case QMetaType::QPixmap:
            property.write(m_list, m_values.picture());
            break;
        case QMetaType::QColor:
            property.write(m_list, QColor(m_values.below(256), 0, 0));
            break;
        case QMetaType::Bool:
            property.write(m_list, m_values.below(4) > 0);
            break;
        default:
            property.write(m_list, m_values.number());
        }
    }

    void replaceModel()
    {
        if (m_values.below(2) == 1)
            m_list->deleteSelectionModel();
        if (m_values.below(3) == 0)
            m_model.reset(); // while the list still has it
        auto next = std::make_unique<WildModel>(m_values);
        m_list->setModel(next.get());
        m_model = std::move(next);
    }

    void sendKey()
    {
        const int key = m_values.oneOf({int(Qt::Key_Down), int(Qt::Key_End), int(Qt::Key_Meta),
                                        int(Qt::Key_PageUp), int(Qt::Key_Home)});
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier,
                        key == Qt::Key_Meta ? QStringLiteral("beep") : QString());
        QCoreApplication::sendEvent(m_list, &event);
    }

    void playTouch()
    {
        const auto x = [this] { return m_values.oneOf({-5, 5, 100, 380, 390, 600}); };
        const auto y = [this] { return m_values.oneOf({-400, -1, 0, 5, 70, 150, 299, 301, 900}); };
        Touch finger = touch(m_list->viewport());
        finger.press(x(), y());
        for (int moves = m_values.below(5); moves > 0; --moves) {
            finger.hold(m_values.oneOf({0, 4, 20, 100, 300, 61000}));
            if (m_values.below(10) == 0 && m_model)
                m_model->change();
            finger.moveTo(x(), y());
        }
        if (m_values.below(6) > 0)
            finger.release();
    }

    Values m_values;
    QWidget m_parent;
    std::unique_ptr<WildModel> m_model;
    QPointer<SpTableList> m_list;
};

} // namespace

class tst_ListDrive : public WidgetTest
{
    Q_OBJECT

private slots:
    void listsSurvive_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= kSeeds; ++seed)
            QTest::addRow("%d", seed) << seed;
    }

    void listsSurvive()
    {
        QFETCH(int, seed);
        Drive(quint32(seed)).run();
    }
};

WIDGET_TEST_MAIN(tst_ListDrive)
#include "tst_listdrive.moc"
