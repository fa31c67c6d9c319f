// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_SEARCH_H
#define PANELKIT_DETAIL_SEARCH_H

namespace panelkit
{

/// The first of so many numbers, from 0, that holds; their count, if none does. So many are tried
/// one after the other; what is left is halved, as if all that follow one that holds did so too.
///
/// This is how texts are shortened: their width does not quite grow with every character, so that
/// the first length that fits is found only one by one, but a text may have any number of
/// characters that take no room.
template <typename Predicate> int firstThat(int count, int triedSingly, Predicate holds)
{
    int first = 0;
    for (; first < count && first < triedSingly; ++first) {
        if (holds(first))
            return first;
    }
    int last = count;
    while (first < last) {
        const int middle = first + (last - first) / 2;
        if (holds(middle))
            last = middle;
        else
            first = middle + 1;
    }
    return first;
}

} // namespace panelkit

#endif // PANELKIT_DETAIL_SEARCH_H
