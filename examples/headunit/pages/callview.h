// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_CALLVIEW_H
#define HEADUNIT_CALLVIEW_H

#include "view.h"

#include <memory>

namespace Ui
{
class CallView;
}

namespace headunit
{

class Call;

/// A call: who it is, how long it lasts, and what can be done.
class CallView : public View
{
    Q_OBJECT

public:
    /// The call has to live longer.
    CallView(Context &context, Call *call, QWidget *parent = nullptr);
    ~CallView() override;

signals:
    void keypadWanted();

protected:
    void dress() override;
    void retranslate() override;

private:
    void dressPicture();
    void dressKeys();
    void showCall();
    void showTime();

    const std::unique_ptr<Ui::CallView> m_ui;
    Call *const m_call;
};

} // namespace headunit

#endif // HEADUNIT_CALLVIEW_H
