#include "ModelSerialization/BeamHostWriting.h"

#include "ModelSerialization/SectionInfoText.h"
#include "beam/BeamKeys.h"
#include "platform/geometry/CPolygon.h"
#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXProperties.h"
#include "platform/services/DwgxRound.h"

#include <cmath>

namespace beam {
namespace {

constexpr int kSectionStep = 50; // mm

void write(IHBXProperties &properties, const PropertyText &text)
{
    if (text.type == PropType::Text)
        properties.setString(text.name, text.value, text.flag);
    else if (text.type == PropType::Integer)
        properties.setInt(text.name, text.value.toInt(nullptr, 10), text.flag); // meant: 0 for any other text
    else if (text.type == PropType::Double)
        properties.setDouble(text.name, text.value.toDouble(nullptr), text.flag);
}

template <typename Target> bool writeTo(const PropertyText &text, Target *target)
{
    if (text.value.isEmpty())
        return true;
    if (!target)
        return false;
    try {
        IHBXProperties *properties = target->properties();
        if (properties && properties->hasProperty(text.name))
            write(*properties, text);
        return true;
    } catch (...) {
        return false;
    }
}

template <typename Write> void unlessRefused(Write write)
{
    try {
        write();
    } catch (const HBXModelException &) {
        // The value stays as it was.
    }
}

} // namespace

std::string batchKey(int site) { return "ModelSerialization\\ORVCADBeamLocalModel2HBXService" + std::to_string(site); }

bool setName(IHBXElement &element, const QString &name)
{
    try {
        element.setName(name);
        return true;
    } catch (...) {
        return false;
    }
}

bool writeProperty(const PropertyText &text, IHBXElement *target) { return writeTo(text, target); }

bool writeProperty(const PropertyText &text, IHBXElementDrawObj *target) { return writeTo(text, target); }

vks::CVec2<double> boxCentre(const vks::CPolygon &polygon)
{
    const vks::CBox2<double> box = polygon.Box();
    return {(box.minPt.x + box.maxPt.x) * 0.5, (box.minPt.y + box.maxPt.y) * 0.5};
}

void writeOutline(IHBXProperties &properties, const vks::CPolygon &polygon)
{
    unlessRefused([&] { properties.setPolygon(property::sectionPoly, &polygon, false); });
    const vks::CVec2<double> centre = boxCentre(polygon);
    unlessRefused([&] { properties.setPoint(property::insertPt, &centre, false); });
}

QString sectionInfo(const vks::CPolygon &polygon)
{
    const vks::CBox2<double> box = polygon.Box();
    const int alongX = dwgx::round(std::fabs(box.minPt.x - box.maxPt.x)) / kSectionStep + 1;
    const int alongY = dwgx::round(std::fabs(box.minPt.y - box.maxPt.y)) / kSectionStep + 1;
    return sectionInfoText(alongX, alongY);
}

} // namespace beam
