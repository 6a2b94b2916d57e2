#pragma once

#include "cli/Applied.h"
#include "cli/SlabArrays.h"

#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QUuid>

#include <vector>

namespace orvcad {

/** The model document of a file that holds one, alone or in an IO document. Throws CommandFailure naming file and place
 *  when it holds none. */
QJsonObject slabModelOf(const QJsonObject &document, const QString &file);

/** Looks through a reply of slabs before it is written into a model, and says of each member that would be taken for
 *  something else why not. Reading takes 0, false or nothing for what is missing or mistyped; here only what means as little
 *  as that may be missing. What the host thinks of a member is not asked. */
class SlabReplyCheck
{
public:
    struct Member
    {
        const SlabArray *array = nullptr;
        QString place; ///< boards[3]
        QString name;
        QUuid identity;   ///< as the reply tells it; null where it tells none
        QUuid written;    ///< one of its own, under which it is written: those of a reply may repeat
        QJsonObject json; ///< with that identity
    };
    struct Count
    {
        const SlabArray *array = nullptr;
        int members = 0;
        int known = 0; ///< the host has them: "id" is above 0
    };

    explicit SlabReplyCheck(const QJsonObject &model);

    /** The members that can be written, array by array in the order of slabArrays(). */
    const std::vector<Member> &sound() const { return m_sound; }
    const std::vector<LeftOut> &leftOut() const { return m_leftOut; }
    /** Of the arrays that the reply has and that are written. */
    const std::vector<Count> &counts() const { return m_counts; }
    /** Supports and axes, which no reply makes. */
    int passedOver() const { return m_passedOver; }
    /** Sound members whose identity another one has before them. */
    int repeated() const { return m_repeated; }

private:
    void look(const SlabArray &array, const QJsonValue &value);
    void look(const SlabArray &array, int index, const QJsonValue &value, const QJsonObject &pattern, Count &count);
    void take(const SlabArray &array, const QString &place, QJsonObject json);

    std::vector<Member> m_sound;
    std::vector<LeftOut> m_leftOut;
    std::vector<Count> m_counts;
    QSet<QUuid> m_identities;
    int m_passedOver = 0;
    int m_repeated = 0;
};

} // namespace orvcad
