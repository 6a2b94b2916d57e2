#include "slab/ORVCADBoardOptions_Sample.h"

ORVCADBoardOptions_Sample::ORVCADBoardOptions_Sample() : m_values(std::make_unique<std::map<QString, QString>>()) {}

ORVCADBoardOptions_Sample::~ORVCADBoardOptions_Sample() = default;

QString ORVCADBoardOptions_Sample::value(const QString &key) const
{
    const auto found = m_values->find(key);
    return found == m_values->end() ? QString() : found->second;
}

std::map<QString, QString> &ORVCADBoardOptions_Sample::values() const { return *m_values; }
