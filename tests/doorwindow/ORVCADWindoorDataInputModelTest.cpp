#include "doorwindow/ORVCADWindoorDataInputModel.h"

#include "OpeningFixture.h"
#include "platform/services/HBXOptionNames.h"

#include <QJsonDocument>

namespace {

class ORVCADWindoorDataInputModelTest : public OpeningFixture
{
protected:
    static QByteArray option(const QString &group, const QString &name, const QString &value)
    {
        return QJsonDocument(QJsonObject{{"group", group}, {"name", name}, {"value", value}}).toJson();
    }
};

TEST_F(ORVCADWindoorDataInputModelTest, newModelHasNoOptionsAndFourWallTypes)
{
    ORVCADWindoorDataInputModel *model = createWindowCloudIdentifyPar(nullptr);
    ASSERT_TRUE(model);
    EXPECT_TRUE(model->identifyOptions.isEmpty());
    EXPECT_EQ(model->wallElementTypes, (std::vector<int>{0, 1003, 1, 1001}));
    EXPECT_TRUE(model->walls.empty());
    freeWindowCloudIdentifyPar(model);
}

TEST_F(ORVCADWindoorDataInputModelTest, makingAModelAsksTheServiceForNothing)
{
    load({}, "[" + option(ptnWallHolesSetting, "width", "900") + "]");
    ORVCADWindoorDataInputModel *model = createWindowCloudIdentifyPar(service());
    EXPECT_TRUE(model->identifyOptions.isEmpty());
    freeWindowCloudIdentifyPar(model);
}

TEST_F(ORVCADWindoorDataInputModelTest, freeingNullIsAllowed) { freeWindowCloudIdentifyPar(nullptr); }

TEST_F(ORVCADWindoorDataInputModelTest, optionsComeFromTheGroupOfWallOpeningsOnly)
{
    load({}, "[" + option(ptnWallHolesSetting, "width", "900") + "," + option(ptnBeamSetting, "height", "500") + "]");
    ORVCADWindoorDataInputModel model;
    model.parseIdentifyOption(service());
    EXPECT_EQ(model.identifyOptions, (QMap<QString, QString>{{"width", "900"}}));
}

TEST_F(ORVCADWindoorDataInputModelTest, optionThatStandsTwiceKeepsItsFirstValue)
{
    load({},
         "[" + option(ptnWallHolesSetting, "width", "900") + "," + option(ptnWallHolesSetting, "width", "700") + "]");
    ORVCADWindoorDataInputModel model;
    model.parseIdentifyOption(service());
    EXPECT_EQ(model.identifyOptions.value("width"), "900");
}

TEST_F(ORVCADWindoorDataInputModelTest, savingIntoNothingDoesNothing)
{
    ORVCADWindoorDataInputModel model;
    model.identifyOptions = {{"width", "900"}};
    model.saveToJason(nullptr);
    EXPECT_EQ(model.identifyOptions.value("width"), "900");
}

TEST_F(ORVCADWindoorDataInputModelTest, optionsThatAreThereAlreadyStay)
{
    load({}, "[" + option(ptnWallHolesSetting, "width", "900") + "," + option(ptnWallHolesSetting, "sill", "1") + "]");
    ORVCADWindoorDataInputModel model;
    model.identifyOptions = {{"width", "mine"}, {"other", "kept"}};
    model.parseIdentifyOption(service());
    EXPECT_EQ(model.identifyOptions, (QMap<QString, QString>{{"width", "mine"}, {"other", "kept"}, {"sill", "1"}}));
}

TEST_F(ORVCADWindoorDataInputModelTest, hostWithoutOptionsAndNullServiceLeaveTheOptionsEmpty)
{
    load();
    ORVCADWindoorDataInputModel model;
    model.parseIdentifyOption(service());
    model.parseIdentifyOption(nullptr);
    EXPECT_TRUE(model.identifyOptions.isEmpty());
}

TEST_F(ORVCADWindoorDataInputModelTest, emptyOptionsWriteAnEmptyArray)
{
    QJsonObject json;
    ORVCADWindoorDataInputModel().saveToJason(&json);
    EXPECT_EQ(json, (QJsonObject{{"ORVCADWindoorDataInputModel", QJsonArray{}}}));
}

TEST_F(ORVCADWindoorDataInputModelTest, optionsAreWrittenInSortedOrderOneObjectEach)
{
    ORVCADWindoorDataInputModel model;
    model.identifyOptions = {{"b", "2"}, {"a", "1"}};
    QJsonObject json;
    model.saveToJason(&json);
    EXPECT_EQ(json["ORVCADWindoorDataInputModel"].toArray(),
              (QJsonArray{QJsonObject{{"a", "1"}}, QJsonObject{{"b", "2"}}}));
}

TEST_F(ORVCADWindoorDataInputModelTest, copySharesTheWallsAndIsDestroyedWithThem)
{
    ORVCADWindoorDataInputModel model;
    model.walls.push_back(std::make_shared<ORVCADHBXWallEdoInputForWindow>());
    {
        const ORVCADWindoorDataInputModel copy = model;
        EXPECT_EQ(copy.walls[0], model.walls[0]);
    }
    EXPECT_EQ(model.walls[0].use_count(), 1);
}

} // namespace
