// SPDX-License-Identifier: Apache-2.0
// The Designer plugin as Designer and QUiLoader use it: what it says of each class, and forms.

#include "panelkitclasses.h"

#include "signallog.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QBuffer>
#include <QPluginLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QUiLoader>

#include <memory>

namespace
{

QList<QDesignerCustomWidgetInterface *> offeredWidgets()
{
    QPluginLoader loader(QStringLiteral(DESIGNER_PLUGIN));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    if (!collection)
        qFatal("%s", qPrintable(loader.errorString()));
    return collection->customWidgets();
}

QDesignerCustomWidgetInterface *offered(const QString &className)
{
    for (QDesignerCustomWidgetInterface *widget : offeredWidgets()) {
        if (widget->name() == className)
            return widget;
    }
    return nullptr;
}

std::unique_ptr<QWidget> loadForm(QIODevice &form)
{
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(QStringLiteral(DESIGNER_PLUGIN)).path());
    return std::unique_ptr<QWidget>(loader.load(&form));
}

} // namespace

class tst_Designer : public WidgetTest
{
    Q_OBJECT

private slots:
    void everyListedWidgetIsOffered()
    {
        QStringList names;
        for (const QDesignerCustomWidgetInterface *widget : offeredWidgets())
            names += widget->name();
        QStringList listed;
#define NAME_ROW(Class, ...) listed += QStringLiteral(#Class);
        PANELKIT_FOR_EACH_WIDGET(NAME_ROW)
#undef NAME_ROW
        QCOMPARE(names, listed);
    }

    void anOfferedWidgetIntroducesItself_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("header");
        QTest::addColumn<QSize>("size");
#define OFFER_ROW(Class, create, header, family, toolTip, width, height, initial) \
    QTest::newRow(#Class) << QStringLiteral(#Class) << QStringLiteral(header)     \
                          << QSize(width, height);
        PANELKIT_FOR_EACH_WIDGET(OFFER_ROW)
#undef OFFER_ROW
    }

    void anOfferedWidgetIntroducesItself()
    {
        QFETCH(QString, name);
        QFETCH(QString, header);
        QFETCH(QSize, size);
        QDesignerCustomWidgetInterface *widget = offered(name);
        QVERIFY(widget);
        QCOMPARE(widget->group(), QStringLiteral("PanelKit"));
        QCOMPARE(widget->includeFile(), header);
        QVERIFY(!widget->toolTip().isEmpty());
        QVERIFY(!widget->isContainer());
        const QImage icon = widget->icon().pixmap(22, 22).toImage();
        QImage blank(icon.size(), QImage::Format_ARGB32_Premultiplied);
        blank.fill(Qt::transparent);
        QCOMPARE(icon.size(), QSize(22, 22));
        QVERIFY(icon.convertToFormat(blank.format()) != blank);

        QByteArray xml = widget->domXml().toUtf8();
        QBuffer form(&xml);
        const std::unique_ptr<QWidget> made = loadForm(form);
        QVERIFY(made);
        QCOMPARE(QString::fromLatin1(made->metaObject()->className()), name);
        QCOMPARE(made->size(), size.expandedTo(made->minimumSize()));
    }

    void aFormWithTwoButtonsLoadsAndBehaves()
    {
        QFile file(QStringLiteral(TWO_BUTTONS));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> form = loadForm(file);
        QVERIFY(form);
        auto *left = form->findChild<SpIconButton *>(QStringLiteral("leftButton"));
        auto *right = form->findChild<SpIconButton *>(QStringLiteral("rightButton"));
        QVERIFY(left && right);
        QCOMPARE(left->showMode(), SpIconButton::AlphaMode);
        QCOMPARE(left->disableMode(), SpIconButton::Show_DisableImage);
        QCOMPARE(left->imageAlpha(), 90);
        QCOMPARE(left->displayText(), QStringLiteral("Back & home"));
        QCOMPARE(left->pressTextColor(), QColor(20, 90, 160, 200));
        QVERIFY(right->supportLongPress());

        SignalLog leftLog(left);
        touch(left).tap(10, 10).hold(10);
        QCOMPARE(leftLog.take(),
                 (QStringList{"btnPressed(\"left\")", "btnClicked(\"left\")",
                              "btnReleased(\"left\")", "beep"}));
        SignalLog rightLog(right);
        Touch finger = touch(right);
        finger.tap(10, 10);
        QCOMPARE(rightLog.take(),
                 (QStringList{"btnPressed(\"right\")", "btnClicked(\"right\")",
                              "btnReleased(\"right\")"}));
        virtualtime::startMinute();
        finger.press(10, 10).hold(799);
        QCOMPARE(rightLog.take(), QStringList{"btnPressed(\"right\")"});
        finger.hold(1).release();
        QCOMPARE(rightLog.take(),
                 (QStringList{"btnLongPress(\"right\")", "btnLongRelease(\"right\")",
                              "btnReleased(\"right\")"}));
    }
};

WIDGET_TEST_MAIN(tst_Designer)
#include "tst_designer.moc"
