#pragma once

#include "platform/embedded/HBXPlaceIndex.h"
#include "platform/host/IHBXCheck.h"

namespace hbx::embedded {

class HBXElementDrawObj;
class HBXModel;

/** Validates draw objects; each refusal goes into the journal with its reason. */
class HBXCheck final : public IHBXCheck
{
public:
    explicit HBXCheck(HBXModel &model) : m_model(model) {}

    bool checkDrawObj(IHBXElementDrawObj *drawObj, HBXCheckError &error,
                      std::map<qint64, QString> &collisions) override;

private:
    /** Why the object could stand nowhere; empty when it could. */
    QString faultOf(HBXElementDrawObj &object) const;
    /** Entered ones of the type that may be the same as the object. Of bars with "CurveData", those whose is the same. */
    static HBXPlaceIndex::Objects inSamePlace(HBXElementDrawObj &object);
    std::map<qint64, QString> collisionsOf(HBXElementDrawObj &object) const;

    HBXModel &m_model;
};

} // namespace hbx::embedded
