// SPDX-License-Identifier: MIT
#include <TranslationCenter.h>

#include <QString>

#include <windows.h>

// The C run-time has registered the resources before this is called with process attach, and
// withdraws them after it was called with process detach.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved)
{
    static_cast<void>(instance);
    static_cast<void>(reserved);
    // Heap strings, because the service may outlive this library.
    if (reason == DLL_PROCESS_ATTACH)
        TranslationCenter::Instance().Register(QString::fromLatin1("Panorel"));
    else if (reason == DLL_PROCESS_DETACH)
        TranslationCenter::Instance().Unregister(QString::fromLatin1("Panorel"));
    // Whatever the reason, the library never refuses to load.
    return TRUE;
}
