#pragma once

#include "ORVCADModelDataExport.h"

#include <QString>

#include <map>
#include <memory>

class ORVCADBoardLocalIOModelPersistenceService_Sample;
class ORVCADBoardLocalModelTransformHBXService_Sample;
class ORVCADBoardLocalIOModelTestAccess;

/** The options of a slab recognition run, texts by key, as the project or a document states them. */
class ORVCADMODELDATA_EXPORT ORVCADBoardOptions_Sample
{
public:
    /** Without options. */
    ORVCADBoardOptions_Sample();
    ORVCADBoardOptions_Sample(const ORVCADBoardOptions_Sample &) = delete;
    ORVCADBoardOptions_Sample &operator=(const ORVCADBoardOptions_Sample &) = delete;
    ~ORVCADBoardOptions_Sample();

    /** The empty text for an unknown key, which the options then do not get to know. */
    QString value(const QString &key) const;

private:
    friend ORVCADBoardLocalIOModelPersistenceService_Sample;
    friend ORVCADBoardLocalModelTransformHBXService_Sample;
    friend ORVCADBoardLocalIOModelTestAccess; // the tests fill options with it

    /** The map itself. Meant: it may be written to even through const options, which is how the services refill those of
     *  a model. */
    std::map<QString, QString> &values() const;

    std::unique_ptr<std::map<QString, QString>> m_values;
};
