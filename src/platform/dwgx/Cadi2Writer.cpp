#include "platform/dwgx/Cadi2Writer.h"

#include "platform/dwgx/Cadi2Format.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace dwgx {
namespace {

namespace key = cadi2::key;

void putText(QJsonObject &json, QLatin1String name, const QString &text)
{
    if (!text.isEmpty())
        json.insert(name, text);
}

void putExtData(QJsonObject &json, const DWGXObject &object)
{
    if (!object.getCADExtData())
        return;
    QJsonObject members;
    const auto &values = object.getCADExtData()->values();
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        members.insert(value.key(), value.value());
    json.insert(key::ext, members);
}

QJsonObject viewerJson(const DWGXViewerInfoData &viewer)
{
    QJsonArray orientation;
    for (const float term : viewer.orientation)
        orientation.append(static_cast<double>(term));
    return {{key::orientation, orientation},
            {key::zoom, static_cast<double>(viewer.zoom)},
            {key::turn, static_cast<double>(viewer.turn)},
            {key::flags, static_cast<qint64>(viewer.flags)}};
}

QJsonObject entityJson(const DWGXEntity &entity)
{
    QJsonObject json{{key::id, entity.id}};
    if (entity.color != kColorByLayer)
        json.insert(key::color, entity.color);
    if (entity.blockId != 0)
        json.insert(key::block, entity.blockId);
    putExtData(json, entity);
    return json;
}

QJsonObject lineJson(const DWGXLine &line)
{
    QJsonObject json = entityJson(line);
    json.insert(key::curve, QString::fromStdString(line.curve->ToText()));
    return json;
}

QJsonObject textJson(const DWGXText &text)
{
    QJsonObject json = entityJson(text);
    json.insert(key::text, text.content);
    json.insert(key::point, QJsonArray{text.point.x, text.point.y});
    json.insert(key::height, text.height);
    if (text.angle != 0.0)
        json.insert(key::angle, text.angle);
    return json;
}

template <typename Entity>
void putEntities(QJsonObject &json, QLatin1String name, const std::vector<Entity> &entities,
                 QJsonObject (*entityToJson)(const Entity &))
{
    if (entities.empty())
        return;
    QJsonArray array;
    for (const Entity &entity : entities)
        array.append(entityToJson(entity));
    json.insert(name, array);
}

QJsonObject layerJson(const DWGXLayer &layer)
{
    QJsonObject json{{key::name, layer.name}, {key::color, layer.color}};
    putEntities(json, key::lines, layer.lines, &lineJson);
    putEntities(json, key::texts, layer.texts, &textJson);
    return json;
}

} // namespace

QByteArray writeCadi2(const DWGXModel &model, const QString &title, const QString &remark)
{
    QJsonArray layers;
    for (const DWGXLayer &layer : model.layers())
        layers.append(layerJson(layer));
    QJsonObject json{{key::format, cadi2::kFormatName},
                     {key::version, cadi2::kVersion},
                     {key::viewer, viewerJson(model.getViewerInfoData())},
                     {key::layers, layers}};
    putText(json, key::title, title.isEmpty() ? model.getTitle() : title);
    putText(json, key::remark, remark.isEmpty() ? model.getRemark() : remark);
    putExtData(json, model);
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

} // namespace dwgx
