#include "support/RecordingProperties.h"

#include "support/RecordingState.h"

#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXProperty.h"

namespace {

using State = RecordingHost::State;

/** Made for each asking, as the real one is. */
class RecordingProperty : public Recording<IHBXProperty>
{
public:
    RecordingProperty(State &state, std::shared_ptr<IHBXProperty> real) : Recording(state, *real), m_kept(real) {}
    bool hasValue() const override { return !givesFalse("hasValue") && m_real.hasValue(); }
    int intValue() const override { return asked("intValue").intValue(); }
    void revert() override
    {
        called("property.revert");
        m_real.revert();
    }
    void setInt(int value, bool flag) override
    {
        called("property.setInt", value, flag);
        m_real.setInt(value, flag);
    }
    void setString(const QString &value, bool flag) override
    {
        called("property.setString", quoted(value), flag);
        m_real.setString(value, flag);
    }

private:
    std::shared_ptr<IHBXProperty> m_kept;
};

class RecordingProperties : public Recording<IHBXProperties>
{
public:
    using Recording::Recording;
    bool hasProperty(const std::wstring &name) const override
    {
        return !givesFalse("hasProperty") && m_real.hasProperty(name);
    }
    std::shared_ptr<IHBXProperty> &property(std::shared_ptr<IHBXProperty> &out, const std::wstring &name) override
    {
        if (calledForNull("property", quoted(name)))
            return out = nullptr;
        if (m_real.property(out, name))
            out = std::make_shared<RecordingProperty>(m_state, out);
        return out;
    }
    bool isNull(const std::wstring &name) const override { return !givesFalse("isNull") && m_real.isNull(name); }
    int asInt(const QString &key) const override { return asked("asInt").asInt(key); }
    int asInt(const std::wstring &name) const override { return asked("asInt").asInt(name); }
    double asDouble(const QString &key) const override { return asked("asDouble").asDouble(key); }
    double asDouble(const std::wstring &name) const override { return asked("asDouble").asDouble(name); }
    QString &asString(QString &out, const QString &key) const override { return asked("asString").asString(out, key); }
    QString &asString(QString &out, const std::wstring &name) const override
    {
        return asked("asString").asString(out, name);
    }
    vks::CVec2<double> &asPoint(vks::CVec2<double> &out, const std::wstring &name) const override
    {
        return asked("asPoint").asPoint(out, name);
    }
    vks::CRefPtr<vks::CCurve2d> &asCurve(vks::CRefPtr<vks::CCurve2d> &out, const QString &key) const override
    {
        return givesNull("asCurve") ? (out = nullptr) : m_real.asCurve(out, key);
    }
    vks::CRefPtr<vks::CCurve2d> &asCurve(vks::CRefPtr<vks::CCurve2d> &out, const std::wstring &name) const override
    {
        return givesNull("asCurve") ? (out = nullptr) : m_real.asCurve(out, name);
    }
    vks::CRefPtr<vks::CPolygon> &asPolygon(vks::CRefPtr<vks::CPolygon> &out, const std::wstring &name) const override
    {
        return givesNull("asPolygon") ? (out = nullptr) : m_real.asPolygon(out, name);
    }
    void setInt(const std::wstring &name, int value, bool flag) override
    {
        called("setInt", quoted(name), value, flag);
        m_real.setInt(name, value, flag);
    }
    void setDouble(const std::wstring &name, double value, bool flag) override
    {
        called("setDouble", quoted(name), value, flag);
        m_real.setDouble(name, value, flag);
    }
    void setString(const std::wstring &name, const QString &value, bool flag) override
    {
        called("setString", quoted(name), quoted(value), flag);
        m_real.setString(name, value, flag);
    }
    void setPoint(const std::wstring &name, const vks::CVec2<double> *value, bool flag) override
    {
        called("setPoint", quoted(name), textOf(value), flag);
        m_real.setPoint(name, value, flag);
    }
    void setCurve(const std::wstring &name, const vks::CCurve2d *value, bool flag) override
    {
        called("setCurve", quoted(name), textOf(value), flag);
        m_real.setCurve(name, value, flag);
    }
    void setPolygon(const std::wstring &name, const vks::CPolygon *value, bool flag) override
    {
        called("setPolygon", quoted(name), textOf(value), flag);
        m_real.setPolygon(name, value, flag);
    }
};

} // namespace

IHBXProperties *recordingProperties(RecordingHost::State &state, IHBXProperties *real)
{
    return state.wrapped<RecordingProperties>(real);
}
