// SPDX-License-Identifier: Apache-2.0
// Loaded into an application from outside: waits for its SpIconButton to be shown, touches it once
// in the middle, and ends the application. What the application then did is for the caller to see.

#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace
{

class Probe final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (!m_button && event->type() == QEvent::Paint && watched->inherits("SpIconButton")) {
            m_button = qobject_cast<QWidget *>(watched);
            m_timer = startTimer(0); // once the paint is over
        }
        return false;
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        killTimer(m_timer);
        const QPointF middle = QRectF(m_button->rect()).center();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, middle, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(m_button, &event);
        }
        QApplication::quit();
    }

private:
    QPointer<QWidget> m_button;
    int m_timer = 0;
};

void startProbe() { qApp->installEventFilter(new Probe(qApp)); }

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startProbe)
