// SPDX-License-Identifier: MIT
#pragma once

// As much of the Windows API as the entry point takes, for running it elsewhere.
#define WINAPI
#define TRUE 1
#define DLL_PROCESS_DETACH 0
#define DLL_PROCESS_ATTACH 1
#define DLL_THREAD_ATTACH 2
#define DLL_THREAD_DETACH 3

using BOOL = int;
using DWORD = unsigned int;
using LPVOID = void*;
using HINSTANCE = struct HINSTANCE__*;
