#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvcad {

/** What a value has to be: one schema object of JSON Schema 2020-12, ready to be held against values. Of the standard it
 *  knows what the published schemas use. */
struct JsonSchema
{
    /** Kinds of values; an integer is a number as well. */
    enum Type : unsigned { Null = 1, Truth = 2, Integer = 4, Number = 8, Text = 16, List = 32, Object = 64 };

    /** Cases of an object that a value in it tells apart: "kind" of shapes. */
    struct Case
    {
        QString value;
        const JsonSchema *schema;
    };

    QString title;
    QString description;
    bool isNever = false; ///< the schema "false"

    unsigned types = 0; ///< sum of those allowed; 0: any
    std::vector<QJsonValue> allowed;
    std::optional<double> minimum;
    std::optional<double> maximum;
    std::optional<double> exclusiveMinimum;
    std::optional<int> minLength;
    std::optional<QRegularExpression> pattern;
    QString format;
    QJsonValue defaultValue{QJsonValue::Undefined};

    std::map<std::string, const JsonSchema *, std::less<>> properties;
    std::vector<std::pair<QRegularExpression, const JsonSchema *>> patternProperties;
    const JsonSchema *otherProperties = nullptr;
    std::vector<std::string> required;
    std::optional<int> minProperties;
    std::optional<int> maxProperties;

    std::vector<const JsonSchema *> firstItems;
    const JsonSchema *items = nullptr;
    std::optional<int> minItems;
    std::optional<int> maxItems;

    const JsonSchema *reference = nullptr;
    std::vector<const JsonSchema *> all;
    std::vector<const JsonSchema *> any;
    std::vector<const JsonSchema *> one;
    const JsonSchema *negated = nullptr;
    const JsonSchema *condition = nullptr;
    const JsonSchema *consequence = nullptr;
    const JsonSchema *alternative = nullptr;

    QString caseKey;         ///< of the cases
    std::vector<Case> cases; ///< those of "all" that are told apart by a value
};

/** A schema that cannot be held against anything: it breaks the standard, or uses a keyword that is not known here. */
class SchemaError : public std::logic_error
{
public:
    using std::logic_error::logic_error;
};

/** Schemas that refer to each other by their file names. They live as long as the set. */
class SchemaSet
{
public:
    /** The text of a schema by its file name; null for an unknown one. */
    using Source = QByteArray (*)(const QString &fileName);

    explicit SchemaSet(Source source) : m_source(source) {}

    /** The schema of a file, or the part of it that a reference leads to: "beams.schema.json#/$defs/span". Throws
     *  SchemaError for a part that there is not, and for what is no schema of the kind above. */
    const JsonSchema &schema(const QString &reference);

private:
    friend class SchemaReader;

    const QJsonObject &document(const QString &fileName);

    Source m_source;
    std::map<QString, QJsonObject> m_documents;
    std::map<QString, std::unique_ptr<JsonSchema>> m_schemas; // by file name and pointer
};

/** The published schemas, which the program has in it. */
SchemaSet &publishedSchemas();
/** The text of a published schema by its file name; null for an unknown one. */
QByteArray publishedSchemaText(const QString &fileName);

} // namespace orvcad
