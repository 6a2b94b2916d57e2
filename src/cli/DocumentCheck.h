#pragma once

#include "cli/CheckFinding.h"
#include "cli/DocumentKinds.h"

#include <QJsonObject>
#include <QString>

#include <vector>

namespace orvcad {

/** What is wrong in one file, found before anything is done with it. */
class DocumentCheck
{
public:
    /** A finding with its place in words. */
    struct Told
    {
        CheckFinding::Weight weight = CheckFinding::Weight::Fault;
        CheckFinding::Rule rule = CheckFinding::Rule::Form;
        QString path;                ///< such as regions[0].name; empty for the document
        QString pointer;             ///< the same as JSON pointer
        JsonTree::Position position; ///< 0, 0 where the file has no text
        QString value;               ///< what stands there; empty for lists, objects and missing keys
        QString message;
        QString expected;
        QString meant;

        QJsonObject toJson() const;
    };
    /** Missing keys of one kind of record. */
    struct Default
    {
        QString path; ///< [*] for any entry of a list
        QString value;
        int count = 0;

        QJsonObject toJson() const;
    };

    /** Reads a file. One that cannot be read, and one whose kind cannot be told, has that as a fault.
     *  @param kind  what it is taken for; null to tell it from the document */
    DocumentCheck(const QString &file, const DocumentKind *kind);

    const QString &file() const { return m_file; }
    /** Name of the kind; empty where it cannot be told. */
    const QString &kind() const { return m_kind; }
    const QString &title() const { return m_title; }
    /** In the order of the text. */
    const std::vector<Told> &findings() const { return m_findings; }
    const std::vector<Default> &defaults() const { return m_defaults; }
    int count(CheckFinding::Weight weight) const;
    /** "clean", "faulty", or "not read whole" where the reader would ignore or drop something. */
    QString verdict() const;

    QStringList lines() const;
    QJsonObject toJson() const;

private:
    void checkBytes(const QByteArray &bytes, const DocumentKind *kind);
    void checkProject();
    void checkArchive(const QByteArray &bytes);
    void checkTree(const JsonTree &tree, const QByteArray &text, const DocumentKind *kind);
    void setKind(const DocumentKind &kind);
    void addDefault(const JsonTree &tree, const DefaultedKey &key);
    void tell(const JsonTree &tree, std::vector<CheckFinding> findings);
    void tellUnusable(const QString &reason, const QString &place = {});

    QString m_file;
    QString m_kind;
    QString m_title;
    std::vector<Told> m_findings;
    std::vector<Default> m_defaults;
};

} // namespace orvcad
