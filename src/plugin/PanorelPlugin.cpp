// SPDX-License-Identifier: MIT
#include "PanorelPlugin.h"

#include "PluginEnvironment.h"
#include "ProgramWindows.h"

QObject* PanorelPlugin::create(const QString& name, const QString& spec)
{
    Q_UNUSED(name)
    Panorel::Plugin::leaveEnvironment();
    // A program with a Qt of its own brings parts of it that do not fit those of the plugin. Qt
    // warns of a plugin that gives no object.
    if (qstrcmp(qVersion(), QT_VERSION_STR) != 0)
        return new QObject;
    return new Panorel::Plugin::ProgramWindows(spec == QLatin1String("merge"));
}
