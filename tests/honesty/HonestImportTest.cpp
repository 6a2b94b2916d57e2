#include "BuildingWalk.h"
#include "Carried.h"
#include "Cases.h"
#include "CommandRun.h"
#include "Mutations.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <algorithm>

using namespace honestytest;

namespace {

/** Whether a value says what is taken for a member that is not there. */
bool isStartValue(const QJsonValue &value)
{
    return value.isNull() || value == QJsonValue(0) || value == QJsonValue(false) || value == QJsonValue("") ||
           (value.isArray() && value.toArray().isEmpty()) || (value.isObject() && value.toObject().isEmpty());
}

/** Members that an export leaves out where they say what is known without them. */
bool mayBeLeftOut(const QString &key, const QJsonObject &holder)
{
    // The type of a draw object is its element's, half of a width is the start of a distance to the left.
    return key == "type" || key == "subType" || (key == "distanceToLeft" && holder.contains("width")) || key == "width";
}

/** Entries in the order in which they are made, where they tell it. */
QJsonArray inOrder(const QJsonArray &entries)
{
    std::vector<std::pair<int, QJsonValue>> sorted;
    for (const QJsonValue entry : entries)
        sorted.emplace_back(entry.toObject().value("order").toInt(static_cast<int>(sorted.size())), entry);
    std::stable_sort(sorted.begin(), sorted.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QJsonArray array;
    for (const auto &entry : sorted)
        array.append(entry.second);
    return array;
}

/** The first member that was sent and did not arrive; empty for none. */
QString firstLost(const QJsonValue &sent, const QJsonValue &arrived, const QString &place)
{
    if (sent.isObject()) {
        const QJsonObject object = sent.toObject();
        for (const QString &key : object.keys()) {
            const QJsonObject there = arrived.toObject();
            if (key == "order") // a place that is counted anew
                continue;
            if (!there.contains(key) && (isStartValue(object[key]) || mayBeLeftOut(key, object)))
                continue;
            QString lost = firstLost(object[key], there[key], place + '.' + key);
            if (!lost.isEmpty())
                return lost;
        }
        return arrived.isObject() || object.isEmpty() ? QString() : place;
    }
    if (sent.isArray()) {
        if (sent.toArray().size() != arrived.toArray().size())
            return place + " has another length";
        const QJsonArray entries = inOrder(sent.toArray());
        for (int i = 0; i < entries.size(); ++i) {
            QString lost = firstLost(entries.at(i), arrived[i], place + QStringLiteral("[%1]").arg(i));
            if (!lost.isEmpty())
                return lost;
        }
        return {};
    }
    const bool isSame =
        sent == arrived ||
        (sent.isString() && arrived.isString() && isSameGeometry(sent.toString(), arrived.toString())) ||
        sent.toVariant().toString() == arrived.toString(); // a number stands for its text
    return isSame ? QString() : place;
}

class HonestImportTest : public ::testing::TestWithParam<const char *>
{
protected:
    /** What is not as it should be about an import of a building, a line each. */
    static std::string dishonestyOf(const QJsonValue &building)
    {
        writeFile("building.json", building);
        writeFile("house.hbxdb", QByteArray("what stood there"));
        const Ran ran = run({"project", "import", "building.json", "-o", "house.hbxdb"});
        if (ran.exitCode == 2)
            return refusal(ran);
        if (ran.exitCode != 0)
            return ran.shown();
        const Ran exported = run({"project", "export", "house.hbxdb", "-o", "again.json"});
        const QJsonObject again = fileObject("again.json");
        const QString lost = firstLost(building, again, QString());
        std::string lines = lost.isEmpty() ? std::string() : "lost: " + lost.toStdString() + '\n';
        lines += unequal(ran, BuildingWalk(building.toObject()));
        if (exported.json["project"] != ran.json["project"])
            lines += "import and export tell different things\n";
        run({"project", "import", "again.json", "-o", "twice.hbxdb"});
        run({"project", "export", "twice.hbxdb", "-o", "twice.json"});
        if (fileContent("again.json") != fileContent("twice.json"))
            lines += "a second round gives another document\n";
        return lines;
    }

private:
    static std::string refusal(const Ran &ran)
    {
        std::string lines;
        if (fileContent("house.hbxdb") != "what stood there")
            lines += "refused, and the file is another one\n";
        if (ran.error["file"].toString() != "building.json" || ran.error["reason"].toString().isEmpty())
            lines += "refused without file or reason: " + ran.shown();
        return lines;
    }
    static std::string unequal(const Ran &ran, const BuildingWalk &walk)
    {
        const QJsonObject project = ran.json["project"].toObject();
        const QString counts = QStringLiteral("%1 region%2, %3 floor%4, %5 element%6, %7 placed object%8")
                                   .arg(walk.regions)
                                   .arg(walk.regions == 1 ? "" : "s")
                                   .arg(walk.floors.size())
                                   .arg(walk.floors.size() == 1 ? "" : "s")
                                   .arg(walk.elements())
                                   .arg(walk.elements() == 1 ? "" : "s")
                                   .arg(walk.drawObjs())
                                   .arg(walk.drawObjs() == 1 ? "" : "s");
        std::string lines;
        if (project["elements"].toInt() != walk.elements() || project["drawObjects"].toInt() != walk.drawObjs())
            lines += "other counts than those of the document: " + ran.shown();
        if (!ran.text.endsWith(": " + counts))
            lines += "the text says otherwise: " + ran.text.toStdString() + ", not " + counts.toStdString() + '\n';
        return lines;
    }
};

TEST_P(HonestImportTest, buildingArrivesWhole)
{
    EXPECT_EQ(dishonestyOf(sampleBuilding(GetParam())), "");
    EXPECT_EQ(run({"project", "import", "building.json", "-o", "house.hbxdb"}).exitCode, 0);
}

TEST_P(HonestImportTest, whatIsChangedIsRefusedOrArrives)
{
    for (const Mutation &mutation : Mutations(sampleBuilding(GetParam())).sample(casesAsked(), kSeed))
        EXPECT_EQ(dishonestyOf(mutation.document), "") << mutation.what.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Buildings, HonestImportTest, ::testing::ValuesIn(kSampleBuildings),
                         [](const auto &test) { return QString(test.param).remove('-').toStdString(); });

} // namespace
