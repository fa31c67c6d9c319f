// SPDX-License-Identifier: Apache-2.0
#include "mainwindow.h"

#include "actbar.h"
#include "catalogue.h"
#include "pagelist.h"
#include "propertyeditor.h"
#include "scene.h"
#include "signallog.h"
#include "stage.h"
#include "theme.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

namespace
{

constexpr QSize kWindowSize(1280, 800);
constexpr int kListWidth = 220; // px
constexpr int kInspectorWidth = 370; // px
constexpr int kLogHeight = 190; // px

/// "SpIconButton left": the class, and the object's name if it has one.
QString nameOf(const QObject *object)
{
    const QString type = QString::fromLatin1(object->metaObject()->className());
    return object->objectName().isEmpty() ? type : type + QLatin1Char(' ') + object->objectName();
}

QLabel *createTitle()
{
    auto *title = new QLabel;
    QFont font = title->font();
    font.setPixelSize(24);
    font.setWeight(QFont::DemiBold);
    title->setFont(font);
    return title;
}

QLabel *createQuietLabel()
{
    auto *label = new QLabel;
    QPalette quiet = label->palette();
    quiet.setColor(QPalette::WindowText, Theme::kQuietText);
    label->setPalette(quiet);
    label->setWordWrap(true);
    return label;
}

} // namespace

MainWindow::MainWindow(const Catalogue &catalogue)
    : m_pageList(new PageList(catalogue)), m_title(createTitle()), m_toolTip(createQuietLabel()),
      m_stage(new Stage), m_actBar(new ActBar), m_log(new SignalLog), m_subjectBox(new QComboBox),
      m_properties(new PropertyEditor)
{
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_pageList);
    layout->addWidget(createMiddle(), 1);
    layout->addWidget(createInspector());
    m_pageList->setFixedWidth(kListWidth);
    setWindowTitle(tr("PanelKit catalogue"));
    resize(kWindowSize);

    connect(m_pageList, &PageList::chosen, this, &MainWindow::turnTo);
    connect(m_actBar, &ActBar::chosen, this, &MainWindow::perform);
    connect(m_stage, &Stage::rebuilt, this, &MainWindow::listSubjects);
    connect(m_stage, &Stage::signalEmitted, this, &MainWindow::logSignal);
    connect(m_properties, &PropertyEditor::edited, this, [this] { scene()->centreContent(); });
    // What a signal reports may show in properties too, but only once its sender has finished.
    connect(m_stage, &Stage::signalEmitted, m_properties, &PropertyEditor::readAll,
            Qt::QueuedConnection);
    connect(m_stage, &Stage::pictureWorthy, this, &MainWindow::pictureWorthy);
    connect(m_subjectBox, QOverload<int>::of(&QComboBox::activated), this,
            &MainWindow::inspectSubject);
}

void MainWindow::showPage(const Page &page) { m_pageList->setCurrentPage(page); }

// While touches are played no other act can be chosen: it would take away the content under them.
void MainWindow::perform(int act)
{
    const Act &chosen = m_page->acts.at(std::size_t(act));
    m_actBar->setCurrent(act);
    m_log->addHeading(chosen.name);
    m_actBar->setDisabled(chosen.isTouched());
    m_pageList->setDisabled(chosen.isTouched());
    m_stage->perform(*m_page, chosen);
    m_pageList->setEnabled(true);
    m_actBar->setEnabled(true);
    m_properties->readAll();
}

void MainWindow::addPressFeedback(QWidget *widget)
{
    m_log->add(nameOf(widget), tr("beep"));
    emit pressFeedbackAsked(nameOf(widget));
}

Scene *MainWindow::scene() const { return m_stage->scene(); }

QWidget *MainWindow::createMiddle()
{
    auto *show = new QWidget;
    auto *layout = new QVBoxLayout(show);
    layout->setContentsMargins(8, 0, 8, 0);
    layout->addWidget(m_title);
    layout->addWidget(m_toolTip);
    layout->addSpacing(4);
    layout->addWidget(m_stage, 1);
    layout->addSpacing(4);
    layout->addWidget(m_actBar);

    auto *middle = new QSplitter(Qt::Vertical);
    m_log->setContentsMargins(8, 4, 8, 0);
    middle->addWidget(show);
    middle->addWidget(m_log);
    middle->setStretchFactor(0, 1);
    middle->setChildrenCollapsible(false);
    middle->setSizes({kWindowSize.height() - kLogHeight, kLogHeight});
    return middle;
}

QWidget *MainWindow::createInspector()
{
    auto *inspector = new QWidget;
    inspector->setFixedWidth(kInspectorWidth);
    auto *layout = new QVBoxLayout(inspector);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_subjectBox);
    layout->addWidget(m_properties);
    return inspector;
}

void MainWindow::turnTo(const Page &page)
{
    m_page = &page;
    m_title->setText(page.name);
    m_toolTip->setText(page.classInfo.toolTip);
    m_actBar->setPage(page);
    m_log->clear();
    perform(0);
}

// The same subject as before is inspected if the content has as many.
void MainWindow::listSubjects()
{
    const QList<QObject *> subjects = scene()->subjects();
    const int inspected = qBound(0, m_subjectBox->currentIndex(), subjects.size() - 1);
    m_subjectBox->clear();
    for (const QObject *subject : subjects)
        m_subjectBox->addItem(nameOf(subject));
    m_subjectBox->setCurrentIndex(inspected);
    m_subjectBox->setVisible(subjects.size() > 1);
    inspectSubject(inspected);
}

void MainWindow::inspectSubject(int subject)
{
    m_properties->setSubject(scene()->subjects().value(subject));
}

void MainWindow::logSignal(QObject *subject, const QString &signal)
{
    m_log->add(nameOf(subject), signal);
    emit signalEmitted(nameOf(subject), signal);
}
