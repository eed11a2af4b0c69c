// SPDX-License-Identifier: MIT

// What AddressSanitizer does where ASAN_OPTIONS says nothing. Qt's validator leaks with each
// document, and LeakSanitizer cannot see whose leak it is; it is the asan preset that looks for
// ours. It also allocates so much that full notes on each allocation take half of the time.
extern "C" const char* __asan_default_options();

extern "C" __attribute__((used, visibility("default"))) const char* __asan_default_options()
{
    return "detect_leaks=0:malloc_context_size=2:quarantine_size_mb=4:"
           "thread_local_quarantine_size_kb=16:max_redzone=16";
}
