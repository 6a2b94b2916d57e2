#pragma once

#include "CliFixture.h"

/** house.hbxdb: one floor "F" from 0 to 3 m, with one slab of 9 m by 9 m, 120 mm thick, at its top; and members of replies
 *  for it. */
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

    static QString identity(int number)
    {
        return QStringLiteral("{00000000-0000-4000-8000-%1}").arg(number, 12, 10, QLatin1Char('0'));
    }
    static QString rectangle(int x, int y, int width, int height)
    {
        return QStringLiteral("POLYGON((%1 %2, %3 %2, %3 %4, %1 %4, %1 %2))")
            .arg(x)
            .arg(y)
            .arg(x + width)
            .arg(y + height);
    }
    static QJsonObject board(int number = 1)
    {
        return {{"id", -1},         {"recongnizedID", identity(number)},
                {"name", ""},       {"surface", rectangle(10000 * number, 0, 4000, 3000)},
                {"thinkness", 100}, {"elev", 2.95}};
    }
    static QJsonObject raft()
    {
        return {{"id", -1},         {"recongnizedID", identity(50)},
                {"name", "FB-1"},   {"surface", rectangle(0, 20000, 5000, 5000)},
                {"thinkness", 500}, {"topElev", 0.5},
                {"bottomElev", 0}};
    }
    static QJsonObject hole(int x = 1000)
    {
        return {{"id", -1}, {"recongnizedID", identity(60)}, {"name", ""}, {"surface", rectangle(x, 1000, 800, 600)}};
    }
    static QJsonObject bar()
    {
        return {{"id", -1},
                {"recongnizedID", identity(70)},
                {"name", ""},
                {"surface", rectangle(10000, 0, 4000, 3000)},
                {"direction_x", 1},
                {"direction_y", 0},
                {"bar_info", "c10@150"},
                {"forced_type", 1}};
    }
    static QJsonObject negativeBar(int number = 80)
    {
        return {{"id", -1},
                {"recongnizedID", identity(number)},
                {"name", ""},
                {"line", "LINESTRING(4000 0, 4000 9000)"},
                {"bar_info", "C8@200"},
                {"label_position", 2},
                {"left_strech_length", 900},
                {"right_strech_length", 900}};
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
