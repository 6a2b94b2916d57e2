#include "IdentifyInputModel/Wall/JsonWall2HBX.h"
#include "platform/host/HBXCheckError.h"
#include "platform/host/IHBXCheck.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXModel.h"
#include "suite/ConversionBounds.h"
#include "suite/Families.h"
#include "support/ReplyApply.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <limits>
#include <map>
#include <vector>

namespace {

QJsonObject elementOf(int number, const QString &name)
{
    return {{"edoId", QString::number(number)},
            {"entName", name},
            {"elementType", "1003"},
            {"elementSubType", "316"},
            {"material", "3"},
            {"width", "200"},
            {"floorCode", "1"},
            {"region", "Block"}};
}

/** Walls spread over a floor, each where no other one is. */
QJsonObject pieceOf(int number)
{
    const int x = number % 100 * 6000;
    const int y = number / 100 * 3000;
    return {{"sWorldLine", QStringLiteral("%1,%2,%3,%2").arg(x).arg(y).arg(x + 5000)},
            {"sPfnStartPtTopElev", "2.8"},
            {"sPfnStartPtBottomElev", "0"},
            {"sPfnEndPtTopElev", "2.8"},
            {"sPfnEndPtBottomElev", "0"},
            {"sPolys", QStringLiteral("%1,%2;%3,%2;%3,%4;%1,%4;").arg(x).arg(y - 100).arg(x + 5000).arg(y + 100)}};
}

/** How the pieces of a reply are shared out. */
struct Shares
{
    int piecesOfElement;
    bool oneName; ///< all elements are called the same, so that the host has to find another name for each
};

/** Members are put in in the order of their keys: an object of many takes long otherwise. */
QByteArray replyText(int pieces, const Shares &shares)
{
    const int piecesOfElement = std::min(shares.piecesOfElement, pieces);
    std::vector<std::pair<QString, QJsonValue>> members;
    for (int first = 0; first < pieces; first += piecesOfElement) {
        const QString number = QString::number(first / piecesOfElement);
        QJsonArray array;
        for (int i = first; i < std::min(pieces, first + piecesOfElement); ++i)
            array.append(pieceOf(i));
        members.emplace_back("key_" + number, elementOf(first, shares.oneName ? QString("Q") : "Q" + number));
        members.emplace_back("value_" + number, array);
    }
    std::sort(members.begin(), members.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QJsonObject map;
    for (const auto &[key, value] : members)
        map.insert(key, value);
    const QJsonObject document{{"BrickWallIdentifyData", map}};
    return QJsonDocument(QJsonObject{{"eBrickWall", QJsonObject{{"ElementsAndEdos", document}}}}).toJson();
}

bench::Sides apply(const bench::Load &load, const Shares &shares)
{
    const auto reply =
        bench::ReplyApply::make(replyText(static_cast<int>(load.size), shares), &jsonBrickWall2HBX, load.documents);
    return {bench::ReplyApply::work(reply), [reply] { reply->parseEach(); }, static_cast<double>(load.items()),
            static_cast<double>(reply->bytes())};
}

/** What the command asks of each object that was made. */
void checkAll(IHBXModel &model)
{
    HBXCheckError error;
    std::map<qint64, QString> collisions;
    for (int i = 0; i < model.drawObjects()->count(); ++i)
        bench::keep(model.checker()->checkDrawObj(model.drawObjects()->at(i), error, collisions));
}

bench::Sides check(const bench::Load &load)
{
    const auto reply =
        bench::ReplyApply::make(replyText(static_cast<int>(load.size), {1, false}), &jsonBrickWall2HBX, load.documents);
    const auto make = [reply] {
        reply->prepare();
        reply->run();
    };
    const auto run = [reply] {
        for (const auto &project : reply->projects())
            checkAll(*project->service()->model());
    };
    return {bench::Work(make, run), {}, static_cast<double>(load.items())};
}

} // namespace

bench::Roads bench::wallApplyRoads()
{
    constexpr int kAll = std::numeric_limits<int>::max();
    const struct
    {
        const char *name;
        Shares shares;
    } replies[] = {{"walls of one element into the host", {kAll, false}},
                   {"walls into the host, ten of an element", {10, false}},
                   {"walls into the host, each of its own", {1, false}},
                   {"walls into the host, each of its own, one name", {1, true}}};
    Roads roads;
    for (const auto &reply : replies) {
        const auto make = [shares = reply.shares](const Load &load) { return apply(load, shares); };
        roads.push_back({reply.name, "fromJson and a walk", kSizes, kFlatConversion, make, Time::Cpu, Small::Many});
    }
    roads.push_back({"check of each wall", "", kSizes, kFlatConversion, &check, Time::Cpu, Small::Many});
    return roads;
}
