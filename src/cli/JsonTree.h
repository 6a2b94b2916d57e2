#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvcad {

/** A JSON document of which each value knows where it stands in the text: for messages that point at a place.
 *
 *  A text with a fault is kept as far as it goes. What the library's own reader passes over is told as by firstTextFault,
 *  but all of it: a member that stands twice in one object, a number that would be read as another one. Nesting is
 *  followed to any depth without recursion. Values are numbered in the order of the text, the top being 0. */
class JsonTree
{
public:
    enum class Kind { Null, Truth, Number, Text, List, Object };
    using Index = int;
    static constexpr Index kNone = -1;

    struct Node
    {
        std::string_view key;  ///< of a member of an object
        std::string_view text; ///< of a text; the digits of a number; "true" or "false"
        int offset = 0;        ///< of the value, bytes
        int keyOffset = -1;    ///< of the key
        Index parent = kNone;
        Index firstChild = kNone;
        Index next = kNone; ///< of the same parent
        int count = 0;      ///< children
        int place = 0;      ///< among the children of its parent, from 0
        Kind kind = Kind::Null;
        bool isShadowed = false; ///< a member that stands once more behind it, which is the one that is read
    };
    /** What is wrong with the text itself. */
    struct TextFault
    {
        Index node = kNone; ///< value that it is in; kNone where there is none at all
        int offset = 0;     ///< bytes
        QString reason;
    };
    /** Line and column from 1, a column being a UTF-16 unit as in all messages. */
    struct Position
    {
        int line = 0;
        int column = 0;
    };

    JsonTree() = default;
    explicit JsonTree(const QByteArray &text);
    JsonTree(const JsonTree &) = delete;
    JsonTree &operator=(const JsonTree &) = delete;

    /** A tree without values over a text of another form, to be filled by what follows, parents before children. */
    static std::unique_ptr<JsonTree> over(const QByteArray &text);
    Index add(Kind kind, Index parent, int offset);
    void setKey(Index node, std::string key, int offset);
    void setText(Index node, std::string text);
    void addFault(TextFault fault) { m_faults.push_back(std::move(fault)); }

    bool isEmpty() const { return m_nodes.empty(); }
    const Node &node(Index index) const { return m_nodes[static_cast<std::size_t>(index)]; }
    /** In no particular order; that a text is no JSON is one of them. */
    const std::vector<TextFault> &textFaults() const { return m_faults; }
    bool isBroken() const { return m_isBroken; }

    /** The text without the members that stand once more behind: Qt's reader drops them, and leaks what they hold. */
    QByteArray textThatCounts() const;

    /** The member that is read; kNone without one. */
    Index member(Index object, std::string_view key) const;
    double number(Index index) const;

    /** A place as JSON pointer (RFC 6901), and as all messages tell it: regions[0].name.
     *  @param key  of a member that the value lacks; null for the value itself */
    QString pointer(Index index, const QString &key = {}) const;
    QString path(Index index, const QString &key = {}) const;
    /** The value at a path as messages tell it, or the innermost one on the way that there is. A list or object of many
     *  values is gone through once, however often it is on the way. */
    Index find(const QString &path) const;
    /** Cheap when offsets rise from call to call. */
    Position position(int offset) const;

private:
    class Builder;
    using Steps = QHash<QString, Index>; ///< children by what a path calls them

    void noteRepeated(Index object);
    QString stepTo(Index child) const;
    const Steps &stepsOf(Index holder) const;

    struct LineMark
    {
        int offset = 0;
        int line = 1;
        int column = 1;
    };

    QByteArray m_text;
    std::vector<Node> m_nodes;
    std::vector<Index> m_lastChildren; // of each value
    std::deque<std::string> m_decoded; // keys and texts that the text has otherwise
    std::vector<TextFault> m_faults;
    bool m_isBroken = false;
    mutable LineMark m_mark;                          // of the position asked for last
    mutable std::unordered_map<Index, Steps> m_steps; // of values that were on the way to others
};

} // namespace orvcad
