#include "IdentifyInputModel/Wall/ORVCADInputModelSerialization.h"
#include "encoding/GeometryInfo.h"
#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"
#include "platform/geometry/CLine2d.h"
#include "suite/Families.h"
#include "suite/PayloadBounds.h"

#include <QDomDocument>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>
#include <random>

// Wall documents, by archive and by hand with Qt's classes and nothing else.

namespace {

using Lines = ORVCADInputModelSerialization::LayerLines;
using RecordMap = QMap<QString, QStringList>;

constexpr double kPlanSize = 80'000; // mm
constexpr std::size_t kLayers = 20;

const char *const kNames[] = {"edoId", "color", "blockID", "line"};
constexpr std::size_t kNameCount = 4;

/** One line of the drawing as the texts of its items. */
struct Texts
{
    QString values[kNameCount];
};

/** Lines of a drawing, spread over layers. */
class Drawing
{
public:
    explicit Drawing(std::size_t size)
    {
        for (std::size_t i = 0; i < size; ++i)
            add("WALL-" + std::to_string(i % kLayers), static_cast<int>(i));
        ORVCADJsonFileSerialization archive{QString()};
        ORVCADInputModelSerialization(&archive).saveCadLineEdoDataInfo(lines);
        archive.save(QString());
        json = archive.content();
    }

    Lines lines;
    std::map<QString, std::vector<Texts>> texts;
    RecordMap records;
    QString json;

private:
    double coordinate() { return std::round(m_coordinate(m_random) * 10) / 10; }
    void add(const std::string &layer, int id)
    {
        ORVCADCloudLineEdoInfo info;
        info.edoId = id;
        info.color = 7;
        info.blockID = id / 10;
        const vks::CVec2<double> start(coordinate(), coordinate());
        info.line = new vks::CLine2d(start, vks::CVec2<double>(coordinate(), start.y));
        const QString name = QString::fromStdString(layer);
        const Texts text{{QString::number(info.edoId), QString::number(info.color), QString::number(info.blockID),
                          getCurveInfo(info.line.get())}};
        QStringList items;
        for (std::size_t i = 0; i < kNameCount; ++i)
            items.append(QLatin1String(kNames[i]) + QLatin1Char(':') + text.values[i]);
        lines[name.toStdWString()].push_back(info);
        texts[name].push_back(text);
        records[name].append(items.join(QLatin1Char('/')));
    }

    std::mt19937 m_random{42};
    std::uniform_real_distribution<double> m_coordinate{0, kPlanSize};
};

QByteArray jsonByArchive(const Drawing &drawing)
{
    ORVCADJsonFileSerialization archive{QString()};
    ORVCADInputModelSerialization(&archive).saveCadLineEdoDataInfo(drawing.lines);
    return QJsonDocument(archive.rootObject()).toJson();
}

QJsonObject objectByHand(const Texts &texts)
{
    QJsonObject object;
    for (std::size_t i = 0; i < kNameCount; ++i)
        object.insert(QLatin1String(kNames[i]), texts.values[i]);
    return object;
}

QByteArray jsonByHand(const Drawing &drawing)
{
    QJsonObject map;
    int number = 0;
    for (const auto &[layer, members] : drawing.texts) {
        QJsonArray array;
        for (const Texts &one : members)
            array.append(objectByHand(one));
        map.insert(QStringLiteral("key_%1").arg(number), QJsonObject{{layer, QString()}});
        map.insert(QStringLiteral("value_%1").arg(number++), array);
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("CadLineEdoDataInfo"), map}}).toJson();
}

void readByArchive(const QString &json, Lines &lines)
{
    ORVCADJsonFileSerialization archive(json);
    if (archive.parse())
        ORVCADInputModelSerialization(&archive).loadCadLineEdoDataInfo(lines);
}

/** The record of an object as archives hand it out: each key and value in one text. */
QString recordByHand(const QJsonObject &object)
{
    QString record;
    for (auto item = object.begin(); item != object.end(); ++item)
        record += item.key() + QLatin1Char(':') + item.value().toString() + QLatin1Char('/');
    record.chop(1);
    return record;
}

/** What the interface of archives asks of each of them: the document as records. No geometry is made of these. */
RecordMap recordsByHand(const QString &json)
{
    RecordMap records;
    const QJsonObject document = QJsonDocument::fromJson(json.toUtf8()).object();
    const QJsonObject map = document.value(QLatin1String("CadLineEdoDataInfo")).toObject();
    for (int i = 0; i < map.size() / 2; ++i) {
        QStringList &list = records[recordByHand(map.value(QStringLiteral("key_%1").arg(i)).toObject())];
        const QJsonArray array = map.value(QStringLiteral("value_%1").arg(i)).toArray();
        for (const QJsonValue element : array)
            list.append(recordByHand(element.toObject()));
    }
    return records;
}

