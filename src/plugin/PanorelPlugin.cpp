// SPDX-License-Identifier: MIT
#include "PanorelPlugin.h"

#include "PluginEnvironment.h"
#include "ProgramWindows.h"

QObject* PanorelPlugin::create(const QString& name, const QString& spec)
{
    Q_UNUSED(name)
    Panorel::Plugin::leaveEnvironment();
    return new Panorel::Plugin::ProgramWindows(spec == QLatin1String("merge"));
}
