#include "drawing/ORVCADFloor.h"

#include "drawing/DrawingFields.h"
#include "drawing/DrawingKeys.h"
#include "drawing/FloorElevation.h"

#include <memory>

using namespace encoding;
namespace key = drawing::key;

namespace {

/** Taken wherever a floor has no height, m. */
constexpr double kHeightOfFloorWithoutHeight = 3.0;

const QString kBaseFloorWord = QStringLiteral("基础");
constexpr QLatin1String kBaseFloorCode = "0"_key;
constexpr QLatin1String kFirstFloorMark = "1"_key; // as code and as name

} // namespace

struct ORVCADFloor::Fields
{
    static constexpr auto table = std::make_tuple(
        fieldRequired(key::name, &ORVCADFloor::m_name),
        field(key::code, &ORVCADFloor::m_code, Flow::WriteOnly), // meant: a floor that was read has no code
        fieldRequired(key::bottomElev, &ORVCADFloor::m_btmElev), fieldRequired(key::height, &ORVCADFloor::m_height),
        fieldRequired(key::stdCount, &ORVCADFloor::m_stdCount), // meant: a mistyped count reads as 0, not as 1
        fieldRequired(key::remark, &ORVCADFloor::m_remark));
};

ORVCADFloor::ORVCADFloor(const QString &name, double btmElev, double height)
    : ORVCADFloor(name, btmElev, height, 1, QString())
{}

ORVCADFloor::ORVCADFloor(const QString &name, double btmElev, double height, int stdCount, const QString &remark)
    : m_name(name), m_btmElev(btmElev), m_height(height), m_stdCount(stdCount), m_remark(remark)
{}

double ORVCADFloor::topElev() const
{
    using namespace drawing::elevation;
    return m_btmElev + (isEqual(m_height, 0.0) ? kHeightOfFloorWithoutHeight : m_height);
}

bool ORVCADFloor::isBaseFloor() const { return m_name.contains(kBaseFloorWord) || m_code == kBaseFloorCode; }

bool ORVCADFloor::isFirstFloor() const
{
    using namespace drawing::elevation;
    const bool spansZero = isLessOrEqual(m_btmElev, 0.0) && isGreater(topElev(), 0.0);
    return m_code == kFirstFloorMark || m_name == kFirstFloorMark || spansZero;
}

QJsonObject ORVCADFloor::toJson() const { return writtenFields(*this, Fields::table); }

ORVCADFloor *ORVCADFloor::fromJson(const QJsonObject &json)
{
    return drawing::readOrNull(std::make_unique<ORVCADFloor>(), Fields::table, json);
}
