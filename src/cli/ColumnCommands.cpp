#include "cli/Arguments.h"
#include "cli/ColumnDocumentCheck.h"
#include "cli/Command.h"
#include "cli/Files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

namespace orvcad {

namespace {

QStringList linesOf(const QString &file, const ColumnDocumentCheck &check)
{
    const auto line = [&](const QString &place, const QString &reason) {
        return QStringLiteral("%1: %2: %3").arg(file, place, reason);
    };
    QStringList lines{line(check.title(), check.contentText())};
    for (const JsonFault &finding : check.findings())
        lines.append(line(finding.place, finding.reason));
    for (const JsonFault &fault : check.writtenOtherwise())
        lines.append(line(fault.place, fault.reason));
    if (check.missingKeys() > 0)
        lines.append(QStringLiteral("missing keys, read as 0, false or empty: %1").arg(check.missingKeys()));
    return lines << check.verdict();
}

Summary summaryOf(const QString &file, const ColumnDocumentCheck &check)
{
    QJsonObject json = check.content();
    json["file"] = file;
    json["findings"] = faultsToJson(check.findings());
    json["missingKeys"] = check.missingKeys();
    json["same"] = check.notKept().empty();
    json["notKept"] = faultsToJson(check.notKept());
    return {linesOf(file, check).join('\n'), json, check.findings().empty() ? kDone : kLeftOut};
}

Summary checkFile(const QString &file)
{
    const QJsonDocument document = readJsonFile(file);
    if (!document.isObject())
        throw CommandFailure(kBadInput, file, {}, QStringLiteral("no column record: its top is no object"));
    const ColumnDocumentCheck check(document.object());
    if (!check.isColumnRecord())
        throw CommandFailure(kBadInput, file, {}, QStringLiteral("no column record: it has none of the keys of one"));
    return summaryOf(file, check);
}

} // namespace

void addColumnCommands(CLI::App &app, Command &command)
{
    CLI::App *group = app.add_subcommand("column", "Column records");
    group->require_subcommand(1);

    auto arguments = newArguments();
    CLI::App *verb = group->add_subcommand("check", "Tell what a column record holds, and what is wrong with it");
    verb->add_option("FILE", arguments->input, "Order to identify or check columns, or results")->required();
    verb->callback(
        [&command, arguments] { command = [arguments] { return checkFile(Arguments::text(arguments->input)); }; });
}

} // namespace orvcad
