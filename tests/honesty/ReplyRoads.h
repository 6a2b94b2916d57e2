#pragma once

#include "Carried.h"

#include <QJsonObject>
#include <QStringList>

#include <vector>

namespace honestytest {

/** A way of documents into a building and back out of it. */
struct ReplyRoad
{
    const char *name;
    QStringList apply;      ///< before project and reply
    QStringList applyFlags; ///< behind them
    QStringList give;       ///< before project and -o FILE: the document that apply takes
    QStringList giveFlags;
    std::vector<int> types; ///< of elements, which a building lacks before the document is applied
    /** The members of a document as the command counts them; the test's own walk. */
    Members (*members)(const QJsonObject &document);
    /** Why a member that arrived is not the one that was sent; empty when it is. */
    QString (*difference)(const Member &sent, const Member &arrived);
    /** What a summary says of the members that it took, by kind; what the document that is given afterwards holds more or
     *  fewer of, or how the sums do not come out. Empty when all is well. */
    std::string (*unequal)(const QJsonObject &summary, const Members &sent, const Members &arrived);
    /** Types of the draw objects that are placed, and how many of them the summary tells. */
    std::vector<int> placedTypes;
    int (*placed)(const QJsonObject &summary);
    /** What of the sample building's document does not arrive, as the command names it, and the document without that. */
    QStringList told;
    QJsonObject (*tidied)(QJsonObject document);
    /** The first line of the summary for people: names of groups are paths in the one for machines, with _ for dots;
     *  "whole" and "parts" are numbers of what was left out. */
    const char *headline;
};

const std::vector<ReplyRoad> &replyRoads();

void PrintTo(const ReplyRoad &road, std::ostream *out);

} // namespace honestytest
