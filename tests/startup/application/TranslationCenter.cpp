// SPDX-License-Identifier: MIT
#include "TranslationCenter.h"

#include <cstdio>

TranslationCenter& TranslationCenter::Instance()
{
    static TranslationCenter instance;
    return instance;
}

void TranslationCenter::Register(const QString& name)
{
    std::printf("the application registers %s\n", name.toUtf8().constData());
}

void TranslationCenter::Unregister(const QString& name)
{
    std::printf("the application unregisters %s\n", name.toUtf8().constData());
}
