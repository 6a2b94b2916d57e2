#pragma once

#include "platform/geometry/CRefObject.h"

/** Counts how many of its kind are alive. */
class Counted : public vks::CRefObject
{
public:
    Counted() { ++alive; }
    Counted(const Counted &other) : vks::CRefObject(other) { ++alive; }
    Counted &operator=(const Counted &) = default;
    ~Counted() override { --alive; }

    static inline int alive = 0;
};
