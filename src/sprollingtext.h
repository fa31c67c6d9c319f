// SPDX-License-Identifier: Apache-2.0
#ifndef SPROLLINGTEXT_H
#define SPROLLINGTEXT_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPointF>
#include <QString>
#include <QWidget>

#include <memory>

/**
 * One line of text. A text that is too wide for the widget rolls from right to left, endlessly and
 * with both ends faded out; with autoRoll off it is shortened with "..." instead. Which of them it
 * is, is decided by setText(), with the width and the font of that moment: set them first.
 *
 * paintFinish is emitted in the middle of a paint event: a slot that is connected to it directly
 * must not delete the widget, only ask for it with deleteLater().
 */
class PANELKIT_EXPORT SpRollingText : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(Qt::Alignment textAlignment READ textAlignment WRITE setTextAlignment)
    Q_PROPERTY(bool dropShodow READ dropShodow WRITE setDropShodow)
    Q_PROPERTY(QColor shadowColor READ shadowColor WRITE setShadowColor)
    Q_PROPERTY(QPointF shadowOffset READ shadowOffset WRITE setShadowOffset)
    Q_PROPERTY(bool autoRoll READ autoRoll WRITE setAutoRoll)

public:
    explicit SpRollingText(QWidget *parent = nullptr);
    ~SpRollingText() override;

    QString text() const;
    void setText(QString text);
    int fontSize() const;
    void setFontSize(int size);
    QColor textColor() const;
    void setTextColor(QColor color);
    Qt::Alignment textAlignment() const;
    void setTextAlignment(Qt::Alignment alignment);
    bool dropShodow() const;
    void setDropShodow(bool on);
    QColor shadowColor() const;
    void setShadowColor(QColor color);
    QPointF shadowOffset() const;
    void setShadowOffset(QPointF offset);
    bool autoRoll() const;
    void setAutoRoll(bool on);

    void clear();
    void setWaitRoll(int ms);
    void effectDropShadow();

signals:
    void paintFinish();

protected:
    void paintEvent(QPaintEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private slots:
    void updateIndex();
    void paintFinishSlot();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPROLLINGTEXT_H
