#pragma once

#include "cli/Applied.h"
#include "cli/WallKind.h"

#include <QJsonObject>
#include <QList>
#include <QString>

#include <vector>

class IHBXElement;
class IHBXFloor;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** The walls that floors of a project have, as a reply that can be written into another one. */
class WallReply
{
public:
    /** Elements stand in the host's order, and so do the pieces of one. */
    WallReply(const hbx::embedded::HBXProject &project, const WallKind &kind, const std::vector<IHBXFloor *> &floors);

    const QJsonObject &document() const { return m_document; }
    /** Elements and pieces that the document lacks or cannot hold whole. */
    const std::vector<LeftOut> &leftOut() const { return m_leftOut; }
    int pieces() const { return m_pieces; }

    /** "5 brick walls in 57 pieces of 1 floor". */
    QString headline() const;
    /** The same and what was left out. */
    QString text() const;
    QJsonObject toJson() const;

private:
    template <typename Output, typename Record> void collect(const QList<IHBXElement *> &elements);
    template <typename Output, typename Record> void add(Output &output, IHBXElement &element);

    const WallKind &m_kind;
    int m_floors = 0;
    int m_elements = 0;
    int m_pieces = 0;
    int m_withoutPieces = 0; ///< elements that are not in the document, since no wall is placed of them
    QJsonObject m_document;
    std::vector<LeftOut> m_leftOut;
};

} // namespace orvcad
