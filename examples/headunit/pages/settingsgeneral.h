// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SETTINGSGENERAL_H
#define HEADUNIT_SETTINGSGENERAL_H

#include "models/preferences.h"
#include "view.h"

#include <QTimer>
#include <QVector>

#include <memory>

class MOnOffButton;

namespace Ui
{
class SettingsGeneral;
}

namespace headunit
{

class RowList;

/**
 * A list of what is on or off, with a switch on each row. A tap anywhere on a row switches it. A
 * finger that scrolls the list may begin and end on a switch: while the list moves, the application
 * has the property "listMoving", by which a switch tells that from a tap.
 */
class SettingsGeneral : public View
{
    Q_OBJECT

public:
    explicit SettingsGeneral(Context &context, QWidget *parent = nullptr);
    ~SettingsGeneral() override;

protected:
    void dress() override;
    void retranslate() override;
    QMargins margins(const Theme &theme) const override;
    void hideEvent(QHideEvent *e) override;

private:
    void addSwitch(int row);
    void tapRow(int row);
    void showOption(Preferences::Option option, bool isOn);
    void onPressed();
    void onReleased();
    void onMoved();
    void rest();

    const std::unique_ptr<Ui::SettingsGeneral> m_ui;
    RowList *const m_rows;
    QVector<MOnOffButton *> m_switches;
    QTimer m_rest; // since the list was moved last, while no finger is on it
    bool m_isTouched = false;
    bool m_isSwitchTouched = false; // by the last finger on the list
};

} // namespace headunit

#endif // HEADUNIT_SETTINGSGENERAL_H
