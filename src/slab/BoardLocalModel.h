#pragma once

#include "ORVCADModelDataExport.h"
#include "foundation/Object_AI.h"

#include <QUuid>

#include <vector>

class ORVCADBoardLocalModelPersistenceService_Sample;
class ORVCADBoardLocalModelTransformHBXService_Sample;
class ORVCADBoardLocalModelTestAccess;

/** Everything that slab recognition works on for one floor and one region: slabs and rafts, their holes and bars, the
 *  supports under them, and axis nets. A plain copy in memory, filled from the host or from JSON and handed back.
 *
 *  The model is the root of an object tree, and its elements are children of it: it owns them, they keep logs, and their
 *  main fields are properties too (docs/objects.md). Bars, slabs and supports are not linked to one another; where they
 *  lie tells what belongs together.
 *
 *      using Model = ORVCADBoardLocalModel_Sample;
 *      for (const Model::Board *slab : model.boards())
 *          total += slab->surface ? slab->surface->Area() : 0.0;
 *      auto outlines = model.findObjects(Model::Object::BoardKind | Model::Object::BoardHoleKind);
 *
 *  Lengths are millimetres and plan geometry is in millimetres of the floor. The elevations of slabs and rafts are
 *  metres; those of beams, walls and columns stay as the host gives them. Geometry is shared by counting: assigning a
 *  field copies nothing, and null is allowed everywhere.
 *
 *  In the names a Board is a slab, a Raft a raft foundation, a ForcedBar a working bar, a NegativeForcedBar a top bar
 *  over a support, and Straddle says that a bar spans several slabs or rafts.
 *
 *  A model belongs to one thread. It dies with everything in it; like every object it may not die over unsaved logs. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample : public cv::Object_AI
{
public:
    // ---- The elements; BoardLocalModelElements.h and BoardLocalModelBars.h define them.

    class Object;        ///< any element
    class LineObject;    ///< one with a centre curve
    class SectionObject; ///< one with an outline
    class Support;       ///< beam or wall
    class Beam;
    class Wall;
    class Board;
    class BoardHole;
    class AbstractForcedBar; ///< bars of an area
    class ForcedBar;
    class StraddleForcedBar;
    class NegativeForcedBar;
    class Column;
    class AxisNet;
    class Raft;
    class RaftMainForcedBar;
    class RaftMainStraddleForcedBar;
    class RaftNegativeForcedBar;

    /** An empty model. */
    ORVCADBoardLocalModel_Sample();
    /** Takes the elements, name, properties and place of the other, which is empty afterwards. Pointers to elements stay
     *  good. */
    // NOLINTNEXTLINE(performance-noexcept-move-constructor): handlers of events may throw
    ORVCADBoardLocalModel_Sample(ORVCADBoardLocalModel_Sample &&other);
    ORVCADBoardLocalModel_Sample(const ORVCADBoardLocalModel_Sample &) = delete;
    ORVCADBoardLocalModel_Sample &operator=(const ORVCADBoardLocalModel_Sample &) = delete;
    ORVCADBoardLocalModel_Sample &operator=(ORVCADBoardLocalModel_Sample &&) = delete;
    ~ORVCADBoardLocalModel_Sample() override;

    // ---- Readers give the elements of a class in the order of the children, those that stand under other children
    // ---- behind them. What an element was made as decides, not its type(). Logs and other objects in the tree are no
    // ---- elements. The model goes on owning what it gives.

    /** All elements. */
    std::vector<const Object *> objects() const;
    std::vector<const Beam *> beams() const;                                           ///< of floors and of foundations
    std::vector<const Wall *> walls() const;                                           ///< those that slabs rest on
    std::vector<const Column *> columns() const;                                       ///< whatever kind text gave them
    std::vector<const Board *> boards() const;                                         ///< slabs, without rafts
    std::vector<const BoardHole *> boardHoles() const;                                 ///< of slabs and of rafts
    std::vector<const Raft *> rafts() const;                                           ///< raft foundations
    std::vector<const ForcedBar *> forcedBars() const;                                 ///< each in one slab
    std::vector<const StraddleForcedBar *> straddleForcedBars() const;                 ///< each across several slabs
    std::vector<const NegativeForcedBar *> negativeForcedBars() const;                 ///< top bars of slabs
    std::vector<const RaftMainForcedBar *> raftMainForcedBars() const;                 ///< each in one raft
    std::vector<const RaftMainStraddleForcedBar *> raftMainStraddleForcedBars() const; ///< each across several rafts
    std::vector<const RaftNegativeForcedBar *> raftNegativeForcedBars() const;         ///< top bars of rafts
    std::vector<const AxisNet *> axisNet() const;                                      ///< a floor may have several

    /** Those of objects() whose type() has a bit in common with the mask, an OR of Object::Types. A column whose kind was
     *  overwritten by text is found under the kind that it got. */
    std::vector<const Object *> findObjects(int mask) const;

private:
    friend ORVCADBoardLocalModelPersistenceService_Sample;
    friend ORVCADBoardLocalModelTransformHBXService_Sample;
    friend ORVCADBoardLocalModelTestAccess; // the tests fill models with it

    // ---- Creators append an element with the identity told, which the tree owns. That an identity stands in the model
    // ---- already is not tested.

    Beam *addBeam(const QUuid &recongnizedID);
    Wall *addWall(const QUuid &recongnizedID);
    Column *addColumn(const QUuid &recongnizedID);
    Board *addBoard(const QUuid &recongnizedID);
    BoardHole *addBoardHole(const QUuid &recongnizedID);
    Raft *addRaft(const QUuid &recongnizedID);
    ForcedBar *addForcedBar(const QUuid &recongnizedID);
    StraddleForcedBar *addStraddleForcedBar(const QUuid &recongnizedID);
    NegativeForcedBar *addNegativeForcedBar(const QUuid &recongnizedID);
    RaftMainForcedBar *addRaftMainForcedBar(const QUuid &recongnizedID);
    RaftMainStraddleForcedBar *addRaftMainStraddleForcedBar(const QUuid &recongnizedID);
    RaftNegativeForcedBar *addRaftNegativeForcedBar(const QUuid &recongnizedID);
    /** An axis net has no identity of its own: it stays null. Meant: the name is spelled so. */
    AxisNet *addAixsNet();
};
