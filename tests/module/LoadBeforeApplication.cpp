// SPDX-License-Identifier: MIT
#include <QCoreApplication>

#include <dlfcn.h>

#include <cstdio>

// Qt calls the translation service for each new application object, so the service has to be there
// even if the only library that needed it is gone.
int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    void* const handle = dlopen(argv[1], RTLD_NOW);
    if (!handle) {
        std::fputs(dlerror(), stderr);
        return 1;
    }
    dlclose(handle);
    {
        const QCoreApplication first(argc, argv);
        std::puts("first application");
    }
    const QCoreApplication second(argc, argv);
    std::puts("second application");
    return 0;
}
