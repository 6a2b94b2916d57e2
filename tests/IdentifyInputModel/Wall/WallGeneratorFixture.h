#pragma once

#include "IdentifyInputModel/Wall/WallWritingFixture.h"
#include "platform/host/HBXModelException.h"

/** The calls that open and close the bracket of a site. */
namespace wallbatch {

inline QString keyOf(int site)
{
    return QStringLiteral("\"ORVCADModelData\\IdentifyInputModel\\Wall\\ORVCADWallEdoGenerator%1\"").arg(site);
}
inline QString begin(int site) { return "beginBatch(" + keyOf(site) + ", true)"; }
inline QString end(int site) { return "endBatch(" + keyOf(site) + ')'; }

} // namespace wallbatch

/** Output models of both kinds, to be generated in a host. */
class WallGeneratorFixture : public WallWritingFixture
{
protected:
    /** The model owns the copy that it gets. */
    Brick *add(const Brick &record, const std::list<IdentifyResultData> &pieces)
    {
        auto *element = new Brick(record);
        for (const IdentifyResultData &piece : pieces)
            bricks.setBrickWallIdentifyData(element, piece);
        return element;
    }
    Force *add(const Force &record, const std::list<IdentifyResultData> &pieces)
    {
        auto *element = new Force(record);
        for (const IdentifyResultData &piece : pieces)
            forces.setForceWallIdentifyData(element, piece);
        return element;
    }
    bool generateBrick(IHBXService *host) { return generator(host).generateBrick(&bricks, drawObjs, elements); }
    bool generateForce(IHBXService *host) { return generator(host).generateForce(&forces, drawObjs, elements); }
    static ORVCADWallEdoGenerator generator(IHBXService *host) { return ORVCADWallEdoGenerator(*host->model()); }

    /** Throws before the call of that number which starts so, as a host that refuses it does. */
    static void refuse(RecordingHost &host, const QString &call, int number = 0)
    {
        host.beforeCall([call, left = number](const QString &line) mutable {
            if (line.startsWith(call) && left-- == 0)
                throw HBXModelException("refused");
        });
    }

    ORVCADWallBrickDataOutputModel bricks;
    ORVCADWallForceDataOutputModel forces;
    ORVCADWallEdoGenerator::DrawObjs drawObjs;
    ORVCADWallEdoGenerator::Elements elements;
};
