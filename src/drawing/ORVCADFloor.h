#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

/** One floor of the building as the recognition feature sees it; elevations and heights in metres, like the host's.
 *  Its JSON form is one object of the floors document; schema: schemas/floors.schema.json. */
class ORVCADMODELDATA_EXPORT ORVCADFloor
{
public:
    ORVCADFloor() = default;
    /** A floor for itself, without code and remark. */
    ORVCADFloor(const QString &name, double btmElev, double height);
    /** A floor without a code. */
    ORVCADFloor(const QString &name, double btmElev, double height, int stdCount, const QString &remark);

    /** As shown to the user. */
    const QString &name() const { return m_name; }
    /** "0" marks the base floor, "1" the first one. */
    const QString &code() const { return m_code; }
    /** m. */
    double btmElev() const { return m_btmElev; }
    /** m; 0 where none is set. */
    double height() const { return m_height; }
    /** Standard floors that it stands for, 1 at first. */
    int stdCount() const { return m_stdCount; }
    /** Whatever was noted. */
    const QString &remark() const { return m_remark; }
    /** In a table of floors; not persisted. */
    int rowID() const { return m_rowID; }

    /** Bottom elevation plus height, plus 3.0 where no height is set. The number of standard floors plays no part. */
    double topElev() const;
    /** The name contains "基础", or the code is "0". */
    bool isBaseFloor() const;
    /** The code or the name is "1", or the floor spans elevation zero: bottom at or below it, top above. */
    bool isFirstFloor() const;

    /** Nothing looks whether another floor has it. */
    void setName(const QString &name) { m_name = name; }
    /** Nothing looks whether another floor has it. */
    void setCode(const QString &code) { m_code = code; }
    /** m. */
    void setBtmElev(double elevation) { m_btmElev = elevation; }
    /** m; 0 takes the height away. */
    void setHeight(double height) { m_height = height; }
    /** Any number; nothing checks it. */
    void setStdCount(int count) { m_stdCount = count; }
    /** Any text. */
    void setRemark(const QString &remark) { m_remark = remark; }
    /** Any number. */
    void setRowID(int row) { m_rowID = row; }

    /** All fields but the row number. */
    QJsonObject toJson() const;
    /** A new floor, which belongs to the caller; null when "Name", "BottomElev", "Height", "StdCount" or "Remark" is
     *  missing. A value of another type reads as 0 or empty. "Code" is never read, so the code of the new floor is
     *  empty. */
    static ORVCADFloor *fromJson(const QJsonObject &json);

private:
    struct Fields; // the one list, in the source

    QString m_name;         ///< as shown to the user
    QString m_code;         ///< "0" marks the base floor, "1" the first one
    double m_btmElev = 0.0; ///< m
    double m_height = 0.0;  ///< m; 0 means that no height is set
    int m_stdCount = 1;     ///< standard floors that this floor stands for
    QString m_remark;
    int m_rowID = 0; ///< not persisted
};
