#include "drawing/ORVCADDrawingElementMapping.h"

#include "drawing/DrawingFields.h"
#include "drawing/DrawingKeys.h"
#include "platform/services/dwgxCommonUtil.h"

#include <memory>

using namespace encoding;
namespace key = drawing::key;

namespace {

/** A set of types, as an array of their names. */
struct TypeNames
{
    static QJsonValue toValue(const QSet<int> &types)
    {
        QJsonArray names;
        for (const int type : types)
            names.append(dwgxCommonUtil::getElementTypeName(type).second);
        return names;
    }
    static QSet<int> fromValue(const QJsonValue &json, const QSet<int> & /*fallback*/)
    {
        QSet<int> types;
        const QJsonArray names = json.toArray();
        for (const QJsonValue name : names)
            types.insert(dwgxCommonUtil::getElementTypeByName(name.toString()));
        return types;
    }
};

} // namespace

struct ORVCADDrawingElementMapping::Fields
{
    static constexpr auto table = std::make_tuple(
        fieldRequired(key::drawingName, &ORVCADDrawingElementMapping::m_drawingName),
        drawing::fieldRequiredAs<TypeNames>(key::elementTypes, &ORVCADDrawingElementMapping::m_elementTypes));
};

QJsonObject ORVCADDrawingElementMapping::toJson() const { return writtenFields(*this, Fields::table); }

ORVCADDrawingElementMapping *ORVCADDrawingElementMapping::fromJson(const QJsonObject &json)
{
    return drawing::readOrNull(std::make_unique<ORVCADDrawingElementMapping>(QString()), Fields::table, json);
}
