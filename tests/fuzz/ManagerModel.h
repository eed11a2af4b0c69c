// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

namespace Panorel::Fuzz {

using namespace Panorel::Tests;

/** How one window is arranged. Without a state it was never captured. */
struct Layout
{
    Qt::DockWidgetArea dock = Qt::LeftDockWidgetArea;
    Qt::ToolBarArea bar = Qt::TopToolBarArea;
    QByteArray state;
};

struct ModelView
{
    QString name;
    Layout layout;
};

struct ModelGroup
{
    ModelView* find(const QString& viewName)
    {
        const auto it = std::find_if(views.begin(), views.end(),
                                     [&](const ModelView& view) { return view.name == viewName; });
        return it == views.end() ? nullptr : &*it;
    }

    QString name;
    std::vector<ModelView> views;
    /** Null for none. */
    QString active;
    Layout current;
};

/** What a document holds that the model has written. */
struct ModelDocument
{
    std::vector<ModelGroup> groups;
    Layout toolBars;
};

/**
 * What a Manager of one window is meant to do, on plain vectors and strings. Each operation returns
 * what the Manager's must return; the signals it must emit are taken afterwards.
 */
class ManagerModel
{
public:
    ManagerModel(const QStringList& groupNames, bool mergeOnApply)
        : m_mergeOnApply(mergeOnApply)
    {
        for (const QString& name : groupNames)
            groups.push_back({name, {}, QString(), Layout()});
    }

    ModelGroup& group() { return groups[m_active]; }
    QStringList takeSignals() { return std::exchange(m_signals, QStringList()); }

    bool createView(const QString& name)
    {
        if (group().find(name))
            return false;
        group().views.push_back({name, live});
        emitModified();
        return true;
    }

    bool saveCurrentViewAs(const QString& name)
    {
        const bool created = !group().find(name);
        if (created)
            group().views.push_back({name, Layout()});
        ModelView& view = *group().find(name);
        view.layout = group().current = live;
        // Not the given name, which may be null where the view's is empty.
        group().active = view.name;
        if (created)
            emitModified();
        emitActivated(name);
        return true;
    }

    void deleteView(const QString& name)
    {
        const ModelView* view = group().find(name);
        if (!view)
            return;
        if (!group().active.isNull() && group().active == name) {
            group().active = QString();
            emitActivated(""_s);
        }
        group().views.erase(group().views.begin() + (view - group().views.data()));
        emitModified();
    }

    bool activateView(const QString& name)
    {
        const ModelView* view = group().find(name);
        if (name.isEmpty() || !view)
            return false;
        group().active = name;
        group().current = view->layout;
        apply(group().current);
        emitActivated(name);
        return true;
    }

    bool activateGroup(const QString& name)
    {
        const auto it = std::find_if(groups.begin(), groups.end(),
                                     [&](const ModelGroup& other) { return other.name == name; });
        if (it == groups.end())
            return false;
        group().current = live;
        m_active = static_cast<std::size_t>(it - groups.begin());
        apply(group().current);
        m_signals << QString("groupActivated("_s + quoted(name) + ")"_s);
        emitActivated(group().active);
        return true;
    }

    void clear()
    {
        emitActivated(""_s);
        emitModified();
        for (ModelGroup& cleared : groups) {
            cleared.views.clear();
            cleared.active = QString();
        }
        emitActivated(QString());
        emitModified();
    }

    ModelDocument write(bool markActive)
    {
        group().current = live;
        ModelDocument document{groups, m_mergeOnApply ? live : Layout()};
        for (ModelGroup& written : document.groups) {
            if (!markActive)
                written.active = QString();
        }
        return document;
    }

    /** Null for a document of another version, which is not read. */
    void load(const ModelDocument* document, bool merge)
    {
        if (!merge)
            clear();
        for (std::size_t i = 0; document && i < groups.size(); ++i)
            overlay(groups[i], document->groups[i]);
        emitModified();
        if (document && !document->toolBars.state.isEmpty()) {
            live.dock = document->toolBars.dock;
            live.bar = document->toolBars.bar;
        }
        apply(group().current);
        emitActivated(group().active);
    }

    void emitSpecial(const QString& signal) { m_signals << signal; }

    bool viewsValid() const
    {
        const auto isInvalid = [this](const ModelView& view) {
            return view.layout.state.isEmpty() != live.state.isEmpty();
        };
        return !m_mergeOnApply ||
               std::none_of(groups.begin(), groups.end(), [&](const ModelGroup& any) {
                   return std::any_of(any.views.begin(), any.views.end(), isInvalid);
               });
    }

    std::vector<ModelGroup> groups;
    /** How the window is arranged; its state is set before each operation. */
    Layout live;

private:
    void emitModified() { m_signals << "groupModified()"_s; }
    void emitActivated(const QString& name)
    {
        m_signals << QString("viewActivated("_s + quoted(name) + ")"_s);
    }

    void apply(const Layout& layout)
    {
        if (layout.state.isEmpty())
            return;
        live.dock = layout.dock;
        if (!m_mergeOnApply)
            live.bar = layout.bar;
    }

    void overlay(ModelGroup& target, const ModelGroup& source)
    {
        for (const ModelView& view : source.views) {
            if (ModelView* existing = target.find(view.name))
                *existing = view;
            else
                target.views.push_back(view);
        }
        if (!source.active.isNull())
            target.active = source.active;
        target.current = source.current.state.isEmpty() ? live : source.current;
    }

    std::size_t m_active = 0;
    const bool m_mergeOnApply;
    QStringList m_signals;
};

} // namespace Panorel::Fuzz
