#pragma once

#include <QJsonObject>
#include <QSet>
#include <QString>

#include <vector>

class IHBXService;
class ORVCADBoardLocalModel_Sample;

namespace faults {

struct FloorName
{
    QString region;
    QString floor;
};

// What a host holds, in the order in which it gives it.

QSet<qint64> floorIds(IHBXService &service);
std::vector<FloorName> floorNames(IHBXService &service);

// What a host holds, as the replies of the recognition side tell it.

QJsonObject openingReply(IHBXService &service);
QJsonObject brickReply(IHBXService &service);
QJsonObject forceReply(IHBXService &service);
/** Adds everything on a floor to a local model. */
void readFloor(IHBXService &service, const FloorName &name, ORVCADBoardLocalModel_Sample &local);

} // namespace faults
