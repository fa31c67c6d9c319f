// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_POPUP_H
#define HEADUNIT_POPUP_H

#include "theme.h"

#include <spmaskbackground.h>

#include <QLabel>

class SpIconButton;

namespace headunit
{

/// A sentence in the middle of the screen, over everything else, until it is touched away.
class Popup : public SpMaskBackground
{
    Q_OBJECT

public:
    explicit Popup(QWidget *parent);

    void setTheme(const Theme &theme);
    /// Shows a sentence; one that is shown already is followed by it.
    void say(const QString &title, const QString &sentence);

protected:
    void changeEvent(QEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;

private:
    void showNext();
    void place();
    void retranslate();

    QLabel *m_panel;
    QLabel *m_title;
    QLabel *m_sentence;
    SpIconButton *m_close;
    Theme m_theme;
    QVector<QPair<QString, QString>> m_waiting;
};

} // namespace headunit

#endif // HEADUNIT_POPUP_H
