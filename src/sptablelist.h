// SPDX-License-Identifier: Apache-2.0
#ifndef SPTABLELIST_H
#define SPTABLELIST_H

#include "panelkitglobal.h"
#include "styledelegate.h"

#include <QAbstractItemModel>
#include <QColor>
#include <QModelIndex>
#include <QPixmap>
#include <QTableView>

#include <memory>

/**
 * A list for fingers: it is dragged and flung, shows the touched row pressed, and reports clicks on
 * rows and, in two of its styles, on their icons. In LIST_STYLE_3 texts that are too long roll
 * sideways while the list is at rest.
 *
 * Give it a model of one column whose roles 258 to 268 say what a row shows: see styleDelegate,
 * which paints the rows. Set itemHeight and itemWidth, a style, and connect itemClicked. When the
 * model is reset, tell listModelReset().
 */
class PANELKIT_EXPORT SpTableList : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(int itemHeight READ itemHeight WRITE setItemHeight)
    Q_PROPERTY(int itemWidth READ itemWidth WRITE setItemWidth)
    Q_PROPERTY(int centerFontSize READ centerFontSize WRITE setCenterFontSize)
    Q_PROPERTY(int tailFontSize READ tailFontSize WRITE setTailFontSize)
    Q_PROPERTY(QColor hightColor READ hightColor WRITE setHightColor)
    Q_PROPERTY(QColor pressColor READ pressColor WRITE setPressColor)
    Q_PROPERTY(bool useDefaultStyle READ useDefaultStyle WRITE setUseDefaultStyle)
    Q_PROPERTY(QPixmap normalImage READ normalImage WRITE setNormalImage)
    Q_PROPERTY(QPixmap pressImage READ pressImage WRITE setPressImage)
    Q_PROPERTY(int headerIconGain READ headerIconGain WRITE setHeaderIconGain)
    Q_PROPERTY(int headerIconWidth READ headerIconWidth WRITE setHeaderIconWidth)
    Q_PROPERTY(int centerStrGain READ centerStrGain WRITE setCenterStrGain)
    Q_PROPERTY(int tailIconGain READ tailIconGain WRITE setTailIconGain)
    Q_PROPERTY(int tailIconWidth READ tailIconWidth WRITE setTailIconWidth)
    Q_PROPERTY(int pixmapGain READ pixmapGain WRITE setPixmapGain)
    Q_PROPERTY(int tailStrWidth READ tailStrWidth WRITE setTailStrWidth)
    Q_PROPERTY(LIST_STYLE UIStyle READ UIStyle WRITE setUIStyle)

public:
    /// How a row looks, how it looks pressed, and which of its parts can be clicked.
    enum LIST_STYLE : int {
        LIST_STYLE_0 = 0, ///< Header, one line of text, tail.
        LIST_STYLE_1 = 1, ///< A row that the model marks has the pressed background.
        LIST_STYLE_2 = 2, ///< The tail icon is a key of its own beside the background.
        LIST_STYLE_3 = 3, ///< Texts that are too long roll.
        LIST_STYLE_4 = 4, ///< The icons can be clicked, and show presses; the background does not.
        LIST_STYLE_5 = 5, ///< Two lines of text, "upper/lower".
        LIST_STYLE_6 = 6 ///< Three parts of text, "small/gray/white".
    };
    Q_ENUM(LIST_STYLE)

    explicit SpTableList(QWidget *parent = nullptr);
    ~SpTableList() override;

    int itemHeight() const;
    void setItemHeight(const int &height);
    int itemWidth() const;
    void setItemWidth(const int &width);
    int centerFontSize() const;
    void setCenterFontSize(const int &px);
    int tailFontSize() const;
    void setTailFontSize(const int &px);
    QColor hightColor() const;
    void setHightColor(const QColor &color);
    QColor pressColor() const;
    void setPressColor(const QColor &color);
    bool useDefaultStyle() const;
    void setUseDefaultStyle(bool use);
    QPixmap normalImage() const;
    void setNormalImage(QPixmap image);
    QPixmap pressImage() const;
    void setPressImage(QPixmap image);
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
    LIST_STYLE UIStyle() const;
    void setUIStyle(SpTableList::LIST_STYLE style);

    bool getHighlightFlag() const;
    void setHighlightFlag(bool highlight);
    bool getBIsBeep() const;
    void setBIsBeep(bool beep);
    void setTailRectX(int x);
    void setCenterTextFlag(int flag);

    void setModel(QAbstractItemModel *model) override;
    void deleteSelectionModel();
    unsigned int getCurrentTime();

public slots:
    void listModelReset();

signals:
    void itemClicked(QModelIndex m);
    void itemClicked(int index);
    void itemClicked(int index, int position);
    void currentShowIndex(int);
    void listPressed();
    void haveItemSelect(bool selected);

protected:
    void timerEvent(QTimerEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void showEvent(QShowEvent *e) override;
    void hideEvent(QHideEvent *e) override;

private slots:
    void speedTimerSlot();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPTABLELIST_H
