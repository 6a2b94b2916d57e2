#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class IHBXService;

/** A host around another one: forwards every call and writes down those that look things up or change the model.
 *
 *  One line per call, in order: `createElement(4, 14, null, floor 1, 4, "", 0)`. Floors are named by code, elements and
 *  draw objects by their element's name. Reads of ids, names and geometry are forwarded and not written down. Each call,
 *  reads too, can be answered in the host's place. */
class RecordingHost
{
public:
    explicit RecordingHost(IHBXService &host);
    ~RecordingHost();
    RecordingHost(const RecordingHost &) = delete;
    RecordingHost &operator=(const RecordingHost &) = delete;

    IHBXService *service() const;
    const QStringList &calls() const;
    /** Runs before a call is forwarded, with its line; what it throws reaches the caller in the host's place. */
    void beforeCall(std::function<void(const QString &)> hook);

    /** Lines of calls cost time; without them only what answerInstead was given hears of a call. */
    void keepCalls(bool keep);

    /** What the interface lets a call give in place of its answer. */
    enum class Nothing { None, Null, False };
    /** True when the call gives nothing and is not forwarded. */
    using Interception = std::function<bool(const char *operation, Nothing allowed)>;
    /** Runs before every call, reads too, and before a line is kept; what it throws reaches the caller in the host's place.
     *  Meant: reads of the region and floor of an element or draw object may give null, since no interface says that they
     *  do not. */
    void answerInstead(Interception interception);

    /** Keys of the brackets that are open, the innermost last. One is closed as soon as its end is asked for. */
    const std::vector<std::string> &openBrackets() const;
    /** Whether each bracket was closed by its own key, from the innermost outwards. */
    bool bracketsNest() const;

    struct State;

private:
    std::unique_ptr<State> m_state;
};
