#pragma once

#include "cli/ColumnRecordLook.h"

#include <QJsonObject>
#include <QString>

namespace orvcad {

/** Which column record a JSON object is, what it holds, and what in it the reader does not take as it stands.
 *
 *  The kind is told from the keys: the record that knows most of them. */
class ColumnDocumentCheck
{
public:
    explicit ColumnDocumentCheck(const QJsonObject &document);

    /** False when no column record has any of the object's keys; nothing else is told then. */
    bool isColumnRecord() const { return !m_title.isEmpty(); }
    /** For people, such as "results of identification". */
    const QString &title() const { return m_title; }
    /** "kind" and what the record holds, keys as in docs/cli.md. */
    const QJsonObject &content() const { return m_content; }
    const std::vector<ColumnFinding> &findings() const { return m_look.findings(); }
    int missingKeys() const { return m_look.missingKeys(); }

private:
    template <typename Fields> void check(const QJsonObject &document);
    void checkHoopBars(const QJsonObject &par, const dwgx::JsonPlace &place);
    void checkLimbs(const QJsonObject &document, const dwgx::JsonPlace &place);

    QString m_title;
    QJsonObject m_content;
    ColumnRecordLook m_look;
};

} // namespace orvcad
