// SPDX-License-Identifier: Apache-2.0
#include "dress.h"

#include "sidekeys.h"

#include <mfocusbutton.h>
#include <mhorslider.h>
#include <monoffbutton.h>
#include <spiconbutton.h>
#include <sprollingtext.h>

#include <QEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QLayout>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kSliderKnob = 40; // units of what is seen of it
constexpr int kLongestRow = 900; // units

struct Arrangement {
    int iconPx = 0;
    int rise = 0; // px of the icon above the middle
    QRect caption;
};

// The caption of a key with an icon has a line below it.
Arrangement arranged(const QSize &size, const Theme &theme, bool hasIcon, bool hasCaption)
{
    Arrangement result;
    const int most = std::min(theme.px(44), size.height() * 6 / 10);
    // Alone in a large key an icon has the weight of the key.
    const int alone = std::max(most, std::min(theme.px(64), size.height() * 9 / 20));
    const int lineHeight = theme.textPx(Theme::Small) * 3 / 2;
    result.iconPx = hasIcon ? alone : 0;
    result.caption = QRect(QPoint(), size);
    if (hasIcon && hasCaption) {
        result.iconPx = std::min(most, size.height() - lineHeight - theme.px(14));
        const int total = result.iconPx + lineHeight;
        const int top = (size.height() - total) / 2;
        result.rise = (size.height() - result.iconPx) / 2 - top;
        result.caption = QRect(0, top + result.iconPx, size.width(), lineHeight);
    }
    return result;
}

// A pill in the middle of a picture that is as high as a finger needs. The last column stays free:
// a knob at rest ends before it.
QPixmap switchTrack(const Theme &theme, const QSize &size, int pill, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.drawPixmap(0, (size.height() - pill) / 2,
                       theme.panel({size.width() - 1, pill}, color, QColor(), pill / 2));
    return pixmap;
}

QPixmap switchKnob(const Theme &theme, int pill, const QColor &color, const QColor &border)
{
    QPixmap pixmap(pill, pill);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const int margin = theme.px(5);
    const int size = pill - 2 * margin;
    painter.drawPixmap(margin, margin, theme.panel({size, size}, color, border, size / 2));
    return pixmap;
}

class RollWhileShown : public QObject
{
public:
    explicit RollWhileShown(SpRollingText &text) : QObject(&text), m_text(text)
    {
        text.setAutoRoll(text.isVisible());
        text.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            m_text.setAutoRoll(event->type() == QEvent::Show);
        return false;
    }

private:
    SpRollingText &m_text;
};

// A dot on a disc: a knob in the middle of a picture that is as large as a finger needs.
QPixmap sliderKnob(const Theme &theme, const QColor &color)
{
    const int touch = theme.touch();
    QPixmap pixmap(touch, touch);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const int size = theme.px(kSliderKnob);
    painter.drawPixmap((touch - size) / 2, (touch - size) / 2,
                       theme.panel({size, size}, color, QColor(), size / 2));
    const int core = theme.px(12);
    painter.drawPixmap((touch - core) / 2, (touch - core) / 2,
                       theme.panel({core, core}, theme.onAccent, QColor(), core / 2));
    return pixmap;
}

} // namespace

void dressKey(SpIconButton &button, const Theme &theme, Theme::Style style, const QString &icon)
{
    const QSize size = button.size();
    const Arrangement place =
        arranged(size, theme, !icon.isEmpty(), !button.displayText().isEmpty());
    const auto face = [&](Theme::State state) {
        return theme.key(size, style, state, icon, place.iconPx, place.rise);
    };
    button.setShowMode(SpIconButton::HighlightMode);
    button.setDisableMode(SpIconButton::Show_DisableImage);
    button.setNormalImage(face(Theme::Normal));
    button.setPressImage(face(Theme::Pressed));
    button.setFocusPixmap(face(Theme::Selected));
    button.setDisableImage(face(Theme::Disabled));
    button.setNormalTextColor(theme.ink(style, Theme::Normal));
    button.setPressTextColor(theme.ink(style, Theme::Pressed));
    button.setFocusTextColor(theme.ink(style, Theme::Selected));
    button.setDisableTextColor(theme.ink(style, Theme::Disabled));
    button.setFontSize(theme.textPx(icon.isEmpty() ? Theme::Body : Theme::Small));
    button.setTextTopMargin(place.caption.top());
    button.setTextHeight(place.caption.height());
}

void dressPanel(QLabel &panel, const Theme &theme)
{
    if (QLayout *layout = panel.layout()) {
        layout->setContentsMargins(theme.inset(), theme.px(4), theme.inset(), theme.px(4));
        layout->setSpacing(theme.gap());
        layout->activate();
    }
    panel.setPixmap(theme.panel(panel.size(), theme.face, theme.line, theme.radius()));
}

