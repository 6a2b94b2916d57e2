#pragma once

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ORVCADModelDataExport.h"

#include <QString>
#include <QUuid>

#include <map>

namespace dwgx {
class DWGXBaseBoxTree;
class DWGXModel;
} // namespace dwgx
class IHBXCurState;
class IHBXModel;
class IHBXService;
class ORVCADBoardLocalIOModel_Sample;
class ORVCADBoardLocalModel_Sample;

/** Carries slab local models into the host and out of it. Nothing of it is ever made: all operations are static.
 *
 *  The way in writes what recognition added: elements of the local model whose elementId is above 0 are in the host and
 *  are skipped. Every new one gets a draw object, and elements of the host are shared by those that fit. Each draw object
 *  that came in is told in a map from its host id to the recongnizedID that it stands for, so what is missing there did
 *  not come in.
 *
 *  What the host's check refuses, and what throws HBXModelException, leaves nothing behind: neither a draw object nor an
 *  element that was made for it alone, nor links to it. The others go on. No batch is opened. A null local model, service
 *  or model, and an unknown region or floor, write nothing.
 *
 *  The host is used from one thread. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModelTransformHBXService_Sample
{
public:
    using IdMap = std::map<qint64, QUuid>; ///< recongnizedID by the host's id

    /** Which elements come out of the host. Compared as a whole, as the writer of JSON does; the values are the same. */
    enum Parts : int {
        Supports = ORVCADBoardLocalModelPersistenceService_Sample::Supports,    ///< 2
        Boards = ORVCADBoardLocalModelPersistenceService_Sample::Boards,        ///< 4: slabs and their holes
        BoardBars = ORVCADBoardLocalModelPersistenceService_Sample::BoardBars,  ///< 8
        Rafts = ORVCADBoardLocalModelPersistenceService_Sample::Rafts,          ///< 32
        RaftBars = ORVCADBoardLocalModelPersistenceService_Sample::RaftBars,    ///< 64
        AxisNets = ORVCADBoardLocalModelPersistenceService_Sample::AxisNets,    ///< 128
        Everything = ORVCADBoardLocalModelPersistenceService_Sample::Everything ///< 126: axis nets too
    };

    // ---- Out of the host

    /** Adds an element to a local model for each draw object of a floor; what the model holds stays. Elements are in plan
     *  geometry of the building and in copies, but for the outlines of slabs that bars point to (supportPoly and
     *  supportPolys), which are the host's own. Each element but axis nets gets a fresh identity.
     *
     *  elementId is the draw object's id where Everything is asked for, else -1; axis nets always have it, and supports
     *  never. An area bar that "ReinforcementInfo" links with no slab or raft is left out; one that is parallel to the
     *  first bars of two groups of its place comes in twice, once for each row.
     *
     *  Order: rafts, slabs, holes, bars of rafts, bars of slabs, columns, beams, walls, axis nets. Rafts, Boards, RaftBars
     *  and BoardBars give their own elements alone, Everything all, and any other value supports and axis nets.
     *  @param topElev, btmElev  receive those of the floor, m
     *  @return false, with everything as it was, for a null model and an unknown region or floor */
    static bool hbx2local(IHBXModel *model, const QString &region, const QString &floor, double &topElev,
                          double &btmElev, ORVCADBoardLocalModel_Sample *local, Parts parts);
    /** The same for everything, with the drawing of a file, the floor, and the options of the project for bars, which take
     *  the place of those that the model holds. False also where the drawing cannot be read; the elements stay in the model
     *  then, and its drawing, floor and options are as they were. */
    static bool hbx2local(IHBXModel *model, const QString &region, const QString &floor, const QString &drawingPath,
                          ORVCADBoardLocalIOModel_Sample *io);
    /** The same with a drawing in memory, of which the model gets a copy of its own, by way of a file below QDir::temp().
     *  Where that file cannot be written, and for a null drawing, nothing is read. */
    static bool hbx2local(IHBXModel *model, const QString &region, const QString &floor, dwgx::DWGXModel *drawing,
                          ORVCADBoardLocalIOModel_Sample *io);

    // ---- Into the host

    /** Writes all that is new: slabs, rafts, holes, then the bars: working, negative and straddling ones of slabs, and main,
     *  straddling and negative ones of rafts.
     *  @param boxTree  the slabs of the floor that bars are linked with: IHBXElementDrawObj pointers by their world boxes;
     *                  only asked, so slabs that come in with the same model are not in it; may be null */
    static IdMap local2hbx(const ORVCADBoardLocalModel_Sample *local, IHBXService *service,
                           dwgx::DWGXBaseBoxTree *boxTree, const QString &region, const QString &floor);

    /** Slabs of one name and thickness, cut to whole mm, share an element. Without a name they are called B-h120 by their
     *  thickness; a name that another thickness has gets a suffix: B-h120-1. "TopElev" is told from the floor's top. */
    static void localBoard2HBX(const ORVCADBoardLocalModel_Sample *local, IHBXModel *model, IHBXCurState *state,
                               const QString &region, const QString &floor, IdMap &idMap);
    /** The same for rafts: FB-500, with "TopElev" and "BottomElev" told from the floor's bottom. */
    static void localRaft2HBX(const ORVCADBoardLocalModel_Sample *local, IHBXModel *model, IHBXCurState *state,
                              const QString &region, const QString &floor, IdMap &idMap);
    /** Holes are attached to the smallest slab, else raft, that holds the middle of their box; one in none is left out.
     *  Without a name they are called by their size: BD-400*300, BD-r=200, BD-异形. Meant: the bars at their edges are not
     *  written. */
    static void localBoardHole2HBX(const ORVCADBoardLocalModel_Sample *local, IHBXModel *model, IHBXCurState *state,
                                   const QString &region, const QString &floor, IdMap &idMap);

    // Bars of one name and text share an element. Without a name they are called by their text, SLJ-C12-150, with the
    // prefix of their kind. A text that tells no bars (ValidateBarInfo) leaves out all that have it. The text is written
    // in upper case.

    /** Working bars of one slab each; the prefix is SLJ. */
    static void localForceBar2HBX(const ORVCADBoardLocalModel_Sample *local, IHBXService *service,
                                  dwgx::DWGXBaseBoxTree *boxTree, const QString &region, const QString &floor,
                                  IdMap &idMap);
    /** Working bars across slabs; the prefix is KBSLJ. */
    static void localStraddleForcedBar2HBX(const ORVCADBoardLocalModel_Sample *local, IHBXService *service,
                                           dwgx::DWGXBaseBoxTree *boxTree, const QString &region, const QString &floor,
                                           IdMap &idMap);
    /** Working bars of one raft each; the prefix is FBZJ. */
    static void localRaftMainForceBar2HBX(const ORVCADBoardLocalModel_Sample *local, IHBXService *service,
                                          dwgx::DWGXBaseBoxTree *boxTree, const QString &region, const QString &floor,
                                          IdMap &idMap);
    /** Working bars across rafts; the prefix is KFBZJ. */
    static void localRaftStraddleMainForcedBar2HBX(const ORVCADBoardLocalModel_Sample *local, IHBXService *service,
                                                   dwgx::DWGXBaseBoxTree *boxTree, const QString &region,
                                                   const QString &floor, IdMap &idMap);
    /** Top bars of slabs; the prefix is FJ. One that is drawn over another negative bar of the current floor at the
     *  elevation of its slab is left out. */
    static void localNegativeForcedBar2HBX(const ORVCADBoardLocalModel_Sample *local, IHBXService *service,
                                           dwgx::DWGXBaseBoxTree *boxTree, const QString &region, const QString &floor,
                                           IdMap &idMap);
    /** Top bars of rafts; the prefix is FBFJ. Meant: they are compared with the negative bars of slabs, not of rafts. */
    static void localRaftNegativeForcedBar2HBX(const ORVCADBoardLocalModel_Sample *local, IHBXService *service,
                                               dwgx::DWGXBaseBoxTree *boxTree, const QString &region,
                                               const QString &floor, IdMap &idMap);

private:
    struct FromHost;
};
