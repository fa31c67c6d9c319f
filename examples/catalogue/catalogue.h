// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_CATALOGUE_H
#define CATALOGUE_CATALOGUE_H

#include "finger.h"
#include "scene.h"

#include <QString>

#include <deque>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

/// What the list of classes says about one.
struct ClassInfo {
    QString name;
    QString family;
    QString toolTip;
};

/// Something a page can show: a state that is set, or touches that are played. Each starts from
/// freshly built content.
struct Act {
    enum Kind {
        State,
        EmptyState, ///< A state that paints nothing.
        Touches, ///< Touches that make the subjects emit signals.
        SilentTouches ///< Touches that must not.
    };

    bool isTouched() const { return kind == Touches || kind == SilentTouches; }

    QString name;
    Kind kind;
    std::function<void(QObject &subject, Finger &finger)> perform;
};

/// One page: how its content is built, and what there is to see. The first act is the content as
/// it was built, "normal".
struct Page {
    QString name;
    ClassInfo classInfo;
    std::function<QObject *(Scene &scene)> build;
    std::vector<Act> acts;
};

/// All pages of all listed classes. The pages of a class are defined in pages/<class>.cpp.
class Catalogue
{
public:
    Catalogue();

    Page &add(Page page);
    const std::deque<Page> &pages() const { return m_pages; }
    /// The page of this name; null if there is none.
    const Page *find(const QString &name) const;

private:
    std::deque<Page> m_pages;
};

/// Adds acts to a page whose main subject is a `Subject`.
template <class Subject> class PageWriter
{
public:
    explicit PageWriter(Page &page) : m_page(page) { }

    PageWriter &state(const QString &name, std::function<void(Subject &)> set)
    {
        return addState(name, Act::State, std::move(set));
    }
    PageWriter &emptyState(const QString &name, std::function<void(Subject &)> set)
    {
        return addState(name, Act::EmptyState, std::move(set));
    }
    PageWriter &touches(const QString &name, std::function<void(Subject &, Finger &)> script)
    {
        return addTouches(name, Act::Touches, std::move(script));
    }
    PageWriter &silentTouches(const QString &name, std::function<void(Subject &, Finger &)> script)
    {
        return addTouches(name, Act::SilentTouches, std::move(script));
    }

private:
    PageWriter &addState(const QString &name, Act::Kind kind, std::function<void(Subject &)> set)
    {
        return addTouches(name, kind,
                          [set = std::move(set)](Subject &subject, Finger &) { set(subject); });
    }
    PageWriter &addTouches(const QString &name, Act::Kind kind,
                           std::function<void(Subject &, Finger &)> script)
    {
        m_page.acts.push_back(
            {name, kind, [script = std::move(script)](QObject &subject, Finger &finger) {
                 script(static_cast<Subject &>(subject), finger);
             }});
        return *this;
    }

    Page &m_page;
};

/// Takes the pages of one class: `void definePages(PagesOf<Class> &pages)` calls add() for each.
template <class Class> class PagesOf
{
public:
    PagesOf(Catalogue &catalogue, ClassInfo classInfo)
        : m_catalogue(catalogue), m_classInfo(std::move(classInfo))
    {
    }

    /// A page named after the class. `build` makes the content on the scene that it is given and
    /// returns the main subject.
    template <class Build> auto add(Build build) { return add(m_classInfo.name, std::move(build)); }

    /// A page of another name, which is also the name of its folder.
    template <class Build> auto add(const QString &name, Build build)
    {
        using Subject = std::remove_pointer_t<std::invoke_result_t<Build, Scene &>>;
        Page &page = m_catalogue.add({name, m_classInfo, std::move(build), {}});
        PageWriter<Subject> writer(page);
        writer.state(QStringLiteral("normal"), [](Subject &) {});
        return writer;
    }

private:
    Catalogue &m_catalogue;
    ClassInfo m_classInfo;
};

#endif // CATALOGUE_CATALOGUE_H
