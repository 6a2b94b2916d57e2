#include "support/FailingHost.h"

#include "platform/host/HBXModelException.h"

#include <new>
#include <numeric>
#include <stdexcept>

namespace {

using Failure = FailingHost::Failure;
using Nothing = RecordingHost::Nothing;

/** What a call must be allowed to give if it is to fail in that way; None for exceptions, which need no leave. */
Nothing needed(Failure failure)
{
    if (failure == Failure::Null)
        return Nothing::Null;
    return failure == Failure::False ? Nothing::False : Nothing::None;
}

void throwIfException(Failure failure)
{
    if (failure == Failure::HostException)
        throw HBXModelException(QStringLiteral("refused on command"));
    if (failure == Failure::RuntimeError)
        throw std::runtime_error("failed on command");
    if (failure == Failure::OutOfMemory)
        throw std::bad_alloc();
}

} // namespace

FailingHost::FailingHost(IHBXService &host) : m_host(host)
{
    m_host.keepCalls(false);
    m_host.answerInstead([this](const char *operation, Nothing allowed) { return answer(operation, allowed); });
}

std::size_t FailingHost::countOf(Failure failure) const
{
    const Nothing kind = needed(failure);
    return kind == Nothing::None ? std::accumulate(m_counts.begin(), m_counts.end(), std::size_t{0})
                                 : m_counts[static_cast<std::size_t>(kind)];
}

void FailingHost::failAt(std::size_t number, Failure failure, Lasting lasting)
{
    m_counts = {};
    m_failed.clear();
    m_number = number;
    m_failure = failure;
    m_lasting = lasting;
}

bool FailingHost::answer(const char *operation, Nothing allowed)
{
    ++m_counts[static_cast<std::size_t>(allowed)];
    const Nothing kind = needed(m_failure);
    if (m_number == 0 || (kind != Nothing::None && kind != allowed))
        return false;
    const std::size_t number = countOf(m_failure);
    const bool isReached = m_lasting == Lasting::Once ? number == m_number : number >= m_number;
    if (!isReached)
        return false;
    m_failed.emplace_back(operation);
    throwIfException(m_failure);
    return true;
}
