#include "doorwindow/JsonDoorWin2HBX.h"
#include "suite/ConversionBounds.h"
#include "suite/Families.h"
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

bench::Sides apply(const bench::Load &load)
{
    const auto reply =
        bench::ReplyApply::make(replyText(static_cast<int>(load.size)), &jsonDoorWin2HBX, load.documents);
    return {bench::ReplyApply::work(reply), [reply] { reply->parseEach(); }, static_cast<double>(load.items()),
            static_cast<double>(reply->bytes())};
}

} // namespace

bench::Roads bench::openingApplyRoads()
{
    return {{"openings into the host", "fromJson and a walk", kSizes, kFlatConversion, &apply, Time::Cpu, Small::Many}};
}
