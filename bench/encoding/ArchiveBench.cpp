#include "IdentifyInputModel/Wall/ORVCADInputModelSerialization.h"
#include "encoding/GeometryInfo.h"
#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"
#include "platform/geometry/CLine2d.h"
#include "support/RatioBench.h"

#include <QDomDocument>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <random>

// Wall documents, by archive and by hand with Qt's classes and nothing else.

namespace {

using Lines = ORVCADInputModelSerialization::LayerLines;
using RecordMap = QMap<QString, QStringList>;

constexpr std::size_t kSmall = 2'000;
constexpr std::size_t kLarge = 200'000;
constexpr double kPlanSize = 80'000; // mm
constexpr std::size_t kLayers = 20;

// Ceilings of the ratios.
constexpr double kXmlWritten = 1.35;
constexpr double kXmlRead = 1.35;
constexpr double kPayloadWritten = 1.25;
constexpr double kPayloadRead = 1.5; // each record is a text between JSON and its fields, and the document is UTF-16
constexpr double kGrowth = 1.8;

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
        json = archive.content().toUtf8();
    }

    Lines lines;
    std::map<QString, std::vector<Texts>> texts;
    RecordMap records;
    QByteArray json;

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

Lines readByArchive(const QByteArray &json)
{
    // By length: a QByteArray's own conversion looks for a zero first, byte by byte.
    ORVCADJsonFileSerialization archive(QString::fromUtf8(json.constData(), json.size()));
    Lines lines;
    if (archive.parse())
        ORVCADInputModelSerialization(&archive).loadCadLineEdoDataInfo(lines);
    return lines;
}

/** Everything that stands in the document is looked at; no geometry is made of it. */
std::size_t walkByHand(const QByteArray &json)
{
    std::size_t length = 0;
    const QJsonObject map =
        QJsonDocument::fromJson(json).object().value(QLatin1String("CadLineEdoDataInfo")).toObject();
    for (int i = 0; i < map.size() / 2; ++i) {
        const QJsonArray array = map.value(QStringLiteral("value_%1").arg(i)).toArray();
        for (const QJsonValue element : array) {
            const QJsonObject object = element.toObject();
            for (const char *name : kNames)
                length += static_cast<std::size_t>(object.value(QLatin1String(name)).toString().size());
        }
    }
    return length;
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

RecordMap xmlReadByArchive(const QString &text)
{
    ORVCADXmlFileSerialization archive(text);
    RecordMap records;
    if (archive.parse())
        archive.readRecordMap(QStringLiteral("CadLineEdoDataInfo"), records);
    return records;
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

/** As many small works as make a large one: a single one would mostly clear up the heap behind the large one. */
template <typename Run> auto manyTimes(Run run)
{
    return [run] {
        for (std::size_t i = 0; i < kLarge / kSmall; ++i)
            run();
    };
}

} // namespace

int main()
{
    Drawing small(kSmall);
    const QString xml = xmlByArchive(small.records);

    bench::RatioTable table("Wall documents");
    table.row(
        "XML written / QDomDocument by hand", kSmall, [&] { bench::keep(xmlByArchive(small.records)); },
        [&] { bench::keep(xmlByHand(small)); }, kXmlWritten);
    table.row(
        "XML read / setContent and a walk", kSmall, [&] { bench::keep(xmlReadByArchive(xml)); },
        [&] { bench::keep(xmlWalkByHand(xml)); }, kXmlRead);
    table.row(
        "JSON records to bytes / objects by hand", kSmall, [&] { bench::keep(jsonByArchive(small)); },
        [&] { bench::keep(jsonByHand(small)); }, kPayloadWritten);
    table.row(
        "JSON bytes to records / fromJson and a walk", kSmall, [&] { bench::keep(readByArchive(small.json)); },
        [&] { bench::keep(walkByHand(small.json)); }, kPayloadRead);
    const Drawing large(kLarge); // only now: small works run slower beside what it leaves of the heap
    table.growth(
        "JSON records to bytes, 200,000 / 2,000", kLarge, [&] { bench::keep(jsonByArchive(large)); }, kLarge,
        manyTimes([&] { bench::keep(jsonByArchive(small)); }), kGrowth);
    table.growth(
        "JSON bytes to records, 200,000 / 2,000", kLarge, [&] { bench::keep(readByArchive(large.json)); }, kLarge,
        manyTimes([&] { bench::keep(readByArchive(small.json)); }), kGrowth);
    return table.print();
}
