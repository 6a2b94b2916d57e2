#pragma once

#include "platform/dwgx/KeyLiteral.h"

namespace encoding {

/** Keys of records are written as those of drawing files are: "Name"_key. */
using namespace dwgx::literals;

} // namespace encoding
