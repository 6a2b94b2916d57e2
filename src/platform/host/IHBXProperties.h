#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

#include <QString>

#include <memory>
#include <string>

class IHBXProperty;

/** The named values of an element or draw object.
 *
 *  A read of a name that the object lacks, or of a property without a value, gives 0, 0.0, the empty text, the origin or
 *  null, and never throws. A number is cut or written out where it is read as another kind. A write to a name that the
 *  object lacks does nothing; a write of a wrong kind converts where nothing is lost and throws HBXModelException
 *  otherwise. Null geometry clears the value. The flag of a write is the host's own. */
class ORVCADPLATFORM_EXPORT IHBXProperties
{
public:
    virtual ~IHBXProperties() = default;

    /** Whether the object knows the name, with a value or without. */
    virtual bool hasProperty(const std::wstring &name) const = 0;
    /** The property as an object of its own, null when the object lacks it. Fills and returns out. It may outlive
     *  neither the model nor the object that it belongs to. */
    virtual std::shared_ptr<IHBXProperty> &property(std::shared_ptr<IHBXProperty> &out, const std::wstring &name) = 0;
    /** True when the property holds no value, and for a name that the object lacks. */
    virtual bool isNull(const std::wstring &name) const = 0;
    /** The value as a whole number, by either form of the name. */
    virtual int asInt(const QString &key) const = 0;
    /** The same. */
    virtual int asInt(const std::wstring &name) const = 0;
    /** Of an elevation: millimetres, worked out against the object's floor. */
    virtual double asDouble(const QString &key) const = 0;
    /** The same. */
    virtual double asDouble(const std::wstring &name) const = 0;
    /** The value as text, by either form of the name. Fills and returns out. */
    virtual QString &asString(QString &out, const QString &key) const = 0;
    /** The same. */
    virtual QString &asString(QString &out, const std::wstring &name) const = 0;
    /** The value as a point, mm. Fills and returns out. */
    virtual vks::CVec2<double> &asPoint(vks::CVec2<double> &out, const std::wstring &name) const = 0;
    /** The stored geometry itself, to be read and not changed. */
    virtual vks::CRefPtr<vks::CCurve2d> &asCurve(vks::CRefPtr<vks::CCurve2d> &out, const QString &key) const = 0;
    /** The same. */
    virtual vks::CRefPtr<vks::CCurve2d> &asCurve(vks::CRefPtr<vks::CCurve2d> &out, const std::wstring &name) const = 0;
    /** The stored outline itself, to be read and not changed. */
    virtual vks::CRefPtr<vks::CPolygon> &asPolygon(vks::CRefPtr<vks::CPolygon> &out,
                                                   const std::wstring &name) const = 0;
    /** Writes a whole number. */
    virtual void setInt(const std::wstring &name, int value, bool flag) = 0;
    /** Writes a number; of an elevation metres. */
    virtual void setDouble(const std::wstring &name, double value, bool flag) = 0;
    /** Writes a text. */
    virtual void setString(const std::wstring &name, const QString &value, bool flag) = 0;
    /** Setters copy the geometry they get. */
    virtual void setPoint(const std::wstring &name, const vks::CVec2<double> *value, bool flag) = 0;
    /** Copies a curve; null clears. */
    virtual void setCurve(const std::wstring &name, const vks::CCurve2d *value, bool flag) = 0;
    /** Copies an outline; null clears. */
    virtual void setPolygon(const std::wstring &name, const vks::CPolygon *value, bool flag) = 0;
};
