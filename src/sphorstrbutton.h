// SPDX-License-Identifier: Apache-2.0
#ifndef SPHORSTRBUTTON_H
#define SPHORSTRBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <memory>

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

    StrPosition stringPosition() const;
    void setStringPosition(const StrPosition &position);
    QString buttonId() const;
    void setButtonId(const QString &id);
    QString displayString() const;
    void setDisplayString(const QString &text);
    QPixmap normalPixmap() const;
    void setNormalPixmap(const QPixmap &pixmap);
    QPixmap pressPixmap() const;
    void setPressPixmap(const QPixmap &pixmap);
    QPixmap disablePixmap() const;
    void setDisablePixmap(const QPixmap &pixmap);
    QColor normalTextColor() const;
    void setNormalTextColor(const QColor &color);
    QColor pressTextColor() const;
    void setPressTextColor(const QColor &color);
    int textTopMargin() const;
    void setTextTopMargin(int margin);
    int textHeight() const;
    void setTextHeight(int height);
    int textLeftMargin() const;
    void setTextLeftMargin(int margin);
    int textWidth() const;
    void setTextWidth(int width);

    /// The same as buttonId().
    QString getButtonId();
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
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPHORSTRBUTTON_H
