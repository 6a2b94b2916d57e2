#include "CliFixture.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <string>

namespace {

/** An example, the verb that takes it, and the answers to its damaged copies. */
struct Example
{
    struct Answer
    {
        int exitCode;
        const char *place;  ///< of the refusal or of the first finding; empty for the document itself
        const char *reason; ///< start of it
    };
    const char *name;
    QStringList verb;
    Answer otherTypes;      ///< each text a number, each number a text
    Answer keysInOtherCase; ///< all keys
    Answer innerKeysInOtherCase;
};

using Change = std::function<QJsonValue(const QJsonValue &)>;

QJsonValue withLeaves(const QJsonValue &value, const Change &change)
{
    if (value.isArray()) {
        QJsonArray array;
        for (const QJsonValue entry : value.toArray())
            array.append(withLeaves(entry, change));
        return array;
    }
    if (!value.isObject())
        return change(value);
    QJsonObject object = value.toObject();
    for (const QString &key : object.keys())
        object[key] = withLeaves(object[key], change);
    return object;
}

QJsonValue withUpperKeys(const QJsonValue &value, int levelsKept)
{
    if (value.isArray()) {
        QJsonArray array;
        for (const QJsonValue entry : value.toArray())
            array.append(withUpperKeys(entry, levelsKept));
        return array;
    }
    if (!value.isObject())
        return value;
    const QJsonObject object = value.toObject();
    QJsonObject upper;
    for (const QString &key : object.keys())
        upper[levelsKept > 0 ? key : key.toUpper()] = withUpperKeys(object[key], levelsKept - 1);
    return upper;
}

QJsonValue otherType(const QJsonValue &leaf) { return leaf.isString() ? QJsonValue(5) : QJsonValue("five"); }

class DamagedExamplesTest : public CliFixture, public ::testing::WithParamInterface<Example>
{
protected:
    QByteArray whole() const { return clitest::fileContent(QStringLiteral(ORVCAD_EXAMPLES "/") + GetParam().name); }
    /** Runs the verb on the copy and holds what it answers to what is expected. */
    void expectAnswer(const QJsonValue &copy, const Example::Answer &expected) const
    {
        write("copy.json", copy.toObject());
        const Result result = run(GetParam().verb + QStringList{"copy.json", "--json"});
        EXPECT_EQ(result.exitCode, expected.exitCode) << result.out.toStdString() << result.err.toStdString();
        const QJsonObject fault = expected.exitCode == 2 ? result.error() : firstFault(result.json());
        EXPECT_EQ(fault["place"].toString().toStdString(), expected.place);
        EXPECT_EQ(fault["reason"].toString().left(static_cast<int>(qstrlen(expected.reason))).toStdString(),
                  expected.reason);
    }
    QJsonValue document() const { return QJsonDocument::fromJson(whole()).object(); }

private:
    static QJsonObject firstFault(const QJsonObject &summary)
    {
        return summary[QLatin1String(summary.contains("findings") ? "findings" : "notKept")].toArray()[0].toObject();
    }
};

TEST_P(DamagedExamplesTest, truncatedCopyIsRefusedWithItsPlace)
{
    const QByteArray bytes = whole().trimmed();
    for (int part = 1; part <= 6; ++part) {
        write("copy.json", bytes.left(bytes.size() * part / 7));
        const QJsonObject error = refusal(GetParam().verb + QStringList{"copy.json"}, "copy.json");
        EXPECT_TRUE(error["place"].toString().startsWith("line ")) << part;
    }
    write("copy.json", QByteArray());
    EXPECT_EQ(refusal(GetParam().verb + QStringList{"copy.json"}, "copy.json")["reason"], "the file is empty");
}

TEST_P(DamagedExamplesTest, valuesOfOtherTypesAreAnswered)
{
    expectAnswer(withLeaves(document(), otherType), GetParam().otherTypes);
}

TEST_P(DamagedExamplesTest, keysInAnotherCaseAreAnswered)
{
    expectAnswer(withUpperKeys(document(), 0), GetParam().keysInOtherCase);
}

TEST_P(DamagedExamplesTest, innerKeysInAnotherCaseAreAnswered)
{
    expectAnswer(withUpperKeys(document(), 1), GetParam().innerKeysInOtherCase);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, DamagedExamplesTest,
    ::testing::Values(Example{"precast-hall.column-input.json",
                              {"column", "check"},
                              {3, "eType", "is not a whole number of 32 bits"},
                              {2, "", "no column record: it has none of the keys of one"},
                              {3, "columnOptions.AZMARK", "is no key of this record, and not read: AZMark is one"}},
                      Example{"precast-hall.column-results.json",
                              {"column", "check"},
                              {3, "drawing", "is not text"},
                              {2, "", "no column record: it has none of the keys of one"},
                              {3, "resultData[0].BARINFO", "is no key of this record, and not read: barInfo is one"}},
                      Example{"precast-hall.drawing-set.json",
                              {"drawings", "show"},
                              {2, "splitDrawing.savePath", "is no text"},
                              {2, "", "no drawing-set file: none of its stages is there"},
                              {2, "splitDrawing.savePath", "is missing"}},
                      Example{"masonry-block.floor-sdc.json",
                              {"drawings", "floors"},
                              {2, "FloorSDCData[0].ID", "is no whole number"},
                              {2, "", "no floor exchange: FloorSDCData is missing"},
                              {2, "FloorSDCData[0].Region", "is missing"}}),
    [](const auto &test) {
        std::string name = test.param.name;
        name.erase(std::remove_if(name.begin(), name.end(), [](char one) { return !std::isalnum(one); }), name.end());
        return name;
    });

} // namespace
