#include "RoadParts.h"

#include <QJsonArray>
#include <QMap>

namespace honestytest {

namespace {

CarriedKeys slabKeys(const CarriedKeys &own)
{
    return CarriedKeys{never("id"),            // of the host
                       never("recongnizedID"), // of the document; the id map carries it
                       never("name"),          // the host names what is made
                       never("state_descript")} +
           own;
}
CarriedKeys barKeys(const CarriedKeys &own)
{
    return slabKeys(CarriedKeys{CarriedKey{"bar_info", How::Bars, QString()},
                                never("ref_point_x"), // of the label on the drawing
                                never("ref_point_y"), never("ref_point_valid"), never("row_number")} +
                    own);
}
CarriedKeys areaBarKeys(const CarriedKeys &own)
{
    return barKeys(CarriedKeys{geometry("surface"), direction("direction_x"), direction("direction_y"),
                               near("left_hook_length"), near("right_hook_length")} +
                   own);
}

const QMap<QString, CarriedKeys> &slabArrays()
{
    const CarriedKeys line = barKeys(
        {geometry("line"), near("left_hook_length"), never("right_hook_length"), // the left one once more
         CarriedKey{"label_position", How::Same, kHosts}, near("left_strech_length"), near("right_strech_length")});
    const CarriedKeys slabBar{CarriedKey{"distribute_bar_info", How::Bars, QString()}, text("saddle_barline_count")};
    const CarriedKeys straddle{CarriedKey{"label_position", How::Same, kHosts}, near("left_strech_length"),
                               near("right_strech_length")};
    static const QMap<QString, CarriedKeys> arrays{
        {"boards", slabKeys({geometry("surface"), near("thinkness"), near("elev"), never("type")})},
        {"rafts", slabKeys({geometry("surface"), near("thinkness"), near("topElev"), near("bottomElev")})},
        {"board_holes", slabKeys({geometry("surface"), never("bar_info"), hostText("longSpanReinforceBar"),
                                  hostText("shortSpanReinforceBar"), hostText("obliqueReinforceBar")})},
        {"forced_bars", areaBarKeys({near("forced_type"), never("SupportPoly")})},
        {"negative_forced_bars", line + slabBar},
        {"straddle_forced_bars", areaBarKeys(straddle + slabBar + CarriedKeys{never("SupportPolys")})},
        {"raft_main_forced_bars", areaBarKeys({near("forced_type")})},
        {"raft_straddle_main_forced_bars", areaBarKeys(straddle)},
        {"raft_negative_forced_bars", line},
    };
    return arrays;
}

QJsonObject slabModel(const QJsonObject &document)
{
    return document["model"].isObject() ? document["model"].toObject() : document;
}

Members slabs(const QJsonObject &document) { return entriesOf(slabModel(document), slabArrays().keys()); }

QString slabDifference(const Member &sent, const Member &arrived)
{
    return whyNotTheSame(sent.value.toObject(), arrived.value.toObject(), slabArrays()[sent.kind]);
}

/** Bars that lie in no slab are in the building, and no export has them. */
std::string slabsUnequal(const QJsonObject &summary, const Members &sent, const Members &arrived)
{
    Sums sums;
    sums.expect("members", summary["members"].toInt(), static_cast<int>(sent.size()));
    for (const QJsonValue array : summary["arrays"].toArray()) {
        const QString key = array["array"].toString();
        sums.expect(key, array["members"].toInt(), countOf(sent, key));
        if (!key.contains("bars"))
            sums.expect(key + " made", array["made"].toInt(), countOf(arrived, key));
        sums.expect(key + " left out", array["leftOut"].toInt(), wholeLeftOut(summary, key + '['));
        sums.expect(key + " in all", array["made"].toInt() + array["known"].toInt() + array["leftOut"].toInt(),
                    array["members"].toInt());
    }
    return sums.text();
}

int madeOf(const QJsonObject &summary) { return summary["made"].toInt(); }

QJsonObject withoutBarsOfHoles(QJsonObject document)
{
    for (const char *key : {"longSpanReinforceBar", "shortSpanReinforceBar", "obliqueReinforceBar"})
        for (const char *hole : {"0", "3"})
            document = withValue(document, {"board_holes", hole, key}, "").toObject();
    return document;
}

constexpr char kSummary[] =
    "^(?<members>\\d+) members? read: (?<made>\\d+) made in (?<elementsMade>\\d+) new elements?, "
    "(?<known>\\d+) in the host already, ";

} // namespace

std::vector<ReplyRoad> slabRoads()
{
    return {{"slabs",
             {"slab", "apply"},
             {"--region", "主楼", "--floor", "1", "--as-new"},
             {"slab", "export"},
             {"--region", "主楼", "--floor", "1"},
             {19, 24, 22, 23},
             slabs,
             slabDifference,
             slabsUnequal,
             {19, 24, 22, 23},
             madeOf,
             {"board_holes[0].longSpanReinforceBar", "board_holes[0].shortSpanReinforceBar",
              "board_holes[3].obliqueReinforceBar"},
             withoutBarsOfHoles,
             kSummary},
            {"rafts",
             {"slab", "apply"},
             {"--region", "主楼", "--floor", "0", "--as-new"},
             {"slab", "export"},
             {"--region", "主楼", "--floor", "0"},
             {48, 24, 49, 50},
             slabs,
             slabDifference,
             slabsUnequal,
             {48, 24, 49, 50},
             madeOf,
             {},
             asItIs,
             kSummary}};
}

} // namespace honestytest
