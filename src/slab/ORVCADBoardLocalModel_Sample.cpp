#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Tree = gp::TreeNode<cv::Object_AI *>;

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

/** What findChildren_if gives for the whole subtree, at a fraction of its cost: elements hardly have children. */
template <typename Element> std::vector<const Element *> allOf(const Tree &model)
{
    std::vector<const Element *> found;
    std::vector<const Tree *> waiting{&model};
    MadeAs<Element> madeAs;
    while (!waiting.empty()) {
        const Tree *parent = waiting.back();
        waiting.pop_back();
        const auto firstBelow = static_cast<std::ptrdiff_t>(waiting.size());
        for (const Tree::ChildNode *node : parent->childNodes()) {
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
ORVCADBoardLocalModel_Sample::ORVCADBoardLocalModel_Sample(ORVCADBoardLocalModel_Sample &&other) = default;
ORVCADBoardLocalModel_Sample::~ORVCADBoardLocalModel_Sample() = default;

// ---- Readers

std::vector<const Model::Object *> ORVCADBoardLocalModel_Sample::objects() const { return allOf<Object>(*this); }
std::vector<const Model::Beam *> ORVCADBoardLocalModel_Sample::beams() const { return allOf<Beam>(*this); }
std::vector<const Model::Wall *> ORVCADBoardLocalModel_Sample::walls() const { return allOf<Wall>(*this); }
std::vector<const Model::Column *> ORVCADBoardLocalModel_Sample::columns() const { return allOf<Column>(*this); }
std::vector<const Model::Board *> ORVCADBoardLocalModel_Sample::boards() const { return allOf<Board>(*this); }
std::vector<const Model::BoardHole *> ORVCADBoardLocalModel_Sample::boardHoles() const
{
    return allOf<BoardHole>(*this);
}
std::vector<const Model::Raft *> ORVCADBoardLocalModel_Sample::rafts() const { return allOf<Raft>(*this); }
std::vector<const Model::ForcedBar *> ORVCADBoardLocalModel_Sample::forcedBars() const
{
    return allOf<ForcedBar>(*this);
}
std::vector<const Model::StraddleForcedBar *> ORVCADBoardLocalModel_Sample::straddleForcedBars() const
{
    return allOf<StraddleForcedBar>(*this);
}
std::vector<const Model::NegativeForcedBar *> ORVCADBoardLocalModel_Sample::negativeForcedBars() const
{
    return allOf<NegativeForcedBar>(*this);
}
std::vector<const Model::RaftMainForcedBar *> ORVCADBoardLocalModel_Sample::raftMainForcedBars() const
{
    return allOf<RaftMainForcedBar>(*this);
}
std::vector<const Model::RaftMainStraddleForcedBar *> ORVCADBoardLocalModel_Sample::raftMainStraddleForcedBars() const
{
    return allOf<RaftMainStraddleForcedBar>(*this);
}
std::vector<const Model::RaftNegativeForcedBar *> ORVCADBoardLocalModel_Sample::raftNegativeForcedBars() const
{
    return allOf<RaftNegativeForcedBar>(*this);
}
std::vector<const Model::AxisNet *> ORVCADBoardLocalModel_Sample::axisNet() const { return allOf<AxisNet>(*this); }

std::vector<const Model::Object *> ORVCADBoardLocalModel_Sample::findObjects(int mask) const
{
    std::vector<const Object *> found = objects();
    found.erase(std::remove_if(found.begin(), found.end(),
                               [mask](const Object *object) { return (object->type() & mask) == 0; }),
                found.end());
    return found;
}

// ---- Creators

Model::Beam *ORVCADBoardLocalModel_Sample::addBeam(const QUuid &recongnizedID)
{
    return added<Beam>(*this, recongnizedID);
}
Model::Wall *ORVCADBoardLocalModel_Sample::addWall(const QUuid &recongnizedID)
{
    return added<Wall>(*this, recongnizedID);
}
Model::Column *ORVCADBoardLocalModel_Sample::addColumn(const QUuid &recongnizedID)
{
    return added<Column>(*this, recongnizedID);
}
Model::Board *ORVCADBoardLocalModel_Sample::addBoard(const QUuid &recongnizedID)
{
    return added<Board>(*this, recongnizedID);
}
Model::BoardHole *ORVCADBoardLocalModel_Sample::addBoardHole(const QUuid &recongnizedID)
{
    return added<BoardHole>(*this, recongnizedID);
}
Model::Raft *ORVCADBoardLocalModel_Sample::addRaft(const QUuid &recongnizedID)
{
    return added<Raft>(*this, recongnizedID);
}
Model::ForcedBar *ORVCADBoardLocalModel_Sample::addForcedBar(const QUuid &recongnizedID)
{
    return added<ForcedBar>(*this, recongnizedID);
}
Model::StraddleForcedBar *ORVCADBoardLocalModel_Sample::addStraddleForcedBar(const QUuid &recongnizedID)
{
    return added<StraddleForcedBar>(*this, recongnizedID);
}
Model::NegativeForcedBar *ORVCADBoardLocalModel_Sample::addNegativeForcedBar(const QUuid &recongnizedID)
{
    return added<NegativeForcedBar>(*this, recongnizedID);
}
Model::RaftMainForcedBar *ORVCADBoardLocalModel_Sample::addRaftMainForcedBar(const QUuid &recongnizedID)
{
    return added<RaftMainForcedBar>(*this, recongnizedID);
}
Model::RaftMainStraddleForcedBar *ORVCADBoardLocalModel_Sample::addRaftMainStraddleForcedBar(const QUuid &recongnizedID)
{
    return added<RaftMainStraddleForcedBar>(*this, recongnizedID);
}
Model::RaftNegativeForcedBar *ORVCADBoardLocalModel_Sample::addRaftNegativeForcedBar(const QUuid &recongnizedID)
{
    return added<RaftNegativeForcedBar>(*this, recongnizedID);
}
Model::AxisNet *ORVCADBoardLocalModel_Sample::addAixsNet() { return added<AxisNet>(*this, QUuid()); }
