#pragma once

#include "cli/Applied.h"
#include "platform/embedded/HBXProject.h"

#include <QJsonObject>
#include <QString>

#include <memory>
#include <vector>

class IHBXFloor;
class IHBXModel;
class ORVBeamSDCSeatInfoModel;

namespace orvcad {

/** A kind of seat that can be made anew: the array that holds it, and its element type. */
struct SeatKind
{
    QLatin1String key;
    qint64 elementType;
};
/** Foundations before piles before tie beams. */
const std::vector<SeatKind> &seatKinds();

/** Looks through a document of seats before it is written into a model, and says of each seat that the model would not take, or
 *  would take for something else, why not. Nothing is changed. */
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
    QString whyNot(const QJsonValue &value, const SeatKind &kind) const;

    IHBXModel &m_model;
    std::vector<Member> m_sound;
    std::vector<LeftOut> m_leftOut;
    int m_memberCount = 0;
};

/** What writing a document of seats into a project did. */
struct SeatOutcome
{
    struct Kind
    {
        qint64 type = 0;
        int elements = 0; ///< made, units apart
        int reused = 0;   ///< times that an element was there already, made by a seat before it or not
        int units = 0;    ///< made below foundations and pile caps
        int placed = 0;

        QString text() const;
        QJsonObject toJson() const;
    };

    int members = 0;
    int doubled = 0;         ///< of the objects placed, those that are the same as another one
    std::vector<Kind> kinds; ///< those that the document has seats of
    std::vector<LeftOut> leftOut;

    QString text() const;
    QJsonObject toJson() const;
};

/** The seats of those floors that can be made anew; counts gets how many there are by element type. */
QJsonObject seatDocument(const hbx::embedded::HBXProject &project, const std::vector<IHBXFloor *> &floors,
                         std::vector<SeatOutcome::Kind> &counts);

/** Writes the sound seats of a document into the project, between the brackets of one batch. Nothing is saved. Throws
 *  CommandFailure naming file and place when the document holds no seats. */
SeatOutcome applySeats(hbx::embedded::HBXProject &project, const QJsonObject &reply, const QString &file);

} // namespace orvcad
