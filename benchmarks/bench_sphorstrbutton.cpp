// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <benchmark/benchmark.h>
#include <QFontMetricsF>
#include <QIcon>
#include <QPushButton>
#include <QStaticText>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>
#include <sphorstrbutton.h>

namespace
{

constexpr QSize kSize(240, 96);
constexpr QSize kIcon(96, 96);
constexpr int kGap = 10; // px
constexpr int kVeil = 154; // alpha
constexpr double kFloorLimit = 1.15;
constexpr double kPeerLimit = 0.8;
constexpr double kStartUpLimit = 2;

const QColor kDisabledText(150, 150, 150, 150);

// The artwork of one button, made once.
struct Artwork {
    QPixmap normal = keyPicture(QColor(40, 90, 160), kIcon);
    QPixmap pressed = keyPicture(QColor(230, 120, 20), kIcon);
    QPixmap disabled = keyPicture(QColor(110, 110, 110), kIcon);
    QPixmap smallPressed = keyPicture(QColor(230, 120, 20), QSize(72, 72));
    QString text = QStringLiteral("Navigation");
};

const Artwork &artwork()
{
    static const Artwork instance;
    return instance;
}

// Ours: a button with all its icons, in the state into which the function brings it.
template <class Enter> PaintingMaker button(Enter enter)
{
    return widgetOf<SpHorStrButton>(kSize, [enter](SpHorStrButton &button) {
        button.setNormalPixmap(artwork().normal);
        button.setPressPixmap(artwork().pressed);
        button.setDisablePixmap(artwork().disabled);
        button.setDisplayString(artwork().text);
        enter(button);
    });
}

// Where the parts of a look stand, and its colour.
struct Parts {
    QPixmap icon;
    QPoint iconPos;
    QRect text;
    int flags;
    QColor color;
};

// The parts that need no more work, and the question to the style what is under them: a style may
// answer it differently each time.
class FloorWidget : public QWidget
{
public:
    void setParts(const Parts &parts)
    {
        m_parts = parts;
        m_text = QStaticText(artwork().text);
        m_text.setTextFormat(Qt::PlainText);
        m_text.prepare(QTransform(), font());
        m_at = QFontMetricsF(font())
                   .boundingRect(QRectF(parts.text), parts.flags, artwork().text)
                   .topLeft();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QStyleOption option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
        painter.drawPixmap(m_parts.iconPos, m_parts.icon);
        painter.setPen(m_parts.color);
        painter.drawStaticText(m_at, m_text);
    }

private:
    Parts m_parts;
    QPointF m_at;
    QStaticText m_text;
};

PaintingMaker floorOf(const Parts &parts)
{
    return widgetOf<FloorWidget>(kSize, [parts](FloorWidget &widget) { widget.setParts(parts); });
}

Parts leftParts(const QPixmap &icon, const QColor &color)
{
    const int text = kIcon.width() + kGap;
    return {icon,
            {0, 0},
            {text, 0, kSize.width() - text, kSize.height()},
            Qt::AlignLeft | Qt::AlignVCenter,
            color};
}

// The icon with black over its opaque pixels.
QPixmap veiled(const QPixmap &picture)
{
    QPixmap result = picture;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(result.rect(), QColor(0, 0, 0, kVeil));
    return result;
}

// The icon as drawPixmap() stretches it.
QPixmap stretched(const QPixmap &picture)
{
    QPixmap result(kIcon);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.drawPixmap(QRect(QPoint(), kIcon), picture);
    return result;
}

// Qt's own buttons with an icon beside a text.
template <class Button>
PaintingMaker iconButton(const QPixmap &picture, bool isDown, bool isDisabled)
{
    return widgetOf<Button>(kSize, [=](Button &button) {
        QIcon icon(picture);
        icon.addPixmap(picture, QIcon::Disabled);
        button.setIcon(icon);
        button.setIconSize(kIcon);
        button.setText(artwork().text);
        button.setDown(isDown);
        button.setEnabled(!isDisabled);
        if constexpr (std::is_same_v<Button, QToolButton>)
            button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    });
}

void addLook(Rows &rows, const char *state, const PaintingMaker &ours, const Parts &floor,
             bool isDown = false, bool isDisabled = false)
{
    rows.paint(
        "SpHorStrButton", state, ours, {floorOf(floor), kFloorLimit},
        {{"QPushButton icon", iconButton<QPushButton>(floor.icon, isDown, isDisabled), kPeerLimit},
         {"QToolButton icon", iconButton<QToolButton>(floor.icon, isDown, isDisabled),
          kPeerLimit}});
}

void addLooks(Rows &rows)
{
    const Artwork &art = artwork();
    addLook(rows, "normal", button([](SpHorStrButton &) {}), leftParts(art.normal, Qt::white));
    addLook(rows, "pressed", button([](SpHorStrButton &b) { b.setPressState(true); }),
            leftParts(art.pressed, Qt::red), true);
    addLook(rows, "stretched pressed", button([](SpHorStrButton &b) {
                b.setPressPixmap(artwork().smallPressed);
                b.setPressState(true);
            }),
            leftParts(stretched(art.smallPressed), Qt::red), true);
    addLook(rows, "disabled", button([](SpHorStrButton &b) { b.setBtnDisable(true); }),
            leftParts(art.disabled, kDisabledText), false, true);
    addLook(rows, "disabled darkened", button([](SpHorStrButton &b) {
                b.setDisablePixmap({});
                b.setBtnDisable(true);
            }),
            leftParts(veiled(art.normal), kDisabledText), false, true);
    addLook(rows, "string at the right",
            button([](SpHorStrButton &b) { b.setStringPosition(SpHorStrButton::StrRight); }),
            {art.normal,
             {kSize.width() - kIcon.width(), 0},
             {0, 0, kSize.width() - kIcon.width() - kGap, kSize.height()},
             Qt::AlignRight | Qt::AlignVCenter,
             Qt::white});
    addLook(rows, "string over the icon",
            button([](SpHorStrButton &b) { b.setStringPosition(SpHorStrButton::StrCenter); }),
            {art.normal, {0, 0}, QRect(QPoint(), kIcon), Qt::AlignCenter, Qt::white});
}

template <class Widget> StepMaker makeAndDelete()
{
    return [] {
        return [] {
            const Widget widget;
            benchmark::DoNotOptimize(&widget);
        };
    };
}

} // namespace

void defineRows(Rows &rows, Tag<SpHorStrButton>)
{
    addLooks(rows);
    rows.work("SpHorStrButton", "made and deleted", makeAndDelete<SpHorStrButton>(),
              {makeAndDelete<QWidget>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>(), 1.0}});
}
