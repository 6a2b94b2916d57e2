#include "platform/services/CDatabase.h"

namespace vks {

CDatabase::~CDatabase() = default;

} // namespace vks
