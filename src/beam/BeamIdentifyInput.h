#pragma once

#include "ORVCADModelDataExport.h"
#include "beam/ORVCADBeamSDCIdentifyInputModel.h"

#include <QSet>

class IHBXModel;
class IHBXService;

/** @file
 *  Reading of what the recognition of beams is told of the current floor. Nothing in the host is changed. What the host
 *  throws passes through, and nothing is leaked then. */

/** A new model of the host's current floor, to be given back with freeBeamIdentifyInputModel: floor data, layer names, beam
 *  codes, seats, axis lines. With context, it has the floor and the options of the beam group as well. Without a current
 *  floor there are no floor data, seats and axis lines, and without a service there is nothing at all. */
ORVCADMODELDATA_EXPORT ORVCADBeamSDCIdentifyInputModel *createBeamIdentifyInputModel(IHBXService *service,
                                                                                     bool withContext);
/** Destroys a model with its seats; null is allowed. */
ORVCADMODELDATA_EXPORT void freeBeamIdentifyInputModel(ORVCADBeamSDCIdentifyInputModel *model);

/** Adds to the input everything on the floors that a beam may rest on, type by type: columns (25, 26, 1002), walls (0, 1003),
 *  piles (54), foundations (52), pile caps (53), beams (15, 17), tie beams (18). An object without an outline in the world
 *  is left out. A null model has none. */
ORVCADMODELDATA_EXPORT void getBeamSeatInfo(ORVCADBeamSDCIdentifyInputModel &input, IHBXModel *model,
                                            const QSet<qint64> &floorIds);
