#pragma once

#include <QSet>

#include <string>

class IHBXModel;

namespace orvcad {

/** Removes the elements of those types from those floors, with all that is placed of them, between the brackets of one batch
 *  of that key.
 *  @return how many elements there were */
int removeElements(IHBXModel &model, const QSet<qint64> &floorIds, const QSet<qint64> &types, const std::string &batch);

} // namespace orvcad
