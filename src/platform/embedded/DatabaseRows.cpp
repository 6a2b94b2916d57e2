#include "platform/embedded/DatabaseRows.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/DatabaseRefusal.h"

#include <QStringList>

#include <cmath>

namespace hbx::embedded {
namespace {

QByteArray query(const char *table, const char *key, const char *columns)
{
    return QByteArray("SELECT ") + key + ", " + columns + " FROM " + table + " ORDER BY " + key;
}

QStringList namesIn(const char *columns) { return QString::fromLatin1(columns).split(QLatin1String(", ")); }

} // namespace

DatabaseRows::DatabaseRows(SqliteConnection &connection, const char *table, const char *key, const char *columns)
    : m_rows(connection, query(table, key, columns).constData()), m_table(table), m_key(key), m_columns(columns)
{}

int DatabaseRows::integer32(int column) const
{
    const qint64 found = m_rows.integer(column);
    if (found < std::numeric_limits<int>::min() || found > std::numeric_limits<int>::max())
        refuse(column, dwgx::Reason::tr("is out of range"));
    return static_cast<int>(found);
}

double DatabaseRows::number(int column) const
{
    const double found = m_rows.number(column);
    if (!std::isfinite(found))
        refuse(column, dwgx::Reason::tr("is not finite"));
    return found;
}

void DatabaseRows::refuse(int column, const QString &reason) const
{
    throw DatabaseRefusal{place() + QLatin1Char('.') + (namesIn(m_key) + namesIn(m_columns)).at(column), reason};
}

void DatabaseRows::refuseRow(const QString &reason) const { throw DatabaseRefusal{place(), reason}; }

QString DatabaseRows::place() const
{
    QStringList terms;
    for (const QString &name : namesIn(m_key))
        terms.append(QStringLiteral("%1=%2").arg(name).arg(m_rows.integer(terms.size())));
    return QStringLiteral("%1[%2]").arg(QLatin1String(m_table), terms.join(QLatin1String(", ")));
}

void OwnedRows::refuseOrphan() const { m_rows.refuseRow(dwgx::Reason::tr("belongs to nothing that is in the file")); }

} // namespace hbx::embedded
