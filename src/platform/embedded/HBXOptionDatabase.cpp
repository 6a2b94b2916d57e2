#include "platform/embedded/HBXOptionDatabase.h"

#include "platform/services/HBXOptionNames.h"
#include "platform/services/ORVCADCommonUtils.h"

#include <algorithm>
#include <optional>

namespace hbx::embedded {
namespace {

using OptionField = QString OptionRecord::*;

/** The field behind a column name, null for an unknown one. */
OptionField fieldOfColumn(const QString &column)
{
    const std::pair<QString, OptionField> columns[] = {
        {pfnCADIdentifyOptionGroup, &OptionRecord::group},
        {pfnCADIdentifyOptionName, &OptionRecord::name},
        {pfnCADIdentifyOptionValue, &OptionRecord::value},
    };
    const auto *found = std::find_if(std::begin(columns), std::end(columns),
                                     [&](const auto &candidate) { return candidate.first == column; });
    return found == std::end(columns) ? nullptr : found->second;
}

struct Condition
{
    QString column;
    QString value;
};

/** Reads `SameString(column,"value")`; the value goes up to the last `")`, whatever it holds. */
std::optional<Condition> parseCondition(const QString &text)
{
    const QLatin1String opening("SameString(");
    const QLatin1String beforeValue(",\"");
    const QLatin1String closing("\")");
    const QString condition = text.trimmed();
    const int columnEnd = condition.indexOf(beforeValue);
    const int valueStart = columnEnd + beforeValue.size();
    const int valueEnd = condition.size() - closing.size();
    if (columnEnd < 0 || valueEnd < valueStart || !condition.startsWith(opening) || !condition.endsWith(closing))
        return std::nullopt;
    return Condition{condition.mid(opening.size(), columnEnd - opening.size()),
                     condition.mid(valueStart, valueEnd - valueStart)};
}

class OptionTable : public vks::CDBTable
{
public:
    explicit OptionTable(const std::vector<OptionRecord> &rows) : m_rows(rows) {}

    bool Query(const QString &text, vks::CFileAddressList &addresses, bool append) const override
    {
        if (!append)
            addresses.Clear();
        const auto condition = parseCondition(text);
        const OptionField field = condition ? fieldOfColumn(condition->column) : nullptr;
        const int before = addresses.Count();
        for (std::size_t row = 0; field && row < m_rows.size(); ++row)
            if (m_rows[row].*field == condition->value)
                addresses.Add(static_cast<vks::CFileAddressList::Address>(row));
        return addresses.Count() > before;
    }

    bool FieldText(vks::CFileAddressList::Address address, const QString &column, QString &out) const override
    {
        const OptionField field = fieldOfColumn(column);
        const auto row = static_cast<std::size_t>(address); // a negative one is beyond any table
        if (!field || row >= m_rows.size())
            return false;
        out = m_rows[row].*field;
        return true;
    }

private:
    const std::vector<OptionRecord> &m_rows;
};

} // namespace

HBXOptionDatabase::HBXOptionDatabase(const std::vector<OptionRecord> &rows)
    : m_options(std::make_unique<OptionTable>(rows))
{}

HBXOptionDatabase::~HBXOptionDatabase() = default;

vks::CDBTable *HBXOptionDatabase::GetTable(const QString &name)
{
    return name == ORVCADCommonUtils::getCADIdentifyOptionTableName() ? m_options.get() : nullptr;
}

} // namespace hbx::embedded
