// SPDX-License-Identifier: Apache-2.0
#ifndef HOSTILEFILES_H
#define HOSTILEFILES_H

#include <QByteArray>
#include <QVector>

/// A file as somebody's stick may carry it. Its name has the ending of its format.
struct HostileFile {
    QByteArray name;
    QByteArray bytes;
};

/// Pictures and animations, the same ones each time, that went wrong in every way: cut off at each
/// kilobyte, with bits turned, bytes left out and doubled, sizes of nothing and of more than there
/// is, much from few bytes, rounds without end and frames without time. None of them says
/// that it has more than 4 million pixels: what Qt's decoders do then is theirs.
QVector<HostileFile> hostileFiles();

#endif // HOSTILEFILES_H
