// A reply of recognition goes into a host of one's own: doors and windows stand in its walls afterwards.

#include "MemoryModel.h"

#include <doorwindow/JsonDoorWin2HBX.h>
#include <encoding/JsonDocumentFile.h>
#include <platform/geometry/CLine2d.h>
#include <platform/host/IHBXCustomLineSolidShape.h>
#include <platform/host/IHBXCustomPointSolidShape.h>

#include <QJsonDocument>

#include <cstdio>

namespace {

/** A floor with one wall of 240 mm, from (0, 0) to (8000, 0). */
void build(MemoryHost &host)
{
    MemoryModel &model = host.memoryModel();
    MemoryFloor &floor =
        model.addFloor(model.addRegion(QStringLiteral("House")), {QStringLiteral("Level 1"), QStringLiteral("1")});
    host.select(floor);
    IHBXElement *wall = model.elements()->createElement(1003, 0, &floor, QStringLiteral("Q240"));
    wall->properties()->setDouble(L"Thickness", 240, true);
    IHBXElementDrawObj *placed = model.drawObjects()->createDrawObj(&floor, wall, true);
    model.drawObjects()->addDrawObj(placed);
    const vks::CRefPtr<vks::CCurve2d> axis = new vks::CLine2d({0, 0}, {8000, 0});
    dynamic_cast<IHBXCustomLineSolidShape &>(*placed->shape()).setLine(axis);
}

QString nameOf(const IHBXElementDrawObj *object)
{
    QString name;
    return object ? object->element()->name(name) : QStringLiteral("nothing");
}

/** Tells where the openings of the selected floor stand. @return how many stand in a wall */
int tellOpenings(MemoryHost &host)
{
    QList<IHBXElementDrawObj *> openings;
    host.floor()->drawObjsOfTypes(openings, {4, 5, 6, 7}, true);
    int inWalls = 0;
    for (IHBXElementDrawObj *opening : qAsConst(openings)) {
        vks::CVec2<double> point;
        dynamic_cast<IHBXCustomPointSolidShape &>(*opening->shape()).insertPoint(point);
        std::printf("%s, %d x %d, at (%g, %g) in %s\n", qPrintable(nameOf(opening)),
                    opening->properties()->asInt(L"OpeningWidth"), opening->properties()->asInt(L"OpeningHeight"),
                    point.x, point.y, qPrintable(nameOf(opening->parent())));
        inWalls += opening->parent() ? 1 : 0;
    }
    return inWalls;
}

} // namespace

int main(int argc, char **argv)
{
    QJsonDocument reply;
    if (argc != 2 || !loadJsonDocumentFromFile(QString::fromLocal8Bit(argv[1]), reply)) {
        std::fprintf(stderr, "usage: minimal_host REPLY.json\n");
        return 1;
    }
    MemoryHost host;
    build(host);
    jsonDoorWin2HBX(&host, reply.object());
    return tellOpenings(host) > 0 ? 0 : 1;
}
