// SPDX-License-Identifier: Apache-2.0
#include "pictureeditor.h"

#include "art.h"

#include <QPixmap>

namespace
{
enum FixedItem { NoPicture, ForeignPicture };
constexpr QSize kThumbnailSize(18, 18);
} // namespace

PictureEditor::PictureEditor()
{
    fillWith(&m_box);
    m_box.setIconSize(kThumbnailSize);
    m_box.addItem(tr("none"));
    m_box.addItem(tr("another"));
    for (const QString &name : Art::names())
        m_box.addItem(Art::pixmap(name), name);
    connect(&m_box, QOverload<int>::of(&QComboBox::activated), this, &PictureEditor::report);
}

void PictureEditor::showValue(const QVariant &value)
{
    const auto pixmap = value.value<QPixmap>();
    if (pixmap.isNull()) {
        m_box.setCurrentIndex(NoPicture);
        return;
    }
    m_size = pixmap.size();
    const int known = m_box.findText(Art::nameOf(pixmap));
    m_box.setCurrentIndex(known < 0 ? int(ForeignPicture) : known);
}

// A picture replaces the one before it at the same size. The item for a picture from elsewhere
// changes nothing: there is none to take its place.
void PictureEditor::report()
{
    if (m_box.currentIndex() == NoPicture)
        emit edited(QPixmap());
    else if (m_box.currentIndex() != ForeignPicture)
        emit edited(Art::pixmap(m_box.currentText(), m_size));
}
