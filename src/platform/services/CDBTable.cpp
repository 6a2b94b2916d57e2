#include "platform/services/CDBTable.h"

namespace vks {

CDBTable::~CDBTable() = default;

} // namespace vks
