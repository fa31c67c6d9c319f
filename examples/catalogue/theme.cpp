// SPDX-License-Identifier: Apache-2.0
#include "theme.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>
#include <QWidget>

namespace
{

constexpr int kFontSize = 13; // px
const QColor kListBase(0x17, 0x1a, 0x20);
const QColor kListSelection(0x32, 0x3c, 0x4a);
const QColor kOutlineSource(0x5e, 0x6a, 0x7a);

QPalette darkPalette()
{
    const QColor window(0x1c, 0x20, 0x27);
    const QColor base(0x2a, 0x30, 0x3a);
    const QColor button(0x2b, 0x31, 0x3b);
    const QColor text(0xe3, 0xe8, 0xee);
    const QColor fadedText(0x6a, 0x75, 0x83);

    QPalette dark(button, window);
    dark.setColor(QPalette::Base, base);
    dark.setColor(QPalette::ToolTipBase, button);
    dark.setColor(QPalette::ToolTipText, text);
    dark.setColor(QPalette::PlaceholderText, fadedText);
    dark.setColor(QPalette::Highlight, QColor(0x2b, 0x6c, 0xac));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Link, Theme::kAccent);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        dark.setColor(role, text);
        dark.setColor(QPalette::Disabled, role, fadedText);
    }
    return dark;
}

} // namespace

namespace Theme
{

void apply()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(darkPalette());
    QFont font = QApplication::font();
    font.setPixelSize(kFontSize);
    QApplication::setFont(font);
    QToolTip::setPalette(darkPalette());
}

QPalette fieldPalette()
{
    QPalette palette = darkPalette();
    palette.setColor(QPalette::Window, kOutlineSource);
    return palette;
}

void darken(QWidget &list)
{
    QPalette darker = list.palette();
    darker.setColor(QPalette::Base, kListBase);
    darker.setColor(QPalette::Highlight, kListSelection);
    list.setPalette(darker);
}

} // namespace Theme
