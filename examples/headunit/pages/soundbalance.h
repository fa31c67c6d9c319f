// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SOUNDBALANCE_H
#define HEADUNIT_SOUNDBALANCE_H

#include "view.h"

#include <memory>

class QLabel;

namespace Ui
{
class SoundBalance;
}

namespace headunit
{

/// Where in the car the music is: a dot in the cabin, and a slider for each direction.
class SoundBalance : public View
{
    Q_OBJECT

public:
    explicit SoundBalance(Context &context, QWidget *parent = nullptr);
    ~SoundBalance() override;

protected:
    void dress() override;
    void retranslate() override;

private:
    void layOutControls();
    void centre();
    void showPlace();
    void showValues();
    void showValue(QLabel &label, int value, const QString &below, const QString &above);
    void showCabin();

    const std::unique_ptr<Ui::SoundBalance> m_ui;
};

} // namespace headunit

#endif // HEADUNIT_SOUNDBALANCE_H
