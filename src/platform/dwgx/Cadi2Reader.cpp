#include "platform/dwgx/Cadi2Reader.h"

#include "platform/dwgx/Cadi2Format.h"
#include "platform/dwgx/Reason.h"

#include <QJsonDocument>

#include <cmath>
#include <limits>

namespace dwgx {
namespace {

namespace key = cadi2::key;

constexpr int kLargestInt = std::numeric_limits<int>::max();

QJsonObject parseDocument(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    const JsonPlace place;
    if (error.error != QJsonParseError::NoError)
        place.refuse(Reason::tr("is not JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset));
    if (!document.isObject())
        place.refuse(Reason::tr("is not an object"));
    return document.object();
}

/** Told apart before anything else is looked at, so that a newer file is called newer and not faulty. */
void checkFormat(const QJsonObject &document)
{
    const JsonPlace place;
    if (document.value(key::format) != QJsonValue(cadi2::kFormatName))
        JsonPlace(place, key::format).refuse(Reason::tr("is not \"cadi2\""));
    const double version = document.value(key::version).toDouble(std::nan(""));
    if (version > cadi2::kVersion)
        JsonPlace(place, key::version).refuse(Reason::tr("is newer than %1").arg(cadi2::kVersion));
    if (version != cadi2::kVersion)
        JsonPlace(place, key::version).refuse(Reason::tr("is not %1").arg(cadi2::kVersion));
}

void readExtData(const StrictObject &owner, DWGXObject &target)
{
    if (!owner.has(key::ext))
        return;
    const JsonPlace place(owner.place(), key::ext);
    const QJsonValue ext = owner.value(key::ext);
    if (!ext.isObject())
        place.refuse(Reason::tr("is not an object"));
    const QJsonObject members = ext.toObject();
    target.setCADExtData(new HBXCADExtData);
    for (auto member = members.constBegin(); member != members.constEnd(); ++member) {
        if (!member.value().isString() || member.value().toString().isEmpty())
            place.refuse(Reason::tr("has no text under \"%1\"").arg(member.key()));
        target.getCADExtData()->setValue(member.key(), member.value().toString());
    }
}

float singlePrecision(const JsonPlace &place, double value)
{
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max()))
        place.refuse(Reason::tr("is out of range"));
    return static_cast<float>(value);
}

void readViewer(const QJsonValue &value, const JsonPlace &place, DWGXModel &model)
{
    const StrictObject json(value, place, {key::orientation, key::zoom, key::turn, key::flags});
    DWGXViewerInfoData viewer;
    const std::vector<double> orientation = json.numbers(key::orientation, static_cast<int>(viewer.orientation.size()));
    for (std::size_t i = 0; i < orientation.size(); ++i)
        viewer.orientation[i] = singlePrecision({place, key::orientation}, orientation[i]);
    viewer.zoom = singlePrecision({place, key::zoom}, json.number(key::zoom));
    viewer.turn = singlePrecision({place, key::turn}, json.number(key::turn));
    viewer.flags = static_cast<quint32>(json.integer(key::flags, 0, std::numeric_limits<quint32>::max()));
    model.setViewerInfoData(viewer);
}

void readEntity(const StrictObject &json, DWGXEntity &entity)
{
    entity.id = static_cast<int>(json.integer(key::id, 1, kLargestInt));
    if (json.has(key::color))
        entity.color = static_cast<int>(json.integer(key::color, 1, kColorByLayer));
    if (json.has(key::block))
        entity.blockId = static_cast<int>(json.integer(key::block, 0, kLargestInt));
    readExtData(json, entity);
}

vks::CRefPtr<vks::CCurve2d> readCurve(const StrictObject &json)
{
    const QByteArray text = json.text(key::curve).toUtf8();
    // The kernel reads up to the first zero byte, so a text with one would be accepted by its first half.
    const vks::CRefPtr<vks::CGeometry> geometry =
        text.contains('\0') ? nullptr : vks::CGeometry::LoadFromStr(text.constData());
    vks::CRefPtr<vks::CCurve2d> curve = dynamic_cast<vks::CCurve2d *>(geometry.get());
    if (!curve)
        JsonPlace(json.place(), key::curve).refuse(Reason::tr("is not the text of a line or an arc"));
    return curve;
}

void readLine(const QJsonValue &value, const JsonPlace &place, const QString &layer, DWGXModel &model)
{
    const StrictObject json(value, place, {key::id, key::color, key::block, key::ext, key::curve});
    DWGXLine line;
    readEntity(json, line);
    line.curve = readCurve(json);
    if (!line.isSound())
        JsonPlace(place, key::curve).refuse(Reason::tr("is empty or not finite"));
    if (!model.addLine(layer, std::move(line)))
        JsonPlace(place, key::id).refuse(Reason::tr("stands twice in the drawing"));
}

void readText(const QJsonValue &value, const JsonPlace &place, const QString &layer, DWGXModel &model)
{
    const StrictObject json(
        value, place, {key::id, key::color, key::block, key::ext, key::text, key::point, key::height, key::angle});
    DWGXText text;
    readEntity(json, text);
    text.content = json.text(key::text);
    const std::vector<double> point = json.numbers(key::point, 2);
    text.point = {point[0], point[1]};
    text.height = json.number(key::height);
    if (json.has(key::angle))
        text.angle = json.number(key::angle);
    if (!text.isSound())
        JsonPlace(place, key::height).refuse(Reason::tr("is not above 0"));
    if (!model.addText(layer, std::move(text)))
        JsonPlace(place, key::id).refuse(Reason::tr("stands twice in the drawing"));
}

using EntityReader = void (*)(const QJsonValue &, const JsonPlace &, const QString &, DWGXModel &);

void readEntities(const StrictObject &json, QLatin1String listKey, EntityReader read, const QString &layer,
                  DWGXModel &model)
{
    if (!json.has(listKey))
        return;
    const JsonPlace place(json.place(), listKey);
    const QJsonArray entities = json.array(listKey);
    for (int i = 0; i < entities.size(); ++i)
        read(entities.at(i), JsonPlace(place, i), layer, model);
}

void readLayer(const QJsonValue &value, const JsonPlace &place, DWGXModel &model)
{
    const StrictObject json(value, place, {key::name, key::color, key::lines, key::texts});
    const QString name = json.text(key::name);
    const qint64 color = json.integer(key::color, 1, kColorByLayer - 1);
    if (!model.addLayer(name, static_cast<int>(color)))
        JsonPlace(place, key::name).refuse(Reason::tr("is empty or stands twice in the drawing"));
    readEntities(json, key::lines, &readLine, name, model);
    readEntities(json, key::texts, &readText, name, model);
}

std::unique_ptr<DWGXModel> readDrawing(const QJsonObject &document)
{
    const JsonPlace root;
    const StrictObject json(document, root,
                            {key::format, key::version, key::title, key::remark, key::viewer, key::ext, key::layers});
    std::unique_ptr<DWGXModel> model(DWGXModel::createObject());
    if (json.has(key::title))
        model->setTitle(json.text(key::title));
    if (json.has(key::remark))
        model->setRemark(json.text(key::remark));
    if (json.has(key::viewer))
        readViewer(json.value(key::viewer), JsonPlace(root, key::viewer), *model);
    readExtData(json, *model);
    const JsonPlace place(root, key::layers);
    const QJsonArray layers = json.array(key::layers);
    for (int i = 0; i < layers.size(); ++i)
        readLayer(layers.at(i), JsonPlace(place, i), *model);
    return model;
}

} // namespace

std::unique_ptr<DWGXModel> readCadi2(const QByteArray &json, JsonRefusal &refusal)
{
    try {
        const QJsonObject document = parseDocument(json);
        checkFormat(document);
        return readDrawing(document);
    } catch (const JsonRefusal &caught) {
        refusal = caught;
        return nullptr;
    }
}

} // namespace dwgx
