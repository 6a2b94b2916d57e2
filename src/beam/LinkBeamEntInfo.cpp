#include "beam/LinkBeamEntInfo.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordFields.h"

using namespace beam;
using encoding::fieldOr;

struct LinkBeamEntInfo::Fields
{
    using Record = LinkBeamEntInfo;
    static constexpr auto table = std::make_tuple(fieldOr(key::topHoribar, &Record::TopHoribar),
                                                  fieldOr(key::bottomHoriBar, &Record::BottomHoriBar),
                                                  fieldOr(key::sideBarAL, &Record::SideBarAL));
};

LinkBeamEntInfo::~LinkBeamEntInfo() = default;

void LinkBeamEntInfo::fromJson(const QJsonObject &json)
{
    BaseBeamEntInfo::fromJson(json);
    encoding::readFields(json, Fields::table, *this);
}

QJsonObject LinkBeamEntInfo::toJsonObj() const
{
    QJsonObject json = BaseBeamEntInfo::toJsonObj();
    encoding::writeFields(*this, Fields::table, json);
    return json;
}
