#include "IdentifyInputModel/Wall/JsonWall2HBX.h"

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallEdoGenerator.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"
#include "IdentifyInputModel/Wall/WallKeys.h"
#include "platform/host/IHBXService.h"

#include <QJsonDocument>

namespace {

template <typename Output>
using Generate = bool (ORVCADWallEdoGenerator::*)(Output *, ORVCADWallEdoGenerator::DrawObjs &,
                                                  ORVCADWallEdoGenerator::Elements &);

/** The steps between are gone when it returns: each is as large as the document or larger. */
std::wstring textOf(const QJsonObject &document)
{
    return QString(QJsonDocument(document).toJson(QJsonDocument::Compact)).toStdWString();
}

template <typename Output>
bool writeReply(IHBXService *service, const QJsonObject &reply, QLatin1String kind, Generate<Output> generate)
{
    const QJsonObject document = reply[kind].toObject()[wall::reply::elementsAndEdos].toObject();
    IHBXModel *model = service ? service->model() : nullptr;
    if (!model)
        return false;
    Output output;
    output.loadFromJson(textOf(document));
    ORVCADWallEdoGenerator generator(*model);
    ORVCADWallEdoGenerator::DrawObjs drawObjs;
    ORVCADWallEdoGenerator::Elements elements;
    (generator.*generate)(&output, drawObjs, elements);
    return false; // meant: the result says nothing, also after success
}

} // namespace

bool jsonBrickWall2HBX(IHBXService *service, const QJsonObject &reply)
{
    return writeReply(service, reply, wall::reply::brickWalls, &ORVCADWallEdoGenerator::generateBrick);
}

bool jsonForceWall2HBX(IHBXService *service, const QJsonObject &reply)
{
    return writeReply(service, reply, wall::reply::forceWalls, &ORVCADWallEdoGenerator::generateForce);
}
