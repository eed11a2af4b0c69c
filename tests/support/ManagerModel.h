// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Panorel::Tests {

/**
 * The Manager's rules once more, for one window: slow and plain. Views are shared, so that nothing
 * that a receiver or an owner does during an operation leaves a dangling pointer. Each operation
 * returns what the Manager's must return.
 *
 * @tparam Window a model of the window, which says what a layout is:
 *     using Layout = ...;                               // made by default, it was never captured
 *     Layout capture() const;
 *     void restore(const Layout& layout, bool toolBars); // tool bars stay without toolBars
 *     static bool isCaptured(const Layout& layout);
 */
template<typename Window>
class ManagerModel
{
public:
    using Layout = typename Window::Layout;

    struct View
    {
        QString name;
        Layout layout;
    };
    using ViewPointer = std::shared_ptr<View>;

    struct Group
    {
        QString name;
        std::vector<ViewPointer> views;
        ViewPointer activeView;
        Layout current;
    };
    using GroupPointer = std::shared_ptr<Group>;

    /** What a document holds that the model has written. */
    struct Document
    {
        struct GroupPart
        {
            QString name;
            std::vector<View> views;
            /** Of the view that is marked as active; -1 for none. */
            int activeIndex = -1;
            Layout current;
        };
        std::optional<Layout> toolBars;
        std::vector<GroupPart> groups;
    };

    ManagerModel(const QStringList& groupNames, bool mergeOnApply)
        : m_merge(mergeOnApply)
    {
        for (const QString& name : groupNames)
            m_groups.push_back(std::make_shared<Group>(Group{name, {}, nullptr, {}}));
        m_active = m_groups.front();
    }

    /** Runs whenever the owner is asked for its window. */
    std::function<void()> onAsked = [] {};
    /** Runs at each signal, with its text as SignalLog writes it. */
    std::function<void(const QString&)> onSignal = [](const QString&) {};
    Window live;

    QString activeGroup() const { return m_active->name; }
    QStringList views() const
    {
        QStringList names;
        for (const ViewPointer& view : m_active->views)
            names.append(view->name);
        return names;
    }
    QString activeView() const { return nameOf(m_active->activeView); }
    bool factoryDefaultViewSet() const { return m_factoryDefault.has_value(); }
    bool programStartViewSet() const { return m_programStart.has_value(); }

    bool activateGroup(const QString& name)
    {
        const GroupPointer group = findGroup(name);
        if (!group)
            return false;
        captureInto(m_active);
        m_active = group;
        apply(group->current);
        emitSignal("groupActivated"_s, quoted(name));
        emitActivated(nameOf(group->activeView));
        return true;
    }

    bool activateView(const QString& name)
    {
        const ViewPointer view = name.isEmpty() ? nullptr : find(*m_active, name);
        if (!view)
            return false;
        m_active->activeView = view;
        m_active->current = view->layout;
        apply(view->layout);
        emitActivated(name);
        return true;
    }

    bool createView(const QString& name)
    {
        if (find(*m_active, name))
            return false;
        const GroupPointer group = m_active;
        append(*group, name);
        const Layout layout = capture();
        // The view may have been replaced by one of its name, or be gone.
        if (const ViewPointer view = find(*group, name))
            view->layout = layout;
        emitModified();
        return true;
    }

    bool saveCurrentViewAs(const QString& name)
    {
        const GroupPointer group = m_active;
        bool created = !find(*group, name);
        if (created)
            append(*group, name);
        captureInto(group);
        if (!find(*group, name)) {
            append(*group, name);
            created = true;
        }
        group->activeView = find(*group, name);
        group->activeView->layout = group->current;
        if (created)
            emitModified();
        emitActivated(name);
        return true;
    }

    void deleteView(const QString& name)
    {
        const GroupPointer group = m_active;
        const ViewPointer view = find(*group, name);
        if (!view)
            return;
        if (view == group->activeView) {
            group->activeView = nullptr;
            emitActivated(""_s);
        }
        if (view == group->activeView)
            group->activeView = nullptr;
        auto& views = group->views;
        views.erase(std::remove(views.begin(), views.end(), view), views.end());
        emitModified();
    }

    void clear()
    {
        emitActivated(""_s);
        emitModified();
        for (const GroupPointer& group : m_groups) {
            const bool isActive = group == m_active;
            group->activeView = nullptr;
            if (isActive)
                emitActivated(QString());
            group->activeView = nullptr;
            group->views.clear();
            if (isActive)
                emitModified();
        }
    }

