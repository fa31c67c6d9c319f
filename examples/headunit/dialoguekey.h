// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_DIALOGUEKEY_H
#define HEADUNIT_DIALOGUEKEY_H

#include "theme.h"

#include <sphorstrbutton.h>

namespace headunit
{

/// A wide key with a caption. It does nothing when the finger has slid off it.
class DialogueKey : public SpHorStrButton
{
    Q_OBJECT

public:
    explicit DialogueKey(QWidget *parent = nullptr);

    /// At the size that it has in its layout.
    void dress(const Theme &theme, Theme::Style style);

protected:
    void mouseReleaseEvent(QMouseEvent *e) override;
};

} // namespace headunit

#endif // HEADUNIT_DIALOGUEKEY_H
