#include "cli/SchemaCheck.h"

#include "cli/Message.h"
#include "cli/NearestName.h"
#include "cli/SchemaRules.h"
#include "cli/ValueWords.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace orvcad {

namespace {

using Index = JsonTree::Index;
using Kind = JsonTree::Kind;
using Rule = CheckFinding::Rule;
using Weight = CheckFinding::Weight;
using Schemas = std::vector<const JsonSchema *>;
constexpr Index kNone = JsonTree::kNone;

QString textOf(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<int>(text.size())); }

/** What a value is held against: every schema that applies to it, found one inside the other. */
struct Applied
{
    Schemas schemas;
    std::vector<std::string> required;                  ///< beyond those of the schemas
    std::vector<std::vector<std::string>> alternatives; ///< lists of keys of which one has to be there
    bool isMistyped = false;
    bool isUndecided = false; ///< its case is unknown, and with it the keys that it may have
};

/** First description on the way through references, without a full stop, since it stands in brackets. */
QString meaningOf(const JsonSchema &schema)
{
    const JsonSchema *one = &schema;
    while (one && one->description.isEmpty())
        one = one->reference;
    QString meaning = one ? one->description : QString();
    if (meaning.endsWith(u'.'))
        meaning.chop(1);
    return meaning;
}

QString meaningOf(const Schemas &schemas)
{
    for (const JsonSchema *schema : schemas) {
        QString meaning = meaningOf(*schema);
        if (!meaning.isEmpty())
            return meaning;
    }
    return {};
}

/** The types that a schema allows, where it or what it refers to tells them. */
unsigned typesOf(const JsonSchema &schema)
{
    const JsonSchema *one = &schema;
    while (one && one->types == 0)
        one = one->reference;
    return one ? one->types : 0;
}

const QJsonValue &defaultOf(const JsonSchema &schema)
{
    const JsonSchema *one = &schema;
    while (one->defaultValue.isUndefined() && one->reference)
        one = one->reference;
    return one->defaultValue;
}

