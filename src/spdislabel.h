// SPDX-License-Identifier: Apache-2.0
#ifndef SPDISLABEL_H
#define SPDISLABEL_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

/**
 * A label that can be touched: a string on a coloured ground, square or rounded, or a picture in
 * the middle.
 *
 * A string that is set with setText() is shortened to the width that the label has at that moment;
 * setNormalText() leaves it whole. A touch reports pressed and released with btnID, wherever it
 * ends. Touches end here, unless holdMouseEvent is off: then the parent hears of them as well. Each
 * press asks the application for a click sound.
 */
class PANELKIT_EXPORT SpDisLabel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(DispalyMode displayMode READ displayMode WRITE setDisplayMode)
    Q_PROPERTY(QColor fontColor READ fontColor WRITE setFontColor)
    Q_PROPERTY(QColor pressFontColor READ pressFontColor WRITE setPressFontColor)
    Q_PROPERTY(
        QColor normalBackgroundColor READ normalBackgroundColor WRITE setNormalBackgroundColor)
    Q_PROPERTY(QColor pressBackgroundColor READ pressBackgroundColor WRITE setPressBackgroundColor)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QPixmap icon READ icon WRITE setIcon)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)
    Q_PROPERTY(int fontsize READ fontSize WRITE setFontSize DESIGNABLE false)
    Q_PROPERTY(bool isDown READ isDown WRITE setIsDown)
    Q_PROPERTY(bool isLock READ isLock WRITE setIsLock)
    Q_PROPERTY(bool holdMouseEvent READ holdMouseEvent WRITE setholdMouseEvent DESIGNABLE false)
    Q_PROPERTY(Qt::Alignment alignment READ getAlignment WRITE setAlignment)
    Q_PROPERTY(bool isBeep READ isBeep WRITE setIsBeep)
    Q_PROPERTY(int btnID READ btnID WRITE setBtnID)
    Q_PROPERTY(int roundXY READ roundXY WRITE setRoundXY)

public:
    /// What the label shows.
    enum DispalyMode : int {
        String = 0, ///< The text on its ground.
        Picture = 1 ///< The icon, whether down or not.
    };
    Q_ENUM(DispalyMode)

    explicit SpDisLabel(QWidget *parent = nullptr);
    ~SpDisLabel() override;

    DispalyMode displayMode() const;
    void setDisplayMode(const DispalyMode &mode);
    QColor fontColor() const;
    void setFontColor(const QColor &color);
    QColor pressFontColor() const;
    void setPressFontColor(const QColor &color);
    QColor normalBackgroundColor() const;
    void setNormalBackgroundColor(const QColor &color);
    QColor pressBackgroundColor() const;
    void setPressBackgroundColor(const QColor &color);
    QString text() const;
    void setText(const QString &text);
    QPixmap icon() const;
    void setIcon(const QPixmap &icon);
    QSize iconSize() const;
    void setIconSize(const QSize &size);
    int fontSize() const;
    void setFontSize(int px);
    bool isDown() const;
    void setIsDown(const bool &down);
    bool isLock() const;
    void setIsLock(const bool &lock);
    bool holdMouseEvent() const;
    void setholdMouseEvent(const bool &hold);
    Qt::Alignment getAlignment() const;
    void setAlignment(const Qt::Alignment &alignment);
    bool isBeep() const;
    void setIsBeep(const bool &beep);
    int btnID() const;
    void setBtnID(int id);
    int roundXY() const;
    void setRoundXY(int radius);

    static SpDisLabel *GetInstance();
    static void ReleaseInstance(SpDisLabel *p);

    /// Sets a text that is not shortened.
    void setNormalText(const QString &text);

signals:
    void pressed(int id);
    void released(int id);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPDISLABEL_H
