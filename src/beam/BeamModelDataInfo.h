#pragma once

#include "beam/BaseBeamEntInfo.h"
#include "beam/BeamEdoInfo.h"

#include <memory>
#include <vector>

/** One beam of the local model: its element and the places where it stands. A copy shares the records. */
class ORVCADMODELDATA_EXPORT BeamModelDataInfo
{
public:
    /** A new element record for an element type of the host: a BeamEntInfo for beam (15) and foundation beam (47), a
     *  LinkBeamEntInfo for any other, known or not. Its ElementType stays 0. */
    static std::unique_ptr<BaseBeamEntInfo> makeElementInfo(qint64 elementType);

    /** Element type of the host; 0 without an element. */
    qint64 getElementType() const;

    /** Replaces the element and adds the placed beams of the object to those that are there. Never fails: without
     *  "ElementInfo" the element is a LinkBeamEntInfo of zeros and empty texts. */
    void fromJson(const QJsonObject &json);
    /** "ElementInfo" is an empty object without an element. */
    QJsonObject toJsonObj() const;

    std::shared_ptr<BaseBeamEntInfo> elementInfo;       ///< a BeamEntInfo or a LinkBeamEntInfo; null in a fresh record
    std::vector<std::shared_ptr<BeamEdoInfo>> edoInfos; ///< where it stands, in no order

private:
    struct Fields; // of the placed beams; the element is written and read by itself
};
