#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace hbx::embedded {

/** What a name of a draw object becomes; nothing for an unknown one. */
using ReferenceMap = std::function<std::optional<QString>(const QString &name)>;

/** How properties hold references to draw objects as text (PropertyRole::DrawObjIds): ids in the project, keys in the
 *  exchange form.
 *
 *  "Catalog" is `name[object]`; all others are lists of `object,flag;`. */
class ExchangeReferenceText
{
public:
    ExchangeReferenceText(const QString &property, const QString &text);

    /** The text with each reference mapped; one that maps to nothing is taken out. */
    QString mapped(const ReferenceMap &map) const;
    /** The first reference that maps to nothing; absent when all are known. */
    std::optional<QString> firstUnknown(const ReferenceMap &map) const;

private:
    QString mappedBracket(const ReferenceMap &map) const;
    QString mappedList(const ReferenceMap &map) const;

    bool m_isBracket;
    QString m_text;
};

} // namespace hbx::embedded
