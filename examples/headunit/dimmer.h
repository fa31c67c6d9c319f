// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_DIMMER_H
#define HEADUNIT_DIMMER_H

#include <QWidget>

namespace headunit
{

/// Darkens all that it lies over; touches go through it. At full brightness it is not there.
class Dimmer : public QWidget
{
    Q_OBJECT

public:
    explicit Dimmer(QWidget *parent);

    void setBrightness(int percent);

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    QColor m_veil;
};

} // namespace headunit

#endif // HEADUNIT_DIMMER_H
