#include "RoadParts.h"

#include <QJsonArray>
#include <QMap>
#include <algorithm>

namespace honestytest {

namespace {

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
        never("TopElev"), // of the element; the placed object gets it, and is compared
        never("BtmElev"),
        when(CarriedKey{"Height", How::Same, kHosts}, ofType({52, 53, 54})),
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

int placedSeatsOf(const QJsonObject &summary)
{
    int sum = 0;
    for (const QJsonValue kind : summary["kinds"].toArray())
        sum += kind["placed"].toInt();
    return sum;
}

/** Footings of names of their own, and seats at the elevations of their elements: what the form carries. */
QJsonObject asCarried(QJsonObject document)
{
    document = withValue(document, {"etIsolatedFD", "1", "EntName"}, "DJ-2").toObject();
    for (const QString &array : kSeatArrays) {
        QJsonArray entries = document[array].toArray();
        for (QJsonValueRef entry : entries) {
            QJsonObject seat = entry.toObject();
            seat["TopElev"] = seat["EDOTopElev"];
            seat["BtmElev"] = seat["EDOBtmElev"];
            entry = seat;
        }
        document[array] = entries;
    }
    return document;
}

} // namespace

std::vector<ReplyRoad> seatRoads()
{
    return {{"seats",
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
             {"etIsolatedFD[0].WorldPoly", "etIsolatedFD[0].EDOTopElev", "etIsolatedFD[0].EDOBtmElev",
              "etIsolatedFD[1].EDOTopElev", "etIsolatedFD[1].EDOBtmElev", "etPileCap[0].EDOTopElev",
              "etPileCap[0].EDOBtmElev", "etPile[0].EDOTopElev", "etPile[1].EDOTopElev"},
             asCarried,
             "^(?<members>\\d+) seats? read, "}};
}

} // namespace honestytest
