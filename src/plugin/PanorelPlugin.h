// SPDX-License-Identifier: MIT
#pragma once

#include <QGenericPlugin>

/**
 * Gives the program that loads it named layouts. Qt loads it with QT_QPA_GENERIC_PLUGINS=panorel,
 * or with the program's own option "-plugin panorel". With "panorel:merge" a switch leaves the tool
 * bars as they are. A program with another version of Qt than the plugin's stays as it is.
 */
class PanorelPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "plugin.json")

public:
    QObject* create(const QString& name, const QString& spec) override;
};
