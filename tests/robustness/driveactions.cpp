// SPDX-License-Identifier: Apache-2.0
// What a drive does with a widget.
#include "drive.h"

#include "virtualtime.h"
#include "wildmodel.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QGraphicsEffect>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTest>
#include <QWheelEvent>

namespace
{

auto *touchPanel()
{
    static auto *const panel = QTest::createTouchDevice();
    return panel;
}

} // namespace

void Drive::actOnWidget(QWidget &widget)
{
    static constexpr void (Drive::*kActions[])(QWidget &) = {
        &Drive::resize,   &Drive::playMouse, &Drive::playMouse, &Drive::playFingers,
        &Drive::playKeys, &Drive::sendEvent, &Drive::change,    &Drive::move,
        &Drive::paint,    &Drive::paint};
    (this->*kActions[m_values.below(int(std::size(kActions)))])(widget);
}

QPoint Drive::somewhere(const QWidget &widget)
{
    const auto along = [this](int length) {
        return m_values.once(4) ? m_values.oneOf({-500, -1, 0, 500, 5000})
                                : int(m_values.below(256) * qint64(qMax(1, length)) / 256);
    };
    const int x = along(widget.width());
    return {x, along(widget.height())};
}

// Qt asks for the picture of a window that has become empty, and there is none.
void Drive::resize(QWidget &widget)
{
    widget.setMinimumSize(0, 0);
    widget.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QSize size = m_values.once(64) ? QSize(4096, 4096)
                                         : m_values.oneOf({QSize(120, 80), QSize(0, 0), QSize(1, 1),
                                                           QSize(3, 900), QSize(800, 480)});
    m_values.track.add("resize", size);
    widget.resize(widget.isWindow() ? size.expandedTo(QSize(1, 1)) : size);
}

// Mouse events as they come from a touch screen, to the widget or to one inside it.
void Drive::playMouse(QWidget &widget)
{
    QPointer<QWidget> target = &widget;
    const auto inside = widget.findChildren<QWidget *>();
    if (!inside.isEmpty() && m_values.once(2))
        target = inside[m_values.below(inside.size())];
    Qt::MouseButtons down;
    const auto send = [&](QEvent::Type type, Qt::MouseButton button) {
        if (!target)
            return;
        const QPoint at = somewhere(*target);
        m_values.track.add("mouse", type, at, target->metaObject()->className());
        QMouseEvent event(type, at, target->mapTo(target->window(), at), target->mapToGlobal(at),
                          button, down, Qt::NoModifier);
        event.setTimestamp(ulong(virtualtime::now()));
        QCoreApplication::sendEvent(target, &event);
        deleteLate();
    };
    down = Qt::LeftButton;
    send(m_values.once(8) ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, Qt::LeftButton);
    for (int moves = m_values.below(4); moves > 0; --moves) {
        send(QEvent::MouseMove, Qt::NoButton);
        if (m_values.once(3))
            wait(m_values.oneOf({1, 4, 20, 200, 3000}));
    }
    down = Qt::NoButton;
    if (m_values.below(5) > 0)
        send(QEvent::MouseButtonRelease, Qt::LeftButton);
}

// One or two fingers on the window, as the panel's driver reports them.
void Drive::playFingers(QWidget &widget)
{
    QPointer<QWidget> window = widget.window();
    const int fingers = 1 + m_values.below(2);
    const auto touch = [&](auto put) {
        if (!window || !window->windowHandle())
            return;
        auto sequence = QTest::touchEvent(window, touchPanel(), false);
        for (int finger = 0; finger < fingers; ++finger)
            put(sequence, finger);
        sequence.commit();
    };
    const auto at = [&] { return somewhere(*window); };
    m_values.track.add("fingers", fingers);
    touch([&](auto &sequence, int finger) { sequence.press(finger, at(), window); });
    for (int moves = m_values.below(4); moves > 0; --moves) {
        touch([&](auto &sequence, int finger) { sequence.move(finger, at(), window); });
        wait(m_values.oneOf({1, 16, 700}));
    }
    touch([&](auto &sequence, int finger) { sequence.release(finger, at(), window); });
}

