// SPDX-License-Identifier: Apache-2.0
#include "listpanel.h"

#include "listrows.h"

#include <sptablelist.h>

#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QScrollBar>

namespace headunit
{

namespace
{

constexpr int kBorder = 1; // px
constexpr int kFade = 14; // units

enum class End { Top, Bottom };

// The panel's own face, border and corners, which grows from nothing to itself toward its end.
QPixmap fadingFace(const QSize &panel, const Theme &theme, End end)
{
    const int height = theme.px(kFade);
    QPixmap face(panel.width(), height);
    face.fill(Qt::transparent);
    QPainter painter(&face);
    painter.drawPixmap(0, end == End::Top ? 0 : height - panel.height(),
                       theme.panel(panel, theme.face, theme.line, theme.radius()));
    QLinearGradient strength(0, 0, 0, height);
    strength.setColorAt(end == End::Top ? 0 : 1, Qt::black);
    strength.setColorAt(end == End::Top ? 1 : 0, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(face.rect(), strength);
    return face;
}

void followList(QLabel &fade, const QScrollBar &place, End end)
{
    fade.setVisible(end == End::Top ? place.value() > place.minimum()
                                    : place.value() < place.maximum());
}

// Made the first time. Touches go through it to the rows.
QLabel *fadeOf(QLabel &panel, const SpTableList &list, End end)
{
    const QString name =
        end == End::Top ? QStringLiteral("fadeAbove") : QStringLiteral("fadeBelow");
    if (auto *known = panel.findChild<QLabel *>(name))
        return known;
    auto *fade = new QLabel(&panel);
    fade->setObjectName(name);
    fade->setAttribute(Qt::WA_TransparentForMouseEvents);
    const QScrollBar *place = list.verticalScrollBar();
    const auto follow = [fade, place, end] { followList(*fade, *place, end); };
    QObject::connect(place, &QScrollBar::valueChanged, fade, follow);
    QObject::connect(place, &QScrollBar::rangeChanged, fade, follow);
    return fade;
}

} // namespace

int listHeight(const QLabel &panel, const Theme &theme)
{
    const int room = panel.height() - 2 * kBorder;
    return room - room % rowsIn(theme, room);
}

void dressListPanel(QLabel &panel, SpTableList &list, const Theme &theme)
{
    panel.setPixmap(theme.panel(panel.size(), theme.face, theme.line, theme.radius()));
    const int rest = panel.height() - listHeight(panel, theme);
    panel.layout()->setContentsMargins(theme.px(4), rest / 2, theme.px(4), rest - rest / 2);
    panel.layout()->setSpacing(0);
    panel.layout()->activate();
    dressList(list, theme);
    for (const End end : {End::Top, End::Bottom}) {
        QLabel *fade = fadeOf(panel, list, end);
        const QPixmap face = fadingFace(panel.size(), theme, end);
        fade->setPixmap(face);
        fade->setGeometry(0, end == End::Top ? 0 : panel.height() - face.height(), face.width(),
                          face.height());
        fade->raise();
        followList(*fade, *list.verticalScrollBar(), end);
    }
}

} // namespace headunit
