#pragma once

#include "foundation/TreeNode.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

/** What happens to a set of nodes, in order: "parent 1 child" for an event of type 1 about that child, "parent 6" for
 *  one without a child, "~node" for a destructor. */
struct Trace
{
    std::vector<std::string> lines;
    std::map<const void *, std::string> names; ///< also of nodes that are gone, since events name those

    /** The lines so far, which are forgotten. */
    std::vector<std::string> take() { return std::exchange(lines, {}); }
};

/** A node that writes down its events and its end. */
struct TracedNode : gp::TreeNode<TracedNode *>
{
    using Tree = gp::TreeNode<TracedNode *>;

    TracedNode(Trace &trace, const std::string &name) : Tree(this), m_trace(trace) { trace.names[this] = name; }
    ~TracedNode() override { m_trace.lines.push_back("~" + name()); }

    const std::string &name() const { return m_trace.names[this]; }

    bool stops = false;                    ///< keeps events from the nodes above
    std::function<void(Event *)> onEvent;  ///< called behind the writing
    std::function<std::size_t()> position; ///< answers findInsertPos

protected:
    void event(Event *event) override
    {
        const auto *ofChild = dynamic_cast<ChildEvent *>(event);
        const std::string child = ofChild ? " " + m_trace.names[ofChild->child] : std::string();
        m_trace.lines.push_back(name() + " " + std::to_string(event->type) + child);
        event->stop = stops;
        if (onEvent)
            onEvent(event);
    }
    std::size_t findInsertPos(ChildNode *child) const override
    {
        return position ? position() : Tree::findInsertPos(child);
    }

private:
    Trace &m_trace;
};

using Names = std::vector<std::string>;

inline Names namesOf(const std::vector<TracedNode *> &nodes)
{
    Names names;
    for (const TracedNode *node : nodes)
        names.push_back(node->name());
    return names;
}
