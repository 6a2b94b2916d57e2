#pragma once

#include "CliFixture.h"
#include "SlabReplies.h"

using slabtest::bar;
using slabtest::board;
using slabtest::hole;
using slabtest::identity;
using slabtest::negativeBar;
using slabtest::raft;
using slabtest::rectangle;

/** house.hbxdb: one floor "F" from 0 to 3 m, with one slab of 9 m by 9 m, 120 mm thick, at its top. */
class SlabCliFixture : public CliFixture
{
protected:
    void SetUp() override
    {
        write("house.json", QByteArray(R"~({"format": "hbx-project", "version": 1, "name": "Small house",
            "regions": [{"name": "House", "floors": [{"name": "F", "code": "1", "bottomElev": 0, "height": 3,
            "elements": [{"name": "B-h120", "type": 19, "properties": {"Thickness": 120, "TopElev": "层顶标高"}, "drawObjects": [
            {"shape": {"kind": "face", "outline": "POLYGON((0 0, 9000 0, 9000 9000, 0 9000, 0 0))"}}]}]}]}]})~"));
        ASSERT_EQ(run({"project", "import", "house.json", "-o", "house.hbxdb"}).exitCode, 0);
    }

    Result apply(const QJsonObject &reply, const QStringList &flags = {}) const
    {
        write("reply.json", reply);
        return run(QStringList{"slab", "apply", "house.hbxdb", "--floor", "F", "reply.json", "--json"} + flags);
    }
    QJsonValue exported(const QStringList &flags = {}) const
    {
        const Result result =
            run(QStringList{"slab", "export", "house.hbxdb", "--floor", "F", "-o", "payload.json"} + flags);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        return readJson("payload.json").object();
    }
    static QJsonValue arrayOf(const QJsonValue &summary, const QString &key)
    {
        for (QJsonValue array : summary["arrays"].toArray())
            if (array["array"] == key)
                return array;
        return {};
    }
    /** "place: reason" of all that was left out. */
    static std::string leftOut(const Result &result)
    {
        QStringList lines;
        for (const QJsonValue member : result.json()["leftOut"].toArray())
            lines.append(member["place"].toString() + ": " + member["reason"].toString());
        return lines.join('\n').toStdString();
    }
};
