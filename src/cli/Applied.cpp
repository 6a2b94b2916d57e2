#include "cli/Applied.h"

#include "cli/Counted.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/HBXCheckError.h"
#include "platform/host/IHBXCheck.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXModel.h"

#include <map>

using hbx::embedded::HBXProject;
using hbx::embedded::JournalEntry;

namespace orvcad {

namespace {
constexpr int kMostLines = 20;
constexpr int kMostLetters = 60;
} // namespace

QString LeftOut::text() const
{
    return QStringLiteral("%1 (%2): %3").arg(place, name.isEmpty() ? Message::tr("no name") : shortened(name), reason);
}

QJsonObject LeftOut::toJson() const
{
    return {{"place", place}, {"name", name}, {"reason", reason}, {"whole", isWhole}};
}

QString leftOutCount(int whole, int parts)
{
    const QString members = Message::tr("%1 left out").arg(whole);
    return parts == 0 ? members
                      : Message::tr("%1, and %2 of the rest").arg(members, counted(parts, Message::tr("part")));
}

QJsonArray toJson(const std::vector<LeftOut> &leftOut)
{
    QJsonArray json;
    for (const LeftOut &member : leftOut)
        json.append(member.toJson());
    return json;
}

QString shortened(const QString &text)
{
    return text.size() > kMostLetters ? text.left(kMostLetters) + QChar(0x2026) : text;
}

QString cutLines(const QStringList &lines)
{
    QString text;
    for (const QString &line : lines.mid(0, kMostLines))
        text += QStringLiteral("\n  ") + line;
    if (lines.size() > kMostLines)
        text += QStringLiteral("\n  ") + Message::tr("… and %1 more; --json lists all").arg(lines.size() - kMostLines);
    return text;
}

QString leftOutLines(const std::vector<LeftOut> &leftOut)
{
    QStringList lines;
    for (const LeftOut &member : leftOut)
        lines.append(Message::tr("left out: %1").arg(member.text()));
    return cutLines(lines);
}

QStringList refusedSince(const HBXProject &project, std::size_t entries)
{
    QStringList reasons;
    const auto &journal = project.journal().entries();
    for (std::size_t i = entries; i < journal.size(); ++i)
        if (journal[i].kind == JournalEntry::kWriteThrew)
            reasons.append(journal[i].reason);
    return reasons;
}

int doubledSince(IHBXModel &model, int drawObjsBefore)
{
    int doubled = 0;
    for (int i = drawObjsBefore; i < model.drawObjects()->count(); ++i) {
        HBXCheckError error;
        std::map<qint64, QString> collisions;
        model.checker()->checkDrawObj(model.drawObjects()->at(i), error, collisions);
        doubled += collisions.empty() ? 0 : 1;
    }
    return doubled;
}

QString doubledLine(int doubled)
{
    return doubled == 0 ? QString()
                        : '\n' + Message::tr("%1 made where the same one stands already: was this applied before?")
                                     .arg(counted(doubled, Message::tr("object")));
}

Summary saveApplied(HBXProject &project, bool isComplete, bool isStrict, const QString &text, QJsonObject json)
{
    const bool isSaved = isComplete || !isStrict;
    if (isSaved)
        saveProject(project);
    json["project"] = project.path();
    json["saved"] = isSaved;
    return {isSaved ? text : text + '\n' + Message::tr("Nothing was saved (--strict)."), json,
            isComplete ? kDone : kLeftOut};
}

} // namespace orvcad
