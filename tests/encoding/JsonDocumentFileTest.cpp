#include "encoding/JsonDocumentFile.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

#include <gmock/gmock.h>

namespace {

constexpr auto kTwoLayers = R"({"c": [
    {"LayerName": "beams", "EdoIDList": [{"EdoID": 11}, {"EdoID": 12}]},
    {"LayerName": "walls", "EdoIDList": [{"EdoID": 21}, {"EdoID": "22"}, {}, {"EdoID": 2.5}, 24]}]})";

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

/** What reached the log while the object lived. */
class LogCatcher
{
public:
    LogCatcher() : m_before(qInstallMessageHandler(&LogCatcher::add)) { s_lines.clear(); }
    ~LogCatcher() { qInstallMessageHandler(m_before); }
    LogCatcher(const LogCatcher &) = delete;
    LogCatcher &operator=(const LogCatcher &) = delete;

    std::vector<std::string> lines() const { return s_lines; }

private:
    static void add(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        s_lines.push_back((type == QtWarningMsg ? "warning: " : "") + text.toStdString());
    }

    static inline std::vector<std::string> s_lines;
    QtMessageHandler m_before;
};

class JsonDocumentFileTest : public testing::Test
{
protected:
    int read(const char *layerName) { return readLayerEdoIds(path, QString::fromUtf8(layerName), message, ids); }
    void expectFailure(const char *reason)
    {
        EXPECT_EQ(read("beams"), -1);
        EXPECT_EQ(message, reason);
        EXPECT_EQ(ids, (QVector<int>{7}));
    }

    QString path = QStringLiteral("a_b_c.json");
    QString message = QStringLiteral("untouched");
    QVector<int> ids = {7};
};

} // namespace

TEST_F(JsonDocumentFileTest, documentIsWrittenIndentedAndReadBack)
{
    const QJsonDocument document(QJsonArray{1, "二"});
    EXPECT_TRUE(saveJsonDocumentToFile(path, document));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("[\n    1,\n    \"二\"\n]\n"));
    QJsonDocument back;
    EXPECT_TRUE(loadJsonDocumentFromFile(path, back));
    EXPECT_EQ(back, document);
}

TEST_F(JsonDocumentFileTest, savingOverALongerFileLeavesNoTail)
{
    writeFile(path, QByteArray(10'000, 'x'));
    EXPECT_TRUE(saveJsonDocumentToFile(path, QJsonDocument(QJsonObject())));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "{\n}\n");
}

TEST_F(JsonDocumentFileTest, savingWhereNoFileCanBeWarnsAndGivesFalse)
{
    const LogCatcher log;
    EXPECT_FALSE(saveJsonDocumentToFile(QStringLiteral("no-such-folder/file.json"), QJsonDocument()));
    EXPECT_THAT(log.lines(), testing::ElementsAre("warning: Couldn't open save file."));
}

TEST_F(JsonDocumentFileTest, nothingElseReachesTheLog)
{
    writeFile(path, "{");
    const LogCatcher log;
    QJsonDocument document;
    loadJsonDocumentFromFile(path, document);
    loadJsonDocumentFromFile(QStringLiteral("no-such-file.json"), document);
    read("beams");
    EXPECT_THAT(log.lines(), testing::IsEmpty());
}

TEST_F(JsonDocumentFileTest, missingAndEmptyFileKeepTheDocument)
{
    const QJsonDocument before(QJsonObject{{"kept", true}});
    QJsonDocument document = before;
    EXPECT_FALSE(loadJsonDocumentFromFile(QStringLiteral("no-such-file.json"), document));
    EXPECT_FALSE(loadJsonDocumentFromFile(QDir::currentPath(), document));
    writeFile(path, "");
    EXPECT_FALSE(loadJsonDocumentFromFile(path, document));
    EXPECT_EQ(document, before);
}

TEST_F(JsonDocumentFileTest, badJsonGivesFalseAndANullDocument)
{
    writeFile(path, "{\"a\": ");
    QJsonDocument document(QJsonObject{{"replaced", true}});
    EXPECT_FALSE(loadJsonDocumentFromFile(path, document));
    EXPECT_TRUE(document.isNull());
}

TEST_F(JsonDocumentFileTest, idsOfTheNamedLayerReplaceTheOnesThatWereThere)
{
    writeFile(path, kTwoLayers);
    EXPECT_EQ(read("beams"), 0);
    EXPECT_EQ(ids, (QVector<int>{11, 12}));
    EXPECT_EQ(message, "untouched");
}

TEST_F(JsonDocumentFileTest, idThatIsNoIntegerIsMinusOne)
{
    writeFile(path, kTwoLayers);
    EXPECT_EQ(read("walls"), 0);
    EXPECT_EQ(ids, (QVector<int>{21, -1, -1, -1, -1}));
}

TEST_F(JsonDocumentFileTest, unknownLayerNameGivesTheIdsOfTheLastLayer)
{
    writeFile(path, kTwoLayers);
    EXPECT_EQ(read("columns"), 0);
    EXPECT_EQ(ids.size(), 5);
    EXPECT_EQ(ids.first(), 21);
}

TEST_F(JsonDocumentFileTest, firstOfTwoLayersOfOneNameCounts)
{
    writeFile(path, R"({"c": [{"LayerName": "beams", "EdoIDList": [{"EdoID": 1}]},
                              {"LayerName": "beams", "EdoIDList": [{"EdoID": 2}]}]})");
    EXPECT_EQ(read("beams"), 0);
    EXPECT_EQ(ids, (QVector<int>{1}));
}

