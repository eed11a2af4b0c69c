// SPDX-License-Identifier: MIT
#include "TryPlugin.h"

#include "ProgramUser.h"
#include "StartClock.h"

QObject* TryPlugin::create(const QString& name, const QString& spec)
{
    Q_UNUSED(name)
    // Only the program itself is to be used, not what it starts.
    qunsetenv("QT_QPA_GENERIC_PLUGINS");
    if (spec == QLatin1String("start"))
        return new Panorel::Tests::StartClock;
    return new Panorel::Tests::ProgramUser(spec);
}
