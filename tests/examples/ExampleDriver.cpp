// SPDX-License-Identifier: MIT
#include "ExampleDriver.h"

#include "Ends.h"
#include "ExampleUser.h"

#include <QCoreApplication>
#include <QTimer>

QObject* ExampleDriver::create(const QString& name, const QString& spec)
{
    Q_UNUSED(name)
    const QString end = QStringLiteral("end.");
    // When the event loop runs, the program has shown its windows.
    QTimer::singleShot(0, [spec, end] {
        if (spec.startsWith(end))
            Panorel::Tests::Ends::floatAndEnd(spec.mid(end.size()));
        else
            QCoreApplication::exit(Panorel::Tests::useExample(spec) ? 0 : 1);
    });
    return new QObject;
}
