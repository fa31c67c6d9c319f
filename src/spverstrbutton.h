#ifndef SPVERSTRBUTTON_H
#define SPVERSTRBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QFont>
#include <QPixmap>
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

    QPixmap normalPixmap() const { return m_normalPixmap; }
    void setNormalPixmap(const QPixmap &pixmap);
    QPixmap pressPixmap() const { return m_pressPixmap; }
    void setPressPixmap(const QPixmap &pixmap);
    QPixmap disablePixmap() const { return m_disablePixmap; }
    void setDisablePixmap(const QPixmap &pixmap);
    QPixmap focusPixmap() const { return m_focusPixmap; }
    void setFocusPixmap(const QPixmap &pixmap);
    QString displayString() const { return m_displayString; }
    void setDisplayString(const QString &text);
    QColor normalColor() const { return m_normalColor; }
    void setNormalColor(const QColor &color);
    QColor pressColor() const { return m_pressColor; }
    void setPressColor(const QColor &color);
    QColor focusTextColor() const { return m_focusTextColor; }
    void setFocusTextColor(const QColor &color);
    int buttonId() const { return m_buttonId; }
    void setButtonId(int id);
    int widgetGain() const { return m_widgetGain; }
    void setWidgetGain(int gap);
    int stringHeight() const { return m_stringHeight; }
    void setStringHeight(int height);
    bool disable() const { return m_disable; }
    void setDisable(bool disabled);
    bool isDown() const { return m_isDown; }
    void setIsDown(bool down);
    bool isLock() const { return m_isLock; }
    void setIsLock(bool lock);
    bool isFocus() const { return m_isFocus; }
    void setFocus(bool focused);
    int fontSize() const { return m_fontSize; }
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
    struct Look;

    Look look() const;
    QRect iconRect() const;
    QRect captionRect() const;
    void drawIcon(QPainter &painter) const;
    void drawCaption(QPainter &painter) const;

    QPixmap m_normalPixmap;
    QPixmap m_pressPixmap;
    QPixmap m_disablePixmap;
    QPixmap m_focusPixmap;
    QString m_displayString = QStringLiteral("Text");
    QColor m_normalColor{Qt::black};
    QColor m_pressColor{Qt::red};
    QColor m_focusTextColor{Qt::white};
    int m_buttonId = -1;
    int m_widgetGain = 5; // px, negative: the string overlaps the icon
    int m_stringHeight = 16; // px
    bool m_disable = false;
    bool m_isDown = false;
    bool m_isLock = false;
    bool m_isFocus = false;
    QSize m_iconSize{32, 32};
    int m_fontSize = 20; // px

    std::unique_ptr<panelkit::ImageLook> m_look;
    std::unique_ptr<panelkit::KeptText> m_caption;
};

#endif // SPVERSTRBUTTON_H
