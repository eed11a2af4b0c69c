// SPDX-License-Identifier: MIT
#ifdef OWNER
#include "OwnClass.h"
#endif
#ifdef LINKED
#include <panorel/QtState.h>
#endif

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>

// Carries out the steps named by its arguments, each with a library after a colon where it takes
// one, and prints what can be seen of the translation services. NeighbourTest writes the steps.

namespace {

std::map<QByteArray, void*> libraries;
QByteArray lastLoaded;

void print(const QByteArray& line)
{
    std::puts(line.constData());
    std::fflush(stdout);
}

void load(const QByteArray& file, int flags)
{
    void*& library = libraries[file];
    library = dlopen(file.constData(), flags | RTLD_NOW);
    lastLoaded = file;
    if (!library)
        print(dlerror());
}

void* function(const QByteArray& file, const char* name)
{
    void* const address = dlsym(libraries[file], name);
    if (!address) {
        print(dlerror());
        std::exit(4);
    }
    return address;
}

void useLibrary(const QByteArray& file)
{
    reinterpret_cast<void (*)()>(function(file, "useOwnClassInLibrary"))();
}

// Takes the object from one library and has another one register with it.
void pass(const QByteArray& from, const QByteArray& to)
{
    void* const service = reinterpret_cast<void* (*)()>(function(from, "service"))();
    reinterpret_cast<void (*)(void*)>(function(to, "registerWith"))(service);
}

void unload(const QByteArray& file)
{
    dlclose(libraries[file]);
    print("unloaded");
}

bool run(const QByteArray& step, const QByteArray& operand)
{
    if (step == "local")
        load(operand, RTLD_LOCAL);
    else if (step == "global")
        load(operand, RTLD_GLOBAL);
    else if (step == "unload")
        unload(operand);
    else if (step == "pass")
        pass(lastLoaded, operand);
    else if (step == "library")
        useLibrary(operand);
#ifdef OWNER
    else if (step == "own")
        useOwnClass();
#endif
    else if (step == "text")
        print(QCoreApplication::translate("Panorel::Menu", "Layouts").toUtf8());
    else
        return false;
    return true;
}

} // namespace

int main(int argc, char** argv)
{
#ifdef LINKED
    if (Panorel::QtState().read(QByteArray()))
        return 3;
#endif
    int applicationArgc = 1;
    std::unique_ptr<QCoreApplication> application;
    for (int i = 1; i < argc; ++i) {
        const QList<QByteArray> step = QByteArray(argv[i]).split(':');
        if (step.first() == "app")
            application = std::make_unique<QCoreApplication>(applicationArgc, argv);
        else if (!run(step.first(), step.last()))
            return 2;
    }
    return 0;
}
