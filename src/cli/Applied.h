#pragma once

#include "cli/Command.h"

#include <QJsonArray>
#include <QStringList>

#include <algorithm>
#include <vector>

class IHBXModel;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** A member of a reply that was not written, or not whole. */
struct LeftOut
{
    QString place; ///< in the document: Beam[3].EDOInfo[0]
    QString name;  ///< of the element
    QString reason;
    bool isWhole = true; ///< a member was not written; else it was, without this part or value of it

    QString text() const;
    QJsonObject toJson() const;
};

QJsonArray toJson(const std::vector<LeftOut> &leftOut);

/** How much was left out: "2 left out", and ", and 1 part of the rest" where members were written without something. */
QString leftOutCount(int whole, int parts);
/** The same for entries of LeftOut, or of a kind of it. */
template <typename Entry> QString leftOutCount(const std::vector<Entry> &leftOut)
{
    const auto whole = std::count_if(leftOut.begin(), leftOut.end(), [](const Entry &entry) { return entry.isWhole; });
    return leftOutCount(static_cast<int>(whole), static_cast<int>(leftOut.size()) - static_cast<int>(whole));
}

/** A text of a document for a line of a summary: the first sixty characters, and "…" behind them where there are more. */
QString shortened(const QString &text);

/** Lines of a summary, each on a line of its own behind a line break: the first twenty, and how many more there are. */
QString cutLines(const QStringList &lines);
/** The same for members that were left out. */
QString leftOutLines(const std::vector<LeftOut> &leftOut);

/** What the host refused to write since its journal had so many entries, one reason each. */
QStringList refusedSince(const hbx::embedded::HBXProject &project, std::size_t entries);

/** Counts the objects made since a model had so many, which are the same as another one. */
int doubledSince(IHBXModel &model, int drawObjsBefore);
/** The line that tells of them; empty for none. */
QString doubledLine(int doubled);

/** Ends a command that wrote a reply into a project: saves it, but for a reply that left something out under --strict, and
 *  completes the summary by "project" and "saved". */
Summary saveApplied(hbx::embedded::HBXProject &project, bool isComplete, bool isStrict, const QString &text,
                    QJsonObject json);

/** The same for the outcome of a reply, which has leftOut, text() and toJson(). */
template <typename Outcome>
Summary saveApplied(hbx::embedded::HBXProject &project, const Outcome &outcome, bool isStrict)
{
    return saveApplied(project, outcome.leftOut.empty(), isStrict, outcome.text(), outcome.toJson());
}

} // namespace orvcad
