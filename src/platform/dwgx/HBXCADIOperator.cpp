#include "platform/dwgx/HBXCADIOperator.h"

HBXCADIOperator::~HBXCADIOperator() = default;
