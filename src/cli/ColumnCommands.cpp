#include "cli/Arguments.h"
#include "cli/ColumnDocumentCheck.h"
#include "cli/Command.h"
#include "cli/Files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

namespace orvcad {

namespace {

/** "key value" of everything that a record holds, in the order of the keys. */
QString heldText(const QJsonObject &content)
{
    QStringList parts;
    for (auto member = content.begin(); member != content.end(); ++member)
        if (member.key() != QLatin1String("kind"))
            parts.append(QStringLiteral("%1 %2").arg(
                member.key(), member->isString() ? '"' + member->toString() + '"' : member->toVariant().toString()));
    return parts.join(QStringLiteral(", "));
}

QString findingText(const QString &file, const ColumnFinding &finding)
{
    return QStringLiteral("%1: %2: %3").arg(file, finding.place, finding.reason);
}

Summary summaryOf(const QString &file, const ColumnDocumentCheck &check)
{
    QStringList lines{QStringLiteral("%1: %2: %3").arg(file, check.title(), heldText(check.content()))};
    QJsonArray findings;
    for (const ColumnFinding &finding : check.findings()) {
        lines.append(findingText(file, finding));
        findings.append(QJsonObject{{"place", finding.place}, {"reason", finding.reason}});
    }
    if (check.missingKeys() > 0)
        lines.append(QStringLiteral("missing keys, read as 0, false or empty: %1").arg(check.missingKeys()));
    QJsonObject json = check.content();
    json["file"] = file;
    json["findings"] = findings;
    json["missingKeys"] = check.missingKeys();
    return {lines.join('\n'), json, findings.isEmpty() ? kDone : kLeftOut};
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
