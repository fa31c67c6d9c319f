// SPDX-License-Identifier: Apache-2.0
// Linked into each program that stands in the documentation: lets it show its window, looks whether
// it did, and ends it. The program is right if it comes here and returns from its event loop.

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdio>

namespace
{

void lookAndQuit()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const bool isShown = std::any_of(windows.begin(), windows.end(),
                                     [](const QWidget *window) { return window->isVisible(); });
    std::puts(isShown ? "shows a window" : "shows nothing");
    QApplication::exit(isShown ? 0 : 1);
}

void startDriver() { QTimer::singleShot(0, qApp, lookAndQuit); }

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startDriver)
