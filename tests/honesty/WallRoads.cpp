#include "RoadParts.h"

#include <QJsonArray>
#include <algorithm>

namespace honestytest {

namespace {

CarriedKeys wallElementKeys(bool isBrick)
{
    const CarriedKeys all{never("edoId"), // the order in which they are made
                          never("typePropertyValue"),
                          text("entName"),
                          hostText("elementType"),
                          {"elementSubType", How::Host, "0"},
                          hostText("width"),
                          text("floorCode"),
                          text("region")};
    return all + (isBrick ? CarriedKeys{hostText("material"), hostText("throughBar"), hostText("transverseBar")}
                          : CarriedKeys{hostText("hreBar"), hostText("vreBar"), hostText("tieBar")});
}

const CarriedKeys &pieceKeys()
{
    static const CarriedKeys keys{{"sWorldLine", How::Geometry, QString()},
                                  hostText("sPfnStartPtTopElev"),
                                  hostText("sPfnStartPtBottomElev"),
                                  hostText("sPfnEndPtTopElev"),
                                  hostText("sPfnEndPtBottomElev"),
                                  never("sWidth"),
                                  never("sStrTextInfo"),
                                  never("sStrEntName"),
                                  never("sPolys"),
                                  never("floorCode"),
                                  never("region"),
                                  never("sSegmentEntityDataList")};
    return keys;
}

Members wallsOf(const QJsonObject &document, const QString &reply, const QString &mapKey)
{
    const QJsonObject map = document[reply]["ElementsAndEdos"][mapKey].toObject();
    Members members;
    for (int i = 0; i < map.size() / 2; ++i) // half of the keys are elements, as the format has it
        members.push_back({mapKey, QStringLiteral("%1.key_%2").arg(mapKey).arg(i),
                           QJsonObject{{"element", map[QStringLiteral("key_%1").arg(i)]},
                                       {"pieces", map[QStringLiteral("value_%1").arg(i)]}}});
    return members;
}
Members brickWalls(const QJsonObject &document) { return wallsOf(document, "eBrickWall", "BrickWallIdentifyData"); }
Members forceWalls(const QJsonObject &document) { return wallsOf(document, "eWall", "ForceWallIdentifyData"); }

QString wallDifference(const Member &sent, const Member &arrived)
{
    static const CarriedKeys brick = wallElementKeys(true);
    static const CarriedKeys force = wallElementKeys(false);
    const QString why = whyNotTheSame(sent.value["element"].toObject(), arrived.value["element"].toObject(),
                                      sent.kind.startsWith("Brick") ? brick : force);
    return why.isEmpty() ? recordsDifference(sent.value["pieces"], arrived.value["pieces"], "pieces", pieceKeys())
                         : why;
}

std::string wallsUnequal(const QJsonObject &summary, const Members &sent, const Members &arrived)
{
    Sums sums;
    const auto piecesOf = [](const Members &walls) {
        int pieces = 0;
        for (const Member &wall : walls)
            pieces += wall.value["pieces"].toArray().size();
        return pieces;
    };
    sums.expect("members", summary["members"].toInt(), static_cast<int>(sent.size()));
    sums.expect("members in all", summary["elementsMade"].toInt() + wholeLeftOut(summary),
                static_cast<int>(sent.size()));
    sums.expect("placed", summary["placed"].toInt(), piecesOf(arrived));
    for (const QJsonValue wall : summary["walls"].toArray()) {
        const auto member = std::find_if(sent.begin(), sent.end(),
                                         [&](const Member &one) { return one.place == wall["place"].toString(); });
        sums.expect(member->place + " pieces", wall["placed"].toInt() + wall["leftOut"].toInt(),
                    member->value["pieces"].toArray().size());
    }
    return sums.text();
}

} // namespace

std::vector<ReplyRoad> wallRoads()
{
    return {
        {"brickWalls",
         {"wall", "apply"},
         {"--kind", "brick"},
         {"wall", "reply"},
         {"--kind", "brick"},
         {1003, 4, 5, 6, 7},
         brickWalls,
         wallDifference,
         wallsUnequal,
         {1003},
         placedOf,
         {},
         asItIs,
         "^(?<members>\\d+) brick walls? read: (?<elementsMade>\\d+) elements? made \\((?<renamed>\\d+) under another "
         "name\\), (?<placed>\\d+) pieces? placed, "},
        {"forceWalls",
         {"wall", "apply"},
         {"--kind", "force"},
         {"wall", "reply"},
         {"--kind", "force"},
         {0, 4, 5, 6, 7},
         forceWalls,
         wallDifference,
         wallsUnequal,
         {0},
         placedOf,
         {},
         asItIs,
         "^(?<members>\\d+) force walls? read: (?<elementsMade>\\d+) elements? made \\((?<renamed>\\d+) under another "
         "name\\), (?<placed>\\d+) pieces? placed, "}};
}

} // namespace honestytest
