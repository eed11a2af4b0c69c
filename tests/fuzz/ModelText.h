// SPDX-License-Identifier: MIT
#pragma once

#include "support/ManagerModel.h"
#include "support/Text.h"

#include <QByteArray>

namespace Panorel::Tests {

/** How one window is arranged. Without a state it was never captured. */
struct Arrangement
{
    Qt::DockWidgetArea dock = Qt::LeftDockWidgetArea;
    Qt::ToolBarArea bar = Qt::TopToolBarArea;
    QByteArray state;
};

/** A window with one dock widget and one tool bar; its state is set before each operation. */
struct ArrangedWindow : Arrangement
{
    using Layout = Arrangement;

    Layout capture() const { return *this; }
    void restore(const Layout& layout, bool toolBars)
    {
        dock = layout.dock;
        if (toolBars)
            bar = layout.bar;
    }
    static bool isCaptured(const Layout& layout) { return !layout.state.isEmpty(); }
};

using ArrangementModel = ManagerModel<ArrangedWindow>;

inline QString stateText(const QString& indent, const QString& element, const Arrangement& layout)
{
    if (layout.state.isEmpty())
        return QString();
    return indent + "<"_s + element + " DescriptorId=\"window\">"_s +
           QString::fromLatin1(layout.state.toHex()) + "</"_s + element + ">\n"_s;
}

inline QString viewText(const QString& element, const QString& attributes,
                        const Arrangement& layout, const QString& indent)
{
    return indent + "<"_s + element + attributes + ">\n"_s +
           stateText(indent + "    "_s, "State"_s, layout) + indent +
           "    <UserData></UserData>\n"_s + indent + "</"_s + element + ">\n"_s;
}

inline QString groupText(const ArrangementModel::Document::GroupPart& group)
{
    QString text = "        <Group Name=\""_s + group.name + "\">\n"_s;
    text += group.views.empty() ? "            <Views/>\n"_s : "            <Views>\n"_s;
    for (std::size_t i = 0; i < group.views.size(); ++i) {
        const ArrangementModel::View& view = group.views[i];
        const bool active = group.activeIndex == static_cast<int>(i);
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
inline QString documentText(const ArrangementModel::Document& document)
{
    QString text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ViewData Version=\"1.1.0\">\n"_s +
        stateText("    "_s, "ToolBarState"_s, document.toolBars.value_or(Arrangement())) +
        "    <Groups>\n"_s;
    for (const auto& group : document.groups)
        text += groupText(group);
    return text + "    </Groups>\n</ViewData>\n"_s;
}

} // namespace Panorel::Tests
