#pragma once

#include "support/RecordingHost.h"

#include "platform/geometry/CGeometry.h"
#include "platform/host/IHBXService.h"

#include <any>
#include <map>
#include <typeindex>

/** What the wrappers of one recording host share: the lines, and one wrapper per wrapped object. */
struct RecordingHost::State
{
    std::unique_ptr<IHBXService> service;
    QStringList calls;
    bool keepsCalls = true;
    std::function<void(const QString &)> beforeCall;
    Interception interception;
    std::vector<std::string> openBrackets;
    bool bracketsNest = true;

    void opened(const std::string &key) { openBrackets.push_back(key); }
    void closing(const std::string &key)
    {
        bracketsNest = bracketsNest && !openBrackets.empty() && openBrackets.back() == key;
        if (!openBrackets.empty())
            openBrackets.pop_back();
    }

    bool givesNothing(const char *operation, Nothing allowed) const
    {
        return interception && interception(operation, allowed);
    }

    /** The wrapper of an object, made at the first asking; null for null. */
    template <typename Wrapper, typename Real> Wrapper *wrapped(Real *real)
    {
        if (!real)
            return nullptr;
        std::shared_ptr<void> &kept = m_wrappers[{real, typeid(Wrapper)}];
        if (!kept)
            kept = std::make_shared<Wrapper>(*this, *real);
        return static_cast<Wrapper *>(kept.get());
    }

    void record(const QString &call)
    {
        if (beforeCall)
            beforeCall(call);
        calls.append(call);
    }

private:
    std::map<std::pair<void *, std::type_index>, std::shared_ptr<void>> m_wrappers;
};

/** Base of the wrappers: keeps the real object and writes calls down. */
template <typename Interface> class Recording : public Interface
{
public:
    Recording(RecordingHost::State &state, Interface &real) : m_state(state), m_real(real) {}

    /** The object behind a wrapper; any other object is itself. */
    static Interface *realOf(Interface *object)
    {
        auto *wrapper = dynamic_cast<Recording *>(object);
        return wrapper ? &wrapper->m_real : object;
    }

protected:
    using Nothing = RecordingHost::Nothing;

    /** The real object, for a call that is not written down. */
    Interface &asked(const char *operation) const
    {
        m_state.givesNothing(operation, Nothing::None);
        return m_real;
    }
    /** True when the call gives nothing in place of what the real object would give. */
    bool givesNull(const char *operation) const { return m_state.givesNothing(operation, Nothing::Null); }
    bool givesFalse(const char *operation) const { return m_state.givesNothing(operation, Nothing::False); }

    // The same for calls that are written down.
    template <typename... Arguments> void called(const char *operation, const Arguments &...arguments) const
    {
        m_state.givesNothing(operation, Nothing::None);
        write(operation, arguments...);
    }
    template <typename... Arguments> bool calledForNull(const char *operation, const Arguments &...arguments) const
    {
        return givesNull(operation) || (write(operation, arguments...), false);
    }
    template <typename... Arguments> bool calledForFalse(const char *operation, const Arguments &...arguments) const
    {
        return givesFalse(operation) || (write(operation, arguments...), false);
    }

    RecordingHost::State &m_state;
    Interface &m_real;

private:
    template <typename... Arguments> void write(const char *operation, const Arguments &...arguments) const
    {
        if (m_state.keepsCalls)
            m_state.record(QString::fromLatin1(operation) + '(' +
                           QStringList{text(arguments)...}.join(QStringLiteral(", ")) + ')');
    }

    static QString text(const QString &argument) { return argument; }
    static QString text(bool argument) { return argument ? QStringLiteral("true") : QStringLiteral("false"); }
    static QString text(int argument) { return QString::number(argument); }
    static QString text(qint64 argument) { return QString::number(argument); }
    static QString text(double argument) { return QString::number(argument, 'g', 15); }
};

inline QString quoted(const QString &text) { return '"' + text + '"'; }

inline QString quoted(const std::wstring &text) { return quoted(QString::fromStdWString(text)); }

inline QString textOf(const vks::CVec2<double> *point)
{
    return point ? QStringLiteral("(%1, %2)").arg(point->x, 0, 'g', 15).arg(point->y, 0, 'g', 15)
                 : QStringLiteral("null");
}

inline QString textOf(const vks::CGeometry *geometry)
{
    return geometry ? QString::fromStdString(geometry->ToText()) : QStringLiteral("null");
}
