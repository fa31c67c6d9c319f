// SPDX-License-Identifier: Apache-2.0
// Hostile files through every way into the library: what is shown is what Qt reads, for no more
// memory than Qt takes, and nothing breaks.

#include <malloc.h> // before what replaces its functions

#include "allocations.h"
#include "files.h"
#include "hostilefiles.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <MGifPlay>
#include <MultipleStateButton>
#include <panelkitclasses.h>
#include <PlayButton>
#include <SpHomeIcon>
#include <SpHorStrButton>
#include <SpIconButton>
#include <SpMultipleButton>

#include <QDir>
#include <QMetaProperty>
#include <QMovie>
#include <QSet>
#include <QTemporaryDir>

#include <memory>

// Of a file that ends early Qt's decoders leave the rest as the memory was, which has to be the
// same each time to be compared.
#ifdef __SANITIZE_ADDRESS__
extern "C" __attribute__((visibility("default"))) const char *__asan_default_options()
{
    return "max_malloc_fill_size=100000000";
}
#endif

namespace
{

// What a widget takes beside its picture.
constexpr qint64 kWidgetBytes = 512 * 1024;

// A way by which a file's picture comes into a widget, which gives it away again.
struct Door {
    const char *name;
    QPixmap (*read)(const QString &path);
};

// The picture is asked for with an event.
template <typename Widget> QPixmap readPressedLook(const QString &path)
{
    Widget widget;
    widget.setPressImgPath(path);
    virtualtime::advance(1);
    return widget.pressImage();
}

QPixmap readGrayLook(const QString &path)
{
    SpHomeIcon icon;
    icon.setPressImgPath(path);
    icon.setGrayImgPath(path);
    virtualtime::advance(1);
    return icon.grayImage();
}

QPixmap readByButtonWithString(const QString &path)
{
    return SpHorStrButton(SpHorStrButton::StrLeft, QString(), QString(), path, QString(), QString())
        .normalPixmap();
}

QPixmap readByButtonWithStates(const QString &path)
{
    SpMultipleButton button;
    const QList<QString> paths{path};
    button.setPixmapList(paths, paths);
    return button.normalImage0();
}

constexpr Door kDoors[] = {
    {"SpIconButton", readPressedLook<SpIconButton>},
    {"SpHomeIcon, pressed", readPressedLook<SpHomeIcon>},
    {"SpHomeIcon, not ready", readGrayLook},
    {"SpHorStrButton", readByButtonWithString},
    {"SpMultipleButton", readByButtonWithStates},
};

std::unique_ptr<QWidget> playButton(const QString &path)
{
    return std::make_unique<PlayButton>(0, 0, 1, path, path);
}

std::unique_ptr<QWidget> stateButton(const QString &path)
{
    return std::make_unique<MultipleStateButton>(0, 0, 1, QStringList{path}, QStringList{path},
                                                 path);
}

// What tells two pictures apart for a widget that paints them.
QByteArray kindOf(const QPixmap &pixmap)
{
    const auto extent = [](int length) { return length < 2 ? length : length < 1000 ? 2 : 1000; };
    return QByteArray::number(extent(pixmap.width())) + 'x'
        + QByteArray::number(extent(pixmap.height())) + (pixmap.hasAlphaChannel() ? "a" : "");
}

void showInEachProperty(QWidget &widget, const QPixmap &pixmap)
{
    const QMetaObject *const type = widget.metaObject();
    for (int i = 0; i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        if (property.userType() != QMetaType::QPixmap)
            continue;
        const QVariant before = property.read(&widget);
        QVERIFY2(property.write(&widget, pixmap), property.name());
        painted(widget);
        property.write(&widget, before);
    }
}

} // namespace

class tst_Files : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QStringList m_paths;

    void addRows() const
    {
        QTest::addColumn<QString>("path");
        for (const QString &path : m_paths)
            QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
    }

