#include "ModelSerialization/SlabPersistenceFixture.h"

#include <cmath>
#include <limits>

namespace {

class SlabBadDocumentTest : public SlabPersistenceFixture
{};

TEST_F(SlabBadDocumentTest, missingArraysAreEmpty)
{
    EXPECT_TRUE(Service::json2model({}, &model, kAll));
    EXPECT_TRUE(model.objects().empty());
}

TEST_F(SlabBadDocumentTest, mistypedArraysAreEmpty)
{
    const QJsonObject kinds = sample();
    for (const QJsonValue &wrong : {QJsonValue(), QJsonValue(7), QJsonValue("boards"), QJsonValue(true),
                                    QJsonValue(QJsonObject{{"0", QJsonObject{}}})}) {
        QJsonObject document;
        for (const QString &array : kinds.keys())
            document.insert(array, wrong);
        EXPECT_TRUE(Service::json2model(document, &model, kAll));
    }
    EXPECT_TRUE(model.objects().empty());
}

TEST_F(SlabBadDocumentTest, mistypedMembersAreElementsWithoutValues)
{
    QJsonObject document;
    for (const QString &array : sample().keys())
        document.insert(array, QJsonArray{QJsonValue(), 5, "text", true, QJsonArray{1, 2}});
    EXPECT_TRUE(Service::json2model(document, &model, kAll));
    EXPECT_EQ(model.objects().size(), 13U * 5U);
    for (const Model::Board *board : model.boards()) {
        EXPECT_EQ(board->elementId, 0);
        EXPECT_EQ(board->surface, nullptr);
    }
}

TEST_F(SlabBadDocumentTest, everyValueMayHaveAnyType)
{
    const QJsonObject good = sample();
    for (const QJsonValue &wrong : {QJsonValue(), QJsonValue(1e300), QJsonValue(-1.5), QJsonValue("x;y$z#"),
                                    QJsonValue(true), QJsonValue(QJsonArray{1}), QJsonValue(QJsonObject{{"a", 1}})}) {
        QJsonObject document;
        for (const QString &array : good.keys()) {
            QJsonObject element = good[array].toArray()[0].toObject();
            for (const QString &key : element.keys())
                element.insert(key, wrong);
            document.insert(array, QJsonArray{element});
        }
        Model target;
        EXPECT_TRUE(Service::json2model(document, &target, kAll));
        EXPECT_EQ(target.objects().size(), 13U);
        EXPECT_EQ(Service::model2json(&target, Service::Everything).size(), 13);
    }
}

TEST_F(SlabBadDocumentTest, brokenGeometryReadsAsNull)
{
    for (const char *text : {"", "POLYGON", "POLYGON((0 0, 1 0", "POLYGON((nan 0, 1 0, 1 1, nan 0))",
                             "POLYGON((inf 0, 1 0, 1 1, inf 0))", "POLYGON((1e999 0, 1 0, 1 1, 1e999 0))",
                             "LINESTRING(0 0, 1 1)", "MULTIPOLYGON(((0 0, 1 0, 1 1, 0 0)))", "\xE5\xA2\x99"}) {
        readObject("boards", {{"surface", QString::fromUtf8(text)}});
        EXPECT_EQ(model.boards().back()->surface, nullptr) << text;
    }
    for (const char *text : {"", "LINESTRING(0 0)", "LINESTRING(0 0, nan 1)", "LINESTRING(0 0, 1 1, 2 2)",
                             "POLYGON((0 0, 1 0, 1 1, 0 0))", "CIRCULARSTRING(0 0, 1 1)"}) {
        readObject("beams", {{"line", text}});
        EXPECT_EQ(model.beams().back()->line, nullptr) << text;
    }
}

TEST_F(SlabBadDocumentTest, numbersInTextAreNoNumbers)
{
    readObject("boards", {{"thinkness", "NaN"}, {"elev", "2.95"}, {"id", "12"}});
    readObject("negative_forced_bars", {{"left_hook_length", "inf"}, {"row_number", "1e3"}});
    EXPECT_EQ(model.boards().at(0)->thickness, 0);
    EXPECT_EQ(model.boards().at(0)->elev, 0);
    EXPECT_EQ(model.boards().at(0)->elementId, 0);
    EXPECT_EQ(model.negativeForcedBars().at(0)->leftHookLength, 0);
    EXPECT_EQ(model.negativeForcedBars().at(0)->rowNumber, 0);
}

TEST_F(SlabBadDocumentTest, numbersThatAreNotFiniteBecomeNullInTextAndReadAsZero)
{
    add<Model::Board>()->elev = std::numeric_limits<double>::quiet_NaN();
    add<Model::Raft>()->thickness = -std::numeric_limits<double>::infinity();
    const QByteArray text = QJsonDocument(written()).toJson(QJsonDocument::Compact);
    EXPECT_TRUE(text.contains("\"elev\":null"));
    EXPECT_TRUE(text.contains("\"thinkness\":null"));
    Model target;
    ASSERT_TRUE(Service::json2model(parsed(text), &target, kAll));
    EXPECT_EQ(target.boards().at(0)->elev, 0);
    EXPECT_EQ(target.rafts().at(0)->thickness, 0);
}

TEST_F(SlabBadDocumentTest, nameOfAMillionCharactersReadsBack)
{
    add<Model::Board>()->name = QString(1000000, u'板');
    Model target;
    ASSERT_TRUE(Service::json2model(parsed(QJsonDocument(written()).toJson()), &target, kAll));
    EXPECT_EQ(target.boards().at(0)->name, QString(1000000, u'板'));
}

TEST_F(SlabBadDocumentTest, listsOfAMillionSeparatorsAreRead)
{
    readObject("straddle_forced_bars", {{"surface", QString(1000000, u';')}});
    readObject("axisGrids", {{"U_Data", QString(1000000, u'#')}, {"V_Data", QString(1000000, u'$')}});
    EXPECT_EQ(model.straddleForcedBars().at(0)->supportPolys.size(), 1000000U);
    EXPECT_TRUE(model.axisNet().at(0)->axisGrid->gridU.data.empty());
    EXPECT_TRUE(model.axisNet().at(0)->axisGrid->gridV.data.empty());
}

TEST_F(SlabBadDocumentTest, identitiesMayRepeatAndBeNone)
{
    const QJsonObject board = sampleObject("boards");
    QJsonObject nameless = board;
    nameless["recongnizedID"] = "no identity";
    ASSERT_TRUE(Service::json2model({{"boards", QJsonArray{board, board, nameless}}}, &model, kAll));
    ASSERT_EQ(model.boards().size(), 3U);
    EXPECT_EQ(model.boards()[0]->recongnizedID, model.boards()[1]->recongnizedID);
    EXPECT_TRUE(model.boards()[2]->recongnizedID.isNull());
}

TEST_F(SlabBadDocumentTest, labelsThatHoldSeparatorsLoseTheirAxis)
{
    auto *net = add<Model::AxisNet>();
    net->axisGrid = std::make_shared<AxisGrid_Sample>();
    net->axisGrid->gridU.data = {{"1$2", line({0, 0}, {0, 1})}, {"3", line({1, 0}, {1, 1})}};
    Model target;
    ASSERT_TRUE(Service::json2model(written(), &target, kAll));
    ASSERT_EQ(target.axisNet().at(0)->axisGrid->gridU.data.size(), 1U);
    EXPECT_EQ(target.axisNet().at(0)->axisGrid->gridU.data[0].first, "3");
}

} // namespace
