#include "beam/BeamIdentifyContextData.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordFields.h"

using namespace beam;
using encoding::field;

struct BeamIdentifyContextData::FloorFields
{
    static constexpr auto table =
        std::make_tuple(field(key::floorName, &FloorInfo::FloorName), field(key::floorCode, &FloorInfo::FloorCode),
                        field(key::height, &FloorInfo::Height), field(key::btmElev, &FloorInfo::BtmElev),
                        field(key::floorId, &FloorInfo::FloorID));
};

QJsonObject BeamIdentifyContextData::toJson() const
{
    QJsonObject floor;
    if (floorInfo)
        encoding::writeFields(*floorInfo, FloorFields::table, floor);
    QJsonObject options;
    for (auto option = cadOptions.cbegin(); option != cadOptions.cend(); ++option)
        options.insert(option.key(), option.value());
    return {{key::floorInfo, floor}, {key::cadOptions, options}};
}
