#pragma once

#include "ORVCADModelDataExport.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <memory>
#include <vector>

class ORVBoxTreeImpl;

/** Finds elements of a slab local model by place, and tells whether the model holds an element of another one already.
 *
 *      ORVCADBoardLocalModelSearchService_Sample search(&model, Types::BoardKind | Types::BeamKind);
 *      if (search.find(recognised->shape(), Types::BoardKind).empty())
 *          ... // a new slab
 *
 *  The index is made once, from where the elements stand then. It holds pointers to them, so the model outlives the
 *  service and neither moves nor loses elements meanwhile. One service serves one thread.
 *
 *  Each `find` takes an OR of Object::Types: only hits of those kinds are given. They stand in the order of the model,
 *  belong to it, and are none for a mask of 0. Lengths are millimetres. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModelSearchService_Sample
{
public:
    using Model = ORVCADBoardLocalModel_Sample; ///< what is searched
    using Object = Model::Object;               ///< what is found

    /** Takes up the elements of a model whose kind is in the mask; of them those without geometry are never found.
     *  @param model  null is as good as an empty one */
    ORVCADBoardLocalModelSearchService_Sample(const ORVCADBoardLocalModel_Sample *model, int mask);

    /** Elements whose box comes within 2 mm of the given one; none for an empty box. */
    std::vector<Object *> find(const vks::CBox2<double> &box, int mask) const;
    /** Elements with an outline (SectionObject) that is the given one within 1 mm; none for null. */
    std::vector<Object *> find(const vks::CPolygon *polygon, int mask) const;
    /** Elements with a centre curve (LineObject) that shares a stretch with the given one within 1 mm; none for null. */
    std::vector<Object *> find(const vks::CCurve2d *curve, int mask) const;
    /** Elements that are the same as the one that the shape is of, which may stand in any model; see SlabSameObject.
     *  Supports in the index take area from boards and holes, so a mask of the constructor without beams, walls and
     *  columns compares them as drawn.
     *
     *  Every beam whose box touches the shape's is among them where the mask admits beams.
     *  @throw std::bad_function_call for a shape without a box function */
    std::vector<Object *> find(const Object::Shape &shape, int mask) const;

private:
    using TreeHolder = std::unique_ptr<ORVBoxTreeImpl, void (*)(ORVBoxTreeImpl *)>;

    TreeHolder m_tree; // data: Object *
};
