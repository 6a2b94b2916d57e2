#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/services/ORVCADSampleDataContextInfo.h"

#include <map>

/** What the recognition of slab bars was given for a sample: floor and region, and the options in force. */
class ORVCADMODELDATA_EXPORT ORVCADSlabReinforcementSampleDataContextInfo : public ORVCADSampleDataContextInfo
{
public:
    /** Floor and region as the base reads them; no options. Null is allowed. */
    explicit ORVCADSlabReinforcementSampleDataContextInfo(IHBXService *service);

    /** Options of recognition, name to value. */
    std::map<QString, QString> getCADOptions() const;
    /** Replaces all options; a map that is moved in is empty afterwards. */
    void setCADOptionsData(std::map<QString, QString> options);

    /** The options of a group in the project's option table, name to value; of a name that stands twice the first row
     *  counts. Empty for an unknown group, a host without the table and a null service. Nothing is kept: the caller
     *  hands the map to setCADOptionsData. */
    static std::map<QString, QString> parseCADOptions(IHBXService *service, const QString &group);

private:
    std::map<QString, QString> m_cadOptions;
};
