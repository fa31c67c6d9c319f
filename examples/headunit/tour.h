// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TOUR_H
#define HEADUNIT_TOUR_H

#include "context.h"
#include "finger.h"
#include "tourlog.h"
#include "tourscript.h"

#include <QDir>

namespace headunit
{

class HeadUnit;

/**
 * Drives the head unit by itself: opens every page by its tile, does what the script says there,
 * and leaves a picture of each step and the signals of every PanelKit widget. Every run gives the
 * same: its clock is a virtual one that begins at the same time of day, and nothing sounds.
 */
class Tour : public QObject
{
    Q_OBJECT

public:
    /// Prepares the process, or begins it again in order to; call it first of all.
    static void prepare(char **argv);

    /// How it finds what it touches: as the program knows it, or as accessibility tells, whose
    /// actions then stand for the taps.
    enum class By { Object, Name };

    /// The screen is not shown yet.
    Tour(HeadUnit &screen, const Context &context, const QString &directory, By by = By::Object);

    /// Shows the screen and plays; returns the exit code of the program.
    int play();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void listenTo(QWidget &widget);
    void waitForMusic();
    void playPage(const QString &page);
    void playStep(const QString &page, const TourStep &step);
    void playNight();
    void openPage(const QString &name);
    void goHome();
    void touch(const TourTouch &touch);
    void touchNamed(const TourTouch &touch);
    QWidget *visibleWidget(const QString &name) const;
    void takePicture();

    HeadUnit &m_screen;
    const Context m_context;
    TourLog m_log;
    Finger m_finger;
    const By m_by;
    bool m_isDown = false; // the finger, until the picture has been taken
};

} // namespace headunit

#endif // HEADUNIT_TOUR_H
