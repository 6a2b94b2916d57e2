#pragma once

#include "platform/geometry/CLine2d.h"

/** A curve that is neither line nor arc by its number, and that tells how many of its kind are alive. */
class CountedCurve : public vks::CLine2d
{
public:
    explicit CountedCurve(int &alive, const vks::CVec2<double> &start = {},
                          const vks::CVec2<double> &end = {1000.0, 0.0})
        : CLine2d(start, end), m_alive(alive)
    {
        ++m_alive;
    }
    CountedCurve(const CountedCurve &) = delete;
    CountedCurve &operator=(const CountedCurve &) = delete;
    ~CountedCurve() override { --m_alive; }

    int Type() const override { return 3; }

private:
    int &m_alive;
};
