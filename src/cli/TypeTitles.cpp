#include "cli/TypeTitles.h"

namespace orvcad {

namespace {

struct Title
{
    qint64 type;
    const char *text;
};
// clang-format off
constexpr Title kTitles[] = {
    {0, "concrete wall"},     {1, "partition wall"},  {4, "door"},             {5, "window"},
    {6, "door and window"},   {7, "wall opening"},    {15, "beam"},            {17, "link beam"},
    {18, "tie beam"},         {19, "slab"},           {22, "slab bar"},        {23, "slab negative bar"},
    {24, "slab opening"},     {25, "column"},         {26, "tie column"},      {47, "foundation beam"},
    {48, "raft"},             {49, "raft bar"},       {50, "raft negative bar"}, {52, "isolated footing"},
    {53, "pile cap"},         {54, "pile"},           {74, "axis grid"},       {75, "axis line"},
    {82, "footing unit"},     {83, "pile cap unit"},  {202, "retaining wall"}, {1001, "curtain wall"},
    {1002, "masonry column"}, {1003, "brick wall"},
};
// clang-format on

} // namespace

QString typeTitle(qint64 type)
{
    for (const Title &title : kTitles)
        if (title.type == type)
            return QString::fromLatin1(title.text);
    return QStringLiteral("type");
}

} // namespace orvcad
