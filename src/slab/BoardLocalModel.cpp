#include "slab/BoardLocalModel.h"

#include "slab/BoardLocalModelBars.h"
#include "slab/BoardLocalModelElements.h"
#include "slab/ElementWalk.h"

#include <algorithm>
#include <type_traits>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Tree = slab::Tree;

template <typename Element> std::vector<const Element *> allOf(const Tree &model)
{
    std::vector<const Element *> found;
    if constexpr (std::is_same_v<Element, Model::Object>)
        found.reserve(model.childCount());
    slab::MadeAs<Element> madeAs;
    slab::forEachBelow(model, [&](const Tree::ChildNode *node) {
        if (madeAs(node))
            found.push_back(static_cast<const Element *>(node));
    });
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
