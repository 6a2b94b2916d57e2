#include "platform/services/WLRBeamSpans.h"

WLRBeamSpans::~WLRBeamSpans() = default;
