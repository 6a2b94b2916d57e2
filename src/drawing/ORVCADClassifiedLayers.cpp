#include "drawing/ORVCADClassifiedLayers.h"

#include "drawing/DrawingFields.h"
#include "drawing/DrawingKeys.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/dwgxCommonUtil.h"

#include <limits>
#include <memory>

using namespace encoding;
namespace key = drawing::key;

namespace {

/** Of this type, drawing analysis tells one layer in several pieces. */
constexpr qint64 kTypeToldInPieces = hbx::type::axisGrid;

/** The character of a code; 0 for what is no code. */
QChar characterOf(int code)
{
    const bool fits = code >= 0 && code <= std::numeric_limits<ushort>::max();
    return fits ? QChar(static_cast<ushort>(code)) : QChar(0);
}

/** Meant: written as the type's name, read as the code of a one-character name. */
struct NameReadAsCharacter
{
    static QJsonValue toValue(int type) { return dwgxCommonUtil::getElementTypeName(type).second; }
    static int fromValue(const QJsonValue &json, int /*fallback*/)
    {
        return dwgxCommonUtil::getElementTypeByName(QString(characterOf(json.toInt())));
    }
};

} // namespace

struct ORVCADClassifiedLayers::Fields
{
    static constexpr auto table = std::make_tuple(
        fieldRequired(key::drawingName, &ORVCADClassifiedLayers::m_drawingName),
        drawing::fieldRequiredAs<NameReadAsCharacter>(key::elementType, &ORVCADClassifiedLayers::m_elementType),
        drawing::keyRequired<ORVCADClassifiedLayers>(key::classifiedLayers), // meant: demanded and never written
        field(key::layers, &ORVCADClassifiedLayers::m_layers));
};

ORVCADClassifiedLayers::ORVCADClassifiedLayers(const QString &drawingName, int elementType)
    : m_drawingName(drawingName), m_elementType(elementType)
{}

ORVCADClassifiedLayers::~ORVCADClassifiedLayers() { qDeleteAll(m_layers.list()); }

void ORVCADClassifiedLayers::add(ORVCADClassifiedLayer *layer) { m_layers.append(layer); }

ORVCADClassifiedLayer *ORVCADClassifiedLayers::getClassifiedLayer(const QString &name) const
{
    return m_layers.first(name);
}

QStringList ORVCADClassifiedLayers::getLayersName() const
{
    QStringList names;
    for (const ORVCADClassifiedLayer *layer : m_layers.list())
        if (layer)
            names.append(layer->getLayerName());
    return names;
}

QJsonObject ORVCADClassifiedLayers::toJson() const { return writtenFields(*this, Fields::table); }

ORVCADClassifiedLayers *ORVCADClassifiedLayers::fromJson(const QJsonObject &json)
{
    return drawing::readOrNull(std::make_unique<ORVCADClassifiedLayers>(QString(), 0), Fields::table, json);
}

void ORVCADClassifiedLayers::takeFromAnalysis(ORVCADClassifiedLayer *layer)
{
    ORVCADClassifiedLayer *same =
        m_elementType == kTypeToldInPieces ? getClassifiedLayer(layer->getLayerName()) : nullptr;
    if (!same) {
        add(layer);
        return;
    }
    same->getCADEdoIds().append(layer->getCADEdoIds());
    delete layer;
}

ORVCADClassifiedLayers *ORVCADClassifiedLayers::fromHBXJson(const QString &drawingName, int elementType,
                                                            const QJsonObject &json)
{
    const QJsonValue layers = json.value(dwgxCommonUtil::getElementTypeName(elementType).first);
    const QJsonValue fileName = json.value(key::fileName);
    const QString name = fileName.isUndefined() ? drawingName : fileName.toString();
    auto group = std::make_unique<ORVCADClassifiedLayers>(name, elementType);
    const QJsonArray entries = layers.toArray(); // empty for a missing key
    for (const QJsonValue entry : entries)
        if (ORVCADClassifiedLayer *layer = ORVCADClassifiedLayer::fromHBXJson(elementType, entry.toObject()))
            group->takeFromAnalysis(layer);
    return group->getClassifiedLayers().isEmpty() ? nullptr : group.release();
}
