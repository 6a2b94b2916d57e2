#include "foundation/Log_AI.h"

#include <QMap>
#include <QUuid>

#include <atomic>

namespace cv {

namespace {
std::atomic<qint64> g_logs{0}; // of all trees, which may belong to several threads
}

struct Log_AI::Record
{
    QUuid id;
    QString type;
    QString descript;
    double confidenceLevel;
    QMap<QString, QVariant> values;
};

Log_AI::Log_AI(const QString &type, const QString &descript, double confidenceLevel, Object_AI *parent)
    : Object_AI(parent), m_record(new Record{QUuid::createUuid(), type, descript, confidenceLevel, {}})
{
    ++g_logs;
}

Log_AI::~Log_AI() { --g_logs; }

bool Log_AI::anyExists() { return g_logs > 0; }

Log_AI *Log_AI::setValue(const QString &key, const QVariant &value)
{
    m_record->values[key] = value;
    return this;
}

QString Log_AI::getLogId() const { return m_record->id.toString(); }

QJsonObject Log_AI::toJson() const
{
    QJsonObject json{{QStringLiteral("id"), getLogId()},
                     {QStringLiteral("type"), m_record->type},
                     {QStringLiteral("descript"), m_record->descript},
                     {QStringLiteral("confidenceLevel"), m_record->confidenceLevel}};
    for (auto value = m_record->values.cbegin(); value != m_record->values.cend(); ++value)
        json.insert(value.key(), value.value().toString()); // meant: a detail replaces what has its name
    return json;
}

} // namespace cv
