// SPDX-License-Identifier: MIT
#include "OwnClass.h"

#include <cstdio>

#ifdef INLINE_INSTANCE
TranslationCenter* TranslationCenter::s_instance = new TranslationCenter;
#else
TranslationCenter* TranslationCenter::s_instance = nullptr;

TranslationCenter& TranslationCenter::Instance()
{
    if (!s_instance)
        s_instance = new TranslationCenter;
    return *s_instance;
}
#endif

#ifdef OTHER_OPERATIONS
void TranslationCenter::Register(const QString& name, int)
#else
void TranslationCenter::Register(const QString& name)
#endif
{
    m_names += name;
    print("registers", name);
}

#ifdef OTHER_OPERATIONS
void TranslationCenter::Unregister(const QString& name, int)
#else
void TranslationCenter::Unregister(const QString& name)
#endif
{
    m_names.removeOne(name);
    print("unregisters", name);
}

void TranslationCenter::report() const
{
    print("has", m_names.join(QLatin1Char('+')));
}

void TranslationCenter::print(const char* what, const QString& name) const
{
    std::printf("%s %s %s\n", qPrintable(m_greeting), what, qPrintable(name));
    std::fflush(stdout);
}

void useOwnClass()
{
    TranslationCenter::Instance().Register(QStringLiteral("Own"));
    TranslationCenter::Instance().report();
    TranslationCenter::Instance().Unregister(QStringLiteral("Own"));
}

// The rest is for those who load this as a library.
extern "C" OWN_CLASS_EXPORT void useOwnClassInLibrary();
extern "C" OWN_CLASS_EXPORT void registerWith(void* service);

void useOwnClassInLibrary()
{
    useOwnClass();
}

void registerWith(void* service)
{
    static_cast<TranslationCenter*>(service)->Register(QStringLiteral("Panorel"));
}
