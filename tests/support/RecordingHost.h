#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class IHBXService;

/** A host around another one: forwards every call and writes down those that look things up or change the model.
 *
 *  One line per call, in order: `createElement(4, 14, null, floor 1, 4, "", 0)`. Floors are named by code, elements and
 *  draw objects by their element's name. Reads of ids, names and geometry are forwarded and not written down. */
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

    struct State;

private:
    std::unique_ptr<State> m_state;
};
