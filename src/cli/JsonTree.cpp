#include "cli/JsonTree.h"

#include "cli/Message.h"
#include "cli/StrictJsonText.h"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <QRegularExpression>

#include <algorithm>

namespace orvcad {

namespace {

using Index = JsonTree::Index;
using Kind = JsonTree::Kind;

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr int kMostSigns = 16; // "." and "[" in one key of a path

QString textOf(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<int>(text.size())); }

/** A key in a path: "[3]" and ".name", and what is no plain word as it is. */
QString pathStep(const JsonTree::Node &node, bool isInList)
{
    return isInList ? QStringLiteral("[%1]").arg(node.place) : QLatin1Char('.') + textOf(node.key);
}

QString pointerStep(QString key)
{
    return QLatin1Char('/') +
           key.replace(QLatin1Char('~'), QLatin1String("~0")).replace(QLatin1Char('/'), QLatin1String("~1"));
}

} // namespace

/** Takes what the reader meets. Where a token begins is told by where the one before it ended: only blanks, commas and
 *  colons stand between. */
class JsonTree::Builder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Builder>
{
public:
    Builder(JsonTree &tree, const rapidjson::MemoryStream &stream, int start)
        : m_tree(tree), m_stream(stream), m_start(start), m_end(start)
    {}

    bool Null() { return value(Kind::Null, "null"); }
    bool Bool(bool truth) { return value(Kind::Truth, truth ? "true" : "false"); }
    bool RawNumber(const char *text, rapidjson::SizeType length, bool /*copied*/)
    {
        const std::string digits(text, length);
        value(Kind::Number, digits);
        const QString reason = whyNumberIsLost(digits, LargeNumbers::Refused);
        if (!reason.isEmpty())
            m_tree.m_faults.push_back({last(), m_tree.node(last()).offset, reason});
        return true;
    }
    bool String(const char *text, rapidjson::SizeType length, bool /*copied*/)
    {
        return value(Kind::Text, {text, length});
    }
    bool Key(const char *text, rapidjson::SizeType length, bool /*copied*/)
    {
        m_keyOffset = tokenStart();
        m_key = kept({text, length}, m_keyOffset + 1);
        m_end = here();
        return true;
    }
    bool StartObject() { return open(Kind::Object); }
    bool StartArray() { return open(Kind::List); }
    bool EndObject(rapidjson::SizeType /*count*/)
    {
        m_tree.noteRepeated(m_open.back());
        return close();
    }
    bool EndArray(rapidjson::SizeType /*count*/) { return close(); }

    /** The value in which the reader stopped. */
    Index innermost() const { return m_open.empty() ? (m_tree.isEmpty() ? kNone : 0) : m_open.back(); }

private:
    int here() const { return m_start + static_cast<int>(m_stream.Tell()); }
    Index last() const { return static_cast<Index>(m_tree.m_nodes.size()) - 1; }

    int tokenStart() const
    {
        const QByteArray &text = m_tree.m_text;
        int start = m_end;
        while (start < text.size() && std::string_view(" \t\r\n,:").find(text[start]) != std::string_view::npos)
            ++start;
        return start;
    }
    /** The characters in the text itself where they are the same there. */
    std::string_view kept(std::string_view decoded, int offset)
    {
        const auto length = static_cast<int>(decoded.size());
        const std::string_view there(m_tree.m_text.constData() + offset,
                                     static_cast<std::size_t>(std::min(length, m_tree.m_text.size() - offset)));
        return there == decoded ? there : std::string_view(m_tree.m_decoded.emplace_back(decoded));
    }
    Index make(Kind kind)
    {
        const Index index = m_tree.add(kind, m_open.empty() ? kNone : m_open.back(), tokenStart());
        Node &node = m_tree.m_nodes.back();
        if (m_keyOffset >= 0) {
            node.key = m_key;
            node.keyOffset = m_keyOffset;
        }
        m_keyOffset = -1;
        return index;
    }
    bool value(Kind kind, std::string_view text)
    {
        make(kind);
        Node &node = m_tree.m_nodes.back();
        node.text = kept(text, node.offset + (kind == Kind::Text ? 1 : 0));
        m_end = here();
        return true;
    }
    bool open(Kind kind)
    {
        m_open.push_back(make(kind));
        m_end = m_tree.m_nodes.back().offset + 1;
        return true;
    }
    bool close()
    {
        m_open.pop_back();
        m_end = tokenStart() + 1;
        return true;
    }

