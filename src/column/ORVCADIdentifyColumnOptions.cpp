#include "column/ORVCADIdentifyColumnOptions.h"

#include <algorithm>

QStringList ORVCADIdentifyColumnOptions::getColumnCodes() const
{
    QStringList codes{KJZMark, AZMark, DZMark, KZZMark, ZHZMark, GZZMark};
    std::sort(codes.begin(), codes.end(), [](const QString &a, const QString &b) { return a.size() > b.size(); });
    return codes;
}
