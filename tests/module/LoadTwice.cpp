// SPDX-License-Identifier: MIT
#include <dlfcn.h>

#include <cstdio>

namespace {

void print(const char* line)
{
    std::puts(line);
    std::fflush(stdout);
}

bool isLoaded(const char* library)
{
    void* const handle = dlopen(library, RTLD_NOW | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle;
}

} // namespace

// Loads and unloads the library named by the argument, and does so again.
int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    for (int round = 0; round < 2; ++round) {
        void* const handle = dlopen(argv[1], RTLD_NOW);
        if (!handle) {
            std::fputs(dlerror(), stderr);
            return 1;
        }
        print("loaded");
        dlclose(handle);
        print(isLoaded(argv[1]) ? "still loaded" : "unloaded");
    }
    return 0;
}