private slots:
    void initTestCase()
    {
        mallopt(M_PERTURB, 1); // as the address sanitizer is told above
        const QVector<HostileFile> files = hostileFiles();
        for (const HostileFile &file : files) {
            m_paths += writtenFile(m_dir.filePath(QString::fromLatin1(file.name)), file.bytes);
        }
        QVERIFY(m_paths.size() > 500);
        QCOMPARE(QDir(m_dir.path()).entryList(QDir::Files).size(), m_paths.size());
        takeMessages(); // of the decoders, here and below
    }

    void thePictureIsThatOfQPixmap_data() { addRows(); }

    void thePictureIsThatOfQPixmap()
    {
        QFETCH(QString, path);
        QPixmap expected;
        const qint64 bytes = allocations::during([&] { expected = QPixmap(path); });
        const QImage image = expected.toImage();
        for (const Door &door : kDoors) {
            QPixmap actual;
            const qint64 ours = allocations::during([&] { actual = door.read(path); });
            QVERIFY2(actual.isNull() == expected.isNull(), door.name);
            QVERIFY2(actual.toImage() == image, door.name);
            QVERIFY2(ours <= 2 * bytes + kWidgetBytes, door.name);
        }
        takeMessages();
    }

    // These give no picture away: they look as they do with the same picture in a file that is
    // whole.
    void theLookIsThatOfAWholeFile_data() { addRows(); }

    void theLookIsThatOfAWholeFile()
    {
        QFETCH(QString, path);
        const QPixmap picture(path);
        const QString whole = m_dir.filePath(QStringLiteral("saved"));
        if (!picture.save(whole, picture.hasAlphaChannel() ? "png" : "bmp"))
            QFile::remove(whole);
        for (const auto &make : {playButton, stateButton})
            COMPARE_PICTURES(painted(*make(path)), painted(*make(whole)));
        takeMessages();
    }

    void eachPixmapPropertyShowsThem()
    {
        QSet<QByteArray> kinds;
        for (const QString &path : qAsConst(m_paths)) {
            const QPixmap pixmap(path);
            takeMessages();
            if (kinds.contains(kindOf(pixmap)))
                continue;
            kinds.insert(kindOf(pixmap));
            QWidget *const parent = nullptr;
#define SHOW(Class, create, ...)                                  \
    {                                                             \
        const std::unique_ptr<QWidget> widget(create);            \
        showInEachProperty(*widget, pixmap);                      \
        if (QTest::currentTestFailed())                           \
            QFAIL(qPrintable(QStringLiteral(#Class " ") + path)); \
    }
            PANELKIT_FOR_EACH_WIDGET(SHOW)
#undef SHOW
        }
        QVERIFY(kinds.size() > 9);
    }

    void theMovieIsThatOfQMovie_data() { addRows(); }

    void theMovieIsThatOfQMovie()
    {
        QFETCH(QString, path);
        MGifPlay player;
        SpHomeIcon icon;
        for (QWidget *widget : {static_cast<QWidget *>(&player), static_cast<QWidget *>(&icon)}) {
            widget->resize(80, 60);
            show(*widget);
        }
        QMovie expected(path);
        expected.start();
        player.setGifImage(path);
        icon.setGifImage(path);
        for (int i = 0; i < 5; ++i) {
            COMPARE_PICTURES(painted(player), reference(player, [&](QPainter &painter) {
                                 painter.drawPixmap(player.rect(), expected.currentPixmap());
                             }));
            QCOMPARE(player.getGifState(), expected.state() == QMovie::Running ? 0 : 1);
            painted(icon);
            virtualtime::advance(130);
        }
        takeMessages();
    }

    // However long it plays: a frame is decoded once for each time that it is shown.
    void aMovieTakesNoMoreThanQMovie_data() { addRows(); }

    void aMovieTakesNoMoreThanQMovie()
    {
        QFETCH(QString, path);
        constexpr int kLong = 1500; // ms
        const qint64 bytes = allocations::during([&] {
            QMovie movie(path);
            movie.start();
            virtualtime::advance(kLong);
        });
        const qint64 ours = allocations::during([&] {
            MGifPlay player;
            player.setGifImage(path);
            virtualtime::advance(kLong);
        });
        QVERIFY2(ours <= 2 * bytes + kWidgetBytes,
                 qPrintable(QStringLiteral("%1 and %2").arg(ours).arg(bytes)));
        takeMessages();
    }
};

WIDGET_TEST_MAIN(tst_Files)
#include "tst_files.moc"
