// SPDX-License-Identifier: Apache-2.0
#include "hostilefiles.h"

#include "checksum.h"
#include "gifs.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QRandomGenerator>
#include <QtEndian>

#include <functional>

namespace
{

constexpr int kKilobyte = 1024;
constexpr int kMutants = 20; // of each kind and format
constexpr qint64 kMostPixels = 4 * 1000 * 1000;
constexpr QSize kSize(120, 90);

// --- Whole files --------------------------------------------------------------------------------

// Colours that no encoder makes small, half of them translucent.
QImage noise()
{
    QRandomGenerator random(1);
    QImage image(kSize, QImage::Format_ARGB32);
    for (int y = 0; y < kSize.height(); ++y) {
        for (int x = 0; x < kSize.width(); ++x)
            image.setPixel(x, y, random.generate() | (x % 2 ? 0xff000000U : 0U));
    }
    return image;
}

QByteArray saved(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QByteArray svg(const QByteArray &attributes, const QByteArray &content)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        + attributes + '>' + content + "</svg>";
}

QByteArray shapes()
{
    QByteArray content("<defs><linearGradient id='g'><stop offset='0' stop-color='#204080'/>"
                       "<stop offset='1' stop-color='#80c0ff'/></linearGradient></defs>");
    for (int i = 0; i < 100; ++i) {
        content += "<path d='M " + QByteArray::number(i) + " 4 C 20 " + QByteArray::number(90 - i)
            + " 60 30 90 " + QByteArray::number(i) + " Z' fill='url(#g)' opacity='0.2'/>";
    }
    return content;
}

// --- Sizes --------------------------------------------------------------------------------------

template <typename Number> QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

template <typename Number> QByteArray bigEndian(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

// A part of a PNG file: its length, its name and content, and the sum of these.
QByteArray chunk(const QByteArray &content)
{
    return bigEndian(quint32(content.size() - 4)) + content + bigEndian(crc32(content));
}

// Another size in the head of a PNG file, with the sum that belongs to it.
QByteArray pngOfSize(const QByteArray &bytes, quint32 width, quint32 height)
{
    constexpr int kHead = 8, kHeadSize = 25, kBehindSize = 24;
    return bytes.left(kHead)
        + chunk("IHDR" + bigEndian(width) + bigEndian(height) + bytes.mid(kBehindSize, 5))
        + bytes.mid(kHead + kHeadSize);
}

QByteArray bmpOfSize(QByteArray bytes, qint32 width, qint32 height)
{
    return bytes.replace(18, 8, littleEndian(width) + littleEndian(height));
}

QByteArray jpegOfSize(QByteArray bytes, quint16 width, quint16 height)
{
    const int frame = bytes.indexOf("\xff\xc0");
    return bytes.replace(frame + 5, 4, bigEndian(height) + bigEndian(width));
}

// Of the screen that the frames are shown on, or of the first frame, or of where that stands.
QByteArray gifOfSize(QByteArray bytes, int place, quint16 width, quint16 height)
{
    return bytes.replace(place, 4, littleEndian(width) + littleEndian(height));
}

class Corpus
{
public:
    QVector<HostileFile> files;

    void addAll(const QByteArray &ending, const QByteArray &whole);
    void addSizes();
    void addSvgs();
    void addBombs();
    void addAnimations();

private:
    void add(const QByteArray &what, const QByteArray &ending, QByteArray bytes);
    void addMutants(const QByteArray &what, const QByteArray &ending, const QByteArray &whole,
                    const std::function<QByteArray(QByteArray, QRandomGenerator &)> &mutate);
};

void Corpus::add(const QByteArray &what, const QByteArray &ending, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    const QSize size = QImageReader(&buffer, ending).size();
    if (qint64(size.width()) * size.height() <= kMostPixels)
        files.append({what + '.' + ending, bytes});
}

void Corpus::addMutants(const QByteArray &what, const QByteArray &ending, const QByteArray &whole,
                        const std::function<QByteArray(QByteArray, QRandomGenerator &)> &mutate)
{
    QRandomGenerator random(2);
    for (int i = 0; i < kMutants; ++i)
        add(what + '-' + QByteArray::number(i), ending, mutate(whole, random));
}

// What can happen to a file of any format.
void Corpus::addAll(const QByteArray &ending, const QByteArray &whole)
{
    add("whole", ending, whole);
    for (int size = 0; size < whole.size(); size += kKilobyte)
        add("cut-" + QByteArray::number(size), ending, whole.left(size));
    addMutants("bits", ending, whole, [](QByteArray bytes, QRandomGenerator &random) {
        for (int i = 1 + int(random.bounded(8)); i > 0; --i) {
            const int place = int(random.bounded(bytes.size()));
            bytes[place] = char(bytes.at(place) ^ (1 << random.bounded(8)));
        }
        return bytes;
    });
    addMutants("head-bits", ending, whole, [](QByteArray bytes, QRandomGenerator &random) {
        const int place = int(random.bounded(qMin(40, bytes.size())));
        bytes[place] = char(bytes.at(place) ^ (1 << random.bounded(8)));
        return bytes;
    });
    addMutants("without", ending, whole, [](QByteArray bytes, QRandomGenerator &random) {
        return bytes.remove(int(random.bounded(bytes.size())), 1 + int(random.bounded(50)));
    });
    addMutants("doubled", ending, whole, [](QByteArray bytes, QRandomGenerator &random) {
        const int place = int(random.bounded(bytes.size()));
        return bytes.insert(place, bytes.mid(place, 1 + int(random.bounded(50))));
    });
}

void Corpus::addSizes()
{
    const QByteArray png = saved(noise(), "png"), bmp = saved(noise(), "bmp"),
                     jpeg = saved(noise(), "jpg"), gif = gifOf(gifFrames(3, QSize(60, 40)));
    const QSize whole = kSize;
    const auto width = quint16(whole.width()), height = quint16(whole.height());
    const auto both = [this](const QByteArray &ending, qint64 size, const QByteArray &wide,
                             const QByteArray &high) {
        add("wide-" + QByteArray::number(size), ending, wide);
        add("high-" + QByteArray::number(size), ending, high);
    };
    for (const quint32 size : {0U, 1U, 119U, 3000U, 0x7fffffffU, 0x80000000U, 0xffffffffU}) {
        both("png", size, pngOfSize(png, size, quint32(whole.height())),
             pngOfSize(png, quint32(whole.width()), size));
    }
    for (const qint32 size : {0, 1, 119, 3000, 0x7fffffff, -1, -90, -3000, int(0x80000000)}) {
        both("bmp", size, bmpOfSize(bmp, size, whole.height()),
             bmpOfSize(bmp, whole.width(), size));
    }
    for (const quint16 size : std::initializer_list<quint16>{0, 1, 119, 3000, 65500, 65535}) {
        both("jpg", size, jpegOfSize(jpeg, size, height), jpegOfSize(jpeg, width, size));
        constexpr int kScreen = 6;
        const int frame = gif.indexOf(QByteArray("\0,", 2)) + 6; // behind the end of a block
        both("gif", size, gifOfSize(gif, kScreen, size, 40), gifOfSize(gif, kScreen, 60, size));
        add("frame-" + QByteArray::number(size), "gif", gifOfSize(gif, frame, size, 40));
        add("frame-at-" + QByteArray::number(size), "gif", gifOfSize(gif, frame - 4, size, size));
    }
}

void Corpus::addSvgs()
{
    for (const QByteArray size : {"0", "-5", "1e9", "1e300", "nan", "100%", "0.001", "3000"}) {
        add("wide-" + size, "svg", svg("width='" + size + "' height='90'", shapes()));
        add("high-" + size, "svg", svg("width='120' height='" + size + "'", shapes()));
        add("box-" + size, "svg",
            svg("width='120' height='90' viewBox='0 0 " + size + " 90'", shapes()));
    }
    QByteArray uses("<defs><rect id='a0' width='4' height='4'/>");
    for (int i = 1; i < 5; ++i) {
        uses += "<g id='a" + QByteArray::number(i) + "'>";
        for (int j = 0; j < 6; ++j) {
            uses += "<use xlink:href='#a" + QByteArray::number(i - 1) + "' x='"
                + QByteArray::number(j * 4) + "'/>";
        }
        uses += "</g>";
    }
    add("uses", "svg", svg("width='120' height='90'", uses + "</defs><use xlink:href='#a4'/>"));
    QByteArray entities("<!DOCTYPE svg [<!ENTITY e0 'ha'>");
    for (int i = 1; i < 20; ++i) {
        const QByteArray previous = "&e" + QByteArray::number(i - 1) + ';';
        entities += "<!ENTITY e" + QByteArray::number(i) + " '" + previous + previous + "'>";
    }
    add("entities", "svg", entities + "]>" + svg("width='9' height='9'", "<text>&e19;</text>"));
    add("deep", "svg",
        svg("width='120' height='90'",
            QByteArray("<g>").repeated(200) + "<rect width='9'/>"
                + QByteArray("</g>").repeated(200)));
}

// Few bytes that become many.
void Corpus::addBombs()
{
    QImage large(2000, 2000, QImage::Format_Mono);
    large.fill(1);
    add("large", "png", saved(large, "png"));
    const QByteArray packed = qCompress(QByteArray(30 * kKilobyte * kKilobyte, 'a')).mid(4);
    constexpr int kBehindHead = 33;
    add("comment", "png",
        saved(noise(), "png")
            .insert(kBehindHead, chunk("zTXtcomment" + QByteArray(2, '\0') + packed)));
    const QByteArray gif = gifOf(gifFrames(1));
    add("screen", "gif", gifOfSize(gif, 6, 2000, 2000));
    add("many-frames", "gif", gifOf(gifFrames(500, QSize(3, 3))));
}

void Corpus::addAnimations()
{
    for (const int delay : {0, 10, 20, 100, 655350}) {
        for (const int rounds : {0, 1, 65535}) {
            add("delay-" + QByteArray::number(delay) + "-rounds-" + QByteArray::number(rounds),
                "gif", gifOf(gifFrames(3), {delay, rounds}));
        }
    }
}

} // namespace

QVector<HostileFile> hostileFiles()
{
    Corpus corpus;
    corpus.addAll("png", saved(noise(), "png"));
    corpus.addAll("jpg", saved(noise(), "jpg"));
    corpus.addAll("bmp", saved(noise(), "bmp"));
    corpus.addAll("gif", gifOf(gifFrames(8, QSize(60, 40))));
    corpus.addAll("svg", svg("width='120' height='90'", shapes()));
    corpus.addSizes();
    corpus.addSvgs();
    corpus.addBombs();
    corpus.addAnimations();
    return corpus.files;
}
