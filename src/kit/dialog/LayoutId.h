// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

namespace Panorel::Kit::Detail {

/** Names a saved layout. */
struct LayoutId
{
    QString group;
    QString name;
};

inline bool operator==(const LayoutId& a, const LayoutId& b)
{
    return a.group == b.group && a.name == b.name;
}

using LayoutIds = QVector<LayoutId>;

} // namespace Panorel::Kit::Detail
