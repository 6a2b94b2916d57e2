#include "load/RecordDocument.h"

#include "IdentifyInputModel/Wall/ORVCADCloudEntBrickWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"
#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "beam/BeamModelDataInfo.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"
#include "beam/ORVCADBeamIdentifyResultModel.h"
#include "cli/Files.h"
#include "column/ORVCADAIIdentifyColumnResultModel.h"
#include "column/ORVCADColumnCloudIdentifyInputModel.h"
#include "doorwindow/ORVCADWinDoorEdoStruct.h"
#include "drawing/ORVCADClassifiedLayer.h"
#include "drawing/ORVCADClassifiedLayers.h"
#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADDrawingParseData.h"
#include "drawing/ORVCADFloorSDCData.h"
#include "drawing/ORVCADFloors.h"
#include "drawing/ORVCADLayerClassifyItem.h"
#include "drawing/ORVCADLayerClassifyResult.h"
#include "encoding/FlatRecord.h"
#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <iterator>
#include <memory>

namespace load {

namespace {

using SlabModel = ORVCADBoardLocalModel_Sample;
using SlabService = ORVCADBoardLocalModelPersistenceService_Sample;

constexpr double kToldAlone = 0.0; // no bound of peak memory to the bytes of the document

/** The reader of a kind of JSON document, from its file on. */
template <qint64 (*Count)(const QJsonObject &)> qint64 ofJson(const QString &path)
{
    return Count(orvcad::readJsonObject(path, QStringLiteral("document")));
}

/** The same for what takes its text as such. */
template <qint64 (*Count)(const QString &)> qint64 ofText(const QString &path)
{
    return Count(QString::fromUtf8(orvcad::readFile(path)));
}

/** Records of an array, each filled by its own reader. */
template <typename Record, typename Read> qint64 readEach(const QJsonArray &array, Read read)
{
    std::vector<Record> records;
    records.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue entry : array)
        records.push_back(read(entry.toObject()));
    return static_cast<qint64>(records.size());
}

qint64 countBeams(const QJsonObject &document)
{
    return readEach<std::shared_ptr<BeamModelDataInfo>>(document.value(QLatin1String("Beam")).toArray(),
                                                        [](const QJsonObject &json) {
                                                            auto beam = std::make_shared<BeamModelDataInfo>();
                                                            beam->fromJson(json);
                                                            return beam;
                                                        });
}

qint64 countSeats(const QJsonObject &document)
{
    return readEach<std::shared_ptr<ORVBeamSDCSeatInfoModel>>(
        document.value(QLatin1String("etIsolatedFD")).toArray(), [](const QJsonObject &json) {
            auto seat = std::make_shared<ORVBeamSDCSeatInfoModel>();
            seat->fromJson(json);
            return seat;
        });
}

qint64 countLabels(const QJsonObject &document)
{
    ORVCADBeamIdentifyResultModel model;
    ORVCADBeamIdentifyResultModel::fromJson(&model, document);
    return model.getElementInfo().size();
}

qint64 countColumns(const QJsonObject &document)
{
    ORVCADAIIdentifyColumnResultModel model;
    model.fromJson(&model, document);
    return static_cast<qint64>(model.resultData.size());
}

qint64 countColumnElements(const QJsonObject &document)
{
    ORVCADColumnCloudIdentifyInputModel model;
    model.fromJson(&model, document);
    return static_cast<qint64>(model.elements.size());
}

qint64 countFloors(const QJsonObject &document)
{
    const std::unique_ptr<ORVCADFloors> floors(ORVCADFloors::fromJson(document));
    return floors ? floors->getCount() : 0;
}

qint64 countExchangedFloors(const QJsonObject &document)
{
    bool ok = false;
    const auto floors = ORVCADFloorSDCData().unserialize(document, ok);
    return ok ? static_cast<qint64>(floors.size()) : 0;
}

qint64 countLayers(const QJsonObject &document)
{
    const std::unique_ptr<ORVCADClassifiedLayers> layers(ORVCADClassifiedLayers::fromJson(document));
    return layers ? layers->getClassifiedLayers().size() : 0;
}

qint64 countElementMappings(const QJsonObject &document)
{
    const std::unique_ptr<ORVCADDrawingElementMappings> mappings(
        ORVCADDrawingElementMappings::fromJson(document.value(QLatin1String("matchElementInfo"))));
    return mappings->getDrawingElementMappings().size();
}

qint64 countFloorMappings(const QJsonObject &document)
{
    const std::unique_ptr<ORVCADDrawingFloorMappings> mappings(
        ORVCADDrawingFloorMappings::fromJson(document.value(QLatin1String("matchFloorInfo"))));
    return mappings->getMappingFloorNames(7).size();
}

qint64 countTables(const QJsonObject &document) { return ORVCADDrawingParseData::fromJson(document).size(); }

qint64 countClassifications(const QJsonObject &document)
{
    const std::unique_ptr<ORVCADLayerClassifyResult> result(ORVCADLayerClassifyResult::fromJson(document));
    return result ? result->getLayerClassifyItems().size() : 0;
}

qint64 countDoors(const QJsonObject &document)
{
    return readEach<ORVCADWinDoorEdoStruct>(document.value(QLatin1String("ElementsAndEdos")).toArray(),
                                            &ORVCADWinDoorEdoStruct::fromJson);
}

qint64 countSlabs(const QJsonObject &document)
{
    SlabModel model;
    SlabService::json2model(document, &model, SlabService::Everything);
    return static_cast<qint64>(model.objects().size());
}

qint64 countJsonRecords(const QString &text)
{
    ORVCADJsonFileSerialization archive(text);
    QStringList records;
    if (archive.parse())
        archive.readRecordList(QStringLiteral("CadEntBrickWallDataInfo"), records);
    return records.size();
}

qint64 countXmlRecords(const QString &text)
{
    ORVCADXmlFileSerialization archive(text);
    QMap<QString, QStringList> records;
    if (archive.parse())
        archive.readRecordMap(QStringLiteral("BrickWallIdentifyData"), records);
    return records.size();
}

/** From the file on, since the model takes wide characters: four bytes for each of the document. */
qint64 countWalls(const QString &path)
{
    const std::wstring text = QString::fromUtf8(orvcad::readFile(path)).toStdWString();
    ORVCADWallBrickDataOutputModel model;
    model.loadFromJson(text);
    ORVCADWallBrickDataOutputModel::Walls walls;
    model.getBrickWallIdentifyData(walls);
    return static_cast<qint64>(walls.size());
}

/** Every line is a record of its own. */
qint64 countFlatRecords(const QString &text)
{
    qint64 count = 0;
    QStringView rest(text);
    for (auto end = rest.indexOf(u'\n'); end >= 0; end = rest.indexOf(u'\n')) {
        const encoding::FlatItems items(rest.left(end));
        count += items.value(QLatin1String("width")).isEmpty() ? 0 : 1;
        rest = rest.mid(end + 1);
    }
    return count;
}

const RecordDocument kDocuments[] = {
    {"beams",
     {R"({"Beam":[)",
      R"({"ElementInfo":{"AxisOffset":0,"BottomThroughBar":"4C22","ElementSubType":3,"ElementType":15,)"
      R"("EndTopElev":"","FloorName":"1","HoopBar":"A8@100/200","LimbCount":"2","Name":"KL-#","RegionName":"House",)"
      R"("SectionHeight":600,"SectionPoly":"","SectionWidth":300,"SideBar":"4C12","SpanCount":"1","StartTopElev":"",)"
      R"("TieBar":"A6@400","TopThroughBar":"2C25","Type":1},"EDOInfo":[{"BeamSegmentInfo":[{"AxisOffset":0,)"
      R"("EndPtTopElev":"3.3","Index":0,"LineWidth":300,"StartPtTopElev":"3.3","WordLine":"0,#,5000,#"}],)"
      R"("BeamSpanInfo":[{"AxisOffset":0,"BottomBar":"4C22","BottomThroughBar":"4C22","DenseLength":"900",)"
      R"("EndElev":6.9,"HangBar":"2C16","HangBarAnchor":"20*d","HaunchingBarInfo":"","HaunchingHeight":"",)"
      R"("HaunchingLength":"","HoopBar":"A8@100/200","HoopBarLimbCount":2,"LeftSupportBar":"4C25",)"
      R"("OtherHoopBars":"","RightSupportBar":"6C25/2C25","SecBeamAddBar":"","SecBeamWidth":"","Section":"300*600",)"
      R"("SideBar":"4C12","SideLabelBar":"","SpanA1_A4":"250,250,250,250","SpanBar":"","SpanIndex":1,)"
      R"("SpanLength":5000,"StartElev":6.9,"TieBar":"A6@400","TopThroughBar":"2C25"}]}]})",
      "]}"},
     ofJson<countBeams>},
    {"seats of beams",
     {R"({"etIsolatedFD":[)",
      R"({"Angle":0,"AxisOffset":0,"BtmElev":"","CenterLine":"","EDOBtmElev":"0","EDOTopElev":"0.8",)"
      R"("ElementSubType":41,"ElementType":52,"EntName":"DJ-#","FloorName":"1","Height":800,"Mirror":false,)"
      R"("RegionName":"House","SectinoHeight":0,"SectionPoly":"","SectionWidth":0,"TopElev":"","Type":"",)"
      R"j("WorldPoly":"POLYGON((14400 -600, 15600 -600, 15600 600, 14400 600, 14400 -600))"})j",
      "]}"},
     ofJson<countSeats>},
    {"labels of beams",
     {R"({"elementInfoList":[)",
      R"j({"strName":"KL-#","nElementType":15,"nBeamType":1,"strSpanDesc":"(1)","strSection":"300*600",)j"
      R"("strHoopBar":"A8@100/200","strTopThroughBar":"2C25","strBottomThroughBar":"4C22","strSideBar":"",)"
      R"("eCantileverType":0,"edoInfos":[{"nSpanNum":"1","nWidth":300,"strStartElev":"","strEndElev":"",)"
      R"("enStartElevType":0,"enEndElevType":0,"vecSegmentInfo":[{"ipLine":"0,#,5000,#","dOffset":0,)"
      R"("id":"{11111111-2222-3333-4444-555555555555}"}]}],"seatEdoIDList":[{"eSeatIDType":0,"nSeatID":17,)"
      R"("nBeamSegmentInfoID":"{00000000-0000-0000-0000-000000000000}"}]})",
      "]}"},
     ofJson<countLabels>},
    {"results of columns",
     {R"({"drawing":"S-04","floorCode":"1","resultData":[)",
      R"({"bCreateElement":false,"barInfo":{"nBSidePicID":14,"nHSidePicID":13,"pfnBSideBar":"2C16",)"
      R"("pfnCornerBar":"4C16","pfnHSideBar":"1C16","pfnHoopBar":"A8@100/200","pfnVertBar":"10C16","strLimb":"4*3"},)"
      R"("cadLineIDs":[#],"cadPoly":"17660,29310;18060,29310;18060,29610;17660,29610;","cadTextIDs":[#],)"
      R"("columnInfo":{"bEdoInfoValid":true,"bMirror":false,"dAngle":0,"dHeight":300,"dRadius":0,)"
      R"("dSteelWeight":158.2,"dWidth":400,"eColumnType":0,"ePolyType":0,"insertPt":"0,0","m_type":0,)"
      R"("position":"17860,29460","strParam":""},"columnName":"KZ-#","floorCode":"1","pfnSection":"400*300",)"
      R"("poly":"-200,-150;200,-150;200,150;-200,150;"})",
      "]}"},
     ofJson<countColumns>},
    {"orders of columns",
     {R"({"eType":7,"elements":[)",
      R"({"bar":{"nBSidePicID":41,"nHSidePicID":62,"pfnBSideBar":"2C20","pfnCornerBar":"4C22",)"
      R"("pfnHSideBar":"3C18","pfnHoopBar":"A8@100/200","pfnVertBar":"12C20","strLimb":"4*6"},"elementTypeId":25,)"
      R"("insertPt":"250,300.5","name":"KZ-#","parame":"500*600","poly":"0,0;500,0;500,600;0,600;",)"
      R"("sectionHeight":600,"sectionTypeID":2,"sectionWidth":500})",
      "]}"},
     ofJson<countColumnElements>},
    {"floors",
     {R"({"AreaName":"Tower","Floors":[)",
      R"({"BottomElev":#,"Code":"#","Height":3.1,"Name":"Level #","Remark":"","StdCount":1})", "]}"},
     ofJson<countFloors>},
    {"floor exchange",
     {R"({"FloorSDCData":[)",
      R"({"Code":"#","ConcreteAnchorJoint":[{"Anchor1":"34d","Anchor2":"38d","Anchor3":"33d","Anchor4":"36d",)"
      R"("Anchor5":"40d","Anchor6":"44d","AseismicLevelID":3,"BasicElementTypeID":15,"ConcGradeID":25,)"
      R"("ConcTypeID":1,"Joint1":"48d","Joint2":"53d","Joint3":"46d","Joint4":"50d","Joint5":"56d","Joint6":"62d",)"
      R"("ProtectiveLayerThickness":20,"TypeID":1}],"Description":"Level #","Height":3,"ID":#,)"
      R"("Region":{"Description":"Block","ID":1},"SlabThickness":120,"StartFloorNo":0,"StdFloorCount":1,)"
      R"("StructuralElevation":-1})",
      "]}"},
     ofJson<countExchangedFloors>},
    {"layers of drawings",
     {R"({"DrawingName":"S-02","ElementType":26753,"ClassifiedLayers":0,"Layers":[)",
      R"({"CADEdoIds":[100001,100002,100003,100004,100005,100006,100007,100008,#],"LayerName":"S-BEAM-#"})", "]}"},
     ofJson<countLayers>},
    {"drawings by element type",
     {R"({"matchElementInfo":[)", R"({"DrawingName":"S-# 梁平面图","ElementTypes":["梁","现浇板"]})", "]}"},
     ofJson<countElementMappings>},
    {"drawings by floor",
     {R"({"matchFloorInfo":[)",
      R"({"DrawingNames":["S-#"],"FloorName":"Level #","regionID":7,"DrawingFloorMappings":["S-#"]})", "]}"},
     ofJson<countFloorMappings>},
    {"tables of drawings",
     {"{",
      R"("table#":{"data":{"0":["Upper part","4.960","3.040"],"1":["Ground floor","0.000","4.960"]},)"
      R"("drawingName":"S-#","range":[41000,0,53000,2400],"type":"楼层表"})",
      "}"},
     ofJson<countTables>},
    {"results of layers",
     {R"({"LayerClassifyItems":[)",
      R"({"DrawingName":"S-#","ElementType":15,"ClassifiedJsonFilePath":"/project/S-#_etBeam.json"})", "]}"},
     ofJson<countClassifications>},
    {"reply of openings",
     {R"({"ElementsAndEdos":[)",
      R"({"elementName":"M0921","X":#.5,"Y":-208.5,"nHeightFromFloor":0,"floorName":"1","regionName":"House"})", "]}"},
     ofJson<countDoors>},
    // Its elements carry registered properties.
    {"slab model",
     {R"({"boards":[)",
      R"({"id":#,"recongnizedID":"{00000000-0000-0000-0000-000000000002}","name":"LB#",)"
      R"j("surface":"POLYGON((0 0, 4000 0, 4000 3000, 0 3000, 0 0))","thinkness":120,"elev":2.95,"type":3,)j"
      R"("state_descript":"h=120"})",
      "]}"},
     ofJson<countSlabs>,
     false},
    {"archive as JSON",
     {R"({"CadEntBrickWallDataInfo":[)",
      R"({"edoId":"#","entName":"QTQ-200","elementType":"1003","elementSubType":"316","material":"3",)"
      R"("throughBar":"2A6@600","transverseBar":"A6@250","width":"200","typePropertyValue":"0"})",
      "]}"},
     ofText<countJsonRecords>},
    {"reply of walls",
     {R"({"BrickWallIdentifyData":{)",
      R"("key_#":{"edoId":"#","entName":"QTQ-200","elementType":"1003","elementSubType":"316","material":"3",)"
      R"("throughBar":"2A6","transverseBar":"A6","width":"200","typePropertyValue":"0","floorCode":"1",)"
      R"("region":"House"},"value_#":[{"sWidth":"200","sStrTextInfo":"","sPfnStartPtTopElev":"2.8",)"
      R"("sPfnStartPtBottomElev":"0","sPfnEndPtTopElev":"2.8","sPfnEndPtBottomElev":"0","sStrEntName":"QTQ-200",)"
      R"("sWorldLine":"0,0,5000,0","sPolys":"","floorCode":"1","region":"House","sSegmentEntityDataList":""}])",
      "}}"},
     countWalls},
    {"archive as XML",
     {"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<XmlRoot><BrickWallIdentifyData>",
      R"(<key_# edoId="#" entName="QTQ-200" elementType="1003" elementSubType="316" material="3" width="200">)"
      R"(<value_0 sWidth="200" sPfnStartPtTopElev="2.8" sWorldLine="0,0,5000,0" floorCode="1"/></key_#>)",
      "</BrickWallIdentifyData></XmlRoot>", ""},
     ofText<countXmlRecords>,
     kToldAlone},
    {"flat records",
     {"", "edoId:#/entName:QTQ-200/elementType:1003/elementSubType:316/material:3/width:200\n", "", ""},
     ofText<countFlatRecords>},
};

} // namespace

const std::vector<RecordDocument> &recordDocuments()
{
    static const std::vector<RecordDocument> all(std::begin(kDocuments), std::end(kDocuments));
    return all;
}

} // namespace load
