#include "platform/embedded/HBXExchangeReader.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/ExchangeFloorReader.h"
#include "platform/embedded/ExchangeFormat.h"
#include "platform/embedded/HBXProject.h"

#include <QJsonDocument>
#include <QSet>

#include <cmath>

namespace hbx::embedded {
namespace {

namespace key = exchange::key;

constexpr char kTwiceInProject[] = QT_TRANSLATE_NOOP("host", "\"%1\" stands twice in the project");
constexpr char kTwiceInRegion[] = QT_TRANSLATE_NOOP("host", "\"%1\" stands twice in the region");

QJsonValue parseDocument(const QByteArray &json)
{
    if (json.trimmed().isEmpty())
        throw dwgx::JsonRefusal{QString(), dwgx::Reason::tr("is empty")};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        throw dwgx::JsonRefusal{dwgx::lineAndColumn(json, error.offset),
                                dwgx::Reason::tr("is not JSON: %1").arg(error.errorString())};
    return document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array());
}

/** Told apart before anything else is looked at, so that a newer file is called newer and not faulty. */
void checkFormat(const QJsonObject &document)
{
    const JsonPlace place;
    if (document.value(key::format) != QJsonValue(exchange::kFormatName))
        JsonPlace(place, key::format).refuse(dwgx::Reason::tr("is not \"hbx-project\""));
    const double version = document.value(key::version).toDouble(std::nan(""));
    if (version > exchange::kVersion)
        JsonPlace(place, key::version).refuse(dwgx::Reason::tr("is newer than %1").arg(exchange::kVersion));
    if (version != exchange::kVersion)
        JsonPlace(place, key::version).refuse(dwgx::Reason::tr("is not %1").arg(exchange::kVersion));
}

/** Reads the document around the floors' content. */
class DocumentReader
{
public:
    ProjectRecord read(const QJsonValue &value)
    {
        const JsonPlace place;
        if (!value.isObject())
            place.refuse(dwgx::Reason::tr("is not an object"));
        checkFormat(value.toObject());
        const ExchangeObject json(value, place,
                                  {key::format, key::version, key::name, key::source, key::regions, key::options,
                                   key::materials, key::planeRule});
        readHeader(json);
        readTables(json);
        json.array(key::regions);
        json.each(key::regions, [this](const QJsonValue &region, const JsonPlace &at, int) { readRegion(region, at); });
        resolveAllKeys();
        return std::move(m_reading.project);
    }

private:
    void readHeader(const ExchangeObject &json)
    {
        m_reading.project.name = json.text(key::name);
        m_reading.project.source = json.textOr(key::source, {});
        m_reading.project.planeRule = json.textOr(key::planeRule, {});
    }

    void readTables(const ExchangeObject &json)
    {
        json.each(key::options, [this](const QJsonValue &value, const JsonPlace &place, int) {
            const ExchangeObject row(value, place, {key::group, key::name, key::value});
            m_reading.project.options.push_back({row.text(key::group), row.text(key::name), row.text(key::value)});
        });
        json.each(key::materials,
                  [this](const QJsonValue &value, const JsonPlace &place, int) { readMaterial(value, place); });
    }

    void readMaterial(const QJsonValue &value, const JsonPlace &place)
    {
        const ExchangeObject row(value, place, {key::number, key::name});
        const int number = row.integer32(key::number, 1);
        if (m_materialNumbers.contains(number))
            row.placeOf(key::number).refuse(dwgx::Reason::tr("%1 stands twice in the file").arg(number));
        m_materialNumbers.insert(number);
        m_reading.project.materials.push_back({number, row.text(key::name)});
    }

    void readRegion(const QJsonValue &value, const JsonPlace &place)
    {
        const ExchangeObject json(value, place, {key::name, key::floors});
        RegionRecord region;
        region.name = json.name(key::name);
        refuseTwice(m_regionNames, json, key::name, kTwiceInProject);
        region.id = m_reading.takeId();
        m_reading.project.regions.push_back(region);
        m_floorNames.clear();
        m_floorCodes.clear();
        json.each(key::floors,
                  [&](const QJsonValue &floor, const JsonPlace &at, int) { readFloor(floor, at, region.id); });
    }

    void readFloor(const QJsonValue &value, const JsonPlace &place, qint64 regionId)
    {
        const ExchangeObject json(value, place,
                                  {key::name, key::code, key::bottomElev, key::height, key::standardFloorCount,
                                   key::foundation, key::remark, key::elements});
        FloorRecord floor;
        floor.regionId = regionId;
        floor.name = json.name(key::name);
        floor.code = json.name(key::code);
        refuseTwice(m_floorNames, json, key::name, kTwiceInRegion);
        refuseTwice(m_floorCodes, json, key::code, kTwiceInRegion);
        floor.bottomElev = json.number(key::bottomElev);
        floor.height = json.number(key::height);
        floor.standardFloorCount = json.integer32Or(key::standardFloorCount, 1);
        floor.foundation = json.flagOr(key::foundation, false);
        floor.remark = json.textOr(key::remark, {});
        floor.id = static_cast<int>(m_reading.takeId());
        m_reading.project.floors.push_back(floor);
        ExchangeFloorReader(m_reading, json, floor.id).read();
    }

    static void refuseTwice(QSet<QString> &names, const ExchangeObject &json, QLatin1String member, const char *fault)
    {
        const QString name = json.text(member);
        if (names.contains(name))
            json.placeOf(member).refuse(dwgx::Reason::tr(fault).arg(name));
        names.insert(name);
    }

    void resolveAllKeys()
    {
        const ReferenceMap idOfKey = [this](const QString &key) {
            const auto id = m_reading.idByKey.constFind(key);
            return id == m_reading.idByKey.constEnd() ? std::nullopt : std::optional(QString::number(*id));
        };
        for (const ExchangeReading::KeyUses &each : m_reading.keyUses)
            resolveKeys(m_reading.project.drawObjs[each.drawObj].properties, each.uses, idOfKey);
    }

    ExchangeReading m_reading;
    QSet<QString> m_regionNames;
    QSet<QString> m_floorNames;
    QSet<QString> m_floorCodes;
    QSet<int> m_materialNumbers;
};

} // namespace

std::optional<ProjectRecord> HBXExchangeReader::read(const QByteArray &json, const QString &fileName,
                                                     ProjectError &error)
{
    error = {};
    try {
        return DocumentReader().read(parseDocument(json));
    } catch (const dwgx::JsonRefusal &refusal) {
        error = {fileName, refusal.place, refusal.reason};
        return std::nullopt;
    }
}

} // namespace hbx::embedded
