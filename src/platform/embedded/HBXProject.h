#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/HBXJournal.h"

#include <QByteArray>
#include <QString>

#include <memory>

class IHBXService;

/** The embedded host (docs/embedded-host.md). */
namespace hbx::embedded {

class HBXModelStore; // the model in memory

/** Why a file was refused: the file, the place in it, and the reason. Empty when all is well. */
struct ORVCADPLATFORM_EXPORT ProjectError
{
    QString file;   ///< as the caller named it; the project's name where it has no file yet
    QString place;  ///< e.g. regions[0].floors[2].elements[14].drawObjects[0].shape.outline; may be empty
    QString reason; ///< in words, for people

    /** Whether nothing was refused. */
    bool isEmpty() const { return reason.isEmpty(); }
    /** file, place and reason in one line. */
    QString text() const;
};

/** The embedded host: one building in memory, kept in a project file.
 *
 *  A project file (`.hbxdb`) is an SQLite database; its readable twin is the `hbx-project` JSON form. Opening loads the
 *  whole building; save() writes what changed since the last save in one transaction, so that a file is always as it
 *  was before or as it is after. A project belongs to one thread. */
class ORVCADPLATFORM_EXPORT HBXProject
{
public:
    /** An empty project in memory. */
    explicit HBXProject(const QString &name = QString());
    ~HBXProject();
    HBXProject(const HBXProject &) = delete;
    HBXProject &operator=(const HBXProject &) = delete;

    /** Opens a project file and makes it current. Null, and the error filled, for a file that is missing, foreign,
     *  damaged, of a newer form, or busy; the file is not touched then. */
    static std::unique_ptr<HBXProject> open(const QString &path, ProjectError &error);
    /** The building of an exchange document, in memory; made current. Null, and the error filled, when any rule of the form
     *  is broken. fileName is only for messages. */
    static std::unique_ptr<HBXProject> fromJson(const QByteArray &json, const QString &fileName, ProjectError &error);

    /** Writes all changes since the last save into the file that the project was opened from or saved to. */
    bool save(ProjectError &error);
    /** Makes a new project file; an existing file at path is replaced only once the new one is complete. */
    bool saveAs(const QString &path, ProjectError &error);
    /** The exchange document, indented; reads back to the same building but for ids. */
    QByteArray toJson() const;

    /** As its file, or whoever made it, tells. */
    QString name() const;
    /** Where the building comes from, and its licence; may be empty. */
    QString source() const;
    /** Of its file, as told to open() or saveAs(); empty until there is one. */
    QString path() const;

    /** The host; belongs to the project. */
    IHBXService *service() const;
    /** What the host did and refused since the project was opened. */
    HBXJournal &journal() const;

    /** Selects a region and a floor for IHBXCurState; false, and nothing changed, when there is none of that name. */
    bool setCurrent(const QString &regionName, const QString &floorName);
    /** Services that take no model serve the current project: the last one opened or made current. */
    void makeCurrent();
    /** Null where none was made current, and once the current one is gone. */
    static HBXProject *current();

    /** The model behind the interfaces, for the services and stores of this folder. */
    HBXModelStore &store() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace hbx::embedded
