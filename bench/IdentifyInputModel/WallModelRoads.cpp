#include "IdentifyInputModel/Wall/ORVCADWallBrickDataInputModel.h"
#include "encoding/GeometryInfo.h"
#include "encoding/ORVCADJsonCGeometryObjOper.h"
#include "platform/geometry/CLine2d.h"
#include "suite/Families.h"
#include "suite/PayloadBounds.h"

#include <QDomDocument>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <memory>
#include <random>

// Whole input models of walls, from records to the wide text of a document and back, against what one writes by hand with
// Qt's classes for the same text and the same records.

namespace {

using Model = ORVCADWallBrickDataInputModel;
using Layers = std::map<std::wstring, Model::DrawingLines>;

constexpr std::size_t kLayers = 50;
constexpr double kPlanSize = 80'000; // mm

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
    bench::Bounds written;
    bench::Bounds loaded;
};

const Form kForms[] = {
    {"JSON", &Model::saveToJson, &Model::loadFromJson, jsonByHand, jsonReadByHand, bench::kPayloadWritten,
     bench::kPayloadRead},
    {"XML", &Model::saveToXml, &Model::loadFromXml, xmlByHand, xmlReadByHand, bench::kXmlWritten, bench::kXmlRead}};

/** Its interface takes and gives wide text. */
double bytesOf(const std::wstring &text) { return static_cast<double>(text.size() * sizeof(wchar_t)); }

bench::Sides written(const Form &form, const bench::Load &load)
{
    const auto layers = std::make_shared<const Layers>(linesOf(load.size));
    const auto model = std::make_shared<const Model>(modelOf(*layers));
    const std::wstring text = saved(*model, form.save);
    return {[model, form] { bench::keep(saved(*model, form.save)); },
            [layers, form] { bench::keep(form.write(*layers)); }, static_cast<double>(load.items()), bytesOf(text)};
}

bench::Sides read(const Form &form, const bench::Load &load)
{
    const auto text = std::make_shared<const std::wstring>(saved(modelOf(linesOf(load.size)), form.save));
    return {[text, form] { bench::keep(loaded(*text, form.load)); }, [text, form] { bench::keep(form.read(*text)); },
            static_cast<double>(load.items()), bytesOf(*text)};
}

} // namespace

bench::Roads bench::wallModelRoads()
{
    Roads roads;
    for (const Form &form : kForms) {
        const std::string name = form.name;
        roads.push_back({"wall input model saved as " + name, "by hand", kSizes, form.written,
                         [form](const Load &load) { return written(form, load); }});
        roads.push_back({"wall input model loaded from " + name, "by hand", kSizes, form.loaded,
                         [form](const Load &load) { return read(form, load); }});
    }
    return roads;
}
