#include "cli/Counted.h"
#include "cli/DocumentCheck.h"
#include "cli/Message.h"
#include "cli/NearestName.h"
#include "cli/Verb.h"

#include <CLI/CLI.hpp>

#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace orvcad {

namespace {

/** The files of the arguments, and the kind where the first one names one. */
struct Asked
{
    const DocumentKind *kind = nullptr;
    QStringList files;
};

/** The first word is a kind where files follow it. One that is neither kind nor file is told as a misspelt kind. */
Asked askedFor(const Arguments &arguments)
{
    Asked asked;
    for (const std::string &input : arguments.inputs)
        asked.files.append(Arguments::text(input));
    const QString first = asked.files.first();
    asked.kind = QFileInfo::exists(first) ? nullptr : documentKind(first);
    if (asked.kind)
        asked.files.removeFirst();
    const QString meant = asked.kind || QFileInfo::exists(first) ? QString() : nearestName(first, documentKindNames());
    if (!meant.isEmpty())
        throw CommandFailure(
            kWrongUsage,
            Message::tr("\"%1\" is neither a file nor a kind of document; \"%2\" is one").arg(first, meant));
    if (asked.files.isEmpty())
        throw CommandFailure(kWrongUsage, Message::tr("FILE is required"));
    return asked;
}

ExitCode exitCodeOf(const DocumentCheck &check)
{
    if (check.count(CheckFinding::Weight::Fault) > 0)
        return kBadInput;
    return check.findings().empty() ? kDone : kLeftOut;
}

Summary check(const Arguments &arguments)
{
    const Asked asked = askedFor(arguments);
    QStringList lines;
    QJsonArray files;
    int faults = 0;
    int losses = 0;
    for (const QString &file : asked.files) {
        const DocumentCheck check(file, asked.kind);
        lines += check.lines();
        files.append(check.toJson());
        faults += exitCodeOf(check) == kBadInput ? 1 : 0;
        losses += exitCodeOf(check) == kLeftOut ? 1 : 0;
    }
    if (asked.files.size() > 1)
        lines.append(Message::tr("%1: %2 faulty, %3 not read whole")
                         .arg(counted(asked.files.size(), Message::tr("file")))
                         .arg(faults)
                         .arg(losses));
    return {lines.join('\n'),
            {{"files", files}, {"faulty", faults}, {"notReadWhole", losses}},
            faults > 0   ? kBadInput
            : losses > 0 ? kLeftOut
                         : kDone};
}

} // namespace

void addCheckCommand(CLI::App &app, Command &command)
{
    Verb verb(app, command, "check",
              Message::help("Tell what is wrong in documents, before anything is done with them"), check);
    verb.app()
        .add_option("[KIND] FILE", verb.arguments().inputs,
                    Message::tr("Documents, with their kind in front where it cannot be told: %1")
                        .arg(documentKindNames().join(QStringLiteral(", ")))
                        .toStdString())
        ->required();
}

} // namespace orvcad
