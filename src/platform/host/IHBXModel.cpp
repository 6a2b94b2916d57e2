#include "platform/host/IHBXModel.h"

bool IHBXModel::g_bDefaultAutoCalc = true;
