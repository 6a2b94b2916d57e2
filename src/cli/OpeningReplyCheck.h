#pragma once

#include "cli/Applied.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QString>

#include <vector>

class IHBXFloor;
class IHBXModel;

namespace orvcad {

/** Looks through a reply of doors and windows before it is written into a model, and says of each member that the model
 *  would not take why not. Nothing is changed. */
class OpeningReplyCheck
{
public:
    struct LeftOut : orvcad::LeftOut
    {
        int index = -1; ///< position in "ElementsAndEdos"; -1 for what is no member

        QString text() const;
        QJsonObject toJson() const;
    };

    /** What is told of the member at that position, or of a part of it. */
    static LeftOut leftOut(int index, orvcad::LeftOut told);
    /** Of the member at that position. */
    static QString placeOf(int index);

    OpeningReplyCheck(IHBXModel &model, const QJsonArray &members);

    /** The members that can be written, in the reply's order. */
    const QJsonArray &sound() const { return m_sound; }
    /** Their positions in the reply. */
    const std::vector<int> &soundPlaces() const { return m_soundPlaces; }
    const std::vector<LeftOut> &leftOut() const { return m_leftOut; }
    int memberCount() const { return m_memberCount; }

private:
    using PlacedName = QPair<int, QString>; // floor id and element name

    void take(int index, const QJsonObject &member);
    void noteElementPlaces(const QJsonArray &members);
    QString whyNot(int index, const QJsonObject &member);
    QString whyNotElement(const QJsonObject &member);
    QString whyNotPlaced(int index, const QJsonObject &member) const;
    /** The floor that a member names; null, with the reason, when there is none. */
    IHBXFloor *floorOf(const QJsonObject &member, QString &reason) const;

    IHBXModel &m_model;
    QHash<PlacedName, int> m_elementPlaces; // where the reply first makes an element of a name
    QSet<PlacedName> m_soundElements;       // element members found sound so far
    QJsonArray m_sound;
    std::vector<int> m_soundPlaces;
    std::vector<LeftOut> m_leftOut;
    int m_memberCount = 0;
};

} // namespace orvcad
