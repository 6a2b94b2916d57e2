#include "cli/RecordFacts.h"

#include "platform/embedded/ExchangeFormat.h"
#include "platform/embedded/ExchangeProperties.h"
#include "platform/embedded/ExchangeShape.h"

#include <QJsonArray>

#include <algorithm>

using namespace hbx::embedded;

namespace orvcad {

namespace {

namespace key = exchange::key;

/** Names of options with their values, since a name may stand twice; by group. */
QJsonObject optionFacts(const std::vector<OptionRecord> &options)
{
    QMap<QString, QMap<QString, QJsonArray>> values;
    for (const OptionRecord &row : options)
        values[row.group][row.name].append(row.value);
    QJsonObject groups;
    for (auto group = values.cbegin(); group != values.cend(); ++group) {
        QJsonObject names;
        for (auto name = group->cbegin(); name != group->cend(); ++name)
            names.insert(name.key(), name->size() == 1 ? name->first() : QJsonValue(*name));
        groups.insert(group.key(), names);
    }
    return groups;
}

QJsonObject materialFacts(const std::vector<MaterialRecord> &materials)
{
    QJsonObject names;
    for (const MaterialRecord &row : materials)
        names.insert(QString::number(row.number), row.name);
    return names;
}

QJsonObject propertyFacts(const PropertyRecords &properties, qint64 type, const ReferenceMap &objects)
{
    return propertiesToJson(properties, HBXPropertyCatalogue::instance().properties(type), objects);
}

} // namespace

QJsonObject factsOf(const ProjectSettings &settings)
{
    return {{key::name, settings.name},
            {key::source, settings.source},
            {key::planeRule, settings.planeRule},
            {key::options, optionFacts(settings.options)},
            {key::materials, materialFacts(settings.materials)}};
}

QJsonObject factsOf(const FloorRecord &floor)
{
    return {{key::name, floor.name},
            {key::code, floor.code},
            {key::bottomElev, floor.bottomElev},
            {key::height, floor.height},
            {key::standardFloorCount, floor.standardFloorCount},
            {key::foundation, floor.foundation},
            {key::remark, floor.remark}};
}

QJsonObject factsOf(const ElementRecord &element, const ReferenceMap &objects)
{
    return {{key::name, element.name},
            {key::type, element.type},
            {key::subType, element.subType},
            {key::orderNumber, element.orderNumber},
            {key::properties, propertyFacts(element.properties, element.type, objects)}};
}

QJsonObject factsOf(const DrawObjRecord &object, const ReferenceMap &objects)
{
    QJsonObject facts{{key::type, object.type},
                      {key::subType, object.subType},
                      {key::shape, shapeToJson(object.shape)},
                      {key::properties, propertyFacts(object.properties, object.type, objects)},
                      {key::layer, object.layer},
                      {key::state, object.state}};
    if (object.section)
        facts.insert(key::section,
                     QJsonObject{{key::number, object.section->number}, {key::kind, object.section->kind}});
    if (!object.spans.empty()) {
        QJsonArray spans;
        for (const QJsonObject &span : object.spans)
            spans.append(span);
        facts.insert(key::spans, spans);
    }
    return facts;
}

bool namesObjects(const PropertyRecords &properties, qint64 type)
{
    return std::any_of(properties.begin(), properties.end(), [type](const auto &property) {
        const PropertyEntry *entry = HBXPropertyCatalogue::instance().find(type, property.first, true);
        return entry && entry->namesDrawObjs();
    });
}

} // namespace orvcad
