#include "platform/embedded/HBXExchangeWriter.h"

#include "platform/embedded/ExchangeContent.h"
#include "platform/embedded/ExchangeFormat.h"
#include "platform/embedded/ExchangeProperties.h"
#include "platform/embedded/ExchangeShape.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace hbx::embedded {
namespace {

namespace key = exchange::key;

// Every writer below leaves out what stands at its start value.

void insertText(QJsonObject &json, QLatin1String member, const QString &text)
{
    if (!text.isEmpty())
        json.insert(member, text);
}

void insertNumber(QJsonObject &json, QLatin1String member, qint64 number, qint64 startValue = 0)
{
    if (number != startValue)
        json.insert(member, number);
}

void insertArray(QJsonObject &json, QLatin1String member, const QJsonArray &array)
{
    if (!array.isEmpty())
        json.insert(member, array);
}

class DocumentWriter
{
public:
    explicit DocumentWriter(const ProjectRecord &project) : m_project(project), m_content(project) {}

    QJsonObject document() const
    {
        QJsonObject json{{key::format, exchange::kFormatName},
                         {key::version, exchange::kVersion},
                         {key::name, m_project.name},
                         {key::regions, regions()}};
        insertText(json, key::source, m_project.source);
        insertText(json, key::planeRule, m_project.planeRule);
        insertArray(json, key::options, options());
        insertArray(json, key::materials, materials());
        return json;
    }

private:
    QJsonArray options() const
    {
        QJsonArray rows;
        for (const OptionRecord &row : m_project.options)
            rows.append(QJsonObject{{key::group, row.group}, {key::name, row.name}, {key::value, row.value}});
        return rows;
    }

    QJsonArray materials() const
    {
        QJsonArray rows;
        for (const MaterialRecord &row : m_project.materials)
            rows.append(QJsonObject{{key::number, row.number}, {key::name, row.name}});
        return rows;
    }

    QJsonArray regions() const
    {
        QJsonArray regions;
        for (const RegionRecord &region : m_project.regions) {
            QJsonArray floors;
            for (const FloorRecord *each : m_content.floorsOf(region.id))
                floors.append(floor(*each));
            regions.append(QJsonObject{{key::name, region.name}, {key::floors, floors}});
        }
        return regions;
    }

    QJsonObject floor(const FloorRecord &record) const
    {
        const QHash<qint64, int> order = m_content.creationOrderOf(record.id);
        QJsonArray elements;
        for (const ElementRecord *each : m_content.elementsOf(record.id))
            elements.append(element(*each, order));
        QJsonObject json{{key::name, record.name},
                         {key::code, record.code},
                         {key::bottomElev, record.bottomElev},
                         {key::height, record.height},
                         {key::standardFloorCount, record.standardFloorCount},
                         {key::foundation, record.foundation},
                         {key::elements, elements}};
        insertText(json, key::remark, record.remark);
        return json;
    }

    QJsonObject element(const ElementRecord &record, const QHash<qint64, int> &order) const
    {
        QJsonArray units;
        for (const ElementRecord *unit : m_content.unitsOf(record.id))
            units.append(definition(*unit));
        QJsonArray drawObjs;
        for (const DrawObjRecord *each : m_content.drawObjsOf(record.id))
            drawObjs.append(drawObj(*each, record, order));
        QJsonObject json = definition(record);
        insertArray(json, key::units, units);
        insertArray(json, key::drawObjects, drawObjs);
        return json;
    }

    QJsonObject definition(const ElementRecord &record) const
    {
        QJsonObject json{{key::name, record.name}, {key::type, record.type}};
        insertNumber(json, key::subType, record.subType);
        insertNumber(json, key::orderNumber, record.orderNumber);
        insertProperties(json, record.properties, record.type);
        return json;
    }

    void insertProperties(QJsonObject &json, const PropertyRecords &properties, qint64 type) const
    {
        const auto keyOfId = [this](const QString &id) { return m_content.keyOfId(id); };
        if (!properties.empty())
            json.insert(key::properties,
                        propertiesToJson(properties, HBXPropertyCatalogue::instance().properties(type), keyOfId));
    }

    QJsonObject drawObj(const DrawObjRecord &record, const ElementRecord &element,
                        const QHash<qint64, int> &order) const
    {
        QJsonObject json = placed(record, element, order);
        const DrawObjRecord *next = m_content.drawObj(record.next);
        if (next && next->elementId == record.elementId)
            json.insert(key::next, m_content.positionOf(record.next));
        insertAttachment(json, record);
        QJsonArray spans;
        for (const QJsonObject &span : record.spans)
            spans.append(span);
        insertArray(json, key::spans, spans);
        insertArray(json, key::children, children(record, element, order));
        return json;
    }

    void insertAttachment(QJsonObject &json, const DrawObjRecord &record) const
    {
        const DrawObjRecord *host = m_content.drawObj(record.attachedTo);
        const ElementRecord *element = host ? m_content.element(host->elementId) : nullptr;
        if (element)
            json.insert(key::attachedTo, QJsonArray{element->type, element->name, m_content.positionOf(host->id)});
    }

    QJsonArray children(const DrawObjRecord &owner, const ElementRecord &element, const QHash<qint64, int> &order) const
    {
        QHash<qint64, int> unitPositions;
        for (const ElementRecord *unit : m_content.unitsOf(element.id))
            unitPositions.insert(unit->id, unitPositions.size());
        QJsonArray children;
        for (const DrawObjRecord *child : m_content.childrenOf(owner.id)) {
            const ElementRecord *unit = m_content.element(child->elementId);
            if (!unit || !unitPositions.contains(unit->id))
                continue;
            QJsonObject json = placed(*child, *unit, order);
            json.insert(key::unit, unitPositions.value(unit->id));
            children.append(json);
        }
        return children;
    }

    /** What objects and children have in common. */
    QJsonObject placed(const DrawObjRecord &record, const ElementRecord &element, const QHash<qint64, int> &order) const
    {
        QJsonObject json{{key::shape, shapeToJson(record.shape)}};
        insertNumber(json, key::type, record.type, element.type);
        insertNumber(json, key::subType, record.subType, element.subType);
        insertProperties(json, record.properties, record.type);
        if (record.section)
            json.insert(key::section,
                        QJsonObject{{key::number, record.section->number}, {key::kind, record.section->kind}});
        insertNumber(json, key::layer, record.layer);
        insertNumber(json, key::state, record.state);
        insertText(json, key::key, m_content.keyOf(record));
        if (!order.isEmpty())
            json.insert(key::order, order.value(record.id));
        return json;
    }

    const ProjectRecord &m_project;
    ExchangeContent m_content;
};

} // namespace

QByteArray HBXExchangeWriter::write(const ProjectRecord &project)
{
    return QJsonDocument(DocumentWriter(project).document()).toJson();
}

} // namespace hbx::embedded
