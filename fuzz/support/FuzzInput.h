#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <cstddef>
#include <cstdint>

/** What a fuzzer gives to a target, in the forms that readers take, and how a target says that something is wrong. */
namespace fuzz {

/** A copy, so that reading beyond the end is seen. */
inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<int>(size)};
}

/** UTF-8; bytes that are none become replacement characters. */
inline QString textOf(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
}

/** The object of a JSON text; empty for any other text. */
QJsonObject objectOf(const std::uint8_t *data, std::size_t size);

/** Ends the process with a message where a promise does not hold, so that the fuzzer keeps the input. */
void require(bool holds, const char *promise);

} // namespace fuzz
