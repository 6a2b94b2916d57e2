#include "IdentifyInputModel/Wall/JsonWall2HBX.h"
#include "platform/host/HBXCheckError.h"
#include "platform/host/IHBXCheck.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXModel.h"
#include "support/RatioBench.h"
#include "support/ReplyApply.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
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
    std::vector<std::pair<QString, QJsonValue>> members;
    for (int first = 0; first < pieces; first += shares.piecesOfElement) {
        const QString number = QString::number(first / shares.piecesOfElement);
        QJsonArray array;
        for (int i = first; i < std::min(pieces, first + shares.piecesOfElement); ++i)
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

bench::ReplyApply applyOf(int pieces, const Shares &shares) { return {replyText(pieces, shares), jsonBrickWall2HBX}; }

/** What the command asks of each object that was made. */
bench::Work checking(bench::ReplyApply &apply)
{
    const auto make = [&apply] {
        apply.prepare();
        apply.run();
    };
    const auto check = [&apply] {
        IHBXModel &model = *apply.service()->model();
        HBXCheckError error;
        std::map<qint64, QString> collisions;
        for (int i = 0; i < model.drawObjects()->count(); ++i)
            bench::keep(model.checker()->checkDrawObj(model.drawObjects()->at(i), error, collisions));
    };
    return {make, check};
}

/** What no reader of the reply can avoid: the document, and a look at each value. */
void walk(const bench::ReplyApply &apply)
{
    const QJsonObject walls = apply.object()["eBrickWall"].toObject();
    int length = 0;
    for (const QJsonValue member : walls["ElementsAndEdos"].toObject()["BrickWallIdentifyData"].toObject())
        for (const QJsonValue piece : member.toArray())
            for (const QJsonValue value : piece.toObject())
                length += value.toString().size();
    bench::keep(length);
}

} // namespace

int main()
{
    constexpr int kSmall = 1000;
    constexpr int kLarge = 10000;
    constexpr double kLinear = 1.3; // cost per piece at the large size to that at the small one

    bench::RatioTable table("Walls");
    const struct
    {
        const char *name;
        Shares shares;
    } replies[] = {{"one element", {kLarge, false}},
                   {"ten pieces each", {10, false}},
                   {"a piece each", {1, false}},
                   {"a piece each, one name for all", {1, true}}};
    for (const auto &reply : replies) {
        bench::ReplyApply small = applyOf(kSmall, reply.shares);
        bench::ReplyApply large = applyOf(kLarge, reply.shares);
        const std::string name = reply.name;
        table.row(name + " / reply parsed and walked", kLarge, large.work(), [&] { walk(large); });
        table.growth(name + ", cost per piece", kLarge, large.work(), kSmall, small.work(), kLinear);
    }
    bench::ReplyApply small = applyOf(kSmall, {1, false});
    bench::ReplyApply large = applyOf(kLarge, {1, false});
    table.growth("check of all, cost per piece", kLarge, checking(large), kSmall, checking(small), kLinear);
    return table.print();
}
