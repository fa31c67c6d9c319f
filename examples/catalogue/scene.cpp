// SPDX-License-Identifier: Apache-2.0
#include "scene.h"

#include "theme.h"

Scene::Scene(QWidget *parent) : QWidget(parent)
{
    QPalette dark = palette();
    dark.setColor(QPalette::Window, Theme::kGlass);
    setPalette(dark);
    setAutoFillBackground(true);
}

void Scene::alsoShow(QObject *subject) { m_subjects.append(subject); }

void Scene::setMainSubject(QObject *subject) { m_subjects.prepend(subject); }

QList<QObject *> Scene::subjects() const
{
    QList<QObject *> alive;
    for (const QPointer<QObject> &subject : m_subjects) {
        if (subject)
            alive.append(subject);
    }
    return alive;
}

void Scene::centreContent()
{
    const QPoint shift = rect().center() - childrenRect().center();
    if (layout() || shift.isNull())
        return;
    const auto widgets = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *widget : widgets)
        widget->move(widget->pos() + shift);
}

void Scene::resizeEvent(QResizeEvent *e)
{
    QWidget::resizeEvent(e);
    centreContent();
}
