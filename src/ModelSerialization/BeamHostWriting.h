#pragma once

#include "ModelSerialization/PropertyText.h"
#include "ORVCADModelDataExport.h"
#include "platform/geometry/CVec2.h"

#include <string>
#include <vector>

namespace vks {
class CPolygon;
}
class IHBXElement;
class IHBXElementDrawObj;
class IHBXProperties;

/** The steps that every reconstruction of beams and their seats takes in the host. */
namespace beam {

/** Key of the bracket that belongs to a site of reconstruction. */
ORVCADMODELDATA_EXPORT std::string batchKey(int site);

/** False when the host refuses the name, whatever it throws. */
ORVCADMODELDATA_EXPORT bool setName(IHBXElement &element, const QString &name);

/** An empty value, and one for a property that the target lacks, is accepted without a write. False when the host throws,
 *  whatever it is, and without a target. */
ORVCADMODELDATA_EXPORT bool writeProperty(const PropertyText &text, IHBXElement *target);
ORVCADMODELDATA_EXPORT bool writeProperty(const PropertyText &text, IHBXElementDrawObj *target);

/** Tries each write. True when there is none or one of them was accepted. */
template <typename Target> bool writeAll(const std::vector<PropertyText> &texts, Target *target)
{
    bool accepted = texts.empty();
    for (const PropertyText &text : texts)
        accepted = writeProperty(text, target) || accepted;
    return accepted;
}

ORVCADMODELDATA_EXPORT vks::CVec2<double> boxCentre(const vks::CPolygon &polygon);
/** Writes "SectionPoly", and the centre of its box as "InsertPt". What the host refuses in its own way stays as it was,
 *  what else it throws passes on. */
ORVCADMODELDATA_EXPORT void writeOutline(IHBXProperties &properties, const vks::CPolygon &polygon);
/** "SectionInfo" of a pile: "100*a;100*b", a and b being the whole steps of 50 mm in the sides of its box, and one. */
ORVCADMODELDATA_EXPORT QString sectionInfo(const vks::CPolygon &polygon);

} // namespace beam