void Drive::playKeys(QWidget &widget)
{
    const int key = m_values.oneOf({int(Qt::Key_Meta), int(Qt::Key_Space), int(Qt::Key_Left),
                                    int(Qt::Key_Down), int(Qt::Key_PageUp), int(Qt::Key_End)});
    const QString text = m_values.oneOf({QStringLiteral("beep"), QStringLiteral("pressicon"),
                                         QStringLiteral("grayicon"), QString()});
    m_values.track.add("key", key, text);
    const QPointer<QWidget> target = &widget;
    // An item view goes on to its members after the row has changed.
    const QScopedValueRollback<bool> inside(m_isInsideQt,
                                            qobject_cast<QAbstractItemView *>(&widget));
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        if (target)
            QCoreApplication::sendEvent(target, &event);
        deleteLate();
    }
}

void Drive::sendEvent(QWidget &widget)
{
    const QPoint at = somewhere(widget);
    const int kind = m_values.below(4);
    m_values.track.add("event", kind, at);
    if (kind == 0) {
        QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, m_values.oneOf({120, -120, 7})},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &event);
    } else if (kind == 1) {
        QEnterEvent event(at, at, widget.mapToGlobal(at));
        QCoreApplication::sendEvent(&widget, &event);
    } else if (kind == 2) {
        QEvent event(m_values.oneOf({QEvent::Leave, QEvent::LanguageChange}));
        QCoreApplication::sendEvent(&widget, &event);
    } else if (m_values.once(2)) {
        widget.setFocus();
    } else {
        widget.clearFocus();
    }
}

void Drive::change(QWidget &widget)
{
    const int kind = m_values.below(7);
    m_values.track.add("change", kind);
    switch (kind) {
    case 0:
        widget.setEnabled(m_values.value<bool>());
        break;
    case 1:
        widget.setVisible(m_values.below(4) > 0);
        break;
    case 2:
        widget.setStyleSheet(m_values.oneOf(
            {QString(), QStringLiteral("color: red; border: 3px solid blue; padding: 4px")}));
        break;
    case 3:
        widget.setFont(m_values.value<QFont>());
        break;
    case 4:
        widget.setPalette(QPalette(m_values.color()));
        break;
    case 5:
        widget.setLocale(m_values.oneOf({QLocale(QLocale::C), QLocale(QLocale::Arabic)}));
        break;
    default:
        widget.setLayoutDirection(m_values.oneOf({Qt::LeftToRight, Qt::RightToLeft}));
    }
}

// To another parent, to none, or to another place; or away.
void Drive::move(QWidget &widget)
{
    const int kind = m_values.below(5);
    m_values.track.add("move", kind);
    switch (kind) {
    case 0:
        widget.setParent(m_otherParent.get());
        widget.show();
        m_otherParent->show();
        break;
    case 1:
        widget.setParent(nullptr);
        widget.resize(widget.size().expandedTo(QSize(1, 1)));
        widget.show();
        break;
    case 2:
        widget.move(somewhere(widget));
        break;
    case 3:
        delete m_object;
        break;
    default:
        widget.deleteLater();
    }
}

void Drive::paint(QWidget &widget)
{
    QImage image(64, 64,
                 m_values.oneOf({QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB16,
                                 QImage::Format_RGB32}));
    image.setDevicePixelRatio(qreal(m_values.oneOf({1, 2})));
    m_values.track.add("paint", image);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
}

qint64 Drive::area() const
{
    const auto *widget = qobject_cast<const QWidget *>(m_object.data());
    return widget ? qint64(widget->width()) * widget->height() : 0;
}

// As many pixels as can be copied while the widget is painted once. What an effect blurs reaches
// beyond the widget.
qint64 Drive::paintWork() const
{
    constexpr int kBlur = 8;
    const auto *widget = qobject_cast<const QWidget *>(m_object.data());
    if (!widget || !widget->graphicsEffect())
        return area();
    const QSizeF reach = widget->graphicsEffect()->boundingRectFor(widget->rect()).size();
    return qint64(reach.width()) * qint64(reach.height()) * kBlur;
}
