#include "drawing/ORVCADFloors.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/HBXModelException.h"

#include <cstdio>

/** Uses a symbol of each library; 0 when both did their part. */
int main()
{
    ORVCADFloors floors;
    floors.addFloor(new ORVCADFloor(QStringLiteral("F1"), 0.0, 3300.0));
    try {
        throw HBXModelException(QStringLiteral("thrown across libraries"));
    } catch (const HBXModelException &exception) {
        std::puts(exception.what());
    }
    return floors.getFloors().size() == 1 ? 0 : 1;
}
