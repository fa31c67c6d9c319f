// SPDX-License-Identifier: Apache-2.0
#ifndef MFOCUSBUTTON_H
#define MFOCUSBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QRadioButton>
#include <QRect>
#include <QString>

#include <memory>

/**
 * One of several pictured buttons of which one is the current choice, with a caption over it.
 *
 * Those in one parent, or in one QButtonGroup, exclude each other as radio buttons do; the checked
 * one keeps its pressed look. A release reports btnClicked, a press that is held reports
 * btnLongClicked instead, both with buttonID, so that one slot can serve a whole screen. The click
 * sound is asked for on release, not on the press. Without a normal picture it is a plain radio
 * button.
 */
class PANELKIT_EXPORT MFocusButton : public QRadioButton
{
    Q_OBJECT
    Q_PROPERTY(QPixmap normalImage READ normalImage WRITE setNormalImage)
    Q_PROPERTY(QPixmap pressImage READ pressImage WRITE setPressImage)
    Q_PROPERTY(QPixmap disableImage READ disableImage WRITE setDisableImage)
    Q_PROPERTY(QString displayText READ displayText WRITE setDisplayText)
    Q_PROPERTY(QColor normalTextColor READ normalTextColor WRITE setNormalTextColor)
    Q_PROPERTY(QColor pressTextColor READ pressTextColor WRITE setPressTextColor)
    Q_PROPERTY(QColor disableTextColor READ disableTextColor WRITE setDisableTextColor)
    Q_PROPERTY(QRect displayTextRect READ displayTextRect WRITE setdisplayTextRect DESIGNABLE false)
    Q_PROPERTY(QString buttonID READ buttonID WRITE setButtonID)

public:
    explicit MFocusButton(QWidget *parent = nullptr);
    ~MFocusButton() override;

    QPixmap normalImage() const;
    void setNormalImage(const QPixmap &image);
    QPixmap pressImage() const;
    void setPressImage(const QPixmap &image);
    QPixmap disableImage() const;
    void setDisableImage(const QPixmap &image);
    QString displayText() const;
    void setDisplayText(const QString &text);
    QColor normalTextColor() const;
    void setNormalTextColor(const QColor &color);
    QColor pressTextColor() const;
    void setPressTextColor(const QColor &color);
    QColor disableTextColor() const;
    void setDisableTextColor(const QColor &color);
    QRect displayTextRect() const;
    void setdisplayTextRect(const QRect &rect);
    QString buttonID() const;
    void setButtonID(const QString &id);

    int getLongPressIntal() const;
    void setLongPressIntal(int interval);
    void setFontSize(int px);

    /// True: the whole widget takes touches, not only what a radio button paints.
    bool hitButton(const QPoint &pos) const override;

signals:
    void btnClicked(QString btnID);
    void btnLongClicked(QString btnID);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void timerEvent(QTimerEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MFOCUSBUTTON_H
