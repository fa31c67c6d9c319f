// SPDX-License-Identifier: Apache-2.0
#ifndef STYLEDELEGATE_H
#define STYLEDELEGATE_H

#include "panelkitglobal.h"

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QPoint>
#include <QString>
#include <QStyledItemDelegate>

#include <memory>

/// A centre text that rolls sideways, one of a singly linked list.
struct StringRollingData {
    QString visibleText; ///< The characters now shown.
    QString fullText; ///< The row's centre text and sixteen spaces.
    int nextIndex = 0; ///< Of the character of fullText that is appended next.
    int offset = 0; ///< px by which visibleText is shifted left.
    int firstWidth = 0; ///< px, of the first character of visibleText.
    int row = 0; ///< The model's row.
    StringRollingData *next = nullptr;
};

/**
 * Paints the rows of an SpTableList: background, header (icon or number), centre text and tail
 * (icon or text), as the model's roles 258 to 268 and the style say. The list makes one for itself
 * and has most of these settings as properties; a view of one's own may use one as well.
 *
 * Every setter only stores: what it sets shows at the next paint.
 */
class PANELKIT_EXPORT styleDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit styleDelegate(QObject *parent = nullptr);
    ~styleDelegate() override;

    QFont centerFont() const;
    void setCenterFont(const QFont &font);
    QFont tailFont() const;
    void setTailFont(const QFont &font);
    QColor hightColor() const;
    void setHightColor(const QColor &color);
    QColor pressColor() const;
    void setPressColor(const QColor &color);
    QPixmap normalPix() const;
    void setNormalPix(const QPixmap &pixmap);
    QPixmap pressPix() const;
    void setPressPix(const QPixmap &pixmap);
    int style() const;
    void setStyle(int style);
    int tailRectX() const;
    void setTailRectX(int x);
    int rollTimerId() const;
    void setRollTimerId(int id);
    int headerIconGain() const;
    void setHeaderIconGain(const int &gain);
    int headerIconWidth() const;
    void setHeaderIconWidth(const int &width);
    int centerStrGain() const;
    void setCenterStrGain(const int &gain);
    int tailIconGain() const;
    void setTailIconGain(const int &gain);
    int tailIconWidth() const;
    void setTailIconWidth(const int &width);
    int pixmapGain() const;
    void setPixmapGain(const int &gain);
    int tailStrWidth() const;
    void setTailStrWidth(const int &width);
    int getCenterTextFlag() const;
    void setCenterTextFlag(int flag);
    QPoint pressedPoint() const;
    bool itemPressed() const;
    void setItemPressed(bool pressed, QPoint point);
    bool useIt() const;
    void setUseIt(bool use);

    StringRollingData *rollData() const; ///< The first record, or null.
    int rollDataCount() const; ///< Of all the records ever added.
    StringRollingData *getRollData(int row); ///< The first record of this row, or null.
    void addRollData(StringRollingData *record);
    StringRollingData *getAddRollData(StringRollingData *record);
    void clearRollData();

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // STYLEDELEGATE_H
