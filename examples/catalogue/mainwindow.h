// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_MAINWINDOW_H
#define CATALOGUE_MAINWINDOW_H

#include <QWidget>

class ActBar;
class Catalogue;
struct Page;
class PageList;
class Scene;
class PropertyEditor;
class QComboBox;
class QLabel;
class SignalLog;
class Stage;

/**
 * The window: the list of pages, the stage with its acts, the properties of a subject and the log.
 * What happens on the stage is also signalled in words, for a tour that writes it down.
 */
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    explicit MainWindow(const Catalogue &catalogue);

    /// Turns to a page and shows its first act.
    void showPage(const Page &page);
    /// Performs an act of the page that is shown.
    void perform(int act);
    /// Logs that a widget has asked for the click sound.
    void addPressFeedback(QWidget *widget);

    Scene *scene() const;

signals:
    void signalEmitted(const QString &sender, const QString &signal);
    void pressFeedbackAsked(const QString &sender);
    /// The moment of an act that is worth a picture.
    void pictureWorthy();

private:
    QWidget *createMiddle();
    QWidget *createInspector();
    void turnTo(const Page &page);
    void listSubjects();
    void inspectSubject(int subject);
    void logSignal(QObject *subject, const QString &signal);

    const Page *m_page = nullptr;
    PageList *m_pageList;
    QLabel *m_title;
    QLabel *m_toolTip;
    Stage *m_stage;
    ActBar *m_actBar;
    SignalLog *m_log;
    QComboBox *m_subjectBox;
    PropertyEditor *m_properties;
};

#endif // CATALOGUE_MAINWINDOW_H
