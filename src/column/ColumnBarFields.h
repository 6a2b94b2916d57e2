#pragma once

#include "column/ColumnBarInfo.h"
#include "column/ColumnKeys.h"
#include "encoding/RecordFields.h"

namespace column {

using encoding::fieldOr;

/** The one list of the fields of ColumnBarInfo, which inputs and replies share. */
struct BarFields
{
    using Record = ColumnBarInfo;
    static constexpr auto table =
        std::make_tuple(fieldOr(key::vertBar, &Record::pfnVertBar), fieldOr(key::cornerBar, &Record::pfnCornerBar),
                        fieldOr(key::bSideBar, &Record::pfnBSideBar), fieldOr(key::hSideBar, &Record::pfnHSideBar),
                        fieldOr(key::hoopBar, &Record::pfnHoopBar), fieldOr(key::limb, &Record::strLimb),
                        fieldOr(key::bSidePicId, &Record::nBSidePicID), fieldOr(key::hSidePicId, &Record::nHSidePicID));
};

} // namespace column
