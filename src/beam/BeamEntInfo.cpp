#include "beam/BeamEntInfo.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordFields.h"

using namespace beam;
using encoding::fieldOr;

struct BeamEntInfo::Fields
{
    using Record = BeamEntInfo;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::spanCount, &Record::SpanCount), fieldOr(key::topThroughBar, &Record::TopThroughBar),
        fieldOr(key::bottomThroughBar, &Record::BottomThroughBar), fieldOr(key::sideBar, &Record::SideBar),
        fieldOr(key::type, &Record::Type));
};

BeamEntInfo::~BeamEntInfo() = default;

void BeamEntInfo::fromJson(const QJsonObject &json)
{
    BaseBeamEntInfo::fromJson(json);
    encoding::readFields(json, Fields::table, *this);
}

QJsonObject BeamEntInfo::toJsonObj() const
{
    QJsonObject json = BaseBeamEntInfo::toJsonObj();
    encoding::writeFields(*this, Fields::table, json);
    return json;
}
