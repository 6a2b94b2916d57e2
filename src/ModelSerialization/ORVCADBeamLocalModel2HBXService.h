#pragma once

#include "ModelSerialization/PropertyText.h"
#include "ORVCADModelDataExport.h"
#include "encoding/GeometryTextReader.h"

#include <QJsonArray>
#include <QMap>

#include <memory>
#include <vector>

class BaseBeamEntInfo;
class BeamEdoInfo;
class BeamModelDataInfo;
class BeamSegmentInfo;
class IHBXElement;
class IHBXElementDrawObj;
class IHBXFloor;
class IHBXModel;
class IHBXService;
class ORVBeamSDCSeatInfoModel;

/** Makes beams of the local model, and the objects that they rest on, anew in the host.
 *
 *  Every reconstruction stands in a batch of the host, which is closed on every way out. Nothing is undone: what was made
 *  before a failure stays in the host. Nothing is logged. A null record, element or draw object fails, and changes
 *  nothing.
 *
 *  The host is used from one thread. The service must not outlive it. */
class ORVCADMODELDATA_EXPORT ORVCADBeamLocalModel2HBXService
{
public:
    /** Results of the operations that give a number. */
    enum Result {
        kDone = 0,
        kSectionNotWritten = 15,       ///< no size was accepted, or an outline came with a sub-type that has none
        kSectionInfoNotWritten = 101,  ///< reconstruct_CreateAbnormityEnt_SetSectionInfo gave false
        kSegmentsNotConsecutive = 104, ///< a gap or a repetition in the segments' numbers, or no segment
        kNoDrawObj = 105,              ///< the host made none
        kNoLineShape = 106,            ///< the draw object is no line solid
        kSizesNotWritten = 107,        ///< neither the width nor an offset was accepted
        kElevationsNotWritten = 108    ///< neither elevation was accepted
    };

    using Curve = GeometryTextReader::Curve;               ///< of an axis
    using Polygon = GeometryTextReader::Polygon;           ///< of a section
    using Vertex = GeometryTextReader::Vertex;             ///< of a polygon text
    using Seat = std::shared_ptr<ORVBeamSDCSeatInfoModel>; ///< a foundation, pile or tie beam; null fails

    /** The service is not owned. Null is allowed: every reconstruction then fails. */
    explicit ORVCADBeamLocalModel2HBXService(IHBXService *service);

    // Beams

    /** One beam: its element, found by name or made, and a linked chain of draw objects for each placed beam.
     *  @return whether the element was written; meant: a chain that fails neither stops the others nor shows here */
    bool reconstructBeam(const std::shared_ptr<BeamModelDataInfo> &beam);
    /** The element: made and named, with all its properties. Sub-types 135 of a foundation beam and 12 of a beam become 134
     *  and 11, in the record, too.
     *  @param element  what was found or made, also when a later step fails; untouched before */
    bool localModel2BeamEnt(BaseBeamEntInfo *beam, IHBXElement *&element);
    /** One chain, by the numbers of its segments, which are put into order in the record. The numbers may start anywhere.
     *  When a segment fails, those before it stay, unlinked.
     *  @return a Result */
    int localModel2BeamEdo(BeamEdoInfo *edoInfo, IHBXElement *element);

