#include "Cases.h"
#include "CommandRun.h"
#include "Mutations.h"
#include "ReplyRoads.h"

#include <QFile>
#include <QJsonArray>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace honestytest;

namespace {

constexpr int kMostLines = 20; // of what was left out, in a summary for people

/** The building without elements of these types. */
QJsonObject without(QJsonObject building, const std::vector<int> &types)
{
    QJsonArray regions;
    for (const QJsonValue regionValue : building["regions"].toArray()) {
        QJsonObject region = regionValue.toObject();
        QJsonArray floors;
        for (const QJsonValue floorValue : region["floors"].toArray()) {
            QJsonObject floor = floorValue.toObject();
            QJsonArray elements;
            for (const QJsonValue element : floor["elements"].toArray())
                if (std::find(types.begin(), types.end(), element["type"].toInt()) == types.end())
                    elements.append(element);
            floor["elements"] = elements;
            floors.append(floor);
        }
        region["floors"] = floors;
        regions.append(region);
    }
    building["regions"] = regions;
    return building;
}

class HonestApplyTest : public ::testing::TestWithParam<ReplyRoad>
{
protected:
    void SetUp() override
    {
        const QJsonObject building = fileObject(QStringLiteral(ORVCAD_TEST_DATA "/buildings/made-building.json"));
        import(building, "whole");
        import(without(building, GetParam().types), "bare");
        m_given = given("whole.hbxdb");
        m_document = GetParam().tidied(m_given);
        ASSERT_FALSE(GetParam().members(m_document).empty());
        m_bare = fileContent("bare.hbxdb");
        m_others = placedIn(fileObject("bare.json"));
        ASSERT_TRUE(GetParam().members(given("bare.hbxdb")).empty());
    }

    /** What the sample building gives, and what of it arrives whole. */
    QJsonObject givenDocument() const { return m_given; }
    QJsonObject document() const { return m_document; }

    /** Takes a document into the bare building; what is not as it should be, a line each, empty when all is. */
    std::string dishonestyOf(const QJsonValue &document)
    {
        writeFile("house.hbxdb", m_bare);
        writeFile("reply.json", document);
        const Ran ran = run(GetParam().apply + QStringList{"house.hbxdb", "reply.json"} + GetParam().applyFlags);
        const bool isChanged = fileContent("house.hbxdb") != m_bare;
        ++m_exits[ran.exitCode];
        m_told.clear();
        for (const QJsonValue entry : ran.json["leftOut"].toArray())
            m_told.append(entry["place"].toString());
        if (ran.exitCode == 2)
            return refusal(ran, isChanged);
        if (ran.exitCode != 0 && ran.exitCode != 3)
            return ran.shown();
        return done(ran, document.toObject());
    }

    QMap<int, int> m_exits; // how often
    QStringList m_told;     // places of what the last one left out

private:
    static void import(const QJsonObject &building, const QString &name)
    {
        writeFile(name + ".json", building);
        const Ran ran = run({"project", "import", name + ".json", "-o", name + ".hbxdb"});
        ASSERT_EQ(ran.exitCode, 0) << ran.shown();
    }
    static QJsonObject given(const QString &project)
    {
        const Ran ran = run(GetParam().give + QStringList{project, "-o", "given.json"} + GetParam().giveFlags);
        EXPECT_EQ(ran.exitCode, 0) << ran.shown();
        return fileObject("given.json");
    }

    static std::string refusal(const Ran &ran, bool isChanged)
    {
        std::string lines;
        if (isChanged)
            lines += "refused, and the project is another one\n";
        if (ran.error["file"].toString() != "reply.json" || ran.error["reason"].toString().isEmpty())
            lines += "refused without file or reason: " + ran.shown();
        return lines;
    }

    std::string done(const Ran &ran, const QJsonObject &document) const
    {
        const Members sent = GetParam().members(document);
        const QJsonObject after = given("house.hbxdb");
        const Members arrived = GetParam().members(after);
        std::string lines = GetParam().unequal(ran.json, sent, arrived) + unequalTexts(ran);
        const QJsonArray leftOut = ran.json["leftOut"].toArray();
        if ((ran.exitCode == 3) == leftOut.isEmpty())
            lines +=
                "exit code " + std::to_string(ran.exitCode) + " with " + std::to_string(leftOut.size()) + " left out\n";
        lines += withoutPartner(untold(sent, arrived, leftOut), arrived, GetParam().difference);
        const Ran saved = run({"project", "export", "house.hbxdb", "-o", "after.json"});
        const Ran again = run({"project", "import", "after.json", "-o", "again.hbxdb"});
        if (saved.exitCode != 0 || again.exitCode != 0)
            lines += "what was saved cannot be imported again: " + again.shown();
        const int placed = placedIn(fileObject("after.json")) - m_others;
        if (placed != GetParam().placed(ran.json))
            lines += "the building has " + std::to_string(placed) + " more, and the summary tells of " +
                     std::to_string(GetParam().placed(ran.json)) + '\n';
        return lines.empty() ? lines : lines + ran.text.toStdString() + '\n';
    }

