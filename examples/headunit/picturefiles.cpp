// SPDX-License-Identifier: Apache-2.0
#include "picturefiles.h"

#include <QPixmap>

namespace headunit
{

QString PictureFiles::write(const QString &name, const QPixmap &picture) const
{
    const QString path = m_folder.filePath(name + QStringLiteral(".png"));
    return picture.save(path) ? path : QString();
}

} // namespace headunit
