// SPDX-License-Identifier: MIT

// Deliberate: the resource compiler's output is included, not linked. It defines a static object
// that registers the resources, and only within one translation unit is the order of static objects
// certain: resources first, then the translation context; at the end the other way round.
#include <ViewSettings_qrc.cpp>

#include <QtGlobal>

// On Windows DllMain() registers the translation context.
#ifndef Q_OS_WIN

#include "TranslationContext.h"

namespace {

const Panorel::Detail::TranslationContext context("Panorel");

} // namespace

#endif
