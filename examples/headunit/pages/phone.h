// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_PHONE_H
#define HEADUNIT_PHONE_H

#include "page.h"

#include <memory>

namespace Ui
{
class Phone;
}

namespace headunit
{

class Call;
class CallView;
class ContactList;
class Favourites;
class Keypad;
class RecentNumbers;

/// The telephone: contacts, favourites, a keypad, and the call while there is one.
class PhonePage : public Page
{
    Q_OBJECT

public:
    explicit PhonePage(Context &context, QWidget *parent = nullptr);
    ~PhonePage() override;

    QString title() const override;
    void setTheme(const Theme &theme) override;
    bool goBack() override;

signals:
    /// How long the call lasts that is going on; empty: there is none.
    void callTimeChanged(const QString &time);

protected:
    void dress() override;
    void retranslate() override;

private:
    void showView(int key);
    void showCall();
    void tellTime();
    void pauseMusic(bool inCall);

    const std::unique_ptr<Ui::Phone> m_ui;
    RecentNumbers *const m_recent;
    Call *const m_call;
    ContactList *const m_contacts;
    Favourites *const m_favourites;
    Keypad *const m_keypad;
    CallView *const m_callView;
    bool m_hasPausedMusic = false;
};

} // namespace headunit

#endif // HEADUNIT_PHONE_H
