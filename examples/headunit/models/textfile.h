// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TEXTFILE_H
#define HEADUNIT_TEXTFILE_H

#include <QByteArray>
#include <QString>

namespace headunit
{

/// What a file that somebody else wrote begins with.
struct FileContents {
    QByteArray bytes;
    bool isCut = false; ///< the file has more than was asked for
    QString problem; ///< a sentence for the user, if nothing was read
};

/// Reads a file, but no more than so many bytes, and nothing that would make a reader wait.
FileContents readFile(const QString &path, int mostBytes);

/// The text of a file: UTF-8, or UTF-16 with a mark. What is no UTF-8 is taken for Latin-1.
QString decodedText(const QByteArray &bytes);

/// A text for the screen: one line without control characters, and of a bounded length.
QString cleanText(const QString &text);

/// The two parts of a path.
QString folderOf(const QString &path);
QString fileName(const QString &path);

} // namespace headunit

#endif // HEADUNIT_TEXTFILE_H