    /** Kind within the type: "Type1" of a beam, "Type" of others; a link beam has none and succeeds. */
    bool reconstructBeam_BeamInfo_CreateEnt_SetType(IHBXElement *element, BaseBeamEntInfo *beam);
    /** The text of spans and cantilevers, such as 3A; a link beam has none and succeeds. */
    bool reconstructBeam_BeamInfo_CreateEnt_SetSpanCount(IHBXElement *element, BaseBeamEntInfo *beam);
    /** Width and height, or the outline where the record has one. @return a Result */
    int reconstructBeam_BeamInfo_CreateEnt_SetSection(IHBXElement *element, BaseBeamEntInfo *beam);
    /** True when one of the six writes was accepted. */
    bool reconstructBeam_BeamInfo_CreateEnt_SetBar(IHBXElement *element, BaseBeamEntInfo *beam);
    /** One draw object of a chain, with everything but its links.
     *  @param drawObj  what was made, also when a later step fails; null when nothing was
     *  @return a Result */
    int reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode(BeamSegmentInfo *segment, IHBXElement *element,
                                                          BeamEdoInfo *edoInfo, IHBXElementDrawObj *&drawObj);
    /** Axis, width, offsets and elevations; an axis text that cannot be read sets no axis. @return a Result */
    int reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode_SetProp(IHBXElementDrawObj *drawObj,
                                                                  BeamSegmentInfo *segment);
    /** Keeps all spans of the chain under the draw object's id, for saveBeamSpanInfo. */
    void reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode_RecordSpanInfo(IHBXElementDrawObj *drawObj,
                                                                          BeamEdoInfo *edoInfo);

    /** Writes the spans of all draw objects made so far to the file "BeamSpanInfo.json" in the application's folder: one
     *  object, from the decimal id of a draw object to the array of the spans of its chain. The file is replaced.
     *  @return false when there is no such folder; meant: true when the file cannot be opened */
    bool saveBeamSpanInfo();

    // What beams rest on: foundations (52), pile caps (53), piles (54), tie beams (18)

    /** The element, found by name or made, for a foundation with a further unit below it, and one draw object. */
    bool reconstructFoundation(const Seat &seat);
    /** The same for a pile, which has no unit. */
    bool reconstructPile(const Seat &seat);
    /** The same for a tie beam, which lies along the seat's centre line. */
    bool reconstructTieBeam(const Seat &seat);

    /** A name that the host refuses ends this and the next; meant: the unit and a tie beam keep the name they have. */
    bool localModel2FoundationEnt(const Seat &seat, IHBXElement *&element);
    /** Sub-type 169 becomes 128, in the record, too. The outline is moved to the origin, that of a foundation is not.
     *  @return whether "Type1", "TopElev" or a rectangle's "SectionWidth" was accepted, whatever becomes of the rest */
    bool localModel2PileEnt(const Seat &seat, IHBXElement *&element);
    /** A rectangle (70) gets its sides, any other sub-type its outline. @return whether one of them was accepted */
    bool localModel2TieBeamEnt(const Seat &seat, IHBXElement *&element);
    /** The draw object stands at the middle of the seat's box. @return whether its top or underside was accepted */
    bool localModel2FoundationEdo(const Seat &seat, IHBXElement *element);
    /** Likewise. @return whether its top was accepted */
    bool localModel2PileEdo(const Seat &seat, IHBXElement *element);
    /** A line solid along the centre line, null included. @return whether an elevation or offset was accepted */
    bool localModel2TieBeamEdo(const Seat &seat, IHBXElement *element);

    /** Finds the seat's floor, and its element by name, which may be null.
     *  @return false when there is no such region or floor */
    bool checkBeforeReconstruct(const Seat &seat, IHBXElement *&element, IHBXFloor *&floor);

    // What both use

    /** The outline of a section that is no rectangle, with the centre of its box, and of a pile the sides of its box; null
     *  writes only that there is an outline, which the number 0 stands for. The host's own exception at the outline or the
     *  centre is swallowed.
     *  @return whether the number or the sides were accepted */
    bool reconstruct_CreateAbnormityEnt_SetSectionInfo(IHBXElement *element, vks::CPolygon *polygon);
    /** Writes one property. An empty value, and a property that the element lacks, is accepted without a write; a text
     *  that is no number writes 0.
     *  @return false only when the host threw */
    bool writeEntProp(const std::wstring &name, const QString &value, IHBXElement *element, PropType type, bool flag);
    /** The same for a draw object. */
    bool writeEdoProp(const std::wstring &name, const QString &value, IHBXElementDrawObj *drawObj, PropType type,
                      bool flag);

