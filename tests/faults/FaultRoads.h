#pragma once

#include "platform/embedded/HBXProject.h"

#include <QByteArray>
#include <QSet>

#include <functional>
#include <memory>
#include <vector>

class IHBXService;

namespace faults {

/** What a way out gives: one text for each record. */
using Records = std::vector<QByteArray>;
/** One journey, to be taken while the host fails. A way in gives no records. */
using Journey = std::function<Records()>;

/** One road through the library, ready to be taken over a building. */
struct Road
{
    /** Types of the elements that a way in makes; none for a way out. */
    QSet<qint64> makes = {};
    bool writes() const { return !makes.isEmpty(); }
    /** How many elements may suffer when one call fails: those that stand on what fails go with it. */
    std::size_t mostSuffering = 1;
    std::size_t thinnedBy = 1; ///< a long journey is taken so much less often, but for each call in the small building
    QByteArray building;       ///< exchange text of what the host has at the start
    std::function<Journey(IHBXService &)> start; ///< what has to be there before the journey is got here
    QSet<QByteArray> caught = {};                ///< operations of which no exception may reach the caller
    /** Operations of which HBXModelException may; with "*" all but those above. Of the rest, one record or one element
     *  with its draw objects may suffer and no more. */
    QSet<QByteArray> hostExceptionPasses = {QByteArrayLiteral("*")};
};

struct NamedRoad
{
    const char *name;
    Road (*over)(const QByteArray &building);
};

/** All roads out of a host, and all into one. */
const std::vector<NamedRoad> &roadsOut();
const std::vector<NamedRoad> &roadsIn();

} // namespace faults
