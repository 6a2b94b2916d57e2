#include "ReplyRoads.h"

#include <QJsonArray>
#include <QMap>

#include <algorithm>
#include <ostream>

namespace honestytest {

namespace {

constexpr double kNoNumber = 0;
const QJsonValue kHosts = QJsonValue::Undefined;

CarriedKey text(const char *key) { return {key, How::Same, QString()}; }
CarriedKey number(const char *key) { return {key, How::Same, kNoNumber}; }
CarriedKey near(const char *key) { return {key, How::Near, kNoNumber}; }
CarriedKey sixDigits(const char *key) { return {key, How::Rounded, kNoNumber}; }
/** Part of a vector whose length does not count. */
CarriedKey direction(const char *key) { return {key, How::Direction, kHosts}; }
CarriedKey geometry(const char *key) { return {key, How::Geometry, QString()}; }
/** An empty text leaves the host's value as it is. */
CarriedKey hostText(const char *key) { return {key, How::Host, kHosts}; }
CarriedKey never(const char *key) { return {key, How::Never, kHosts}; }

CarriedKey when(CarriedKey row, std::function<bool(const QJsonObject &)> counts)
{
    row.counts = std::move(counts);
    return row;
}

CarriedKeys operator+(CarriedKeys keys, const CarriedKeys &more)
{
    keys.insert(keys.end(), more.begin(), more.end());
    return keys;
}

Members entries(const QJsonObject &document, const QString &key)
{
    Members members;
    int index = 0;
    for (const QJsonValue value : document[key].toArray())
        members.push_back({key, QStringLiteral("%1[%2]").arg(key).arg(index++), value});
    return members;
}

Members entriesOf(const QJsonObject &document, const QStringList &keys)
{
    Members members;
    for (const QString &key : keys)
        for (const Member &member : entries(document, key))
            members.push_back(member);
    return members;
}

/** Tells numbers that differ. */
class Sums
{
public:
    void expect(const QString &what, int summary, int counted)
    {
        if (summary != counted)
            m_text += QStringLiteral("%1: the summary says %2, and it is %3\n").arg(what).arg(summary).arg(counted);
    }
    std::string text() const { return m_text.toStdString(); }

private:
    QString m_text;
};

/** Entries of "leftOut" that stand for a whole member, of an array or of all. */
int wholeLeftOut(const QJsonObject &summary, const QString &array = QString())
{
    int count = 0;
    for (const QJsonValue entry : summary["leftOut"].toArray())
        if (entry["whole"].toBool() && entry["place"].toString().startsWith(array))
            ++count;
    return count;
}

// --- doors and windows

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

// --- slabs

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

// --- beams

bool isOutlined(const QJsonObject &element) { return !element["SectionPoly"].toString().isEmpty(); }
bool isLinkBeam(const QJsonObject &element) { return element["ElementType"] == 17; }
bool isPlain(const QJsonObject &element) { return !isOutlined(element); }
bool isSpanned(const QJsonObject &element) { return !isLinkBeam(element); }
bool isMadeAsItIs(const QJsonObject &element)
{
    return element["ElementSubType"] != 12 && element["ElementSubType"] != 135;
}

const CarriedKeys &beamElementKeys()
{
    static const CarriedKeys keys{text("Name"),
                                  number("ElementType"),
                                  when(number("ElementSubType"), isMadeAsItIs),
                                  when(number("SectionWidth"), isPlain),
                                  when(number("SectionHeight"), isPlain),
                                  geometry("SectionPoly"),
                                  never("StartTopElev"), // come back with the draw objects
                                  never("EndTopElev"),
                                  text("FloorName"),
                                  text("RegionName"),
                                  hostText("HoopBar"),
                                  hostText("LimbCount"),
                                  hostText("TieBar"),
                                  sixDigits("AxisOffset"),
                                  when(hostText("SpanCount"), isSpanned),
                                  when(hostText("TopThroughBar"), isSpanned),
                                  when(hostText("BottomThroughBar"), isSpanned),
                                  when(hostText("SideBar"), isSpanned),
                                  when(number("Type"), isSpanned),
                                  when(hostText("TopHoribar"), isLinkBeam),
                                  when(hostText("BottomHoriBar"), isLinkBeam),
                                  when(hostText("SideBarAL"), isLinkBeam)};
    return keys;
}

const CarriedKeys &segmentKeys()
{
    static const CarriedKeys keys{never("Index"), // counts up from any number, and arrives counted from 0
                                  geometry("WordLine"),    number("LineWidth"),
                                  sixDigits("AxisOffset"), hostText("StartPtTopElev"),
                                  hostText("EndPtTopElev")};
    return keys;
}

const CarriedKeys &spanKeys()
{
    static const CarriedKeys keys = [] {
        CarriedKeys all;
        for (const char *key : {"SpanIndex", "HoopBarLimbCount", "StartElev", "EndElev", "SpanLength", "AxisOffset"})
            all.push_back(number(key));
        for (const char *key :
             {"Section",          "TopThroughBar",   "LeftSupportBar",  "SpanBar",          "RightSupportBar",
              "BottomThroughBar", "BottomBar",       "SideBar",         "SideLabelBar",     "TieBar",
              "HoopBar",          "SecBeamWidth",    "SecBeamAddBar",   "HangBar",          "HangBarAnchor",
              "DenseLength",      "HaunchingLength", "HaunchingHeight", "HaunchingBarInfo", "OtherHoopBars"})
            all.push_back(text(key));
        all.push_back({"SpanA1_A4", How::Geometry, kHosts}); // four numbers
        return all;
    }();
    return keys;
}

QString recordsDifference(const QJsonValue &sent, const QJsonValue &arrived, const QString &key,
                          const CarriedKeys &keys)
{
    if (sent.toArray().size() != arrived.toArray().size())
        return QStringLiteral("%1: %2 were sent, %3 arrived")
            .arg(key)
            .arg(sent.toArray().size())
            .arg(arrived.toArray().size());
    for (int i = 0; i < sent.toArray().size(); ++i) {
        const QString why = whyNotTheSame(sent[i].toObject(), arrived[i].toObject(), keys);
        if (!why.isEmpty())
            return QStringLiteral("%1[%2].%3").arg(key).arg(i).arg(why);
    }
    return {};
}

/** Segments in the order of their numbers, in which they make the chain. */
QJsonValue inOrder(const QJsonValue &segments)
{
    QMultiMap<int, QJsonValue> sorted;
    for (const QJsonValue segment : segments.toArray())
        sorted.insert(segment["Index"].toInt(), segment);
    QJsonArray array;
    for (const QJsonValue &segment : sorted)
        array.append(segment);
    return array;
}

QString chainDifference(const Member &sent, const Member &arrived)
{
    const CarriedKeys known{geometry("BeamSegmentInfo"), geometry("BeamSpanInfo")};
    QJsonObject keysAlone = sent.value.toObject();
    for (const CarriedKey &key : known)
        keysAlone.remove(key.key);
    QString why = whyNotTheSame(keysAlone, {}, {});
    if (why.isEmpty())
        why = recordsDifference(inOrder(sent.value["BeamSegmentInfo"]), inOrder(arrived.value["BeamSegmentInfo"]),
                                "BeamSegmentInfo", segmentKeys());
    // Without stored spans they are cut anew.
    if (why.isEmpty() && !sent.value["BeamSpanInfo"].toArray().isEmpty())
        why = recordsDifference(sent.value["BeamSpanInfo"], arrived.value["BeamSpanInfo"], "BeamSpanInfo", spanKeys());
    return why;
}

QString beamDifference(const Member &sent, const Member &arrived)
{
    QJsonObject keysAlone = sent.value.toObject();
    keysAlone.remove("ElementInfo");
    keysAlone.remove("EDOInfo");
    QString why = whyNotTheSame(keysAlone, {}, {});
    if (why.isEmpty())
        why = whyNotTheSame(sent.value["ElementInfo"].toObject(), arrived.value["ElementInfo"].toObject(),
                            beamElementKeys());
    if (!why.isEmpty())
        return why;
    const Members chains = entries(sent.value.toObject(), "EDOInfo");
    const Members theirs = entries(arrived.value.toObject(), "EDOInfo");
    if (chains.size() != theirs.size())
        return QStringLiteral("EDOInfo: %1 were sent, %2 arrived").arg(chains.size()).arg(theirs.size());
    return QString::fromStdString(withoutPartner(chains, theirs, chainDifference));
}

Members beams(const QJsonObject &document) { return entriesOf(document, {"Beam", "LinkBeam", "FDBeam"}); }

/** Sum of the lengths of the lists of that key in all chains, or of the chains themselves for no key. */
int sumOfChains(const Members &beams, const QString &key = QString())
{
    int sum = 0;
    for (const Member &beam : beams)
        for (const QJsonValue chain : beam.value["EDOInfo"].toArray())
            sum += key.isEmpty() ? 1 : chain[key].toArray().size();
    return sum;
}

std::string beamsUnequal(const QJsonObject &summary, const Members &sent, const Members &arrived)
{
    Sums sums;
    const QJsonObject made = summary["made"].toObject();
    sums.expect("members", summary["members"].toInt(), static_cast<int>(sent.size()));
    sums.expect("elements", made["elements"].toInt(), static_cast<int>(arrived.size()));
    sums.expect("segments", made["segments"].toInt(), sumOfChains(arrived, "BeamSegmentInfo"));
    const QJsonArray written = summary["beams"].toArray();
    for (const char *array : {"Beam", "LinkBeam", "FDBeam"}) {
        const auto isOfArray = [&](const QJsonValue &beam) {
            return beam["place"].toString().startsWith(QString(array) + '[');
        };
        sums.expect(QString("%1 in all").arg(array),
                    static_cast<int>(std::count_if(written.begin(), written.end(), isOfArray)) +
                        wholeLeftOut(summary, QString(array) + '['),
                    countOf(sent, array));
    }
    for (const QJsonValue beam : written) {
        const QString chains = beam["place"].toString() + ".EDOInfo[";
        int leftOut = 0;
        for (const QJsonValue entry : summary["leftOut"].toArray())
            leftOut += entry["place"].toString().startsWith(chains) && entry["place"].toString().endsWith(']') &&
                               entry["place"].toString().count('[') == 2
                           ? 1
                           : 0;
        const auto member = std::find_if(sent.begin(), sent.end(),
                                         [&](const Member &one) { return one.place == beam["place"].toString(); });
        sums.expect(chains, beam["chains"].toInt() + leftOut, member->value["EDOInfo"].toArray().size());
    }
    return sums.text();
}

// --- seats

std::function<bool(const QJsonObject &)> ofType(std::vector<int> types)
{
    return [types](const QJsonObject &seat) {
        return std::find(types.begin(), types.end(), seat["ElementType"].toInt()) != types.end();
    };
}

const CarriedKeys &seatKeys()
{
    static const auto foundation = ofType({52, 53});
    static const auto pile = ofType({54});
    static const auto tieBeam = ofType({18});
    static const CarriedKeys keys{
        number("ElementType"),
        when(number("ElementSubType"),
             [](const QJsonObject &seat) { return pile(seat) && seat["ElementSubType"] != 169; }),
        when(geometry("WorldPoly"), ofType({52, 53, 54})),
        when(geometry("CenterLine"), tieBeam),
        text("FloorName"),
        text("RegionName"),
        text("EntName"),
        when(hostText("Type"), pile),
        never("SectionPoly"),
        when(number("SectionWidth"), tieBeam),
        when(number("SectinoHeight"), tieBeam),
        never("TopElev"), // of the element; the placed object's arrives
        never("BtmElev"),
        when(number("Height"), ofType({52, 53, 54})),
        when(sixDigits("AxisOffset"), tieBeam),
        never("Mirror"),
        never("Angle"),
        hostText("EDOTopElev"),
        when(hostText("EDOBtmElev"), ofType({52, 53, 18})),
    };
    return keys;
}

const QStringList kSeatArrays{"etIsolatedFD", "etPileCap", "etPile", "etTieBeam"};

Members seats(const QJsonObject &document) { return entriesOf(document, kSeatArrays); }

QString seatDifference(const Member &sent, const Member &arrived)
{
    return whyNotTheSame(sent.value.toObject(), arrived.value.toObject(), seatKeys());
}

std::string seatsUnequal(const QJsonObject &summary, const Members &sent, const Members &arrived)
{
    Sums sums;
    sums.expect("members", summary["members"].toInt(), static_cast<int>(sent.size()));
    const QMap<int, QString> arrays{{52, "etIsolatedFD"}, {53, "etPileCap"}, {54, "etPile"}, {18, "etTieBeam"}};
    QMap<QString, int> placed;
    for (const QJsonValue kind : summary["kinds"].toArray())
        placed[arrays[kind["type"].toInt()]] = kind["placed"].toInt();
    for (const QString &array : kSeatArrays) {
        if (wholeLeftOut(summary) + countOf(arrived, array) == countOf(sent, array))
            sums.expect(array + " placed", placed[array], countOf(arrived, array));
        sums.expect(array + " in all", placed[array] + wholeLeftOut(summary, array + '['), countOf(sent, array));
    }
    return sums.text();
}

// --- walls

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

int placedOf(const QJsonObject &summary) { return summary["placed"].toInt(); }
int madeOf(const QJsonObject &summary) { return summary["made"].toInt(); }
int segmentsOf(const QJsonObject &summary) { return summary["made"]["segments"].toInt(); }
int placedSeatsOf(const QJsonObject &summary)
{
    int sum = 0;
    for (const QJsonValue kind : summary["kinds"].toArray())
        sum += kind["placed"].toInt();
    return sum;
}

/** The document with a value changed; steps are keys and the numbers of entries. */
QJsonValue withValue(const QJsonValue &holder, QStringList steps, const QJsonValue &value)
{
    if (steps.isEmpty())
        return value;
    const QString step = steps.takeFirst();
    if (holder.isArray()) {
        QJsonArray array = holder.toArray();
        array[step.toInt()] = withValue(array.at(step.toInt()), steps, value);
        return array;
    }
    QJsonObject object = holder.toObject();
    object[step] = withValue(object[step], steps, value);
    return object;
}

QJsonObject asItIs(QJsonObject document) { return document; }
QJsonObject withoutBarsOfHoles(QJsonObject document)
{
    for (const char *key : {"longSpanReinforceBar", "shortSpanReinforceBar", "obliqueReinforceBar"})
        for (const char *hole : {"0", "3"})
            document = withValue(document, {"board_holes", hole, key}, "").toObject();
    return document;
}
QJsonObject inWholeMillimetres(const QJsonObject document)
{
    return withValue(document, {"Beam", "1", "EDOInfo", "0", "BeamSegmentInfo", "0", "LineWidth"}, 250).toObject();
}
QJsonObject withNamesOfTheirOwn(QJsonObject document)
{
    document = withValue(document, {"etIsolatedFD", "1", "EntName"}, "DJ-2").toObject();
    return document;
}

} // namespace

const std::vector<ReplyRoad> &replyRoads()
{
    static const std::vector<ReplyRoad> roads{
        {"openings",
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
         "\\((?<attached>\\d+) in a wall, (?<unattached>\\d+) in none\\), "},
        {"slabs",
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
         "^(?<members>\\d+) members? read: (?<made>\\d+) made in (?<elementsMade>\\d+) new elements?, (?<known>\\d+) "
         "in "
         "the host already, "},
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
         "^(?<members>\\d+) members? read: (?<made>\\d+) made in (?<elementsMade>\\d+) new elements?, (?<known>\\d+) "
         "in "
         "the host already, "},
        {"beams",
         {"beam", "apply"},
         {},
         {"beam", "export"},
         {},
         {15, 17, 47},
         beams,
         beamDifference,
         beamsUnequal,
         {15, 17, 47},
         segmentsOf,
         {"Beam[1].EDOInfo[0].BeamSegmentInfo[0]"},
         inWholeMillimetres,
         "^(?<members>\\d+) beams? read: (?<made_elements>\\d+) elements?, (?<made_chains>\\d+) chains? of "
         "(?<made_segments>\\d+) segments?, (?<made_spans>\\d+) spans? made \\(and (?<reused>\\d+) elements? "
         "reused\\), "},
        {"seats",
         {"beam", "seats", "apply"},
         {},
         {"beam", "seats", "export"},
         {},
         {52, 53, 54, 18},
         seats,
         seatDifference,
         seatsUnequal,
         {52, 53, 54, 18},
         placedSeatsOf,
         {"etIsolatedFD[0].WorldPoly"},
         withNamesOfTheirOwn,
         "^(?<members>\\d+) seats? read, "},
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
         "name\\), (?<placed>\\d+) pieces? placed, "},
    };
    return roads;
}

void PrintTo(const ReplyRoad &road, std::ostream *out) { *out << road.name; }

} // namespace honestytest
