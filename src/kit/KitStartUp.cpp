// SPDX-License-Identifier: MIT
#include "module/TranslationContext.h"

namespace {

const Panorel::Detail::TranslationContext context("PanorelKit");

} // namespace
