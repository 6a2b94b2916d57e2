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
    const QJsonObject floor = floorInfo ? encoding::writtenFields(*floorInfo, FloorFields::table) : QJsonObject();
    QJsonObject options;
    for (auto option = cadOptions.cbegin(); option != cadOptions.cend(); ++option)
        options.insert(option.key(), option.value());
    return {{key::floorInfo, floor}, {key::cadOptions, options}};
}
