// SPDX-License-Identifier: Apache-2.0
#ifndef MVSCROLLLABEL_H
#define MVSCROLLLABEL_H

#include "panelkitglobal.h"

#include <QLabel>
#include <QString>

#include <memory>

/**
 * A text in Latin-1, wrapped to the width of the label between any two characters. If it is higher
 * than the label it scrolls upward, endlessly, from two seconds after it was set or shown, and a
 * finger can push it. currentTextChanged and scrollStateChanged report what happens.
 *
 * The text scrolls anew each time it is shown, so that scrollStateChanged may be emitted while the
 * label is being shown: a slot that is connected to it directly must not delete the label then,
 * only ask for it with deleteLater().
 */
class PANELKIT_EXPORT MVScrollLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString buttonID READ buttonID WRITE setButtonID)
    Q_PROPERTY(int scrollSpeed READ scrollSpeed WRITE setScrollSpeed)

public:
    explicit MVScrollLabel(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~MVScrollLabel() override;

    QString buttonID() const;
    void setButtonID(const QString &id);
    int scrollSpeed() const;
    void setScrollSpeed(const int &ms);

    bool isScroll() const;
    int getHeight();

public slots:
    void setText(QString curText);
    void startScroll();
    void stopScroll();

signals:
    void currentTextChanged();
    void scrollStateChanged(bool scroll);

protected:
    void paintEvent(QPaintEvent *e) override;
    void showEvent(QShowEvent *e) override;
    void hideEvent(QHideEvent *e) override;
    void timerEvent(QTimerEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private slots:
    void metrics();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MVSCROLLLABEL_H
