// SPDX-License-Identifier: MIT
#include <panorel/Manager.h>

#include <QByteArray>
#include <QStringList>

// A plug-in that is linked with the library and exercises it; true if all went well.
extern "C" __attribute__((visibility("default"))) bool useModule();

bool useModule()
{
    Panorel::Manager manager({QStringLiteral("Work")}, /*mergeOnApply=*/true);
    if (!manager.saveCurrentViewAs(QStringLiteral("Wide")))
        return false;
    const QByteArray document = manager.toXml(/*markActive=*/true);
    return manager.fromXml(document, /*merge=*/false) && manager.setFactoryDefaultView(document) &&
           manager.activateView(QStringLiteral("Wide"));
}
