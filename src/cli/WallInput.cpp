#include "cli/WallInput.h"

#include "IdentifyInputModel/Wall/ORVCADWallInputModelConvertion.h"
#include "cli/Counted.h"
#include "cli/Message.h"
#include "cli/WallKind.h"
#include "encoding/ORVCADXmlFileSerialization.h"
#include "platform/dwgx/DWGXModel.h"
#include "platform/embedded/HBXProject.h"
#include "platform/embedded/HBXWallOptions.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"

#include <QDomDocument>
#include <QJsonDocument>
#include <QTextCodec>

namespace orvcad {

namespace {

using Brick = ORVCADWallBrickDataInputModel;
using Force = ORVCADWallForceDataInputModel;
using Reading = ORVCADWallInputModelConvertion;

/** What a getter appends to an empty list. */
template <typename List> List taken(const Reading &reading, void (Reading::*get)(List &) const)
{
    List list;
    (reading.*get)(list);
    return list;
}

int takeWalls(const Reading &reading, Brick &model)
{
    auto walls = taken(reading, &Reading::getCadEntBrickWallDataInfo);
    const auto count = static_cast<int>(walls.size());
    model.setCadEntBrickWallDataInfo(std::move(walls));
    return count;
}

int takeWalls(const Reading &reading, Force &model)
{
    auto walls = taken(reading, &Reading::getCadEntForceWallDataInfo);
    const auto count = static_cast<int>(walls.size());
    model.setCadEntForceWallDataInfo(std::move(walls));
    return count;
}

/** Everything that both kinds of walls are told. */
void takeFloor(const Reading &reading, ORVCADWallDataInputModel &model, WallInput::Counts &counts)
{
    auto bricks = taken(reading, &Reading::getCurFloorModelBrickLineEntDataInfo);
    auto forces = taken(reading, &Reading::getCurFloorModelForceLineEntDataInfo);
    auto axes = taken(reading, &Reading::getCurFloorModelAxisLineEntDataInfo);
    auto columns = taken(reading, &Reading::getCurFloorModelPointEntDataInfo);
    counts.brickLines = static_cast<int>(bricks.size());
    counts.forceLines = static_cast<int>(forces.size());
    counts.axisLines = static_cast<int>(axes.size());
    counts.columns = static_cast<int>(columns.size());
    model.setCurFloorModelBrickLineEntDataInfo(std::move(bricks));
    model.setCurFloorModelForceLineEntDataInfo(std::move(forces));
    model.setCurFloorModelAxisLineEntDataInfo(std::move(axes));
    model.setCurFloorModelPointEntDataInfo(std::move(columns));
    model.setCadLayerInfo(taken(reading, &Reading::getCadLayerInfo));
    model.setDWGXBaseOptions(taken(reading, &Reading::getDWGXBaseOptions));
}

int colorOf(const dwgx::DWGXEntity &entity, const dwgx::DWGXLayer &layer)
{
    return entity.color == dwgx::kColorByLayer ? layer.color : entity.color;
}

ORVCADCloudLineEdoInfo edoInfoOf(const dwgx::DWGXLine &line, const dwgx::DWGXLayer &layer)
{
    ORVCADCloudLineEdoInfo info;
    info.color = colorOf(line, layer);
    info.blockID = line.blockId;
    info.line = line.curve;
    info.edoId = line.id;
    return info;
}

ORVCADCloudTextEdoInfo edoInfoOf(const dwgx::DWGXText &text, const dwgx::DWGXLayer &layer)
{
    ORVCADCloudTextEdoInfo info;
    const auto corners = text.corners();
    info.text = text.content.toStdWString();
    info.anglePts.assign(corners.begin(), corners.end());
    info.color = colorOf(text, layer);
    info.blockID = text.blockId;
    info.dir = text.direction();
    info.edoId = text.id;
    return info;
}

template <typename Info, typename Entity>
std::list<Info> edoInfosOf(const std::vector<Entity> &entities, const dwgx::DWGXLayer &layer)
{
    std::list<Info> infos;
    for (const Entity &entity : entities)
        infos.push_back(edoInfoOf(entity, layer));
    return infos;
}

bool isXml(const QByteArray &bytes) { return QDomDocument().setContent(bytes, false); }

QByteArray declaredBytes(const QString &xml) { return QTextCodec::codecForName("GB2312")->fromUnicode(xml); }

/** Whether a document with nothing else in it parses again. */
template <typename Write> bool readsBack(Write &&write)
{
    ORVCADXmlFileSerialization archive{QString()};
    write(archive);
    archive.save(QString());
    return isXml(declaredBytes(archive.content()));
}

bool layerReadsBack(const QString &layer)
{
    return readsBack([&layer](ORVCADXmlFileSerialization &archive) {
        QMap<QString, QStringList> records{{layer, {}}};
        archive.writeRecordMap(QStringLiteral("layer"), records);
    });
}

bool textReadsBack(const QString &text)
{
    return readsBack([&text](ORVCADXmlFileSerialization &archive) {
        archive.writeRecord(QStringLiteral("record"), QStringLiteral("text:") + text);
    });
}

} // namespace

WallInput::WallInput(hbx::embedded::HBXProject &project, const IHBXFloor &floor, const WallKind &kind)
    : m_model(Brick(kind.identifyType)), m_kind(kind), m_floorName(floor.name())
{
    project.makeCurrent();
    project.setCurrent(floor.region()->name(), floor.name());
    if (!kind.isBrick())
        m_model = Force(kind.identifyType);
    IHBXModel *host = project.service()->model();
    hbx::embedded::HBXWallOptions options(host);
    const Reading reading(floor.id(), &options, host, kind.identifyType);
    m_counts.walls = std::visit([&reading](auto &model) { return takeWalls(reading, model); }, m_model);
    takeFloor(reading, base(), m_counts);
    QString code;
    base().setProjectName(project.name().toStdWString());
    base().setFloorName(floor.name().toStdWString());
    base().setFloorCode(floor.code(code).toStdWString());
}

void WallInput::addDrawing(const dwgx::DWGXModel &drawing, const QString &name)
{
    base().setDrawingName(name.toStdWString());
    for (const dwgx::DWGXLayer &layer : drawing.layers()) {
        if (!layer.lines.empty())
            base().setCadLineEdoDataInfo(layer.name.toStdWString(),
                                         edoInfosOf<ORVCADCloudLineEdoInfo>(layer.lines, layer));
        if (!layer.texts.empty())
            base().setCadTextEdoDataInfo(layer.name.toStdWString(),
                                         edoInfosOf<ORVCADCloudTextEdoInfo>(layer.texts, layer));
        if (!layer.lines.empty() || !layer.texts.empty())
            m_layers.append(layer.name);
        for (const dwgx::DWGXText &text : layer.texts)
            if (text.content.contains(u'/'))
                m_texts.emplace_back(layer.name, text.content);
    }
    m_counts.layers = m_layers.size();
    m_counts.lines = drawing.lineCount();
    m_counts.texts = drawing.textCount();
}

ORVCADWallDataInputModel &WallInput::base()
{
    return std::visit([](auto &model) -> ORVCADWallDataInputModel & { return model; }, m_model);
}

QByteArray WallInput::json() const
{
    std::wstring text;
    std::visit([&text](const auto &model) { model.saveToJson(text); }, m_model);
    return QString::fromStdWString(text).toUtf8();
}

QByteArray WallInput::xml() const
{
    std::wstring text;
    std::visit([&text](const auto &model) { model.saveToXml(text); }, m_model);
    return declaredBytes(QString::fromStdWString(text));
}

QByteArray WallInput::cloud() const
{
    const Brick *model = std::get_if<Brick>(&m_model);
    if (!model)
        return {};
    QJsonObject document;
    model->saveToJson_ToCloud(document);
    return QJsonDocument(document).toJson();
}

QStringList WallInput::unreadable(const QByteArray &xml) const
{
    if (isXml(xml))
        return {};
    QStringList reasons;
    for (const QString &layer : m_layers)
        if (!layerReadsBack(layer))
            reasons.append(Message::tr("layer \"%1\" is no name in XML").arg(layer));
    for (const auto &[layer, text] : m_texts)
        if (!textReadsBack(text))
            reasons.append(
                Message::tr("text \"%1\" on layer \"%2\" is no name in XML behind its \"/\"").arg(text, layer));
    if (reasons.isEmpty())
        reasons.append(Message::tr("a name of the floor is no name in XML behind its \"/\""));
    return reasons;
}

QString WallInput::text() const
{
    const QString walls = counted(m_counts.walls, Message::tr("%1 element").arg(Message::tr(m_kind.title)));
    return Message::tr("%1, %2, %3, %4 and %5 of %6; %7 with %8 and %9")
        .arg(walls, counted(m_counts.brickLines, Message::tr("placed brick wall")),
             counted(m_counts.forceLines, Message::tr("placed force wall")),
             counted(m_counts.axisLines, Message::tr("axis line")), counted(m_counts.columns, Message::tr("column")),
             m_floorName, counted(m_counts.layers, Message::tr("layer")), counted(m_counts.lines, Message::tr("line")),
             counted(m_counts.texts, Message::tr("text")));
}

QJsonObject WallInput::summary() const
{
    return {{"kind", m_kind.word},
            {"floor", m_floorName},
            {"walls", m_counts.walls},
            {"brickLines", m_counts.brickLines},
            {"forceLines", m_counts.forceLines},
            {"axisLines", m_counts.axisLines},
            {"columns", m_counts.columns},
            {"layers", m_counts.layers},
            {"lines", m_counts.lines},
            {"texts", m_counts.texts}};
}

} // namespace orvcad
