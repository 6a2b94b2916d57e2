#pragma once
#include "cli/Files.h"
#include <QSet>
class IHBXModel;
namespace orvcad {
IHBXFloor *floorOfCode(IHBXModel &model, const QString &regionName, const QString &floorCode, QString &reason);
QSet<qint64> idsOf(const std::vector<IHBXFloor *> &floors);
}
