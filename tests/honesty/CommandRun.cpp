#include "CommandRun.h"

#include "cli/Command.h"

#include <CLI/CLI.hpp>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <algorithm>

namespace honestytest {

namespace {

void describe(CLI::App &app, orvcad::Command &command)
{
    app.require_subcommand(1);
    app.fallthrough();
    for (const auto add :
         {orvcad::addProjectCommands, orvcad::addFloorsCommands, orvcad::addOpeningCommands, orvcad::addSlabCommands,
          orvcad::addBeamCommands, orvcad::addWallCommands, orvcad::addColumnCommands, orvcad::addDrawingCommands,
          orvcad::addDrawingsCommands, orvcad::addDrawCommand, orvcad::addDemoCommand})
        add(app, command);
}

Ran failed(int exitCode, const QString &message)
{
    Ran ran;
    ran.exitCode = exitCode;
    ran.error = {{"message", message}};
    return ran;
}

Ran runParsed(const orvcad::Command &command)
{
    try {
        const orvcad::Summary summary = command();
        return {summary.exitCode, summary.text, summary.json, {}, summary.documentOnStdout};
    } catch (const orvcad::CommandFailure &failure) {
        Ran ran;
        ran.exitCode = failure.code();
        ran.error = failure.toJson()["error"].toObject();
        return ran;
    } catch (const std::exception &error) {
        return failed(-1, QString::fromUtf8(error.what()));
    }
}

} // namespace

std::string Ran::shown() const
{
    return "exit code " + std::to_string(exitCode) + "\n" + text.toStdString() + "\n" +
           QJsonDocument(error.isEmpty() ? json : error).toJson().toStdString();
}

Ran run(const QStringList &arguments)
{
    CLI::App app("", "orvcad");
    orvcad::Command command;
    describe(app, command);
    std::vector<std::string> words;
    for (const QString &argument : arguments)
        words.push_back(argument.toStdString());
    std::reverse(words.begin(), words.end()); // as the parser wants them
    try {
        app.parse(words);
    } catch (const CLI::ParseError &error) {
        return failed(orvcad::kWrongUsage, QString::fromUtf8(error.what()));
    }
    return runParsed(command);
}

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QJsonObject fileObject(const QString &path) { return QJsonDocument::fromJson(fileContent(path)).object(); }

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}

void writeFile(const QString &path, const QJsonValue &document)
{
    const QJsonDocument json =
        document.isArray() ? QJsonDocument(document.toArray()) : QJsonDocument(document.toObject());
    writeFile(path, json.toJson());
}

} // namespace honestytest
