// SPDX-License-Identifier: MIT
#include <QString>

// A module that has no service of its own and takes the one that the process has.
class TranslationCenter
{
public:
    static TranslationCenter& Instance();
    void Register(const QString& name);
};

extern "C" __attribute__((visibility("default"))) void useOwnClassInLibrary();
extern "C" __attribute__((visibility("default"))) void* service();

void useOwnClassInLibrary()
{
    TranslationCenter::Instance().Register(QStringLiteral("Panorel"));
}

void* service()
{
    return &TranslationCenter::Instance();
}
