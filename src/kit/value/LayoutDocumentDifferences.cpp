// SPDX-License-Identifier: MIT

// What differs between two documents, or two of their views.

#include "DocumentModel.h"

#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/WindowState.h>

#include <QHash>

namespace Panorel::Kit {

using Detail::DocumentGroup;
using Detail::DocumentModel;
using Detail::DocumentView;

namespace {

using View = LayoutDocument::View;

/** The views of a document as a Manager has them, in its order. */
struct Contents
{
    struct Group
    {
        QStringList names;
        QHash<QString, QVector<const DocumentView*>> views;
        QVector<const DocumentView*> current;
    };

    explicit Contents(const DocumentModel& model)
    {
        for (const DocumentGroup& source : model.groups) {
            if (!groups.contains(source.name))
                names.append(source.name);
            Group& group = groups[source.name];
            group.current.append(&source.current);
            for (const DocumentView& view : source.views) {
                if (!group.views.contains(view.name))
                    group.names.append(view.name);
                group.views[view.name].append(&view);
            }
        }
    }

    QStringList names;
    QHash<QString, Group> groups;
};

using Places = QVector<LayoutDocument::Differences::Place>;

// The views of a that b lacks; of a group that b lacks, the current view too.
Places onlyIn(const Contents& a, const Contents& b)
{
    Places places;
    for (const QString& name : a.names) {
        const bool isInBoth = b.groups.contains(name);
        const Contents::Group other = b.groups.value(name);
        const QStringList views = a.groups.value(name).names;
        for (const QString& view : views) {
            if (!other.views.contains(view))
                places.append({name, view});
        }
        if (!isInBoth)
            places.append({name, QString()});
    }
    return places;
}

QVector<Difference> differencesOf(const StateMap& a, const StateMap& b)
{
    QVector<Difference> result;
    QStringList windows = a.keys() + b.keys();
    windows.sort();
    windows.removeDuplicates();
    for (const QString& window : qAsConst(windows)) {
        if (a.value(window) == b.value(window))
            continue;
        QVector<Difference> found =
            differences(WindowState(a.value(window)), WindowState(b.value(window)));
        for (Difference& difference : found)
            difference.window = window;
        result += found;
    }
    return result;
}

QVector<Difference> placed(QVector<Difference> differences, const QString& group,
                           const QString& view)
{
    for (Difference& difference : differences) {
        difference.group = group;
        difference.view = view;
        difference.isInCurrentView = view.isNull();
    }
    return differences;
}

QVector<Difference> changedIn(const QString& name, const Contents::Group& a,
                              const Contents::Group& b)
{
    QVector<Difference> changed;
    for (const QString& view : a.names) {
        if (b.views.contains(view))
            changed += placed(LayoutDocument::differences(Detail::readView(a.views.value(view)),
                                                          Detail::readView(b.views.value(view))),
                              name, view);
    }
    return changed + placed(LayoutDocument::differences(Detail::readView(a.current),
                                                        Detail::readView(b.current)),
                            name, QString());
}

} // namespace

QVector<Difference> LayoutDocument::differences(const View& a, const View& b)
{
    return differencesOf(a.states, b.states);
}

LayoutDocument::Differences LayoutDocument::differences(const LayoutDocument& a,
                                                        const LayoutDocument& b)
{
    const Contents inA(*a.m_model);
    const Contents inB(*b.m_model);
    Differences result{onlyIn(inA, inB), onlyIn(inB, inA),
                       differencesOf(a.toolBarStates(), b.toolBarStates())};
    for (const QString& name : inA.names) {
        if (inB.groups.contains(name))
            result.changed += changedIn(name, inA.groups.value(name), inB.groups.value(name));
    }
    return result;
}

} // namespace Panorel::Kit
