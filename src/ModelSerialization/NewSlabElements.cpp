#include "ModelSerialization/NewSlabElements.h"

#include "slab/ElementWalk.h"

namespace slabhost {
namespace {

using Node = slab::Tree::ChildNode;

/** True for an element of the class, which is added when it is new. */
template <typename Element> bool takes(std::vector<const Element *> &elements, const Node *node)
{
    if (!slab::isMadeAs<Element>(node))
        return false;
    const auto *element = static_cast<const Element *>(node);
    if (element->elementId < 1)
        elements.push_back(element);
    return true;
}

/** Adds an element to the list of its class, if there is one. */
template <typename... Elements> void add(const Node *node, std::vector<const Elements *> &...lists)
{
    (takes(lists, node) || ...);
}

} // namespace

NewSlabElements::NewSlabElements(const Model &local)
{
    slab::forEachBelow(local, [this](const Node *node) {
        add(node, boards, rafts, holes, forcedBars, straddleForcedBars, negativeForcedBars, raftMainForcedBars,
            raftMainStraddleForcedBars, raftNegativeForcedBars);
    });
}

} // namespace slabhost
