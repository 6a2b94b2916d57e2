#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/HBXProjectRecords.h"
#include "platform/services/CDatabase.h"

#include <memory>
#include <vector>

namespace hbx::embedded {

/** Database of a project: one table, the identify options, with the columns group, name and value. */
class ORVCADPLATFORM_EXPORT HBXOptionDatabase : public vks::CDatabase
{
public:
    /** @param rows  the table's rows, which belong to the project and must outlive the database; changes show at once */
    explicit HBXOptionDatabase(const std::vector<OptionRecord> &rows);
    ~HBXOptionDatabase() override;

    vks::CDBTable *GetTable(const QString &name) override;

private:
    std::unique_ptr<vks::CDBTable> m_options;
};

} // namespace hbx::embedded
