#pragma once

#include <QJsonObject>

namespace orvcad {

/** Turns what was exported into a reply, so that it can be applied elsewhere: ids of the host go, each element gets a fresh
 *  identity, and whatever text of the document names one of the old identities names the new one. Of elements that share an
 *  identity the first one keeps the references. Takes a model document and an IO document; everything else stays. */
QJsonObject withNewIdentities(const QJsonObject &document);

} // namespace orvcad
