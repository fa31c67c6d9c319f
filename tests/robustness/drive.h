// SPDX-License-Identifier: Apache-2.0
#ifndef DRIVE_H
#define DRIVE_H

#include "drivenclass.h"
#include "values.h"

#include <QPointer>
#include <QStringListModel>
#include <QWidget>

#include <memory>

class WildModel;

/// Plays with an object of a class as bytes have it, and makes a new one whenever it was deleted:
/// property writes, calls, sizes, touches of one and two fingers, keys, changes of all kinds, time,
/// models that change, deletion and event loops inside its own signals. After each action it looks
/// whether what is promised still holds.
class Drive : public QObject
{
public:
    Drive(const DrivenClass &driven, QByteArray bytes);
    ~Drive() override;

    /// Plays so many actions, or as many as there are bytes for. Returns what went wrong, with the
    /// action after which it was seen; nothing if all is well.
    QStringList play(int actions = std::numeric_limits<int>::max());

    int actions() const { return m_actions; }
    /// The name of everything done so far.
    const QStringList &track() const { return m_values.track.lines(); }

    bool eventFilter(QObject *object, QEvent *event) override;
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    void revive();
    void listen();
    void act();
    void actOnWidget(QWidget &widget);
    void writeProperty();
    void callFunction();
    static void deleteLate();
    void wait(int ms);
    int untilNextTick() const;
    void resize(QWidget &widget);
    void playMouse(QWidget &widget);
    void playFingers(QWidget &widget);
    void playKeys(QWidget &widget);
    void sendEvent(QWidget &widget);
    void change(QWidget &widget);
    void move(QWidget &widget);
    void paint(QWidget &widget);
    void interfere();
    qint64 area() const;
    qint64 paintWork() const;
    void check();
    void checkObject();
    void report(const QString &problem);
    QPoint somewhere(const QWidget &widget);

    const DrivenClass &m_driven;
    Values m_values;
    std::unique_ptr<QWidget> m_parent;
    std::unique_ptr<QWidget> m_otherParent;
    std::unique_ptr<WildModel> m_model;
    QPointer<QObject> m_object;
    QObject *m_last = nullptr; // only an address once the object is deleted
    int m_actions = 0;
    QStringList m_problems;
    bool m_isInsideQt = false; // which goes on with the object
    int m_loops = 0; // nested inside each other
};

#endif // DRIVE_H
