#include "cli/Counted.h"
#include "cli/DrawingFiles.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "cli/TextTable.h"
#include "cli/Verb.h"
#include "platform/dwgx/DWGXModel.h"
#include "platform/embedded/HBXFloorDrawing.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"

#include <QJsonArray>
#include <QStringList>

namespace orvcad {

namespace {

QString countsOf(const dwgx::DWGXModel &drawing)
{
    return QStringLiteral("%1, %2, %3")
        .arg(counted(static_cast<int>(drawing.layers().size()), Message::tr("layer")),
             counted(drawing.lineCount(), Message::tr("line")), counted(drawing.textCount(), Message::tr("text")));
}

QJsonObject drawingToJson(const dwgx::DWGXModel &drawing)
{
    QJsonArray layers;
    for (const dwgx::DWGXLayer &layer : drawing.layers())
        layers.append(QJsonObject{{"name", layer.name},
                                  {"color", layer.color},
                                  {"lines", static_cast<int>(layer.lines.size())},
                                  {"texts", static_cast<int>(layer.texts.size())}});
    return {{"title", drawing.getTitle()},
            {"remark", drawing.getRemark()},
            {"layers", layers},
            {"lines", drawing.lineCount()},
            {"texts", drawing.textCount()}};
}

QString drawingText(const dwgx::DWGXModel &drawing)
{
    QStringList lines{QStringLiteral("%1: %2").arg(drawing.getTitle(), countsOf(drawing))};
    for (const dwgx::DWGXLayer &layer : drawing.layers())
        lines.append(QStringLiteral("  ") + TextTable::padded(layer.name, 24, TextTable::Align::Left) +
                     Message::tr(" colour %1 %2 lines %3 texts")
                         .arg(layer.color, 3)
                         .arg(layer.lines.size(), 6)
                         .arg(layer.texts.size(), 6));
    const vks::CBox2<double> box = drawing.box();
    if (box.IsValid())
        lines.append(Message::tr("  extends over %1 x %2 m").arg(box.Width() / 1000).arg(box.Height() / 1000));
    return lines.join('\n');
}

Summary makeDrawing(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    IHBXFloor &floor = pickFloor(*project, arguments);
    const auto drawing = hbx::embedded::makeFloorDrawing(project->service()->model(), &floor);
    const QString output = Arguments::text(arguments.output);
    const QString title = QStringLiteral("%1, %2").arg(floor.region()->name(), floor.name());
    drawing->setTitle(title);
    drawing->setRemark(project->name());
    writeDrawing(output, *drawing);
    QJsonObject json = drawingToJson(*drawing);
    json["output"] = output;
    return {Message::tr("Drew %1 into %2: %3").arg(title, output, countsOf(*drawing)), json};
}

Summary showDrawing(const Arguments &arguments)
{
    const auto drawing = readDrawing(Arguments::text(arguments.input));
    return {drawingText(*drawing), drawingToJson(*drawing)};
}

} // namespace

void addDrawingCommands(CLI::App &app, Command &command)
{
    CLI::App &group = addGroup(app, "drawing", Message::help("Drawing files (.cadi2)"));
    Verb(group, command, "make", Message::help("Draw a floor as layers, lines and texts"), makeDrawing)
        .projects()
        .pickedFloor()
        .output(Message::help("Drawing file to make (.cadi2)"), ".cadi2", Verb::NoOutput::WrongUsage);
    Verb(group, command, "show", Message::help("What a drawing file holds"), showDrawing)
        .inputs("DRAWING", Message::help("Drawing file (.cadi2)"));
}

} // namespace orvcad
