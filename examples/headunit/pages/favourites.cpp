// SPDX-License-Identifier: Apache-2.0
#include "pages/favourites.h"

#include "dress.h"
#include "listrows.h"
#include "models/contacts.h"
#include "texts.h"

#include <spverstrbutton.h>

#include <QApplication>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace headunit
{

namespace
{

// The icon of a key is its whole face, so that all of it looks pressed.
QPixmap faceWithDisc(const Theme &theme, const QSize &size, const QString &initials,
                     const QColor &fill)
{
    QPixmap face = theme.panel(size, fill, theme.line, theme.radius());
    const int side = size.height() / 2;
    QPainter painter(&face);
    painter.drawPixmap((size.width() - side) / 2, size.height() / 7,
                       initialsDisc(theme, side, initials));
    return face;
}

// Calls nobody when the finger has slid off it.
class PersonKey : public SpVerStrButton
{
public:
    using SpVerStrButton::SpVerStrButton;

protected:
    void mouseReleaseEvent(QMouseEvent *e) override
    {
        if (rect().contains(e->pos()))
            SpVerStrButton::mouseReleaseEvent(e);
        else
            setIsDown(false);
    }
};

} // namespace

Favourites::Favourites(Context &context, QWidget *parent)
    : View(context, parent), m_hint(new QLabel(this))
{
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    connect(&context.contacts, &Contacts::modelReset, this, [this] {
        readContacts();
        if (isVisible())
            dress();
    });
    readContacts();
    Favourites::retranslate();
}

void Favourites::dress()
{
    dressLabel(*m_hint, theme(), Theme::Body, true);
    m_hint->setGeometry(rect());
    constexpr int kRows = kMost / kColumns;
    const int gap = theme().gap();
    const QSize size((width() - (kColumns - 1) * gap) / kColumns,
                     (height() - (kRows - 1) * gap) / kRows);
    for (int i = 0; i < m_keys.size(); ++i) {
        const QPoint place(i % kColumns * (size.width() + gap),
                           i / kColumns * (size.height() + gap));
        dressKey(*m_keys.at(i), size);
        m_keys.at(i)->setGeometry(
            QStyle::visualRect(layoutDirection(), rect(), QRect(place, size)));
    }
}

void Favourites::retranslate()
{
    m_hint->setText(tr("Nobody is a favourite yet. Mark people in the telephone book."));
}

void Favourites::readContacts()
{
    qDeleteAll(m_keys);
    m_keys.clear();
    m_names.clear();
    m_numbers.clear();
    const auto rows = context().contacts.favourites();
    for (const int row : rows) {
        const Contact contact = context().contacts.contact(row);
        if (contact.numbers.isEmpty() || m_keys.size() == kMost)
            continue;
        auto *key = new PersonKey(this);
        key->setObjectName(QStringLiteral("favourite%1").arg(m_keys.size()));
        key->setButtonId(m_keys.size());
        connect(key, &SpVerStrButton::clicked, this,
                [this](int id) { emit numberChosen(m_numbers.value(id)); });
        key->show();
        m_keys.append(key);
        m_names.append(contact.name);
        m_numbers.append(contact.numbers.first().number);
    }
    m_hint->setVisible(m_keys.isEmpty());
}

// The name stands over the lower part of the face.
void Favourites::dressKey(SpVerStrButton &key, const QSize &size)
{
    const QString name = m_names.at(key.buttonId());
    const QString initials = Contacts::initialsOf(name);
    const int fontPx = theme().textPx(Theme::Small);
    QFont font = QApplication::font();
    font.setPixelSize(fontPx);
    key.setDisplayString(shortened(name, QFontMetrics(font), size.width() - theme().gap()));
    key.setNormalPixmap(faceWithDisc(theme(), size, initials, theme().face));
    key.setPressPixmap(faceWithDisc(theme(), size, initials, theme().pressedFace));
    key.setNormalColor(theme().text);
    key.setPressColor(theme().text);
    key.setFontSize(fontPx);
    key.setStringHeight(fontPx * 3 / 2);
    key.setWidgetGain(-size.height() * 3 / 10);
}

} // namespace headunit
