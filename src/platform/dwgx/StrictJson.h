#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/dwgx/KeyLiteral.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <initializer_list>
#include <vector>

/** Reading of JSON files that are refused as a whole when they break a rule. Every reader here throws JsonRefusal, which
 *  the reader of the file catches. */
namespace dwgx {

/** Line and column of a byte of a UTF-8 text, in words: "line 3, column 7". Both count from 1, columns in characters. */
ORVCADPLATFORM_EXPORT QString lineAndColumn(const QByteArray &text, int offset);

/** Why a file is refused. */
struct JsonRefusal
{
    QString place;  ///< such as layers[0].lines[3].curve; empty for the document
    QString reason; ///< what is wrong there
};

/** Where in a document a value stands. The text is only made when somebody asks; the parent must live as long. */
class ORVCADPLATFORM_EXPORT JsonPlace
{
public:
    JsonPlace() = default;
    /** A member of an object. */
    JsonPlace(const JsonPlace &parent, QLatin1String key) : m_parent(&parent), m_key(key) {}
    /** An entry of an array. */
    JsonPlace(const JsonPlace &parent, int index) : m_parent(&parent), m_index(index) {}

    /** Such as layers[0].lines[3].curve; empty for the document. */
    QString text() const;
    /** Throws JsonRefusal with this place. */
    [[noreturn]] void refuse(const QString &reason) const;

private:
    const JsonPlace *m_parent = nullptr; // null: the document itself
    QLatin1String m_key;
    int m_index = -1; // in an array; -1: a member of an object
};

/** An object whose members are all known: a value that is no object, and any other member, is refused at once. A member
 *  that is asked for and is missing, or of another kind, is refused likewise; has() tells of one that may be missing.
 *  The place must live as long. */
class ORVCADPLATFORM_EXPORT StrictObject
{
public:
    /** Throws for a value that is no object and for a member that is not known. */
    StrictObject(const QJsonValue &value, const JsonPlace &place, std::initializer_list<QLatin1String> knownKeys);

    /** What it was made with. */
    const JsonPlace &place() const { return m_place; }
    /** Whether the member is there, of whatever kind. */
    bool has(QLatin1String key) const { return m_object.contains(key); }
    /** The member, of any kind. */
    QJsonValue value(QLatin1String key) const;
    /** The member, which must be a text. */
    QString text(QLatin1String key) const;
    /** The member, which must be a number. */
    double number(QLatin1String key) const;
    /** An integer from low to high. */
    qint64 integer(QLatin1String key, qint64 low, qint64 high) const;
    /** The member, which must be an array. */
    QJsonArray array(QLatin1String key) const;
    /** An array of so many numbers. */
    std::vector<double> numbers(QLatin1String key, int count) const;

private:
    QJsonObject m_object;
    const JsonPlace &m_place;
};

} // namespace dwgx
