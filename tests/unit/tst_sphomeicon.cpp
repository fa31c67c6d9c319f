// SPDX-License-Identifier: Apache-2.0
#include <SpHomeIcon>

#include "parent.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QBitmap>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QMovie>
#include <QPainter>
#include <QTemporaryDir>

#include <climits>
#include <memory>

// The accessors that are part of the interface exactly as they are written.
template <typename T> using Setter = void (SpHomeIcon::*)(T);
namespace
{

constexpr QSize kSize(40, 30);

// Each picture shows through, and has a shape of its own, so that what lies over what can be seen.
QPixmap picture(const QColor &color, int inset, const QSize &size = kSize)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 2));
    painter.setBrush(color);
    painter.drawEllipse(pixmap.rect().adjusted(inset, 1, -1, -inset));
    return pixmap;
}

QPixmap normalPicture() { return picture(QColor(0, 200, 60), 1); }

QPixmap pressPicture() { return picture(QColor(230, 200, 0, 150), 4); }

QPixmap runningPicture() { return picture(QColor(0, 80, 250, 150), 7); }

QPixmap grayPicture() { return picture(QColor(120, 120, 120, 200), 10); }

QPixmap switchPicture() { return picture(QColor(250, 0, 120, 150), 13); }

// The documented darkening, step by step.
QPixmap darkened(const QPixmap &source, int alpha, const QSize &area)
{
    QImage image = source.toImage();
    const QPixmap keep = source.copy();
    const QRect r(QPoint(0, 0), area);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(r, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawPixmap(r, keep);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(r, QColor(0, 0, 0, alpha));
    painter.end();
    return QPixmap::fromImage(image);
}

bool isSame(const QPixmap &a, const QPixmap &b) { return a.toImage() == b.toImage(); }

// --- Animations ---------------------------------------------------------------------------------

void appendShort(QByteArray &bytes, int value)
{
    bytes.append(char(value & 0xff)).append(char(value >> 8));
}

// Pixels of one colour in codes of three bits. The table is cleared after every other one, so that
// the codes never grow.
QByteArray gifPixels(int count, int color)
{
    constexpr unsigned kClear = 4;
    constexpr unsigned kEnd = 5;
    QVector<unsigned> codes;
    for (int i = 0; i < count; ++i) {
        if (i % 2 == 0)
            codes += kClear;
        codes += unsigned(color);
    }
    codes += kEnd;
    QByteArray packed;
    unsigned bits = 0;
    int filled = 0;
    for (const unsigned code : qAsConst(codes)) {
        bits |= code << filled;
        for (filled += 3; filled >= 8; filled -= 8, bits >>= 8)
            packed.append(char(bits & 0xff));
    }
    packed.append(char(bits & 0xff));
    QByteArray blocks;
    for (int at = 0; at < packed.size(); at += 255) {
        const QByteArray block = packed.mid(at, 255);
        blocks.append(char(block.size())).append(block);
    }
    return blocks.append('\0');
}

constexpr int kFrameTime = 200; // ms

// What the frames of a test animation look like, one after the other.
const QColor kFrameColors[] = {Qt::red, Qt::green, Qt::blue, Qt::yellow};

// An animation of so many frames in one colour each, once or for ever.
QByteArray gif(int frames, const QSize &size = kSize, bool isLooping = true)
{
    QByteArray bytes("GIF89a");
    appendShort(bytes, size.width());
    appendShort(bytes, size.height());
    bytes.append("\x91\x00\x00", 3);
    for (const QColor &color : kFrameColors)
        bytes.append(char(color.red())).append(char(color.green())).append(char(color.blue()));
    if (isLooping)
        bytes.append("\x21\xFF\x0BNETSCAPE2.0\x03\x01\x00\x00\x00", 19);
    for (int i = 0; i < frames; ++i) {
        bytes.append("\x21\xF9\x04\x00", 4);
        appendShort(bytes, kFrameTime / 10);
        bytes.append("\x00\x00\x2C\x00\x00\x00\x00", 7);
        appendShort(bytes, size.width());
        appendShort(bytes, size.height());
        bytes.append("\x00\x02", 2).append(gifPixels(size.width() * size.height(), i % 4));
    }
    return bytes.append('\x3B');
}

// The colour in the middle of the picture.
QColor shownColor(SpHomeIcon &tile)
{
    return painted(tile).pixelColor(kSize.width() / 2, kSize.height() / 2);
}

int memoryInUse()
{
    QFile status(QStringLiteral("/proc/self/statm"));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("cannot tell how much memory is in use");
    return status.readAll().split(' ').at(1).toInt() / 256; // MiB, of pages of 4 KiB
}

// The address sanitizer keeps what has been freed, and looks for leaks itself.
int heldMemory()
{
#ifdef __SANITIZE_ADDRESS__
    return 0;
#else
    return memoryInUse();
#endif
}

// --- Subjects -----------------------------------------------------------------------------------

// A tile of 40 x 30 with all pictures, without caption.
std::unique_ptr<SpHomeIcon> makeTile(QWidget *parent = nullptr)
{
    auto tile = std::make_unique<SpHomeIcon>(parent);
    tile->setTextInPic(true);
    tile->setIconText({});
    tile->setNormalImage(normalPicture());
    tile->setRunningImage(runningPicture());
    tile->setGrayImage(grayPicture());
    tile->setSwitchImage(switchPicture());
    tile->setPressImage(pressPicture());
    return tile;
}

// Handlers are called with what a subclass may hand them.
class Handlers : public SpHomeIcon
{
public:
    using SpHomeIcon::keyPressEvent;
    using SpHomeIcon::mouseMoveEvent;
    using SpHomeIcon::mousePressEvent;
    using SpHomeIcon::mouseReleaseEvent;
};

// --- The table of looks -------------------------------------------------------------------------

// A capital letter stands for what is the case, a small one for what is not:
//   M  an animation         N  a normal picture      U  a running picture    G  a gray picture
//   W  a switch picture     A  imageAlpha >= 255     P  pressed              R  ready
//   X  running              S  the current source    H  hideText
using Case = QString;

struct Rule {
    const char *condition; // all of its letters hold
    const char *picture; // n, p, u, g, w, d: normal darkened; empty: none
};

QString pictureOf(std::initializer_list<Rule> rules, const Case &state)
{
    for (const Rule &rule : rules) {
        const QString condition = QString::fromLatin1(rule.condition);
        if (std::all_of(condition.begin(), condition.end(),
                        [&](QChar letter) { return state.contains(letter); }))
            return QString::fromLatin1(rule.picture);
    }
    return {};
}

// Which pictures are painted, from the bottom up.
QString documentedLayers(const Case &state)
{
    const QString frame = pictureOf({{"M", "f"}}, state);
    const QString base = pictureOf({{"mn", ""},
                                    {"UaP", ""},
                                    {"Ur", "g"},
                                    {"UmR", "n"},
                                    {"U", ""},
                                    {"aP", "p"},
                                    {"am", "n"},
                                    {"a", ""},
                                    {"rG", "g"},
                                    {"mH", "d"},
                                    {"P", "p"},
                                    {"S", "p"},
                                    {"MX", "p"},
                                    {"m", "n"}},
                                   state);
    const QString marked =
        pictureOf({{"mn", ""}, {"u", ""}, {"SW", "w"}, {"S", "p"}, {"X", "u"}}, state);
    const QString pressed = pictureOf({{"mn", ""}, {"u", ""}, {"P", "p"}}, state);
    return frame + base + marked + pressed;
}

QPixmap frameOf(const QColor &color)
{
    QPixmap frame(kSize);
    frame.fill(color);
    return frame;
}

QPixmap layerPicture(QChar letter, const SpHomeIcon &tile)
{
    switch (letter.toLatin1()) {
    case 'f':
        return frameOf(kFrameColors[0]);
    case 'd':
        return darkened(normalPicture(), 100, kSize);
    case 'n':
        return tile.normalImage();
    case 'p':
        return tile.pressImage();
    case 'u':
        return tile.runningImage();
    case 'g':
        return tile.grayImage();
    default:
        return tile.switchImage();
    }
}

QImage documented(const SpHomeIcon &tile, const QString &layers)
{
    return reference(tile, [&](QPainter &p) {
        for (const QChar letter : layers) {
            const QPixmap layer = layerPicture(letter, tile);
            if (!layer.isNull())
                p.drawPixmap(QRect(QPoint(0, 0), kSize), layer);
        }
    });
}

// --- Captions -----------------------------------------------------------------------------------

QFont captionFont(int px)
{
    QFont font;
    if (px > 0)
        font.setPixelSize(px);
    return font;
}

// Numbers count as far as a widget can reach.
int bounded(int number) { return qBound(-QWIDGETSIZE_MAX, number, QWIDGETSIZE_MAX); }

QRect documentedCaptionRect(const SpHomeIcon &tile)
{
    const QRect r = tile.rect();
    int left = r.left();
    int right = r.right();
    if (tile.textMarginH() >= 1)
        left += bounded(tile.textMarginH());
    else if (tile.textMarginH() <= -1)
        right += bounded(tile.textMarginH());
    const int text = bounded(tile.fontSize()) + bounded(tile.textMargin());
    return {left, r.bottom() - text - 15, right - left + 1, text + 10};
}

void drawCaption(QImage &image, const SpHomeIcon &tile, const QColor &color)
{
    QPainter p(&image);
    p.setFont(captionFont(tile.fontSize()));
    p.setPen(color);
    p.drawText(documentedCaptionRect(tile), int(tile.textAlignment()), tile.iconText());
}

QImage documentedCaption(const SpHomeIcon &tile, const QColor &color)
{
    QImage image = reference(tile, [](QPainter &) {});
    drawCaption(image, tile, color);
    return image;
}

using Action = std::function<void(SpHomeIcon &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_SpHomeIcon : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString write(const QString &name, const QByteArray &bytes) const
    {
        const QString path = m_dir.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    QString animation(int frames) const
    {
        return write(QStringLiteral("%1.gif").arg(frames), gif(frames));
    }

private slots:
    // This is the first function: no other one is to have made an animation before it.
    void theFirstAnimationMakesTheInterfaceADynamicOneForGood()
    {
        QCOMPARE(SpHomeIcon::isDynamicUI(), false);
        {
            SpHomeIcon tile;
            tile.setGifImage(QString());
            tile.setGifImage(QStringLiteral("x"));
            QCOMPARE(SpHomeIcon::isDynamicUI(), false);
            tile.setGifImage(QStringLiteral("/absent.gif"));
            QCOMPARE(SpHomeIcon::isDynamicUI(), true);
            tile.setGifImage(QString());
        }
        QCOMPARE(SpHomeIcon::isDynamicUI(), true);
    }

    void defaults()
    {
        SpHomeIcon tile;
        for (const QPixmap &image : {tile.normalImage(), tile.pressImage(), tile.runningImage(),
                                     tile.grayImage(), tile.switchImage()})
            QVERIFY(image.isNull());
        for (const QColor &color : {tile.fontColor(), tile.pressTextColor(), tile.grayTextColor(),
                                    tile.runningTextColor()})
            QCOMPARE(color, QColor(Qt::white));
        QCOMPARE(tile.imageAlpha(), 154);
        QCOMPARE(tile.iconText(), QStringLiteral("Text"));
        QCOMPARE(tile.iconName(), QStringLiteral("defaultName"));
        QCOMPARE(tile.iconSize(), QSize(122, 122));
        QCOMPARE(tile.itemIndex(), 0);
        QCOMPARE(tile.hideText(), false);
        QCOMPARE(tile.fontSize(), 22);
        QCOMPARE(tile.textMargin(), 10);
        QCOMPARE(tile.textMarginH(), 0);
        QCOMPARE(tile.textInPic(), false);
        QCOMPARE(int(tile.textAlignment()), 0x84);
        QCOMPARE(tile.imageMarginH(), 0);
        QCOMPARE(tile.gifImage(), QString());
        QCOMPARE(tile.gifSpeed(), 100);
        QCOMPARE(tile.pressImgPath(), QString());
        QCOMPARE(tile.grayImgPath(), QString());
        QCOMPARE(tile.getIsPressing(), false);
        QCOMPARE(tile.getIsReady(), true);
        QCOMPARE(tile.getIsRunning(), false);
        QCOMPARE(tile.getIsSwitchSrc(), false);
        QCOMPARE(tile.minimumSize(), QSize(0, 0));
    }

    void aNewTileIsRaised()
    {
        struct : QObject {
            int raises = 0;
            bool eventFilter(QObject *, QEvent *e) override
            {
                raises += e->type() == QEvent::ZOrderChange;
                return false;
            }
        } watcher;
        QCoreApplication::instance()->installEventFilter(&watcher);
        SpHomeIcon tile;
        QCOMPARE(watcher.raises, 1);
    }

    void propertiesKeepAnyValue_data()
    {
        QTest::addColumn<QVariant>("value");
        for (const char *name : {"imageAlpha", "itemIndex", "fontSize", "textMargin", "textMarginH",
                                 "imageMarginH", "gifSpeed"}) {
            for (int value : {INT_MIN, -1, 0, 7, INT_MAX})
                QTest::addRow("%s %d", name, value) << QVariant(value);
        }
        for (const char *name : {"iconText", "iconName", "pressImgPath", "grayImgPath", "gifImage"})
            QTest::addRow("%s x", name) << QVariant(QStringLiteral("x"));
        for (const char *name :
             {"fontColor", "pressTextColor", "grayTextColor", "runningTextColor"})
            QTest::addRow("%s red", name) << QVariant(QColor(Qt::red));
        for (const char *name : {"hideText", "textInPic"})
            QTest::addRow("%s true", name) << QVariant(true);
        QTest::addRow("iconSize -3 x 5") << QVariant(QSize(-3, 5));
        QTest::addRow("textAlignment left") << QVariant(int(Qt::AlignLeft));
    }

    void propertiesKeepAnyValue()
    {
        QFETCH(QVariant, value);
        const QByteArray name = QByteArray(QTest::currentDataTag()).split(' ').first();
        SpHomeIcon tile;
        QVERIFY(tile.setProperty(name.constData(), value));
        QVariant kept = tile.property(name.constData());
        if (value.type() == QVariant::Int)
            QCOMPARE(kept.toInt(), value.toInt());
        else
            QCOMPARE(kept, value);
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("normalImage", 1, [](auto &t) { t.setNormalImage(normalPicture()); });
        row("normalImage null", 0, [](auto &t) { t.setNormalImage({}); });
        row("pressImage", 0, [](auto &t) { t.setPressImage(pressPicture()); });
        row("runningImage", 0, [](auto &t) { t.setRunningImage(pressPicture()); });
        row("grayImage", 0, [](auto &t) { t.setGrayImage(pressPicture()); });
        row("switchImage", 0, [](auto &t) { t.setSwitchImage(pressPicture()); });
        row("imageAlpha", 0, [](auto &t) { t.setImageAlpha(30); });
        row("iconText", 1, [](auto &t) { t.setIconText(t.iconText()); });
        row("iconName", 0, [](auto &t) { t.setIconName(QStringLiteral("x")); });
        row("iconSize", 1, [](auto &t) { t.setIconSize(t.iconSize()); });
        row("fontColor", 1, [](auto &t) { t.setFontColor(Qt::white); });
        row("pressTextColor", 0, [](auto &t) { t.setPressTextColor(Qt::red); });
        row("grayTextColor", 0, [](auto &t) { t.setGrayTextColor(Qt::red); });
        row("runningTextColor", 0, [](auto &t) { t.setRunningTextColor(Qt::red); });
        row("itemIndex", 0, [](auto &t) { t.setItemIndex(3); });
        row("hideText", 1, [](auto &t) { t.setHideText(false); });
        row("fontSize", 1, [](auto &t) { t.setFontSize(t.fontSize()); });
        row("textMargin", 1, [](auto &t) { t.setTextMargin(t.textMargin()); });
        row("textMarginH", 0, [](auto &t) { t.setTextMarginH(5); });
        row("textInPic", 1, [](auto &t) { t.setTextInPic(t.textInPic()); });
        row("textAlignment", 0, [](auto &t) { t.setTextAlignment(Qt::AlignLeft); });
        row("imageMarginH", 1, [](auto &t) { t.setImageMarginH(t.imageMarginH()); });
        row("gifImage", 1, [](auto &t) { t.setGifImage(QStringLiteral("/absent")); });
        row("gifImage short", 0, [](auto &t) { t.setGifImage(QStringLiteral("x")); });
        row("gifSpeed", 0, [](auto &t) { t.setGifSpeed(50); });
        row("pressImgPath", 0, [](auto &t) { t.setPressImgPath(QStringLiteral("/absent")); });
        row("grayImgPath", 0, [](auto &t) {
            t.setPressImgPath(QStringLiteral("/absent"));
            t.setGrayImgPath(QStringLiteral("/absent"));
        });
        row("isReady", 1, [](auto &t) { t.setIsReady(true); });
        row("isRunning", 1, [](auto &t) { t.setIsRunning(false); });
        row("isSwitchSrc", 1, [](auto &t) { t.setIsSwitchSrc(false); });
        row("resizeHomeIcon", 1, [](auto &t) { t.resizeHomeIcon(); });
        row("setPressImageAlpha", 0, [](auto &t) {
            QPixmap target;
            t.setPressImageAlpha(9, pressPicture(), target);
        });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints(*makeTile()); }

    void withoutAPictureTheSettersOfTheSizeDoNotRepaint()
    {
        SpHomeIcon tile;
        tile.resize(50, 50);
        show(tile);
        QCOMPARE(paints(tile,
                        [&] {
                            tile.setFontSize(30);
                            tile.setTextMargin(3);
                            tile.setTextInPic(true);
                            tile.setImageMarginH(9);
                            tile.resizeHomeIcon();
                        }),
                 0);
        QCOMPARE(tile.size(), QSize(50, 50));
        QCOMPARE(tile.minimumSize(), QSize(0, 0));
        QCOMPARE(tile.iconSize(), QSize(122, 122));
    }

    void picturesAreStoredAsDeepCopies()
    {
        SpHomeIcon tile;
        tile.setImageAlpha(255);
        const QPixmap source = normalPicture();
        tile.setPressImage(source);
        tile.setNormalImage(source);
        tile.setRunningImage(source);
        tile.setGrayImage(source);
        tile.setSwitchImage(source);
        for (const QPixmap &image : {tile.normalImage(), tile.pressImage(), tile.runningImage(),
                                     tile.grayImage(), tile.switchImage()}) {
            QVERIFY(isSame(image, source));
            QVERIFY(image.cacheKey() != source.cacheKey());
        }
    }

    // --- Size -----------------------------------------------------------------------------------

    void theTileFitsItsPictureMarginsAndCaption_data()
    {
        const TableRows<QSize, Action> row("expected", "action");
        row("as it is", {120, 122}, [](auto &) {});
        row("caption in the picture", {120, 80}, [](auto &t) { t.setTextInPic(true); });
        row("and below again", {120, 122}, [](auto &t) {
            t.setTextInPic(true);
            t.setTextInPic(false);
        });
        row("font size", {120, 130}, [](auto &t) { t.setFontSize(30); });
        row("text margin", {120, 110}, [](auto &t) { t.setTextMargin(4); });
        row("image margin", {106, 122}, [](auto &t) { t.setImageMarginH(3); });
        row("negative margins", {90, 62}, [](auto &t) {
            t.setImageMarginH(-5);
            t.setTextMargin(-20);
        });
        row("margin across", {120, 122}, [](auto &t) { t.setTextMarginH(40); });
        row("another picture", {80, 72}, [](auto &t) {
            t.setNormalImage(picture(Qt::red, 1, {60, 30}));
        });
        row("no more width", {0, 122}, [](auto &t) { t.setImageMarginH(-51); });
    }

    void theTileFitsItsPictureMarginsAndCaption()
    {
        QFETCH(Action, action);
        QFETCH(QSize, expected);
        QWidget parent;
        SpHomeIcon tile(&parent);
        tile.move(13, 17);
        tile.setImageMarginH(10);
        tile.setNormalImage(picture(Qt::green, 1, {100, 80}));
        QCOMPARE(tile.iconSize(), QSize(100, 80));
        action(tile);
        QCOMPARE(tile.minimumSize(), expected);
        QCOMPARE(tile.geometry(), QRect(QPoint(13, 17), expected));
    }

    void sizesBeyondThoseOfWidgetsAreLimited()
    {
        QWidget parent;
        SpHomeIcon tile(&parent);
        tile.setNormalImage(normalPicture());
        tile.setImageMarginH(INT_MAX);
        tile.setTextMargin(INT_MIN);
        QCOMPARE(tile.size(), QSize(QWIDGETSIZE_MAX, 0));
        tile.setImageMarginH(INT_MIN);
        tile.setTextMargin(INT_MAX);
        tile.setFontSize(INT_MAX);
        QCOMPARE(tile.size(), QSize(0, QWIDGETSIZE_MAX));
    }

    void aLargerTileShrinksToItsPicture()
    {
        SpHomeIcon tile;
        tile.resize(500, 500);
        tile.setNormalImage(picture(Qt::green, 1, {100, 80}));
        QCOMPARE(tile.size(), QSize(100, 122));
    }

    void otherPicturesDoNotResize()
    {
        SpHomeIcon tile;
        tile.resize(50, 50);
        tile.setPressImage(picture(Qt::red, 1, {70, 70}));
        tile.setRunningImage(picture(Qt::red, 1, {70, 70}));
        tile.setGrayImage(picture(Qt::red, 1, {70, 70}));
        tile.setSwitchImage(picture(Qt::red, 1, {70, 70}));
        tile.resizeHomeIcon();
        QCOMPARE(tile.size(), QSize(50, 50));
        QCOMPARE(tile.minimumSize(), QSize(0, 0));
        QCOMPARE(tile.iconSize(), QSize(122, 122));
    }

    void aSizeGivenToTheIconLastsUntilTheNextResize()
    {
        const auto tile = makeTile();
        tile->setIconSize({10, 12});
        QCOMPARE(tile->size(), kSize);
        COMPARE_PICTURES(painted(*tile), reference(*tile, [](QPainter &p) {
                             p.drawPixmap(QRect(0, 0, 10, 12), normalPicture());
                         }));
        tile->resizeHomeIcon();
        QCOMPARE(tile->iconSize(), kSize);
    }

    // --- The pressed picture --------------------------------------------------------------------

    void aNormalPictureReplacesThePressedOneByADarkenedTwin()
    {
        SpHomeIcon tile;
        tile.setPressImage(pressPicture());
        tile.setNormalImage(normalPicture());
        COMPARE_PICTURES(tile.pressImage().toImage(),
                         darkened(normalPicture(), 154, kSize).toImage());
        tile.setPressImage(pressPicture()); // stays until something resizes the tile
        QVERIFY(isSame(tile.pressImage(), pressPicture()));
        tile.setFontSize(23);
        QVERIFY(isSame(tile.pressImage(), darkened(normalPicture(), 154, kSize)));
    }

    void aPressedPictureSurvivesFromAnAlphaOf255()
    {
        for (const int alpha : {255, 256, INT_MAX}) {
            SpHomeIcon tile;
            tile.setImageAlpha(alpha);
            tile.setPressImage(pressPicture());
            tile.setNormalImage(normalPicture());
            QVERIFY(isSame(tile.pressImage(), pressPicture()));
            tile.setImageAlpha(alpha);
            QVERIFY(isSame(tile.pressImage(), pressPicture()));
        }
        for (const int alpha : {254, 0, -1, INT_MIN}) {
            SpHomeIcon tile;
            tile.setImageAlpha(alpha);
            tile.setPressImage(pressPicture());
            tile.setNormalImage(normalPicture());
            QVERIFY(isSame(tile.pressImage(), darkened(normalPicture(), alpha, kSize)));
        }
    }

    void aMissingPressedPictureIsMadeWithAnyAlpha()
    {
        for (const int alpha : {255, 256, 154}) {
            SpHomeIcon tile;
            tile.setImageAlpha(alpha);
            tile.setNormalImage(normalPicture());
            QVERIFY(isSame(tile.pressImage(), darkened(normalPicture(), alpha, kSize)));
        }
    }

    void anAlphaMakesThePressedPictureAnew()
    {
        const auto tile = makeTile();
        QVERIFY(isSame(tile->pressImage(), pressPicture()));
        tile->setImageAlpha(254);
        QVERIFY(isSame(tile->pressImage(), darkened(normalPicture(), 254, kSize)));
        tile->setPressImage(pressPicture());
        tile->setImageAlpha(255);
        QVERIFY(isSame(tile->pressImage(), pressPicture()));
        tile->setPressImage({});
        tile->setImageAlpha(255);
        QVERIFY(isSame(tile->pressImage(), darkened(normalPicture(), 255, kSize)));
    }

    void anAlphaWithoutANormalPictureLeavesNoPressedOne()
    {
        SpHomeIcon tile;
        tile.setPressImage(pressPicture());
        tile.setImageAlpha(255);
        QVERIFY(!tile.pressImage().isNull());
        tile.setImageAlpha(100);
        QVERIFY(tile.pressImage().isNull());
    }

    void darkeningTakesTheSizeOfTheIcon()
    {
        SpHomeIcon tile;
        QPixmap target;
        for (const QSize &area : {QSize(40, 30), QSize(25, 60), QSize(9, 9), QSize(200, 100)}) {
            tile.setIconSize(area);
            tile.setPressImageAlpha(90, normalPicture(), target);
            COMPARE_PICTURES(target.toImage(), darkened(normalPicture(), 90, area).toImage());
        }
        tile.setPressImageAlpha(90, QPixmap(), target);
        QVERIFY(target.isNull());
        tile.setIconSize(kSize);
        target = pressPicture();
        tile.setPressImageAlpha(90, target, target); // source and target may be one
        QVERIFY(isSame(target, darkened(pressPicture(), 90, kSize)));
        QPixmap opaque = QPixmap::fromImage(QImage(kSize, QImage::Format_RGB32));
        opaque.fill(Qt::yellow);
        tile.setPressImageAlpha(90, opaque, target);
        QVERIFY(isSame(target, darkened(opaque, 90, kSize)));
    }

    // --- Looks ----------------------------------------------------------------------------------

    void everyCombinationOfStatesAndPicturesHasItsDocumentedLook_data()
    {
        QTest::addColumn<bool>("isAnimated");
        QTest::addColumn<bool>("isPressed");
        QTest::addColumn<int>("alpha");
        for (const bool isAnimated : {false, true}) {
            for (const bool isPressed : {false, true}) {
                for (const int alpha : {-1, 154, 254, 255, 256})
                    QTest::addRow("%s, %s, %d", isAnimated ? "animated" : "still",
                                  isPressed ? "pressed" : "at rest", alpha)
                        << isAnimated << isPressed << alpha;
            }
        }
    }

    void everyCombinationOfStatesAndPicturesHasItsDocumentedLook()
    {
        QFETCH(bool, isAnimated);
        QFETCH(bool, isPressed);
        QFETCH(int, alpha);
        const auto tile = makeTile();
        tile->setImageAlpha(alpha);
        if (isAnimated)
            tile->setGifImage(animation(1));
        if (isPressed)
            touch(tile.get()).press(5, 5);
        const auto letter = [](bool holds, char upper) {
            return QChar(QLatin1Char(holds ? upper : char(upper - 'A' + 'a')));
        };
        const Case fixed =
            Case(letter(isAnimated, 'M')) + letter(alpha >= 255, 'A') + letter(isPressed, 'P');
        int count = 0;
        for (int bits = 0; bits < 1 << 9; ++bits) {
            const auto has = [bits](int bit) { return (bits >> bit & 1) != 0; };
            tile->setNormalImage(has(0) ? normalPicture() : QPixmap());
            tile->setRunningImage(has(1) ? runningPicture() : QPixmap());
            tile->setGrayImage(has(2) ? grayPicture() : QPixmap());
            tile->setSwitchImage(has(3) ? switchPicture() : QPixmap());
            tile->setPressImage(has(4) ? pressPicture() : QPixmap());
            tile->setIsReady(has(5));
            tile->setIsRunning(has(6));
            tile->setIsSwitchSrc(has(7));
            tile->setHideText(has(8));
            const Case state = fixed + letter(has(0), 'N') + letter(has(1), 'U')
                + letter(has(2), 'G') + letter(has(3), 'W') + letter(has(5), 'R')
                + letter(has(6), 'X') + letter(has(7), 'S') + letter(has(8), 'H');
            const QString layers = documentedLayers(state);
            const bool isSame =
                isSamePicture({painted(*tile), documented(*tile, layers)}, __FILE__, __LINE__);
            QVERIFY2(isSame, qPrintable(state + QStringLiteral(": ") + layers));
            ++count;
        }
        QCOMPARE(count, 512);
    }

    void allPicturesAreScaledIntoTheImageRectangle()
    {
        const auto tile = makeTile();
        const QPixmap large = picture(QColor(0, 80, 250, 150), 7, {93, 50});
        tile->setRunningImage(large);
        tile->setGrayImage(large);
        tile->setSwitchImage(large);
        tile->setImageMarginH(6);
        tile->setPressImage(large);
        tile->setImageAlpha(255);
        const QRect area(6, 0, 40, 30);
        QCOMPARE(tile->size(), QSize(52, 30));
        const auto compare = [&](const QVector<QPixmap> &layers) {
            const QImage expected = reference(*tile, [&](QPainter &p) {
                for (const QPixmap &layer : layers)
                    p.drawPixmap(area, layer);
            });
            COMPARE_PICTURES(painted(*tile), expected);
            COMPARE_PICTURES(painted(*tile), expected); // from what is kept
        };
        tile->setIsRunning(true);
        compare({normalPicture(), large});
        tile->setIsReady(false);
        compare({large, large});
        tile->setIsReady(true);
        tile->setIsSwitchSrc(true);
        touch(tile.get()).press(5, 5);
        compare({normalPicture(), large, large});
    }

    void theDimmedPictureIsScaledToo()
    {
        const auto tile = makeTile();
        tile->setRunningImage({});
        tile->setImageAlpha(255);
        tile->setHideText(true);
        for (const QSize &area : {QSize(20, 10), QSize(70, 55)}) {
            tile->setIconSize(area);
            const QImage expected = reference(*tile, [&](QPainter &p) {
                p.drawPixmap(QRect(QPoint(), area), darkened(normalPicture(), 100, area));
            });
            COMPARE_PICTURES(painted(*tile), expected);
            COMPARE_PICTURES(painted(*tile), expected);
        }
    }

    // --- Caption --------------------------------------------------------------------------------

    void theCaptionStandsInItsRectangle_data()
    {
        const TableRows<Action> row("action");
        row("centred", [](auto &) {});
        row("to the left", [](auto &t) { t.setTextAlignment(Qt::AlignLeft | Qt::AlignTop); });
        row("to the right", [](auto &t) { t.setTextAlignment(Qt::AlignRight | Qt::AlignBottom); });
        for (const int margin : {1, 31, -1, -32, 150, -150, INT_MAX / 256}) {
            for (const auto alignment : {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter})
                row(qPrintable(QStringLiteral("margin %1, %2").arg(margin).arg(alignment)),
                    [=](auto &t) {
                        t.setTextMarginH(margin);
                        t.setTextAlignment(alignment | Qt::AlignVCenter);
                    });
        }
        row("margin", [](auto &t) { t.setTextMargin(33); });
        row("negative margin", [](auto &t) { t.setTextMargin(-10); });
        row("small", [](auto &t) { t.setFontSize(9); });
        row("large, cut off", [](auto &t) { t.setFontSize(70); });
        row("in the picture", [](auto &t) { t.setTextInPic(true); });
        row("long, cut off", [](auto &t) { t.setIconText(QString(60, QLatin1Char('W'))); });
        row("two lines", [](auto &t) { t.setIconText(QStringLiteral("two\nlines")); });
        row("hideText", [](auto &t) { t.setHideText(true); });
    }

    void theCaptionStandsInItsRectangle()
    {
        QFETCH(Action, action);
        SpHomeIcon tile;
        QPixmap clear(110, 70);
        clear.fill(Qt::transparent);
        tile.setNormalImage(clear);
        tile.setIconText(QStringLiteral("Navigation"));
        action(tile);
        COMPARE_PICTURES(painted(tile), documentedCaption(tile, Qt::white));
    }

    void theCaptionEndsSixPixelsAboveTheBottom()
    {
        SpHomeIcon tile;
        QPixmap clear(110, 70);
        clear.fill(Qt::transparent);
        tile.setNormalImage(clear);
        tile.setTextAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        tile.setIconText(QString(1, QChar(0x2588))); // a full block, down to the descent
        tile.setFontSize(20);
        const QImage image = painted(tile);
        const QRect box(0, tile.height() - 1 - 20 - 10 - 15, 110, 40);
        QCOMPARE(box.bottom(), tile.height() - 1 - 6);
        QFontMetrics metrics(captionFont(20));
        int lowest = 0;
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(55, y).alpha() > 0)
                lowest = y;
        }
        QVERIFY(lowest <= box.bottom());
        QVERIFY(lowest >= box.bottom() - 2);
    }

    void theCaptionHasAColourForEachState()
    {
        SpHomeIcon tile;
        QPixmap clear(110, 70);
        clear.fill(Qt::transparent);
        tile.setNormalImage(clear);
        tile.setPressImage(clear);
        tile.setFontColor(Qt::green);
        tile.setPressTextColor(Qt::red);
        tile.setGrayTextColor(Qt::gray);
        tile.setRunningTextColor(Qt::cyan);
        for (int bits = 0; bits < 16; ++bits) {
            const bool isReady = (bits & 1) != 0;
            const bool isPressed = (bits & 2) != 0;
            const bool isRunning = (bits & 4) != 0;
            tile.setIsReady(isReady);
            tile.setIsRunning(isRunning);
            tile.setIsSwitchSrc((bits & 8) != 0);
            if (isPressed)
                touch(&tile).press(5, 5);
            else
                touch(&tile).release();
            const QColor color = !isReady ? Qt::gray
                : isPressed               ? Qt::red
                : isRunning               ? Qt::cyan
                                          : Qt::green;
            COMPARE_PICTURES(painted(tile), documentedCaption(tile, color));
        }
    }

    void theCaptionTakesNothingFromTheFontOfTheWidget()
    {
        SpHomeIcon tile;
        tile.resize(150, 80);
        QFont own(QStringLiteral("DejaVu Serif"));
        own.setBold(true);
        own.setItalic(true);
        own.setPixelSize(40);
        tile.setFont(own);
        COMPARE_PICTURES(painted(tile), documentedCaption(tile, Qt::white));
    }

    void theCaptionFollowsTheFontOfTheApplication()
    {
        SpHomeIcon tile;
        tile.resize(150, 80);
        painted(tile);
        const QFont before = QApplication::font();
        QFont bold = before;
        bold.setBold(true);
        QApplication::setFont(bold);
        const QImage after = painted(tile);
        const QImage expected = documentedCaption(tile, Qt::white);
        QApplication::setFont(before);
        COMPARE_PICTURES(after, expected);
        COMPARE_PICTURES(painted(tile), documentedCaption(tile, Qt::white));
    }

    void anEmptyCaptionIsNotDrawnAndALaterOneIs()
    {
        SpHomeIcon tile;
        tile.resize(150, 80);
        tile.setIconText({});
        COMPARE_PICTURES(painted(tile), reference(tile, [](QPainter &) {}));
        tile.setIconText(QStringLiteral("Radio"));
        COMPARE_PICTURES(painted(tile), documentedCaption(tile, Qt::white));
    }

    void aFontSizeBelowOneIsTheSizeOfTheApplication()
    {
        SpHomeIcon tile;
        tile.resize(150, 80);
        for (const int px : {0, -4}) {
            tile.setFontSize(px);
            QImage expected = reference(tile, [](QPainter &) {});
            QPainter p(&expected);
            p.setFont(QFont());
            p.setPen(Qt::white);
            p.drawText(documentedCaptionRect(tile), Qt::AlignCenter, tile.iconText());
            p.end();
            COMPARE_PICTURES(painted(tile), expected);
        }
    }

    // --- Pictures from files --------------------------------------------------------------------

    void thePressedPictureIsLoadedInTheEventLoop()
    {
        const QString path = m_dir.filePath(QStringLiteral("press.png"));
        QVERIFY(pressPicture().save(path));
        const auto tile = makeTile();
        const QPixmap before = tile->pressImage();
        SignalLog log(tile.get());
        tile->setPressImgPath(path);
        QCOMPARE(tile->pressImgPath(), path);
        QCOMPARE(tile->pressImage().cacheKey(), before.cacheKey());
        QCoreApplication::processEvents();
        QVERIFY(isSame(tile->pressImage(), pressPicture()));
        QVERIFY(tile->pressImage().cacheKey() != before.cacheKey());
        QCOMPARE(log.take(), QStringList{QStringLiteral("pressicon")});
    }

    void theGrayPictureIsLoadedOnlyAfterAPathOfThePressedOne()
    {
        const QString path = m_dir.filePath(QStringLiteral("gray.png"));
        QVERIFY(grayPicture().save(path));
        SpHomeIcon tile;
        SignalLog log(&tile);
        for (const auto &pressPath : {QString(), QStringLiteral("x")}) {
            tile.setPressImgPath(pressPath);
            tile.setGrayImgPath(path);
            QCoreApplication::processEvents();
            QCOMPARE(tile.grayImgPath(), path);
            QVERIFY(tile.grayImage().isNull());
        }
        QCOMPARE(log.take(), QStringList());
        tile.setPressImgPath(QStringLiteral("ab"));
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), QStringList{QStringLiteral("pressicon")});
        tile.setGrayImgPath(path);
        QVERIFY(tile.grayImage().isNull());
        QCoreApplication::processEvents();
        QVERIFY(isSame(tile.grayImage(), grayPicture()));
        QCOMPARE(log.take(), QStringList{QStringLiteral("grayicon")});
        tile.setGrayImgPath(QStringLiteral("x")); // any gray path is asked for
        QCoreApplication::processEvents();
        QVERIFY(tile.grayImage().isNull());
        QCOMPARE(log.take(), QStringList{QStringLiteral("grayicon")});
    }

    void aFileThatCannotBeReadLeavesNoPicture()
    {
        const auto tile = makeTile();
        tile->setPressImgPath(QStringLiteral("/absent.png"));
        tile->setGrayImgPath(write(QStringLiteral("text.png"), "no picture"));
        QCoreApplication::processEvents();
        QVERIFY(tile->pressImage().isNull());
        QVERIFY(tile->grayImage().isNull());
    }

    void onlyTheRequestsOfTheMetaKeyAreHeard()
    {
        const QString path = m_dir.filePath(QStringLiteral("key.png"));
        QVERIFY(switchPicture().save(path));
        Handlers tile;
        tile.setPressImgPath(path);
        tile.setGrayImgPath(path);
        QCoreApplication::removePostedEvents(&tile);
        const QVector<QPair<int, QString>> others{{Qt::Key_A, QStringLiteral("pressicon")},
                                                  {Qt::Key_Meta, QStringLiteral("PressIcon")},
                                                  {Qt::Key_Meta, QStringLiteral("GrayIcon")},
                                                  {Qt::Key_Meta, QStringLiteral("beep")},
                                                  {Qt::Key_A, QStringLiteral("grayicon")}};
        for (const auto &other : others) {
            QKeyEvent event(QEvent::KeyPress, other.first, Qt::NoModifier, other.second);
            tile.keyPressEvent(&event);
            QVERIFY(event.isAccepted()); // it ends here
            QVERIFY(tile.pressImage().isNull() && tile.grayImage().isNull());
        }
        QKeyEvent gray(QEvent::KeyPress, Qt::Key_Meta, Qt::NoModifier, QStringLiteral("grayicon"));
        tile.keyPressEvent(&gray);
        QVERIFY(tile.pressImage().isNull() && isSame(tile.grayImage(), switchPicture()));
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Meta, Qt::NoModifier,
                        QStringLiteral("pressicon"));
        tile.keyPressEvent(&press);
        QVERIFY(isSame(tile.pressImage(), switchPicture()));
    }

    // --- Animation ------------------------------------------------------------------------------

    void aTileWithOnlyAnAnimationKeepsItsSize()
    {
        SpHomeIcon tile;
        tile.resize(77, 66);
        tile.setGifImage(animation(2));
        QCOMPARE(tile.size(), QSize(77, 66));
        QCOMPARE(tile.minimumSize(), QSize(0, 0));
        QCOMPARE(tile.iconSize(), QSize(122, 122));
        show(tile);
        QCOMPARE(paints(tile, [&] { tile.setGifImage(QStringLiteral("/absent.gif")); }), 1);
    }

    void anAnimatedTileWithoutANormalPictureFitsThePressedOne()
    {
        SpHomeIcon tile;
        tile.setPressImage(picture(Qt::red, 1, {50, 20}));
        tile.setGifImage(animation(2));
        QCOMPARE(tile.iconSize(), QSize(50, 20));
        QCOMPARE(tile.minimumSize(), QSize(50, 62));
        QCOMPARE(tile.size(), QSize(50, 62));
        QVERIFY(isSame(tile.pressImage(), picture(Qt::red, 1, {50, 20}))); // no twin of itself
        tile.setNormalImage(normalPicture()); // goes before it
        QCOMPARE(tile.size(), QSize(40, 72));
        QVERIFY(isSame(tile.pressImage(), darkened(normalPicture(), 154, kSize)));
    }

    void theFrameIsScaledIntoTheImageRectangle()
    {
        SpHomeIcon tile;
        tile.setIconText({});
        tile.resize(140, 130);
        tile.setImageMarginH(5);
        tile.setGifImage(animation(1));
        const QImage expected = reference(
            tile, [](QPainter &p) { p.drawPixmap(QRect(5, 0, 122, 122), frameOf(Qt::red)); });
        COMPARE_PICTURES(painted(tile), expected);
        COMPARE_PICTURES(painted(tile), expected);
    }

    void framesFollowEachOtherAndEachOneRepaintsOnce()
    {
        const auto tile = makeTile();
        show(*tile);
        tile->setGifImage(animation(3));
        QCoreApplication::processEvents();
        QCOMPARE(shownColor(*tile), QColor(Qt::red));
        for (const auto color : {Qt::green, Qt::blue, Qt::red, Qt::green}) {
            QCOMPARE(paints(*tile, [] { virtualtime::advance(kFrameTime - 1); }), 0);
            QCOMPARE(paints(*tile, [] { virtualtime::advance(1); }), 1);
            tile->setRunningImage({});
            QCOMPARE(shownColor(*tile), QColor(color));
        }
    }

    void theSpeedCountsBeforeAndWhileItPlays()
    {
        const auto tile = makeTile();
        tile->setRunningImage({});
        show(*tile);
        tile->setGifSpeed(200);
        tile->setGifImage(animation(4));
        virtualtime::advance(kFrameTime / 2);
        QCOMPARE(shownColor(*tile), QColor(Qt::green));
        tile->setGifSpeed(50); // from the frame after this one
        virtualtime::advance(kFrameTime / 2);
        QCOMPARE(shownColor(*tile), QColor(Qt::blue));
        QCOMPARE(paints(*tile, [] { virtualtime::advance(2 * kFrameTime - 1); }), 0);
        QCOMPARE(paints(*tile, [] { virtualtime::advance(1); }), 1);
        QCOMPARE(shownColor(*tile), QColor(Qt::yellow));
        tile->setGifSpeed(0);
        virtualtime::advance(2 * kFrameTime);
        QCOMPARE(paints(*tile, [] { virtualtime::advance(10000); }), 0);
        tile->setGifSpeed(100);
        QVERIFY(paints(*tile, [] { virtualtime::advance(3 * kFrameTime); }) > 0);
    }

    void aHiddenTileDoesNotPlayAndAShownOneBeginsAnew()
    {
        const auto tile = makeTile();
        tile->setRunningImage({});
        show(*tile);
        tile->setGifImage(animation(4));
        virtualtime::advance(kFrameTime);
        QCOMPARE(shownColor(*tile), QColor(Qt::green));
        tile->hide();
        virtualtime::advance(10 * kFrameTime);
        QCOMPARE(shownColor(*tile), QColor(Qt::green));
        show(*tile);
        QCOMPARE(shownColor(*tile), QColor(Qt::red));
        virtualtime::advance(kFrameTime);
        QCOMPARE(shownColor(*tile), QColor(Qt::green));
    }

    void aTileThatWasNeverShownPlays()
    {
        const auto tile = makeTile();
        tile->setRunningImage({});
        tile->setGifImage(animation(4));
        virtualtime::advance(kFrameTime);
        QCOMPARE(shownColor(*tile), QColor(Qt::green));
    }

    void anotherAnimationTakesThePlaceOfTheFirst()
    {
        const auto tile = makeTile();
        tile->setRunningImage({});
        show(*tile);
        tile->setGifImage(animation(4));
        virtualtime::advance(kFrameTime);
        QCOMPARE(shownColor(*tile), QColor(Qt::green));
        tile->setGifImage(animation(2));
        QCoreApplication::processEvents();
        QCOMPARE(shownColor(*tile), QColor(Qt::red));
        QCOMPARE(paints(*tile, [] { virtualtime::advance(kFrameTime - 1); }), 0); // of either
        QCOMPARE(paints(*tile, [] { virtualtime::advance(1); }), 1);
        QCOMPARE(shownColor(*tile), QColor(Qt::green));
        tile->setGifImage(QStringLiteral("x")); // is no path: what plays goes on
        QCOMPARE(tile->gifImage(), QStringLiteral("x"));
        QCOMPARE(paints(*tile, [] { virtualtime::advance(kFrameTime); }), 1);
        QCOMPARE(shownColor(*tile), QColor(Qt::red));
        tile->setGifImage(QStringLiteral("/absent.gif"));
        QCOMPARE(shownColor(*tile), QColor(0, 0, 0, 0));
        QCOMPARE(paints(*tile, [] { virtualtime::advance(10 * kFrameTime); }), 0);
    }

    void theAnimationIsNoChildOfTheTileAndEndsWithIt()
    {
        auto tile = makeTile();
        show(*tile);
        tile->setGifImage(animation(4));
        QVERIFY(tile->children().isEmpty());
        virtualtime::advance(kFrameTime / 2);
        const qint64 before = virtualtime::now();
        tile.reset();
        virtualtime::advance(10 * kFrameTime); // no frame comes for a tile that is gone
        QCOMPARE(virtualtime::now(), before + 10 * kFrameTime);
    }

    void animationsThatAreNone_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isShown");
        const QByteArray whole = gif(3);
        QTest::newRow("one frame") << animation(1) << true;
        QTest::newRow("text") << write(QStringLiteral("text.gif"), "This is no picture.\n")
                              << false;
        QTest::newRow("empty") << write(QStringLiteral("empty.gif"), {}) << false;
        QTest::newRow("directory") << m_dir.path() << false;
        QTest::newRow("directory of that name") << [this] {
            QDir(m_dir.path()).mkdir(QStringLiteral("dir.gif"));
            return m_dir.filePath(QStringLiteral("dir.gif"));
        }() << false;
        QTest::newRow("absent") << QStringLiteral("/absent.gif") << false;
        QTest::newRow("resource") << QStringLiteral(":/absent.gif") << false;
        QTest::newRow("device") << QStringLiteral("/dev/null") << false;
        QTest::newRow("header only")
            << write(QStringLiteral("header.gif"), whole.left(13)) << false;
        QTest::newRow("no frames") << write(QStringLiteral("none.gif"), gif(0)) << false;
        QTest::newRow("no area") << write(QStringLiteral("area.gif"), gif(2, {0, 0})) << false;
    }

    void animationsThatAreNone()
    {
        QFETCH(QString, path);
        QFETCH(bool, isShown);
        const auto tile = makeTile();
        tile->setRunningImage({});
        show(*tile);
        tile->setGifImage(path);
        virtualtime::advance(5000);
        QCOMPARE(shownColor(*tile).alpha() > 0, isShown);
        tile->hide();
        show(*tile);
        virtualtime::advance(5000);
        QCOMPARE(shownColor(*tile).alpha() > 0, isShown);
        touch(tile.get()).press(20, 15);
        QVERIFY(shownColor(*tile).alpha() > 0); // the pressed look needs no frame
    }

    void anAnimationThatEndsEarlyPlaysWhatThereIs()
    {
        const QByteArray whole = gif(3);
        for (int length = 0; length < whole.size(); length += 37) {
            const auto tile = makeTile();
            tile->setRunningImage({});
            show(*tile);
            const QString path = write(QStringLiteral("early.gif"), whole.left(length));
            tile->setGifImage(path);
            QMovie movie(path);
            movie.start();
            constexpr int kFrames = 15;
            QVERIFY(paints(*tile, [] { virtualtime::advance(kFrames * kFrameTime); })
                    <= kFrames + 1);
            const QPixmap frame = movie.currentPixmap();
            COMPARE_PICTURES(painted(*tile), reference(*tile, [&](QPainter &p) {
                                 if (!frame.isNull())
                                     p.drawPixmap(QRect(QPoint(0, 0), kSize), frame);
                             }));
        }
    }

    void aLongAnimationTakesNoMoreMemoryThanAShortOne()
    {
        const QString path = write(QStringLiteral("long.gif"), gif(1000, {96, 96}));
        const auto tile = makeTile();
        show(*tile);
        tile->setGifImage(path);
        virtualtime::advance(50 * kFrameTime);
        const int before = heldMemory();
        QCOMPARE(paints(*tile, [] { virtualtime::advance(950 * kFrameTime); }), 950);
        QVERIFY(heldMemory() - before < 12); // all its frames are 35 MiB
    }

    void anAnimationGoesOnWhenItsFileVanishes()
    {
        const QString path = animation(3);
        const auto tile = makeTile();
        tile->setRunningImage({});
        show(*tile);
        tile->setGifImage(path);
        QVERIFY(QFile::remove(path));
        for (const auto color : {Qt::green, Qt::blue, Qt::red, Qt::green}) {
            virtualtime::advance(kFrameTime);
            QCOMPARE(shownColor(*tile), QColor(color));
        }
        tile->hide();
        show(*tile);
        QCOMPARE(shownColor(*tile), QColor(Qt::red));
    }

    void aVeryLargeFileIsNotHeldInMemory()
    {
        const QString path = animation(2);
        QVERIFY(QFile::resize(path, 200 << 20)); // of which the rest are holes
        const auto tile = makeTile();
        tile->setRunningImage({});
        show(*tile);
        const int before = memoryInUse();
        tile->setGifImage(path);
        virtualtime::advance(kFrameTime);
        QCOMPARE(shownColor(*tile), QColor(Qt::green));
        QVERIFY(memoryInUse() - before < 20);
    }

    void anAnimationThatDoesNotLoopStopsAtItsLastFrame()
    {
        const auto tile = makeTile();
        tile->setRunningImage({});
        show(*tile);
        tile->setGifImage(write(QStringLiteral("once.gif"), gif(3, kSize, false)));
        virtualtime::advance(2 * kFrameTime);
        QCOMPARE(shownColor(*tile), QColor(Qt::blue));
        QCOMPARE(paints(*tile, [] { virtualtime::advance(20 * kFrameTime); }), 0);
        QCOMPARE(shownColor(*tile), QColor(Qt::blue));
    }

    void hostileSpeedsAreSurvivedByTheUsualOne()
    {
        const auto tile = makeTile();
        show(*tile);
        for (const int speed : {INT_MIN, -1, 0, 1, INT_MAX}) {
            tile->setGifSpeed(speed);
            tile->setGifImage(animation(2));
            for (int i = 0; i < 10; ++i)
                QCoreApplication::processEvents();
            tile->setGifSpeed(100);
            virtualtime::advance(100 * kFrameTime); // what one percent makes of a frame
            QCOMPARE(paints(*tile, [] { virtualtime::advance(10 * kFrameTime); }), 10);
        }
    }

    // --- Touches --------------------------------------------------------------------------------

    void aTouchReportsPressEveryMoveAndRelease()
    {
        const auto tile = makeTile();
        tile->setItemIndex(7);
        SignalLog log(tile.get());
        touch(tile.get()).press(5, 5).moveTo(5, 5).moveTo(500, 500).release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("itemPress(7)"), QStringLiteral("itemMove(7)"),
                              QStringLiteral("itemMove(7)"), QStringLiteral("itemRelease(7)"),
                              QStringLiteral("beep")}));
    }

    void theStateIsChangedBeforeItIsReported()
    {
        const auto tile = makeTile();
        QVector<bool> seen;
        const auto note = [&] { seen += tile->getIsPressing(); };
        connect(tile.get(), &SpHomeIcon::itemPress, tile.get(), note);
        connect(tile.get(), &SpHomeIcon::itemMove, tile.get(), note);
        connect(tile.get(), &SpHomeIcon::itemRelease, tile.get(), note);
        touch(tile.get()).press(5, 5).moveTo(6, 5);
        touch(tile.get()).press(5, 5).release();
        QCOMPARE(seen, (QVector<bool>{true, false, true, false}));
    }

    void pressAndReleaseRepaintOnceAndAMoveNever()
    {
        const auto tile = makeTile();
        show(*tile);
        Touch finger = touch(tile.get());
        QCOMPARE(paints(*tile, [&] { finger.press(5, 5); }), 1);
        QCOMPARE(tile->getIsPressing(), true);
        QCOMPARE(paints(*tile, [&] { finger.moveTo(6, 5); }), 0);
        QCOMPARE(tile->getIsPressing(), false);
        QCOMPARE(paints(*tile, [&] { finger.release(); }), 1);
    }

    void aTileThatIsNotReadyReportsATouchToo()
    {
        SpHomeIcon tile;
        tile.setGrayImage(grayPicture());
        tile.setGrayTextColor(Qt::gray);
        tile.setIsReady(false);
        tile.resize(150, 80);
        SignalLog log(&tile);
        touch(&tile).press(5, 5);
        QCOMPARE(log.take(), QStringList{QStringLiteral("itemPress(0)")});
        COMPARE_PICTURES(painted(tile), documentedCaption(tile, Qt::gray));
    }

    void touchesReachTheParentAndTheRequestForASoundDoesNot()
    {
        Parent parent;
        const auto tile = makeTile(&parent);
        show(parent);
        touch(tile.get()).press(5, 5).moveTo(6, 5).release();
        QCoreApplication::processEvents();
        QCOMPARE(parent.events,
                 (QStringList{QStringLiteral("press"), QStringLiteral("move"),
                              QStringLiteral("release")}));
    }

    void theSignalsComeBeforeTheBaseHandler()
    {
        Handlers tile;
        const QPointF pos(5, 5);
        QMouseEvent press(QEvent::MouseButtonPress, pos, Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QMouseEvent move(QEvent::MouseMove, pos, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QMouseEvent release(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QVector<bool> accepted;
        connect(&tile, &SpHomeIcon::itemPress, &tile, [&] { accepted += press.isAccepted(); });
        connect(&tile, &SpHomeIcon::itemMove, &tile, [&] { accepted += move.isAccepted(); });
        connect(&tile, &SpHomeIcon::itemRelease, &tile, [&] { accepted += release.isAccepted(); });
        tile.mousePressEvent(&press);
        tile.mouseMoveEvent(&move);
        tile.mouseReleaseEvent(&release);
        QCOMPARE(accepted, (QVector<bool>{true, true, true}));
        QVERIFY(!press.isAccepted() && !move.isAccepted() && !release.isAccepted());
    }

    // --- Robustness -----------------------------------------------------------------------------

    void hostileNumbersAndPictures_data()
    {
        QTest::addColumn<QPixmap>("pixmap");
        QTest::addColumn<int>("number");
        QBitmap bitmap(16, 16);
        bitmap.fill(Qt::color1);
        QPixmap wide(20000, 2);
        wide.fill(Qt::green);
        QPixmap dot(1, 1);
        dot.fill(Qt::red);
        for (const QPixmap &pixmap : {QPixmap(bitmap), wide, dot}) {
            for (const int number : {INT_MIN, INT_MAX, -1, 0, 20000})
                QTest::addRow("%d px wide, %d", pixmap.width(), number) << pixmap << number;
        }
    }

    void hostileNumbersAndPictures()
    {
        QFETCH(QPixmap, pixmap);
        QFETCH(int, number);
        const auto tile = makeTile();
        tile->setIconText(QStringLiteral("Text"));
        tile->setHideText(true);
        tile->setNormalImage(pixmap);
        tile->setTextMargin(number);
        tile->setTextMarginH(number);
        tile->setImageMarginH(number);
        tile->setImageAlpha(number);
        tile->setIconSize({number, number});
        tile->setTextAlignment(Qt::Alignment(QFlag(number)));
        tile->setMinimumSize(0, 0);
        tile->resize(90, 70);
        const QRect target(bounded(number), 0, bounded(number), bounded(number));
        QPixmap made;
        tile->setPressImageAlpha(number, pixmap, made);
        QVERIFY(isSame(made, darkened(pixmap, number, target.size())));
        for (const bool isRunningThere : {false, true}) {
            tile->setRunningImage(isRunningThere ? runningPicture() : QPixmap());
            QImage expected = reference(*tile, [&](QPainter &p) { p.drawPixmap(target, pixmap); });
            drawCaption(expected, *tile, Qt::white);
            COMPARE_PICTURES(painted(*tile), expected);
        }
    }

    void captionsOfAnySizeAreShown_data()
    {
        QTest::addColumn<int>("px");
        for (const int px : {INT_MIN, 0, 1, 90, 3000, 1000000, INT_MAX})
            QTest::addRow("%d", px) << px;
    }

    void captionsOfAnySizeAreShown()
    {
        QFETCH(int, px);
        SpHomeIcon tile;
        tile.setIconText(QStringLiteral("Text"));
        tile.setFontSize(px);
        tile.resize(90, 70);
        COMPARE_PICTURES(painted(tile), documentedCaption(tile, Qt::white));
    }

    void aTileMayBeDeletedByAnyReport()
    {
        for (const auto &signal : {QStringLiteral("itemPress"), QStringLiteral("itemMove"),
                                   QStringLiteral("itemRelease")}) {
            QWidget parent;
            auto *tile = makeTile(&parent).release();
            tile->setGifImage(animation(2));
            const QPointer<SpHomeIcon> guard(tile);
            SignalLog log(tile);
            log.onLine([&](const QString &line) {
                if (line.startsWith(signal))
                    delete tile;
            });
            touch(tile).press(5, 5).moveTo(6, 5).release();
            QVERIFY(!guard);
        }
    }
};

WIDGET_TEST_MAIN(tst_SpHomeIcon)
#include "tst_sphomeicon.moc"
