#include "cli/TypeTitles.h"
#include "platform/services/HBXElementTypes.h"

namespace orvcad {

namespace {

namespace type = hbx::type;

struct Title
{
    qint64 type;
    const char *text;
};
constexpr Title kTitles[] = {
    {type::forceWall, "concrete wall"},
    {type::partitionWall, "partition wall"},
    {type::door, "door"},
    {type::window, "window"},
    {type::doorWithWindow, "door and window"},
    {type::wallOpening, "wall opening"},
    {type::beam, "beam"},
    {type::linkBeam, "link beam"},
    {type::tieBeam, "tie beam"},
    {type::slab, "slab"},
    {type::slabBar, "slab bar"},
    {type::slabNegativeBar, "slab negative bar"},
    {type::slabHole, "slab opening"},
    {type::column, "column"},
    {type::tieColumn, "tie column"},
    {type::foundationBeam, "foundation beam"},
    {type::raft, "raft"},
    {type::raftBar, "raft bar"},
    {type::raftNegativeBar, "raft negative bar"},
    {type::isolatedFoundation, "isolated footing"},
    {type::pileCap, "pile cap"},
    {type::pile, "pile"},
    {type::axisGrid, "axis grid"},
    {type::axisLine, "axis line"},
    {type::isolatedFoundationUnit, "footing unit"},
    {type::pileCapUnit, "pile cap unit"},
    {type::retainingWall, "retaining wall"},
    {type::curtainWall, "curtain wall"},
    {type::masonryColumn, "masonry column"},
    {type::brickWall, "brick wall"},
};

} // namespace

QString typeTitle(qint64 type)
{
    for (const Title &title : kTitles)
        if (title.type == type)
            return QString::fromLatin1(title.text);
    return QStringLiteral("type");
}

} // namespace orvcad
