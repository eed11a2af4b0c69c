// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#define OWN_CLASS_EXPORT __attribute__((visibility("default")))

/**
 * The class that a neighbour of the library has under the name of the translation service. It keeps
 * names, prints the calls that reach it, and would not survive those for another object. OWNER is
 * the neighbour's name; with INLINE_INSTANCE one operation leaves no symbol, and with
 * OTHER_OPERATIONS two of them have other ones.
 */
class OWN_CLASS_EXPORT TranslationCenter
{
public:
#ifdef INLINE_INSTANCE
    __attribute__((always_inline)) static TranslationCenter& Instance()
    {
        return *s_instance;
    }
#else
    static TranslationCenter& Instance();
#endif
#ifdef OTHER_OPERATIONS
    void Register(const QString& name, int priority = 0);
    void Unregister(const QString& name, int priority = 0);
#else
    void Register(const QString& name);
    void Unregister(const QString& name);
#endif
    /** Prints OWNER and the registered names. */
    void report() const;

private:
    void print(const char* what, const QString& name) const;

    // No QStringLiteral, whose data in an inline constructor would keep a library loaded.
    QString m_greeting = QString::fromLatin1(OWNER);
    QStringList m_names;

    static TranslationCenter* s_instance;
};

/** Registers a name with the class as this file sees it, and has it report. */
void useOwnClass();
