// SPDX-License-Identifier: Apache-2.0
#include "languages.h"

#include "headunit.h"
#include "pagetest.h"
#include "steadypicture.h"
#include "virtualtime.h"

#include <sphomeicon.h>
#include <spiconbutton.h>

#include <QLabel>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QXmlStreamReader>

#include <cstdlib>

using namespace headunit;

namespace
{

struct Text {
    QString translation;
    bool isFinished = true;
};

// By the context and the text in the sources.
using Texts = QMap<QString, Text>;

Texts textsOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    Texts texts;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const bool isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            const QString translation = xml.readElementText();
            texts.insert(context + QStringLiteral(": ") + source,
                         {translation, isFinished && !translation.isEmpty()});
        }
    }
    return texts;
}

QString fileOf(const QString &code)
{
    return QStringLiteral(HEADUNIT_DIR "/translations/headunit_%1.ts").arg(code);
}

// What the sources want to have translated.
Texts textsOfTheSources(const QString &folder)
{
    const QString path = folder + QStringLiteral("/texts.ts");
    const QString command = QStringLiteral("'" LUPDATE "' -silent -no-obsolete '" HEADUNIT_DIR
                                           "' -ts '%1' >/dev/null 2>&1")
                                .arg(path);
    return std::system(qPrintable(command)) == 0 ? textsOf(path) : Texts();
}

QStringList placesOf(const QString &text)
{
    QStringList places;
    auto found = QRegularExpression(QStringLiteral("%L?\\d")).globalMatch(text);
    while (found.hasNext())
        places += found.next().captured();
    places.sort();
    return places;
}

QStackedWidget *viewsOf(const HeadUnit &unit, const QString &page)
{
    return unit.page(page)->findChild<QStackedWidget *>(QStringLiteral("views"));
}

// So that each has been laid out and dressed.
void showEachView(const HeadUnit &unit, const QString &page)
{
    QStackedWidget *views = viewsOf(unit, page);
    for (int view = views ? views->count() - 1 : -1; view >= 0; --view) {
        views->setCurrentIndex(view);
        virtualtime::advance(0);
    }
}

} // namespace

class TranslationsTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void unknownLanguageIsThatOfTheSystem();
    void everyPageSpeaksTheLanguage_data();
    void everyPageSpeaksTheLanguage();
    void changedScreenIsLikeANewOne_data();
    void changedScreenIsLikeANewOne();
    void numbersAndTimesAreOfTheLanguage();
};

void TranslationsTest::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("code");
    for (const QString &code : Languages::codes().mid(1))
        QTest::addRow("%s", qPrintable(code)) << code;
}

void TranslationsTest::everyTextIsTranslated()
{
    QFETCH(QString, code);
    const QTemporaryDir folder;
    const Texts wanted = textsOfTheSources(folder.path());
    const Texts there = textsOf(fileOf(code));
    QVERIFY(wanted.size() > 100);
    QCOMPARE(there.keys(), wanted.keys());
    for (auto text = there.begin(); text != there.end(); ++text) {
        QVERIFY2(text->isFinished, qPrintable(text.key()));
        if (!text.key().endsWith(QStringLiteral("MMM")))
            QCOMPARE(placesOf(text->translation), placesOf(text.key()));
    }
}

void TranslationsTest::unknownLanguageIsThatOfTheSystem()
{
    QCOMPARE(Languages::closest(QStringLiteral("ar")), QStringLiteral("ar"));
    QCOMPARE(Languages::closest(QStringLiteral("xx")), Languages::closest(QString()));
    QVERIFY(Languages::codes().contains(Languages::closest(QString())));
}

void TranslationsTest::everyPageSpeaksTheLanguage_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("de") << "de";
    QTest::newRow("ar") << "ar";
}

// A caption that is the same text in English is a name, or a word that both languages have.
void TranslationsTest::everyPageSpeaksTheLanguage()
{
    QFETCH(QString, code);
    PageWorld world;
    const Languages languages(&world.preferences);
    world.preferences.useLanguage(code);
    HeadUnit unit(world.context, {1024, 600}, Theme::Day);
    WidgetTest::show(unit);
    const Texts texts = textsOf(fileOf(code));
    QSet<QString> english;
    QSet<QString> translated;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        english.insert(text.key().section(QStringLiteral(": "), 1));
        translated.insert(text->translation);
    }
    QStringList shown;
    for (const QLabel *label : unit.findChildren<QLabel *>())
        shown += label->text();
    for (const SpIconButton *key : unit.findChildren<SpIconButton *>())
        shown += key->displayText();
    for (const SpHomeIcon *tile : unit.findChildren<SpHomeIcon *>())
        shown += tile->iconText();
    int count = 0;
    for (const QString &text : qAsConst(shown)) {
        QVERIFY2(!english.contains(text) || translated.contains(text), qPrintable(text));
        count += translated.contains(text) ? 1 : 0;
    }
    QVERIFY(count > 40);
}

void TranslationsTest::changedScreenIsLikeANewOne_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("page");
    for (const QString &code : Languages::codes()) {
        for (const QString page : {"home", "radio", "media", "phone", "sound", "settings"})
            QTest::addRow("%s in %s", qPrintable(page), qPrintable(code)) << code << page;
    }
}

void TranslationsTest::changedScreenIsLikeANewOne()
{
    QFETCH(QString, code);
    QFETCH(QString, page);
    PageWorld world;
    const Languages languages(&world.preferences);
    world.preferences.useLanguage(code == QLatin1String("ar") ? QStringLiteral("de")
                                                              : QStringLiteral("ar"));
    HeadUnit changed(world.context, {1024, 600}, Theme::Day);
    changed.openPage(page);
    WidgetTest::show(changed);
    showEachView(changed, page);
    world.preferences.useLanguage(code);
    virtualtime::advance(0);
    HeadUnit fresh(world.context, {1024, 600}, Theme::Day);
    fresh.openPage(page);
    WidgetTest::show(fresh);
    QStackedWidget *views = viewsOf(changed, page);
    for (int view = 0; view < (views ? views->count() : 1); ++view) {
        if (views) {
            views->setCurrentIndex(view);
            viewsOf(fresh, page)->setCurrentIndex(view);
        }
        virtualtime::advance(0);
        COMPARE_PICTURES(steadyPicture(changed), steadyPicture(fresh));
    }
}

void TranslationsTest::numbersAndTimesAreOfTheLanguage()
{
    PageWorld world;
    const Languages languages(&world.preferences);
    world.preferences.setOn(Preferences::Option::Clock24, false);
    HeadUnit unit(world.context, {1024, 600}, Theme::Day);
    const auto clock = [&unit] {
        virtualtime::advance(0);
        return unit.findChild<QLabel *>(QStringLiteral("clock"))->text();
    };
    world.preferences.useLanguage(QStringLiteral("ar"));
    QVERIFY(clock().contains(QRegularExpression(QStringLiteral("[0-9]:[0-9][0-9] [صم]"))));
    world.preferences.useLanguage(QStringLiteral("de"));
    QCOMPARE(QLocale().toString(1.5), QStringLiteral("1,5"));
    QVERIFY(!clock().contains(QRegularExpression(QStringLiteral("[صم]"))));
}

WIDGET_TEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
