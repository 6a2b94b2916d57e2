#pragma once

#include "cli/Applied.h"
#include "cli/ReplyArrays.h"
#include "cli/UnreadKeys.h"

#include <QJsonObject>
#include <QString>

#include <vector>

class IHBXModel;

namespace orvcad {

/** What checks of replies whose members stand in arrays by type have in common. Nothing is changed in the model.
 *  @tparam Member  a member that can be written: has "place", such as Beam[3] */
template <typename Member> class ArrayReplyCheck
{
public:
    /** The members that can be written, array by array, in the reply's order. */
    const std::vector<Member> &sound() const { return m_sound; }
    const std::vector<LeftOut> &leftOut() const { return m_leftOut; }
    int memberCount() const { return m_memberCount; }

protected:
    explicit ArrayReplyCheck(IHBXModel &model) : m_model(model) {}

    /** Gives each member to look, as forEachMember() does, and tells the keys beside the arrays. */
    void lookThrough(const QJsonObject &reply, const QString &file, const std::vector<ReplyArray> &arrays,
                     const QString &what, const TakeMember &look)
    {
        forEachMember(reply, file, arrays, what,
                      [&](const ReplyArray &array, const QString &place, const QJsonValue &member) {
                          ++m_memberCount;
                          look(array, place, member);
                      });
        QStringList known;
        for (const ReplyArray &array : arrays)
            known.append(array.key);
        leaveOutUnread(reply, known, {}, {}, m_leftOut);
    }

    void leaveOut(const QString &place, const QString &name, const QString &reason)
    {
        m_leftOut.push_back({place, name, reason});
    }
    /** A part of a member that is written without it. */
    void leaveOutPart(const QString &place, const QString &name, const QString &reason)
    {
        m_leftOut.push_back({place, name, reason, false});
    }

    IHBXModel &m_model;
    std::vector<Member> m_sound;
    std::vector<LeftOut> m_leftOut;

private:
    int m_memberCount = 0;
};

} // namespace orvcad
