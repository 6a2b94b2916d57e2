#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/host/HBXCheckError.h"

#include <QString>

#include <map>

class IHBXElementDrawObj;

/** Validates draw objects; belongs to its model. */
class ORVCADPLATFORM_EXPORT IHBXCheck
{
public:
    virtual ~IHBXCheck() = default;

    /** False when the draw object is not acceptable: without geometry, with an invalid outline, outside any floor, or the
     *  same as another one. The reason then stands in error, and collisions holds the ids of the objects that it collides
     *  with, each with the reason; both are cleared first. Null is not acceptable. Changes nothing in the model. */
    virtual bool checkDrawObj(IHBXElementDrawObj *drawObj, HBXCheckError &error,
                              std::map<qint64, QString> &collisions) = 0;
};
