#pragma once

#include "beam/BeamModelDataInfo.h"
#include "cli/ArrayReplyCheck.h"

#include <QHash>
#include <QJsonArray>
#include <QStringList>

#include <memory>

namespace orvcad {

/** The arrays of a reply of beams, in the order in which they are written into a project. */
const std::vector<ReplyArray> &beamArrays();

/** A beam of a reply that can be written. */
struct CheckedBeam
{
    QString place; ///< Beam[3]
    std::shared_ptr<BeamModelDataInfo> beam;
    std::vector<int> chains; ///< positions in "EDOInfo" of the beam's chains
};

/** Looks through a reply of beams before it is written into a model, and says of each beam that the model would not take, or
 *  would take for something else, why not, and likewise of each chain. Nothing is changed. A beam goes on without those of
 *  its chains that are left out. What can only be told while a chain is written, gaps in the numbers of its segments, is
 *  not looked for. */
class BeamReplyCheck : public ArrayReplyCheck<CheckedBeam>
{
public:
    using Member = CheckedBeam;

    /** Throws CommandFailure naming file and place when the document is no reply of beams. */
    BeamReplyCheck(IHBXModel &model, const QJsonObject &reply, const QString &file);

private:
    void look(const QString &place, const QJsonValue &value, const ReplyArray &array);
    /** The chains that go on, whose positions the member gets.
     *  @param name  of the beam */
    QJsonArray soundChains(const QJsonArray &chains, const QString &name, Member &member);
    /** Tells when a beam has another element than one of its name before it: the host has one element for both. */
    void noteNamesake(const QString &place, QJsonObject element);
    /** Tells what of a chain that goes on does not arrive. */
    void lookForParts(const QJsonObject &chain, const QString &place, const QString &name);
    QString whyNot(const QJsonValue &value, const ReplyArray &array) const;
    QString whyNotElement(const QJsonObject &element, const ReplyArray &array) const;

    struct Element
    {
        QString place; ///< of its beam
        QJsonObject element;
    };
    QHash<QStringList, Element> m_elements; // by region, floor, name and type
};

} // namespace orvcad