    JsonTree &m_tree;
    const rapidjson::MemoryStream &m_stream;
    const int m_start;
    int m_end; // of the token before
    std::vector<Index> m_open;
    std::string_view m_key;
    int m_keyOffset = -1; // of a key whose value has not come yet
};

JsonTree::JsonTree(const QByteArray &text) : m_text(text)
{
    constexpr unsigned flags =
        rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag;
    const int start = text.startsWith(kByteOrderMark) ? static_cast<int>(sizeof kByteOrderMark) - 1 : 0;
    rapidjson::MemoryStream stream(m_text.constData() + start, static_cast<std::size_t>(m_text.size() - start));
    rapidjson::Reader reader;
    Builder builder(*this, stream, start);
    const rapidjson::ParseResult result = reader.Parse<flags>(stream, builder);
    const int end = start + static_cast<int>(stream.Tell());
    m_isBroken = result.IsError() || end < m_text.size();
    if (result.IsError())
        m_faults.push_back({builder.innermost(), start + static_cast<int>(result.Offset()),
                            Message::tr("not JSON: %1").arg(Message::tr(rapidjson::GetParseError_En(result.Code())))});
    else if (m_isBroken)
        m_faults.push_back({0, end, Message::tr("not JSON: a character of code 0 stands behind the document.")});
}

std::unique_ptr<JsonTree> JsonTree::over(const QByteArray &text)
{
    auto tree = std::make_unique<JsonTree>();
    tree->m_text = text;
    return tree;
}

JsonTree::Index JsonTree::add(Kind kind, Index parent, int offset)
{
    const auto index = static_cast<Index>(m_nodes.size());
    Node node;
    node.kind = kind;
    node.parent = parent;
    node.offset = offset;
    if (parent != kNone) {
        Node &holder = m_nodes[static_cast<std::size_t>(parent)];
        Index &lastChild = m_lastChildren[static_cast<std::size_t>(parent)];
        node.place = holder.count++;
        (lastChild == kNone ? holder.firstChild : m_nodes[static_cast<std::size_t>(lastChild)].next) = index;
        lastChild = index;
    }
    m_nodes.push_back(node);
    m_lastChildren.push_back(kNone);
    return index;
}

void JsonTree::setKey(Index node, std::string key, int offset)
{
    Node &changed = m_nodes[static_cast<std::size_t>(node)];
    changed.key = m_decoded.emplace_back(std::move(key));
    changed.keyOffset = offset;
}

void JsonTree::setText(Index node, std::string text)
{
    m_nodes[static_cast<std::size_t>(node)].text = m_decoded.emplace_back(std::move(text));
}

void JsonTree::noteRepeated(Index object)
{
    std::vector<Index> members;
    for (Index child = node(object).firstChild; child != kNone; child = node(child).next)
        members.push_back(child);
    std::stable_sort(members.begin(), members.end(), [this](Index a, Index b) { return node(a).key < node(b).key; });
    for (std::size_t i = 1; i < members.size(); ++i) {
        if (node(members[i - 1]).key != node(members[i]).key)
            continue;
        m_nodes[static_cast<std::size_t>(members[i - 1])].isShadowed = true;
        --m_nodes[static_cast<std::size_t>(object)].count;
        m_faults.push_back({members[i], node(members[i]).keyOffset,
                            Message::tr("stands twice in one object, and the last one would count")});
    }
}

