// SPDX-License-Identifier: MIT
#pragma once

namespace Panorel::StartUp {

/**
 * Returns the definition of a function that the library with the code at @p caller has itself or
 * among the libraries that it is linked to; null if that is the one in this library or none.
 *
 * The loader binds a call to the first definition in the process. If a plugin has a class
 * TranslationCenter of its own, and this library was loaded for the program, the plugin's calls to
 * its own class arrive here.
 *
 * @param symbol the mangled name of the function.
 */
void* callersDefinition(const void* caller, const char* symbol);

} // namespace Panorel::StartUp
