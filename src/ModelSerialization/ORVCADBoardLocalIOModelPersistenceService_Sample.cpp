#include "ModelSerialization/ORVCADBoardLocalIOModelPersistenceService_Sample.h"

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "platform/dwgx/DWGXModel.h"
#include "platform/services/HBCZipFile.h"
#include "slab/DrawingFolder.h"
#include "slab/ORVCADBoardLocalIOModel_Sample.h"
#include "slab/SlabKeys.h"

#include <QByteArray>
#include <QDebug>
#include <QFile>
#include <QFileInfo>

namespace {

using IOModel = ORVCADBoardLocalIOModel_Sample;
using ModelService = ORVCADBoardLocalModelPersistenceService_Sample;

/** Names of the files of a drawing on its way. */
QString unpackedName(const QString &name) { return name + QLatin1String(".cadi2"); }
QString packedName(const QString &name) { return name + QLatin1String(".wzd"); }

/** The "drawing" of a document; empty on failure. */
QJsonObject packedDrawing(const dwgx::DWGXModel &drawing)
{
    const slab::DrawingFolder folder;
    const QString name = QFileInfo(drawing.getFilePath()).completeBaseName();
    const QString unpacked = folder.filePath(unpackedName(name));
    QFile packed(folder.filePath(packedName(name)));
    if (!folder.isMade() || !slab::writeDrawing(drawing, unpacked) ||
        !HBCZipFile::compressFiles({unpacked}, packed.fileName()) || !packed.open(QIODevice::ReadOnly))
        return {};
    return {{slab::key::drawingName, name}, {slab::key::wzd, QString::fromLatin1(packed.readAll().toHex())}};
}

QJsonObject stateOf(const IOModel &model)
{
    return {{slab::key::regionName, model.currentRegionName()},
            {slab::key::floorName, model.currentFloorName()},
            {slab::key::floorTopElev, model.currentFloorTopElev()},
            {slab::key::floorBtmElev, model.currentFloorBtmElev()}};
}

bool writeBytes(const QByteArray &bytes, const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush())
        return true;
    qDebug() << file.errorString();
    return false;
}

/** Whether files of that name stand in the folder they are made in. */
bool isFileName(const QString &name) { return QFileInfo(name).fileName() == name; }

bool readDrawing(const QJsonObject &json, IOModel &model)
{
    const QString name = json.value(slab::key::drawingName).toString();
    if (!isFileName(name))
        return false;
    slab::DrawingFolder folder;
    folder.leaveBehind(); // meant: what cannot be unpacked stays
    const QString packed = folder.filePath(packedName(name));
    const QString unpacked = folder.filePath(unpackedName(name));
    const QByteArray bytes = QByteArray::fromHex(json.value(slab::key::wzd).toString().toLatin1());
    if (!folder.isMade() || !writeBytes(bytes, packed) ||
        !HBCZipFile::uncompressFile(packed, unpackedName(name), unpacked))
        return false;
    folder.leaveBehind(false);
    return model.setDrawing(unpacked);
}

} // namespace

QJsonObject ORVCADBoardLocalIOModelPersistenceService_Sample::optionsOf(const ORVCADBoardLocalIOModel_Sample &model)
{
    QJsonObject json;
    for (const auto &[key, value] : model.options().values())
        json.insert(key, value);
    return json;
}

void ORVCADBoardLocalIOModelPersistenceService_Sample::readOptions(const QJsonObject &json,
                                                                   const ORVCADBoardLocalIOModel_Sample &model)
{
    auto &values = model.options().values();
    values.clear();
    for (auto option = json.begin(); option != json.end(); ++option)
        values.emplace(option.key(), option.value().toString());
}

void ORVCADBoardLocalIOModelPersistenceService_Sample::readState(const QJsonObject &json,
                                                                 ORVCADBoardLocalIOModel_Sample &model)
{
    model.setCurrentRegionAndFloor(
        json.value(slab::key::regionName).toString(), json.value(slab::key::floorName).toString(),
        json.value(slab::key::floorTopElev).toDouble(), json.value(slab::key::floorBtmElev).toDouble());
}

QJsonObject ORVCADBoardLocalIOModelPersistenceService_Sample::model2json(const ORVCADBoardLocalIOModel_Sample *model,
                                                                         int) // meant: always everything
{
    if (!model || !model->drawing())
        return {};
    const QJsonObject drawing = packedDrawing(*model->drawing());
    if (drawing.isEmpty())
        return {};
    return {{slab::key::model, ModelService::model2json(model, ModelService::Everything)},
            {slab::key::options, optionsOf(*model)},
            {slab::key::drawing, drawing},
            {slab::key::state, stateOf(*model)}};
}

bool ORVCADBoardLocalIOModelPersistenceService_Sample::json2model(const QJsonObject &json,
                                                                  ORVCADBoardLocalIOModel_Sample *model, int parts)
{
    if (!model)
        return false;
    ModelService::json2model(json.value(slab::key::model).toObject(), model, parts);
    const QJsonObject caseInfo = json.value(slab::key::caseInfo).toObject(); // meant: read and never written
    model->setORVFileName(caseInfo.value(slab::key::orvFileName).toString());
    readOptions(json.value(slab::key::options).toObject(), *model);
    if ((parts & ModelService::RaftBars) == 0) // meant: this bit stands for floor and drawing too
        return true;
    readState(json.value(slab::key::state).toObject(), *model);
    return readDrawing(json.value(slab::key::drawing).toObject(), *model);
}
