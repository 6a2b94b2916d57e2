#pragma once

#include "cli/Applied.h"
#include "cli/WallKind.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QString>

#include <vector>

class IHBXModel;

namespace orvcad {

/** Looks through a reply of walls before it is written into a model, and says of each wall that the model would not take, or
 *  would take for something else, why not, and likewise of each piece. Nothing is changed. A wall goes on without those of
 *  its pieces that are left out. The form has no way to write "/" and ":": a name that holds one is left out, a bar text is
 *  cut there, and that is told. */
class WallReplyCheck
{
public:
    struct Member
    {
        QString place; ///< BrickWallIdentifyData.key_3
        qint64 edoId = 0;
        QJsonObject element;     ///< its record, with the keys that are used
        QJsonArray pieces;       ///< likewise
        QStringList piecePlaces; ///< BrickWallIdentifyData.value_3[0]
        int leftOut = 0;         ///< pieces that are

        QString text(QLatin1String key) const { return element.value(key).toString(); }
    };

    /** Throws CommandFailure naming file and place when the document is no reply of walls of that kind. */
    WallReplyCheck(IHBXModel &model, const WallKind &kind, const QJsonObject &reply, const QString &file);

    /** The walls that can be written, by the ids that the elements had where they come from. */
    const std::vector<Member> &sound() const { return m_sound; }
    const std::vector<LeftOut> &leftOut() const { return m_leftOut; }
    int memberCount() const { return m_memberCount; }

private:
    void look(const QJsonObject &map, int number);
    void lookAtPieces(const QJsonArray &pieces, const QString &place, Member &member);
    void lookForUnread(const QJsonObject &map);
    QString whyNot(const QJsonValue &element, const QJsonValue &pieces) const;
    void leaveOut(const QString &place, const QString &name, const QString &reason);
    /** Of a wall that is written all the same. */
    void leaveOutPart(const QString &place, const QString &name, const QString &reason);

    IHBXModel &m_model;
    const WallKind &m_kind;
    std::vector<Member> m_sound;
    std::vector<LeftOut> m_leftOut;
    QMap<QByteArray, QString> m_places; // of elements, by what they hold
    int m_memberCount = 0;
};

/** The first of the texts that the form cuts, a name: why the wall cannot travel. Empty when there is none. */
QString cutName(const QJsonObject &element);
/** What the form leaves of bar texts that hold "/" or ":", one line each. */
QStringList cutBars(const QJsonObject &element);

} // namespace orvcad
