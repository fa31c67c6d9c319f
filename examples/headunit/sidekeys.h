// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SIDEKEYS_H
#define HEADUNIT_SIDEKEYS_H

#include <QStringList>
#include <QWidget>

class MListView;
class SpIconButton;

namespace headunit
{

class Theme;

/// A column of keys at the side of a page, of which one is down: the view that is shown.
class SideKeys : public QWidget
{
    Q_OBJECT

public:
    explicit SideKeys(QWidget *parent = nullptr);

    /// How wide the column is on all pages.
    static int columnWidth(const Theme &theme);

    /// The icons of the keys, from the top.
    void setIcons(const QStringList &icons) { m_icons = icons; }
    /// What stands below the icons.
    void setCaptions(const QStringList &captions);
    /// Makes the keys anew, as high as the column has room for.
    void dress(const Theme &theme);

    int current() const { return m_current; }
    /// Puts a key down; nobody hears of it.
    void setCurrent(int key);

signals:
    void chosen(int key);

private:
    QList<SpIconButton *> keys() const;
    void dressKeys(const Theme &theme);

    MListView *const m_view;
    QStringList m_icons;
    QStringList m_captions;
    int m_current = 0;
};

} // namespace headunit

#endif // HEADUNIT_SIDEKEYS_H
