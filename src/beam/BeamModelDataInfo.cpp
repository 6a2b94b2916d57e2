#include "beam/BeamModelDataInfo.h"

#include "beam/BeamEntInfo.h"
#include "beam/BeamKeys.h"
#include "beam/LinkBeamEntInfo.h"
#include "encoding/RecordKinds.h"

using namespace beam;
using encoding::fieldAppended;

struct BeamModelDataInfo::Fields
{
    static constexpr auto table = std::make_tuple(fieldAppended(key::edoInfos, &BeamModelDataInfo::edoInfos));
};

std::unique_ptr<BaseBeamEntInfo> BeamModelDataInfo::makeElementInfo(qint64 elementType)
{
    if (elementType == type::beam || elementType == type::foundationBeam)
        return std::make_unique<BeamEntInfo>();
    return std::make_unique<LinkBeamEntInfo>(); // meant: of an unknown type, too
}

qint64 BeamModelDataInfo::getElementType() const { return elementInfo ? elementInfo->ElementType : 0; }

void BeamModelDataInfo::fromJson(const QJsonObject &json)
{
    const QJsonObject element = json.value(key::elementInfo).toObject();
    elementInfo = makeElementInfo(element.value(key::elementType).toInt(0));
    elementInfo->fromJson(element);
    encoding::readFields(json, Fields::table, *this);
}

QJsonObject BeamModelDataInfo::toJsonObj() const
{
    QJsonObject json{{key::elementInfo, elementInfo ? elementInfo->toJsonObj() : QJsonObject()}};
    encoding::writeFields(*this, Fields::table, json);
    return json;
}
