#ifndef MFOCUSBUTTON_H
#define MFOCUSBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QRadioButton>
#include <QRect>
#include <QSize>
#include <QString>

#include <memory>

namespace panelkit
{
class ImageLook;
class KeptText;
} // namespace panelkit

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

    QPixmap normalImage() const { return m_normalImage; }
    void setNormalImage(const QPixmap &image);
    QPixmap pressImage() const { return m_pressImage; }
    void setPressImage(const QPixmap &image);
    QPixmap disableImage() const { return m_disableImage; }
    void setDisableImage(const QPixmap &image);
    QString displayText() const { return m_displayText; }
    void setDisplayText(const QString &text);
    QColor normalTextColor() const { return m_normalTextColor; }
    void setNormalTextColor(const QColor &color);
    QColor pressTextColor() const { return m_pressTextColor; }
    void setPressTextColor(const QColor &color);
    QColor disableTextColor() const { return m_disableTextColor; }
    void setDisableTextColor(const QColor &color);
    QRect displayTextRect() const { return m_displayTextRect; }
    void setdisplayTextRect(const QRect &rect);
    QString buttonID() const { return m_buttonID; }
    void setButtonID(const QString &id);

    int getLongPressIntal() const { return m_longPressIntal; }
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
    void endTiming();
    bool isHighlighted() const;
    const QPixmap &shownImage() const;
    QColor shownTextColor() const;
    void drawPicture(QPainter &painter) const;
    void drawCaption(QPainter &painter) const;

    QPixmap m_normalImage;
    QPixmap m_pressImage;
    QPixmap m_disableImage;
    QString m_displayText;
    QColor m_normalTextColor;
    QColor m_pressTextColor;
    QColor m_disableTextColor;
    QSize m_imageSize;
    QRect m_displayTextRect;
    QString m_buttonID = QStringLiteral("MFocusButton_ID");
    int m_timerId = 0; // 0: no press is timed
    int m_longPressIntal = 2500; // ms
    bool m_longPressed = false;

    std::unique_ptr<panelkit::ImageLook> m_look;
    std::unique_ptr<panelkit::KeptText> m_caption;
};

#endif // MFOCUSBUTTON_H
