// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_SCENE_H
#define CATALOGUE_SCENE_H

#include <QList>
#include <QPointer>
#include <QWidget>

/**
 * The dark glass on which a page builds its content: widgets as children of the scene, placed
 * relative to each other or by a layout of the scene. Without a layout they stay in the middle,
 * together, as the scene grows.
 *
 * The subjects are the objects whose properties and signals the catalogue shows: the one that the
 * page's builder returns comes first, and the builder may name more.
 */
class Scene : public QWidget
{
    Q_OBJECT

public:
    explicit Scene(QWidget *parent = nullptr);

    /// Shows the properties and signals of another object too.
    void alsoShow(QObject *subject);
    void setMainSubject(QObject *subject);
    QList<QObject *> subjects() const;

    void centreContent();

protected:
    void resizeEvent(QResizeEvent *e) override;

private:
    QList<QPointer<QObject>> m_subjects;
};

#endif // CATALOGUE_SCENE_H
