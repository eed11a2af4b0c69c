// SPDX-License-Identifier: MIT
#pragma once

#include <TranslationCenter.h>

#include <QString>

#ifdef PANOREL_HAS_SUBSTITUTE
#include <dlfcn.h>

#include <cstring>
#endif

namespace Panorel::Detail {

#ifdef PANOREL_HAS_SUBSTITUTE
template<typename Function>
const void* libraryOf(Function function)
{
    // The address of a member function that is not virtual comes first.
    const void* address = nullptr;
    std::memcpy(&address, &function, sizeof address);
    Dl_info info;
    return dladdr(address, &info) ? info.dli_fbase : nullptr;
}

// The loader binds each operation on its own. A program with a class of this name whose compiler
// has put Instance() inline offers only the others, and must not get the substitute's object for
// them.
inline bool isServiceWhole()
{
    const void* const library = libraryOf(&TranslationCenter::Instance);
    return libraryOf(&TranslationCenter::Register) == library &&
           libraryOf(&TranslationCenter::Unregister) == library;
}
#else
inline bool isServiceWhole()
{
    return true;
}
#endif

/** A translation context that is registered as long as this object lives: from when a library is
    loaded to when it is unloaded, if it is a static object of it. */
class TranslationContext
{
public:
    explicit TranslationContext(const char* name)
        : m_name(name)
    {
        if (m_isServiceWhole)
            TranslationCenter::Instance().Register(heapString());
    }
    TranslationContext(const TranslationContext&) = delete;
    TranslationContext& operator=(const TranslationContext&) = delete;
    ~TranslationContext()
    {
        if (m_isServiceWhole)
            TranslationCenter::Instance().Unregister(heapString());
    }

private:
    // The service may outlive this library, where a QStringLiteral's data would vanish with it.
    QString heapString() const { return QString::fromLatin1(m_name); }

    const char* const m_name;
    const bool m_isServiceWhole = isServiceWhole();
};

} // namespace Panorel::Detail
