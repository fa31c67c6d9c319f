// SPDX-License-Identifier: Apache-2.0
#include "textfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

namespace headunit
{

namespace
{

constexpr int kMostCharacters = 300; // of a text for the screen

class Messages
{
    Q_DECLARE_TR_FUNCTIONS(headunit::Files)
};

QString problemOf(const QFileInfo &info)
{
    if (info.filePath().isEmpty() || !info.exists())
        return Messages::tr("There is no file %1.").arg(info.filePath());
    if (info.isDir())
        return Messages::tr("%1 is a folder and not a file.").arg(info.filePath());
    if (!info.isFile()) // a pipe could keep us waiting, a device could be endless
        return Messages::tr("%1 is no ordinary file.").arg(info.filePath());
    return {};
}

// Would turn the text around it, or break its line.
bool isUnwanted(QChar c)
{
    const ushort code = c.unicode();
    return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line
        || c.category() == QChar::Separator_Paragraph || (code >= 0x202A && code <= 0x202E)
        || (code >= 0x2066 && code <= 0x2069) || code == 0xFEFF || code == 0xFFFE || code == 0xFFFF;
}

} // namespace

FileContents readFile(const QString &path, int mostBytes)
{
    FileContents contents;
    contents.problem = problemOf(QFileInfo(path));
    if (!contents.problem.isEmpty())
        return contents;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        contents.problem = Messages::tr("%1 cannot be read.").arg(path);
        return contents;
    }
    contents.bytes = file.read(qint64(mostBytes) + 1);
    contents.isCut = contents.bytes.size() > mostBytes;
    if (contents.isCut)
        contents.bytes.truncate(mostBytes);
    if (contents.bytes.isEmpty())
        contents.problem = Messages::tr("%1 is empty.").arg(path);
    return contents;
}

QString decodedText(const QByteArray &bytes)
{
    QTextCodec *const utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec *const codec = QTextCodec::codecForUtfText(bytes, utf8);
    QTextCodec::ConverterState state;
    const QString text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    const bool isValid = state.invalidChars == 0 && state.remainingChars == 0;
    return isValid || codec != utf8 ? text : QString::fromLatin1(bytes);
}

QString cleanText(const QString &text)
{
    QString clean;
    clean.reserve(qMin(text.size(), kMostCharacters));
    for (const QChar c : text) {
        if (clean.size() == kMostCharacters)
            break;
        if (c.isSpace())
            clean += QLatin1Char(' ');
        else if (!isUnwanted(c))
            clean += c;
    }
    if (!clean.isEmpty() && clean.at(clean.size() - 1).isHighSurrogate())
        clean.chop(1);
    return clean.simplified();
}

QString folderOf(const QString &path) { return path.left(path.lastIndexOf(QLatin1Char('/'))); }

QString fileName(const QString &path) { return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1); }

} // namespace headunit
