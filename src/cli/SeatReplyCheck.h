#pragma once

#include "cli/ArrayReplyCheck.h"

#include <memory>

class ORVBeamSDCSeatInfoModel;

namespace orvcad {

/** The arrays of the seats that can be made anew: foundations before piles before tie beams. */
const std::vector<ReplyArray> &seatArrays();

/** A seat of a document that can be written. */
struct CheckedSeat
{
    QString place; ///< etPile[3]
    std::shared_ptr<ORVBeamSDCSeatInfoModel> seat;
    QJsonObject json; ///< of which it is made
};

/** Looks through a document of seats before it is written into a model, and says of each seat that the model would not take,
 *  or would take for something else, why not. Nothing is changed. */
class SeatReplyCheck : public ArrayReplyCheck<CheckedSeat>
{
public:
    using Member = CheckedSeat;

    /** Throws CommandFailure naming file and place when the document holds no seats. */
    SeatReplyCheck(IHBXModel &model, const QJsonObject &reply, const QString &file);

private:
    void look(const QString &place, const QJsonValue &value, const ReplyArray &array);
    QString whyNot(const QJsonValue &value, const ReplyArray &array) const;
};

} // namespace orvcad
