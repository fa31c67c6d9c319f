// SPDX-License-Identifier: Apache-2.0
#include "everyclass.h"

#include "widgetclasses.h"

#include <QPushButton>

#include <malloc.h>

#include <cstdio>
#include <map>
#include <memory>
#include <string>

namespace
{

constexpr int kCount = 1000; // of those whose memory is counted
constexpr int kMostBytes = 1536; // each, more than a QWidget

// The bytes on the heap that each of many takes.
double bytesOf(Maker maker)
{
    std::vector<std::unique_ptr<QWidget>> widgets(kCount);
    double bytes = 0;
    for (int round = 0; round < 2; ++round) { // what is made once is made in the first
        const std::size_t before = mallinfo2().uordblks;
        for (auto &widget : widgets)
            widget.reset(maker(nullptr));
        bytes = double(mallinfo2().uordblks - before) / kCount;
        widgets = std::vector<std::unique_ptr<QWidget>>(kCount);
    }
    return bytes;
}

} // namespace

bool printMemory()
{
    // The children that their interfaces promise, a kept look; a table's headers, bars and models.
    const std::map<std::string, double> most = {{"SpTableList", 35'000}, {"MArcList", 1650},
                                                {"SpRollingText", 1600}, {"SpSetupSlider", 3200},
                                                {"MHorSlider", 2300},    {"MRadioMovePoint", 4800}};
    const double bare = bytesOf(make<QWidget>);
    std::printf("| %-22s | %12s | %6s |\n|%s|%s:|%s:|\n", "class", "bytes", "most",
                std::string(24, '-').c_str(), std::string(13, '-').c_str(),
                std::string(7, '-').c_str());
    std::printf("| %-22s | %12.0f | %6s |\n", "QWidget", bare, "");
    std::printf("| %-22s | %12s | %6s |\n", "and more than that:", "", "");
    std::printf("| %-22s | %12.0f | %6s |\n", "QPushButton", bytesOf(make<QPushButton>) - bare, "");
    bool isLittle = true;
    for (const WidgetClass &of : widgetClasses()) {
        const auto own = most.find(of.name);
        const double limit = own == most.end() ? kMostBytes : own->second;
        const double bytes = bytesOf(of.make) - bare;
        isLittle = isLittle && bytes <= limit;
        std::printf("| %-22s | %12.0f | %6.0f |%s\n", of.name, bytes, limit,
                    bytes > limit ? " too many" : "");
    }
    return isLittle;
}
