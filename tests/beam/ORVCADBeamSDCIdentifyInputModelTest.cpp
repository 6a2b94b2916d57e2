#include "beam/ORVCADBeamSDCIdentifyInputModel.h"

#include "RecordChecks.h"

#include <QJsonArray>

namespace {

using Model = ORVCADBeamSDCIdentifyInputModel;

void addSeat(Model &model, int type, const QString &name)
{
    auto *seat = new ORVBeamSDCSeatInfoModel;
    seat->seatElementType = type;
    seat->EntName = name;
    model.beamSeatInfos.append(seat);
}

TEST(ORVCADBeamSDCIdentifyInputModelTest, contextIsMadeOnlyWhenAskedFor)
{
    const Model without(false);
    EXPECT_FALSE(without.hasContext);
    EXPECT_FALSE(without.context);
    const Model with(true);
    EXPECT_TRUE(with.hasContext);
    ASSERT_TRUE(with.context);
    EXPECT_TRUE(with.context->floorInfo);
}

TEST(ORVCADBeamSDCIdentifyInputModelTest, modelWithoutSeatsWritesFourEmptyArrays)
{
    expectSameJson(Model(false).beamSeatInfoToJsonObj(),
                   jsonOf(R"({"etTieBeam": [], "etIsolatedFD": [], "etPile": [], "etPileCap": []})"));
}

TEST(ORVCADBeamSDCIdentifyInputModelTest, seatsGoToTheArrayOfTheirTypeInListOrder)
{
    Model model(false);
    addSeat(model, 18, "LL1");
    addSeat(model, 54, "ZJ1");
    addSeat(model, 52, "DJ1");
    addSeat(model, 53, "CT1");
    addSeat(model, 18, "LL2");
    const QJsonObject json = model.beamSeatInfoToJsonObj();
    const auto &seats = model.beamSeatInfos;
    EXPECT_EQ(json["etTieBeam"].toArray(), (QJsonArray{seats[0]->toJson(), seats[4]->toJson()}));
    EXPECT_EQ(json["etPile"].toArray(), QJsonArray{seats[1]->toJson()});
    EXPECT_EQ(json["etIsolatedFD"].toArray(), QJsonArray{seats[2]->toJson()});
    EXPECT_EQ(json["etPileCap"].toArray(), QJsonArray{seats[3]->toJson()});
    EXPECT_EQ(json.size(), 4);
}

TEST(ORVCADBeamSDCIdentifyInputModelTest, seatsOfOtherTypesAreNotWritten)
{
    Model model(false);
    for (const int type : {15, 17, 25, 26, 1002, 0, 1003, 47})
        addSeat(model, type, "X");
    model.beamSeatInfos.append(nullptr);
    expectSameJson(model.beamSeatInfoToJsonObj(), Model(false).beamSeatInfoToJsonObj());
}

TEST(ORVCADBeamSDCIdentifyInputModelTest, copySharesSeatsAndContext)
{
    Model model(true);
    addSeat(model, 18, "LL1");
    Model copy = model;
    EXPECT_EQ(copy.beamSeatInfos, model.beamSeatInfos);
    EXPECT_EQ(copy.context, model.context);
    copy.beamSeatInfos.clear(); // else both would delete it
}

} // namespace
