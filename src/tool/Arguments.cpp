// SPDX-License-Identifier: MIT
#include "Arguments.h"

#ifndef Q_OS_UNIX
#include <QCoreApplication>
#endif

namespace Panorel::Tool::Arguments {

#ifdef Q_OS_UNIX

namespace {

std::vector<char*>& kept()
{
    static std::vector<char*> arguments;
    return arguments;
}

} // namespace

void keep(int argc, char** argv)
{
    if (argc > 1)
        kept().assign(argv + 1, argv + argc);
}

QStringList all()
{
    QStringList arguments;
    for (const char* argument : kept())
        arguments.append(QString::fromLocal8Bit(argument));
    return arguments;
}

std::vector<char*> last(int count)
{
    std::vector<char*> arguments(kept().end() - count, kept().end());
    arguments.push_back(nullptr);
    return arguments;
}

#else

// Qt reads them from the system, in its own encoding.
void keep(int, char**) {}

QStringList all()
{
    return QCoreApplication::arguments().mid(1);
}

#endif

} // namespace Panorel::Tool::Arguments
