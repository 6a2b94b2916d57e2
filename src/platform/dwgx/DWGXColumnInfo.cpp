#include "platform/dwgx/DWGXColumnInfo.h"

namespace dwgx {

DWGXColumnInfo::~DWGXColumnInfo() = default;

} // namespace dwgx
