// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>

#include <QString>
#include <QVariant>

namespace Panorel {

/** One layout under a name: a saved view, or a group's current view. */
struct View
{
    QString name;
    StateMap states;
    /** The application's data; read from and written to the document, and by nothing else. */
    QVariant userData;
    /** Identifies a saved view within its group, also among those that were removed. */
    quint64 serial = 0;
};

} // namespace Panorel
