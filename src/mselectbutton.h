// SPDX-License-Identifier: Apache-2.0
#ifndef MSELECTBUTTON_H
#define MSELECTBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>

#include <memory>

/**
 * A pictured button that can be selected, with a caption in a colour for each look.
 *
 * A tap reports btnClicked, a press that is held for 1500 ms btnLongClicked, both with buttonID, so
 * that one slot can serve a whole screen; a finger that slides more than 10 px away reports
 * neither. What is selected is for the application to say, with setSelectState(): the button never
 * selects itself.
 */
class PANELKIT_EXPORT MSelectButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap normalImage READ normalImage WRITE setNormalImage)
    Q_PROPERTY(QPixmap pressImage READ pressImage WRITE setPressImage)
    Q_PROPERTY(QPixmap selectImage READ selectImage WRITE setSelectImage)
    Q_PROPERTY(QPixmap disableImage READ disableImage WRITE setDisableImage)
    Q_PROPERTY(QString displayText READ displayText WRITE setDisplayText)
    Q_PROPERTY(QColor normalTextColor READ normalTextColor WRITE setNormalTextColor)
    Q_PROPERTY(QColor pressTextColor READ pressTextColor WRITE setPressTextColor)
    Q_PROPERTY(QColor selectTextColor READ selectTextColor WRITE setSelectTextColor)
    Q_PROPERTY(QColor disableTextColor READ disableTextColor WRITE setDisableTextColor)
    Q_PROPERTY(QRect displayTextRect READ displayTextRect WRITE setdisplayTextRect DESIGNABLE false)
    Q_PROPERTY(QString buttonID READ buttonID WRITE setButtonID)

public:
    explicit MSelectButton(QWidget *parent = nullptr);
    ~MSelectButton() override;

    QPixmap normalImage() const;
    void setNormalImage(const QPixmap &image);
    QPixmap pressImage() const;
    void setPressImage(const QPixmap &image);
    QPixmap selectImage() const;
    void setSelectImage(const QPixmap &image);
    QPixmap disableImage() const;
    void setDisableImage(const QPixmap &image);
    QString displayText() const;
    void setDisplayText(const QString &text);
    QColor normalTextColor() const;
    void setNormalTextColor(const QColor &color);
    QColor pressTextColor() const;
    void setPressTextColor(const QColor &color);
    QColor selectTextColor() const;
    void setSelectTextColor(const QColor &color);
    QColor disableTextColor() const;
    void setDisableTextColor(const QColor &color);
    QRect displayTextRect() const;
    void setdisplayTextRect(const QRect &rect);
    QString buttonID() const;
    void setButtonID(const QString &id);

    bool selectState() const;
    void setSelectState(const bool &selected);
    bool disableState() const;
    void setDisableState(const bool &disabled);
    void setFontSize(int px);

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

#endif // MSELECTBUTTON_H
