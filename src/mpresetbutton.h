#ifndef MPRESETBUTTON_H
#define MPRESETBUTTON_H

#include "panelkitglobal.h"

#include <QCheckBox>
#include <QColor>
#include <QPixmap>
#include <QPoint>
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

    QPixmap normalImage() const { return m_normalImage; }
    void setNormalImage(const QPixmap &image);
    QPixmap pressImage() const { return m_pressImage; }
    void setPressImage(const QPixmap &image);
    QPixmap disableImage() const { return m_disableImage; }
    void setDisableImage(const QPixmap &image);
    QPixmap presetIcon() const { return m_presetIcon; }
    void setPresetIcon(const QPixmap &icon);
    QPoint presetIconPos() const { return m_presetIconPos; }
    void setPresetIconPos(const QPoint &pos);
    QString displayText() const { return m_displayText; }
    void setDisplayText(const QString &text);
    QString displayText2() const { return m_displayText2; }
    void setDisplayText2(const QString &text);
    QColor normalTextColor() const { return m_textColors.normal; }
    void setNormalTextColor(const QColor &color);
    QColor pressTextColor() const { return m_textColors.press; }
    void setPressTextColor(const QColor &color);
    QColor disableTextColor() const { return m_textColors.disable; }
    void setDisableTextColor(const QColor &color);
    QColor normalTextColor2() const { return m_textColors2.normal; }
    void setNormalTextColor2(const QColor &color);
    QColor pressTextColor2() const { return m_textColors2.press; }
    void setPressTextColor2(const QColor &color);
    QColor disableTextColor2() const { return m_textColors2.disable; }
    void setDisableTextColor2(const QColor &color);
    QRect displayTextRect() const { return m_displayTextRect; }
    void setdisplayTextRect(const QRect &rect);
    QRect displayTextRect2() const { return m_displayTextRect2; }
    void setdisplayTextRect2(const QRect &rect);
    int fontSize2() const { return m_fontSize2; }
    void setFontSize2(const int &px);
    QString buttonID() const { return m_buttonID; }
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
    struct TextColors {
        QColor normal;
        QColor press;
        QColor disable;
    };

    void endTiming();
    bool isHighlighted() const;
    const QPixmap &shownImage() const;
    const QColor &shownTextColor(const TextColors &colors) const;
    void drawPicture(QPainter &painter) const;
    void drawIcon(QPainter &painter) const;
    void drawFirstLine(QPainter &painter) const;
    void drawSecondLine(QPainter &painter) const;

    QPixmap m_normalImage;
    QPixmap m_pressImage;
    QPixmap m_disableImage;
    QPixmap m_presetIcon;
    QPoint m_presetIconPos;
    QPoint m_pressPoint;
    QString m_displayText;
    TextColors m_textColors;
    QSize m_imageSize;
    QRect m_displayTextRect;
    QString m_displayText2;
    TextColors m_textColors2;
    QRect m_displayTextRect2;
    int m_fontSize2 = 24; // px
    QString m_buttonID = QStringLiteral("MPresetButton_ID");
    int m_timerId = 0; // 0: no press is timed
    bool m_longPressed = false;
    bool m_moved = false;

    std::unique_ptr<panelkit::ImageLook> m_look;
    std::unique_ptr<panelkit::KeptText> m_firstLine;
    std::unique_ptr<panelkit::KeptText> m_secondLine;
};

#endif // MPRESETBUTTON_H
