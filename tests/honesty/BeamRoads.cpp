#include "RoadParts.h"

#include <QJsonArray>
#include <QMultiMap>
#include <algorithm>

namespace honestytest {

namespace {

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

int segmentsOf(const QJsonObject &summary) { return summary["made"]["segments"].toInt(); }

QJsonObject inWholeMillimetres(const QJsonObject document)
{
    return withValue(document, {"Beam", "1", "EDOInfo", "0", "BeamSegmentInfo", "0", "LineWidth"}, 250).toObject();
}

} // namespace

std::vector<ReplyRoad> beamRoads()
{
    return {{"beams",
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
             "reused\\), "}};
}

} // namespace honestytest
