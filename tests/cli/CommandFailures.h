#pragma once

#include "cli/Command.h"

#include <gtest/gtest.h>

namespace clitest {

/** How an action fails, as its message; empty, and a failed test, when it does not. */
template <typename ActionOfTest>
std::string failureOf(const ActionOfTest &action, orvcad::ExitCode code = orvcad::kBadInput)
{
    try {
        action();
    } catch (const orvcad::CommandFailure &failure) {
        EXPECT_EQ(failure.code(), code) << failure.what();
        return failure.what();
    }
    ADD_FAILURE() << "nothing was thrown";
    return {};
}

} // namespace clitest
