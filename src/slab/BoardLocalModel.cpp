#include "slab/BoardLocalModel.h"

#include "slab/BoardLocalModelBars.h"
#include "slab/BoardLocalModelElements.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Tree = gp::TreeNode<cv::Object_AI *>;

constexpr std::size_t kAhead = 12; // nodes between one that is asked for and the one that is looked at

/** Whether a node of a tree was made as an Element: a dynamic cast, but asked once for each class met. */
template <typename Element> class MadeAs
{
public:
    bool operator()(const Tree::ChildNode *node)
    {
        const std::type_info *made = &typeid(*node);
        if constexpr (std::is_final_v<Element>)
            return made == &typeid(Element); // the library alone defines the class, so there is one address
        else
            return made == m_last.made ? m_last.isElement : (m_last = verdictOn(made, node)).isElement;
    }

private:
    struct Verdict
    {
        const std::type_info *made = nullptr;
        bool isElement = false;
    };

    Verdict verdictOn(const std::type_info *made, const Tree::ChildNode *node)
    {
        const auto known = std::find_if(m_known.begin(), m_known.end(),
                                        [made](const Verdict &verdict) { return verdict.made == made; });
        if (known != m_known.end())
            return *known;
        m_known.push_back({made, dynamic_cast<const Element *>(node) != nullptr});
        return m_known.back();
    }

    std::vector<Verdict> m_known;
    Verdict m_last;
};

/** Asks for the memory of a node that will soon be looked at: a large model lies out of the caches, and the nodes of a list
 *  come from anywhere. */
void askFor([[maybe_unused]] const Tree::ChildNode *node)
{
#if defined(__GNUC__)
    constexpr int lineSize = 64; // bytes
    __builtin_prefetch(node);
    __builtin_prefetch(reinterpret_cast<const char *>(node) + lineSize); // where its children are counted
#endif
}

/** What findChildren_if gives for the whole subtree, at a fraction of its cost: elements hardly have children. */
template <typename Element> std::vector<const Element *> allOf(const Tree &model)
{
    std::vector<const Element *> found;
    if constexpr (std::is_same_v<Element, Model::Object>)
        found.reserve(model.childCount());
    std::vector<const Tree *> waiting{&model};
    MadeAs<Element> madeAs;
    while (!waiting.empty()) {
        const Tree *parent = waiting.back();
        waiting.pop_back();
        const auto firstBelow = static_cast<std::ptrdiff_t>(waiting.size());
        const auto &nodes = parent->childNodes();
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            const Tree::ChildNode *node = nodes[i];
            askFor(nodes[std::min(i + kAhead, nodes.size() - 1)]);
            if (madeAs(node))
                found.push_back(static_cast<const Element *>(node));
            const auto *child = static_cast<const Tree *>(node);
            if (child->childCount() != 0)
                waiting.push_back(child);
        }
        std::reverse(waiting.begin() + firstBelow, waiting.end());
    }
    return found;
}

template <typename Element> Element *added(Model &model, const QUuid &recongnizedID)
{
    auto *element = new Element(&model);
    element->recongnizedID = recongnizedID;
    return element;
}

} // namespace

ORVCADBoardLocalModel_Sample::ORVCADBoardLocalModel_Sample() = default;
// NOLINTNEXTLINE(performance-noexcept-move-constructor): handlers of events may throw
ORVCADBoardLocalModel_Sample::ORVCADBoardLocalModel_Sample(ORVCADBoardLocalModel_Sample &&other) = default;
ORVCADBoardLocalModel_Sample::~ORVCADBoardLocalModel_Sample() = default;

// ---- Readers

std::vector<const Model::Object *> Model::objects() const { return allOf<Object>(*this); }
std::vector<const Model::Beam *> Model::beams() const { return allOf<Beam>(*this); }
std::vector<const Model::Wall *> Model::walls() const { return allOf<Wall>(*this); }
std::vector<const Model::Column *> Model::columns() const { return allOf<Column>(*this); }
std::vector<const Model::Board *> Model::boards() const { return allOf<Board>(*this); }
std::vector<const Model::BoardHole *> Model::boardHoles() const { return allOf<BoardHole>(*this); }
std::vector<const Model::Raft *> Model::rafts() const { return allOf<Raft>(*this); }
std::vector<const Model::ForcedBar *> Model::forcedBars() const { return allOf<ForcedBar>(*this); }
std::vector<const Model::StraddleForcedBar *> Model::straddleForcedBars() const
{
    return allOf<StraddleForcedBar>(*this);
}
std::vector<const Model::NegativeForcedBar *> Model::negativeForcedBars() const
{
    return allOf<NegativeForcedBar>(*this);
}
std::vector<const Model::RaftMainForcedBar *> Model::raftMainForcedBars() const
{
    return allOf<RaftMainForcedBar>(*this);
}
std::vector<const Model::RaftMainStraddleForcedBar *> Model::raftMainStraddleForcedBars() const
{
    return allOf<RaftMainStraddleForcedBar>(*this);
}
std::vector<const Model::RaftNegativeForcedBar *> Model::raftNegativeForcedBars() const
{
    return allOf<RaftNegativeForcedBar>(*this);
}
std::vector<const Model::AxisNet *> Model::axisNet() const { return allOf<AxisNet>(*this); }

std::vector<const Model::Object *> Model::findObjects(int mask) const
{
    std::vector<const Object *> found = objects();
    found.erase(std::remove_if(found.begin(), found.end(),
                               [mask](const Object *object) { return (object->type() & mask) == 0; }),
                found.end());
    return found;
}

// ---- Creators

Model::Beam *Model::addBeam(const QUuid &recongnizedID) { return added<Beam>(*this, recongnizedID); }
Model::Wall *Model::addWall(const QUuid &recongnizedID) { return added<Wall>(*this, recongnizedID); }
Model::Column *Model::addColumn(const QUuid &recongnizedID) { return added<Column>(*this, recongnizedID); }
Model::Board *Model::addBoard(const QUuid &recongnizedID) { return added<Board>(*this, recongnizedID); }
Model::BoardHole *Model::addBoardHole(const QUuid &recongnizedID) { return added<BoardHole>(*this, recongnizedID); }
Model::Raft *Model::addRaft(const QUuid &recongnizedID) { return added<Raft>(*this, recongnizedID); }
Model::ForcedBar *Model::addForcedBar(const QUuid &recongnizedID) { return added<ForcedBar>(*this, recongnizedID); }
Model::StraddleForcedBar *Model::addStraddleForcedBar(const QUuid &recongnizedID)
{
    return added<StraddleForcedBar>(*this, recongnizedID);
}
Model::NegativeForcedBar *Model::addNegativeForcedBar(const QUuid &recongnizedID)
{
    return added<NegativeForcedBar>(*this, recongnizedID);
}
Model::RaftMainForcedBar *Model::addRaftMainForcedBar(const QUuid &recongnizedID)
{
    return added<RaftMainForcedBar>(*this, recongnizedID);
}
Model::RaftMainStraddleForcedBar *Model::addRaftMainStraddleForcedBar(const QUuid &recongnizedID)
{
    return added<RaftMainStraddleForcedBar>(*this, recongnizedID);
}
Model::RaftNegativeForcedBar *Model::addRaftNegativeForcedBar(const QUuid &recongnizedID)
{
    return added<RaftNegativeForcedBar>(*this, recongnizedID);
}
Model::AxisNet *Model::addAixsNet() { return added<AxisNet>(*this, QUuid()); }
