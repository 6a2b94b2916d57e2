#include "cli/Applied.h"
#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/WallInput.h"
#include "cli/WallKind.h"
#include "platform/dwgx/DWGXModel.h"
#include "platform/dwgx/HBXCADFileHelper.h"
#include "platform/dwgx/HBXCADIOperator.h"

#include <QFileInfo>
#include <QJsonArray>

namespace orvcad {

namespace {

struct ExportArguments : Arguments
{
    std::string format = "json";
    std::string drawing;
};

void addDrawing(WallInput &input, const QString &path)
{
    const std::unique_ptr<dwgx::DWGXModel> drawing(dwgx::DWGXModel::createObject());
    const std::unique_ptr<HBXCADIOperator> fileOperator(HBXCADFileHelper::getInstance()->createCADIOperator());
    if (!fileOperator->read(path, drawing.get()))
        throw CommandFailure(kBadInput, path, fileOperator->lastErrorPlace(), fileOperator->lastErrorReason());
    input.addDrawing(*drawing, QFileInfo(path).fileName());
}

using Format = QByteArray (WallInput::*)() const;

Format formatOf(const std::string &name)
{
    if (name == "json")
        return &WallInput::json;
    return name == "xml" ? &WallInput::xml : &WallInput::cloud;
}

Summary exportWalls(const ExportArguments &arguments)
{
    const bool isBrick = arguments.kind == "brick";
    if (!isBrick && arguments.format == "cloud")
        throw CommandFailure(kWrongUsage, QStringLiteral("there is no cloud document of force walls"));
    const auto project = openProject(Arguments::text(arguments.project));
    IHBXRegion &region = requireRegion(*project, Arguments::text(arguments.region));
    WallInput input(*project, requireFloor(*project, region, Arguments::text(arguments.floor)),
                    wallKindOf(Arguments::text(arguments.kind)));
    if (!arguments.drawing.empty())
        addDrawing(input, Arguments::text(arguments.drawing));

    const QByteArray document = (input.*formatOf(arguments.format))();
    const QStringList warnings = arguments.format == "xml" ? input.unreadable(document) : QStringList();
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, document);
    QJsonObject json = input.summary();
    json["output"] = output;
    json["format"] = Arguments::text(arguments.format);
    json["warnings"] = QJsonArray::fromStringList(warnings);
    QStringList lines;
    for (const QString &warning : warnings)
        lines.append(QStringLiteral("will not parse again: ") + warning);
    return {QStringLiteral("Wrote ") + input.text() + cutLines(lines), json, kDone, onStdout};
}

} // namespace

void addWallExportCommand(CLI::App &group, Command &command)
{
    const auto arguments = std::make_shared<ExportArguments>();
    CLI::App *verb = group.add_subcommand("export", "Write what the recognition of walls is told of a floor");
    addProject(verb, arguments);
    addWallKind(verb, arguments);
    verb->add_option("--format", arguments->format, "Form of the document: json, xml or cloud (brick only)")
        ->check(CLI::IsMember({"json", "xml", "cloud"}))
        ->capture_default_str();
    addPlace(verb, arguments, true);
    verb->add_option("--drawing", arguments->drawing, "Drawing of the floor (.cadi2), whose lines and texts are added");
    addOutput(verb, arguments, "File to write the document to");
    verb->callback([&command, arguments] { command = [arguments] { return exportWalls(*arguments); }; });
}

} // namespace orvcad