QByteArray JsonTree::textThatCounts() const
{
    if (std::none_of(m_nodes.begin(), m_nodes.end(), [](const Node &one) { return one.isShadowed; }))
        return m_text;
    QByteArray text;
    int from = 0;
    for (const Node &one : m_nodes) {
        if (!one.isShadowed || one.keyOffset < from)
            continue;
        text += m_text.mid(from, one.keyOffset - from);
        from = node(one.next).keyOffset; // of the member behind it, and be it the one of its key
    }
    return text + m_text.mid(from);
}

JsonTree::Index JsonTree::member(Index object, std::string_view key) const
{
    Index child = node(object).firstChild;
    while (child != kNone && (node(child).isShadowed || node(child).key != key))
        child = node(child).next;
    return child;
}

double JsonTree::number(Index index) const
{
    const std::string_view digits = node(index).text;
    return QByteArray(digits.data(), static_cast<int>(digits.size())).toDouble();
}

QString JsonTree::pointer(Index index, const QString &key) const
{
    QStringList steps;
    for (; index > 0; index = node(index).parent) {
        const bool isInList = node(node(index).parent).kind == Kind::List;
        steps.prepend(pointerStep(isInList ? QString::number(node(index).place) : textOf(node(index).key)));
    }
    return steps.join(QString()) + (key.isNull() ? QString() : pointerStep(key));
}

QString JsonTree::path(Index index, const QString &key) const
{
    QStringList steps;
    for (; index > 0; index = node(index).parent)
        steps.prepend(pathStep(node(index), node(node(index).parent).kind == Kind::List));
    QString path = steps.join(QString()) + (key.isNull() ? QString() : QLatin1Char('.') + key);
    return path.startsWith(QLatin1Char('.')) ? path.mid(1) : path;
}

QString JsonTree::stepTo(Index child) const
{
    const Index holder = node(child).parent;
    const QString step = pathStep(node(child), node(holder).kind == Kind::List);
    return holder == 0 && step.startsWith(QLatin1Char('.')) ? step.mid(1) : step;
}

const JsonTree::Steps &JsonTree::stepsOf(Index holder) const
{
    const auto [place, isNew] = m_steps.try_emplace(holder);
    Steps &steps = place->second;
    for (Index child = isNew ? node(holder).firstChild : kNone; child != kNone; child = node(child).next)
        if (const QString step = stepTo(child); !steps.contains(step))
            steps.insert(step, child);
    return steps;
}

JsonTree::Index JsonTree::find(const QString &path) const
{
    if (isEmpty())
        return kNone;
    static const QRegularExpression nextStep(QStringLiteral("[.[]"));
    Index index = 0;
    int from = 0;
    while (from < path.size()) {
        const Steps &steps = stepsOf(index);
        Index child = kNone;
        int end = from;
        // A key may hold the signs between steps; one with many of them is not worth the search.
        for (int tries = 0; child == kNone && end < path.size() && tries < kMostSigns; ++tries) {
            const int next = path.indexOf(nextStep, end + 1);
            end = next < 0 ? path.size() : next;
            child = steps.value(path.mid(from, end - from), kNone);
        }
        if (child == kNone)
            break;
        from = end;
        index = child;
    }
    return index;
}

JsonTree::Position JsonTree::position(int offset) const
{
    if (offset < m_mark.offset)
        m_mark = LineMark();
    const int end = std::min(offset, m_text.size());
    const char *text = m_text.constData();
    int from = m_mark.offset;
    int column = m_mark.column;
    int line = m_mark.line;
    const auto newlines = std::count(text + from, text + end, '\n');
    if (newlines > 0) {
        line += static_cast<int>(newlines);
        from = m_text.lastIndexOf('\n', end - 1) + 1;
        column = 1;
    }
    column += QString::fromUtf8(text + from, end - from).size();
    m_mark = {end, line, column};
    return {line, column};
}

} // namespace orvcad
