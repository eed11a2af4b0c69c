// SPDX-License-Identifier: MIT
#pragma once

class QString;

class TranslationCenter
{
public:
    static TranslationCenter& Instance();
    void Register(const QString& name);
    void Unregister(const QString& name);
};
