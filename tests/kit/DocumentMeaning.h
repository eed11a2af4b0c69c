// SPDX-License-Identifier: MIT
#pragma once

#include "fuzz/ManagerGroups.h"

#include <panorel/StateMap.h>

#include <algorithm>

namespace Panorel::Tests {

/** What a Manager makes of a document, and edits on that: what editing the document must give. */
class DocumentMeaning
{
public:
    struct View
    {
        QString name;
        StateMap states;
        /** Invalid without user data. */
        QVariant userData;
    };

    struct Group
    {
        QString name;
        /** Null without an active view. */
        QString active;
        QVector<View> views;
        View current;

        int indexOf(const QString& view) const
        {
            for (int i = 0; i < views.size(); ++i) {
                if (views.at(i).name == view)
                    return i;
            }
            return -1;
        }
    };

    DocumentMeaning() = default;

    /** Of the groups of these names, read by a Manager. */
    DocumentMeaning(const QByteArray& document, const QStringList& names)
    {
        // The first group is active and would take the live layout.
        Manager manager(QStringList("another"_s) + names, /*mergeOnApply=*/false);
        isAccepted = manager.fromXml(document, /*merge=*/false);
        for (const Panorel::Group* group : groupsOf(manager).mid(1))
            groups.append(read(*group));
    }

    Group& group(const QString& name)
    {
        return *std::find_if(groups.begin(), groups.end(),
                             [&](const Group& group) { return group.name == name; });
    }

    QString text() const
    {
        QString result;
        for (const Group& group : groups) {
            result +=
                "group "_s + quoted(group.name) + ", active "_s + quoted(group.active) + "\n"_s;
            for (const View& view : group.views)
                result += textOf(view);
            result += textOf(group.current);
        }
        return result;
    }

    bool isAccepted = false;
    QVector<Group> groups;

private:
    static View read(const Panorel::View& view) { return {view.name, view.states, view.userData}; }

    static Group read(const Panorel::Group& source)
    {
        Group group{source.name, {}, {}, read(*source.currentView)};
        if (source.activeView)
            group.active = source.activeView->name.isNull() ? ""_s : source.activeView->name;
        for (const auto& view : source.views)
            group.views.append(read(*view));
        return group;
    }

    static QString textOf(const View& view)
    {
        QString result =
            "  view "_s + quoted(view.name) + ", data "_s +
            (view.userData.isValid() ? "'"_s + view.userData.toString() + "'"_s : "none"_s) +
            "\n"_s;
        for (auto it = view.states.cbegin(); it != view.states.cend(); ++it)
            result +=
                "    "_s + quoted(it.key()) + ": "_s + QString::fromLatin1(it->toHex()) + "\n"_s;
        return result;
    }
};

} // namespace Panorel::Tests
