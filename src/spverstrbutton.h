// SPDX-License-Identifier: Apache-2.0
#ifndef SPVERSTRBUTTON_H
#define SPVERSTRBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <memory>

/**
 * A touch button with an icon above a string, both centred across; the two with the gap between
 * them are centred in the height.
 *
 * Give it a normal icon, whose size becomes that of the icon rectangle, and icons for the pressed,
 * focused and disabled looks. One touch reports pressed, then clicked wherever it ends, with
 * buttonId. Touches end here: no parent hears of them. Each press asks the application for a click
 * sound.
 */
class PANELKIT_EXPORT SpVerStrButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap normalPixmap READ normalPixmap WRITE setNormalPixmap)
    Q_PROPERTY(QPixmap pressPixmap READ pressPixmap WRITE setPressPixmap)
    Q_PROPERTY(QPixmap disablePixmap READ disablePixmap WRITE setDisablePixmap)
    Q_PROPERTY(QPixmap focusPixmap READ focusPixmap WRITE setFocusPixmap)
    Q_PROPERTY(QString displayString READ displayString WRITE setDisplayString)
    Q_PROPERTY(QColor normalColor READ normalColor WRITE setNormalColor)
    Q_PROPERTY(QColor pressColor READ pressColor WRITE setPressColor)
    Q_PROPERTY(QColor focusTextColor READ focusTextColor WRITE setFocusTextColor)
    Q_PROPERTY(int buttonId READ buttonId WRITE setButtonId)
    Q_PROPERTY(int widgetGain READ widgetGain WRITE setWidgetGain)
    Q_PROPERTY(int stringHeight READ stringHeight WRITE setStringHeight)
    Q_PROPERTY(bool disable READ disable WRITE setDisable)
    Q_PROPERTY(bool isDown READ isDown WRITE setIsDown)
    Q_PROPERTY(bool isLock READ isLock WRITE setIsLock)
    Q_PROPERTY(bool isFocus READ isFocus WRITE setFocus DESIGNABLE false)
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize)

public:
    explicit SpVerStrButton(QWidget *parent = nullptr);
    ~SpVerStrButton() override;

    QPixmap normalPixmap() const;
    void setNormalPixmap(const QPixmap &pixmap);
    QPixmap pressPixmap() const;
    void setPressPixmap(const QPixmap &pixmap);
    QPixmap disablePixmap() const;
    void setDisablePixmap(const QPixmap &pixmap);
    QPixmap focusPixmap() const;
    void setFocusPixmap(const QPixmap &pixmap);
    QString displayString() const;
    void setDisplayString(const QString &text);
    QColor normalColor() const;
    void setNormalColor(const QColor &color);
    QColor pressColor() const;
    void setPressColor(const QColor &color);
    QColor focusTextColor() const;
    void setFocusTextColor(const QColor &color);
    int buttonId() const;
    void setButtonId(int id);
    int widgetGain() const;
    void setWidgetGain(int gap);
    int stringHeight() const;
    void setStringHeight(int height);
    bool disable() const;
    void setDisable(bool disabled);
    bool isDown() const;
    void setIsDown(bool down);
    bool isLock() const;
    void setIsLock(bool lock);
    bool isFocus() const;
    void setFocus(bool focused);
    int fontSize() const;
    void setFontSize(int px);

signals:
    void pressed(int id);
    void clicked(int id);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPVERSTRBUTTON_H
