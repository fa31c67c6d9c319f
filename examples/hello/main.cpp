// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QTextStream>
#include <SpIconButton>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);

    SpIconButton button;
    button.setButtonID("hello");
    button.setDisplayText("Hello");
    button.setNormalTextColor(Qt::black);
    button.resize(240, 96);
    button.show();

    QObject::connect(&button, &SpIconButton::btnClicked,
                     [](const QString &id) { QTextStream(stdout) << "clicked " << id << '\n'; });
    return QApplication::exec();
}
