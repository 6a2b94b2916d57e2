#include "embedded/EmbeddedBuilding.h"

#include <cmath>

namespace hbx::embedded {
namespace {

class HBXFaceSolidShapeTest : public EmbeddedBuilding
{};

TEST_F(HBXFaceSolidShapeTest, slabsAndRaftsHangDownByTheirThickness)
{
    for (const qint64 type : {19, 48}) {
        IHBXElement *plate = element(type);
        plate->properties()->setDouble(L"Thickness", 120.0, false);
        IHBXElementDrawObj *object = placed(plate);
        EXPECT_EQ(as<IHBXFaceSolidShape>(object)->height(), -120.0);
        object->properties()->setInt(L"Thickness", 150, false);
        EXPECT_EQ(as<IHBXFaceSolidShape>(object)->height(), -150.0);
    }
}

TEST_F(HBXFaceSolidShapeTest, aFaceSolidKeepsACopyOfItsOutline)
{
    IHBXElementDrawObj *object = placed(element(19));
    vks::CRefPtr<vks::CPolygon> outline = polygonOf("POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    vks::CRefPtr<vks::CPolygon> read;
    as<IHBXFaceSolidShape>(object)->setPolygon(outline);
    outline->Translate(Point(9, 9));
    EXPECT_EQ(as<IHBXFaceSolidShape>(object)->polygon(read, true)->ToText(), "POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    expectBox(box(object), 0, 0, 4, 3);
    as<IHBXFaceSolidShape>(object)->setPolygon(nullptr);
    EXPECT_EQ(worldPoly(object).get(), nullptr);
}

TEST_F(HBXFaceSolidShapeTest, aThicknessOfZeroIsAHeightOfZeroWithoutASign)
{
    IHBXElementDrawObj *object = slab("POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    EXPECT_EQ(as<IHBXFaceSolidShape>(object)->height(), 0.0); // none was told
    object->properties()->setDouble(L"Thickness", 0.0, false);
    EXPECT_FALSE(std::signbit(as<IHBXFaceSolidShape>(object)->height()));
}

TEST_F(HBXFaceSolidShapeTest, theHeightThatAFileStatesStaysUntilAThicknessIsWritten)
{
    ShapeRecord face;
    face.kind = IHBXShape::kFace;
    face.outline = polygonOf("POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    face.height = 250.0; // stands up
    IHBXElementDrawObj *object = loaded(19, face);
    object->properties()->setString(L"TopElev", QStringLiteral("3"), false);
    EXPECT_EQ(as<IHBXFaceSolidShape>(object)->height(), 250.0);
    EXPECT_EQ(store.drawObjRecord(object->id())->shape.height, 250.0);
    object->properties()->setInt(L"Thickness", 120, false);
    EXPECT_EQ(as<IHBXFaceSolidShape>(object)->height(), -120.0);
}

} // namespace
} // namespace hbx::embedded
