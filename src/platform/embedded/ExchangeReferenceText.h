#pragma once

#include "platform/embedded/HBXPropertyCatalogue.h"

#include <QString>

#include <functional>
#include <optional>

namespace hbx::embedded {

/** What a name of a draw object becomes; nothing for an unknown one. */
using ReferenceMap = std::function<std::optional<QString>(const QString &name)>;

/** How text properties hold references to draw objects: ids in the project, keys in the exchange form.
 *
 *  PropertyRole::DrawObjIdInBrackets is `name[object]`; PropertyRole::DrawObjIds is a list of `object,flag;`. */
class ORVCADPLATFORM_EXPORT ExchangeReferenceText
{
public:
    ExchangeReferenceText(PropertyRole role, QString text);

    /** The text with each reference mapped; one that maps to nothing is taken out. */
    QString mapped(const ReferenceMap &map) const;
    /** The first reference that maps to nothing; absent when all are known. */
    std::optional<QString> firstUnknown(const ReferenceMap &map) const;

private:
    QString mappedBracket(const ReferenceMap &map) const;
    QString mappedList(const ReferenceMap &map) const;

    PropertyRole m_role;
    QString m_text;
};

} // namespace hbx::embedded
