// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_ARCINDEX_H
#define HEADUNIT_ARCINDEX_H

#include <QPointer>
#include <QPointF>
#include <QVector>
#include <QWidget>

#include <functional>

class MArcList;
class MArcScrollBar;
class QAbstractItemModel;
class SpTableList;

namespace headunit
{

class Theme;

/// The letters of a sorted list.
struct ListLetters {
    std::function<QVector<QChar>()> letters;
    std::function<QChar(int)> letterOf; ///< a row's
    std::function<int(QChar)> rowOf; ///< the first of a letter

    /// Those of a model that knows them.
    template <typename Model> static ListLetters of(const Model *model)
    {
        return {[model] { return model->letters(); },
                [model](int row) { return model->letterOf(row); },
                [model](QChar letter) { return model->rowOfLetter(letter); }};
    }
};

/**
 * Stands at the end of the rows of a long list: an arc with its letters, and outside of them an arc
 * scroll bar. A letter that is tapped takes the list to its first row, the bar takes it anywhere,
 * and both follow the list wherever it goes. Both arcs bend to the left: where rows end at the
 * left, the letters stand in a column, and the bar is straight.
 */
class ArcIndex : public QWidget
{
    Q_OBJECT

public:
    explicit ArcIndex(QWidget *parent = nullptr);

    /// The list whose place is shown. The letters are read again whenever its model changes, so
    /// set that first.
    void setList(SpTableList *list, const ListLetters &letters);

    /// Takes the width that letters and bar need at this height.
    void dress(const Theme &theme, int height);

private:
    /// Two arcs around one centre, which lies far to the left, at half of the height.
    struct Arcs {
        Arcs(const Theme &theme, int height);

        double letters; // px, radius through their middles
        double border; // px, radius between letters and bar
        double bar; // px, radius of its outer end
        QPointF center;
        int width; // px
    };

    void dressColors(const Theme &theme);
    void bendLetters(const Theme &theme, const Arcs &arcs);
    void bendBar(const Theme &theme, const Arcs &arcs);
    void straighten(const Theme &theme, int height);
    void readLetters();
    void showLetter(QChar letter);
    void showPlace();
    void moveBar();
    void goToLetter(QChar letter);
    void goToPlace();

    MArcScrollBar *const m_bar;
    MArcList *const m_arc;
    QPointer<SpTableList> m_list;
    QPointer<QAbstractItemModel> m_model;
    ListLetters m_letters;
    QChar m_letter; // that is shown as the current one
    bool m_isGoing = false; // to a letter that was tapped
};

} // namespace headunit

#endif // HEADUNIT_ARCINDEX_H
