#include "cli/SlabNewIdentities.h"

#include "cli/SlabArrays.h"
#include "slab/SlabKeys.h"

#include <QHash>
#include <QJsonArray>
#include <QUuid>

using namespace slab;

namespace orvcad {

namespace {

using Renamed = QHash<QUuid, QString>; // old identity, and the text of the new one

/** QJsonDocument reads no deeper than this. */
constexpr int kDeepest = 1024;

QJsonValue referring(const QJsonValue &value, const Renamed &renamed, int depth);

template <typename Container> Container referringIn(Container values, const Renamed &renamed, int depth)
{
    for (auto value = values.begin(); depth < kDeepest && value != values.end(); ++value)
        *value = referring(*value, renamed, depth + 1);
    return values;
}

/** The same value with the new identities in place of the old ones. */
QJsonValue referring(const QJsonValue &value, const Renamed &renamed, int depth)
{
    if (value.isObject())
        return referringIn(value.toObject(), renamed, depth);
    if (value.isArray())
        return referringIn(value.toArray(), renamed, depth);
    const QUuid named(value.toString());
    const auto found = named.isNull() ? renamed.end() : renamed.find(named);
    return found == renamed.end() ? value : QJsonValue(*found);
}

QJsonObject renewed(QJsonObject member, const Renamed &renamed, QSet<QUuid> &used)
{
    const QUuid old(member.value(key::recongnizedID).toString());
    member = referringIn(member, renamed, 0);
    member.insert(key::id, -1);
    if (old.isNull() || used.contains(old))
        member.insert(key::recongnizedID, QUuid::createUuid().toString());
    used.insert(old);
    return member;
}

Renamed newIdentities(const QJsonObject &model)
{
    Renamed renamed;
    for (const SlabArray &array : slabArrays())
        for (const QJsonValue member : model.value(array.key).toArray()) {
            const QUuid old(member.toObject().value(key::recongnizedID).toString());
            if (!old.isNull() && !renamed.contains(old))
                renamed.insert(old, QUuid::createUuid().toString());
        }
    return renamed;
}

QJsonObject renewedModel(QJsonObject model)
{
    const Renamed renamed = newIdentities(model);
    QSet<QUuid> used;
    for (const SlabArray &array : slabArrays()) {
        QJsonArray members = model.value(array.key).toArray();
        for (QJsonValueRef member : members)
            if (member.isObject())
                member = renewed(member.toObject(), renamed, used);
        if (model.value(array.key).isArray())
            model.insert(array.key, members);
    }
    return model;
}

} // namespace

QJsonObject withNewIdentities(const QJsonObject &document)
{
    if (!document.value(key::model).isObject())
        return renewedModel(document);
    QJsonObject renewedDocument = document;
    renewedDocument.insert(key::model, renewedModel(document.value(key::model).toObject()));
    return renewedDocument;
}

} // namespace orvcad
