// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/** The service of an application that has its own; it prints what it is asked for. */
class TranslationCenter
{
public:
    static TranslationCenter& Instance();
    void Register(const QString& name);
    void Unregister(const QString& name);
};
