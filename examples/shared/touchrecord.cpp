// SPDX-License-Identifier: Apache-2.0
#include "touchrecord.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QMap>
#include <QSet>
#include <QtAlgorithms>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace
{

constexpr int kVersion = 1; // of the format
constexpr int kLongestLine = 200; // bytes
constexpr int kMostFingers = 64; // at the same time; no screen reports as many
constexpr int kDecimals = 3; // of a position, so that rounding errors of a way back vanish

const std::array<QByteArray, 6> &kindNames()
{
    static const std::array<QByteArray, 6> names = {"touch-press", "touch-move", "touch-release",
                                                    "mouse-press", "mouse-move", "mouse-release"};
    return names;
}

QString text(const char *sentence)
{
    return QCoreApplication::translate("TouchRecording", sentence);
}

QByteArray number(double coordinate)
{
    QByteArray digits = QByteArray::number(coordinate, 'f', kDecimals);
    while (digits.endsWith('0'))
        digits.chop(1);
    if (digits.endsWith('.'))
        digits.chop(1);
    return digits == "-0" ? QByteArray("0") : digits;
}

// Reads the lines of a log and remembers what is down, to find the ones that make no sense.
class Reader
{
public:
    explicit Reader(QIODevice &device) : m_device(device) { }

    bool read()
    {
        bool isGood = readHead();
        while (isGood && !m_device.atEnd())
            isGood = readRecord();
        if (isGood)
            liftAll();
        return isGood;
    }

    const TouchRecording &recording() const { return m_recording; }
    QString fault() const { return text("line %1: %2").arg(m_lineNumber).arg(m_fault); }

private:
    bool fail(const char *fault)
    {
        m_fault = text(fault);
        return false;
    }

    // A line without its end is one of a file that was cut off, and perhaps half a number.
    bool readWords(int count)
    {
        ++m_lineNumber;
        const QByteArray line = m_device.readLine(kLongestLine);
        m_words = line.trimmed().split(' ');
        if (m_words.size() == count && !line.endsWith('\n'))
            return fail("it is cut off");
        return m_words.size() == count;
    }

    bool readHead()
    {
        if (!readWords(3) || m_words.at(0) != "panelkit-touches")
            return fail("this is not the head of a touch log");
        if (m_words.at(1).toInt() != kVersion)
            return fail("this version of the format is not known");
        const QList<QByteArray> sides = m_words.at(2).split('x');
        m_recording.window = QSize(sides.value(0).toInt(), sides.value(1).toInt());
        if (sides.size() != 2 || m_recording.window.isEmpty())
            return fail("this is not the size of a window");
        return true;
    }

    bool readRecord()
    {
        m_fault.clear();
        if (!readWords(5))
            return m_fault.isEmpty() ? fail("time, kind, number, x and y are expected") : false;
        TouchRecord record = {};
        if (!readTime(m_words.at(0), record) || !readKind(m_words.at(1), record)
            || !readNumber(m_words.at(2), record) || !readPosition(record)
            || !(record.isTouch() ? takeFinger(record) : takeMouse(record)))
            return false;
        m_recording.records.append(record);
        return true;
    }

    bool readTime(const QByteArray &word, TouchRecord &record)
    {
        bool isNumber = false;
        record.time = word.toLongLong(&isNumber);
        if (!isNumber || record.time < 0 || record.time > std::numeric_limits<int>::max())
            return fail("the time is not a number of ms from 0 to 2147483647");
        if (!m_recording.records.isEmpty() && record.time < m_recording.records.constLast().time)
            return fail("the time is before that of the line above");
        return true;
    }

    bool readKind(const QByteArray &word, TouchRecord &record)
    {
        const auto *found = std::find(kindNames().begin(), kindNames().end(), word);
        record.kind = TouchRecord::Kind(found - kindNames().begin());
        return found != kindNames().end() || fail("there is no such kind of event");
    }

    bool readNumber(const QByteArray &word, TouchRecord &record)
    {
        bool isNumber = false;
        record.id = word.toInt(&isNumber);
        if (record.isTouch())
            return (isNumber && record.id >= 0) || fail("this is not the number of a finger");
        const bool isButton = qPopulationCount(quint32(record.id)) == 1
            && record.id <= int(Qt::MaxMouseButton) && record.id > 0;
        const bool fits = record.kind == TouchRecord::MouseMove ? record.id == 0 : isButton;
        return (isNumber && fits) || fail("this is not the number of a mouse button");
    }

    bool readPosition(TouchRecord &record)
    {
        bool isX = false;
        bool isY = false;
        const double x = m_words.at(3).toDouble(&isX);
        const double y = m_words.at(4).toDouble(&isY);
        record.pos = QPointF(qreal(x), qreal(y));
        const bool isInReach = std::abs(x) <= QWIDGETSIZE_MAX && std::abs(y) <= QWIDGETSIZE_MAX;
        return (isX && isY && isInReach) || fail("this is not a position");
    }

    bool takeFinger(const TouchRecord &record)
    {
        const bool isDown = m_fingers.contains(record.id);
        if (record.kind == TouchRecord::TouchPress && isDown)
            return fail("this finger is down already");
        if (record.kind != TouchRecord::TouchPress && !isDown)
            return fail("this finger is not down");
        if (!isDown && m_fingers.size() == kMostFingers)
            return fail("these are too many fingers");
        m_fingers[record.id] = record.pos;
        if (record.kind == TouchRecord::TouchRelease)
            m_fingers.remove(record.id);
        return true;
    }

    bool takeMouse(const TouchRecord &record)
    {
        m_mousePos = record.pos;
        if (record.kind == TouchRecord::MouseMove)
            return true;
        const bool isDown = m_buttons.contains(record.id);
        if (isDown == (record.kind == TouchRecord::MousePress))
            return isDown ? fail("this button is down already") : fail("this button is not down");
        if (isDown)
            m_buttons.remove(record.id);
        else
            m_buttons.insert(record.id);
        return true;
    }

    // A log ends in the middle of a touch if the program did. Its replay leaves nothing down.
    void liftAll()
    {
        QVector<TouchRecord> &records = m_recording.records;
        const qint64 end = records.isEmpty() ? 0 : records.constLast().time;
        for (auto finger = m_fingers.cbegin(); finger != m_fingers.cend(); ++finger)
            records.append({end, TouchRecord::TouchRelease, finger.key(), finger.value()});
        for (const int button : qAsConst(m_buttons))
            records.append({end, TouchRecord::MouseRelease, button, m_mousePos});
    }

    QIODevice &m_device;
    TouchRecording m_recording;
    QString m_fault;
    int m_lineNumber = 0;
    QList<QByteArray> m_words; // of the line
    QMap<int, QPointF> m_fingers; // those that are down
    QSet<int> m_buttons; // those that are down
    QPointF m_mousePos;
};

} // namespace

QByteArray TouchRecord::line() const
{
    return QByteArray::number(time) + ' ' + kindNames().at(std::size_t(kind)) + ' '
        + QByteArray::number(id) + ' ' + number(double(pos.x())) + ' ' + number(double(pos.y()))
        + '\n';
}

QByteArray TouchRecording::head(const QSize &window)
{
    return "panelkit-touches " + QByteArray::number(kVersion) + ' '
        + QByteArray::number(window.width()) + 'x' + QByteArray::number(window.height()) + '\n';
}

TouchRecording TouchRecording::read(QIODevice &device, QString *sentence)
{
    Reader reader(device);
    if (reader.read())
        return reader.recording();
    *sentence = reader.fault();
    return {};
}
