#pragma once

#include "ORVCADPlatformExport.h"

#include <string>

namespace vks {
class CDatabase;
}
class IHBXCheck;
class IHBXDrawObjs;
class IHBXElements;
class IHBXRegions;

/** The whole building: regions, elements, draw objects, and the bracket around changes. */
class ORVCADPLATFORM_EXPORT IHBXModel
{
public:
    virtual ~IHBXModel() = default;

    /** The value that callers give wherever a shape asks whether it may bring itself up to date first. */
    static bool g_bDefaultAutoCalc;

    /** Kernel database of the model, with the option tables; null when the host has none. */
    virtual vks::CDatabase *database() = 0;
    /** All building parts. */
    virtual IHBXRegions *regions() = 0;
    /** All elements. */
    virtual IHBXElements *elements() = 0;
    /** All draw objects. */
    virtual IHBXDrawObjs *drawObjects() = 0;
    /** Judges draw objects before they stay. */
    virtual IHBXCheck *checker() = 0;
    /** Opens and closes a bracket around changes, paired by key; brackets of different keys nest. What the host does with
     *  it (undo, repaint) is its own. Closing a key that is not open does nothing. */
    virtual void beginBatch(const std::string &key, bool on) = 0;
    /** Closes the bracket of the key. */
    virtual void endBatch(const std::string &key) = 0;
    /** Brings derived data up to date after property writes; the mode is 0. */
    virtual void refresh(int mode) = 0;
};
