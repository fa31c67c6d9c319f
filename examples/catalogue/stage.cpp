// SPDX-License-Identifier: Apache-2.0
#include "stage.h"

#include "catalogue.h"
#include "finger.h"
#include "scene.h"
#include "signalrelay.h"
#include "theme.h"

#include <QCoreApplication>
#include <QPainter>
#include <QVBoxLayout>

Stage::Stage(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1); // the frame
}

void Stage::perform(const Page &page, const Act &act)
{
    QObject *subject = build(page);
    emit rebuilt();

    bool isPictureTaken = false;
    Finger finger(qobject_cast<QWidget *>(subject), [this, &isPictureTaken] {
        isPictureTaken = true;
        emit pictureWorthy();
    });
    act.perform(*subject, finger);
    if (!act.isTouched())
        m_scene->centreContent();
    if (!isPictureTaken)
        finger.picture();
}

void Stage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Theme::kLine);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

QObject *Stage::build(const Page &page)
{
    delete m_relay;
    delete m_scene;
    m_scene = new Scene;
    QObject *subject = page.build(*m_scene);
    m_scene->setMainSubject(subject);
    layout()->addWidget(m_scene);
    layout()->activate();
    m_scene->show();
    m_scene->centreContent();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);

    m_relay = new SignalRelay(
        [this](QObject *sender, const QString &signal) { emit signalEmitted(sender, signal); },
        this);
    for (QObject *watched : m_scene->subjects())
        m_relay->watch(watched);
    return subject;
}
