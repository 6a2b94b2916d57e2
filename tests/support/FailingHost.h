#pragma once

#include "support/RecordingHost.h"

#include <QByteArray>

#include <array>
#include <vector>

/** A host around another one that fails on command, in one call or in each from there on. Calls of all interfaces can
 *  fail, reads too. Without a command nothing fails. */
class FailingHost
{
public:
    enum class Failure {
        Null,          ///< where the interface lets a call give null
        False,         ///< where a call gives true or false
        HostException, ///< HBXModelException
        RuntimeError,  ///< std::runtime_error
        OutOfMemory    ///< std::bad_alloc
    };
    enum class Lasting { Once, FromThenOn };

    explicit FailingHost(IHBXService &host);

    IHBXService *service() const { return m_host.service(); }
    const RecordingHost &recording() const { return m_host; }

    /** How many calls since the host was made or last told to fail could fail in that way: all of them can throw. */
    std::size_t countOf(Failure failure) const;
    /** Counts anew: of the calls that can fail in that way the one of that number fails, counted from 1. 0: none does. */
    void failAt(std::size_t number, Failure failure, Lasting lasting = Lasting::Once);
    /** Operations that failed since then, in order. */
    const std::vector<QByteArray> &failed() const { return m_failed; }

private:
    bool answer(const char *operation, RecordingHost::Nothing allowed);

    RecordingHost m_host;
    std::array<std::size_t, 3> m_counts = {}; ///< by what the calls may give in place of their answer
    std::size_t m_number = 0;
    Failure m_failure = Failure::Null;
    Lasting m_lasting = Lasting::Once;
    std::vector<QByteArray> m_failed;
};
