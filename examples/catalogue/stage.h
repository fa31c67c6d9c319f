// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_STAGE_H
#define CATALOGUE_STAGE_H

#include <QWidget>

struct Act;
class Scene;
struct Page;
class SignalRelay;

/// Shows the content of a page, built anew for each act, and performs acts on it.
class Stage : public QWidget
{
    Q_OBJECT

public:
    explicit Stage(QWidget *parent = nullptr);

    Scene *scene() const { return m_scene; }
    /// Builds the page's content anew and performs the act on it. Touches take their time, in which
    /// no other act may begin.
    void perform(const Page &page, const Act &act);

signals:
    /// The content is new, and the act is about to be performed.
    void rebuilt();
    void signalEmitted(QObject *subject, const QString &signal);
    /// The moment of an act that is worth a picture.
    void pictureWorthy();

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    QObject *build(const Page &page);

    Scene *m_scene = nullptr;
    SignalRelay *m_relay = nullptr;
};

#endif // CATALOGUE_STAGE_H
