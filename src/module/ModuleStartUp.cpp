// SPDX-License-Identifier: MIT

// Deliberate: the resource compiler's output is included, not linked. It defines a static object
// that registers the resources, and only within one translation unit is the order of static objects
// certain: resources first, then the translation context; at the end the other way round.
#include <ViewSettings_qrc.cpp>

#include <QtGlobal>

// On Windows DllMain() registers the translation context.
#ifndef Q_OS_WIN

#include <TranslationCenter.h>

#include <QString>

namespace {

// A heap string, for the service may outlive this library, where a QStringLiteral's data would
// vanish with it.
QString contextName()
{
    return QString::fromLatin1("Panorel");
}

class ModuleStartUp
{
public:
    ModuleStartUp() { TranslationCenter::Instance().Register(contextName()); }
    ModuleStartUp(const ModuleStartUp&) = delete;
    ModuleStartUp& operator=(const ModuleStartUp&) = delete;
    ~ModuleStartUp() { TranslationCenter::Instance().Unregister(contextName()); }
};

const ModuleStartUp moduleStartUp;

} // namespace

#endif
