#pragma once

#include "ModelSerialization/HostBarRows.h"
#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <QList>
#include <QSet>
#include <QUuid>

class IHBXElementDrawObj;
class IHBXFloor;

/** Walks the draw objects of a floor and makes an element of the local model for each. */
struct ORVCADBoardLocalModelTransformHBXService_Sample::FromHost
{
    using Local = ORVCADBoardLocalModel_Sample;
    using Objects = QList<IHBXElementDrawObj *>;
    template <typename Element> using Creator = Element *(Local::*)(const QUuid &);

    IHBXModel &model;
    IHBXFloor &floor;
    Local &local;
    bool tellsIds; ///< whether slabs, holes and bars get the ids of their draw objects

    /** @param parts  compared as a whole: 126 is everything, a number that names no part alone the supports and nets */
    void read(int parts) const;

private:
    struct Step;
    enum class Ids { Told, Never };

    void readRafts() const;
    void readBoards() const;
    void readRaftBars() const;
    void readBoardBars() const;
    void readSupports() const;
    void readAxisNets() const;

    Objects objectsOf(const QSet<qint64> &types) const;
    template <typename Element> Element &made(Creator<Element> creator, IHBXElementDrawObj &object, Ids ids) const;
    template <typename Element>
    void readAll(const QSet<qint64> &types, Creator<Element> creator, Ids ids = Ids::Told) const;
    template <typename Bar> void readBars(const std::vector<slabhost::NumberedBar> &bars, Creator<Bar> creator) const;
    template <typename Bar, typename Straddling>
    void readAreaBars(const QSet<qint64> &types, Creator<Bar> creator, Creator<Straddling> straddlingCreator) const;
};
