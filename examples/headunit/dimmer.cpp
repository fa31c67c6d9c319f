// SPDX-License-Identifier: Apache-2.0
#include "dimmer.h"

#include <QPainter>
#include <QPaintEvent>

namespace headunit
{

namespace
{

constexpr int kFull = 100; // percent
constexpr int kDarkest = 200; // alpha of no brightness at all, so that the least one can be read

} // namespace

Dimmer::Dimmer(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("dimmer"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void Dimmer::setBrightness(int percent)
{
    m_veil = QColor(0, 0, 0, (kFull - percent) * kDarkest / kFull);
    setVisible(percent < kFull);
    update();
}

void Dimmer::paintEvent(QPaintEvent *e) { QPainter(this).fillRect(e->rect(), m_veil); }

} // namespace headunit
