// SPDX-License-Identifier: Apache-2.0
#include "detail/keyrequest.h"

#include "widgettest.h"

#include <QKeyEvent>
#include <QWidget>

using namespace panelkit;

namespace
{

struct KeyPress {
    int key;
    Qt::KeyboardModifiers modifiers; // as given; the event's own add Meta
    QString text;
    bool isAutoRepeat;
    int count;
};

class KeyRecorder : public QWidget
{
public:
    using QWidget::QWidget;
    QVector<KeyPress> events;

protected:
    void keyPressEvent(QKeyEvent *e) override
    {
        events.append(
            {e->key(), e->QInputEvent::modifiers(), e->text(), e->isAutoRepeat(), int(e->count())});
    }
};

} // namespace

class tst_KeyRequest : public WidgetTest
{
    Q_OBJECT

private slots:
    void aRequestIsAMetaKeyPressWithItsText()
    {
        KeyRecorder widget;
        postKeyRequest(&widget, kBeepRequest);
        QCoreApplication::processEvents();
        QCOMPARE(widget.events.size(), 1);
        const KeyPress &event = widget.events.first();
        QCOMPARE(event.key, 0x01000022);
        QCOMPARE(event.modifiers, Qt::NoModifier);
        QCOMPARE(event.text, QStringLiteral("beep"));
        QVERIFY(!event.isAutoRepeat);
        QCOMPARE(event.count, 1);
    }

    void aRequestArrivesAfterTheCurrentEvent()
    {
        KeyRecorder widget;
        postKeyRequest(&widget, kPressIconRequest);
        QVERIFY(widget.events.isEmpty());
    }

    void requestsArriveInOrder()
    {
        KeyRecorder widget;
        postKeyRequest(&widget, kPressIconRequest);
        postKeyRequest(&widget, kBeepRequest);
        QCoreApplication::processEvents();
        QCOMPARE(widget.events.size(), 2);
        QCOMPARE(widget.events.first().text, QStringLiteral("pressicon"));
        QCOMPARE(widget.events.last().text, QStringLiteral("beep"));
    }

    void aRequestIsRecognised_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("recognised");
        QTest::newRow("itself") << int(Qt::Key_Meta) << "pressicon" << true;
        QTest::newRow("another request") << int(Qt::Key_Meta) << "beep" << false;
        QTest::newRow("other case") << int(Qt::Key_Meta) << "PressIcon" << false;
        QTest::newRow("other key") << int(Qt::Key_A) << "pressicon" << false;
        QTest::newRow("no text") << int(Qt::Key_Meta) << "" << false;
    }

    void aRequestIsRecognised()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        const QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QTEST(isKeyRequest(&event, kPressIconRequest), "recognised");
    }

    void noEventIsNoRequest() { QVERIFY(!isKeyRequest(nullptr, kBeepRequest)); }

    void aRequestToADeletedWidgetIsLost()
    {
        auto *widget = new KeyRecorder;
        postKeyRequest(widget, kBeepRequest);
        delete widget;
        QCoreApplication::processEvents();
        QCOMPARE(takeMessages(), QStringList());
    }
};

WIDGET_TEST_MAIN(tst_KeyRequest)
#include "tst_keyrequest.moc"
