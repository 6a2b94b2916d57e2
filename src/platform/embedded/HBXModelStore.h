#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/HBXJournal.h"
#include "platform/embedded/HBXProjectRecords.h"

#include <QJsonObject>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <vector>

class IHBXElementDrawObj;
class IHBXService;

namespace hbx::embedded {

/** What differs from the last takeChanges(). Ids ascend, and stand in one of the lists of their kind at most. */
struct ProjectChanges
{
    std::vector<qint64> changedElements; ///< new or changed
    std::vector<qint64> removedElements;
    std::vector<qint64> changedDrawObjs; ///< entered ones, new or changed
    std::vector<qint64> removedDrawObjs;
    bool header = false;    ///< name, source, plane rule
    bool options = false;   ///< the whole table
    bool materials = false; ///< the whole table
    qint64 nextId = 1;      ///< first id that was never used; counts up whenever something is made

    /** Nothing to write, whatever the next id. */
    bool isEmpty() const
    {
        return changedElements.empty() && removedElements.empty() && changedDrawObjs.empty() &&
               removedDrawObjs.empty() && !header && !options && !materials;
    }
};

/** The building in memory behind the host's interfaces, as plain data on its other side.
 *
 *  Records go in with load() and come out with snapshot() or one by one; whatever changes an object in between, by its
 *  interface or as a consequence, stands in the next changes. Regions and floors are set by load() alone. Draw objects
 *  that were made and not yet entered are the store's to destroy, and are in no record.
 *
 *  A store belongs to one thread. Pointers that the interfaces gave stay good until the object they name is removed or
 *  the next load(). */
class ORVCADPLATFORM_EXPORT HBXModelStore
{
public:
    /** An empty building. */
    HBXModelStore();
    ~HBXModelStore();
    HBXModelStore(const HBXModelStore &) = delete;
    HBXModelStore &operator=(const HBXModelStore &) = delete;

    /** Replaces the whole content; the journal, the current state and the changes start empty. Records are taken as
     *  their reader checked them; one that refers to a floor, element or object that is not there loses the reference,
     *  or is left out where it cannot be without. */
    void load(ProjectRecord record);
    /** The whole content; reads back to the same model. */
    ProjectRecord snapshot() const;
    /** One object as snapshot() gives it; nothing for an unknown id, and for a draw object that is not entered. */
    std::optional<ElementRecord> elementRecord(qint64 id) const;
    std::optional<DrawObjRecord> drawObjRecord(qint64 id) const;

    /** What changed since load() or the last call. */
    ProjectChanges takeChanges();
    /** Puts changes back that could not be saved; the next takeChanges() gives them again with whatever came since. */
    void giveBackChanges(const ProjectChanges &changes);

    IHBXService *service() const;
    HBXJournal &journal() const;
    /** Keys of the brackets that are open, outermost first. */
    const std::vector<std::string> &openBatches() const;

    /** Selects a region and a floor for IHBXCurState; false, and nothing changed, when there is none of that name. */
    bool setCurrent(const QString &regionName, const QString &floorName);
    /** Layer that IHBXCurState tells; 0 at first. */
    void setCurrentLayer(int layer);

    const ProjectSettings &settings() const;
    const QString &name() const;
    void setName(const QString &name);
    const QString &source() const;
    const QString &planeRule() const;
    void setPlaneRule(const QString &rule);

    /** Rows in table order; the vector stays in place as long as the store. */
    const std::vector<OptionRecord> &options() const;
    void setOptions(std::vector<OptionRecord> options);
    const std::vector<MaterialRecord> &materials() const;
    void setMaterials(std::vector<MaterialRecord> materials);

    /** Spans of the chain that holds a beam object, kept at its head; empty when none are stored, and for null, a
     *  foreign object and one that is in no chain. */
    std::vector<QJsonObject> spans(IHBXElementDrawObj *drawObj) const;
    /** False, and nothing changed, where spans() could give none. */
    bool setSpans(IHBXElementDrawObj *drawObj, std::vector<QJsonObject> spans);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace hbx::embedded
