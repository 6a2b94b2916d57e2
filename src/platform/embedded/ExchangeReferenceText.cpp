#include "platform/embedded/ExchangeReferenceText.h"

#include <QStringList>

#include <utility>

namespace hbx::embedded {
namespace {

constexpr QLatin1Char kItemEnd(';');
constexpr QLatin1Char kFieldEnd(',');
constexpr QLatin1Char kBracketOpen('[');
constexpr QLatin1Char kBracketClose(']');

} // namespace

ExchangeReferenceText::ExchangeReferenceText(PropertyRole role, QString text) : m_role(role), m_text(std::move(text)) {}

QString ExchangeReferenceText::mapped(const ReferenceMap &map) const
{
    return m_role == PropertyRole::DrawObjIdInBrackets ? mappedBracket(map) : mappedList(map);
}

std::optional<QString> ExchangeReferenceText::firstUnknown(const ReferenceMap &map) const
{
    std::optional<QString> unknown;
    mapped([&](const QString &name) {
        std::optional<QString> found = map(name);
        if (!found && !unknown)
            unknown = name;
        return found;
    });
    return unknown;
}

QString ExchangeReferenceText::mappedBracket(const ReferenceMap &map) const
{
    const int open = m_text.lastIndexOf(kBracketOpen);
    if (open < 0 || !m_text.endsWith(kBracketClose))
        return m_text;
    const QString name = m_text.left(open);
    const std::optional<QString> object = map(m_text.mid(open + 1, m_text.size() - open - 2));
    return object ? name + kBracketOpen + *object + kBracketClose : name;
}

QString ExchangeReferenceText::mappedList(const ReferenceMap &map) const
{
    QStringList items;
    for (const QString &item : m_text.split(kItemEnd)) {
        const QString object = item.section(kFieldEnd, 0, 0);
        const std::optional<QString> other = item.isEmpty() ? QString() : map(object);
        if (other)
            items.append(*other + item.mid(object.size()));
    }
    return items.join(kItemEnd);
}

} // namespace hbx::embedded
