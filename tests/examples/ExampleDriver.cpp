// SPDX-License-Identifier: MIT
#include "ExampleDriver.h"

#include "Drives.h"

#include <QCoreApplication>
#include <QTimer>

QObject* ExampleDriver::create(const QString& name, const QString& spec)
{
    Q_UNUSED(name)
    // When the event loop runs, the program has shown its windows.
    QTimer::singleShot(0, [spec] { QCoreApplication::exit(Drives::drive(spec) ? 0 : 1); });
    return new QObject;
}
