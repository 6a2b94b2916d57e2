#include "platform/dwgx/HBXCADFileHelper.h"

#include "platform/dwgx/Cadi2Operator.h"

HBXCADFileHelper *HBXCADFileHelper::getInstance()
{
    static HBXCADFileHelper helper;
    return &helper;
}

HBXCADIOperator *HBXCADFileHelper::createCADIOperator() { return new dwgx::Cadi2Operator; }
