#pragma once

#include "platform/dwgx/DWGXBaseOptions.h"

#include <QMap>

class IHBXModel;

namespace hbx::embedded {

/** The options of wall recognition that a building keeps: the group ptnWallSetting, by label. It is read once.
 *
 *  An option that is not set, or whose text is no integer, has the default that the label has (mm): openings up to 2400
 *  wide are bridged, wall lines lie up to 500 apart with a tolerance of 5, and a wall's end is extended by up to 200 to
 *  meet another wall, by up to 50 to meet a door or window in either direction. */
class ORVCADPLATFORM_EXPORT HBXWallOptions final : public dwgx::DWGXBaseOptions
{
public:
    /** Null keeps no options. */
    explicit HBXWallOptions(IHBXModel *model);

    /** By a label of HBXOptionNames.h, translated or not; any other name of the group is looked up as it is. */
    int intOption(const QString &label) const override;

private:
    QMap<QString, QString> m_stored;
};

} // namespace hbx::embedded
