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

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kNameLines = 2;

// Where disc and name stand in a key, as one block in its middle.
struct Arrangement {
    Arrangement(const Theme &theme, const QSize &size)
    {
        const int gap = theme.px(10);
        lines = QFontMetrics(fontOf(theme)).lineSpacing() * kNameLines;
        disc = std::min(size.height() / 2, size.height() - lines - gap - 2 * theme.px(12));
        top = (size.height() - disc - gap - lines) / 2;
        name = top + disc + gap;
    }

    // That in which the key writes.
    static QFont fontOf(const Theme &theme)
    {
        QFont font = QApplication::font();
        font.setPixelSize(theme.textPx(Theme::Body));
        return font;
    }

    int disc; // px, side
    int top; // px, of the disc
    int name; // px, top of the name
    int lines; // px, height of the name
};

// The icon of a key is its whole face, so that all of it looks pressed.
QPixmap faceWithDisc(const Theme &theme, const QSize &size, const QString &initials,
                     const QColor &fill, const QColor &border)
{
    const Arrangement place(theme, size);
    QPixmap face = theme.panel(size, fill, border, theme.radius());
    QPainter painter(&face);
    painter.drawPixmap((size.width() - place.disc) / 2, place.top,
                       initialsDisc(theme, place.disc, initials));
    return face;
}

// The last word has a line of its own.
QString inLines(const QString &name, const QFontMetrics &metrics, int width)
{
    const int last = name.lastIndexOf(QLatin1Char(' '));
    if (last < 0)
        return shortened(name, metrics, width);
    return shortened(name.left(last), metrics, width) + QLatin1Char('\n')
        + shortened(name.mid(last + 1), metrics, width);
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
        dressAgain();
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
    // What the division leaves over is spread over the columns and rows.
    const auto leftOf = [this, gap](int column) { return column * (width() + gap) / kColumns; };
    const auto topOf = [this, gap](int row) { return row * (height() + gap) / kRows; };
    for (int i = 0; i < m_keys.size(); ++i) {
        const int column = i % kColumns;
        const int row = i / kColumns;
        const QRect place(QPoint(leftOf(column), topOf(row)),
                          QPoint(leftOf(column + 1) - gap - 1, topOf(row + 1) - gap - 1));
        dressKey(*m_keys.at(i), place.size());
        m_keys.at(i)->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
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
    const Theme &t = theme();
    const Arrangement place(t, size);
    const QString name = m_names.at(key.buttonId());
    const QString initials = Contacts::initialsOf(name);
    key.setDisplayString(
        inLines(name, QFontMetrics(Arrangement::fontOf(t)), size.width() - t.gap()));
    key.setMinimumSize(0, 0); // its face may have been larger
    key.setNormalPixmap(faceWithDisc(t, size, initials, t.face, t.line));
    key.setPressPixmap(faceWithDisc(t, size, initials, t.pressedFace, t.accent));
    key.setNormalColor(t.text);
    key.setPressColor(t.text);
    key.setFontSize(t.textPx(Theme::Body));
    key.setStringHeight(place.lines);
    key.setWidgetGain(place.name - size.height());
}

} // namespace headunit
