#include "cli/SlabReadBack.h"

#include "cli/ArrivedValues.h"
#include "cli/SlabExport.h"
#include "slab/SlabKeys.h"

#include <QJsonArray>

#include <cmath>

using namespace slab;

namespace orvcad {

namespace {

/** Keys of what was not asked of the host. */
const QStringList kNotAsked{key::id,        key::recongnizedID, key::name,     key::refPointX,
                            key::refPointY, key::refPointValid, key::rowNumber};

QStringList askedKeys(const SlabArray &array)
{
    QStringList keys = array.pattern().keys();
    for (const QString &key : kNotAsked)
        keys.removeOne(key);
    return keys;
}

/** A member whose direction is that of the other one, where they run along one another: it is a direction that counts,
 *  neither its length nor its sign. */
QJsonObject alongside(QJsonObject sent, const QJsonObject &arrived)
{
    constexpr double kSameDirection = 1e-6; // sine of the angle between
    const auto part = [](const QJsonObject &bar, QLatin1String key) { return bar.value(key).toDouble(); };
    const double x = part(sent, key::directionX);
    const double y = part(sent, key::directionY);
    const double across = x * part(arrived, key::directionY) - y * part(arrived, key::directionX);
    if (!sent.contains(key::directionX) || std::fabs(across) > kSameDirection * std::hypot(x, y))
        return sent;
    for (const QLatin1String key : {key::directionX, key::directionY})
        sent.insert(key, arrived.value(key));
    return sent;
}

} // namespace

std::vector<LeftOut> changedInHost(const hbx::embedded::HBXProject &project, const IHBXFloor &floor,
                                   const SlabsMade &made)
{
    std::vector<LeftOut> changed;
    const QJsonObject document = slabDocument(project, floor, SlabParts(SlabParts::kEverything));
    for (const SlabArray &array : slabArrays()) {
        const QStringList keys = array.isMade() ? askedKeys(array) : QStringList();
        for (const QJsonValue value : document.value(array.key).toArray()) {
            const auto member = made.find(value[key::id].toInt());
            if (member == made.end() || member->second->array != &array)
                continue;
            const QJsonObject arrived = value.toObject();
            leaveOutChanged(alongside(member->second->json, arrived), arrived, keys, member->second->place,
                            member->second->name, changed);
        }
    }
    return changed;
}

} // namespace orvcad
