#include "cli/BeamComparison.h"

#include "beam/BeamKeys.h"
#include "cli/BeamReplyCheck.h"
#include "cli/Beams.h"
#include "cli/Counted.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "platform/embedded/HBXProject.h"

#include <QJsonArray>

#include <algorithm>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

QString nameOf(const QJsonValue &beam) { return beam[beam::key::elementInfo][beam::key::name].toString(); }

} // namespace

QString BeamComparison::text() const
{
    return textOf(Message::tr("%1 of beams, %2")
                      .arg(counted(compared, Message::tr("segment")),
                           isSame() ? Message::tr("the payload written again is the same")
                                    : Message::tr("the payload written again DIFFERS")));
}

BeamComparison compareBeams(HBXProject &expected, HBXProject &found, const QString &floor)
{
    BeamCounts counts;
    BeamCounts again;
    const QJsonObject before = beamDocument(expected, pickFloors(expected, QString(), floor), counts);
    const QJsonObject after = beamDocument(found, pickFloors(found, QString(), floor), again);
    BeamComparison comparison;
    comparison.compared = counts.segments;
    for (const ReplyArray &array : beamArrays()) {
        const QJsonArray wanted = before.value(array.key).toArray();
        const QJsonArray there = after.value(array.key).toArray();
        for (int i = 0; i < std::max(wanted.size(), there.size()); ++i)
            if (wanted.at(i) != there.at(i))
                comparison.deviations.append(QStringLiteral("%1[%2] (%3)")
                                                 .arg(array.key)
                                                 .arg(i)
                                                 .arg(nameOf((i < wanted.size() ? wanted : there).at(i))));
    }
    return comparison;
}

} // namespace orvcad