TEST_F(JsonDocumentFileTest, keyIsWhatStandsBehindTheLastUnderscore)
{
    writeFile(path, R"({"a_b_c": [], "b_c": [], "c": [{"LayerName": "beams", "EdoIDList": [{"EdoID": 3}]}]})");
    EXPECT_EQ(read("beams"), 0);
    EXPECT_EQ(ids, (QVector<int>{3}));
}

TEST_F(JsonDocumentFileTest, everyFileEndingIsTakenOutOfTheKey)
{
    path = QStringLiteral("a_b.json.json");
    writeFile(path, R"({"b": [{"LayerName": "beams", "EdoIDList": [{"EdoID": 4}]}]})");
    EXPECT_EQ(read("beams"), 0);
    EXPECT_EQ(ids, (QVector<int>{4}));
}

TEST_F(JsonDocumentFileTest, wholePathIsTheKeyWhereNoUnderscoreIs)
{
    path = QStringLiteral("plain.json");
    writeFile(path, R"({"plain": [{"LayerName": "beams", "EdoIDList": [{"EdoID": 5}]}]})");
    EXPECT_EQ(read("beams"), 0);
    EXPECT_EQ(ids, (QVector<int>{5}));
}

TEST_F(JsonDocumentFileTest, missingLayerFileIsTold)
{
    path = QStringLiteral("no_such_file.json");
    expectFailure("can't find json file!");
}

TEST_F(JsonDocumentFileTest, layerFileThatCannotBeOpenedIsTold)
{
    path = QDir::currentPath();
    expectFailure("can't open file!");
}

TEST_F(JsonDocumentFileTest, emptyLayerFileIsTold)
{
    writeFile(path, "");
    expectFailure("file is empty!");
}

TEST_F(JsonDocumentFileTest, badLayerFileIsToldInTheParsersWords)
{
    writeFile(path, "{\"c\": [");
    QJsonParseError error;
    QJsonDocument::fromJson("{\"c\": [", &error);
    ASSERT_FALSE(error.errorString().isEmpty());
    expectFailure(qPrintable(error.errorString()));
}

TEST_F(JsonDocumentFileTest, layerFileWithoutDataIsTold)
{
    for (const char *text : {"{}", "[]", R"({"c": []})", R"({"c": "x"})", R"({"c": [{"LayerName": "beams"}]})",
                             R"({"c": [{"LayerName": "beams", "EdoIDList": []}]})", R"({"c": [1]})"}) {
        writeFile(path, text);
        expectFailure("no datas");
    }
}
