#include "beam/ORVCADBeamCollectDataModel.h"

#include "RecordChecks.h"
#include "beam/BeamEntInfo.h"

#include <QJsonArray>

namespace {

std::shared_ptr<BeamModelDataInfo> beamOf(qint64 type, const QString &name = QString())
{
    auto beam = std::make_shared<BeamModelDataInfo>();
    beam->elementInfo = BeamModelDataInfo::makeElementInfo(type);
    beam->elementInfo->ElementType = type;
    beam->elementInfo->Name = name;
    return beam;
}

QJsonObject written(const ORVCADBeamCollectDataModel::Beams &beams)
{
    ORVCADBeamCollectDataModel model;
    model.setBeamIdentifyInfo(beams);
    return model.toJsonObj();
}

TEST(ORVCADBeamCollectDataModelTest, emptyModelWritesThreeEmptyArrays)
{
    expectSameJson(ORVCADBeamCollectDataModel().toJsonObj(), jsonOf(R"({"Beam": [], "LinkBeam": [], "FDBeam": []})"));
}

TEST(ORVCADBeamCollectDataModelTest, eachTypeGoesToItsArrayInListOrder)
{
    const ORVCADBeamCollectDataModel::Beams beams = {beamOf(47, "JL1"), beamOf(15, "KL1"), beamOf(17, "LL1"),
                                                     beamOf(15, "KL2")};
    const QJsonObject json = written(beams);
    EXPECT_EQ(json["Beam"].toArray(), (QJsonArray{beams[1]->toJsonObj(), beams[3]->toJsonObj()}));
    EXPECT_EQ(json["LinkBeam"].toArray(), QJsonArray{beams[2]->toJsonObj()});
    EXPECT_EQ(json["FDBeam"].toArray(), QJsonArray{beams[0]->toJsonObj()});
    EXPECT_EQ(json.size(), 3);
}

TEST(ORVCADBeamCollectDataModelTest, foundationBeamReadsBackAsABeamEntInfo)
{
    const QJsonObject json = written({beamOf(47, "JL1")});
    BeamModelDataInfo read;
    read.fromJson(json["FDBeam"].toArray()[0].toObject());
    ASSERT_TRUE(std::dynamic_pointer_cast<BeamEntInfo>(read.elementInfo));
    EXPECT_EQ(read.elementInfo->Name, "JL1");
}

TEST(ORVCADBeamCollectDataModelTest, beamOfAnotherTypeIsLeftOut)
{
    expectSameJson(written({beamOf(12)}), ORVCADBeamCollectDataModel().toJsonObj());
}

TEST(ORVCADBeamCollectDataModelTest, nullBeamAndBeamWithoutElementAreLeftOut)
{
    expectSameJson(written({nullptr, std::make_shared<BeamModelDataInfo>()}), ORVCADBeamCollectDataModel().toJsonObj());
}

TEST(ORVCADBeamCollectDataModelTest, beamsAreCopiedInAndOutAndTheirRecordsShared)
{
    ORVCADBeamCollectDataModel::Beams beams = {beamOf(15)};
    ORVCADBeamCollectDataModel model;
    EXPECT_TRUE(model.getIdentifyInfo().empty());
    model.setBeamIdentifyInfo(beams);
    const auto record = beams[0];
    beams.clear();
    ASSERT_EQ(model.getIdentifyInfo().size(), 1U);
    EXPECT_EQ(model.getIdentifyInfo()[0], record);
    const ORVCADBeamCollectDataModel copy = model;
    model.setBeamIdentifyInfo({});
    EXPECT_EQ(copy.getIdentifyInfo().size(), 1U);
}

} // namespace
