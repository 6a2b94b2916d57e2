#include "platform/dwgx/DWGXBaseOptions.h"

namespace dwgx {

DWGXBaseOptions::~DWGXBaseOptions() = default;

} // namespace dwgx
