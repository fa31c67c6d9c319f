// SPDX-License-Identifier: Apache-2.0
#include "trackmodel.h"

#include "widgettest.h"

#include <QAbstractItemModelTester>

using namespace headunit;

namespace
{

QVector<Track> tracksNamed(const QStringList &titles)
{
    QVector<Track> tracks;
    for (const QString &title : titles) {
        Track track;
        track.title = title;
        track.path = QStringLiteral("/m/") + title;
        tracks.append(track);
    }
    return tracks;
}

QStringList titlesOf(const TrackModel &model)
{
    QStringList titles;
    for (int row = 0; row < model.rowCount(); ++row)
        titles.append(model.index(row).data(TrackModel::TitleRole).toString());
    return titles;
}

QString joined(const QVector<QChar> &letters)
{
    return QString(letters.constData(), letters.size());
}

} // namespace

class tst_TrackModel : public WidgetTest
{
    Q_OBJECT

private slots:
    void eachRoleTellsItsPartOfTheTrack()
    {
        TrackModel model;
        Track track = tracksNamed({QStringLiteral("Kite")}).first();
        track.artist = QStringLiteral("Ada");
        track.album = QStringLiteral("Sky");
        track.number = 3;
        track.seconds = 61;
        track.hasCover = true;
        model.setTracks({track});
        const QModelIndex row = model.index(0);
        QCOMPARE(row.data().toString(), track.title);
        QCOMPARE(row.data(TrackModel::ArtistRole).toString(), track.artist);
        QCOMPARE(row.data(TrackModel::AlbumRole).toString(), track.album);
        QCOMPARE(row.data(TrackModel::NumberRole).toInt(), 3);
        QCOMPARE(row.data(TrackModel::SecondsRole).toInt(), 61);
        QCOMPARE(row.data(TrackModel::PathRole).toString(), track.path);
        QCOMPARE(row.data(TrackModel::HasCoverRole).toBool(), true);
        QCOMPARE(row.data(TrackModel::BrokenRole).toBool(), false);
        QVERIFY(!row.data(TrackModel::TitleRole - 1).isValid());
        QVERIFY(!model.data(QModelIndex(), TrackModel::TitleRole).isValid());
    }

    void theSignalsAreThoseOfAModel()
    {
        TrackModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.append(tracksNamed({QStringLiteral("C"), QStringLiteral("A")}));
        model.append(tracksNamed({QStringLiteral("B")}));
        model.arrange({1, 2, 0});
        QCOMPARE(titlesOf(model), QStringList({"A", "B", "C"}));
        model.update(1, tracksNamed({QStringLiteral("Beta")}));
        QCOMPARE(titlesOf(model), QStringList({"A", "Beta", "C"}));
        model.setTracks({});
        QCOMPARE(model.rowCount(), 0);
    }

    void aRowThatMovesKeepsItsPersistentIndex()
    {
        TrackModel model;
        model.setTracks(
            tracksNamed({QStringLiteral("C"), QStringLiteral("A"), QStringLiteral("B")}));
        const QPersistentModelIndex c(model.index(0));
        model.arrange({1, 2, 0});
        QCOMPARE(c.row(), 2);
        model.arrange({2, 0, 1});
        QCOMPARE(c.row(), 1);
        QCOMPARE(c.data().toString(), QStringLiteral("C"));
        QCOMPARE(model.rowOfPath(QStringLiteral("/m/C")), 1);
        QCOMPARE(model.rowOfPath(QStringLiteral("/m/D")), -1);
    }

    void anOrderThatIsNoneIsIgnored()
    {
        TrackModel model;
        model.setTracks(tracksNamed({QStringLiteral("A"), QStringLiteral("B")}));
        for (const QVector<int> &order :
             {QVector<int>{}, {1}, {0, 0}, {0, 2}, {-1, 0}, {1, 0, 2}}) {
            model.arrange(order);
            QCOMPARE(titlesOf(model), QStringList({"A", "B"}));
        }
        model.update(1, tracksNamed({QStringLiteral("X"), QStringLiteral("Y")}));
        model.update(-1, tracksNamed({QStringLiteral("X")}));
        model.update(std::numeric_limits<int>::max(), tracksNamed({QStringLiteral("X")}));
        QCOMPARE(titlesOf(model), QStringList({"A", "B"}));
        QVERIFY(model.track(-1).path.isEmpty());
        QVERIFY(model.track(2).path.isEmpty());
    }

    void lettersFollowTheRows()
    {
        TrackModel model;
        model.setTracks(
            tracksNamed({QStringLiteral("12 Bars"), QStringLiteral("(Another) Day"),
                         QStringLiteral("Äther"), QStringLiteral("echo"), QStringLiteral("Étude"),
                         QStringLiteral("Zenith"), QString::fromUtf8("Яблоко")}));
        QCOMPARE(joined(model.letters()), QString::fromUtf8("#AEZЯ"));
        QCOMPARE(model.rowOfLetter(QLatin1Char('#')), 0);
        QCOMPARE(model.rowOfLetter(QLatin1Char('A')), 1);
        QCOMPARE(model.rowOfLetter(QLatin1Char('e')), 3);
        QCOMPARE(model.rowOfLetter(QLatin1Char('F')), 5); // the next that there is
        QCOMPARE(model.rowOfLetter(QChar(0x042F)), 6);
        QCOMPARE(model.rowOfLetter(QChar(0x4E00)), 6); // nothing is behind it: the last
        QCOMPARE(model.letterOf(2), QChar('A'));
        QCOMPARE(model.letterOf(7), QChar());
        QCOMPARE(model.letterOf(-1), QChar());
        model.setTracks({});
        QCOMPARE(model.rowOfLetter(QLatin1Char('A')), -1);
        QVERIFY(model.letters().isEmpty());
    }

    void anOrderBringsItsLetters()
    {
        TrackModel model;
        model.append(tracksNamed({QStringLiteral("B"), QStringLiteral("A")}));
        QCOMPARE(joined(model.letters()), QStringLiteral("BA"));
        model.arrange({1, 0});
        QCOMPARE(joined(model.letters()), QStringLiteral("AB"));
        QCOMPARE(model.rowOfLetter(QLatin1Char('B')), 1);
    }
};

WIDGET_TEST_MAIN(tst_TrackModel)

#include "tst_trackmodel.moc"
