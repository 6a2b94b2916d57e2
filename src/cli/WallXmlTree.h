#pragma once

#include "cli/JsonTree.h"

#include <QByteArray>

#include <memory>

namespace orvcad {

/** A wall document in its XML form as the tree of its JSON form, with the places of the XML: a record is an object of
 *  texts, a list an array of such objects, a map one object of "key_0", "value_0" and so on. Text that is no XML, or that
 *  the archive would not parse, has a fault. */
std::unique_ptr<JsonTree> wallXmlTree(const QByteArray &bytes);

} // namespace orvcad
