#pragma once

#include "beam/BeamModelDataInfo.h"
#include "cli/Applied.h"
#include "cli/ReplyArrays.h"

#include <QJsonObject>
#include <QString>

#include <memory>
#include <vector>

class IHBXModel;

namespace orvcad {

/** The arrays of a reply of beams, in the order in which they are written into a project. */
const std::vector<ReplyArray> &beamArrays();

/** Looks through a reply of beams before it is written into a model, and says of each beam that the model would not take, or
 *  would take for something else, why not, and likewise of each chain. Nothing is changed. A beam goes on without those of
 *  its chains that are left out. What can only be told while a chain is written, gaps in the numbers of its segments, is
 *  not looked for. */
class BeamReplyCheck
{
public:
    struct Member
    {
        QString place; ///< Beam[3]
        std::shared_ptr<BeamModelDataInfo> beam;
        std::vector<int> chains; ///< positions in "EDOInfo" of the beam's chains
    };

    /** Throws CommandFailure naming file and place when the document is no reply of beams. */
    BeamReplyCheck(IHBXModel &model, const QJsonObject &reply, const QString &file);

    /** The beams that can be written, in the reply's order. */
    const std::vector<Member> &sound() const { return m_sound; }
    const std::vector<LeftOut> &leftOut() const { return m_leftOut; }
    int memberCount() const { return m_memberCount; }

private:
    void look(const QString &place, const QJsonValue &value, const ReplyArray &array);
    /** The chains that go on, whose positions the member gets.
     *  @param name  of the beam */
    QJsonArray soundChains(const QJsonArray &chains, const QString &name, Member &member);
    QString whyNot(const QJsonValue &value, const ReplyArray &array) const;
    QString whyNotElement(const QJsonObject &element, const ReplyArray &array) const;

    IHBXModel &m_model;
    std::vector<Member> m_sound;
    std::vector<LeftOut> m_leftOut;
    int m_memberCount = 0;
};

} // namespace orvcad
