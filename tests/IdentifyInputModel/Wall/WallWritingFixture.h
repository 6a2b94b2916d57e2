#pragma once

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallEdoGenerator.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"
#include "IdentifyInputModel/Wall/WallFixture.h"
#include "IdentifyInputModel/Wall/WallReplyText.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "support/HouseFixture.h"
#include "support/RecordingHost.h"

#include <vector>

/** A host with one floor, and walls to write into it as records and as replies. */
class WallWritingFixture : public HouseFixture
{
protected:
    using Brick = ORVCADCloudEntBrickWallStruct;
    using Force = ORVCADCloudEntForceWallStruct;

    static Brick brickWall(const std::wstring &name = L"Q1")
    {
        Brick record;
        record.entName = name;
        record.elementType = 1003;
        record.elementSubType = 316;
        record.material = L"3";
        record.throughBar = L"2A6@600";
        record.transverseBar = L"A6@250";
        record.width = 200;
        record.floorCode = L"1";
        record.region = L"House";
        return record;
    }
    static Force forceWall(const std::wstring &name = L"W1")
    {
        Force record;
        record.entName = name;
        record.elementType = 0;
        record.elementSubType = 7;
        record.tieBar = L"A6@600";
        record.vreBar = L"C10@150";
        record.hreBar = L"C10@200";
        record.width = 300;
        record.floorCode = L"1";
        record.region = L"House";
        return record;
    }
    static IdentifyResultData piece(double y = 0)
    {
        IdentifyResultData data;
        data.sWorldLine = line(0, y, 5000, y);
        data.sPfnStartPtBottomElev = L"0.1";
        data.sPfnEndPtBottomElev = L"0.2";
        data.sPfnStartPtTopElev = L"2.8";
        data.sPfnEndPtTopElev = L"2.9";
        return data;
    }

    using WallText = walltest::WallText;
    static QJsonObject brickReply(const std::vector<WallText> &walls)
    {
        const QJsonObject document{{"BrickWallIdentifyData", walltest::mapOf(walls)}};
        return {{"eBrickWall", QJsonObject{{"ElementsAndEdos", document}}}};
    }
    static QJsonObject forceReply(const std::vector<WallText> &walls)
    {
        const QJsonObject document{{"ForceWallIdentifyData", walltest::mapOf(walls)}};
        return {{"eWall", QJsonObject{{"ElementsAndEdos", document}}}};
    }
    static QJsonObject elementText(const QString &name, const QString &type = "1003", const QString &floor = "1",
                                   const QString &region = "House")
    {
        return {{"edoId", "7"},   {"entName", name},    {"elementType", type}, {"elementSubType", "316"},
                {"width", "200"}, {"floorCode", floor}, {"region", region}};
    }
    static QJsonObject pieceText(const QString &axis = "0,0,5000,0") { return {{"sWorldLine", axis}}; }

    QStringList placedNames(qint64 type) const
    {
        QStringList names;
        QString name;
        for (IHBXElementDrawObj *object : placed(type))
            names.append(object->element()->name(name));
        return names;
    }
    static QString text(IHBXProperties *properties, const std::wstring &name)
    {
        QString out;
        return properties->asString(out, name);
    }
    static vks::CRefPtr<vks::CCurve2d> axisOf(IHBXElementDrawObj *object)
    {
        vks::CRefPtr<vks::CCurve2d> axis;
        if (const auto *shape = dynamic_cast<IHBXCustomLineSolidShape *>(object->shape()))
            shape->worldLine(axis, true);
        return axis;
    }
};
