#pragma once

#include "platform/dwgx/KeyLiteral.h"

namespace encoding {

/** Keys of records are "Name"_key. The literal is that of drawing files, which records know nothing else of. */
using dwgx::literals::operator""_key;

} // namespace encoding
