#pragma once

#include "cli/JsonFault.h"

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
    /** "key value" of everything that the record holds, in the order of the keys. */
    QString contentText() const;
    /** Values that the reader does not take as they stand, in the order of the reader. */
    const std::vector<JsonFault> &findings() const { return m_findings; }
    /** What the document has and what is written from the record lacks or has otherwise, each with the finding that tells
     *  why or with the value that is written; in the order of the keys. A key that is missing is no loss, though the
     *  record writes it. */
    const std::vector<JsonFault> &notKept() const { return m_notKept; }
    /** Those of them that no finding tells of: values that are sound and have another form when they are written. */
    const std::vector<JsonFault> &writtenOtherwise() const { return m_writtenOtherwise; }
    int missingKeys() const { return m_missingKeys; }
    /** Whether the document survives being written again, in words. */
    QString verdict() const;

private:
    /** @param written  the document as it is written from the record */
    void compareWithWritten(const QJsonObject &document, const QJsonObject &written);

    QString m_title;
    QJsonObject m_content;
    std::vector<JsonFault> m_findings;
    int m_missingKeys = 0;
    std::vector<JsonFault> m_notKept;
    std::vector<JsonFault> m_writtenOtherwise;
};

} // namespace orvcad
