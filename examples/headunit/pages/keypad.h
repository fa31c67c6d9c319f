// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_KEYPAD_H
#define HEADUNIT_KEYPAD_H

#include "view.h"

#include <memory>

namespace Ui
{
class Keypad;
}

namespace headunit
{

class RecentNumbers;
class RowList;

/// A dialling pad, the number that is written with it, and the numbers called last.
class Keypad : public View
{
    Q_OBJECT

public:
    static constexpr int kMostDigits = 32;

    /// The numbers have to live longer.
    Keypad(Context &context, const RecentNumbers *recent, QWidget *parent = nullptr);
    ~Keypad() override;

    QString number() const { return m_number; }

    /// During a call the pad sends tones, and its key ends the call.
    void setInCall(bool inCall);

signals:
    void numberChosen(const QString &number);
    void hangUpWanted();

protected:
    void dress() override;
    void retranslate() override;

private:
    void setNumber(const QString &number);
    void callOrHangUp();
    void dressPad();
    void dressCallKey();
    void showNumber();
    void readRecent();

    const std::unique_ptr<Ui::Keypad> m_ui;
    const RecentNumbers *const m_recent;
    RowList *const m_recentRows;
    QString m_number;
    bool m_isInCall = false;
};

} // namespace headunit

#endif // HEADUNIT_KEYPAD_H
