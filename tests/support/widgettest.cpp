// SPDX-License-Identifier: Apache-2.0
#include "widgettest.h"

#include "virtualtime.h"

#include <QApplication>
#include <QDir>
#include <QFontInfo>
#include <QPainter>
#include <QStyleFactory>
#include <QWidget>

#include <cstdio>
#include <memory>

namespace
{

const QString kFontFamily = QStringLiteral("DejaVu Sans");
constexpr int kFontSize = 16; // px

QStringList messages; // since the last takeMessages()
QtMessageHandler testLibHandler = nullptr;

QString typeName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        break;
    }
    return QStringLiteral("fatal");
}

void record(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtFatalMsg)
        testLibHandler(type, context, text);
    messages += QStringLiteral("%1: %2").arg(typeName(type), text);
}

// Counts the paint events of one widget, as they arrive.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }
    int count() const { return m_count; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_count;
        return false;
    }

private:
    int m_count = 0;
};

QImage difference(const QImage &actual, const QImage &expected)
{
    const QSize size = actual.size().expandedTo(expected.size());
    QImage result(size, QImage::Format_RGB32);
    result.fill(Qt::black);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool inBoth = actual.valid(x, y) && expected.valid(x, y);
            if (!inBoth || actual.pixel(x, y) != expected.pixel(x, y))
                result.setPixel(x, y, qRgb(255, 0, 0));
        }
    }
    return result;
}

void pinAppearance()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30)));
    QFont font(kFontFamily);
    font.setPixelSize(kFontSize);
    if (QFontInfo(font).family() != kFontFamily) {
        std::fprintf(stderr, "The tests need the font DejaVu Sans (package fonts-dejavu-core).\n");
        std::exit(2);
    }
    QApplication::setFont(font);
}

QImage rendered(QWidget &widget, QWidget::RenderFlags flags)
{
    // Qt gives a window that never had a size its own when it is first rendered: too late for this.
    QWidget &window = *widget.window();
    if (!window.isVisible() && !window.testAttribute(Qt::WA_Resized))
        window.adjustSize();
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (image.isNull())
        return image;
    widget.render(&image, QPoint(), QRegion(), flags);
    return image;
}

} // namespace

QStringList WidgetTest::takeMessages() { return std::exchange(messages, QStringList()); }

QStringList WidgetTest::unexpectedMessages()
{
    return takeMessages().filter(QRegularExpression(QStringLiteral("^(warning|critical): ")));
}

void WidgetTest::show(QWidget &widget)
{
    widget.show();
    virtualtime::advance(0);
    QVERIFY(widget.isVisible());
}

int WidgetTest::paints(QWidget &widget, const std::function<void()> &action)
{
    QCoreApplication::processEvents();
    const PaintCounter counter(widget);
    action();
    virtualtime::advance(0);
    return counter.count();
}

void WidgetTest::init()
{
    virtualtime::startMinute();
    messages.clear();
    testLibHandler = qInstallMessageHandler(record);
}

void WidgetTest::cleanup()
{
    qInstallMessageHandler(testLibHandler);
    const QStringList unexpected = unexpectedMessages();
    QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join(QLatin1Char('\n'))));
}

QImage painted(QWidget &widget) { return rendered(widget, QWidget::DrawChildren); }

QImage paintedItself(QWidget &widget) { return rendered(widget, QWidget::RenderFlags()); }

QImage reference(const QWidget &widget, const std::function<void(QPainter &)> &paint)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    painter.setFont(widget.font());
    painter.setPen(QPen(widget.palette().color(widget.foregroundRole()), 1));
    paint(painter);
    return image;
}

bool isSamePicture(const PicturePair &pictures, const char *file, int line)
{
    const auto &[actual, expected] = pictures;
    if (actual == expected)
        return true;
    const QDir directory(QDir::current().filePath(QStringLiteral("differences")));
    directory.mkpath(QStringLiteral("."));
    const QString name = QStringLiteral("%1-%2-%3")
                             .arg(QFileInfo(QString::fromUtf8(file)).completeBaseName(),
                                  QString::fromUtf8(QTest::currentTestFunction()))
                             .arg(line);
    const QString base = directory.filePath(name);
    actual.save(base + QStringLiteral("-actual.png"));
    expected.save(base + QStringLiteral("-expected.png"));
    difference(actual, expected).save(base + QStringLiteral("-difference.png"));
    std::fprintf(stderr, "see %s-{actual,expected,difference}.png\n", qPrintable(base));
    return false;
}

int runPinned(int argc, char **argv, const std::function<int()> &run)
{
    virtualtime::start();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");
    qunsetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_STYLE_OVERRIDE");
    const QTemporaryDir runtimeDir;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeDir.path()));
    QApplication app(argc, argv);
    pinAppearance();
    return run();
}

int runWidgetTest(int argc, char **argv, const std::function<QObject *()> &makeTest)
{
    return runPinned(argc, argv, [&] {
        const std::unique_ptr<QObject> test(makeTest());
        return QTest::qExec(test.get(), argc, argv);
    });
}
