// SPDX-License-Identifier: MIT
#pragma once

#include <QGenericPlugin>

/**
 * Uses an example as a user would, from inside: with QT_QPA_GENERIC_PLUGINS=drive:NAME Qt loads
 * it into the program, which need not know of it. The program then ends with 0, or with 1 when
 * something was not as expected.
 */
class ExampleDriver : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "driver.json")

public:
    QObject* create(const QString& name, const QString& spec) override;
};
