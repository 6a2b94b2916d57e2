#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>

class ORVCADBoardLocalIOModel_Sample;

/** Turns slab IO models into JSON and back: the model document of ORVCADBoardLocalModelPersistenceService_Sample with the
 *  options, the state of the floor and the drawing, which is packed and written as hexadecimal text. Format:
 *  docs/formats/slab-model.md. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalIOModelPersistenceService_Sample
{
public:
    /** The whole document, with all elements. The empty object for a null model, for one without a drawing, and when the
     *  drawing cannot be written and packed below QDir::temp(), where nothing is left behind.
     *  @param parts  meant: makes no difference */
    static QJsonObject model2json(const ORVCADBoardLocalIOModel_Sample *model, int parts);
    /** Adds the elements of the document to a model, which gets its file name ("case_info") and its options in place of
     *  those that it has: a document without either clears them.
     *
     *  Meant: floor and drawing are read only if RaftBars (64) is one of the parts. False then for a document without a
     *  drawing that can be unpacked and read; what was read before stays in the model, and so does the drawing that it
     *  has. What could not be unpacked is left behind below QDir::temp(). A drawing name with a folder in it is refused.
     *  @param parts  OR of ORVCADBoardLocalModelPersistenceService_Sample::Parts
     *  @return false for a null model */
    static bool json2model(const QJsonObject &json, ORVCADBoardLocalIOModel_Sample *model, int parts);

private:
    static QJsonObject optionsOf(const ORVCADBoardLocalIOModel_Sample &model);
    static void readOptions(const QJsonObject &json, const ORVCADBoardLocalIOModel_Sample &model);
    static void readState(const QJsonObject &json, ORVCADBoardLocalIOModel_Sample &model);
};
