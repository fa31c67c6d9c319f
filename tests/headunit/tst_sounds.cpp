// SPDX-License-Identifier: Apache-2.0
#include "samples.h"
#include "tags.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QtEndian>
#include <QtTest>

#include <cmath>

using namespace headunit;

namespace
{

struct Sound {
    quint16 channels = 0;
    quint32 rate = 0;
    quint16 bits = 0;
    QVector<qint16> samples;

    double seconds() const { return double(samples.size()) / channels / rate; }

    int loudest() const
    {
        int most = 0;
        for (const qint16 sample : samples)
            most = qMax(most, qAbs(int(sample)));
        return most;
    }

    // The mean of the squares' root between two times in s.
    double loudness(double from, double to) const
    {
        double sum = 0;
        const int first = int(from * rate) * channels;
        const int last = qMin(int(to * rate) * channels, samples.size());
        for (int i = first; i < last; ++i)
            sum += double(samples.at(i)) * samples.at(i);
        return std::sqrt(sum / (last - first));
    }
};

Sound read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    Sound sound;
    if (!bytes.startsWith("RIFF") || bytes.mid(8, 8) != "WAVEfmt ")
        return sound;
    sound.channels = qFromLittleEndian<quint16>(bytes.constData() + 22);
    sound.rate = qFromLittleEndian<quint32>(bytes.constData() + 24);
    sound.bits = qFromLittleEndian<quint16>(bytes.constData() + 34);
    const int data = bytes.indexOf("data") + 8;
    const int size = qFromLittleEndian<qint32>(bytes.constData() + data - 4);
    for (int i = data; i < data + size; i += 2)
        sound.samples.append(qFromLittleEndian<qint16>(bytes.constData() + i));
    return sound;
}

QStringList pieces()
{
    QStringList paths;
    const QDir folder(samples::musicFolder());
    for (const QString &name : folder.entryList(QDir::Files, QDir::Name))
        paths.append(folder.filePath(name));
    return paths;
}

} // namespace

class tst_Sounds : public QObject
{
    Q_OBJECT

private slots:
    void thereAreThreeTaggedPieces()
    {
        QStringList titles;
        for (const QString &path : pieces()) {
            const Track track = tags::read(tags::unread(path));
            QVERIFY(!track.isBroken);
            QVERIFY(track.seconds >= 20 && track.seconds <= 40);
            QCOMPARE(track.artist, QStringLiteral("PanelKit"));
            QCOMPARE(track.album, QStringLiteral("Short Drives"));
            QVERIFY(track.number > 0);
            QVERIFY(track.hasCover);
            titles += track.title;
        }
        QCOMPARE(titles, QStringList({"Coast Road", "First Light", "Lanterns"}));
    }

    void eachPieceIsHeardAndNotTooLoud()
    {
        for (const QString &path : pieces()) {
            const Sound sound = read(path);
            QCOMPARE(int(sound.channels), 2);
            QCOMPARE(sound.rate, 22050U);
            QCOMPARE(int(sound.bits), 16);
            QVERIFY(sound.loudest() > 20000 && sound.loudest() < 24000);
            for (double from = 0; from + 4 < sound.seconds(); from += 2)
                QVERIFY2(sound.loudness(from, from + 2) > 500, qPrintable(path));
            QVERIFY(sound.loudness(sound.seconds() - 0.02, sound.seconds()) < 30); // fades out
        }
    }

    void theClickIsShort()
    {
        const Sound click = read(samples::clickSound());
        QVERIFY(qAbs(click.seconds() - 0.008) < 0.0001);
        QVERIFY(click.loudest() > 10000);
        QVERIFY(click.loudness(0.007, 0.008) < 1000);
        QVERIFY(qAbs(int(click.samples.first())) < 1500); // it begins without a jump
    }
};

QTEST_GUILESS_MAIN(tst_Sounds)

#include "tst_sounds.moc"
