#pragma once

#include "ORVCADModelDataExport.h"

#include <QList>
#include <QString>
#include <QStringList>

/** The drawings that show one element type, floor by floor: a view of the drawing set of ORVCADDisposeInfoData, taken
 *  when it is made. Later changes of the set do not show. Copying copies. */
class ORVCADMODELDATA_EXPORT ORVCADAIIdentifyDTO
{
public:
    /** Walks from the lowest floor upstairs; a gap in the elevations ends the walk. Each floor of the region that has
     *  drawings gives an entry, with those of them that show the type, be it none. Empty when the set has no floors, no
     *  floor mappings or no element mappings. The set is made where there is none.
     *  @param region       id of the region; -1 has no drawings
     *  @param elementType  number of the host's element type */
    ORVCADAIIdentifyDTO(int region, int elementType);

    /** The drawings of all floors, floor by floor; a drawing of two floors stands there twice. */
    QStringList getDrawings() const;
    /** Drawings of all floors; one of two floors counts twice. */
    int getDrawingCount() const;
    /** The drawings of the first entry of that floor; empty for an empty name and an unknown floor. */
    QStringList getDrawingNames(const QString &floor) const;
    /** The floors from the lowest up. */
    QStringList getFloorNames() const;

private:
    struct Entry
    {
        QString floorName;
        QStringList drawings;
    };

    void initData(int region, int elementType);

    QList<Entry> m_entries;
};
