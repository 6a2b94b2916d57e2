#pragma once

#include "cli/Applied.h"
#include "cli/ReplyArrays.h"

#include <QJsonObject>
#include <QString>

#include <memory>
#include <vector>

class IHBXModel;
class ORVBeamSDCSeatInfoModel;

namespace orvcad {

/** The arrays of the seats that can be made anew: foundations before piles before tie beams. */
const std::vector<ReplyArray> &seatArrays();

/** Looks through a document of seats before it is written into a model, and says of each seat that the model would not take,
 *  or would take for something else, why not. Nothing is changed. */
class SeatReplyCheck
{
public:
    struct Member
    {
        QString place; ///< etPile[3]
        std::shared_ptr<ORVBeamSDCSeatInfoModel> seat;
    };

    /** Throws CommandFailure naming file and place when the document holds no seats. */
    SeatReplyCheck(IHBXModel &model, const QJsonObject &reply, const QString &file);

    /** The seats that can be written, kind by kind. */
    const std::vector<Member> &sound() const { return m_sound; }
    const std::vector<LeftOut> &leftOut() const { return m_leftOut; }
    int memberCount() const { return m_memberCount; }

private:
    void look(const QString &place, const QJsonValue &value, const ReplyArray &array);
    QString whyNot(const QJsonValue &value, const ReplyArray &array) const;

    IHBXModel &m_model;
    std::vector<Member> m_sound;
    std::vector<LeftOut> m_leftOut;
    int m_memberCount = 0;
};

} // namespace orvcad
