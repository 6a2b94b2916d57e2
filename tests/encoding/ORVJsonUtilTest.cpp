#include "encoding/ORVJsonUtil.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>

#include <gmock/gmock.h>

namespace {

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString valueAt(const char *json, const QStringList &path, const char *key)
{
    return ORVJsonUtil::parseJsonByPath(QString::fromUtf8(json), path, QString::fromUtf8(key));
}

class ORVJsonUtilTest : public testing::Test
{
protected:
    QString path = QStringLiteral("util.json");
    QJsonObject before{{"kept", true}};
};

} // namespace

TEST_F(ORVJsonUtilTest, objectIsReadFromAFile)
{
    writeFile(path, "{\"name\": \"楼层\", \"count\": 3}");
    QJsonObject object = before;
    EXPECT_TRUE(ORVJsonUtil::loadFromFile(object, path));
    EXPECT_EQ(object, (QJsonObject{{"name", QStringLiteral("楼层")}, {"count", 3}}));
}

TEST_F(ORVJsonUtilTest, missingFileGivesFalseAndKeepsTheObject)
{
    QString missing = QStringLiteral("no-such-file.json");
    QJsonObject object = before;
    EXPECT_FALSE(ORVJsonUtil::loadFromFile(object, missing));
    EXPECT_EQ(object, before);
}

TEST_F(ORVJsonUtilTest, emptyFileGivesFalseAndKeepsTheObject)
{
    writeFile(path, "");
    QJsonObject object = before;
    EXPECT_FALSE(ORVJsonUtil::loadFromFile(object, path));
    EXPECT_EQ(object, before);
}

TEST_F(ORVJsonUtilTest, badJsonGivesFalseAndKeepsTheObject)
{
    for (const char *text : {"{\"a\": 1", "nonsense", "{} {}", "\"text\"", "17"}) {
        writeFile(path, text);
        QJsonObject object = before;
        EXPECT_FALSE(ORVJsonUtil::loadFromFile(object, path)) << text;
        EXPECT_FALSE(ORVJsonUtil::loadFromJsonString(object, QString::fromUtf8(text))) << text;
        EXPECT_EQ(object, before) << text;
    }
}

TEST_F(ORVJsonUtilTest, arrayAtTheTopSucceedsWithAnEmptyObject)
{
    writeFile(path, "[1, 2]");
    QJsonObject object = before;
    EXPECT_TRUE(ORVJsonUtil::loadFromFile(object, path));
    EXPECT_EQ(object, QJsonObject());
    object = before;
    EXPECT_TRUE(ORVJsonUtil::loadFromJsonString(object, QStringLiteral("[1, 2]")));
    EXPECT_EQ(object, QJsonObject());
}

TEST_F(ORVJsonUtilTest, objectIsReadFromAText)
{
    QString text = QStringLiteral("{\"word\": \"基础\"}");
    QJsonObject object = before;
    EXPECT_TRUE(ORVJsonUtil::loadFromJsonString(object, text));
    EXPECT_EQ(object, (QJsonObject{{"word", QStringLiteral("基础")}}));
    EXPECT_FALSE(ORVJsonUtil::loadFromJsonString(object, QString()));
}

TEST_F(ORVJsonUtilTest, objectIsWrittenIndented)
{
    EXPECT_TRUE(ORVJsonUtil::saveToFile(QJsonObject{{"a", 1}}, path));
    EXPECT_EQ(bytesOf(path), "{\n    \"a\": 1\n}\n");
}

TEST_F(ORVJsonUtilTest, savingOverALongerFileLeavesNoTail)
{
    writeFile(path, QByteArray(10'000, 'x'));
    EXPECT_TRUE(ORVJsonUtil::saveToFile(QJsonObject{{"a", 1}}, path));
    EXPECT_EQ(bytesOf(path), "{\n    \"a\": 1\n}\n");
}

TEST_F(ORVJsonUtilTest, savingWhereNoFileCanBeGivesFalse)
{
    EXPECT_FALSE(ORVJsonUtil::saveToFile(before, QStringLiteral("no-such-folder/file.json")));
    EXPECT_FALSE(ORVJsonUtil::saveToFile(before, QDir::currentPath()));
    QJsonObject object = before;
    EXPECT_FALSE(ORVJsonUtil::loadFromFile(object, QDir::currentPath()));
}

TEST_F(ORVJsonUtilTest, pathLeadsToTheObjectThatHoldsTheKey)
{
    EXPECT_EQ(valueAt(R"({"a": {"b": {"word": "found"}}})", {"a", "b"}, "word"), "found");
}

TEST_F(ORVJsonUtilTest, emptyPathLooksTheKeyUpAtTheTop)
{
    EXPECT_EQ(valueAt(R"({"word": "top", "a": {"word": "below"}})", {}, "word"), "top");
}

TEST_F(ORVJsonUtilTest, brokenPathLooksTheKeyUpWhereItBreaks)
{
    constexpr auto json = R"({"word": "top", "a": {"word": "below", "b": {"word": "deep"}}})";
    EXPECT_EQ(valueAt(json, {"x"}, "word"), "top");
    EXPECT_EQ(valueAt(json, {"a", "x", "b"}, "word"), "below");
    EXPECT_EQ(valueAt(json, {"x", "a", "b"}, "word"), "top");
}

TEST_F(ORVJsonUtilTest, pathThroughAValueThatIsNoObjectEndsInAnEmptyOne)
{
    EXPECT_EQ(valueAt(R"({"word": "top", "a": "text"})", {"a"}, "word"), "");
    EXPECT_EQ(valueAt(R"({"word": "top", "a": null})", {"a"}, "word"), "");
    EXPECT_EQ(valueAt(R"({"word": "top", "a": [1]})", {"a", "b"}, "word"), "");
}

TEST_F(ORVJsonUtilTest, valueThatIsNoTextGivesTheEmptyText)
{
    EXPECT_EQ(valueAt(R"({"a": 17})", {}, "a"), "");
    EXPECT_EQ(valueAt(R"({"a": {}})", {}, "a"), "");
    EXPECT_EQ(valueAt(R"({"a": 17})", {}, "b"), "");
}

TEST_F(ORVJsonUtilTest, badJsonGivesTheEmptyTextOnAPath)
{
    EXPECT_EQ(valueAt("", {}, "a"), "");
    EXPECT_EQ(valueAt(R"({"a": "b")", {}, "a"), "");
    EXPECT_EQ(valueAt(R"(["a"])", {}, "a"), "");
}
