#include "beam/ORVCADBeamCollectDataModel.h"

#include "beam/BeamKeys.h"

#include <QJsonArray>

using namespace beam;

namespace {

struct BeamArray
{
    qint64 elementType;
    QLatin1String key;
};

constexpr BeamArray kArrays[] = {
    {type::beam, key::beams},
    {type::linkBeam, key::linkBeams},
    {type::foundationBeam, key::foundationBeams},
};

QJsonArray beamsOfType(const ORVCADBeamCollectDataModel::Beams &beams, qint64 elementType)
{
    QJsonArray array;
    for (const auto &beam : beams)
        if (beam && beam->getElementType() == elementType)
            array.append(beam->toJsonObj());
    return array;
}

} // namespace

void ORVCADBeamCollectDataModel::setBeamIdentifyInfo(const Beams &beams) { m_beams = beams; }

ORVCADBeamCollectDataModel::Beams ORVCADBeamCollectDataModel::getIdentifyInfo() const { return m_beams; }

QJsonObject ORVCADBeamCollectDataModel::toJsonObj() const
{
    QJsonObject json;
    for (const BeamArray &array : kArrays)
        json.insert(array.key, beamsOfType(m_beams, array.elementType));
    return json;
}
