// SPDX-License-Identifier: Apache-2.0
#ifndef MULTIPLESTATEBUTTON_H
#define MULTIPLESTATEBUTTON_H

#include "panelkitglobal.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>

/**
 * A small image button that steps through several states, one pair of pictures for each, over an
 * optional background. Everything is told to its constructor: where it stands in its parent, its
 * number, and the files of its pictures, whose size becomes its own.
 *
 * Each release steps on, after the last state to the first, and reports clicked with the number and
 * the new state. A button with a picture missing is disabled: it is drawn at half opacity and
 * ignores touches.
 */
class PANELKIT_EXPORT MultipleStateButton : public QWidget
{
    Q_OBJECT

public:
    MultipleStateButton(int x, int y, int id, QStringList normalPaths, QStringList pressPaths,
                        QString backgroundPath, QWidget *parent = nullptr);
    ~MultipleStateButton() override;

    int getButtonId() const;
    int getButtonValue() const;
    int setButtonValue(int value);
    int setButtonDisable(bool disabled);

signals:
    void clicked(int id, int value);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MULTIPLESTATEBUTTON_H
