#pragma once

#include <cstddef>
#include <cstring>

/** Places of virtual operations in the table of their class, which modules that were built against it call them by. */
namespace slots {

constexpr std::ptrdiff_t kFirstBehindDestructor = 2; // which has two slots

/** Read from a member pointer as g++ and clang make it: one more than the offset in bytes. */
template <typename Member> std::ptrdiff_t slotOf(Member member)
{
    std::ptrdiff_t value = 0;
    std::memcpy(&value, &member, sizeof value);
    return (value - 1) / static_cast<std::ptrdiff_t>(sizeof(void *));
}

} // namespace slots
