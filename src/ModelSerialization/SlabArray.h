#pragma once

#include "encoding/RecordFields.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "slab/SlabKeys.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1String>
#include <QUuid>

#include <functional>
#include <vector>

namespace slab {

/** One array of the model document: how its elements are listed and made, and the rows of their fields.
 *
 *  @tparam Add  called with the model and the identity that stands in the element's object */
template <typename Element, typename Add, typename Rows> struct SlabArray
{
    using Model = ORVCADBoardLocalModel_Sample;
    using List = std::vector<const Element *> (Model::*)() const;

    QLatin1String key;
    List list;
    Add add;
    Rows rows;

    void write(const Model &model, QJsonObject &json) const
    {
        QJsonArray array;
        for (const Element *element : (model.*list)())
            array.append(encoding::writtenFields(*element, rows));
        json.insert(key, array);
    }
    void read(const QJsonObject &json, Model &model) const
    {
        const QJsonArray array = json.value(key).toArray();
        for (const QJsonValue value : array) {
            const QJsonObject object = value.toObject();
            const QUuid identity(object.value(key::recongnizedID).toString());
            encoding::readFields(object, rows, *std::invoke(add, model, identity));
        }
    }
};

template <typename Element, typename Add, typename Rows>
constexpr auto arrayOf(QLatin1String key, std::vector<const Element *> (ORVCADBoardLocalModel_Sample::*list)() const,
                       Add add, Rows rows)
{
    return SlabArray<Element, Add, Rows>{key, list, add, rows};
}

/** Arrays that are written and read together, and the number that asks for them. */
struct SlabPart
{
    int value;
    void (*write)(const ORVCADBoardLocalModel_Sample &, QJsonObject &);
    void (*read)(const QJsonObject &, ORVCADBoardLocalModel_Sample &);
};

template <const auto &...arrays> void writeArrays(const ORVCADBoardLocalModel_Sample &model, QJsonObject &json)
{
    (arrays.write(model, json), ...);
}
template <const auto &...arrays> void readArrays(const QJsonObject &json, ORVCADBoardLocalModel_Sample &model)
{
    (arrays.read(json, model), ...);
}
template <const auto &...arrays> constexpr SlabPart partOf(int value)
{
    return {value, &writeArrays<arrays...>, &readArrays<arrays...>};
}

} // namespace slab
