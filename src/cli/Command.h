#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <stdexcept>

namespace CLI {
class App;
}

namespace orvcad {

enum ExitCode { kDone = 0, kWrongUsage = 1, kBadInput = 2, kLeftOut = 3 };

/** What a command did: once for people and once for machines. */
struct Summary
{
    QString text;     ///< lines for people, without a final line break
    QJsonObject json; ///< stable keys, told in docs/cli.md
    ExitCode exitCode = kDone;
    bool documentOnStdout = false; ///< the result itself went to standard output, so the summary must not
    QStringList failures = {};     ///< files of several that failed, for people, who are told on standard error
};

/** Ends a command: the message names file, place and reason. */
class CommandFailure : public std::runtime_error
{
public:
    CommandFailure(ExitCode code, const QString &message) : std::runtime_error(message.toStdString()), m_code(code) {}
    /** Place and reason are cut where they are long beyond reading. */
    CommandFailure(ExitCode code, const QString &file, const QString &place, const QString &reason);

    ExitCode code() const { return m_code; }
    QString message() const { return QString::fromUtf8(what()); }
    /** {"error": {"message", "file", "place", "reason"}, "exitCode"}. */
    QJsonObject toJson() const;

private:
    ExitCode m_code;
    QString m_file;
    QString m_place;
    QString m_reason;
};

/** The command that the arguments chose, run after all of them are read. */
using Command = std::function<Summary()>;

/** Each adds one group of verbs; the chosen verb stores itself in command. */
void addProjectCommands(CLI::App &app, Command &command);
void addFloorsCommands(CLI::App &app, Command &command);
void addOpeningCommands(CLI::App &app, Command &command);
void addSlabCommands(CLI::App &app, Command &command);
void addBeamCommands(CLI::App &app, Command &command);
void addWallCommands(CLI::App &app, Command &command);
void addColumnCommands(CLI::App &app, Command &command);
void addDrawingCommands(CLI::App &app, Command &command);
void addDrawingsCommands(CLI::App &app, Command &command);
void addDrawCommand(CLI::App &app, Command &command);
void addCopyCommand(CLI::App &app, Command &command);
void addManualCommand(CLI::App &app, Command &command);
void addCompleteCommand(CLI::App &app, Command &command);
void addDiffCommand(CLI::App &app, Command &command);
void addCheckCommand(CLI::App &app, Command &command);
void addDemoCommand(CLI::App &app, Command &command);

} // namespace orvcad
