#pragma once

#include <QtGlobal>

#include <cstddef>
#include <vector>

namespace vks {

/** Addresses of rows in a table, in the order of the rows. Only the table that gave an address knows what it means. */
class CFileAddressList
{
public:
    /** A row, by whatever the table knows it by. */
    using Address = qint64;

    /** Appends; the same address may stand twice. */
    void Add(Address address) { m_addresses.push_back(address); }
    /** Leaves the list empty. */
    void Clear() { m_addresses.clear(); }
    /** Number of rows. */
    int Count() const { return static_cast<int>(m_addresses.size()); }
    /** For a position from 0 up to Count. */
    Address At(int position) const { return m_addresses[static_cast<std::size_t>(position)]; }
    /** For loops over the addresses, in order. */
    auto begin() const { return m_addresses.begin(); }
    /** Behind the last address. */
    auto end() const { return m_addresses.end(); }

private:
    std::vector<Address> m_addresses;
};

} // namespace vks
