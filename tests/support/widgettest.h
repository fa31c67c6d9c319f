// SPDX-License-Identifier: Apache-2.0
#ifndef WIDGETTEST_H
#define WIDGETTEST_H

#include <QObject>
#include <QStringList>
#include <QtTest>

#include <functional>

class QPainter;
class QWidget;

/// The base of every test class. Each test function starts at a full virtual minute; each one fails
/// if anything was logged as a warning or worse that it did not take with takeMessages().
class WidgetTest : public QObject
{
    Q_OBJECT

public:
    /// Shows a widget on the offscreen screen and lets it settle.
    static void show(QWidget &widget);

    /// How many paint events an action makes the widget get, once the event loop has run.
    static int paints(QWidget &widget, const std::function<void()> &action);

protected:
    /// One line for each message logged since the last call, of any type: "debug: text".
    static QStringList takeMessages();

    /// Those of the lines not taken yet that fail a test; all of them are taken.
    static QStringList unexpectedMessages();

private slots:
    void init();
    void cleanup();
};

/// What a widget paints by itself, its children included, on a transparent ground.
QImage painted(QWidget &widget);

/// The same without its children.
QImage paintedItself(QWidget &widget);

/// The picture a test paints itself, with a painter set up as the widget's own would be.
QImage reference(const QWidget &widget, const std::function<void(QPainter &)> &paint);

struct PicturePair {
    QImage actual;
    QImage expected;
};

/// True if both pictures agree in every pixel. If not, they and their difference are written as PNG
/// and their place is reported. Use it through COMPARE_PICTURES.
bool isSamePicture(const PicturePair &pictures, const char *file, int line);

/// Makes the first picture before the second, whatever the compiler: painting a widget may change
/// it.
#define COMPARE_PICTURES(actual, expected)                                     \
    QVERIFY2(isSamePicture(PicturePair{actual, expected}, __FILE__, __LINE__), \
             "the pictures differ")

/// Prepares the program (offscreen, virtual time, plain event dispatcher, pinned style, palette and
/// font), then runs what it does.
int runPinned(int argc, char **argv, const std::function<int()> &run);

/// The same, and runs the test class.
int runWidgetTest(int argc, char **argv, const std::function<QObject *()> &makeTest);

#define WIDGET_TEST_MAIN(Class)                                     \
    int main(int argc, char **argv)                                 \
    {                                                               \
        return runWidgetTest(argc, argv, [] { return new Class; }); \
    }

#endif // WIDGETTEST_H
