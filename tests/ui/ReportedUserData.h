// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

namespace Panorel::Tests {

/**
 * What Manager::viewUserData(name) answers in a test program that is linked with the source file of
 * this header: the entry of this table, or an invalid value without one.
 */
QHash<QString, QVariant>& reportedUserData();

} // namespace Panorel::Tests
