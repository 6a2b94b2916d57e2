#include "cli/ColumnDocumentCheck.h"
#include "cli/Files.h"
#include "cli/Message.h"
#include "cli/Verb.h"

#include <QJsonArray>
#include <QStringList>

namespace orvcad {

namespace {

QStringList linesOf(const QString &file, const ColumnDocumentCheck &check)
{
    QStringList lines{QStringLiteral("%1: %2: %3").arg(file, check.title(), check.contentText())};
    lines += faultLines(file, check.findings());
    lines += faultLines(file, check.writtenOtherwise());
    if (check.missingKeys() > 0)
        lines.append(Message::tr("missing keys, read as 0, false or empty: %1").arg(check.missingKeys()));
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

Summary checkRecord(const Arguments &arguments)
{
    const QString file = Arguments::text(arguments.input);
    const ColumnDocumentCheck check(readJsonObject(file, Message::tr("column record"), LargeNumbers::Taken));
    if (!check.isColumnRecord())
        throw CommandFailure(kBadInput, file, {}, Message::tr("no column record: it has none of the keys of one"));
    return summaryOf(file, check);
}

} // namespace

void addColumnCommands(CLI::App &app, Command &command)
{
    CLI::App &group = addGroup(app, "column", Message::help("Column records"));
    Verb(group, command, "check", Message::help("Tell what a column record holds, and what is wrong with it"),
         checkRecord)
        .inputs("FILE", Message::help("Order to identify or check columns, or results"));
}

} // namespace orvcad
