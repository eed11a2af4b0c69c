// SPDX-License-Identifier: MIT
#pragma once

#include "ManagerModel.h"

namespace Panorel::Fuzz {

inline QString stateText(const QString& indent, const QString& element, const Layout& layout)
{
    if (layout.state.isEmpty())
        return QString();
    return indent + "<"_s + element + " DescriptorId=\"window\">"_s +
           QString::fromLatin1(layout.state.toHex()) + "</"_s + element + ">\n"_s;
}

inline QString viewText(const QString& element, const QString& attributes, const Layout& layout,
                        const QString& indent)
{
    return indent + "<"_s + element + attributes + ">\n"_s +
           stateText(indent + "    "_s, "State"_s, layout) + indent +
           "    <UserData></UserData>\n"_s + indent + "</"_s + element + ">\n"_s;
}

inline QString groupText(const ModelGroup& group)
{
    QString text = "        <Group Name=\""_s + group.name + "\">\n"_s;
    text += group.views.empty() ? "            <Views/>\n"_s : "            <Views>\n"_s;
    for (const ModelView& view : group.views) {
        const bool active = !group.active.isNull() && group.active == view.name;
        text += viewText("View"_s,
                         (active ? " Active=\"true\""_s : QString()) + " Name=\""_s +
                             view.name.toHtmlEscaped() + "\""_s,
                         view.layout, "                "_s);
    }
    if (!group.views.empty())
        text += "            </Views>\n"_s;
    return text +
           viewText("CurrentView"_s, " Name=\"__current__\""_s, group.current, "            "_s) +
           "        </Group>\n"_s;
}

/** The document as it must be written, character by character. */
inline QString documentText(const ModelDocument& document)
{
    QString text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ViewData Version=\"1.1.0\">\n"_s +
                   stateText("    "_s, "ToolBarState"_s, document.toolBars) + "    <Groups>\n"_s;
    for (const ModelGroup& group : document.groups)
        text += groupText(group);
    return text + "    </Groups>\n</ViewData>\n"_s;
}

} // namespace Panorel::Fuzz
