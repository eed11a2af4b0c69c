// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Panorel::Kit::Detail {

struct Session;

/** What would change in the windows if they got a layout, in words. */
class DifferencesNow
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Kit::DifferencesNow)

public:
    /** One sentence each; empty if the windows look like @p stored. Where the Manager merges, tool
        bars stay, so they do not count. */
    static QStringList texts(Session& session, const StateMap& stored);
};

} // namespace Panorel::Kit::Detail