QString xmlByArchive(RecordMap &records)
{
    ORVCADXmlFileSerialization archive{QString()};
    archive.writeRecordMap(QStringLiteral("CadLineEdoDataInfo"), records);
    archive.save(QString());
    return archive.content();
}

QDomElement elementByHand(QDomDocument &document, const Texts &texts, int number)
{
    QDomElement element = document.createElement(QStringLiteral("value_%1").arg(number));
    for (std::size_t i = 0; i < kNameCount; ++i)
        element.setAttribute(QLatin1String(kNames[i]), texts.values[i]);
    return element;
}

QString xmlByHand(const Drawing &drawing)
{
    QDomDocument document;
    document.appendChild(document.createProcessingInstruction(QStringLiteral("xml"),
                                                              QStringLiteral("version=\"1.0\" encoding=\"GB2312\"")));
    QDomElement root = document.createElement(QStringLiteral("XmlRoot"));
    QDomElement outer = document.createElement(QStringLiteral("CadLineEdoDataInfo"));
    int number = 0;
    for (const auto &[layer, members] : drawing.texts) {
        QDomElement entry = document.createElement(QStringLiteral("key_%1").arg(number++));
        entry.setAttribute(layer, QString());
        int place = 0;
        for (const Texts &one : members)
            entry.appendChild(elementByHand(document, one, place++));
        outer.appendChild(entry);
    }
    root.appendChild(outer);
    document.appendChild(root);
    return document.toString(1);
}

void xmlReadByArchive(const QString &text, RecordMap &records)
{
    ORVCADXmlFileSerialization archive(text);
    if (archive.parse())
        archive.readRecordMap(QStringLiteral("CadLineEdoDataInfo"), records);
}

std::size_t xmlWalkByHand(const QString &text)
{
    QDomDocument document;
    document.setContent(text.toLocal8Bit(), false);
    std::size_t length = 0;
    const QDomElement outer = document.documentElement().firstChildElement();
    for (QDomElement entry = outer.firstChildElement(); !entry.isNull(); entry = entry.nextSiblingElement())
        for (QDomElement value = entry.firstChildElement(); !value.isNull(); value = value.nextSiblingElement())
            for (const char *name : kNames)
                length += static_cast<std::size_t>(value.attribute(QLatin1String(name)).size());
    return length;
}

/** The drawing, and each of its texts where a reading road needs it. */
struct Documents
{
    explicit Documents(std::size_t size) : drawing(size), xml(xmlByArchive(drawing.records)) {}

    Drawing drawing;
    QString xml;
};

bench::Sides written(const bench::Load &load)
{
    const auto drawing = std::make_shared<const Drawing>(load.size);
    return {[drawing] { bench::keep(jsonByArchive(*drawing)); }, [drawing] { bench::keep(jsonByHand(*drawing)); },
            static_cast<double>(load.items()), static_cast<double>(drawing->json.size())};
}

/** An archive takes a text, so that is where both sides begin; letting go of the records of the run before is no part of the
 *  road. */
bench::Sides read(const bench::Load &load)
{
    const auto json = std::make_shared<const QString>(Drawing(load.size).json);
    const auto lines = std::make_shared<Lines>();
    return {bench::Work([lines] { lines->clear(); }, [json, lines] { readByArchive(*json, *lines); }),
            [json] { bench::keep(recordsByHand(*json)); }, static_cast<double>(load.items()),
            static_cast<double>(json->size())};
}

bench::Sides xmlWritten(const bench::Load &load)
{
    const auto documents = std::make_shared<Documents>(load.size);
    return {[documents] { bench::keep(xmlByArchive(documents->drawing.records)); },
            [documents] { bench::keep(xmlByHand(documents->drawing)); }, static_cast<double>(load.items()),
            static_cast<double>(documents->xml.size())};
}

bench::Sides xmlRead(const bench::Load &load)
{
    const auto xml = std::make_shared<const QString>(Documents(load.size).xml);
    const auto records = std::make_shared<RecordMap>();
    return {bench::Work([records] { records->clear(); }, [xml, records] { xmlReadByArchive(*xml, *records); }),
            [xml] { bench::keep(xmlWalkByHand(*xml)); }, static_cast<double>(load.items()),
            static_cast<double>(xml->size())};
}

} // namespace

bench::Roads bench::wallArchiveRoads()
{
    return {{"wall lines written as JSON", "objects by hand", kPayloadSizes, kPayloadWritten, &written},
            {"wall lines read from JSON", "fromJson and records by hand", kPayloadSizes, kPayloadRead, &read},
            {"wall lines written as XML", "QDomDocument by hand", kSizes, kXmlWritten, &xmlWritten},
            {"wall lines read from XML", "setContent and a walk", kSizes, kXmlRead, &xmlRead}};
}
