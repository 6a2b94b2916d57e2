#include "platform/embedded/DatabaseRows.h"

#include <QStringList>

#include <cmath>

namespace hbx::embedded {
namespace {

QByteArray query(const char *table, const char *key, const char *columns)
{
    return QByteArray("SELECT ") + columns + " FROM " + table + " ORDER BY " + key;
}

} // namespace

DatabaseRows::DatabaseRows(SqliteConnection &connection, const char *table, const char *key, const char *columns)
    : m_rows(connection, query(table, key, columns).constData()), m_table(table), m_key(key)
{}

int DatabaseRows::integer32(int column, const char *name) const
{
    const qint64 found = m_rows.integer(column);
    if (found < std::numeric_limits<int>::min() || found > std::numeric_limits<int>::max())
        refuse(name, QStringLiteral("is out of range"));
    return static_cast<int>(found);
}

double DatabaseRows::number(int column, const char *name) const
{
    const double found = m_rows.number(column);
    if (!std::isfinite(found))
        refuse(name, QStringLiteral("is not finite"));
    return found;
}

void DatabaseRows::refuse(const char *column, const QString &reason) const
{
    QStringList terms;
    const QStringList keys = QString::fromLatin1(m_key).split(QLatin1String(", "));
    for (int i = 0; i < keys.size(); ++i)
        terms.append(QStringLiteral("%1=%2").arg(keys[i]).arg(m_rows.integer(i)));
    const QString row = QStringLiteral("%1[%2]").arg(QLatin1String(m_table), terms.join(QLatin1String(", ")));
    throw DatabaseRefusal{column ? row + QLatin1Char('.') + QLatin1String(column) : row, reason};
}

void OwnedRows::refuseOrphan() const
{
    m_rows.refuse(nullptr, QStringLiteral("belongs to nothing that is in the file"));
}

} // namespace hbx::embedded
