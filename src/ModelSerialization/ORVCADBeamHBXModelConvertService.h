#pragma once

#include "ORVCADModelDataExport.h"
#include "beam/BeamModelDataInfo.h"

#include <QSet>

#include <list>
#include <memory>
#include <vector>

class IHBXElement;
class IHBXElementDrawObj;
class IHBXModel;
class WLRBeamSpans;

/** Reads beams out of the host into records of the local model, to be sent or saved: the reverse of
 *  ORVCADBeamLocalModel2HBXService. Writes nothing to the host; has no state.
 *
 *  A host that throws while an element, a draw object or a span is read leaves that record with what was read before. What
 *  it throws when it is asked for draw objects, chains, shapes or span sets goes on to the caller. */
class ORVCADMODELDATA_EXPORT ORVCADBeamHBXModelConvertService
{
public:
    using Beams = std::vector<std::shared_ptr<BeamModelDataInfo>>; ///< one for each element, never null

    /** One record per element, in list order. The placed beams of one stand in no particular order. An element that is null
     *  gives an element record of zeros and empty texts. */
    Beams convertHBXToCollectDataModel(const std::list<IHBXElement *> &elements);
    /** The elements of a selection: the sets go to the host's queryElements as they are. Null gives no beams. */
    Beams convertHBXToCollectDataModel(IHBXModel *model, const QSet<long long> &floorIds,
                                       const QSet<long long> &elementTypes);

private:
    static std::unique_ptr<BaseBeamEntInfo> getBeamEntProp(IHBXElement *element);
    static std::vector<std::shared_ptr<BeamEdoInfo>> getBeamEdoProp(IHBXElement *element);
    static std::shared_ptr<BeamSegmentInfo> getBeamEdoLinkNodeProp(IHBXElementDrawObj *drawObj);
    static std::unique_ptr<WLRBeamSpans> initBeamSpans(IHBXElementDrawObj *head);
};
