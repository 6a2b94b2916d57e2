#pragma once

#include "platform/embedded/ExchangeReferenceText.h"
#include "platform/embedded/HBXProjectRecords.h"

#include <QJsonObject>

namespace orvcad {

// What is told of a record, under the keys of the exchange form. Ids are no facts, and neither is what follows from the
// place in a file: two records are alike when their facts are.

QJsonObject factsOf(const hbx::embedded::ProjectSettings &settings);
QJsonObject factsOf(const hbx::embedded::FloorRecord &floor);
/** @param objects  what the draw objects that properties name are called, by the decimal text of an id */
QJsonObject factsOf(const hbx::embedded::ElementRecord &element, const hbx::embedded::ReferenceMap &objects);
/** Links to other objects (chain, owner, attachment) are not among them. */
QJsonObject factsOf(const hbx::embedded::DrawObjRecord &object, const hbx::embedded::ReferenceMap &objects);

/** Whether a property of a record names draw objects. */
bool namesObjects(const hbx::embedded::PropertyRecords &properties, qint64 type);

} // namespace orvcad