QString jsonText(const QJsonValue &value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

/** A schema that does nothing but ask for keys. */
bool asksForKeysAlone(const JsonSchema *schema)
{
    return !schema->required.empty() && schema->properties.empty() && schema->types == 0 && !schema->reference;
}

class Walk
{
public:
    /** @param isTrial  only to find out how near a value is to a schema */
    explicit Walk(const JsonTree &document, bool isTrial = false) : m_document(document), m_isTrial(isTrial) {}

    void visit(Index value, const Schemas &schemas);
    SchemaFindings result();
    std::size_t faults() const { return m_found.findings.size() - m_ignored; }
    /** How far a value is from a schema; one of another type is farther than any other. */
    std::size_t distance(Index value) const;

private:
    struct UnknownKey
    {
        Index member;
        bool isForbidden;
    };

    void apply(Index value, const JsonSchema &schema, Applied &applied);
    void applyCases(Index value, const JsonSchema &schema, Applied &applied);
    void applyNearest(Index value, const Schemas &branches, bool isOneOnly, Applied &applied);
    void applyCondition(Index value, const JsonSchema &schema, Applied &applied);

    void lookAtMembers(Index object, const Applied &applied);
    void lookAtItems(Index list, const Applied &applied);
    bool schemasOfMember(Index member, const Applied &applied, Schemas &schemas, bool &isForbidden) const;
    std::vector<std::string> missingKeys(Index object, const Applied &applied) const;
    std::vector<QStringList> lackingKeys(Index object, const Applied &applied) const;
    QStringList absentKeys(Index object, const Applied &applied) const;
    void tellKeys(Index object, const std::vector<UnknownKey> &unknown, const Applied &applied);
    void tellUnknown(const UnknownKey &key, const QString &meant, bool isMissing);
    void tellMissing(Index object, const QStringList &names, const Applied &applied);
    void noteDefaults(Index object, const Applied &applied);

    std::size_t faultsBy(Index value, const JsonSchema &schema) const;
    void fault(Index value, Rule rule, const QString &is, const QString &expected, const QString &meant = {});

    const JsonTree &m_document;
    const bool m_isTrial;
    SchemaFindings m_found;
    std::size_t m_ignored = 0;
    std::map<std::pair<const JsonSchema *, std::string>, std::size_t> m_defaults; // places among those found
    Schemas m_now; // what the value at hand is held against
};

SchemaFindings Walk::result() { return std::move(m_found); }

std::size_t Walk::distance(Index value) const
{
    constexpr std::size_t perFault = 1000;
    std::size_t distance = m_ignored;
    for (const CheckFinding &finding : m_found.findings) {
        const bool isAtTop = finding.node == value && finding.missingKey.isNull();
        const std::size_t factor = !isAtTop                     ? 1
                                   : finding.rule == Rule::Type ? 10000
                                   : finding.rule == Rule::Size ? 100
                                                                : 1;
        distance += finding.weight == Weight::Fault ? perFault * factor : 0;
    }
    return distance;
}

std::size_t Walk::faultsBy(Index value, const JsonSchema &schema) const
{
    Walk trial(m_document, true);
    trial.visit(value, {&schema});
    return trial.faults();
}

void Walk::fault(Index value, Rule rule, const QString &is, const QString &expected, const QString &meant)
{
    // A value that holds no others is wrong once, however many rules it breaks.
    const Kind kind = m_document.node(value).kind;
    const bool isTold = !m_found.findings.empty() && m_found.findings.back().node == value;
    if (isTold && kind != Kind::Object && kind != Kind::List)
        return;
    CheckFinding finding;
    finding.node = value;
    finding.rule = rule;
    finding.expected = expected;
    finding.meant = meant;
    if (!m_isTrial) {
        const QString meaning = meaningOf(m_now);
        const QString wanted = !meant.isEmpty()     ? Message::tr("\"%1\" is meant").arg(meant)
                               : expected.isEmpty() ? QString()
                                                    : Message::tr("%1 is expected").arg(expected);
        finding.message = wanted.isEmpty() ? is : is + QStringLiteral("; ") + wanted;
        if (!meaning.isEmpty())
            finding.message += QStringLiteral(" (%1)").arg(meaning);
    }
    m_found.findings.push_back(std::move(finding));
}

void Walk::visit(Index value, const Schemas &schemas)
{
    Schemas before = std::move(m_now);
    m_now = schemas;
    Applied applied;
    for (const JsonSchema *schema : schemas)
        apply(value, *schema, applied);
    if (!applied.isMistyped && m_document.node(value).kind == Kind::Object)
        lookAtMembers(value, applied);
    if (!applied.isMistyped && m_document.node(value).kind == Kind::List)
        lookAtItems(value, applied);
    m_now = std::move(before);
}

// What applies to a value.

void Walk::apply(Index value, const JsonSchema &schema, Applied &applied)
{
    if (applied.isMistyped)
        return;
    if (schema.types != 0 && !isOfType(m_document, value, schema.types)) {
        applied.isMistyped = true;
        const QString expected = wordsForTypes(schema.types);
        fault(value, Rule::Type, Message::tr("is %1").arg(wordsFor(m_document, value)), expected);
        return;
    }
    if (schema.isNever)
        fault(value, Rule::Form, Message::tr("is more than the form has"), {});
    applied.schemas.push_back(&schema);
    if (schema.reference)
        apply(value, *schema.reference, applied);
    if (const auto broken = brokenRule(m_document, value, schema, m_isTrial ? InWords::No : InWords::Yes))
        fault(value, broken->rule, broken->is, broken->expected, broken->meant);
    applyCases(value, schema, applied);
    if (!schema.any.empty())
        applyNearest(value, schema.any, false, applied);
    if (!schema.one.empty())
        applyNearest(value, schema.one, true, applied);
    if (schema.condition)
        applyCondition(value, schema, applied);
    if (schema.negated && faultsBy(value, *schema.negated) == 0)
        fault(value, Rule::Value, Message::tr("is %1").arg(wordsFor(m_document, value)), Message::tr("another value"));
}

/** Parts that always apply, and of cases the one that the object tells, or the one that fits it instead. */
void Walk::applyCases(Index value, const JsonSchema &schema, Applied &applied)
{
    const auto isCase = [&](const JsonSchema *part) {
        return std::any_of(schema.cases.begin(), schema.cases.end(),
                           [&](const JsonSchema::Case &one) { return one.schema == part->consequence; });
    };
    for (const JsonSchema *part : schema.all)
        if (!isCase(part))
            apply(value, *part, applied);
    if (schema.cases.empty() || m_document.node(value).kind != Kind::Object)
        return;
    const Index at = m_document.member(value, schema.caseKey.toStdString());
    const QString told = at == kNone ? QString() : textOf(m_document.node(at).text);
    const JsonSchema *chosen = nullptr;
    for (const JsonSchema::Case &one : schema.cases)
        if (one.value == told)
            chosen = one.schema;
    if (chosen && (m_isTrial || faultsBy(value, *chosen) == 0))
        return apply(value, *chosen, applied);
    const auto fitting = std::find_if(schema.cases.begin(), schema.cases.end(),
                                      [&](const JsonSchema::Case &one) { return faultsBy(value, *one.schema) == 0; });
    if (fitting != schema.cases.end()) {
        if (chosen)
            fault(at, Rule::Value, Message::tr("is \"%1\", but the other keys are those of another").arg(told), {},
                  fitting->value);
        return apply(value, *fitting->schema, applied);
    }
    if (chosen)
        return apply(value, *chosen, applied);
    applied.isUndecided = true;
}

/** The one of several forms that a value has, or else is nearest to. */
void Walk::applyNearest(Index value, const Schemas &branches, bool isOneOnly, Applied &applied)
{
    if (std::all_of(branches.begin(), branches.end(), asksForKeysAlone)) {
        std::vector<std::string> &keys = applied.alternatives.emplace_back();
        for (const JsonSchema *branch : branches)
            keys.insert(keys.end(), branch->required.begin(), branch->required.end());
        return;
    }
    const JsonSchema *nearest = nullptr;
    std::size_t least = 0;
    int fitting = 0;
    unsigned types = 0;
    for (const JsonSchema *branch : branches) {
        Walk trial(m_document, true);
        trial.visit(value, {branch});
        fitting += trial.faults() == 0 ? 1 : 0;
        types |= typesOf(*branch);
        if (const std::size_t distance = trial.distance(value); !nearest || distance < least) {
            nearest = branch;
            least = distance;
        }
    }
    if (fitting == 0 && types != 0 && !isOfType(m_document, value, types)) {
        applied.isMistyped = true;
        return fault(value, Rule::Type, Message::tr("is %1").arg(wordsFor(m_document, value)), wordsForTypes(types));
    }
    if (isOneOnly && fitting > 1)
        fault(value, Rule::Form, Message::tr("has the keys of more than one form"), {});
    apply(value, *nearest, applied);
}

void Walk::applyCondition(Index value, const JsonSchema &schema, Applied &applied)
{
    const bool holds = faultsBy(value, *schema.condition) == 0;
    const JsonSchema *chosen = holds ? schema.consequence : schema.alternative;
    const JsonSchema *other = holds ? schema.alternative : schema.consequence;
    // A key that tells two forms apart and is missing: the keys of the other form are there.
    if (!holds && chosen && other && asksForKeysAlone(schema.condition) &&
        faultsBy(value, *other) + 1 < faultsBy(value, *chosen)) {
        applied.required.insert(applied.required.end(), schema.condition->required.begin(),
                                schema.condition->required.end());
        chosen = other;
    }
    if (chosen)
        apply(value, *chosen, applied);
}

// What stands in a value.

void Walk::lookAtItems(Index list, const Applied &applied)
{
    for (Index item = m_document.node(list).firstChild; item != kNone; item = m_document.node(item).next) {
        const auto place = static_cast<std::size_t>(m_document.node(item).place);
        Schemas schemas;
        for (const JsonSchema *schema : applied.schemas) {
            if (place < schema->firstItems.size())
                schemas.push_back(schema->firstItems[place]);
            else if (schema->items)
                schemas.push_back(schema->items);
        }
        if (!schemas.empty())
            visit(item, schemas);
    }
}

/** The schemas of a member. @return whether any knows it, or none tells what keys there may be */
bool Walk::schemasOfMember(Index member, const Applied &applied, Schemas &schemas, bool &isForbidden) const
{
    const std::string_view key = m_document.node(member).key;
    bool isKnown = false;
    bool areKeysTold = false;
    for (const JsonSchema *schema : applied.schemas) {
        const std::size_t before = schemas.size();
        const auto found = schema->properties.find(key);
        if (found != schema->properties.end())
            schemas.push_back(found->second);
        for (const auto &[expression, below] : schema->patternProperties)
            if (expression.match(textOf(key)).hasMatch())
                schemas.push_back(below);
        if (schemas.size() == before && schema->otherProperties) {
            isForbidden = isForbidden || schema->otherProperties->isNever;
            if (!schema->otherProperties->isNever)
                schemas.push_back(schema->otherProperties);
        }
        isKnown = isKnown || schemas.size() > before;
        areKeysTold = areKeysTold || !schema->properties.empty() || !schema->patternProperties.empty();
    }
    return !isForbidden && (isKnown || !areKeysTold);
}

void Walk::lookAtMembers(Index object, const Applied &applied)
{
    std::vector<UnknownKey> unknown;
    for (Index member = m_document.node(object).firstChild; member != kNone; member = m_document.node(member).next) {
        if (m_document.node(member).isShadowed)
            continue;
        Schemas schemas;
        bool isForbidden = false;
        if (schemasOfMember(member, applied, schemas, isForbidden))
            visit(member, schemas);
        else if (!applied.isUndecided)
            unknown.push_back({member, isForbidden});
    }
    tellKeys(object, unknown, applied);
    if (!m_isTrial && !applied.isUndecided)
        noteDefaults(object, applied);
}

std::vector<std::string> Walk::missingKeys(Index object, const Applied &applied) const
{
    std::vector<std::string> missing;
    const auto look = [&](const std::string &key) {
        if (m_document.member(object, key) == kNone && std::find(missing.begin(), missing.end(), key) == missing.end())
            missing.push_back(key);
    };
    for (const JsonSchema *schema : applied.schemas)
        std::for_each(schema->required.begin(), schema->required.end(), look);
    std::for_each(applied.required.begin(), applied.required.end(), look);
    return missing;
}

QStringList Walk::absentKeys(Index object, const Applied &applied) const
{
    QStringList absent;
    for (const JsonSchema *schema : applied.schemas)
        for (const auto &[key, below] : schema->properties)
            if (m_document.member(object, key) == kNone)
                absent.append(QString::fromStdString(key));
    return absent;
}

/** The keys that an object lacks, each with those that may stand in its place. */
std::vector<QStringList> Walk::lackingKeys(Index object, const Applied &applied) const
{
    std::vector<QStringList> lacking;
    for (const std::string &key : missingKeys(object, applied))
        lacking.push_back({QString::fromStdString(key)});
    for (const std::vector<std::string> &keys : applied.alternatives) {
        QStringList names;
        for (const std::string &key : keys)
            if (m_document.member(object, key) == kNone)
                names.append(QString::fromStdString(key));
        if (names.size() == static_cast<int>(keys.size()))
            lacking.push_back(names);
    }
    return lacking;
}

/** Unknown keys, each with the one that is meant, and what is missing then. */
void Walk::tellKeys(Index object, const std::vector<UnknownKey> &unknown, const Applied &applied)
{
    std::vector<QStringList> lacking = lackingKeys(object, applied);
    const QStringList absent = unknown.empty() || m_isTrial ? QStringList() : absentKeys(object, applied);
    for (const UnknownKey &one : unknown) {
        const QString key = textOf(m_document.node(one.member).key);
        const auto isMeant = [&](const QStringList &names) { return !nearestName(key, names).isEmpty(); };
        const auto found = std::find_if(lacking.begin(), lacking.end(), isMeant);
        const bool isMissing = found != lacking.end();
        tellUnknown(one, isMissing ? nearestName(key, *found) : nearestName(key, absent), isMissing);
        if (isMissing)
            lacking.erase(found);
    }
    for (const QStringList &names : lacking)
        tellMissing(object, names, applied);
}

void Walk::tellUnknown(const UnknownKey &key, const QString &meant, bool isMissing)
{
    CheckFinding finding;
    finding.node = key.member;
    finding.rule = Rule::UnknownKey;
    finding.weight = key.isForbidden || isMissing ? Weight::Fault : Weight::Ignored;
    finding.offset = m_document.node(key.member).keyOffset;
    finding.meant = meant;
    finding.message = Message::tr("is no key of this object");
    if (finding.weight == Weight::Ignored) {
        finding.message += Message::tr(", and not read");
        ++m_ignored;
    }
    if (!meant.isEmpty())
        finding.message += Message::tr("; \"%1\" is meant").arg(meant);
    if (isMissing)
        finding.message += Message::tr(", which is missing");
    m_found.findings.push_back(std::move(finding));
}

/** @param names  the key that is missing, and those that could stand in its place */
void Walk::tellMissing(Index object, const QStringList &names, const Applied &applied)
{
    CheckFinding finding;
    finding.node = object;
    finding.missingKey = names.first();
    finding.rule = Rule::Missing;
    finding.message = Message::tr("is missing");
    if (names.size() > 1)
        finding.message += Message::tr(", or \"%1\" in its place").arg(names.mid(1).join(Message::tr("\" or \"")));
    Schemas schemas;
    for (const JsonSchema *schema : applied.schemas)
        if (const auto found = schema->properties.find(names.first().toStdString()); found != schema->properties.end())
            schemas.push_back(found->second);
    finding.expected = meaningOf(schemas);
    if (!finding.expected.isEmpty())
        finding.message += QStringLiteral(" (%1)").arg(finding.expected);
    m_found.findings.push_back(std::move(finding));
}

void Walk::noteDefaults(Index object, const Applied &applied)
{
    for (const JsonSchema *schema : applied.schemas) {
        for (const auto &[key, below] : schema->properties) {
            const QJsonValue &value = defaultOf(*below);
            if (value.isUndefined() || m_document.member(object, key) != kNone)
                continue;
            const auto [place, isNew] = m_defaults.emplace(std::make_pair(schema, key), m_found.defaulted.size());
            if (isNew)
                m_found.defaulted.push_back({object, QString::fromStdString(key), jsonText(value), 0});
            ++m_found.defaulted[place->second].count;
        }
    }
}

} // namespace

SchemaFindings schemaFindings(const JsonTree &document, const JsonSchema &schema)
{
    Walk walk(document);
    if (!document.isEmpty())
        walk.visit(0, {&schema});
    return walk.result();
}

} // namespace orvcad
