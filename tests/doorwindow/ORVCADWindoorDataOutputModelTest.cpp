#include "doorwindow/ORVCADWindoorDataOutputModel.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace {

TEST(ORVCADWindoorDataOutputModelTest, elementsStandBeforePlacedObjectsInOneArray)
{
    ORVCADWindoorDataOutputModel model;
    model.edos.resize(2);
    model.elements.resize(3);
    QJsonObject json{{"other", 1}};
    model.saveToJson("ElementsAndEdos", &json);

    EXPECT_EQ(json["other"], 1);
    const QJsonArray members = json["ElementsAndEdos"].toArray();
    ASSERT_EQ(members.size(), 5);
    for (int i = 0; i < members.size(); ++i)
        EXPECT_EQ(members[i].toObject().contains("elementID"), i < 3) << i;
}

TEST(ORVCADWindoorDataOutputModelTest, emptyModelWritesAnEmptyArray)
{
    QJsonObject json;
    ORVCADWindoorDataOutputModel().saveToJson("key", &json);
    EXPECT_EQ(json, (QJsonObject{{"key", QJsonArray{}}}));
}

TEST(ORVCADWindoorDataOutputModelTest, nullObjectIsLeftAlone)
{
    ORVCADWindoorDataOutputModel().saveToJson("key", nullptr);
}

} // namespace
