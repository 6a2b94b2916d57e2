#pragma once

#include "ORVCADPlatformExport.h"

namespace vks {

/** Base of everything in the kernel that is shared by counting its holders.
 *
 *  An object is made with `new` and starts with no holder. CRefPtr, loops and polygons are holders; the last one that
 *  lets go destroys the object. Counting is not atomic: an object belongs to one thread at a time. */
class ORVCADPLATFORM_EXPORT CRefObject
{
public:
    CRefObject() = default;
    /** A copy has holders of its own, none at first. */
    CRefObject(const CRefObject &) noexcept {}
    /** The holders stay with the object. */
    CRefObject &operator=(const CRefObject &) noexcept { return *this; }
    virtual ~CRefObject();

    /** One hold more, by hand; each asks for a Release. */
    void AddRef() const noexcept { ++m_holders; }
    /** Lets go of one hold; the object is gone when it was the last. */
    void Release() const noexcept;
    /** Destroys an object that nothing holds; an object that is held stays as it is. */
    void Free() const noexcept;
    /** Number of holds. */
    int HolderCount() const noexcept { return m_holders; }

private:
    mutable int m_holders = 0;
};

} // namespace vks
