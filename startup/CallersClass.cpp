// SPDX-License-Identifier: MIT
#include "CallersClass.h"

#ifdef __ELF__

#include <dlfcn.h>

#include <memory>

namespace Panorel::StartUp {

namespace {

// The place of the library, or the program, that an address belongs to; null if it is unknown.
const void* libraryOf(const void* address)
{
    Dl_info info;
    return dladdr(address, &info) ? info.dli_fbase : nullptr;
}

struct CloseLibrary
{
    void operator()(void* library) const { dlclose(library); }
};

} // namespace

void* callersDefinition(const void* caller, const char* symbol)
{
    Dl_info info;
    if (!dladdr(caller, &info))
        return nullptr;
    // Not for a program, whose definition the loader finds first: it is not a library to open.
    const std::unique_ptr<void, CloseLibrary> library(
        dlopen(info.dli_fname, RTLD_LAZY | RTLD_NOLOAD));
    if (!library)
        return nullptr;
    void* const definition = dlsym(library.get(), symbol);
    const void* const here = reinterpret_cast<const void*>(&callersDefinition);
    return libraryOf(definition) == libraryOf(here) ? nullptr : definition;
}

} // namespace Panorel::StartUp

#else

void* Panorel::StartUp::callersDefinition(const void*, const char*)
{
    return nullptr;
}

#endif
