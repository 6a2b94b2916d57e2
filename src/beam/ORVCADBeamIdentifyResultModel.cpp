#include "beam/ORVCADBeamIdentifyResultModel.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordKinds.h"

namespace {
using Labels = encoding::Appended<QList<ORVCADBeamEdoInfoTmp *>>;
}

QJsonObject ORVCADBeamIdentifyResultModel::toJson() const
{
    return {{beam::key::labels, Labels::toValue(getElementInfo())}};
}

void ORVCADBeamIdentifyResultModel::fromJson(ORVCADBeamIdentifyResultModel *target, const QJsonObject &json)
{
    if (target)
        target->setElementInfo(Labels::fromValue(json.value(beam::key::labels), {}));
}
