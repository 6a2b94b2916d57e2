#pragma once

#include <platform/host/IHBXShape.h>

#include <QtGlobal>

#include <memory>

class MemoryObject;

/** A shape that can be copied for another draw object; it reads its sizes from the properties of the one that it is of. */
class MemoryShape
{
public:
    virtual ~MemoryShape() = default;

    virtual IHBXShape *asShape() = 0;
    virtual std::unique_ptr<MemoryShape> copyFor(MemoryObject &owner) const = 0;

    /** A shape without geometry: line solids for walls and beams, outlines for slabs and rafts, point solids for what stands
     *  at a point. Null for types that this host keeps no geometry of. */
    static std::unique_ptr<MemoryShape> make(qint64 type, MemoryObject &owner);
};
