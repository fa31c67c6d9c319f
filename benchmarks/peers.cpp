// SPDX-License-Identifier: Apache-2.0
#include "peers.h"

#include <QPushButton>
#include <QSlider>

void enter(QAbstractButton &button, PeerState state)
{
    button.setCheckable(state == PeerState::Checked);
    button.setChecked(state == PeerState::Checked);
    button.setDown(state == PeerState::Pressed);
    button.setEnabled(state != PeerState::Disabled);
}

PaintingMaker styledButton(const QSize &size, const QString &sheet, const QString &text,
                           PeerState state)
{
    return widgetOf<QPushButton>(size, [=](QPushButton &button) {
        button.setStyleSheet(sheet);
        button.setText(text);
        enter(button, state);
    });
}

QString pictureSheet(const QPixmap &picture)
{
    return QStringLiteral("QPushButton { border-width: 0; color: white; border-image: url(%1); }")
        .arg(fileOf(picture));
}

PaintingMaker styledSlider(const QSize &size, Qt::Orientation orientation, const QString &sheet,
                           int value)
{
    return widgetOf<QSlider>(size, [=](QSlider &slider) {
        slider.setOrientation(orientation);
        slider.setRange(0, 100);
        slider.setValue(value);
        slider.setStyleSheet(sheet);
    });
}

PaintingMaker picturedSlider(const QSize &size, Qt::Orientation orientation,
                             const SliderArtwork &artwork, int value)
{
    const bool isHorizontal = orientation == Qt::Horizontal;
    const QSize groove = artwork.groove.size();
    const QSize knob = artwork.knob.size();
    const auto overhang = [](int whole, int part) { return QString::number((part - whole) / 2); };
    const QString sides = overhang(groove.width(), knob.width());
    const QString ends = overhang(groove.height(), knob.height());
    const QString sheet =
        QStringLiteral(
            "QSlider::groove { width: %1px; height: %2px; background: url(%3); }"
            "QSlider::%4 { background: url(%5) no-repeat %6; }"
            "QSlider::handle { width: %7px; height: %8px; margin: %9; image: url(%10); }")
            .arg(groove.width())
            .arg(groove.height())
            .arg(fileOf(artwork.groove),
                 isHorizontal ? QStringLiteral("sub-page") : QStringLiteral("add-page"),
                 fileOf(artwork.fill),
                 isHorizontal ? QStringLiteral("left") : QStringLiteral("bottom"))
            .arg(knob.width())
            .arg(knob.height())
            .arg(isHorizontal ? QStringLiteral("-%1px 0").arg(ends)
                              : QStringLiteral("0 -%1px").arg(sides),
                 fileOf(artwork.knob));
    return styledSlider(size, orientation, sheet, value);
}
