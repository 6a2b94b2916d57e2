#include "cli/JsonSchema.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <unordered_map>

namespace orvcad {

namespace {

constexpr std::pair<const char *, unsigned> kTypes[] = {
    {"null", JsonSchema::Null},     {"boolean", JsonSchema::Truth}, {"integer", JsonSchema::Integer},
    {"number", JsonSchema::Number}, {"string", JsonSchema::Text},   {"array", JsonSchema::List},
    {"object", JsonSchema::Object},
};

QString escaped(QString key)
{
    return key.replace(QLatin1Char('~'), QLatin1String("~0")).replace(QLatin1Char('/'), QLatin1String("~1"));
}

} // namespace

/** Reads one schema object into its record, keyword by keyword. */
class SchemaReader
{
public:
    /** @param place  file name, "#" and pointer */
    SchemaReader(SchemaSet &set, JsonSchema &schema, QString place)
        : m_set(set), m_schema(schema), m_place(std::move(place))
    {}

    void read(const QJsonValue &json)
    {
        if (json.isBool()) {
            m_schema.isNever = !json.toBool();
            return;
        }
        if (!json.isObject())
            fail(QStringLiteral("is no schema"));
        const QJsonObject object = json.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            readKeyword(member.key(), *member);
        findCases(object);
    }

private:
    using Reading = void (SchemaReader::*)(const QString &key, const QJsonValue &value);

    [[noreturn]] void fail(const QString &reason) const
    {
        throw SchemaError(QStringLiteral("%1: %2").arg(m_place, reason).toStdString());
    }

    void readKeyword(const QString &key, const QJsonValue &value)
    {
        static const std::unordered_map<std::string, Reading> readings{
            {"$schema", &SchemaReader::passOver},
            {"$id", &SchemaReader::passOver},
            {"$defs", &SchemaReader::passOver}, // read where they are referred to
            {"examples", &SchemaReader::passOver},
            {"title", &SchemaReader::title},
            {"description", &SchemaReader::description},
            {"default", &SchemaReader::defaultValue},
            {"type", &SchemaReader::type},
            {"const", &SchemaReader::constant},
            {"enum", &SchemaReader::enumeration},
            {"minimum", &SchemaReader::minimum},
            {"maximum", &SchemaReader::maximum},
            {"exclusiveMinimum", &SchemaReader::exclusiveMinimum},
            {"minLength", &SchemaReader::minLength},
            {"pattern", &SchemaReader::pattern},
            {"format", &SchemaReader::format},
            {"properties", &SchemaReader::properties},
            {"patternProperties", &SchemaReader::patternProperties},
            {"additionalProperties", &SchemaReader::additionalProperties},
            {"required", &SchemaReader::required},
            {"minProperties", &SchemaReader::minProperties},
            {"maxProperties", &SchemaReader::maxProperties},
            {"prefixItems", &SchemaReader::prefixItems},
            {"items", &SchemaReader::items},
            {"minItems", &SchemaReader::minItems},
            {"maxItems", &SchemaReader::maxItems},
            {"$ref", &SchemaReader::reference},
            {"allOf", &SchemaReader::all},
            {"anyOf", &SchemaReader::any},
            {"oneOf", &SchemaReader::one},
            {"not", &SchemaReader::negated},
            {"if", &SchemaReader::condition},
            {"then", &SchemaReader::consequence},
            {"else", &SchemaReader::alternative},
        };
        const auto reading = readings.find(key.toStdString());
        if (reading == readings.end())
            fail(QStringLiteral("the keyword \"%1\" is not known").arg(key));
        (this->*reading->second)(key, value);
    }

    const JsonSchema *below(const QString &keyword) { return &m_set.schema(m_place + QLatin1Char('/') + keyword); }
    const JsonSchema *below(const QString &keyword, const QString &name)
    {
        return below(keyword + QLatin1Char('/') + escaped(name));
    }
    std::vector<const JsonSchema *> list(const QString &key, const QJsonValue &value)
    {
        std::vector<const JsonSchema *> schemas;
        for (int i = 0; i < value.toArray().size(); ++i)
            schemas.push_back(&m_set.schema(QStringLiteral("%1/%2/%3").arg(m_place, key).arg(i)));
        return schemas;
    }
    QRegularExpression expression(const QString &text) const
    {
        QRegularExpression read(text, QRegularExpression::DontCaptureOption);
        if (!read.isValid())
            fail(QStringLiteral("the pattern is none: ") + read.errorString());
        read.optimize();
        return read;
    }

