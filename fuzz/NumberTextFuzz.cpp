// Number text against Qt's own: the same characters, the same values, the same verdicts.

#include "encoding/NumberText.h"
#include "support/FuzzInput.h"

#include <cmath>
#include <cstring>

namespace {

void write(double value)
{
    QString written;
    encoding::appendNumber(written, value);
    fuzz::require(written == QString("%1").arg(value, 0, 'g', -1, QLatin1Char(' ')), "writes as QString::arg does");
}

void read(const QString &text)
{
    bool ours = false;
    bool theirs = false;
    const double value = encoding::readNumber(text, &ours);
    const double expected = text.toDouble(&theirs);
    fuzz::require(ours == theirs, "the verdict is that of QString::toDouble");
    fuzz::require(value == expected || (std::isnan(value) && std::isnan(expected)), "and so is the value");
    fuzz::require(encoding::readInt(text) == text.toInt(), "reads as QString::toInt does");
    fuzz::require(encoding::readLongLong(text) == text.toLongLong(), "reads as QString::toLongLong does");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    double value = 0.0;
    if (size >= sizeof value) {
        std::memcpy(&value, data, sizeof value);
        write(value);
    }
    read(fuzz::textOf(data, size));
    return 0;
}
