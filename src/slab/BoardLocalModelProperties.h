#pragma once

#include "foundation/Object_AI.h"
#include "slab/TruncatedNumber.h"

#include <QString>
#include <QtGlobal>

#include <type_traits>

/** The properties of the elements of a slab model: their names, and how they are bound to fields. */
namespace slab {

namespace property {

inline QString name() { return QStringLiteral("名称"); }
inline QString startTopElev() { return QStringLiteral("起点顶标高"); }
inline QString endTopElev() { return QStringLiteral("终点顶标高"); }
inline QString supportWidth() { return QStringLiteral("支座宽度"); }
inline QString thickness() { return QStringLiteral("厚度"); }
inline QString topElev() { return QStringLiteral("顶标高"); }
inline QString boardType() { return QStringLiteral("类型"); }
inline QString edgeBars() { return QStringLiteral("板边加筋"); }
inline QString direction() { return QStringLiteral("方位"); }
inline QString barInfo() { return QStringLiteral("钢筋规格"); }
inline QString rowNumber() { return QStringLiteral("钢筋排数"); }

} // namespace property

/** The value as a field of type T holds it: Any::to. A number for a 32-bit field loses its fraction, and is 0 where it
 *  does not fit. */
template <typename T> T fieldValue(const Any &value)
{
    if constexpr (std::is_same_v<T, qint32>) {
        return truncated(value.to<double>());
    } else {
        return value.to<T>();
    }
}

/** Makes a property read and write a field of the object, in place of whatever the property was bound to before. */
template <typename T> void bindProperty(cv::Object_AI &object, const QString &name, T &field)
{
    object.setProperty(
        name, [&field] { return Any(field); }, [&field](const Any &value) { field = fieldValue<T>(value); });
}

} // namespace slab
