// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_PICTUREFILES_H
#define HEADUNIT_PICTUREFILES_H

#include <QTemporaryDir>

class QPixmap;

namespace headunit
{

/// Files of pictures that are made while the program runs, for widgets that take files. They are
/// gone with this object; the widgets have read them by then.
class PictureFiles
{
public:
    /// The file of a picture, written in place of the one that had this name; empty if it cannot be
    /// written.
    QString write(const QString &name, const QPixmap &picture) const;

private:
    QTemporaryDir m_folder;
};

} // namespace headunit

#endif // HEADUNIT_PICTUREFILES_H
