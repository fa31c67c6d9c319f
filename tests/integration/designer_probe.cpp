// SPDX-License-Identifier: Apache-2.0
// Loaded into the real Designer, which opens a form with every widget: looks whether they are there
// and how their properties are grouped, says where the mouse has to drag a widget from and to,
// waits until it has been dropped, and takes a picture of the screen before and after. Says on
// standard output "drag X Y X Y", "dropped <class> <name>", and at the end "done"; or "failed
// <why>".
//
// Wants PROBE_FOLDER, where the pictures and the form go, PROBE_COUNT, the number of widgets in the
// form, and PROBE_SPACE, "x,y" of a free place in it.

#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QMdiSubWindow>
#include <QPointer>
#include <QScreen>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>
#include <QTreeWidget>

#include <cstdio>
#include <cstdlib>

namespace
{

const char kDragged[] = "SpIconButton";

[[noreturn]] void end(const QString &word)
{
    std::puts(qPrintable(word));
    std::fflush(stdout);
    std::_Exit(word == QLatin1String("done") ? 0 : 1);
}

void require(bool holds, const QString &what)
{
    if (!holds)
        end(QStringLiteral("failed ") + what);
}

QString inFolder(const char *name)
{
    return qEnvironmentVariable("PROBE_FOLDER") + QLatin1Char('/') + QLatin1String(name);
}

void takePicture(const char *name)
{
    QScreen *screen = QApplication::primaryScreen();
    require(screen->grabWindow(0).save(inFolder(name)), QStringLiteral("no picture"));
}

template <typename Widget> Widget *shown(const char *className)
{
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->inherits(className) && widget->isVisible())
            return dynamic_cast<Widget *>(widget);
    }
    return nullptr;
}

QStringList formWidgets(const QDesignerFormWindowInterface &form)
{
    QStringList classes;
    for (const QWidget *widget :
         form.mainContainer()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (form.isManaged(const_cast<QWidget *>(widget)))
            classes += QString::fromLatin1(widget->metaObject()->className());
    }
    return classes;
}

QString groupOf(const QDesignerFormWindowInterface &form, QWidget *widget, const char *property)
{
    auto *sheet =
        qt_extension<QDesignerPropertySheetExtension *>(form.core()->extensionManager(), widget);
    return sheet->propertyGroup(sheet->indexOf(QString::fromLatin1(property)));
}

class Probe : public QObject
{
public:
    using QObject::QObject;

    void start() { startTimer(200); }

protected:
    void timerEvent(QTimerEvent *) override
    {
        if (!m_form)
            lookForForm();
        else if (!m_isAsked)
            askForDrag();
        else if (!m_dropped)
            lookForDropped();
        else
            finish();
    }

private:
    void lookForForm()
    {
        auto *form = shown<QDesignerFormWindowInterface>("QDesignerFormWindowInterface");
        if (!form || formWidgets(*form).isEmpty())
            return;
        m_form = form;
        form->window()->setGeometry(QApplication::primaryScreen()->geometry());
        for (QWidget *parent = form; parent; parent = parent->parentWidget()) {
            if (auto *subWindow = qobject_cast<QMdiSubWindow *>(parent))
                subWindow->showMaximized();
        }
    }

    void askForDrag()
    {
        const QStringList classes = formWidgets(*m_form);
        require(classes.size() == qEnvironmentVariableIntValue("PROBE_COUNT"),
                QStringLiteral("the form shows ") + classes.join(QLatin1Char(' ')));
        auto *button =
            m_form->mainContainer()->findChild<QWidget *>(QStringLiteral("spiconbutton"));
        require(groupOf(*m_form, button, "normalImage") == QLatin1String("Pictures")
                    && groupOf(*m_form, button, "pressTextColor") == QLatin1String("Colours")
                    && groupOf(*m_form, button, "buttonID") == QLatin1String("Identifiers"),
                QStringLiteral("the properties are not grouped"));
        takePicture("form.png");
        const QPoint from = placeInBox();
        const QStringList space = qEnvironmentVariable("PROBE_SPACE").split(QLatin1Char(','));
        const QPoint to = m_form->mainContainer()->mapToGlobal(
            QPoint(space.value(0).toInt(), space.value(1).toInt()));
        std::printf("drag %d %d %d %d\n", from.x(), from.y(), to.x(), to.y());
        std::fflush(stdout);
        m_isAsked = true;
    }

    // Opens the widget's heading in the box and closes the others.
    static QPoint placeInBox()
    {
        auto *box = shown<QTreeWidget>("qdesigner_internal::WidgetBoxTreeWidget");
        require(box, QStringLiteral("there is no widget box"));
        QAbstractItemView *list = nullptr;
        for (int i = 0; i < box->topLevelItemCount(); ++i) {
            QTreeWidgetItem *heading = box->topLevelItem(i);
            const bool isWanted = heading->text(0) == QLatin1String("PanelKit: Touch buttons");
            heading->setExpanded(isWanted);
            if (isWanted)
                list = qobject_cast<QAbstractItemView *>(box->itemWidget(heading->child(0), 0));
        }
        require(list, QStringLiteral("the box has no heading for touch buttons"));
        QApplication::processEvents();
        const QModelIndexList found = list->model()->match(
            list->model()->index(0, 0), Qt::DisplayRole, QString::fromLatin1(kDragged));
        require(!found.isEmpty(), QStringLiteral("the widget is not in the box"));
        list->scrollTo(found.constFirst());
        QApplication::processEvents();
        return list->viewport()->mapToGlobal(list->visualRect(found.constFirst()).center());
    }

    void lookForDropped()
    {
        auto *widget =
            m_form->mainContainer()->findChild<QWidget *>(QStringLiteral("spIconButton"));
        if (!widget)
            return;
        m_dropped = widget;
        m_form->clearSelection(false);
        m_form->selectWidget(widget);
        require(groupOf(*m_form, widget, "buttonID") == QLatin1String("Identifiers"),
                QStringLiteral("the properties of the dropped widget are not grouped"));
        std::printf("dropped %s %dx%d\n", widget->metaObject()->className(), widget->width(),
                    widget->height());
    }

    // One beat later, when the property editor shows the dropped widget.
    void finish()
    {
        const auto *editor =
            shown<QDesignerPropertyEditorInterface>("QDesignerPropertyEditorInterface");
        auto *properties = editor ? editor->findChild<QTreeWidget *>() : nullptr;
        require(properties, QStringLiteral("there is no property editor"));
        for (const char *group : {"Identifiers", "Colours", "Pictures"}) {
            const QList<QTreeWidgetItem *> found =
                properties->findItems(QString::fromLatin1(group), Qt::MatchExactly);
            require(found.size() == 1, QStringLiteral("the editor shows no ") + group);
            properties->scrollToItem(found.constFirst(), QAbstractItemView::PositionAtTop);
        }
        QApplication::processEvents();
        takePicture("dropped.png");
        QFile file(inFolder("saved.ui"));
        require(file.open(QIODevice::WriteOnly), QStringLiteral("cannot save the form"));
        file.write(m_form->contents().toUtf8());
        file.close();
        end(QStringLiteral("done"));
    }

    QPointer<QDesignerFormWindowInterface> m_form;
    bool m_isAsked = false;
    QPointer<QWidget> m_dropped;
};

void startProbe() { (new Probe(qApp))->start(); }

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startProbe)
