#pragma once

#include "beam/BeamSegmentInfo.h"
#include "beam/BeamSpanInfo.h"

#include <memory>
#include <vector>

/** One placed beam: a whole chain with its spans and its drawn pieces, two lists that need not be of one length.
 *  A copy shares the records. */
class ORVCADMODELDATA_EXPORT BeamEdoInfo
{
public:
    /** Adds the spans and segments of the object to those that are there. Never fails; an entry that is no object gives a
     *  record of zeros. */
    void fromJson(const QJsonObject &json);
    /** Null records are left out. */
    QJsonObject toJsonObj() const;

    std::vector<std::shared_ptr<BeamSpanInfo>> spans; ///< structural spans of the whole chain; not one for each piece
    std::vector<std::shared_ptr<BeamSegmentInfo>> segments; ///< in order of the chain

private:
    struct Fields; // the one list, in the source
};