    void passOver(const QString & /*key*/, const QJsonValue & /*value*/) {}
    void title(const QString & /*key*/, const QJsonValue &value) { m_schema.title = value.toString(); }
    void description(const QString & /*key*/, const QJsonValue &value) { m_schema.description = value.toString(); }
    void defaultValue(const QString & /*key*/, const QJsonValue &value) { m_schema.defaultValue = value; }
    void type(const QString & /*key*/, const QJsonValue &value)
    {
        const QJsonArray names = value.isArray() ? value.toArray() : QJsonArray{value};
        for (const QJsonValue name : names) {
            const auto *const found = std::find_if(std::begin(kTypes), std::end(kTypes), [&](const auto &known) {
                return name.toString() == QLatin1String(known.first);
            });
            if (found == std::end(kTypes))
                fail(QStringLiteral("the type \"%1\" is not known").arg(name.toString()));
            m_schema.types |= found->second;
        }
    }
    void constant(const QString & /*key*/, const QJsonValue &value) { m_schema.allowed = {value}; }
    void enumeration(const QString & /*key*/, const QJsonValue &value)
    {
        for (const QJsonValue one : value.toArray())
            m_schema.allowed.push_back(one);
    }
    void minimum(const QString & /*key*/, const QJsonValue &value) { m_schema.minimum = value.toDouble(); }
    void maximum(const QString & /*key*/, const QJsonValue &value) { m_schema.maximum = value.toDouble(); }
    void exclusiveMinimum(const QString & /*key*/, const QJsonValue &value)
    {
        m_schema.exclusiveMinimum = value.toDouble();
    }
    void minLength(const QString & /*key*/, const QJsonValue &value) { m_schema.minLength = value.toInt(); }
    void pattern(const QString & /*key*/, const QJsonValue &value) { m_schema.pattern = expression(value.toString()); }
    void format(const QString & /*key*/, const QJsonValue &value) { m_schema.format = value.toString(); }
    void properties(const QString &key, const QJsonValue &value)
    {
        for (const QString &name : value.toObject().keys())
            m_schema.properties.emplace(name.toStdString(), below(key, name));
    }
    void patternProperties(const QString &key, const QJsonValue &value)
    {
        for (const QString &name : value.toObject().keys())
            m_schema.patternProperties.emplace_back(expression(name), below(key, name));
    }
    void additionalProperties(const QString &key, const QJsonValue & /*value*/)
    {
        m_schema.otherProperties = below(key);
    }
    void required(const QString & /*key*/, const QJsonValue &value)
    {
        for (const QJsonValue name : value.toArray())
            m_schema.required.push_back(name.toString().toStdString());
    }
    void minProperties(const QString & /*key*/, const QJsonValue &value) { m_schema.minProperties = value.toInt(); }
    void maxProperties(const QString & /*key*/, const QJsonValue &value) { m_schema.maxProperties = value.toInt(); }
    void prefixItems(const QString &key, const QJsonValue &value) { m_schema.firstItems = list(key, value); }
    void items(const QString &key, const QJsonValue & /*value*/) { m_schema.items = below(key); }
    void minItems(const QString & /*key*/, const QJsonValue &value) { m_schema.minItems = value.toInt(); }
    void maxItems(const QString & /*key*/, const QJsonValue &value) { m_schema.maxItems = value.toInt(); }
    void reference(const QString & /*key*/, const QJsonValue &value)
    {
        const QString target = value.toString();
        const QString ownFile = m_place.section(QLatin1Char('#'), 0, 0);
        m_schema.reference = &m_set.schema(target.startsWith(QLatin1Char('#')) ? ownFile + target : target);
    }
    void all(const QString &key, const QJsonValue &value) { m_schema.all = list(key, value); }
    void any(const QString &key, const QJsonValue &value) { m_schema.any = list(key, value); }
    void one(const QString &key, const QJsonValue &value) { m_schema.one = list(key, value); }
    void negated(const QString &key, const QJsonValue & /*value*/) { m_schema.negated = below(key); }
    void condition(const QString &key, const QJsonValue & /*value*/) { m_schema.condition = below(key); }
    void consequence(const QString &key, const QJsonValue & /*value*/) { m_schema.consequence = below(key); }
    void alternative(const QString &key, const QJsonValue & /*value*/) { m_schema.alternative = below(key); }

    /** Each of several that asks for one value of the same key is a case of that value. */
    void findCases(const QJsonObject &object)
    {
        const QJsonArray parts = object[QLatin1String("allOf")].toArray();
        for (int i = 0; i < parts.size(); ++i) {
            const QJsonObject asked =
                parts[i].toObject()[QLatin1String("if")].toObject()[QLatin1String("properties")].toObject();
            const QJsonValue value =
                asked.size() == 1 ? asked.begin()->toObject()[QLatin1String("const")] : QJsonValue();
            const JsonSchema *then = m_schema.all[static_cast<std::size_t>(i)]->consequence;
            if (value.isString() && then && (m_schema.caseKey.isEmpty() || m_schema.caseKey == asked.begin().key())) {
                m_schema.caseKey = asked.begin().key();
                m_schema.cases.push_back({value.toString(), then});
            }
        }
    }

    SchemaSet &m_set;
    JsonSchema &m_schema;
    const QString m_place;
};

const QJsonObject &SchemaSet::document(const QString &fileName)
{
    const auto known = m_documents.find(fileName);
    if (known != m_documents.end())
        return known->second;
    const QJsonDocument document = QJsonDocument::fromJson(m_source(fileName));
    if (!document.isObject())
        throw SchemaError(QStringLiteral("%1: is no schema that there is").arg(fileName).toStdString());
    return m_documents.emplace(fileName, document.object()).first->second;
}

const JsonSchema &SchemaSet::schema(const QString &reference)
{
    const QString place = reference.contains(QLatin1Char('#')) ? reference : reference + QLatin1Char('#');
    std::unique_ptr<JsonSchema> &schema = m_schemas[place];
    if (schema)
        return *schema;
    QJsonValue json = document(place.section(QLatin1Char('#'), 0, 0));
    for (QString step : place.section(QLatin1Char('#'), 1).split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        step.replace(QLatin1String("~1"), QLatin1String("/")).replace(QLatin1String("~0"), QLatin1String("~"));
        json = json.isArray() ? json.toArray().at(step.toInt()) : json.toObject().value(step);
    }
    schema = std::make_unique<JsonSchema>();
    SchemaReader(*this, *schema, place).read(json);
    return *schema;
}

QByteArray publishedSchemaText(const QString &fileName)
{
    QFile file(QStringLiteral(":/schemas/") + fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

SchemaSet &publishedSchemas()
{
    static SchemaSet schemas(publishedSchemaText);
    return schemas;
}

} // namespace orvcad
