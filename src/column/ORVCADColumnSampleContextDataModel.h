#pragma once

#include "ORVCADModelDataExport.h"

#include <QMap>
#include <QString>

class IHBXService;

/** Where a sample of column recognition comes from: the floor and region that were current when the record was made, and
 *  the options in force. It keeps nothing of the host. Unlike in ORVCADSampleDataContextInfo the ids have 64 bits. */
class ORVCADMODELDATA_EXPORT ORVCADColumnSampleContextDataModel
{
public:
    /** Reads the current floor and region; no options. A null service, and a floor or region that is not selected, leave
     *  0 and the empty text. */
    explicit ORVCADColumnSampleContextDataModel(IHBXService *service);

    /** Of the floor in the host; 0 without one. */
    qint64 floorID() const { return m_floorID; }
    /** Of the region in the host; 0 without one. */
    qint64 regionID() const { return m_regionID; }
    /** As the host had it when the record was made. */
    QString floorName() const { return m_floorName; }
    /** As the host had it when the record was made. */
    QString regionName() const { return m_regionName; }

    /** Options of identification, name to value. */
    QMap<QString, QString> getCADOption() const { return m_cadOption; }
    /** Replaces all options. */
    void setCADOption(QMap<QString, QString> options);

    /** The column options of the host's option table; of a name that stands twice the first row counts. Empty for a host
     *  without the table and for a null service. Nothing is kept: the caller hands the map to setCADOption. */
    QMap<QString, QString> parseColumnIdentifyOption(IHBXService *service) const;

private:
    qint64 m_floorID = 0;
    qint64 m_regionID = 0;
    QString m_floorName;
    QString m_regionName;
    QMap<QString, QString> m_cadOption;
};
