// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_EVERYCLASS_H
#define PANELKIT_BENCHMARKS_EVERYCLASS_H

class Rows;

/// What every widget is measured in alike, each in its first state: made and deleted, touched,
/// given a property; dragged, where it is made for that; a tick of its timer, where one runs. And
/// the loading of a form.
void defineRowsOfEveryClass(Rows &rows);

/// The loading of a form.
void defineRowsOfForms(Rows &rows);

/// Prints how many bytes each widget takes more than a bare QWidget, images aside. False if it is
/// too many for one of them.
bool printMemory();

#endif // PANELKIT_BENCHMARKS_EVERYCLASS_H
