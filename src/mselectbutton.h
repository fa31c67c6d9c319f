#ifndef MSELECTBUTTON_H
#define MSELECTBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

namespace panelkit
{
class ImageLook;
class KeptText;
} // namespace panelkit

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

    QPixmap normalImage() const { return m_normalImage; }
    void setNormalImage(const QPixmap &image);
    QPixmap pressImage() const { return m_pressImage; }
    void setPressImage(const QPixmap &image);
    QPixmap selectImage() const { return m_selectImage; }
    void setSelectImage(const QPixmap &image);
    QPixmap disableImage() const { return m_disableImage; }
    void setDisableImage(const QPixmap &image);
    QString displayText() const { return m_displayText; }
    void setDisplayText(const QString &text);
    QColor normalTextColor() const { return m_normalTextColor; }
    void setNormalTextColor(const QColor &color);
    QColor pressTextColor() const { return m_pressTextColor; }
    void setPressTextColor(const QColor &color);
    QColor selectTextColor() const { return m_selectTextColor; }
    void setSelectTextColor(const QColor &color);
    QColor disableTextColor() const { return m_disableTextColor; }
    void setDisableTextColor(const QColor &color);
    QRect displayTextRect() const { return m_displayTextRect; }
    void setdisplayTextRect(const QRect &rect);
    QString buttonID() const { return m_buttonID; }
    void setButtonID(const QString &id);

    bool selectState() const { return m_selectState; }
    void setSelectState(const bool &selected);
    bool disableState() const { return m_disableState; }
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
    bool isActive() const;
    void endTiming();
    const QPixmap &shownImage() const;
    QColor shownTextColor() const;
    void drawPicture(QPainter &painter) const;
    void drawCaption(QPainter &painter) const;

    QPixmap m_normalImage;
    QPixmap m_pressImage;
    QPixmap m_selectImage;
    QPixmap m_disableImage;
    QString m_displayText;
    QColor m_normalTextColor{255, 255, 255};
    QColor m_pressTextColor{255, 255, 255};
    QColor m_selectTextColor{255, 255, 255};
    QColor m_disableTextColor{255, 255, 255};
    QSize m_imageSize;
    QRect m_displayTextRect;
    QString m_buttonID = QStringLiteral("MSelectButton_ID");
    int m_timerId = 0; // 0: no press is timed
    bool m_longPressed = false;
    bool m_isPressed = false;
    bool m_selectState = false;
    bool m_disableState = false;
    QPoint m_pressPoint;

    std::unique_ptr<panelkit::ImageLook> m_look;
    std::unique_ptr<panelkit::KeptText> m_caption;
};

#endif // MSELECTBUTTON_H
