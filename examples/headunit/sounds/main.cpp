// SPDX-License-Identifier: Apache-2.0
// Makes the music and the click of the head unit: headunit-synthesiser <folder>.
#include "pieces.h"
#include "wavefile.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <cstdio>

using namespace headunit;

namespace
{

constexpr int kCoverSize = 400; // px

QPainterPath hills(double height, double swing, double phase)
{
    QPainterPath path(QPointF(0, kCoverSize));
    for (int x = 0; x <= kCoverSize; x += 4)
        path.lineTo(x, height + swing * std::sin(x * 0.012 + phase));
    path.lineTo(kCoverSize, kCoverSize);
    path.closeSubpath();
    return path;
}

QByteArray coverOf(const Piece &piece)
{
    constexpr double horizon = 0.66 * kCoverSize;
    QImage image(kCoverSize, kCoverSize, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, horizon);
    sky.setColorAt(0, piece.sky);
    sky.setColorAt(1, piece.horizon);
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 244, 214));
    painter.drawEllipse(QPointF(0.62 * kCoverSize, horizon * (1 - 0.8 * piece.sunHeight)), 52, 52);
    painter.setBrush(piece.hills.lighter(150));
    painter.drawPath(hills(horizon, 22, piece.number));
    painter.setBrush(piece.hills);
    painter.drawPath(hills(horizon + 54, 30, 2.1 * piece.number));
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return bytes;
}

bool makePiece(const QDir &folder, const Piece &piece)
{
    const QString path = folder.filePath(piece.title + QStringLiteral(".wav"));
    return writeWave(path, piece.samples)
        && writeTags(path,
                     {piece.title, QStringLiteral("PanelKit"), QStringLiteral("Short Drives"),
                      piece.number, coverOf(piece)});
}

bool makeAll(const QDir &folder)
{
    const QDir music(folder.filePath(QStringLiteral("Music")));
    if (!music.mkpath(QStringLiteral(".")))
        return false;
    for (const Piece &piece : allPieces()) {
        if (!makePiece(music, piece))
            return false;
    }
    return writeWave(folder.filePath(QStringLiteral("click.wav")), clickSamples());
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("Usage: headunit-synthesiser <folder>\n", stderr);
        return 2;
    }
    if (makeAll(QDir(QFile::decodeName(argv[1]))))
        return 0;
    std::fprintf(stderr, "headunit-synthesiser: cannot write into %s\n", argv[1]);
    return 1;
}
