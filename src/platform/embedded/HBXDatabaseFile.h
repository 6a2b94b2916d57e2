#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/HBXProjectRecords.h"

#include <optional>

namespace hbx::embedded {

struct ProjectError;

/** A project file (`.hbxdb`), an SQLite database (docs/formats/hbxdb.md). No connection is kept between the calls, so
 *  that others can read and write the file. */
class ORVCADPLATFORM_EXPORT HBXDatabaseFile
{
public:
    explicit HBXDatabaseFile(const QString &path) : m_path(path) {}

    const QString &path() const { return m_path; }

    /** The whole content. A file that is missing, foreign, damaged, of another form or being written is refused: nothing
     *  is returned, the error is filled, and the file stays as it is, byte for byte. An interrupted save of another
     *  process is undone first. */
    std::optional<ProjectRecord> read(ProjectError &error);
    /** Makes the file anew. It is written beside its place and moved there when it is complete; until then, and when
     *  anything fails, what stands there stays. */
    bool create(const ProjectRecord &project, ProjectError &error);
    /** Writes changes in one transaction into the file as it was last read, created or saved. Refused, and nothing
     *  changed, when somebody else has saved since, or is doing so. */
    bool save(const ProjectUpdate &update, ProjectError &error);

private:
    ProjectRecord readChecked();
    void update(const ProjectUpdate &changes);

    QString m_path;
    qint64 m_saveMark = 0; ///< of the state that this object knows
};

} // namespace hbx::embedded
