#include "cli/DocumentKinds.h"

#include "cli/DocumentReading.h"
#include "cli/Message.h"
#include "cli/NearestName.h"
#include "cli/ReplyReading.h"
#include "cli/SchemaCheck.h"

#include <algorithm>
#include <set>

namespace orvcad {

namespace {

/** Keys that the top of a document may have, or the entries of a list, by all forms that its schema has. */
struct TopKeys
{
    QStringList names;
    std::vector<const QRegularExpression *> expressions;

    bool has(const QString &key) const
    {
        return names.contains(key) || std::any_of(expressions.begin(), expressions.end(), [&](const auto *expression) {
                   return expression->match(key).hasMatch();
               });
    }
};

void addKeys(const JsonSchema &schema, TopKeys &keys)
{
    for (const auto &[key, below] : schema.properties)
        keys.names.append(QString::fromStdString(key));
    for (const auto &[expression, below] : schema.patternProperties)
        keys.expressions.push_back(&expression);
    if (schema.reference)
        addKeys(*schema.reference, keys);
    for (const auto *parts : {&schema.all, &schema.any, &schema.one})
        for (const JsonSchema *part : *parts)
            addKeys(*part, keys);
}

QString textOf(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<int>(text.size())); }

/** So many tell what a document is; those of a map are alike. */
constexpr int kMostKeys = 100;

/** What tells the kind of a document: itself, or the first entry of a list. */
JsonTree::Index tellingOf(const JsonTree &document)
{
    const bool isList = !document.isEmpty() && document.node(0).kind == JsonTree::Kind::List;
    const JsonTree::Index telling = document.isEmpty() ? JsonTree::kNone : isList ? document.node(0).firstChild : 0;
    const bool isRecord = telling != JsonTree::kNone && document.node(telling).kind == JsonTree::Kind::Object;
    return isRecord ? telling : JsonTree::kNone;
}

/** @param record  what tells the kind */
QStringList keysOf(const JsonTree &document, JsonTree::Index record)
{
    QStringList keys;
    for (auto member = document.node(record).firstChild; member != JsonTree::kNone && keys.size() < kMostKeys;
         member = document.node(member).next)
        keys.append(textOf(document.node(member).key));
    return keys;
}

/** Formats that tell their name themselves. */
const DocumentKind *kindThatIsTold(const JsonTree &document)
{
    const JsonTree::Index format = document.member(0, "format");
    if (format == JsonTree::kNone || document.node(format).kind != JsonTree::Kind::Text)
        return nullptr;
    return documentKind(nearestName(textOf(document.node(format).text), {"hbx-project", "cadi2"}));
}

using Score = int (*)(const TopKeys &known, const QString &key);

int scoreOfKnown(const TopKeys &known, const QString &key) { return known.has(key) ? 1 : 0; }
int scoreOfNear(const TopKeys &known, const QString &key) { return nearestName(key, known.names).isEmpty() ? 0 : 1; }

/** @param isList  whether the keys are those of an entry */
std::vector<const DocumentKind *> bestBy(Score score, const QStringList &keys, bool isList)
{
    std::vector<const DocumentKind *> best;
    int highest = 1;
    for (const DocumentKind &kind : documentKinds()) {
        TopKeys known;
        if (const JsonSchema *top = isList ? kind.schema().items : &kind.schema())
            addKeys(*top, known);
        int reached = 0;
        for (const QString &key : keys)
            reached += score(known, key);
        if (reached > highest)
            best.clear();
        if (reached >= highest)
            best.push_back(&kind);
        highest = std::max(highest, reached);
    }
    return best;
}

std::size_t faultCount(const JsonTree &document, const DocumentKind &kind)
{
    return schemaFindings(document, kind.schema()).findings.size();
}

} // namespace

const JsonSchema &DocumentKind::schema() const
{
    return publishedSchemas().schema(QLatin1String(name) + QLatin1String(".schema.json"));
}

