// SPDX-License-Identifier: Apache-2.0
#ifndef MPRESETBUTTON_H
#define MPRESETBUTTON_H

#include "panelkitglobal.h"

#include <QCheckBox>
#include <QColor>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QString>

#include <memory>

/**
 * A preset key, as for the stations of a radio: a picture with a small icon and two lines of text,
 * each of them placed freely.
 *
 * A tap reports btnClicked, a press that is held for 1500 ms btnLongClicked, both with buttonID, so
 * that one slot can serve a whole row. Any movement of the finger spoils the tap, more than 20 px
 * the long press too. Which preset is playing is for the application to say, with setChecked(): a
 * touch never checks the key. Without a normal picture it is painted as a plain check box.
 */
class PANELKIT_EXPORT MPresetButton : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(QPixmap normalImage READ normalImage WRITE setNormalImage)
    Q_PROPERTY(QPixmap pressImage READ pressImage WRITE setPressImage)
    Q_PROPERTY(QPixmap disableImage READ disableImage WRITE setDisableImage)
    Q_PROPERTY(QPixmap presetIcon READ presetIcon WRITE setPresetIcon)
    Q_PROPERTY(QPoint presetIconPos READ presetIconPos WRITE setPresetIconPos)
    Q_PROPERTY(QString displayText READ displayText WRITE setDisplayText)
    Q_PROPERTY(QString displayText2 READ displayText2 WRITE setDisplayText2)
    Q_PROPERTY(QColor normalTextColor READ normalTextColor WRITE setNormalTextColor)
    Q_PROPERTY(QColor pressTextColor READ pressTextColor WRITE setPressTextColor)
    Q_PROPERTY(QColor disableTextColor READ disableTextColor WRITE setDisableTextColor)
    Q_PROPERTY(QColor normalTextColor2 READ normalTextColor2 WRITE setNormalTextColor2)
    Q_PROPERTY(QColor pressTextColor2 READ pressTextColor2 WRITE setPressTextColor2)
    Q_PROPERTY(QColor disableTextColor2 READ disableTextColor2 WRITE setDisableTextColor2)
    Q_PROPERTY(QRect displayTextRect READ displayTextRect WRITE setdisplayTextRect DESIGNABLE false)
    Q_PROPERTY(
        QRect displayTextRect2 READ displayTextRect2 WRITE setdisplayTextRect2 DESIGNABLE false)
    Q_PROPERTY(int fontSize2 READ fontSize2 WRITE setFontSize2)
    Q_PROPERTY(QString buttonID READ buttonID WRITE setButtonID)

public:
    explicit MPresetButton(QWidget *parent = nullptr);
    ~MPresetButton() override;

    QPixmap normalImage() const;
    void setNormalImage(const QPixmap &image);
    QPixmap pressImage() const;
    void setPressImage(const QPixmap &image);
    QPixmap disableImage() const;
    void setDisableImage(const QPixmap &image);
    QPixmap presetIcon() const;
    void setPresetIcon(const QPixmap &icon);
    QPoint presetIconPos() const;
    void setPresetIconPos(const QPoint &pos);
    QString displayText() const;
    void setDisplayText(const QString &text);
    QString displayText2() const;
    void setDisplayText2(const QString &text);
    QColor normalTextColor() const;
    void setNormalTextColor(const QColor &color);
    QColor pressTextColor() const;
    void setPressTextColor(const QColor &color);
    QColor disableTextColor() const;
    void setDisableTextColor(const QColor &color);
    QColor normalTextColor2() const;
    void setNormalTextColor2(const QColor &color);
    QColor pressTextColor2() const;
    void setPressTextColor2(const QColor &color);
    QColor disableTextColor2() const;
    void setDisableTextColor2(const QColor &color);
    QRect displayTextRect() const;
    void setdisplayTextRect(const QRect &rect);
    QRect displayTextRect2() const;
    void setdisplayTextRect2(const QRect &rect);
    int fontSize2() const;
    void setFontSize2(const int &px);
    QString buttonID() const;
    void setButtonID(const QString &id);

    /// True: the whole widget takes touches, not only what a check box paints.
    bool hitButton(const QPoint &pos) const override;

signals:
    void btnClicked(QString btnID);
    void btnLongClicked(QString btnID);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void timerEvent(QTimerEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MPRESETBUTTON_H
