// SPDX-License-Identifier: MIT
#pragma once

#include <QGenericPlugin>

/**
 * Uses a program from inside, as scripts/try-programs says: with QT_QPA_GENERIC_PLUGINS=try:PHASE
 * Qt loads it into the program, which need not know of it. See ProgramUser for the phases.
 */
class TryPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "try.json")

public:
    QObject* create(const QString& name, const QString& spec) override;
};
