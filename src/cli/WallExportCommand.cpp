#include "cli/Applied.h"
#include "cli/Files.h"
#include "cli/FloorLookup.h"
#include "cli/ProjectFiles.h"
#include "cli/Verb.h"
#include "cli/WallInput.h"
#include "cli/WallKind.h"
#include "platform/dwgx/DWGXModel.h"
#include "platform/dwgx/HBXCADFileHelper.h"
#include "platform/dwgx/HBXCADIOperator.h"

#include <CLI/CLI.hpp>

#include <QFileInfo>
#include <QJsonArray>

namespace orvcad {

namespace {

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

Summary exportWalls(const Arguments &arguments)
{
    const WallKind &kind = wallKindOf(Arguments::text(arguments.kind));
    if (!kind.isBrick() && arguments.format == "cloud")
        throw CommandFailure(kWrongUsage, QStringLiteral("there is no cloud document of force walls"));
    const auto project = openProject(Arguments::text(arguments.project));
    WallInput input(*project, pickFloor(*project, arguments), kind);
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
    Verb verb(group, command, "export", "Write what the recognition of walls is told of a floor", exportWalls);
    verb.arguments().format = "json";
    verb.project().wallKind();
    verb.app()
        .add_option("--format", verb.arguments().format, "Form of the document: json, xml or cloud (brick only)")
        ->check(CLI::IsMember({"json", "xml", "cloud"}))
        ->capture_default_str();
    verb.pickedFloor();
    verb.app().add_option("--drawing", verb.arguments().drawing,
                          "Drawing of the floor (.cadi2), whose lines and texts are added");
    verb.output("File to write the document to");
}

} // namespace orvcad
