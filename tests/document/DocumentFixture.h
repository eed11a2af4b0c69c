// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <QByteArray>
#include <QStringList>

// Pieces of view-settings documents.
namespace Panorel::Tests {

inline QByteArray state(const QByteArray& id, const QByteArray& hex)
{
    return "<State DescriptorId=\"" + id + "\">" + hex + "</State>";
}

inline QByteArray toolBarState(const QByteArray& id, const QByteArray& hex)
{
    return "<ToolBarState DescriptorId=\"" + id + "\">" + hex + "</ToolBarState>";
}

inline QByteArray userData(const QByteArray& text)
{
    return "<UserData>" + text + "</UserData>";
}

/** @param active the value of "Active"; a null array leaves the attribute out. */
inline QByteArray view(const QByteArray& name, const QByteArray& content = {},
                       const QByteArray& active = {})
{
    const QByteArray mark = active.isNull() ? QByteArray() : " Active=\"" + active + "\"";
    return "<View" + mark + " Name=\"" + name + "\">" + content + "</View>";
}

inline QByteArray group(const QByteArray& name, const QByteArray& views,
                        const QByteArray& current = {})
{
    return "<Group Name=\"" + name + "\"><Views>" + views +
           "</Views><CurrentView Name=\"__current__\">" + current + "</CurrentView></Group>";
}

inline QByteArray document(const QByteArray& groups, const QByteArray& toolBarStates = {},
                           const QByteArray& version = "1.1.0")
{
    return "<ViewData Version=\"" + version + "\">" + toolBarStates + "<Groups>" + groups +
           "</Groups></ViewData>";
}

inline QStringList names(const char* commaSeparated)
{
    return QString::fromLatin1(commaSeparated).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

} // namespace Panorel::Tests
