#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>

class ORVCADBoardLocalModel_Sample;

/** Turns slab local models into JSON and back. Format, key by key: docs/formats/slab-model.md.
 *
 *      const QJsonObject json = Service::model2json(&model, Service::Everything);
 *      Service::json2model(json, &other, Service::Everything | Service::AxisNets);
 *
 *  Writer and reader are no mirror images of each other, on purpose: some keys are written and never read, some are read
 *  another way than they are written, and the two understand the parts differently. The format lists each case. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModelPersistenceService_Sample
{
public:
    /** Which elements a document holds. The writer compares the value as a whole, the reader takes it as a set of bits. */
    enum Parts : int {
        Supports = 2,   ///< "beams", "walls", "columns"
        Boards = 4,     ///< "boards", "board_holes"
        BoardBars = 8,  ///< "negative_forced_bars", "forced_bars", "straddle_forced_bars"
        Rafts = 32,     ///< "rafts"
        RaftBars = 64,  ///< "raft_negative_forced_bars", "raft_main_forced_bars", "raft_straddle_main_forced_bars"
        AxisNets = 128, ///< "axisGrids"
        /** Written, all of it with the axis nets. Read, all of it without them. */
        Everything = 126
    };

    /** One object with an array for each kind of element, an empty one where there are none. Null geometry is an empty
     *  text, and a number that is not finite becomes null in text. The empty object for a null model.
     *
     *  Meant: Rafts, Boards, RaftBars and BoardBars write their own arrays alone, Everything all arrays, and every other
     *  value (Supports, AxisNets, an OR of parts) the supports and the axis nets. */
    static QJsonObject model2json(const ORVCADBoardLocalModel_Sample *model, Parts parts);
    /** Adds the elements of a document to a model; what it holds stays. A missing or mistyped array is empty, a missing or
     *  mistyped value 0, false or the empty text, and geometry that cannot be read null. Identities may repeat.
     *  @param parts  OR of Parts: which arrays are read
     *  @return true, whatever the document holds; a null model takes nothing */
    static bool json2model(const QJsonObject &json, ORVCADBoardLocalModel_Sample *model, int parts);

private:
    struct Arrays;
    struct Document;
};
