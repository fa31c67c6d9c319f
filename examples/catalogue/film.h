// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_FILM_H
#define CATALOGUE_FILM_H

#include <QDir>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QTimer>

class Catalogue;
class MainWindow;

/**
 * Takes the moving pictures of the documentation: plays an act of each class that moves and writes
 * what the scene shows, at even intervals of the virtual clock, to a folder of the class. A finger
 * on the screen is drawn as a ring.
 */
class Film : public QObject
{
    Q_OBJECT

public:
    /// What has to be before there is an application.
    static void prepare();

    Film(MainWindow &window, const QDir &directory);

    /// Plays all acts; returns the exit code of the program.
    int takeAll(const Catalogue &catalogue);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool take(const Catalogue &catalogue, const QString &pageName, const QString &actName,
              int rest);
    void takePicture();

    MainWindow &m_window;
    QDir m_directory;
    QTimer m_camera;
    QString m_className;
    QRect m_frame; // of the scene, px
    int m_pictures = 0;
    QPoint m_finger; // on the screen, px
    bool m_isTouching = false;
};

#endif // CATALOGUE_FILM_H
