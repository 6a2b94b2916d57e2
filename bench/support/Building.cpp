#include "support/Building.h"

#include "support/TextFile.h"

#include <cstdio>
#include <vector>

namespace bench {

namespace {

constexpr int kBays = Building::kObjectsOfFloor / Building::kObjectsOfBay;
constexpr int kBaysInARow = 10;
constexpr int kBaySide = 6000;         // mm
constexpr int kElementsOfAType = 4;    // the bays of a floor take turns
constexpr unsigned kShifts = 6;        // of a bay, mm
constexpr unsigned kSteps = 50;        // of a slab, cm
constexpr int kStoreyHeight = 3;       // m
constexpr std::size_t kLongest = 2000; // characters of an object, with room to spare

/** Where a bay stands, and what is its own in it. */
struct Bay
{
    int floor;
    int number;
    int x; ///< lower left corner, mm
    int y;
    int step; ///< elevation of its slab below the floor's top, cm

    int element() const { return number % kElementsOfAType; }
    /** Position in the list of its element, where the bay has so many objects in it. */
    int position(int ofBay) const { return number / kElementsOfAType * ofBay; }
};

template <typename... Values> std::string text(const char *format, Values... values)
{
    std::string written(kLongest, '\0');
    written.resize(static_cast<std::size_t>(std::snprintf(written.data(), kLongest, format, values...)));
    return written;
}

std::string rectangle(int x0, int y0, int x1, int y1)
{
    return text("POLYGON((%d %d, %d %d, %d %d, %d %d, %d %d))", x0, y0, x1, y0, x1, y1, x0, y1, x0, y0);
}

std::string line(int x0, int y0, int x1, int y1) { return text("LINESTRING(%d %d, %d %d)", x0, y0, x1, y1); }

std::string slab(const Bay &bay)
{
    return text(R"({"key":"S%d-%d","shape":{"kind":"face","outline":"%s","height":-120},"properties":{)"
                R"("TopElev":"层顶标高-0.%02d","ReinforcementInfo":"B%d-%d,1;"}})",
                bay.floor, bay.number, rectangle(bay.x, bay.y, bay.x + 5800, bay.y + 5700).c_str(), bay.step, bay.floor,
                bay.number);
}

std::string slabHole(const Bay &bay)
{
    return text(R"({"shape":{"kind":"section","outline":"%s","insertPoint":[%d,%d]},"attachedTo":[19,"B-%d",%d]})",
                rectangle(-300, -300, 300, 300).c_str(), bay.x + 4500, bay.y + 4500, bay.element(), bay.position(1));
}

std::string slabBar(const Bay &bay)
{
    const std::string direction = line(bay.x, bay.y + 2800, bay.x + 5800, bay.y + 2800);
    return text(
        R"({"key":"B%d-%d","shape":{"kind":"face2d","outline":"%s"},"properties":{"BarInfo":"C10@200","Type":0,)"
        R"("Position":1,"IsRadiate":0,"LeftHook":"0","RightHook":"0","CurveData":"%s","ReferenceCurve":"%s",)"
        R"("ReinforcementInfo":"S%d-%d,1;","Catalog":"B-%d[S%d-%d]"}})",
        bay.floor, bay.number, rectangle(bay.x, bay.y, bay.x + 5800, bay.y + 5700).c_str(), direction.c_str(),
        direction.c_str(), bay.floor, bay.number, bay.element(), bay.floor, bay.number);
}

std::string negativeBar(const Bay &bay)
{
    return text(R"({"shape":{"kind":"line2d","curve":"%s"},"properties":{"BarInfo":"C8@150","LeftLabel":900,)"
                R"("RightLabel":900,"LabelPosition":2,"IncludeSupport":0,"LeftHook":"90","RightHook":"90",)"
                R"("CurveData":"%s","DependSlabID":"S%d-%d"}})",
                line(bay.x + 200, bay.y, bay.x + 200, bay.y + 5000).c_str(),
                line(bay.x, bay.y + 2000, bay.x + 900, bay.y + 2000).c_str(), bay.floor, bay.number);
}

std::string column(const Bay &bay)
{
    return text(R"({"shape":{"kind":"point","outline":"%s","insertPoint":[%d,%d]},)"
                R"("properties":{"TopElev":"层顶标高-0.%02d","BottomElev":"层底标高"}})",
                rectangle(-250, -250, 250, 250).c_str(), bay.x, bay.y, bay.step);
}

std::string wall(const std::string &axis)
{
    return text(R"({"shape":{"kind":"line","axis":"%s","width":200},"properties":{"StartPtTopElev":"层顶标高",)"
                R"("EndPtTopElev":"层顶标高","StartPtBottomElev":"层底标高","EndPtBottomElev":"层底标高"}})",
                axis.c_str());
}

std::string walls(const Bay &bay)
{
    return wall(line(bay.x + 300, bay.y, bay.x + 5500, bay.y)) + ",\n" +
           wall(line(bay.x, bay.y + 300, bay.x, bay.y + 5500));
}

std::string door(const Bay &bay)
{
    return text(R"({"shape":{"kind":"point","outline":"%s","insertPoint":[%d,%d]},"properties":{"AboveFloorHeight":0},)"
                R"("attachedTo":[1003,"QT-%d",%d]})",
                rectangle(-450, -100, 450, 100).c_str(), bay.x + 2000, bay.y, bay.element(), bay.position(2));
}

std::string beams(const Bay &bay)
{
    constexpr const char *kElevations = R"("StartPtTopElev":"层顶标高","EndPtTopElev":"层顶标高")";
    return text(R"({"shape":{"kind":"line","axis":"%s","width":300},"properties":{%s,"SpanCount":"1"},"next":%d,)"
                R"("spans":[{"SpanIndex":1,"SpanLength":5800,"Section":"300*600","SpanA1_A4":"250,250,250,250",)"
                R"("TopThroughBar":"2C25","BottomThroughBar":"4C22","HoopBar":"A8@100/200"}]},)"
                "\n",
                line(bay.x, bay.y + 5900, bay.x + 2900, bay.y + 5900).c_str(), kElevations, bay.position(2) + 1) +
           text(R"({"shape":{"kind":"line","axis":"%s","width":300},"properties":{%s}})",
                line(bay.x + 2900, bay.y + 5900, bay.x + 5800, bay.y + 5900).c_str(), kElevations);
}

/** The elements of a type on a floor; %d in the head is the number of the element. */
struct ElementKind
{
    const char *head;
    std::string (*objects)(const Bay &bay);
};
const ElementKind kKinds[] = {
    {R"("name":"B-%d","type":19,"subType":13,"properties":{"Thickness":120})", slab},
    {R"("name":"BD-%d","type":24,"subType":153,"properties":{"SectionTypeID":0,"Width":600,"Length":600})", slabHole},
    {R"("name":"SLJ-%d","type":22,"subType":171,"properties":{"BarInfo":"C10@200"})", slabBar},
    {R"("name":"FJ-%d","type":23,"subType":173,"properties":{"BarInfo":"C8@150"})", negativeBar},
    {R"("name":"KZ-%d","type":25,"subType":3,"properties":{"SectionWidth":500,"SectionHeight":500,"SectionTypeID":0})",
     column},
    {R"("name":"QT-%d","type":1003,"subType":316,"properties":{"Thickness":200,"Material":"1"})", walls},
    {R"("name":"M-%d","type":4,"subType":14,"properties":{"OpeningWidth":900,"OpeningHeight":2100,"AboveFloorHeight":0})",
     door},
    {R"("name":"KL-%d","type":15,"subType":3,"properties":{"SectionWidth":300,"SectionHeight":600,"SpanCount":"1"})",
     beams},
};

void writeElement(TextFile &file, const ElementKind &kind, const std::vector<Bay> &bays, int number)
{
    file << "{" << text(kind.head, number) << R"(,"drawObjects":[)";
    for (auto i = static_cast<std::size_t>(number); i < bays.size(); i += kElementsOfAType) {
        file.comma(i < kElementsOfAType);
        file << kind.objects(bays[i]);
    }
    file << "]}";
}

int doorX(int bay) { return bay % kBaysInARow * kBaySide; }

int doorY(int bay) { return bay / kBaysInARow * kBaySide + 3000; }

} // namespace

void Building::write(const QString &path)
{
    TextFile file(path);
    file << R"({"format":"hbx-project","version":1,"name":"Load","regions":[{"name":")" << kRegion << R"(","floors":[)";
    for (int floor = 0; floor < m_floors; ++floor) {
        file.comma(floor == 0);
        writeFloor(file, floor);
    }
    file << "]}]}\n";
}

void Building::writeFloor(TextFile &file, int floor)
{
    // Not by a distribution of the standard library, which may differ from one to the next.
    const auto below = [this](unsigned limit) { return static_cast<int>(m_random() % limit); };
    std::vector<Bay> bays;
    bays.reserve(kBays);
    for (int i = 0; i < kBays; ++i)
        bays.push_back({floor + 1, i, i % kBaysInARow * kBaySide + below(kShifts),
                        i / kBaysInARow * kBaySide + below(kShifts), below(kSteps)});
    file << text(R"({"name":"Level %d","code":"%d","bottomElev":%d,"height":%d,"elements":[)", floor + 1, floor + 1,
                 floor * kStoreyHeight, kStoreyHeight);
    bool isFirst = true;
    for (const ElementKind &kind : kKinds)
        for (int number = 0; number < kElementsOfAType; ++number) {
            file.comma(isFirst);
            writeElement(file, kind, bays, number);
            isFirst = false;
        }
    file << "]}";
}

int Building::writeDoors(const QString &path) const
{
    const std::string floor = middleFloor().toStdString();
    const std::string place =
        text(R"("nHeightFromFloor":0,"floorName":"%s","regionName":"%s")", floor.c_str(), kRegion);
    TextFile file(path);
    file << R"({"eDoorWin":{"ElementsAndEdos":[{"elementID":1,"name":"M-reply","nElementType":4,"nSubElementType":14,)"
         << R"("nHeight":2100,"nWidth":800,)" << place << "}";
    for (int bay = 0; bay < kBays; ++bay)
        file << text(R"(,{"elementName":"M-reply","X":%d,"Y":%d,)", doorX(bay), doorY(bay)) << place << "}";
    file << "]}}\n";
    return kBays;
}

} // namespace bench
