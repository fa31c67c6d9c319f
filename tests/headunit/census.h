// SPDX-License-Identifier: Apache-2.0
#ifndef CENSUS_H
#define CENSUS_H

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QMetaMethod>
#include <QMutex>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QThread>

#include <malloc.h>

// Qt's own, in headers that are not meant for programs: the hooks for tools that look into one, and
// how much is posted and not delivered yet.
Q_CORE_EXPORT extern quintptr qtHookData[];
Q_CORE_EXPORT uint qGlobalPostedEventsCount();

/// What a program has in hand at a moment.
struct Belongings {
    qint64 bytes = 0; ///< allocated
    qint64 objects = 0;
    qint64 connections = 0;
    qint64 timers = 0; ///< that run
    qint64 files = 0; ///< that are open
    qint64 events = 0; ///< that are posted

    QString text() const
    {
        return QStringLiteral(
                   "%1 bytes, %2 objects, %3 connections, %4 timers, %5 files, %6 events")
            .arg(bytes)
            .arg(objects)
            .arg(connections)
            .arg(timers)
            .arg(files)
            .arg(events);
    }
};

/// Counts what a program has in hand; of objects, those that were made since the census began.
class Census
{
public:
    Census()
    {
        qtHookData[ObjectAdded] = quintptr(&Census::add);
        qtHookData[ObjectRemoved] = quintptr(&Census::remove);
    }
    ~Census()
    {
        qtHookData[ObjectAdded] = 0;
        qtHookData[ObjectRemoved] = 0;
    }
    Census(const Census &) = delete;
    Census &operator=(const Census &) = delete;

    Belongings count() const
    {
        Belongings result;
        const struct mallinfo2 info = mallinfo2();
        result.bytes = qint64(info.uordblks) + qint64(info.hblkhd);
        result.events = qGlobalPostedEventsCount();
        result.files = QDir(QStringLiteral("/proc/self/fd"))
                           .entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot)
                           .size();
        const QMutexLocker locker(&mutex);
        result.objects = objects.size();
        for (QObject *object : qAsConst(objects)) {
            if (object->thread() != QThread::currentThread())
                continue;
            result.timers += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
            result.connections += connectionsFrom(*object);
        }
        return result;
    }

private:
    enum Hook { ObjectAdded = 3, ObjectRemoved = 4 };

    static void add(QObject *object)
    {
        const QMutexLocker locker(&mutex);
        objects.insert(object);
    }

    static void remove(QObject *object)
    {
        const QMutexLocker locker(&mutex);
        objects.remove(object);
    }

    static int connectionsFrom(const QObject &object)
    {
        struct Open : QObject {
            using QObject::receivers;
        };
        int sum = 0;
        const QMetaObject &type = *object.metaObject();
        for (int i = 0; i < type.methodCount(); ++i) {
            const QMetaMethod method = type.method(i);
            if (method.methodType() == QMetaMethod::Signal)
                sum += (object.*&Open::receivers)(QByteArray("2") + method.methodSignature());
        }
        return sum;
    }

    // Threads make objects, too.
    static inline QMutex mutex;
    static inline QSet<QObject *> objects;
};

#endif // CENSUS_H
