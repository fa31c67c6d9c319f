#ifndef MULTIPLESTATEBUTTON_H
#define MULTIPLESTATEBUTTON_H

#include "panelkitglobal.h"

#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

class QGraphicsOpacityEffect;

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

    int getButtonId() const { return m_buttonId; }
    int getButtonValue() const { return m_buttonValue; }
    int setButtonValue(int value);
    int setButtonDisable(bool disabled);

signals:
    void clicked(int id, int value);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    QPixmap stateImage() const;

    QList<QPixmap> m_normalImages; // one for each state
    QList<QPixmap> m_pressImages; // one for each state
    QPixmap m_background;
    int m_buttonId;
    int m_buttonValue = 0; // the state
    bool m_pressed = false;
    bool m_disabled = false;
    QPointer<QGraphicsOpacityEffect> m_opacity; // gone once another effect is installed
};

#endif // MULTIPLESTATEBUTTON_H
