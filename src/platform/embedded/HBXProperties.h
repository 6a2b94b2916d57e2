#pragma once

#include "platform/embedded/HBXProjectRecords.h"
#include "platform/embedded/HBXPropertyCatalogue.h"
#include "platform/host/IHBXProperties.h"

class IHBXFloor;

namespace hbx::embedded {

/** What a property set asks of the object that it belongs to, and tells it. */
class HBXPropertyHolder
{
public:
    /** Floor that elevations are worked out against; never null. */
    virtual const IHBXFloor *elevationFloor() const = 0;
    virtual void propertyWritten(const PropertyEntry &entry) = 0;
    /** A write is about to throw. */
    virtual void propertyRefused(const QString &reason) = 0;

protected:
    ~HBXPropertyHolder() = default;
};

/** Values of an element or draw object: a short list of those that were given, in that order, each under its place in
 *  the catalogue. A value is the object's own, else that of the base set (a draw object's element), else the
 *  catalogue's. An own value may be none: it then hides the others. */
class HBXProperties final : public IHBXProperties
{
public:
    /** @param known  properties of the type, null for none
     *  @param base   set that is read where there is no own value; null for an element */
    HBXProperties(const TypeProperties *known, HBXPropertyHolder &holder, const HBXProperties *base);

    bool hasProperty(const std::wstring &name) const override;
    std::shared_ptr<IHBXProperty> &property(std::shared_ptr<IHBXProperty> &out, const std::wstring &name) override;
    bool isNull(const std::wstring &name) const override;
    int asInt(const QString &key) const override;
    int asInt(const std::wstring &name) const override;
    double asDouble(const QString &key) const override;
    double asDouble(const std::wstring &name) const override;
    QString &asString(QString &out, const QString &key) const override;
    QString &asString(QString &out, const std::wstring &name) const override;
    vks::CVec2<double> &asPoint(vks::CVec2<double> &out, const std::wstring &name) const override;
    vks::CRefPtr<vks::CCurve2d> &asCurve(vks::CRefPtr<vks::CCurve2d> &out, const QString &key) const override;
    vks::CRefPtr<vks::CCurve2d> &asCurve(vks::CRefPtr<vks::CCurve2d> &out, const std::wstring &name) const override;
    vks::CRefPtr<vks::CPolygon> &asPolygon(vks::CRefPtr<vks::CPolygon> &out, const std::wstring &name) const override;
    void setInt(const std::wstring &name, int value, bool flag) override;
    void setDouble(const std::wstring &name, double value, bool flag) override;
    void setString(const std::wstring &name, const QString &value, bool flag) override;
    void setPoint(const std::wstring &name, const vks::CVec2<double> *value, bool flag) override;
    void setCurve(const std::wstring &name, const vks::CCurve2d *value, bool flag) override;
    void setPolygon(const std::wstring &name, const vks::CPolygon *value, bool flag) override;

    // By entry, for the objects of this folder.
    const TypeProperties *known() const { return m_known; }
    /** Null where the type has no such property. */
    template <typename View> const PropertyEntry *find(View name) const
    {
        return m_known ? m_known->find(name, m_base != nullptr) : nullptr;
    }
    /** What reads give: own, base or catalogue. */
    PropertyValue valueOf(const PropertyEntry &entry) const;
    /** Null when the object has no value of its own; an own value may be none. */
    const PropertyValue *ownValue(const PropertyEntry &entry) const;
    int intValue(const PropertyEntry &entry) const;
    double doubleValue(const PropertyEntry &entry) const;
    QString textValue(const PropertyEntry &entry) const;
    /** Throws HBXModelException where the value cannot be kept. */
    void write(const PropertyEntry &entry, const PropertyValue &value);
    /** Puts back what ownValue gave; nothing takes the own value away. */
    void restore(const PropertyEntry &entry, const std::optional<PropertyValue> &value);

    /** Own values by name, in the order in which they were given. */
    PropertyRecords records() const;
    /** Replaces the own values and tells nobody; values that cannot be kept are left out. */
    void setRecords(const PropertyRecords &records);

private:
    using OwnValue = std::pair<int, PropertyValue>; ///< index of the entry, value

    /** Place among the own values; their number where there is none. */
    std::size_t placeOf(const PropertyEntry &entry) const;
    void keep(const PropertyEntry &entry, PropertyValue value);
    const PropertyValue *givenValue(const PropertyEntry &entry) const;
    void writeNamed(const std::wstring &name, const PropertyValue &value);
    template <typename Result, typename Name>
    Result readAs(Result (HBXProperties::*read)(const PropertyEntry &) const, const Name &name) const;
    template <typename T, typename Name> T &readOr(T &out, const Name &name, const T &nothing) const;

    const TypeProperties *m_known;
    HBXPropertyHolder &m_holder;
    const HBXProperties *m_base;
    std::vector<OwnValue> m_own;
};

} // namespace hbx::embedded