const std::vector<DocumentKind> &documentKinds()
{
    static const std::vector<DocumentKind> kinds{
        {"beam-context", QT_TRANSLATE_NOOP("orvcad", "context of the identification of beams")},
        {"beam-identify-input", QT_TRANSLATE_NOOP("orvcad", "order to identify beams")},
        {"beam-result", QT_TRANSLATE_NOOP("orvcad", "result of the identification of beams")},
        {"beam-seats", QT_TRANSLATE_NOOP("orvcad", "seats of beams"), nullptr, readSeats},
        {"beam-spans", QT_TRANSLATE_NOOP("orvcad", "spans of beams by draw object")},
        {"beams", QT_TRANSLATE_NOOP("orvcad", "beams for recognition"), nullptr, readBeams},
        {"cadi2", QT_TRANSLATE_NOOP("orvcad", "drawing file"), readDrawingText},
        {"columns", QT_TRANSLATE_NOOP("orvcad", "columns for recognition"), readColumns},
        {"drawing-elements", QT_TRANSLATE_NOOP("orvcad", "element types by drawing")},
        {"drawing-floors", QT_TRANSLATE_NOOP("orvcad", "drawings by floor")},
        {"drawing-layers", QT_TRANSLATE_NOOP("orvcad", "layers by drawing and element type")},
        {"drawing-locations", QT_TRANSLATE_NOOP("orvcad", "crossings of axes by drawing")},
        {"drawing-parts", QT_TRANSLATE_NOOP("orvcad", "parts of drawings")},
        {"drawing-scales", QT_TRANSLATE_NOOP("orvcad", "scales of drawings")},
        {"drawing-set", QT_TRANSLATE_NOOP("orvcad", "drawing-set file")},
        {"drawing-tables", QT_TRANSLATE_NOOP("orvcad", "tables of drawings")},
        {"floor-sdc", QT_TRANSLATE_NOOP("orvcad", "floor exchange")},
        {"floors", QT_TRANSLATE_NOOP("orvcad", "floors document")},
        {"hbx-project", QT_TRANSLATE_NOOP("orvcad", "building file"), readBuilding},
        {"id-map", QT_TRANSLATE_NOOP("orvcad", "identities by draw object")},
        {"layer-classification", QT_TRANSLATE_NOOP("orvcad", "result of a classification of layers")},
        {"layer-file", QT_TRANSLATE_NOOP("orvcad", "layers from drawing analysis")},
        {"layer-group", QT_TRANSLATE_NOOP("orvcad", "layers of one element type")},
        {"opening-options", QT_TRANSLATE_NOOP("orvcad", "options to identify openings")},
        {"opening-reply", QT_TRANSLATE_NOOP("orvcad", "reply of doors and windows"), nullptr, readOpenings},
        {"slab-io", QT_TRANSLATE_NOOP("orvcad", "slab IO document"), nullptr, readSlabs},
        {"slab-model", QT_TRANSLATE_NOOP("orvcad", "slab model document"), nullptr, readSlabs},
        {"wall-input", QT_TRANSLATE_NOOP("orvcad", "order to identify walls")},
        {"wall-reply", QT_TRANSLATE_NOOP("orvcad", "reply of walls"), nullptr, readWalls},
    };
    return kinds;
}

const DocumentKind *documentKind(const QString &name)
{
    const auto &kinds = documentKinds();
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [&](const DocumentKind &kind) { return name == QLatin1String(kind.name); });
    return found == kinds.end() ? nullptr : &*found;
}

QStringList documentKindNames()
{
    QStringList names;
    for (const DocumentKind &kind : documentKinds())
        names.append(QString::fromLatin1(kind.name));
    return names;
}

const DocumentKind *kindOfDocument(const JsonTree &document)
{
    const JsonTree::Index telling = tellingOf(document);
    if (telling == JsonTree::kNone)
        return nullptr;
    const bool isList = telling != 0;
    const DocumentKind *told = isList ? nullptr : kindThatIsTold(document);
    if (told)
        return told;
    const QStringList keys = keysOf(document, telling);
    std::vector<const DocumentKind *> best = bestBy(scoreOfKnown, keys, isList);
    if (best.empty())
        best = bestBy(scoreOfNear, keys, isList);
    if (best.size() < 2)
        return best.empty() ? nullptr : best.front();
    return *std::min_element(best.begin(), best.end(), [&](const DocumentKind *a, const DocumentKind *b) {
        return faultCount(document, *a) < faultCount(document, *b);
    });
}

} // namespace orvcad
