#include "ModelSerialization/ReconstructionFixture.h"

#include <limits>

namespace {

using Service = ORVCADBeamLocalModel2HBXService;
using testing::ElementsAre;
using testing::IsEmpty;

/** Chains of a recorded element of type 15. */
class BeamChainReconstructionTest : public ReconstructionFixture
{
protected:
    BeamChainReconstructionTest() { newElement(15); }

    int reconstruct(const std::shared_ptr<BeamEdoInfo> &edo)
    {
        return service->localModel2BeamEdo(edo.get(), recorded());
    }
    /** Where the axes of the draw objects begin, in the order in which they were made. */
    std::vector<double> starts() const
    {
        std::vector<double> xs;
        for (IHBXElementDrawObj *object : placed()) {
            vks::CRefPtr<vks::CCurve2d> axis;
            dynamic_cast<IHBXCustomLineSolidShape *>(object->shape())->worldLine(axis, true);
            xs.push_back(axis ? axis->StartPoint().x : -1.0);
        }
        return xs;
    }
    int linkCount() const
    {
        int count = 0;
        for (IHBXElementDrawObj *object : placed())
            count += object->nextInChain() ? 1 : 0;
        return count;
    }
};

TEST_F(BeamChainReconstructionTest, segmentsAreMadeInOrderOfTheirNumbersAndPutInOrderInTheRecord)
{
    auto edo = chain({2, 0, 1});
    EXPECT_EQ(reconstruct(edo), Service::kDone);
    EXPECT_THAT(starts(), ElementsAre(0, 1000, 2000));
    EXPECT_EQ(edo->segments[0]->Index, 0);
    EXPECT_EQ(edo->segments[2]->Index, 2);
    EXPECT_EQ(placed()[0]->nextInChain(), placed()[1]);
    EXPECT_EQ(placed()[1]->nextInChain(), placed()[2]);
    EXPECT_EQ(placed()[2]->chainHead(), placed()[0]);
}

TEST_F(BeamChainReconstructionTest, chainIsLinkedFromItsEndToItsStart)
{
    std::vector<int> linkedAtCall;
    host->beforeCall([&](const QString &call) {
        if (!call.startsWith("linkNext"))
            return;
        linkedAtCall.push_back(linkCount());
        EXPECT_EQ(placed()[1]->nextInChain() != nullptr, linkedAtCall.size() == 2);
    });
    EXPECT_EQ(reconstruct(chain({0, 1, 2})), Service::kDone);
    EXPECT_THAT(linkedAtCall, ElementsAre(0, 1));
    EXPECT_EQ(linkCount(), 2);
}

TEST_F(BeamChainReconstructionTest, numbersThatBeginAtOneAreLinkedAndGetNoSpanCount)
{
    EXPECT_EQ(reconstruct(chain({1, 2})), Service::kDone);
    EXPECT_EQ(linkCount(), 1);
    EXPECT_THAT(callsWith(R"(setString("SpanCount")"), IsEmpty());
}

TEST_F(BeamChainReconstructionTest, spanCountIsWrittenOnTheFirstDrawObjectAlone)
{
    EXPECT_EQ(reconstruct(chain({0, 1}, 12)), Service::kDone);
    EXPECT_EQ(callsWith(R"(setString("SpanCount")"), QStringList{R"(setString("SpanCount", "12", true))"});
    EXPECT_EQ(text(placed()[0]->properties(), L"SpanCount"), "12");
    EXPECT_EQ(text(placed()[1]->properties(), L"SpanCount"), "");
}

TEST_F(BeamChainReconstructionTest, refusedSpanCountIsNotLookedAt)
{
    refuse({R"(setString("SpanCount")"});
    EXPECT_EQ(reconstruct(chain({0, 1})), Service::kDone);
    EXPECT_EQ(linkCount(), 1);
}

TEST_F(BeamChainReconstructionTest, gapInTheNumbersGives104AndLeavesUnlinkedWhatWasMade)
{
    EXPECT_EQ(reconstruct(chain({0, 2})), 104);
    EXPECT_EQ(Service::kSegmentsNotConsecutive, 104);
    EXPECT_EQ(placed().size(), 1);
    EXPECT_EQ(linkCount(), 0);
    EXPECT_EQ(reconstruct(chain({0, 1, 3})), 104);
    EXPECT_EQ(placed().size(), 3);
    EXPECT_EQ(linkCount(), 0);
}

TEST_F(BeamChainReconstructionTest, repeatedNumberGives104)
{
    EXPECT_EQ(reconstruct(chain({0, 0, 1})), 104);
    EXPECT_EQ(placed().size(), 1);
}

TEST_F(BeamChainReconstructionTest, numbersAtTheEndOfTheRangeAreCountedOn)
{
    constexpr int last = std::numeric_limits<int>::max();
    auto edo = chain({0, 1});
    edo->segments[0]->Index = last - 1;
    edo->segments[1]->Index = last;
    EXPECT_EQ(reconstruct(edo), Service::kDone);
}

TEST_F(BeamChainReconstructionTest, chainWithoutSegmentsOrWithAMissingOneFails)
{
    EXPECT_EQ(reconstruct(chain({})), 104);
    auto edo = chain({0});
    edo->segments.insert(edo->segments.begin(), nullptr);
    EXPECT_EQ(reconstruct(edo), 104);
    EXPECT_EQ(placed().size(), 1);
    EXPECT_EQ(service->localModel2BeamEdo(nullptr, recorded()), 104);
    EXPECT_EQ(service->localModel2BeamEdo(chain({0}).get(), nullptr), 105);
}

TEST_F(BeamChainReconstructionTest, failedChainStopsNoOtherAndIsNotToldByTheResult)
{
    auto ent = floorBeam();
    EXPECT_TRUE(service->reconstructBeam(beamOf(ent, {chain({0, 2}), nullptr, chain({0, 1})})));
    EXPECT_EQ(placed().size(), 3);
    EXPECT_EQ(linkCount(), 1);
}

TEST_F(BeamChainReconstructionTest, hostWithoutADrawObjectGives105)
{
    IHBXElementDrawObj *drawObj = nullptr;
    EXPECT_EQ(service->reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode(segment(0).get(), nullptr, chain({0}).get(),
                                                                         drawObj),
              105);
    EXPECT_EQ(Service::kNoDrawObj, 105);
    EXPECT_FALSE(drawObj);
}

TEST_F(BeamChainReconstructionTest, drawObjectThatIsNoLineSolidGives106AndStays)
{
    newElement(25, "KZ1");
    EXPECT_EQ(service->localModel2BeamEdo(chain({0, 1}).get(), recorded("KZ1")), 106);
    EXPECT_EQ(Service::kNoLineShape, 106);
    EXPECT_EQ(placed().size(), 1);
    EXPECT_EQ(service->reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode_SetProp(nullptr, segment(0).get()), 106);
}

TEST_F(BeamChainReconstructionTest, sizesFailOnlyWhenNoneOfTheThreeIsAccepted)
{
    refuse({R"(setInt("SectionWidth")", R"(setDouble("AxisOffset",)"});
    EXPECT_EQ(reconstruct(chain({0})), Service::kDone);
    refuse({R"(setInt("SectionWidth")", "setDouble"});
    EXPECT_EQ(reconstruct(chain({0, 1})), 107);
    EXPECT_EQ(Service::kSizesNotWritten, 107);
    EXPECT_EQ(callsWith(R"(setString("StartPtTopElev")").size(), 1); // of the first chain alone
}

TEST_F(BeamChainReconstructionTest, elevationsFailOnlyWhenNeitherIsAccepted)
{
    refuse({R"(setString("StartPtTopElev")"});
    EXPECT_EQ(reconstruct(chain({0})), Service::kDone);
    refuse({R"(setString("StartPtTopElev")", R"(setString("EndPtTopElev")"});
    EXPECT_EQ(reconstruct(chain({0})), 108);
    EXPECT_EQ(Service::kElevationsNotWritten, 108);
    EXPECT_EQ(placed().size(), 2);
}

TEST_F(BeamChainReconstructionTest, elevationTextThatTheHostRefusesIsOneOfThem)
{
    auto edo = chain({0});
    edo->segments[0]->StartPtTopElev = "top of raft";
    EXPECT_EQ(reconstruct(edo), Service::kDone);
    edo->segments[0]->EndPtTopElev = "top of raft";
    EXPECT_EQ(reconstruct(edo), 108);
}

TEST_F(BeamChainReconstructionTest, badAxisTextSetsNullAndTheDrawObjectIsMade)
{
    auto edo = chain({0});
    edo->segments[0]->WordLine = "1,2";
    EXPECT_EQ(reconstruct(edo), Service::kDone);
    EXPECT_EQ(callsWith("setLine"), QStringList{"setLine(null)"});
    EXPECT_EQ(placed().size(), 1);
}

TEST_F(BeamChainReconstructionTest, arcAxisIsReadByItsFiveNumbers)
{
    auto edo = chain({0});
    edo->segments[0]->WordLine = "0,0,1,2000,0";
    EXPECT_EQ(reconstruct(edo), Service::kDone);
    EXPECT_THAT(callsWith("setLine(CIRCULARSTRING"), testing::SizeIs(1));
}

TEST_F(BeamChainReconstructionTest, linkBeamGetsNoSpanCountOnItsDrawObjects)
{
    newElement(17, "LL1");
    EXPECT_EQ(service->localModel2BeamEdo(chain({0}).get(), recorded("LL1")), Service::kDone);
    EXPECT_THAT(callsWith(R"(setString("SpanCount")"), IsEmpty());
}

// --- single writes

class BeamPropertyWriteTest : public BeamChainReconstructionTest
{};

TEST_F(BeamPropertyWriteTest, emptyValueIsAcceptedWithoutAWrite)
{
    EXPECT_TRUE(service->writeEntProp(L"SectionWidth", "", recorded(), PropType::Integer, true));
    EXPECT_TRUE(service->writeEdoProp(L"SectionWidth", "", nullptr, PropType::Integer, true));
    EXPECT_THAT(host->calls(), IsEmpty());
}

TEST_F(BeamPropertyWriteTest, propertyThatTheHostLacksIsAcceptedWithoutAWrite)
{
    EXPECT_TRUE(service->writeEntProp(L"Thickness", "120", recorded(), PropType::Integer, true));
    EXPECT_THAT(host->calls(), IsEmpty());
}

TEST_F(BeamPropertyWriteTest, kindOfTheValueDecidesTheCallAndTheFlagIsHandedOn)
{
    EXPECT_TRUE(service->writeEntProp(L"HoopBar", "A8", recorded(), PropType::Text, false));
    EXPECT_TRUE(service->writeEntProp(L"SectionWidth", "250", recorded(), PropType::Integer, true));
    EXPECT_TRUE(service->writeEntProp(L"AxisOffset", "1.5e+02", recorded(), PropType::Double, false));
    EXPECT_EQ(host->calls(),
              (QStringList{R"(setString("HoopBar", "A8", false))", R"(setInt("SectionWidth", 250, true))",
                           R"(setDouble("AxisOffset", 150, false))"}));
}

TEST_F(BeamPropertyWriteTest, textThatIsNoNumberWritesZero)
{
    EXPECT_TRUE(service->writeEntProp(L"SectionWidth", "300.5", recorded(), PropType::Integer, true));
    EXPECT_TRUE(service->writeEntProp(L"AxisOffset", "left", recorded(), PropType::Double, true));
    EXPECT_EQ(host->calls(),
              (QStringList{R"(setInt("SectionWidth", 0, true))", R"(setDouble("AxisOffset", 0, true))"}));
}

TEST_F(BeamPropertyWriteTest, anotherKindWritesNothingAndIsAccepted)
{
    EXPECT_TRUE(service->writeEntProp(L"SectionWidth", "300", recorded(), static_cast<PropType>(3), true));
    EXPECT_THAT(host->calls(), IsEmpty());
}

TEST_F(BeamPropertyWriteTest, whateverTheHostThrowsGivesFalse)
{
    refuse({"setInt"});
    EXPECT_FALSE(service->writeEntProp(L"SectionWidth", "300", recorded(), PropType::Integer, true));
    refuse<std::runtime_error>({"setInt"});
    EXPECT_FALSE(service->writeEntProp(L"SectionWidth", "300", recorded(), PropType::Integer, true));
    host->beforeCall([](const QString &) { throw 7; });
    EXPECT_FALSE(service->writeEntProp(L"SectionWidth", "300", recorded(), PropType::Integer, true));
}

TEST_F(BeamPropertyWriteTest, drawObjectIsWrittenLikeAnElement)
{
    reconstruct(chain({0}));
    const int before = host->calls().size();
    IHBXElementDrawObj *object = host->service()->model()->drawObjects()->at(0);
    EXPECT_TRUE(service->writeEdoProp(L"AxisOffset", "7.25", object, PropType::Double, true));
    EXPECT_TRUE(service->writeEdoProp(L"Thickness", "7", object, PropType::Integer, true));
    EXPECT_EQ(host->calls().mid(before), QStringList{R"(setDouble("AxisOffset", 7.25, true))"});
    refuse({"setDouble"});
    EXPECT_FALSE(service->writeEdoProp(L"AxisOffset", "7.25", object, PropType::Double, true));
}

TEST_F(BeamPropertyWriteTest, missingTargetGivesFalse)
{
    EXPECT_FALSE(service->writeEntProp(L"SectionWidth", "300", nullptr, PropType::Integer, true));
    EXPECT_FALSE(service->writeEdoProp(L"SectionWidth", "300", nullptr, PropType::Integer, true));
}

TEST(BeamGeometryReaderTest, readersUnderTheServicesNamesAreThoseOfTheEncoding)
{
    Service::Curve curve;
    EXPECT_TRUE(Service::reconstructCurve("0,0,1000,0", curve));
    EXPECT_TRUE(Service::reconstructCurve_Line({"0", "0", "5", "0"}, curve));
    EXPECT_EQ(curve->EndPoint().x, 5.0);
    EXPECT_TRUE(Service::reconstructCurve_Arc({"0", "0", "1", "5", "0"}, curve));
    EXPECT_EQ(curve->Type(), vks::CCurve2d::kArc);
    EXPECT_TRUE(Service::reconstructCurve_Circle({"0", "0", "5"}, curve));
    EXPECT_TRUE(curve->IsClosed());
    double numbers[3] = {7, 7, 7};
    EXPECT_FALSE(Service::reconstructCurve_StringToDouble({"1", "x", "3"}, numbers));
    EXPECT_EQ(numbers[0], 7.0); // parts are read from the last to the first
    EXPECT_EQ(numbers[2], 3.0);

    Service::Polygon polygon;
    EXPECT_TRUE(Service::reconstructPoly("0,0,50", polygon));
    EXPECT_TRUE(Service::reconstructPoly_Simplified_NoSemicolon("0,0,50", polygon));
    EXPECT_TRUE(Service::reconstructPoly_Simplified_Normal("0,0;10,0;10,10;", polygon));
    EXPECT_TRUE(Service::reconstructPoly_WithAsString("POLYGON((0 0, 10 0, 10 10, 0 0))", polygon));
    std::vector<Service::Vertex> vertices;
    EXPECT_TRUE(Service::reconstructPoly_Simplified_Normal_StringToDouble("0,0;10,0,0.5;", vertices));
    EXPECT_EQ(vertices.size(), 2U);
}

} // namespace
