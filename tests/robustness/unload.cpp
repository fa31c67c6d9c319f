// SPDX-License-Identifier: Apache-2.0
// Takes the library in while an application runs, uses a widget of it, and lets it go again:
//   panelkit_unload <library> <mangled name of a function that makes a widget>

#include <QApplication>
#include <QWidget>

#include <cstdio>
#include <dlfcn.h>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    for (int i = 0; i < 3; ++i) {
        void *const library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
        void *const make = library ? dlsym(library, argv[2]) : nullptr;
        if (!make) {
            std::fprintf(stderr, "%s\n", dlerror());
            return 1;
        }
        auto *widget = reinterpret_cast<QWidget *(*)()>(make)();
        widget->resize(80, 60);
        widget->show();
        QCoreApplication::processEvents();
        delete widget;
        if (dlclose(library) != 0 || dlopen(argv[1], RTLD_NOW | RTLD_NOLOAD))
            return 1;
        QCoreApplication::processEvents();
    }
    return 0;
}
