// Reads a floors document and tells what stands on what.

#include <drawing/ORVCADFloors.h>
#include <encoding/JsonDocumentFile.h>

#include <QJsonDocument>

#include <cstdio>
#include <memory>

namespace {

QByteArray nameOf(const ORVCADFloor *floor) { return floor ? floor->name().toUtf8() : QByteArray("-"); }

void tell(const ORVCADFloors &floors, const ORVCADFloor &floor)
{
    std::printf("%-12s %8.3f m  %6.3f m  below %-12s above %s\n", nameOf(&floor).constData(), floor.btmElev(),
                floor.height(), nameOf(floors.getDownstairFloor(&floor)).constData(),
                nameOf(floors.getUpstairFloor(&floor)).constData());
}

} // namespace

int main(int argc, char **argv)
{
    QJsonDocument document;
    if (argc != 2 || !loadJsonDocumentFromFile(QString::fromLocal8Bit(argv[1]), document)) {
        std::fprintf(stderr, "usage: floors_reader FLOORS.json\n");
        return 1;
    }
    const std::unique_ptr<ORVCADFloors> floors(ORVCADFloors::fromJson(document.object()));
    if (!floors) {
        std::fprintf(stderr, "%s is no floors document\n", argv[1]);
        return 2;
    }
    std::printf("%s: %d floors, highest %s\n", qPrintable(floors->getAreaName()), floors->getCount(),
                nameOf(floors->getHighestFloor()).constData());
    for (int i = 0; i < floors->getCount(); ++i)
        tell(*floors, *floors->getFloor(i));
    return 0;
}
