#pragma once

#include "cli/JsonShape.h"
#include "drawing/ORVCADFloorSDCData.h"

#include <QJsonObject>
#include <QString>

#include <optional>
#include <vector>

namespace orvcad {

/** A floor exchange taken both ways: read, written from what was read, and that read once more. */
struct FloorExchange
{
    std::vector<ORVCADFloorSDCData::Floor> floors;
    QJsonObject written;              ///< the document again
    std::vector<JsonFault> notKept;   ///< what the document has and the written one lacks or has otherwise
    int lost = 0;                     ///< of these, values that are in the written one nowhere
    std::vector<JsonFault> notStable; ///< the same between the written one and what is written after reading that
};

/** Why the reader refuses a document, at the place where it stops; nothing for one that it accepts. */
std::optional<JsonFault> firstRefusal(const QJsonObject &document);
/** Throws CommandFailure with file, place and reason for a file that is refused. */
FloorExchange readFloorExchange(const QString &path);

} // namespace orvcad
