#pragma once

#include "ORVCADModelDataExport.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "slab/ORVCADBoardOptions_Sample.h"

#include <QString>

#include <memory>

namespace dwgx {
class DWGXModel;
}

/** A slab local model with all that a recognition run needs around it: options, region and floor, the project's file name
 *  and the drawing.
 *
 *  The drawing is borrowed or owned. One that was read from a file belongs to the model and is destroyed when another
 *  takes its place, or with the model. One that was handed in stays the caller's and has to live as long as it is used. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalIOModel_Sample : public ORVCADBoardLocalModel_Sample
{
public:
    /** Empty, without a drawing. */
    ORVCADBoardLocalIOModel_Sample();
    /** Takes all of the other, the ownership of its drawing too. The other is as new afterwards. */
    // NOLINTNEXTLINE(performance-noexcept-move-constructor): handlers of events may throw
    ORVCADBoardLocalIOModel_Sample(ORVCADBoardLocalIOModel_Sample &&other);
    ORVCADBoardLocalIOModel_Sample(const ORVCADBoardLocalIOModel_Sample &) = delete;
    ORVCADBoardLocalIOModel_Sample &operator=(const ORVCADBoardLocalIOModel_Sample &) = delete;
    ORVCADBoardLocalIOModel_Sample &operator=(ORVCADBoardLocalIOModel_Sample &&) = delete;
    ~ORVCADBoardLocalIOModel_Sample() override;

    /** They belong to the model; none until the host or a document tells some. */
    const ORVCADBoardOptions_Sample &options() const;
    /** Of the project that the model was taken from. */
    QString orvFileName() const;
    /** Empty until a floor is told. */
    QString currentRegionName() const;
    /** Empty until a floor is told. */
    QString currentFloorName() const;
    /** Metres; NaN until a floor is told. */
    double currentFloorTopElev() const;
    /** Metres; nothing to rely on until a floor is told, unlike the top. */
    double currentFloorBtmElev() const;

    /** Null without a drawing. */
    dwgx::DWGXModel *drawing() const;
    /** Reads a drawing file, `.cadi2` or what else the host's drawing operator knows, and owns what it gets. A path that
     *  ends with ".wzd", in lower case, is an archive, of which the first file by name is read. The viewer data of the
     *  drawing is that of a new one afterwards, and there is extension data, if only empty.
     *
     *  False, with the drawing as it was, for a file that is missing or cannot be read, and for a hostile archive (see
     *  HBCZipFile). Meant: an archive that cannot be unpacked leaves its empty folder below QDir::temp(). */
    bool setDrawing(const QString &path);
    /** Borrows a drawing. False, and nothing changed, for null. The drawing that the model has already stays as it is,
     *  owned or borrowed. */
    bool setDrawing(dwgx::DWGXModel *model);

private:
    friend ORVCADBoardLocalIOModelPersistenceService_Sample;
    friend ORVCADBoardLocalModelTransformHBXService_Sample;
    friend ORVCADBoardLocalIOModelTestAccess;

    /** @param topElev, btmElev  of the floor, m */
    void setCurrentRegionAndFloor(const QString &region, const QString &floor, const double &topElev,
                                  const double &btmElev);
    void setORVFileName(const QString &name);

    struct Private;
    std::unique_ptr<Private> m_private;
};
