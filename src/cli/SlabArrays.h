#pragma once

#include <QJsonObject>
#include <QLatin1String>
#include <QString>
#include <QStringList>

#include <vector>

namespace orvcad {

/** An array of a slab model document. */
struct SlabArray
{
    /** What tells where a member lies. */
    enum class Geometry { Outline, Line };

    QLatin1String key;
    int part;          ///< of ORVCADBoardLocalModelPersistenceService_Sample::Parts
    const char *title; ///< of one member, for summaries
    qint64 type = -1;  ///< element type in the host, of what replies make; -1 for supports and axes, which they do not
    Geometry geometry = Geometry::Outline;
    QStringList required = {}; ///< keys without which a member would mean something else
    QStringList whole = {};    ///< keys whose numbers lose their meaning with a fraction

    bool isMade() const { return type >= 0; }
    QLatin1String geometryKey() const;
    /** A member with each key that is read, of the kind that its value has to have. */
    QJsonObject pattern() const;
    /** Keys that a member may have; some of them are passed over. */
    QStringList keys() const;
};

/** In the order in which a reply is written into a project: what bars lie in goes first. */
const std::vector<SlabArray> &slabArrays();

/** Members of each array of a model document, "3 slabs, 5 slab openings"; nothing for empty ones. */
QString slabCountsText(const QJsonObject &model);
/** The same by key, empty arrays that the document has among them. */
QJsonObject slabCounts(const QJsonObject &model);

} // namespace orvcad
