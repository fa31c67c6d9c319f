// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SETTINGSUPDATE_H
#define HEADUNIT_SETTINGSUPDATE_H

#include "view.h"

#include <memory>

namespace Ui
{
class SettingsUpdate;
}

namespace headunit
{

class SoftwareUpdate;

/// An update of the head unit: a key that starts it and then cancels it, and how far it is.
class SettingsUpdate : public View
{
    Q_OBJECT

public:
    explicit SettingsUpdate(Context &context, QWidget *parent = nullptr);
    ~SettingsUpdate() override;

signals:
    /// With a sentence on how it ended.
    void ended(const QString &sentence);

protected:
    void dress() override;
    void retranslate() override;
    void hideEvent(QHideEvent *e) override;
    void showEvent(QShowEvent *e) override;

private:
    void dressRing(int radius);
    void onKey();
    void showState();
    void turnBusyRing();
    QWidget *ring() const; ///< what stands at the side
    QString caption() const; ///< of the ring
    QString sentence() const;

    const std::unique_ptr<Ui::SettingsUpdate> m_ui;
    SoftwareUpdate *const m_update;
};

} // namespace headunit

#endif // HEADUNIT_SETTINGSUPDATE_H
