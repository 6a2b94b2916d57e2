#include "platform/embedded/HBXDrawingLayers.h"

#include "platform/services/HBXElementTypeTable.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXOptionNames.h"
#include "platform/services/OptionGroupReader.h"

#include <QCoreApplication>

#include <iterator>
#include <limits>

namespace hbx::embedded {
namespace {

/** Titles of the layer manager for a type; null where it has none. */
struct LayerTitles
{
    qint64 type;
    const char *lines;
    const char *texts;
};

constexpr LayerTitles kTitles[] = {
    {type::forceWall, s_strConcreteWall, s_strWallLabel},
    {type::partitionWall, nullptr, s_strWallLabel},
    {type::door, s_strWindowsLine, s_strHoleLabel},
    {type::window, s_strWindowsLine, s_strHoleLabel},
    {type::doorWithWindow, s_strWindowsLine, s_strHoleLabel},
    {type::wallOpening, s_strWindowsLine, s_strHoleLabel},
    {type::beam, nullptr, s_strBeamLabel},
    {type::linkBeam, nullptr, s_strBeamLabel},
    {type::tieBeam, nullptr, s_strBeamLabel},
    {type::column, s_strColumn, nullptr},
    {type::tieColumn, s_strColumn, nullptr},
    {type::retainingWall, nullptr, s_strWallLabel},
    {type::curtainWall, nullptr, s_strWallLabel},
    {type::masonryColumn, s_strColumn, nullptr},
    {type::brickWall, s_strBrickWall, s_strWallLabel},
};

const LayerTitles *titlesOf(qint64 type)
{
    for (const LayerTitles &titles : kTitles)
        if (titles.type == type)
            return &titles;
    return nullptr;
}

/** The first nine drawing colours: red, yellow, green, cyan, blue, magenta, ink (drawn black on paper), two greys. */
constexpr int kDrawingColours[] = {0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF, 0x0000FF,
                                   0xFF00FF, 0x000000, 0x808080, 0xC0C0C0};

int squaredDistance(int rgb, int other)
{
    int sum = 0;
    for (const int shift : {0, 8, 16}) {
        const int difference = ((rgb >> shift) & 0xFF) - ((other >> shift) & 0xFF);
        sum += difference * difference;
    }
    return sum;
}

} // namespace

HBXDrawingLayers::HBXDrawingLayers(IHBXModel *model) : m_storedNames(readOptionGroup(model, ptnCADLayerNames)) {}

QString HBXDrawingLayers::storedName(const QString &label) const
{
    const QString name = m_storedNames.value(label);
    return name.isEmpty() ? label : name;
}

HBXDrawingLayers::Names HBXDrawingLayers::namesOf(const ElementTypeInfo &type) const
{
    const auto title = [](const char *label) { return QCoreApplication::translate(s_strHBXCADLayerManager, label); };
    const LayerTitles *titles = titlesOf(type.number);
    const QString own = type.name();
    return {storedName(titles && titles->lines ? title(titles->lines) : own),
            storedName(titles && titles->texts ? title(titles->texts) : own + QStringLiteral("标注"))};
}

int HBXDrawingLayers::colorIndexOf(int rgb)
{
    int nearest = 0;
    int least = std::numeric_limits<int>::max();
    for (int i = 0; i < static_cast<int>(std::size(kDrawingColours)); ++i) {
        const int distance = squaredDistance(rgb, kDrawingColours[i]);
        if (distance < least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest + 1;
}

} // namespace hbx::embedded
