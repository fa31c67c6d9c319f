// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_RADIO_H
#define HEADUNIT_RADIO_H

#include "page.h"

#include <QTimer>
#include <QVector>

#include <memory>

class MPresetButton;
class MSelectButton;

namespace Ui
{
class Radio;
}

namespace headunit
{

class TunerScales;

/// The radio: bands, what is received, three scales to choose from, and twelve presets.
class RadioPage : public Page
{
    Q_OBJECT

public:
    explicit RadioPage(Context &context, QWidget *parent = nullptr);
    ~RadioPage() override;

    QString title() const override;

protected:
    void dress() override;
    void retranslate() override;

private:
    void connectTuner();
    void connectKeys();
    void store(int place);
    void showScale(int scale);
    void showNextScale();
    void showBand();
    void showFrequency();
    void showStation();
    void showPresets();
    void showPreset(int place);
    void layOut();
    void dressTexts();
    void dressBand(MSelectButton &key);
    void dressPreset(MPresetButton &key);

    const std::unique_ptr<Ui::Radio> m_ui;
    TunerScales *m_scales;
    QVector<MPresetButton *> m_presets;
    QTimer m_confirmation; // runs while a key says that it has stored
    int m_stored = -1; // the place of that key
};

} // namespace headunit

#endif // HEADUNIT_RADIO_H
