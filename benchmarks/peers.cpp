// SPDX-License-Identifier: Apache-2.0
#include "peers.h"

#include "pictures.h"

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
