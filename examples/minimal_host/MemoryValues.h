#pragma once

#include <platform/host/IHBXProperties.h>

#include <map>
#include <variant>

class IHBXFloor;

using MemoryValue = std::variant<std::monostate, int, double, QString, vks::CVec2<double>, vks::CRefPtr<vks::CCurve2d>,
                                 vks::CRefPtr<vks::CPolygon>>;

/** The named values of an element, or those of a draw object over the values of its element. Which names there are goes by
 *  the element type: the table in the source. */
class MemoryValues final : public IHBXProperties
{
public:
    /** @param below  where values come from that are not set here; null for an element */
    MemoryValues(qint64 type, const IHBXFloor &floor, const MemoryValues *below)
        : m_type(type), m_floor(floor), m_below(below)
    {}

    /** Sets a value as the kind of its property: throws HBXModelException where something would be lost. */
    void set(const std::wstring &name, const MemoryValue &value);
    /** As it is set here, whatever may stand below. */
    const MemoryValue &own(const std::wstring &name) const;
    void takeOver(const std::wstring &name, const MemoryValue &value) { m_values[name] = value; }
    void copyFrom(const MemoryValues &other) { m_values = other.m_values; }

    bool hasProperty(const std::wstring &name) const override;
    std::shared_ptr<IHBXProperty> &property(std::shared_ptr<IHBXProperty> &out, const std::wstring &name) override;
    bool isNull(const std::wstring &name) const override;
    int asInt(const QString &key) const override { return asInt(key.toStdWString()); }
    int asInt(const std::wstring &name) const override;
    double asDouble(const QString &key) const override { return asDouble(key.toStdWString()); }
    double asDouble(const std::wstring &name) const override;
    QString &asString(QString &out, const QString &key) const override { return asString(out, key.toStdWString()); }
    QString &asString(QString &out, const std::wstring &name) const override;
    vks::CVec2<double> &asPoint(vks::CVec2<double> &out, const std::wstring &name) const override;
    vks::CRefPtr<vks::CCurve2d> &asCurve(vks::CRefPtr<vks::CCurve2d> &out, const QString &key) const override
    {
        return asCurve(out, key.toStdWString());
    }
    vks::CRefPtr<vks::CCurve2d> &asCurve(vks::CRefPtr<vks::CCurve2d> &out, const std::wstring &name) const override;
    vks::CRefPtr<vks::CPolygon> &asPolygon(vks::CRefPtr<vks::CPolygon> &out, const std::wstring &name) const override;
    void setInt(const std::wstring &name, int value, bool) override { set(name, value); }
    void setDouble(const std::wstring &name, double value, bool) override { set(name, value); }
    void setString(const std::wstring &name, const QString &value, bool) override { set(name, value); }
    void setPoint(const std::wstring &name, const vks::CVec2<double> *value, bool) override;
    void setCurve(const std::wstring &name, const vks::CCurve2d *value, bool) override;
    void setPolygon(const std::wstring &name, const vks::CPolygon *value, bool) override;

private:
    const MemoryValue &find(const std::wstring &name) const;
    /** The value of one alternative, else its nothing. */
    template <typename T> T valueAs(const std::wstring &name) const;

    qint64 m_type;
    const IHBXFloor &m_floor;
    const MemoryValues *m_below;
    std::map<std::wstring, MemoryValue> m_values;
};
