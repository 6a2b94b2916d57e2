#pragma once

#include <QMap>
#include <QString>

/** What applications attach to a drawing object: texts by name. A name without a value does not exist. */
class HBXCADExtData
{
public:
    /** The empty text for an unknown name. */
    QString value(const QString &name) const { return m_values.value(name); }
    /** An empty text takes the name away. */
    void setValue(const QString &name, const QString &value)
    {
        if (value.isEmpty())
            m_values.remove(name);
        else
            m_values.insert(name, value);
    }
    /** All names with their values, none empty. */
    const QMap<QString, QString> &values() const { return m_values; }

private:
    QMap<QString, QString> m_values;
};