    /** Draw objects of the road's types. */
    static int placedIn(const QJsonObject &building)
    {
        int placed = 0;
        for (const QJsonValue region : building["regions"].toArray())
            for (const QJsonValue floor : region["floors"].toArray())
                for (const QJsonValue element : floor["elements"].toArray())
                    for (const int type : GetParam().placedTypes)
                        placed += element["type"] == type ? element["drawObjects"].toArray().size() : 0;
        return placed;
    }

    /** The members of which nothing was said: they have to arrive whole. Of bars that lie in no slab and of walls
     *  without pieces nothing is exported. */
    static Members untold(const Members &sent, const Members &arrived, const QJsonArray &leftOut)
    {
        Members members;
        for (const Member &member : sent)
            if (member.value["pieces"] != QJsonArray() &&
                (!member.kind.contains("bars") || countOf(arrived, member.kind) > 0) &&
                std::none_of(leftOut.begin(), leftOut.end(),
                             [&](const QJsonValue &entry) { return isAbout(entry, member.place); }))
                members.push_back(member);
        return members;
    }
    static bool isAbout(const QJsonValue &entry, const QString &member)
    {
        const QString place = entry["place"].toString();
        const QString pieces = QString(member).replace(".key_", ".value_"); // of a wall
        const auto isBelow = [&place](const QString &start) {
            return place == start || place.startsWith(start + '.') || place.startsWith(start + '[');
        };
        return isBelow(member) || isBelow(pieces);
    }

    static int numberAt(const QJsonObject &json, const QString &path)
    {
        QJsonValue value = json;
        for (const QString &key : path.split('_'))
            value = value[key];
        return value.toInt(-1);
    }
    /** Where the summary for people says something else than the one for machines. */
    static std::string unequalTexts(const Ran &ran)
    {
        const QStringList lines = ran.text.split('\n');
        const QRegularExpression headline(QString(GetParam().headline) +
                                          "(?<whole>\\d+) left out(?:, and (?<parts>\\d+) parts? of the rest)?$");
        const auto match = headline.match(lines.first());
        if (!match.hasMatch())
            return "the first line of the summary is not understood: " + lines.first().toStdString() + '\n';
        int whole = 0;
        for (const QJsonValue entry : ran.json["leftOut"].toArray())
            whole += entry["whole"].toBool() ? 1 : 0;
        const int all = ran.json["leftOut"].toArray().size();
        std::string unequal;
        for (const QString &group : headline.namedCaptureGroups()) {
            const int expected = group == "whole" ? whole : group == "parts" ? all - whole : numberAt(ran.json, group);
            if (!group.isEmpty() && match.captured(group).toInt() != expected)
                unequal += group.toStdString() + ": the text says otherwise than the object\n";
        }
        const int told = lines.filter(QRegularExpression("^  left out: ")).size();
        const int more = lines.filter(QRegularExpression("^  … and \\d+ more; --json lists all$")).size();
        if (told != std::min(all, kMostLines) || (more > 0) != (all > kMostLines))
            unequal += "the text lists " + std::to_string(told) + " of " + std::to_string(all) + " left out\n";
        return unequal;
    }

    QJsonObject m_given;
    QJsonObject m_document;
    int m_others = 0; // draw objects of the bare building that are of the road's types
    QByteArray m_bare;
};

TEST_P(HonestApplyTest, whatABuildingGivesArrivesWhole)
{
    EXPECT_EQ(dishonestyOf(document()), "");
    EXPECT_EQ(m_exits.value(0), 1);
}

TEST_P(HonestApplyTest, whatDoesNotArriveIsTold)
{
    EXPECT_EQ(dishonestyOf(givenDocument()), "");
    EXPECT_EQ(m_told.join('\n').toStdString(), GetParam().told.join('\n').toStdString());
    EXPECT_EQ(m_exits.value(3), GetParam().told.isEmpty() ? 0 : 1);
}

TEST_P(HonestApplyTest, whatIsChangedIsToldOrArrives)
{
    const Mutations mutations(document());
    for (const Mutation &mutation : mutations.sample(casesAsked(), kSeed))
        EXPECT_EQ(dishonestyOf(mutation.document), "") << mutation.what.toStdString();
    EXPECT_GT(m_exits.value(0), 0);
    EXPECT_GT(m_exits.value(2) + m_exits.value(3), 0);
    for (auto exit = m_exits.cbegin(); exit != m_exits.cend(); ++exit)
        RecordProperty("exit" + std::to_string(exit.key()), exit.value());
    std::cout << "mutations " << mutations.count();
    for (auto exit = m_exits.cbegin(); exit != m_exits.cend(); ++exit)
        std::cout << ", exit code " << exit.key() << ": " << exit.value();
    std::cout << std::endl;
}

INSTANTIATE_TEST_SUITE_P(Roads, HonestApplyTest, ::testing::ValuesIn(replyRoads()),
                         [](const auto &test) { return std::string(test.param.name); });

} // namespace
