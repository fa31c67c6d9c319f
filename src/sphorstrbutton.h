#ifndef SPHORSTRBUTTON_H
#define SPHORSTRBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
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
 * A touch button with an icon and a string: the string beside the icon on either side, or over it.
 *
 * Give it a normal icon, whose size becomes that of the icon rectangle, and icons for the pressed
 * and disabled looks; without a disabled one the normal icon is darkened. The background comes from
 * the style, so that style sheets work. Each release emits clicked with buttonId, wherever the
 * finger was lifted and even while the button is disabled: receivers filter. Each press asks the
 * application for a click sound.
 */
class PANELKIT_EXPORT SpHorStrButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(StrPosition stringPosition READ stringPosition WRITE setStringPosition)
    Q_PROPERTY(QString buttonId READ buttonId WRITE setButtonId)
    Q_PROPERTY(QString displayString READ displayString WRITE setDisplayString)
    Q_PROPERTY(QPixmap normalPixmap READ normalPixmap WRITE setNormalPixmap)
    Q_PROPERTY(QPixmap pressPixmap READ pressPixmap WRITE setPressPixmap)
    Q_PROPERTY(QPixmap disablePixmap READ disablePixmap WRITE setDisablePixmap)
    Q_PROPERTY(QColor normalTextColor READ normalTextColor WRITE setNormalTextColor)
    Q_PROPERTY(QColor pressTextColor READ pressTextColor WRITE setPressTextColor)
    Q_PROPERTY(int textTopMargin READ textTopMargin WRITE setTextTopMargin)
    Q_PROPERTY(int textHeight READ textHeight WRITE setTextHeight)
    Q_PROPERTY(int textLeftMargin READ textLeftMargin WRITE setTextLeftMargin)
    Q_PROPERTY(int textWidth READ textWidth WRITE setTextWidth)

public:
    /// Where icon and string stand, and how the string is aligned.
    enum StrPosition : int {
        StrLeft = 0, ///< The icon at the left edge, the string left-aligned after it.
        StrRight = 1, ///< The icon at the right edge, the string right-aligned before it.
        StrCenter = 2 ///< The icon at the top left, the string centred over it.
    };
    Q_ENUM(StrPosition)

    explicit SpHorStrButton(QWidget *parent = nullptr);
    SpHorStrButton(StrPosition pos, QString id, QString text, QString normal, QString press,
                   QString disable, QWidget *parent = nullptr);
    ~SpHorStrButton() override;

    StrPosition stringPosition() const { return m_stringPosition; }
    void setStringPosition(const StrPosition &position);
    QString buttonId() const { return m_buttonId; }
    void setButtonId(const QString &id);
    QString displayString() const { return m_displayString; }
    void setDisplayString(const QString &text);
    QPixmap normalPixmap() const { return m_normalPixmap; }
    void setNormalPixmap(const QPixmap &pixmap);
    QPixmap pressPixmap() const { return m_pressPixmap; }
    void setPressPixmap(const QPixmap &pixmap);
    QPixmap disablePixmap() const { return m_disablePixmap; }
    void setDisablePixmap(const QPixmap &pixmap);
    QColor normalTextColor() const { return m_normalTextColor; }
    void setNormalTextColor(const QColor &color);
    QColor pressTextColor() const { return m_pressTextColor; }
    void setPressTextColor(const QColor &color);
    int textTopMargin() const { return m_textTopMargin; }
    void setTextTopMargin(int margin);
    int textHeight() const { return m_textHeight; }
    void setTextHeight(int height);
    int textLeftMargin() const { return m_textLeftMargin; }
    void setTextLeftMargin(int margin);
    int textWidth() const { return m_textWidth; }
    void setTextWidth(int width);

    /// The same as buttonId().
    QString getButtonId() { return m_buttonId; }
    void setBtnDisable(bool disabled);
    void setPressState(bool pressed);
    void setFontSize(int px);

signals:
    void clicked(QString id);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    struct Places;

    Places places() const;
    QColor captionColor() const;
    void drawBackground(QPainter &painter) const;
    void drawIcon(QPainter &painter, const QRect &rect) const;
    void drawCaption(QPainter &painter, const Places &places) const;

    StrPosition m_stringPosition = StrLeft;
    QString m_buttonId = QStringLiteral("0");
    QString m_displayString = QStringLiteral("default");
    QPixmap m_normalPixmap;
    QPixmap m_pressPixmap;
    QPixmap m_disablePixmap;
    bool m_pressState = false;
    bool m_btnDisable = false;
    QSize m_iconSize{0, 0};
    [[maybe_unused]] int m_reserved = 25; // read nowhere, part of every button on purpose
    QColor m_normalTextColor{255, 255, 255, 255};
    QColor m_pressTextColor{255, 0, 0, 255};
    int m_textTopMargin = 0; // px
    int m_textHeight = 0; // px, 0: that of the layout
    int m_textLeftMargin = 0; // px
    int m_textWidth = 0; // px, 0: that of the layout

    std::unique_ptr<panelkit::ImageLook> m_look;
    std::unique_ptr<panelkit::KeptText> m_caption;
};

#endif // SPHORSTRBUTTON_H
