#pragma once

#include <QtGlobal>

#include <limits>

namespace slab {

/** A number without its fraction; 0 where it does not fit into 32 bits or is none. */
inline qint32 truncated(double number)
{
    using Limits = std::numeric_limits<qint32>;
    const bool fits = number > Limits::min() - 1.0 && number < Limits::max() + 1.0;
    return fits ? static_cast<qint32>(number) : 0;
}

} // namespace slab
