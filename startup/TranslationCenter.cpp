// SPDX-License-Identifier: MIT
#include "TranslationCenter.h"

#include "CallersClass.h"
#include "CatalogueService.h"

#ifdef __ELF__
#define CALLER __builtin_return_address(0)
#else
// There a call always reaches the library that it was linked to.
#define CALLER nullptr
#endif

using Panorel::StartUp::callersDefinition;
using Panorel::StartUp::CatalogueService;

namespace {

// How operations are called by their addresses: the object is the first argument.
using InstanceOperation = TranslationCenter& (*)();
using NameOperation = void (*)(TranslationCenter*, const QString&);

} // namespace

TranslationCenter TranslationCenter::s_instance;

TranslationCenter& TranslationCenter::Instance()
{
    void* const own = callersDefinition(CALLER, "_ZN17TranslationCenter8InstanceEv");
    return own ? reinterpret_cast<InstanceOperation>(own)() : s_instance;
}

void TranslationCenter::Register(const QString& name)
{
    // Only Instance() of another class gives another object.
    void* const own = this == &s_instance
                          ? nullptr
                          : callersDefinition(CALLER, "_ZN17TranslationCenter8RegisterERK7QString");
    if (own)
        reinterpret_cast<NameOperation>(own)(this, name);
    else
        CatalogueService::instance().add(name);
}

void TranslationCenter::Unregister(const QString& name)
{
    void* const own =
        this == &s_instance
            ? nullptr
            : callersDefinition(CALLER, "_ZN17TranslationCenter10UnregisterERK7QString");
    if (own)
        reinterpret_cast<NameOperation>(own)(this, name);
    else
        CatalogueService::instance().remove(name);
}
