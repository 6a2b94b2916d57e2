#include "drawing/ORVCADDrawingElementMappings.h"

#include <memory>

namespace {

constexpr int kNoType = -1;

} // namespace

ORVCADDrawingElementMappings::~ORVCADDrawingElementMappings() { qDeleteAll(m_mappings.list()); }

void ORVCADDrawingElementMappings::addMapping(const QString &drawing, int type)
{
    if (drawing.isEmpty() || type == kNoType)
        return;
    ORVCADDrawingElementMapping *mapping = getDrawingElementMapping(drawing);
    if (!mapping) {
        mapping = new ORVCADDrawingElementMapping(drawing);
        m_mappings.append(mapping);
    }
    mapping->addElementType(type);
}

void ORVCADDrawingElementMappings::addMapping(const QString &drawing, const QSet<int> &types)
{
    const QList<int> all = types.values(); // they may be those of the record itself
    for (const int type : all)
        addMapping(drawing, type);
}

void ORVCADDrawingElementMappings::addMapping(ORVCADDrawingElementMapping *mapping)
{
    if (mapping)
        m_mappings.append(mapping);
}

ORVCADDrawingElementMapping *ORVCADDrawingElementMappings::getDrawingElementMapping(const QString &drawing) const
{
    return m_mappings.first(drawing);
}

QStringList ORVCADDrawingElementMappings::getMatchDrawings(int type) const
{
    QStringList drawings;
    for (const ORVCADDrawingElementMapping *mapping : m_mappings.list())
        if (mapping && mapping->getElementTypes().contains(type))
            drawings.append(mapping->getDrawingName());
    return drawings;
}

QSet<int> ORVCADDrawingElementMappings::getMatchElementType(const QString &drawing) const
{
    const ORVCADDrawingElementMapping *mapping = drawing.isEmpty() ? nullptr : getDrawingElementMapping(drawing);
    return mapping ? mapping->getElementTypes() : QSet<int>();
}

void ORVCADDrawingElementMappings::removeMapping(const QString &drawing)
{
    if (!drawing.isEmpty())
        m_mappings.takeFirst(drawing); // meant: the record is given up, not deleted
}

void ORVCADDrawingElementMappings::removeMapping(const QString &drawing, int type)
{
    if (drawing.isEmpty() || type == kNoType)
        return;
    if (ORVCADDrawingElementMapping *mapping = getDrawingElementMapping(drawing))
        mapping->removeElementType(type);
}

void ORVCADDrawingElementMappings::removeMapping(const QString &drawing, const QSet<int> &types)
{
    const QList<int> all = types.values(); // they may be those of the record itself
    for (const int type : all)
        removeMapping(drawing, type);
}

QJsonValue ORVCADDrawingElementMappings::toJson() const { return encoding::ValueKind<Mappings>::toValue(m_mappings); }

ORVCADDrawingElementMappings *ORVCADDrawingElementMappings::fromJson(const QJsonValue &json)
{
    auto mappings = std::make_unique<ORVCADDrawingElementMappings>();
    mappings->m_mappings = encoding::ValueKind<Mappings>::fromValue(json, {});
    return mappings.release();
}
