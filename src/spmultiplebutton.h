// SPDX-License-Identifier: Apache-2.0
#ifndef SPMULTIPLEBUTTON_H
#define SPMULTIPLEBUTTON_H

#include "panelkitglobal.h"

#include <QList>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <memory>

/**
 * A touch button that goes through a number of states, each with a picture and a pressed picture,
 * over one background: a repeat mode, the level of a fan.
 *
 * Give it a picture and a pressed picture for every state, one by one or as lists; until the set is
 * complete it shows its background alone and ignores touches. Each touch advances the state, after
 * the last one to the first, and reports clicked with buttonId and the new state. Touches end here:
 * no parent hears of them. Each press asks the application for a click sound.
 */
class PANELKIT_EXPORT SpMultipleButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int buttonId READ buttonId WRITE setButtonId)
    Q_PROPERTY(int totalValue READ totalValue WRITE setTotalValue)
    Q_PROPERTY(int currentValue READ currentValue WRITE setCurrentValue)
    Q_PROPERTY(bool disableState READ disableState WRITE setDisableState)
    Q_PROPERTY(QPixmap backgroundImage READ backgroundImage WRITE setBackgroundImage)
    Q_PROPERTY(QPixmap normalImage0 READ normalImage0 WRITE setNormalImage0)
    Q_PROPERTY(QPixmap normalImage1 READ normalImage1 WRITE setNormalImage1)
    Q_PROPERTY(QPixmap normalImage2 READ normalImage2 WRITE setNormalImage2)
    Q_PROPERTY(QPixmap normalImage3 READ normalImage3 WRITE setNormalImage3)
    Q_PROPERTY(QPixmap normalImage4 READ normalImage4 WRITE setNormalImage4)
    Q_PROPERTY(QPixmap normalImage5 READ normalImage5 WRITE setNormalImage5)
    Q_PROPERTY(QPixmap normalImage6 READ normalImage6 WRITE setNormalImage6)
    Q_PROPERTY(QPixmap normalImage7 READ normalImage7 WRITE setNormalImage7)
    Q_PROPERTY(QPixmap pressImage0 READ pressImage0 WRITE setPressImage0)
    Q_PROPERTY(QPixmap pressImage1 READ pressImage1 WRITE setPressImage1)
    Q_PROPERTY(QPixmap pressImage2 READ pressImage2 WRITE setPressImage2)
    Q_PROPERTY(QPixmap pressImage3 READ pressImage3 WRITE setPressImage3)
    Q_PROPERTY(QPixmap pressImage4 READ pressImage4 WRITE setPressImage4)
    Q_PROPERTY(QPixmap pressImage5 READ pressImage5 WRITE setPressImage5)
    Q_PROPERTY(QPixmap pressImage6 READ pressImage6 WRITE setPressImage6)
    Q_PROPERTY(QPixmap pressImage7 READ pressImage7 WRITE setPressImage7)

public:
    explicit SpMultipleButton(QWidget *parent = nullptr);
    ~SpMultipleButton() override;

    int buttonId() const;
    void setButtonId(int id);
    int totalValue() const;
    void setTotalValue(int v);
    int currentValue() const;
    void setCurrentValue(int v);
    bool disableState() const;
    void setDisableState(bool disabled);
    QPixmap backgroundImage() const;
    void setBackgroundImage(QPixmap image);
    QPixmap normalImage0() const;
    void setNormalImage0(QPixmap image);
    QPixmap normalImage1() const;
    void setNormalImage1(QPixmap image);
    QPixmap normalImage2() const;
    void setNormalImage2(QPixmap image);
    QPixmap normalImage3() const;
    void setNormalImage3(QPixmap image);
    QPixmap normalImage4() const;
    void setNormalImage4(QPixmap image);
    QPixmap normalImage5() const;
    void setNormalImage5(QPixmap image);
    QPixmap normalImage6() const;
    void setNormalImage6(QPixmap image);
    QPixmap normalImage7() const;
    void setNormalImage7(QPixmap image);
    QPixmap pressImage0() const;
    void setPressImage0(QPixmap image);
    QPixmap pressImage1() const;
    void setPressImage1(QPixmap image);
    QPixmap pressImage2() const;
    void setPressImage2(QPixmap image);
    QPixmap pressImage3() const;
    void setPressImage3(QPixmap image);
    QPixmap pressImage4() const;
    void setPressImage4(QPixmap image);
    QPixmap pressImage5() const;
    void setPressImage5(QPixmap image);
    QPixmap pressImage6() const;
    void setPressImage6(QPixmap image);
    QPixmap pressImage7() const;
    void setPressImage7(QPixmap image);

    void setPixmapList(const QList<QPixmap> &normal, const QList<QPixmap> &press);
    /// The same with the files of the pictures.
    void setPixmapList(QList<QString> normal, QList<QString> press);
    void setAutoChange(bool change);
    void checkData();

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

#endif // SPMULTIPLEBUTTON_H
