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

namespace panelkit
{
class ImageLook;
class KeptTexts;
} // namespace panelkit

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

    QFont centerFont() const { return m_centerFont; }
    void setCenterFont(const QFont &font);
    QFont tailFont() const { return m_tailFont; }
    void setTailFont(const QFont &font);
    QColor hightColor() const { return m_hightColor; }
    void setHightColor(const QColor &color);
    QColor pressColor() const { return m_pressColor; }
    void setPressColor(const QColor &color);
    QPixmap normalPix() const { return m_normalPix; }
    void setNormalPix(const QPixmap &pixmap);
    QPixmap pressPix() const { return m_pressPix; }
    void setPressPix(const QPixmap &pixmap);
    int style() const { return m_style; }
    void setStyle(int style);
    int tailRectX() const { return m_tailRectX; }
    void setTailRectX(int x);
    int rollTimerId() const { return m_rollTimerId; }
    void setRollTimerId(int id);
    int headerIconGain() const { return m_headerIconGain; }
    void setHeaderIconGain(const int &gain);
    int headerIconWidth() const { return m_headerIconWidth; }
    void setHeaderIconWidth(const int &width);
    int centerStrGain() const { return m_centerStrGain; }
    void setCenterStrGain(const int &gain);
    int tailIconGain() const { return m_tailIconGain; }
    void setTailIconGain(const int &gain);
    int tailIconWidth() const { return m_tailIconWidth; }
    void setTailIconWidth(const int &width);
    int pixmapGain() const { return m_pixmapGain; }
    void setPixmapGain(const int &gain);
    int tailStrWidth() const { return m_tailStrWidth; }
    void setTailStrWidth(const int &width);
    int getCenterTextFlag() const { return m_centerTextFlag; }
    void setCenterTextFlag(int flag);
    QPoint pressedPoint() const { return m_pressedPoint; }
    bool itemPressed() const { return m_itemPressed; }
    void setItemPressed(bool pressed, QPoint point);
    bool useIt() const { return m_useIt; }
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
    struct Row;
    class RollRecords;

    bool showsPressPix(const Row &row) const;
    bool showsPressedHeaderIcon(const Row &row) const;
    bool showsPressedTailIcon(const Row &row) const;
    QRect centreRect(const Row &row) const;
    void applyTextColor(const Row &row) const;
    void drawSeparator(const Row &row) const;
    void drawBackground(const Row &row) const;
    void drawSplitRow(Row &row) const;
    void drawSplitBackground(Row &row) const;
    void drawHeader(Row &row) const;
    void drawHeaderNumber(Row &row) const;
    void drawTail(Row &row) const;
    void drawTailText(const Row &row) const;
    void drawCentre(const Row &row) const;
    void drawPlainCentre(const Row &row, const QString &text) const;
    void drawTwoLineCentre(const Row &row, const QString &text) const;
    void drawThreePartCentre(const Row &row, const QString &text) const;
    void drawRollingCentre(const Row &row, const QString &text) const;
    const StringRollingData &rollingRecord(const Row &row, const QString &text, int width) const;
    void drawText(const Row &row, const QRect &rect, int flags, const QFont &font,
                  const QString &text) const;

    QFont m_centerFont;
    QFont m_tailFont;
    QColor m_hightColor;
    QColor m_pressColor{255, 255, 255, 255};
    QPixmap m_normalPix;
    QPixmap m_pressPix;
    int m_style = 0; // an SpTableList::LIST_STYLE
    int m_tailRectX = 512; // px
    std::unique_ptr<RollRecords> m_records;
    int m_rollTimerId = 0; // 0: texts stand still
    int m_headerIconGain = 20; // px
    int m_headerIconWidth = 0; // px
    int m_centerStrGain = 15; // px
    int m_tailIconGain = 47; // px
    int m_tailIconWidth = 0; // px
    int m_pixmapGain = 0; // px
    int m_tailStrWidth = 100; // px
    int m_centerTextFlag = Qt::AlignLeft | Qt::AlignVCenter;
    QPoint m_pressedPoint; // in the view
    bool m_itemPressed = false;
    bool m_useIt = true;

    QFont m_lowerLineFont; // of LIST_STYLE_5, made from the centre font
    QFont m_smallFont; // of LIST_STYLE_6, made from the centre font
    QFont m_grayTailFont; // of LIST_STYLE_5, made from the tail font
    std::unique_ptr<panelkit::KeptTexts> m_texts;
    std::unique_ptr<panelkit::ImageLook> m_normalLook;
    std::unique_ptr<panelkit::ImageLook> m_pressLook;
};

#endif // STYLEDELEGATE_H
