#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/dwgx/HBXCADExtData.h"

#include <memory>

namespace dwgx {

/** Base of everything in a drawing, and of the drawing itself: something that extension data can be attached to. */
class ORVCADPLATFORM_EXPORT DWGXObject
{
public:
    DWGXObject() = default;
    virtual ~DWGXObject();
    DWGXObject(DWGXObject &&) noexcept = default;
    DWGXObject &operator=(DWGXObject &&) noexcept = default;

    /** The attached data, null when there is none. It belongs to the object. */
    HBXCADExtData *getCADExtData() const { return m_extData.get(); }
    /** Attaches data made with `new`, which belongs to the object from then on; what was attached before is destroyed.
     *  Null only detaches; the attached data itself changes nothing. */
    void setCADExtData(HBXCADExtData *data);

private:
    std::unique_ptr<HBXCADExtData> m_extData;
};

} // namespace dwgx
