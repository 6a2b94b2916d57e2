#include "platform/services/TWLRCustomHoopBars.h"

IWLRCustomHoopBars::~IWLRCustomHoopBars() = default;

TWLRCustomHoopBars::~TWLRCustomHoopBars() = default;
