#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <vector>

/** Floors with their region and their concrete, anchorage and lap settings, as the host's floor table is exchanged with
 *  the recognition side. Any field may have no value, which is another thing than zero; the reader is strict and takes
 *  back nothing that it cannot take whole. Format: docs/formats/floor-sdc.md. */
class ORVCADMODELDATA_EXPORT ORVCADFloorSDCData
{
public:
    /** A value that may be missing. T is int, qint64, double or QString. */
    template <typename T> struct Data
    {
        bool null = true; ///< no value was set
        T value = T();

        void set(const T &newValue)
        {
            value = newValue;
            null = false;
        }
    };

    struct Region
    {
        Data<qint64> ID;
        Data<QString> Description;
    };

    /** Settings of one element type on a floor. Numbers are ids and levels of the host's tables. */
    struct ConcreteAnchorJoint
    {
        Data<qint64> TypeID;
        Data<int> BasicElementTypeID;
        Data<qint64> ConcGradeID;
        Data<qint64> ConcTypeID;
        Data<qint64> MortarGradeID;
        Data<qint64> MortarTypeID;
        Data<int> AseismicLevelID;
        Data<QString> Anchor1; ///< anchorage lengths, as texts
        Data<QString> Anchor2;
        Data<QString> Anchor3;
        Data<QString> Anchor4;
        Data<QString> Anchor5;
        Data<QString> Anchor6;
        Data<QString> Joint1; ///< lap lengths, as texts
        Data<QString> Joint2;
        Data<QString> Joint3;
        Data<QString> Joint4;
        Data<QString> Joint5;
        Data<QString> Joint6;
        Data<qint64> ProtectiveLayerThickness;
        Data<QString> Remark;
    };

    /** Lengths are in the unit of the host's floor table. */
    struct Floor
    {
        Data<qint64> ID;
        Data<QString> Description;
        Data<double> Height;
        Data<int> StdFloorCount;
        Data<double> StructuralElevation;
        Data<int> StartFloorNo;
        Data<QString> Remark;
        Data<QString> Code;
        Data<double> SlabThickness;
        Data<double> FloorArea;
        Data<QString> RelatedFloorID;
        ORVCADFloorSDCData::Region Region;
        std::vector<ConcreteAnchorJoint> ConcreteAnchorJoints;
    };

    ORVCADFloorSDCData();

    /** The document: one member, "FloorSDCData", the array of floors. A field without a value is not written; "Region"
     *  always is, "ConcreteAnchorJoint" only where there are settings. A number that is not finite becomes null as
     *  text, which the reader refuses. */
    QJsonObject serialize(const std::vector<Floor> &floors) const;
    /** Reads the document. It must have that one member and no other, an array of objects, each with an object "Region".
     *  A key that is missing leaves its field without a value.
     *  @param ok  false when the document or one of the floors is refused
     *  @return the floors in front of the first one that is refused */
    std::vector<Floor> unserialize(const QJsonObject &document, bool &ok) const;

    /** Sets a field from a value. A whole number takes a number that is whole, fits into 32 bits and is not -2147483648,
     *  for fields of 64 bits as well. @return false for anything else; the field is as it was then */
    bool setJsonValueToData(const QJsonValue &json, Data<int> &data) const;
    bool setJsonValueToData(const QJsonValue &json, Data<qint64> &data) const;
    /** The same; takes a number above -1.7976931348623157e+308. */
    bool setJsonValueToData(const QJsonValue &json, Data<double> &data) const;
    /** Always true; what is no text leaves the field as it is. */
    bool setJsonValueToData(const QJsonValue &json, Data<QString> &data) const;

private:
    struct Fields; // the lists of keys and members, in the source

    QJsonObject serializeFloor(const Floor &floor) const;
    QJsonObject serializeRegion(const Region &region) const;
    QJsonObject serializeConcreteAnchorJoint(const ConcreteAnchorJoint &joint) const;
    QJsonArray serializeConcreteAnchorJoints(const std::vector<ConcreteAnchorJoint> &joints) const;

    bool unserializeFloor(const QJsonValue &json, Floor &floor) const;
    bool unserializeRegion(const QJsonObject &floor, Region &region) const;
    bool unserializeConcreteAnchorJoint(const QJsonValue &json, ConcreteAnchorJoint &joint) const;
    bool unserializeConcreteAnchorJoints(const QJsonObject &floor, std::vector<ConcreteAnchorJoint> &joints) const;

    template <typename Table, typename Record>
    bool readFields(const QJsonObject &json, const Table &table, Record &record) const;

    QString m_floorsKey;
    QString m_regionKey;
    QString m_jointsKey;
};
