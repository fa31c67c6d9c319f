// SPDX-License-Identifier: Apache-2.0
#ifndef SHOTS_H
#define SHOTS_H

#include <QImage>
#include <QString>

#include <functional>

/// Takes pictures of all widget classes - each number property over a range, each radio band, and
/// random touches over random sizes - and hands them over one by one, named "<class>-<what>". What
/// is done never depends on what is shown, so that two platforms take the same ones.
void takePictures(const std::function<void(const QString &name, const QImage &picture)> &receive);

#endif // SHOTS_H