void dressChoice(MFocusButton &button, const Theme &theme, const QString &icon)
{
    const int inset = theme.inset();
    const int side = theme.px(32);
    const QRect whole(QPoint(), button.size());
    const auto mirrored = [&](const QRect &rect) {
        return QStyle::visualRect(button.layoutDirection(), whole, rect);
    };
    const auto place = [&](int left) {
        return mirrored({left, (whole.height() - side) / 2, side, side}).topLeft();
    };
    const auto face = [&](Theme::State state) {
        QPixmap picture = theme.key(whole.size(), Theme::Key, state);
        const QColor ink = theme.ink(Theme::Key, state);
        QPainter painter(&picture);
        if (!icon.isEmpty())
            painter.drawPixmap(place(inset), theme.icon(icon, side, ink));
        if (state == Theme::Selected)
            painter.drawPixmap(place(whole.width() - inset - side),
                               theme.icon(QStringLiteral("check"), side, ink));
        return picture;
    };
    button.setNormalImage(face(Theme::Normal));
    button.setPressImage(face(Theme::Selected));
    button.setNormalTextColor(theme.text);
    button.setPressTextColor(theme.onAccent);
    button.setFontSize(theme.textPx(Theme::Body));
    const int left = inset + (icon.isEmpty() ? 0 : side + theme.gap());
    const int width = QFontMetrics(button.font()).horizontalAdvance(button.displayText()) + 1;
    button.setdisplayTextRect(mirrored({left, 0, width, whole.height()}));
    button.update();
}

// The groove's picture is as wide as the slider, in which the knob's picture stays. The bar ends
// where what is seen of the knob ends.
void dressSlider(MHorSlider &slider, const Theme &theme, int width)
{
    const int bar = theme.px(10);
    const int overhang = sliderOverhang(theme);
    const auto groove = [&](const QColor &color) {
        QPixmap picture(width + 2 * overhang, bar);
        picture.fill(Qt::transparent);
        QPainter(&picture).drawPixmap(overhang, 0,
                                      theme.panel({width, bar}, color, QColor(), bar / 2));
        return picture;
    };
    slider.setSliderNormalImage(groove(grooveColor(theme)));
    slider.setSliderPressImage(groove(theme.accent));
    slider.setPointNormalImage(sliderKnob(theme, theme.accent));
    slider.setPointPressImage(sliderKnob(theme, theme.accent.darker(125)));
}

int sliderOverhang(const Theme &theme) { return (theme.touch() - theme.px(kSliderKnob)) / 2; }

QColor grooveColor(const Theme &theme)
{
    QColor color = theme.quietText;
    color.setAlphaF(0.4);
    return color;
}

void dressSwitch(MOnOffButton &button, const Theme &theme)
{
    const QSize size(theme.px(92), theme.touch());
    const int pill = theme.px(46);
    button.setFixedSize(size);
    button.setReverse(button.isRightToLeft());
    button.setNormalBkgPix(switchTrack(theme, size, pill, theme.accent));
    button.setPressBkgPix(switchTrack(theme, size, pill, grooveColor(theme)));
    // The same knob lies on both tracks, of which one is nearly as light: there its rim is seen.
    const QPixmap knob = theme.look() == Theme::Day
        ? switchKnob(theme, pill, Qt::white, theme.quietText)
        : switchKnob(theme, pill, theme.text, theme.onAccent);
    button.setNormalChunkPix(knob);
    button.setPressChunkPix(knob);
}

void standOnFace(QWidget &widget, const Theme &theme)
{
    QPalette palette = widget.palette();
    palette.setColor(widget.backgroundRole(), theme.face);
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

void rollWhileShown(SpRollingText &text) { new RollWhileShown(text); }

void dressLabel(QLabel &label, const Theme &theme, Theme::TextSize size, bool quiet)
{
    // Marks above letters stand higher than the font says that it goes.
    label.setContentsMargins(0, theme.textPx(size) / 8, 0, 0);
    label.setFont(theme.font(size, size == Theme::Title));
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, quiet ? theme.quietText : theme.text);
    label.setPalette(palette);
}

Qt::Alignment leadingAlignment()
{
    return QStyle::visualAlignment(QGuiApplication::layoutDirection(), Qt::AlignLeft)
        | Qt::AlignAbsolute | Qt::AlignVCenter;
}

void showRolling(SpRollingText &text, const QString &string)
{
    text.setLayoutDirection(string.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    text.setText(string);
}

QMargins rowMargins(const Theme &theme)
{
    const int room =
        theme.screen().width() - 2 * theme.margin() - SideKeys::columnWidth(theme) - theme.gap();
    const int spare = std::max(0, room - theme.px(kLongestRow)) / 2;
    return {spare, 0, spare, 0};
}

void dressHeading(QLabel &label, const Theme &theme)
{
    dressLabel(label, theme, Theme::Body);
    label.setFont(theme.font(Theme::Body, true));
}

} // namespace headunit
