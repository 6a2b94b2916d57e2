#include "doorwindow/JsonDoorWin2HBX.h"
#include "support/RatioBench.h"
#include "support/ReplyApply.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/** A reply with that many members: one element for every nine places, spread over the building's walls. */
QByteArray replyText(int members)
{
    QJsonArray array;
    QString name;
    for (int i = 0; i < members; ++i) {
        if (i % 10 == 0) {
            name = QStringLiteral("M%1").arg(i);
            array.append(QJsonObject{{"elementID", i},
                                     {"name", name},
                                     {"nElementType", 4},
                                     {"nSubElementType", 14},
                                     {"nHeight", 2100},
                                     {"nWidth", 900},
                                     {"nHeightFromFloor", 0},
                                     {"floorName", "1"},
                                     {"regionName", "Block"}});
        } else {
            array.append(QJsonObject{{"elementName", name},
                                     {"X", 55000.0 + i % 1000 * 20},
                                     {"Y", -35000 + i / 1000 * 3000},
                                     {"nHeightFromFloor", 0},
                                     {"floorName", "1"},
                                     {"regionName", "Block"}});
        }
    }
    return QJsonDocument(QJsonObject{{"eDoorWin", QJsonObject{{"ElementsAndEdos", array}}}}).toJson();
}

/** What no reader of the reply can avoid: the document, and a look at each value. */
void walk(const bench::ReplyApply &apply)
{
    const QJsonObject openings = apply.object()["eDoorWin"].toObject();
    double sum = 0.0;
    for (const QJsonValue member : openings["ElementsAndEdos"].toArray())
        for (const QJsonValue value : member.toObject())
            sum += value.toDouble();
    bench::keep(sum);
}

} // namespace

int main()
{
    constexpr int kSmall = 1000;
    constexpr int kLarge = 10000;
    constexpr double kLinear = 1.3; // cost per member at the large size to that at the small one

    bench::ReplyApply small(replyText(kSmall), jsonDoorWin2HBX);
    bench::ReplyApply large(replyText(kLarge), jsonDoorWin2HBX);
    bench::RatioTable table("Doors and windows");
    table.row("opening apply / the reply parsed and walked", kLarge, large.work(), [&] { walk(large); });
    table.growth("opening apply, cost per member", kLarge, large.work(), kSmall, small.work(), kLinear);
    return table.print();
}
