#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

class IHBXFloor;
class IHBXRegion;
class IHBXService;

/** Where a sample of recognition comes from: the floor and region that were current when the record was made.
 *
 *  The base of the sample records of all elements. A value: it is copied and moved member by member, keeps nothing of
 *  the host, and stays as it is when the user selects another floor. It is not destroyed through a pointer to the base. */
class ORVCADPLATFORM_EXPORT ORVCADSampleDataContextInfo
{
public:
    /** Reads the current floor and region. A null service, and a floor or region that is not selected, leave the
     *  defaults told below. */
    explicit ORVCADSampleDataContextInfo(IHBXService *service);

    /** IHBXFloor::standardFloorCount; 0 without a floor. */
    int standardFloorCount() const { return m_standardFloorCount; }
    /** Top of the floor above the building's zero, m; 0 without a floor. */
    double topElev() const { return m_topElev; }
    /** Empty without a floor. */
    QString floorName() const { return m_floorName; }
    /** -1 without a floor. */
    int floorID() const { return m_floorID; }
    /** Empty without a region. */
    QString regionName() const { return m_regionName; }
    /** -1 without a region, and for a region whose id does not fit into 32 bits. */
    int regionID() const { return m_regionID; }

private:
    void readFloor(const IHBXFloor &floor);
    void readRegion(const IHBXRegion &region);

    int m_standardFloorCount = 0;
    double m_topElev = 0.0;
    QString m_floorName;
    int m_floorID = -1;
    QString m_regionName;
    int m_regionID = -1;
};
