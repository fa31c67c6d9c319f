// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_THEME_H
#define HEADUNIT_THEME_H

#include <QCache>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

class QPainter;

namespace headunit
{

/// How the head unit looks: lengths for the size of its screen, the colours of day or night, and
/// pictures rendered in both. Everything on the screen comes from here, so that a screen of another
/// size or another look is this object made anew.
class Theme
{
public:
    enum Look { Day, Night };
    /// What a key is for, which decides its colours.
    enum Style {
        Key, ///< an ordinary one
        Primary, ///< the one thing to do on a page
        Positive, ///< begins what Danger ends
        Danger, ///< ends something
        Bare ///< an icon without a face
    };
    /// What a key shows of its state.
    enum State { Normal, Pressed, Selected, Disabled };
    /// The type scale: four sizes and no others.
    enum TextSize { Small, Body, Title, Huge };

    Theme(const QSize &screen, Look look);

    Look look() const { return m_look; }
    QSize screen() const { return m_screen; }

    /// A length in px for one in units of a 600th of the screen's height.
    int px(double units) const;
    /// The least length in px of a side that is to be touched: 9 mm at 160 dpi.
    int touch() const;
    /// The gap between things, and between them and the edge of a page.
    int gap() const { return px(16); }
    int margin() const { return px(28); }
    /// The widest that a page of one column is; a wider one has a second.
    int content() const { return px(1180); }
    /// From the edge of a panel to what stands on it.
    int inset() const { return px(20); }
    int textPx(TextSize size) const;
    QFont font(TextSize size, bool bold = false) const;

    QColor ground; ///< of a page, where no backdrop is seen
    QColor face; ///< of keys and panels
    QColor pressedFace;
    QColor line; ///< around faces and between rows
    QColor text;
    QColor quietText;
    QColor accent;
    QColor onAccent; ///< text and icons on the accent
    QColor positive;
    QColor danger;
    QColor veil; ///< over a page under a popup

    /// A picture that starts out transparent and is painted once, however often it is asked for;
    /// the key tells it from all others. Copies of the theme share what is painted.
    QPixmap picture(const QString &key, const QSize &size,
                    const std::function<void(QPainter &)> &paint) const;
    /// Lets go of what is painted, for all copies: another look follows.
    void dropPictures() const { m_pictures->clear(); }
    /// An icon of art/, tinted.
    QPixmap icon(const QString &name, int px, const QColor &color) const;
    /// A drawing of art/ as it is.
    QPixmap drawing(const QString &name, const QSize &size) const;
    /// A photograph that fills a face with rounded corners.
    QPixmap rounded(const QImage &photograph, const QSize &size) const;
    /// The file of a drawing of art/, with its ending.
    static QString file(const QString &name);
    /// A rounded face; a border of no colour is none.
    QPixmap panel(const QSize &size, const QColor &fill, const QColor &border, int radius) const;
    /// The face of a key with an icon in its middle, or above it by `rise` px where a caption
    /// stands below.
    QPixmap key(const QSize &size, Style style, State state, const QString &icon = {},
                int iconPx = 0, int rise = 0) const;
    /// The colour of what stands on the face of a key.
    QColor ink(Style style, State state) const;
    int radius() const { return px(14); }

private:
    QColor faceColor(Style style, State state) const;

    QSize m_screen;
    Look m_look;
    // Qt's own cache would wake up for minutes to see whether it can let go of something.
    std::shared_ptr<QCache<QString, QPixmap>> m_pictures;
};

} // namespace headunit

#endif // HEADUNIT_THEME_H
