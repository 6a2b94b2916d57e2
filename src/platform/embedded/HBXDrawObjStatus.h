#pragma once

#include "platform/host/IHBXDrawObjStatus.h"

namespace hbx::embedded {

class HBXElementDrawObj;

/** Layer and state of a draw object. */
class HBXDrawObjStatus final : public IHBXDrawObjStatus
{
public:
    explicit HBXDrawObjStatus(HBXElementDrawObj &owner) : m_owner(owner) {}

    void setLayer(int layer) override;
    void setState(int state) override;
    int layer() const override { return m_layer; }
    int state() const override { return m_state; }

    /** Sets both and tells nobody. */
    void restore(int layer, int state);

private:
    HBXElementDrawObj &m_owner;
    int m_layer = 0;
    int m_state = 0;
};

} // namespace hbx::embedded