    Document toXml(bool markActive)
    {
        captureInto(m_active);
        Document document;
        if (m_merge)
            document.toolBars = capture();
        for (const GroupPointer& group : m_groups) {
            typename Document::GroupPart part{group->name, {}, -1, group->current};
            for (const ViewPointer& view : group->views) {
                if (markActive && view == group->activeView)
                    part.activeIndex = static_cast<int>(part.views.size());
                part.views.push_back(*view);
            }
            document.groups.push_back(part);
        }
        return document;
    }

    /** A document of another version counts as one without content. */
    bool fromXml(const Document& document, bool merge)
    {
        const Document copy = document;
        if (!merge)
            clear();
        for (const auto& part : copy.groups)
            read(findGroup(part.name), part);
        emitModified();
        if (m_merge)
            restore(copy.toolBars.value_or(Layout()), /*toolBars=*/true);
        apply(m_active->current);
        emitActivated(activeView());
        return true;
    }

    bool setFactoryDefaultView(const Document& document)
    {
        m_factoryDefault = document;
        emitSignal("factoryDefaultViewChanged"_s, "true"_s);
        return true;
    }
    bool setProgramStartView(const Document& document)
    {
        m_programStart = document;
        emitSignal("programStartViewChanged"_s, "true"_s);
        return true;
    }
    bool activateFactoryDefaultView()
    {
        return m_factoryDefault && fromXml(*m_factoryDefault, false);
    }
    bool activateProgramStartView() { return m_programStart && fromXml(*m_programStart, false); }

    /** With merging, whether the views were captured if and only if the window is there now. */
    bool viewsValid()
    {
        if (!m_merge)
            return true;
        const bool isThere = Window::isCaptured(capture());
        return std::all_of(m_groups.begin(), m_groups.end(), [&](const GroupPointer& group) {
            return std::all_of(group->views.begin(), group->views.end(),
                               [&](const ViewPointer& view) {
                                   return Window::isCaptured(view->layout) == isThere;
                               });
        });
    }

private:
    static QString nameOf(const ViewPointer& view) { return view ? view->name : QString(); }

    static ViewPointer find(const Group& group, const QString& name)
    {
        for (const ViewPointer& view : group.views) {
            if (view->name == name)
                return view;
        }
        return nullptr;
    }

    static ViewPointer append(Group& group, const QString& name)
    {
        group.views.push_back(std::make_shared<View>(View{name, {}}));
        return group.views.back();
    }

    GroupPointer findGroup(const QString& name) const
    {
        for (const GroupPointer& group : m_groups) {
            if (group->name == name)
                return group;
        }
        return nullptr;
    }

    Layout capture()
    {
        onAsked();
        return live.capture();
    }

    // By value: during the capture the group may be left for another one.
    void captureInto(GroupPointer group) { group->current = capture(); }

    void restore(const Layout& layout, bool toolBars)
    {
        const Layout copy = layout;
        onAsked();
        if (Window::isCaptured(copy))
            live.restore(copy, toolBars);
    }

    void apply(const Layout& layout)
    {
        const Layout copy = layout;
        if (m_merge)
            (void)capture();
        restore(copy, /*toolBars=*/!m_merge);
    }

    void read(const GroupPointer& group, const typename Document::GroupPart& part)
    {
        for (std::size_t i = 0; i < part.views.size(); ++i) {
            ViewPointer view = find(*group, part.views[i].name);
            if (!view)
                view = append(*group, part.views[i].name);
            view->layout = part.views[i].layout;
            if (static_cast<int>(i) == part.activeIndex)
                group->activeView = view;
        }
        group->current = part.current;
        if (!Window::isCaptured(group->current))
            captureInto(group);
    }

    void emitModified() { emitSignal("groupModified"_s, QString()); }
    void emitActivated(const QString& name) { emitSignal("viewActivated"_s, quoted(name)); }
    void emitSignal(const QString& name, const QString& argument)
    {
        onSignal(name + "("_s + argument + ")"_s);
    }

    bool m_merge;
    std::vector<GroupPointer> m_groups;
    GroupPointer m_active;
    std::optional<Document> m_factoryDefault;
    std::optional<Document> m_programStart;
};

} // namespace Panorel::Tests
