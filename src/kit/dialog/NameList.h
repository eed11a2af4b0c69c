// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Panorel::Kit::Detail {

/** The names in quotes, in one line; of many names the first ones. */
QString nameList(const QStringList& names);

} // namespace Panorel::Kit::Detail
