#include "cli/TypeTitles.h"

#include "cli/Message.h"
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
    {type::forceWall, QT_TRANSLATE_NOOP("orvcad", "concrete wall")},
    {type::partitionWall, QT_TRANSLATE_NOOP("orvcad", "partition wall")},
    {type::door, QT_TRANSLATE_NOOP("orvcad", "door")},
    {type::window, QT_TRANSLATE_NOOP("orvcad", "window")},
    {type::doorWithWindow, QT_TRANSLATE_NOOP("orvcad", "door and window")},
    {type::wallOpening, QT_TRANSLATE_NOOP("orvcad", "wall opening")},
    {type::beam, QT_TRANSLATE_NOOP("orvcad", "beam")},
    {type::linkBeam, QT_TRANSLATE_NOOP("orvcad", "link beam")},
    {type::tieBeam, QT_TRANSLATE_NOOP("orvcad", "tie beam")},
    {type::slab, QT_TRANSLATE_NOOP("orvcad", "slab")},
    {type::slabBar, QT_TRANSLATE_NOOP("orvcad", "slab bar")},
    {type::slabNegativeBar, QT_TRANSLATE_NOOP("orvcad", "slab negative bar")},
    {type::slabHole, QT_TRANSLATE_NOOP("orvcad", "slab opening")},
    {type::column, QT_TRANSLATE_NOOP("orvcad", "column")},
    {type::tieColumn, QT_TRANSLATE_NOOP("orvcad", "tie column")},
    {type::foundationBeam, QT_TRANSLATE_NOOP("orvcad", "foundation beam")},
    {type::raft, QT_TRANSLATE_NOOP("orvcad", "raft")},
    {type::raftBar, QT_TRANSLATE_NOOP("orvcad", "raft bar")},
    {type::raftNegativeBar, QT_TRANSLATE_NOOP("orvcad", "raft negative bar")},
    {type::isolatedFoundation, QT_TRANSLATE_NOOP("orvcad", "isolated footing")},
    {type::pileCap, QT_TRANSLATE_NOOP("orvcad", "pile cap")},
    {type::pile, QT_TRANSLATE_NOOP("orvcad", "pile")},
    {type::axisGrid, QT_TRANSLATE_NOOP("orvcad", "axis grid")},
    {type::axisLine, QT_TRANSLATE_NOOP("orvcad", "axis line")},
    {type::isolatedFoundationUnit, QT_TRANSLATE_NOOP("orvcad", "footing unit")},
    {type::pileCapUnit, QT_TRANSLATE_NOOP("orvcad", "pile cap unit")},
    {type::retainingWall, QT_TRANSLATE_NOOP("orvcad", "retaining wall")},
    {type::curtainWall, QT_TRANSLATE_NOOP("orvcad", "curtain wall")},
    {type::masonryColumn, QT_TRANSLATE_NOOP("orvcad", "masonry column")},
    {type::brickWall, QT_TRANSLATE_NOOP("orvcad", "brick wall")},
};

const char *titleOf(qint64 type)
{
    for (const Title &title : kTitles)
        if (title.type == type)
            return title.text;
    return QT_TRANSLATE_NOOP("orvcad", "type");
}

} // namespace

QString typeTitle(qint64 type) { return QString::fromLatin1(titleOf(type)); }

QString shownTypeTitle(qint64 type) { return Message::tr(titleOf(type)); }

} // namespace orvcad
