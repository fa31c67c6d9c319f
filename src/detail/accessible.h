// SPDX-License-Identifier: Apache-2.0
// What the classes know of accessibility: that it is there, and what it may ask them.
#ifndef PANELKIT_DETAIL_ACCESSIBLE_H
#define PANELKIT_DETAIL_ACCESSIBLE_H

class QPoint;
class QWidget;

namespace panelkit
{

/// The classes that know something which accessibility needs and for which they have no function.
enum class AccessibleTeller {
    None,
    ArcList,
    ArcScrollBar,
    CircularDial,
    HorSlider,
    HorStrButton,
    KarvoSlider,
    MultipleButton,
    MultipleStateButton,
    PlayButton,
    ProgressBar,
    RadioSlider,
    SelectButton,
    SetupSlider,
    Count
};

/// What accessibility asks them.
enum class AccessibleFact {
    IsPressed, ///< 1 while it looks pressed
    IsDisabled, ///< 1 while its own flag disables it
    StateCount, ///< how many states a button goes through
    ValueAt, ///< the value that a touch at this point sets; no number where a touch sets none
    ScaleX, ///< px, where the first tick of a scale that is dragged stands
    Letters, ///< how many there are
    LetterAt, ///< the letter with the index that is the point's x
    CurrentLetter ///< its index, or -1
};

/// Answers for a widget of the class. What a class does not know it answers with anything.
using TellAccessible = double (*)(const QWidget *widget, AccessibleFact fact, const QPoint &at);

/**
 * Called by each constructor: the first time it tells Qt who makes the interfaces of these widgets.
 * Nothing has to be constructed for that when the library is loaded, a static library brings it
 * along too, and it is taken back when the library is unloaded.
 */
void installAccessibility();

/// The same for a class that has something to tell.
void installAccessibility(AccessibleTeller teller, TellAccessible tell);

/// What the class has to tell of this widget, which is one of it.
double toldAccessible(AccessibleTeller teller, const QWidget *widget, AccessibleFact fact,
                      const QPoint &at);

} // namespace panelkit

#endif // PANELKIT_DETAIL_ACCESSIBLE_H
