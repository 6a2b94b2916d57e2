#include "IdentifyInputModel/Wall/ORVCADWallBrickDataInputModel.h"
#include "encoding/GeometryInfo.h"
#include "encoding/ORVCADJsonCGeometryObjOper.h"
#include "platform/geometry/CLine2d.h"
#include "support/RatioBench.h"

#include <QDomDocument>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <functional>
#include <random>

// Whole input models of walls, from records to the wide text of a document and back, against what one writes by hand with
// Qt's classes for the same text and the same records.

namespace {

using Model = ORVCADWallBrickDataInputModel;
using Layers = std::map<std::wstring, Model::DrawingLines>;

constexpr std::size_t kSizes[] = {1'000, 10'000, 100'000};
constexpr std::size_t kSmallest = kSizes[0];
constexpr std::size_t kLargest = kSizes[2];
constexpr std::size_t kLayers = 50;
constexpr double kPlanSize = 80'000; // mm

// Ceilings of the ratios.
constexpr double kByHand = 1.5;
constexpr double kGrowth = 1.8;
// Nodes of QDomDocument cost twice as much where they outgrow the caches, by hand, too; and saving XML is so little work
// that the fresh memory of a large text shows.
constexpr double kXmlGrowth = 2.6;

const char *const kDocumentKey = "CadLineEdoDataInfo";

Layers linesOf(std::size_t size)
{
    std::mt19937 random(42);
    std::uniform_real_distribution<double> place(0, kPlanSize);
    const auto coordinate = [&] { return std::round(place(random) * 10) / 10; };
    Layers layers;
    for (std::size_t i = 0; i < size; ++i) {
        ORVCADCloudLineEdoInfo line;
        line.edoId = static_cast<int>(i);
        line.color = 7;
        line.blockID = static_cast<int>(i / 10);
        const vks::CVec2<double> start(coordinate(), coordinate());
        line.line = new vks::CLine2d(start, vks::CVec2<double>(coordinate(), start.y));
        layers[L"WALL-" + std::to_wstring(i % kLayers)].push_back(line);
    }
    return layers;
}

Model modelOf(const Layers &layers)
{
    Model model(EORVCADIdentifyType(1));
    for (const auto &[layer, lines] : layers)
        model.setCadLineEdoDataInfo(layer, lines);
    return model;
}

// ---- By hand, JSON

QJsonObject jsonOf(const ORVCADCloudLineEdoInfo &line)
{
    return {{QStringLiteral("edoId"), QString::number(line.edoId)},
            {QStringLiteral("color"), QString::number(line.color)},
            {QStringLiteral("blockID"), QString::number(line.blockID)},
            {QStringLiteral("line"), getCurveInfo(line.line.get())}};
}

std::wstring jsonByHand(const Layers &layers)
{
    QJsonObject map;
    int number = 0;
    for (const auto &[layer, lines] : layers) {
        QJsonArray array;
        for (const ORVCADCloudLineEdoInfo &line : lines)
            array.append(jsonOf(line));
        map.insert(QStringLiteral("key_%1").arg(number), QJsonObject{{QString::fromStdWString(layer), QString()}});
        map.insert(QStringLiteral("value_%1").arg(number++), array);
    }
    const QJsonDocument document(QJsonObject{{QLatin1String(kDocumentKey), map}});
    return QString::fromUtf8(document.toJson()).toStdWString();
}

template <typename Text> ORVCADCloudLineEdoInfo lineOf(const Text &text)
{
    static const ORVCADJsonCGeometryObjOper geometry;
    ORVCADCloudLineEdoInfo line;
    line.edoId = text("edoId").toInt();
    line.color = text("color").toInt();
    line.blockID = text("blockID").toInt();
    line.line = geometry.getCurveInfo(text("line"));
    return line;
}

Layers jsonReadByHand(const std::wstring &text)
{
    const QJsonDocument document = QJsonDocument::fromJson(QString::fromStdWString(text).toUtf8());
    const QJsonObject map = document.object().value(QLatin1String(kDocumentKey)).toObject();
    Layers layers;
    for (int i = 0; i < map.size() / 2; ++i) {
        const QString layer = map.value(QStringLiteral("key_%1").arg(i)).toObject().keys().value(0);
        Model::DrawingLines &lines = layers[layer.toStdWString()];
        const QJsonArray array = map.value(QStringLiteral("value_%1").arg(i)).toArray();
        for (const QJsonValue element : array) {
            const QJsonObject object = element.toObject();
            lines.push_back(lineOf([&object](const char *key) { return object.value(QLatin1String(key)).toString(); }));
        }
    }
    return layers;
}

// ---- By hand, XML

QDomElement elementOf(QDomDocument &document, const ORVCADCloudLineEdoInfo &line, int number)
{
    QDomElement element = document.createElement(QStringLiteral("value_%1").arg(number));
    element.setAttribute(QStringLiteral("edoId"), line.edoId);
    element.setAttribute(QStringLiteral("color"), line.color);
    element.setAttribute(QStringLiteral("blockID"), line.blockID);
    element.setAttribute(QStringLiteral("line"), getCurveInfo(line.line.get()));
    return element;
}

std::wstring xmlByHand(const Layers &layers)
{
    QDomDocument document;
    document.appendChild(document.createProcessingInstruction(QStringLiteral("xml"),
                                                              QStringLiteral("version=\"1.0\" encoding=\"GB2312\"")));
    QDomElement root = document.createElement(QStringLiteral("XmlRoot"));
    QDomElement map = document.createElement(QLatin1String(kDocumentKey));
    int number = 0;
    for (const auto &[layer, lines] : layers) {
        QDomElement entry = document.createElement(QStringLiteral("key_%1").arg(number++));
        entry.setAttribute(QString::fromStdWString(layer), QString());
        int place = 0;
        for (const ORVCADCloudLineEdoInfo &line : lines)
            entry.appendChild(elementOf(document, line, place++));
        map.appendChild(entry);
    }
    root.appendChild(map);
    document.appendChild(root);
    return document.toString(1).toStdWString();
}

Layers xmlReadByHand(const std::wstring &text)
{
    QDomDocument document;
    document.setContent(QString::fromStdWString(text).toLocal8Bit(), false);
    Layers layers;
    const QDomElement map = document.documentElement().firstChildElement(QLatin1String(kDocumentKey));
    for (QDomElement entry = map.firstChildElement(); !entry.isNull(); entry = entry.nextSiblingElement()) {
        Model::DrawingLines &lines = layers[entry.attributes().item(0).nodeName().toStdWString()];
        for (QDomElement value = entry.firstChildElement(); !value.isNull(); value = value.nextSiblingElement())
            lines.push_back(lineOf([&value](const char *key) { return value.attribute(QLatin1String(key)); }));
    }
    return layers;
}

// ---- The library

using Save = void (Model::*)(std::wstring &) const;
using Load = void (Model::*)(const std::wstring &);

std::wstring saved(const Model &model, Save save)
{
    std::wstring text;
    (model.*save)(text);
    return text;
}

Model loaded(const std::wstring &text, Load load)
{
    Model model(EORVCADIdentifyType(1));
    (model.*load)(text);
    return model;
}

/** One form of a document, by the library and by hand. */
struct Form
{
    const char *name;
    Save save;
    Load load;
    std::wstring (*write)(const Layers &);
    Layers (*read)(const std::wstring &);
    double growth; // ceiling
};

const Form kForms[] = {{"JSON", &Model::saveToJson, &Model::loadFromJson, jsonByHand, jsonReadByHand, kGrowth},
                       {"XML", &Model::saveToXml, &Model::loadFromXml, xmlByHand, xmlReadByHand, kXmlGrowth}};

/** A work that begins with an orderly heap: what the other one freed would be cleared up in its time. */
bench::Work tidy(std::function<void()> run)
{
    return {[] { bench::joinFreedMemory(); }, std::move(run)};
}

void compare(bench::RatioTable &table, const Form &form, std::size_t size)
{
    const Layers layers = linesOf(size);
    const Model model = modelOf(layers);
    const std::wstring text = saved(model, form.save);
    const std::string name = form.name;
    table.row(name + " saved / by hand", size, tidy([&] { bench::keep(saved(model, form.save)); }),
              tidy([&] { bench::keep(form.write(layers)); }), kByHand);
    table.row(name + " loaded / by hand", size, tidy([&] { bench::keep(loaded(text, form.load)); }),
              tidy([&] { bench::keep(form.read(text)); }), kByHand);
}

/** As many small works as make a large one: a single one would mostly clear up the heap behind the large one. */
template <typename Run> auto manyTimes(Run run)
{
    return [run] {
        for (std::size_t i = 0; i < kLargest / kSmallest; ++i)
            run();
    };
}

void compareGrowth(bench::RatioTable &table, const Form &form)
{
    const Model small = modelOf(linesOf(kSmallest));
    const Model large = modelOf(linesOf(kLargest));
    const std::wstring smallText = saved(small, form.save);
    const std::wstring largeText = saved(large, form.save);
    const std::string name = form.name;
    table.growth(name + " saved, 100,000 / 1,000", kLargest, tidy([&] { bench::keep(saved(large, form.save)); }),
                 kLargest, tidy(manyTimes([&] { bench::keep(saved(small, form.save)); })), form.growth);
    table.growth(name + " loaded, 100,000 / 1,000", kLargest, tidy([&] { bench::keep(loaded(largeText, form.load)); }),
                 kLargest, tidy(manyTimes([&] { bench::keep(loaded(smallText, form.load)); })), form.growth);
}

} // namespace

int main()
{
    bench::RatioTable table("Wall input models");
    for (const Form &form : kForms)
        for (const std::size_t size : kSizes)
            compare(table, form, size);
    for (const Form &form : kForms)
        compareGrowth(table, form);
    return table.print();
}
