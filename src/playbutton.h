// SPDX-License-Identifier: Apache-2.0
#ifndef PLAYBUTTON_H
#define PLAYBUTTON_H

#include "panelkitglobal.h"

#include <QString>
#include <QWidget>

#include <memory>

/**
 * A plain push button of two pictures, such as play or stop. Everything is told to its constructor:
 * where it stands in its parent, its number, and the files of its pictures; its size is that of the
 * normal one.
 *
 * Each release reports clicked with the number. A button with a picture missing is disabled: it is
 * drawn at half opacity and ignores touches.
 */
class PANELKIT_EXPORT PlayButton : public QWidget
{
    Q_OBJECT

public:
    PlayButton(int x, int y, int id, QString normalPath, QString pressPath,
               QWidget *parent = nullptr);
    ~PlayButton() override;

    int getButtonId() const;
    void setButtonDisable(bool disabled);

signals:
    void clicked(int id, int state);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // PLAYBUTTON_H
