#include "cli/DocumentCheck.h"

#include "cli/Command.h"
#include "cli/Counted.h"
#include "cli/Files.h"
#include "cli/Message.h"
#include "cli/SchemaCheck.h"
#include "cli/ValueWords.h"
#include "cli/WallXmlTree.h"
#include "platform/embedded/HBXProject.h"
#include "platform/services/HBCZipFile.h"

#include <QDir>
#include <QJsonArray>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>

namespace orvcad {

namespace {

using Weight = CheckFinding::Weight;
using Rule = CheckFinding::Rule;

constexpr char kDatabaseMark[] = "SQLite format 3";
constexpr char kArchiveMark[] = "PK\x03\x04";
constexpr int kMostNames = 100; // of defaults in the line for people

/** Words of docs/cli.md, in the order of the enumeration. */
constexpr const char *kRuleWords[] = {"text", "missing", "unknown key", "type", "value", "range",
                                      "size", "pattern", "geometry",    "form", "reader"};

/** What the archive does with the parts of an XML document that it does not get back. */
std::vector<CheckFinding> listsNotRead(const JsonTree &tree)
{
    std::vector<CheckFinding> findings;
    for (auto section = tree.node(0).firstChild; section != JsonTree::kNone; section = tree.node(section).next) {
        if (tree.node(section).kind != JsonTree::Kind::List || tree.node(section).count == 0)
            continue;
        CheckFinding finding;
        finding.weight = Weight::Dropped;
        finding.rule = Rule::Reader;
        finding.node = section;
        finding.message = Message::tr("is a list of %1, which are not read from XML")
                              .arg(counted(tree.node(section).count, Message::tr("record")));
        findings.push_back(finding);
    }
    return findings;
}

int offsetOf(const JsonTree &tree, const CheckFinding &finding)
{
    if (finding.offset >= 0 || finding.node == JsonTree::kNone)
        return std::max(finding.offset, 0);
    return tree.node(finding.node).offset;
}

std::vector<CheckFinding> textFindings(const JsonTree &tree)
{
    std::vector<CheckFinding> findings;
    for (const JsonTree::TextFault &fault : tree.textFaults()) {
        CheckFinding finding;
        finding.rule = Rule::Text;
        finding.node = fault.node;
        finding.offset = fault.offset;
        finding.message = fault.reason;
        findings.push_back(finding);
    }
    return findings;
}

/** What the reader of a kind says of a document, or of the members of one that have no fault. */
std::vector<CheckFinding> readingOf(const DocumentKind &kind, const JsonTree &tree, const QByteArray &text,
                                    const FaultyValues &faults)
{
    if (kind.memberReading)
        return kind.memberReading(tree, tree.textThatCounts(), faults);
    return kind.reading && faults.isEmpty() ? kind.reading(tree, text) : std::vector<CheckFinding>();
}

bool isXml(const QByteArray &bytes) { return bytes.left(200).trimmed().startsWith('<'); }

} // namespace

QJsonObject DocumentCheck::Told::toJson() const
{
    QJsonObject json{{"place", path},
                     {"pointer", pointer},
                     {"rule", QString::fromLatin1(kRuleWords[static_cast<int>(rule)])},
                     {"message", message}};
    if (position.line > 0) {
        json["line"] = position.line;
        json["column"] = position.column;
    }
    for (const auto &[key, text] :
         {std::pair("value", value), std::pair("expected", expected), std::pair("meant", meant)})
        if (!text.isEmpty())
            json[QLatin1String(key)] = text;
    return json;
}

QJsonObject DocumentCheck::Default::toJson() const { return {{"place", path}, {"value", value}, {"count", count}}; }

DocumentCheck::DocumentCheck(const QString &file, const DocumentKind *kind) : m_file(file)
{
    try {
        checkBytes(readFile(file), kind);
    } catch (const CommandFailure &failure) {
        const QString message = failure.message();
        tellUnusable(message.startsWith(file + QLatin1String(": ")) ? message.mid(file.size() + 2) : message);
    }
}

void DocumentCheck::checkBytes(const QByteArray &bytes, const DocumentKind *kind)
{
    if (bytes.startsWith(kDatabaseMark))
        return checkProject();
    if (bytes.startsWith(kArchiveMark))
        return checkArchive(bytes);
    if (bytes.trimmed().isEmpty())
        return tellUnusable(Message::tr("the file is empty"));
    if (!isXml(bytes))
        return checkTree(JsonTree(bytes), bytes, kind);
    const auto tree = wallXmlTree(bytes);
    checkTree(*tree, bytes, documentKind(QStringLiteral("wall-input")));
    if (count(Weight::Fault) == 0)
        tell(*tree, listsNotRead(*tree));
}

void DocumentCheck::checkProject()
{
    m_kind = QStringLiteral("hbxdb");
    m_title = Message::tr("project file");
    hbx::embedded::ProjectError error;
    if (!hbx::embedded::HBXProject::open(m_file, error))
        tellUnusable(error.reason, error.place);
}

void DocumentCheck::checkArchive(const QByteArray & /*bytes*/)
{
    const QTemporaryDir folder;
    if (!folder.isValid() || !HBCZipFile::extractFiles(m_file, folder.path()))
        return tellUnusable(Message::tr("the archive cannot be unpacked"));
    const QStringList drawings = QDir(folder.path()).entryList({QStringLiteral("*.cadi2")}, QDir::Files, QDir::Name);
    if (drawings.size() != 1)
        return tellUnusable(Message::tr("the archive holds %1").arg(counted(drawings.size(), Message::tr("drawing"))));
    const QByteArray drawing = readFile(QDir(folder.path()).filePath(drawings.first()));
    checkTree(JsonTree(drawing), drawing, documentKind(QStringLiteral("cadi2")));
}

void DocumentCheck::setKind(const DocumentKind &kind)
{
    m_kind = QString::fromLatin1(kind.name);
    m_title = Message::tr(kind.title);
}

void DocumentCheck::checkTree(const JsonTree &tree, const QByteArray &text, const DocumentKind *kind)
{
    std::vector<CheckFinding> findings = textFindings(tree);
    if (!kind)
        kind = kindOfDocument(tree);
    if (kind)
        setKind(*kind);
    if (kind && !tree.isBroken()) {
        SchemaFindings found = schemaFindings(tree, kind->schema());
        findings.insert(findings.end(), found.findings.begin(), found.findings.end());
        for (const DefaultedKey &key : found.defaulted)
            addDefault(tree, key);
    }
    const FaultyValues faults(tree, findings);
    tell(tree, std::move(findings));
    if (!kind && !tree.isBroken())
        return tellUnusable(Message::tr("the kind of document cannot be told from its keys; name one of: %1")
                                .arg(documentKindNames().join(QStringLiteral(", "))));
    if (kind && !tree.isBroken())
        tell(tree, readingOf(*kind, tree, text, faults));
    std::stable_sort(m_findings.begin(), m_findings.end(), [](const Told &a, const Told &b) {
        return std::pair(a.position.line, a.position.column) < std::pair(b.position.line, b.position.column);
    });
}

void DocumentCheck::addDefault(const JsonTree &tree, const DefaultedKey &key)
{
    static const QRegularExpression number(QStringLiteral("\\[[0-9]+\\]"));
    const QString path = tree.path(key.first, key.key).replace(number, QStringLiteral("[*]"));
    // Records of several forms in one list lack a key each for itself.
    const auto same = std::find_if(m_defaults.begin(), m_defaults.end(),
                                   [&](const Default &one) { return one.path == path && one.value == key.value; });
    if (same == m_defaults.end())
        m_defaults.push_back({path, key.value, key.count});
    else
        same->count += key.count;
}

void DocumentCheck::tell(const JsonTree &tree, std::vector<CheckFinding> findings)
{
    // By rising offset, since that is how places are cheap.
    std::stable_sort(findings.begin(), findings.end(), [&](const CheckFinding &a, const CheckFinding &b) {
        return offsetOf(tree, a) < offsetOf(tree, b);
    });
    QSet<QString> before; // places of which a schema has said what a reader would say again
    for (const Told &told : m_findings)
        before.insert(told.pointer);
    for (const CheckFinding &finding : findings) {
        Told told;
        told.weight = finding.weight;
        told.rule = finding.rule;
        told.position = tree.position(offsetOf(tree, finding));
        told.message = finding.message;
        told.expected = finding.expected;
        told.meant = finding.meant;
        if (finding.node != JsonTree::kNone) {
            told.path = tree.path(finding.node, finding.missingKey);
            told.pointer = tree.pointer(finding.node, finding.missingKey);
            if (finding.missingKey.isNull())
                told.value = shortText(tree, finding.node);
        }
        const bool isTold = finding.rule == Rule::Reader && before.contains(told.pointer);
        if (!isTold)
            m_findings.push_back(std::move(told));
    }
}

void DocumentCheck::tellUnusable(const QString &reason, const QString &place)
{
    Told told;
    told.path = place;
    told.message = reason;
    m_findings.push_back(told);
}

int DocumentCheck::count(Weight weight) const
{
    return static_cast<int>(
        std::count_if(m_findings.begin(), m_findings.end(), [&](const Told &told) { return told.weight == weight; }));
}

QString DocumentCheck::verdict() const
{
    if (count(Weight::Fault) > 0)
        return Message::tr("faulty");
    return m_findings.empty() ? Message::tr("clean") : Message::tr("not read whole");
}

QStringList DocumentCheck::lines() const
{
    QStringList lines;
    for (const Told &told : m_findings) {
        QStringList parts{m_file};
        if (told.position.line > 0)
            parts.append(QStringLiteral("%1:%2").arg(told.position.line).arg(told.position.column));
        const QString where = parts.join(QLatin1Char(':'));
        lines.append((told.path.isEmpty() ? where : where + QStringLiteral(": ") + told.path) + QStringLiteral(": ") +
                     told.message);
    }
    QStringList verdicts{verdict()};
    if (const int faults = count(Weight::Fault))
        verdicts.append(counted(faults, Message::tr("fault")));
    if (const int ignored = count(Weight::Ignored))
        verdicts.append(Message::tr("%1 not read").arg(counted(ignored, Message::tr("value"))));
    if (const int dropped = count(Weight::Dropped))
        verdicts.append(Message::tr("%1 left out").arg(counted(dropped, Message::tr("value"))));
    lines.append(QStringLiteral("%1: %2%3")
                     .arg(m_file, m_title.isEmpty() ? QString() : m_title + QStringLiteral(": "),
                          verdicts.join(QStringLiteral(", "))));
    QStringList defaults;
    for (const Default &one : m_defaults)
        defaults.append(Message::tr("%1 (%2) as %3").arg(one.path, QString::number(one.count), one.value));
    if (!defaults.isEmpty())
        lines.append(Message::tr("%1: missing keys read as: %2")
                         .arg(m_file, defaults.mid(0, kMostNames).join(QStringLiteral(", "))));
    return lines;
}

QJsonObject DocumentCheck::toJson() const
{
    QJsonArray lists[3]; // in the order of the weights
    for (const Told &told : m_findings)
        lists[static_cast<int>(told.weight)].append(told.toJson());
    QJsonArray defaulted;
    for (const Default &one : m_defaults)
        defaulted.append(one.toJson());
    return {{"file", m_file},        {"kind", m_kind.isEmpty() ? QJsonValue() : QJsonValue(m_kind)},
            {"verdict", verdict()},  {"faults", lists[0]},
            {"ignored", lists[1]},   {"dropped", lists[2]},
            {"defaulted", defaulted}};
}

} // namespace orvcad
