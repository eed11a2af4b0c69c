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
 * The Manager's rules once more, for one window whose layout is a number: slow, plain, and with
 * shared views, so that nothing a receiver or an owner does in between can leave a pointer behind.
 * What it tells is what a Manager has to tell in the same place, in the words of SignalLog.
 */
class ModelManager
{
public:
    using Layout = std::optional<int>;

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

    struct Document
    {
        struct GroupPart
        {
            QString name;
            std::vector<View> views;
            int activeIndex = -1;
            Layout current;
        };
        Layout toolBars;
        std::vector<GroupPart> groups;
    };

    ModelManager(const QStringList& groupNames, bool mergeOnApply)
        : m_merge(mergeOnApply)
    {
        for (const QString& name : groupNames)
            m_groups.push_back(std::make_shared<Group>(Group{name, {}, nullptr, {}}));
        m_active = m_groups.front();
    }

    /** Runs whenever the owner is asked for its window, and after each signal. */
    std::function<void()> onAsked = [] {};
    std::function<void()> onSignal = [] {};
    /** The window's layout. */
    int live = 1;
    QStringList log;

    QString activeGroup() const { return m_active->name; }
    QStringList views() const
    {
        QStringList names;
        for (const ViewPointer& view : m_active->views)
            names.append(view->name);
        return names;
    }
    QString activeView() const { return nameOf(m_active->activeView); }

    bool activateGroup(const QString& name)
    {
        const auto group = findGroup(name);
        if (!group)
            return false;
        captureInto(m_active);
        m_active = group;
        apply(group->current);
        emitSignal("groupActivated"_s, quoted(name));
        emitSignal("viewActivated"_s, quoted(nameOf(group->activeView)));
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
        emitSignal("viewActivated"_s, quoted(name));
        return true;
    }

    bool createView(const QString& name)
    {
        if (find(*m_active, name))
            return false;
        const auto group = m_active;
        append(*group, name);
        const int layout = capture();
        // The view may have been replaced by one of its name, or be gone.
        if (const ViewPointer view = find(*group, name))
            view->layout = layout;
        emitSignal("groupModified"_s);
        return true;
    }

    bool saveCurrentViewAs(const QString& name)
    {
        const auto group = m_active;
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
            emitSignal("groupModified"_s);
        emitSignal("viewActivated"_s, quoted(name));
        return true;
    }

    void deleteView(const QString& name)
    {
        const auto group = m_active;
        const ViewPointer view = find(*group, name);
        if (!view)
            return;
        if (view == group->activeView) {
            group->activeView = nullptr;
            emitSignal("viewActivated"_s, "''"_s);
        }
        if (view == group->activeView)
            group->activeView = nullptr;
        auto& views = group->views;
        views.erase(std::remove(views.begin(), views.end(), view), views.end());
        emitSignal("groupModified"_s);
    }

    void clear()
    {
        emitSignal("viewActivated"_s, "''"_s);
        emitSignal("groupModified"_s);
        for (const auto& group : m_groups) {
            const bool isActive = group == m_active;
            group->activeView = nullptr;
            if (isActive)
                emitSignal("viewActivated"_s, "null"_s);
            group->activeView = nullptr;
            group->views.clear();
            if (isActive)
                emitSignal("groupModified"_s);
        }
    }

    Document toXml()
    {
        captureInto(m_active);
        Document document;
        if (m_merge)
            document.toolBars = capture();
        for (const auto& group : m_groups) {
            Document::GroupPart part{group->name, {}, -1, group->current};
            for (const ViewPointer& view : group->views) {
                if (view == group->activeView)
                    part.activeIndex = static_cast<int>(part.views.size());
                part.views.push_back(*view);
            }
            document.groups.push_back(part);
        }
        return document;
    }

    bool fromXml(const Document& document, bool merge)
    {
        const Document copy = document;
        if (!merge)
            clear();
        for (const Document::GroupPart& part : copy.groups)
            read(findGroup(part.name), part);
        emitSignal("groupModified"_s);
        if (m_merge)
            restore(copy.toolBars);
        apply(m_active->current);
        emitSignal("viewActivated"_s, quoted(activeView()));
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

    bool viewsValid()
    {
        if (m_merge)
            (void)capture();
        return true;
    }

private:
    using GroupPointer = std::shared_ptr<Group>;

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

    int capture()
    {
        onAsked();
        return live;
    }

    void captureInto(GroupPointer group) { group->current = capture(); }

    void restore(const Layout& layout)
    {
        const Layout copy = layout;
        onAsked();
        if (copy)
            live = *copy;
    }

    void apply(const Layout& layout)
    {
        const Layout copy = layout;
        if (m_merge)
            (void)capture();
        restore(copy);
    }

    void read(const GroupPointer& group, const Document::GroupPart& part)
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
        if (!group->current)
            captureInto(group);
    }

    void emitSignal(const QString& name, const QString& argument = QString())
    {
        log.append(name + "("_s + argument + ") ["_s + activeGroup() + ": "_s +
                   views().join(", "_s) + "; active "_s + quoted(activeView()) + "]"_s);
        onSignal();
    }

    bool m_merge;
    std::vector<GroupPointer> m_groups;
    GroupPointer m_active;
    std::optional<Document> m_factoryDefault;
    std::optional<Document> m_programStart;
};

} // namespace Panorel::Tests
