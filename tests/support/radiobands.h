// SPDX-License-Identifier: Apache-2.0
#ifndef RADIOBANDS_H
#define RADIOBANDS_H

/// The bands of the world's car radios: FM in units of 10 kHz, the others in kHz.
struct RadioBand {
    const char *name;
    bool isFM;
    int start;
    int end;
    int step;
};

constexpr RadioBand kRadioBands[] = {
    {"FM Europe", true, 8750, 10800, 10},   {"FM Japan", true, 7600, 9500, 10},
    {"FM Americas", true, 8790, 10790, 20}, {"MW 9 kHz", false, 522, 1620, 9},
    {"MW 10 kHz", false, 530, 1710, 10},    {"LW", false, 153, 279, 9},
    {"SW 49 m", false, 5900, 6200, 5},
};

#endif // RADIOBANDS_H
