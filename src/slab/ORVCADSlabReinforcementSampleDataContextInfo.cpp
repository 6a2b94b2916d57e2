#include "slab/ORVCADSlabReinforcementSampleDataContextInfo.h"

#include "platform/host/IHBXService.h"
#include "platform/services/OptionGroupReader.h"

#include <utility>

ORVCADSlabReinforcementSampleDataContextInfo::ORVCADSlabReinforcementSampleDataContextInfo(IHBXService *service)
    : ORVCADSampleDataContextInfo(service)
{}

std::map<QString, QString> ORVCADSlabReinforcementSampleDataContextInfo::getCADOptions() const { return m_cadOptions; }

void ORVCADSlabReinforcementSampleDataContextInfo::setCADOptionsData(std::map<QString, QString> options)
{
    m_cadOptions = std::move(options);
}

std::map<QString, QString> ORVCADSlabReinforcementSampleDataContextInfo::parseCADOptions(IHBXService *service,
                                                                                         const QString &group)
{
    return readOptionGroup(service ? service->model() : nullptr, group).toStdMap();
}
