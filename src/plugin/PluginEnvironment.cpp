// SPDX-License-Identifier: MIT
#include "PluginEnvironment.h"

#include <QByteArray>
#include <QDir>
#include <QList>

namespace Panorel::Plugin {

namespace {

constexpr auto pluginsVariable = "QT_QPA_GENERIC_PLUGINS";
constexpr auto pathVariable = "QT_PLUGIN_PATH";
constexpr auto ownPathVariable = "PANOREL_PLUGIN_PATH";

void setOrUnset(const char* variable, const QByteArray& value)
{
    if (value.isEmpty())
        qunsetenv(variable);
    else
        qputenv(variable, value);
}

void leavePlugins()
{
    QByteArray others;
    const QList<QByteArray> entries = qgetenv(pluginsVariable).split(',');
    for (const QByteArray& entry : entries) {
        if (entry == "panorel" || entry.startsWith("panorel:"))
            continue;
        others += others.isEmpty() ? entry : ',' + entry;
    }
    setOrUnset(pluginsVariable, others);
}

void leavePath()
{
    const QByteArray own = qgetenv(ownPathVariable);
    if (own.isEmpty())
        return;
    qunsetenv(ownPathVariable);
    const char separator = QDir::listSeparator().toLatin1();
    QList<QByteArray> folders = qgetenv(pathVariable).split(separator);
    folders.removeOne(own);
    setOrUnset(pathVariable, folders.join(separator));
}

} // namespace

void leaveEnvironment()
{
    // A program that was given the plugin by its own option has no such variable, and gets none.
    if (qEnvironmentVariableIsSet(pluginsVariable))
        leavePlugins();
    leavePath();
}

} // namespace Panorel::Plugin
