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
        T value = T();    ///< means nothing while null is true

        /** From then on there is a value. */
        void set(const T &newValue)
        {
            value = newValue;
            null = false;
        }
    };

    /** The region of a floor. */
    struct Region
    {
        Data<qint64> ID;           ///< of the region in the host
        Data<QString> Description; ///< its name
    };

    /** Settings of one element type on a floor. Numbers are ids and levels of the host's tables. */
    struct ConcreteAnchorJoint
    {
        Data<qint64> TypeID;                   ///< of the host's element types
        Data<int> BasicElementTypeID;          ///< of the host's basic element types
        Data<qint64> ConcGradeID;              ///< grade of concrete
        Data<qint64> ConcTypeID;               ///< type of concrete
        Data<qint64> MortarGradeID;            ///< grade of mortar
        Data<qint64> MortarTypeID;             ///< type of mortar
        Data<int> AseismicLevelID;             ///< class of earthquake resistance
        Data<QString> Anchor1;                 ///< anchorage lengths, as texts
        Data<QString> Anchor2;                 ///< likewise
        Data<QString> Anchor3;                 ///< likewise
        Data<QString> Anchor4;                 ///< likewise
        Data<QString> Anchor5;                 ///< likewise
        Data<QString> Anchor6;                 ///< likewise
        Data<QString> Joint1;                  ///< lap lengths, as texts
        Data<QString> Joint2;                  ///< likewise
        Data<QString> Joint3;                  ///< likewise
        Data<QString> Joint4;                  ///< likewise
        Data<QString> Joint5;                  ///< likewise
        Data<QString> Joint6;                  ///< likewise
        Data<qint64> ProtectiveLayerThickness; ///< cover of the bars
        Data<QString> Remark;                  ///< whatever was noted
    };

    /** Lengths are in the unit of the host's floor table. */
    struct Floor
    {
        Data<qint64> ID;                                       ///< of the floor in the host
        Data<QString> Description;                             ///< its name
        Data<double> Height;                                   ///< of the floor
        Data<int> StdFloorCount;                               ///< standard floors that it stands for
        Data<double> StructuralElevation;                      ///< of its structure
        Data<int> StartFloorNo;                                ///< number of the first of them
        Data<QString> Remark;                                  ///< whatever was noted
        Data<QString> Code;                                    ///< short text of the floor
        Data<double> SlabThickness;                            ///< of its slab
        Data<double> FloorArea;                                ///< of the floor
        Data<QString> RelatedFloorID;                          ///< the floor that it belongs with
        ORVCADFloorSDCData::Region Region;                     ///< always written
        std::vector<ConcreteAnchorJoint> ConcreteAnchorJoints; ///< settings; written where there are some
    };

    /** Holds no floors: they go through the calls. */
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
    /** The same for a field of 64 bits. */
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
