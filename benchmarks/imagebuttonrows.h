// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_IMAGEBUTTONROWS_H
#define PANELKIT_BENCHMARKS_IMAGEBUTTONROWS_H

#include "canvas.h"
#include "floors.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <functional>
#include <utility>

/// The rows of an image button with a caption in the middle, beside Qt's own button in a style
/// sheet.
template <class Button> class ImageButtonRows
{
public:
    /// The function gives a button what only its class has.
    ImageButtonRows(Rows &rows, const char *className,
                    std::function<void(Button &)> setUp = AsItIs())
        : m_rows(rows), m_className(className), m_setUp(std::move(setUp))
    {
    }

    static const ButtonArtwork &artwork() { return buttonArtwork(kSize); }

    /// The row of a look that is one picture, into which the function brings a button with all of
    /// the artwork.
    template <class Enter>
    void addLook(const char *state, const QPixmap &picture, Enter enter,
                 PeerState peer = PeerState::Normal)
    {
        add(state, buttonOf(enter), pictureFloor(stretched(picture, kSize)),
            styledButton(kSize, pictureSheet(picture), {}, peer));
    }

    /// The same with a caption.
    template <class Enter>
    void addCaptionedLook(const char *state, const QPixmap &picture, const QColor &color,
                          Enter enter)
    {
        const QString caption = QStringLiteral("Radio");
        const auto setCaption = [caption](Button &button) { button.setDisplayText(caption); };
        add(state, buttonOf(setCaption, enter), captionedFloor(picture, caption, color),
            styledButton(kSize, pictureSheet(picture), caption));
    }

private:
    static constexpr QSize kSize{120, 80};
    static constexpr double kStyleSheetLimit = 0.65;

    template <class... Enter> PaintingMaker buttonOf(Enter... enter) const
    {
        const auto setUp = [](Button &button) {
            setImages(button, artwork());
            button.setNormalTextColor(Qt::white);
            button.setPressTextColor(Qt::yellow);
        };
        return widgetOf<Button>(kSize, setUp, m_setUp, enter...);
    }

    void add(const char *state, const PaintingMaker &ours, const PaintingMaker &floor,
             const PaintingMaker &peer)
    {
        m_rows.paint(m_className, state, ours, {floor},
                     {{"QPushButton style sheet", peer, kStyleSheetLimit}});
    }

    Rows &m_rows;
    const char *m_className;
    std::function<void(Button &)> m_setUp;
};

#endif // PANELKIT_BENCHMARKS_IMAGEBUTTONROWS_H
