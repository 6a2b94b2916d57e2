#include "RoadParts.h"

#include <QJsonArray>

namespace honestytest {

namespace {

bool isCombined(const QJsonObject &element) { return element["nElementType"] == 6; }

const CarriedKeys &openingElementKeys()
{
    static const CarriedKeys keys{
        never("elementID"), // makes the member an element
        text("name"),
        number("nElementType"),
        when(number("nSubElementType"), isCombined), // the others have one of their own
        number("nHeight"),
        number("nWidth"),
        when(number("nHeightFromFloor"), [](const QJsonObject &element) { return !isCombined(element); }),
        text("floorName"),
        text("regionName")};
    return keys;
}
const CarriedKeys &placedOpeningKeys()
{
    static const CarriedKeys keys{text("elementName"),        number("X"),       number("Y"),
                                  number("nHeightFromFloor"), text("floorName"), text("regionName")};
    return keys;
}

Members openings(const QJsonObject &document)
{
    Members members;
    int index = 0;
    for (const QJsonValue value : document["eDoorWin"].toObject()["ElementsAndEdos"].toArray())
        members.push_back({value.toObject().contains("elementID") ? "element" : "placed",
                           QStringLiteral("eDoorWin.ElementsAndEdos[%1]").arg(index++), value});
    return members;
}

QString openingDifference(const Member &sent, const Member &arrived)
{
    return whyNotTheSame(sent.value.toObject(), arrived.value.toObject(),
                         sent.kind == "element" ? openingElementKeys() : placedOpeningKeys());
}

std::string openingsUnequal(const QJsonObject &summary, const Members &sent, const Members &arrived)
{
    Sums sums;
    sums.expect("members", summary["members"].toInt(), static_cast<int>(sent.size()));
    sums.expect("elementsMade", summary["elementsMade"].toInt(), countOf(arrived, "element"));
    sums.expect("placed", summary["placed"].toInt(), countOf(arrived, "placed"));
    sums.expect("attached and not", summary["attached"].toInt() + summary["unattached"].toInt(),
                summary["placed"].toInt());
    for (const char *kind : {"element", "placed"}) {
        int leftOut = 0;
        for (const QJsonValue entry : summary["leftOut"].toArray())
            if (entry["whole"].toBool() && sent[static_cast<std::size_t>(entry["index"].toInt())].kind == kind)
                ++leftOut;
        sums.expect(QString("%1 left out").arg(kind), leftOut, countOf(sent, kind) - countOf(arrived, kind));
    }
    return sums.text();
}

} // namespace

std::vector<ReplyRoad> openingRoads()
{
    return {{"openings",
             {"opening", "apply"},
             {},
             {"opening", "export"},
             {},
             {4, 5, 6, 7},
             openings,
             openingDifference,
             openingsUnequal,
             {4, 5, 6, 7},
             placedOf,
             {},
             asItIs,
             "^(?<members>\\d+) members? read: (?<elementsMade>\\d+) elements? made, (?<placed>\\d+) openings? placed "
             "\\((?<attached>\\d+) in a wall, (?<unattached>\\d+) in none\\), "}};
}

} // namespace honestytest