    // Readers of curves and polygons: see GeometryTextReader

    /** As GeometryTextReader::reconstructCurve. */
    static bool reconstructCurve(const QString &text, Curve &curve)
    {
        return GeometryTextReader::reconstructCurve(text, curve);
    }
    /** As GeometryTextReader::reconstructCurve_Arc. */
    static bool reconstructCurve_Arc(const QStringList &parts, Curve &curve)
    {
        return GeometryTextReader::reconstructCurve_Arc(parts, curve);
    }
    /** As GeometryTextReader::reconstructCurve_Circle. */
    static bool reconstructCurve_Circle(const QStringList &parts, Curve &curve)
    {
        return GeometryTextReader::reconstructCurve_Circle(parts, curve);
    }
    /** As GeometryTextReader::reconstructCurve_Line. */
    static bool reconstructCurve_Line(const QStringList &parts, Curve &curve)
    {
        return GeometryTextReader::reconstructCurve_Line(parts, curve);
    }
    /** As GeometryTextReader::reconstructCurve_StringToDouble. */
    static bool reconstructCurve_StringToDouble(const QStringList &parts, double *numbers)
    {
        return GeometryTextReader::reconstructCurve_StringToDouble(parts, numbers);
    }
    /** As GeometryTextReader::reconstructPoly. */
    static bool reconstructPoly(const QString &text, Polygon &polygon)
    {
        return GeometryTextReader::reconstructPoly(text, polygon);
    }
    /** As GeometryTextReader::reconstructPoly_Simplified_NoSemicolon. */
    static bool reconstructPoly_Simplified_NoSemicolon(const QString &text, Polygon &polygon)
    {
        return GeometryTextReader::reconstructPoly_Simplified_NoSemicolon(text, polygon);
    }
    /** As GeometryTextReader::reconstructPoly_Simplified_Normal. */
    static bool reconstructPoly_Simplified_Normal(const QString &text, Polygon &polygon)
    {
        return GeometryTextReader::reconstructPoly_Simplified_Normal(text, polygon);
    }
    /** As GeometryTextReader::reconstructPoly_Simplified_Normal_StringToDouble. */
    static bool reconstructPoly_Simplified_Normal_StringToDouble(const QString &text, std::vector<Vertex> &vertices)
    {
        return GeometryTextReader::reconstructPoly_Simplified_Normal_StringToDouble(text, vertices);
    }
    /** As GeometryTextReader::reconstructPoly_WithAsString. */
    static bool reconstructPoly_WithAsString(const QString &text, Polygon &polygon)
    {
        return GeometryTextReader::reconstructPoly_WithAsString(text, polygon);
    }

private:
    IHBXModel *model() const;
    /** Makes the element and the draw object of a seat in a bracket of its own. */
    bool reconstructSeat(const Seat &seat, int site,
                         bool (ORVCADBeamLocalModel2HBXService::*makeEnt)(const Seat &, IHBXElement *&),
                         bool (ORVCADBeamLocalModel2HBXService::*makeEdo)(const Seat &, IHBXElement *));
    bool findOrCreateElement(const Seat &seat, qint64 subType, int mode, IHBXElement *&element);
    IHBXElement *createUnit(const ORVBeamSDCSeatInfoModel &seat, IHBXElement &foundation);
    bool writePileSection(IHBXElement *element, const ORVBeamSDCSeatInfoModel &seat);
    int createBeamNode(BeamSegmentInfo *segment, IHBXElement *element, IHBXElementDrawObj *&drawObj);
    IHBXElementDrawObj *createEnteredDrawObj(IHBXElement *element);
    IHBXElementDrawObj *placeAtSeat(const ORVBeamSDCSeatInfoModel &seat, IHBXElement *element);

    IHBXService *m_service;
    QMap<qint64, QJsonArray> m_beamSpanInfo; ///< by id of a draw object; never cleared
};
