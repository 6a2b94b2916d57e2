#include "cli/WallTour.h"

#include "cli/Counted.h"
#include "cli/Files.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "cli/WallReply.h"
#include "platform/embedded/HBXProject.h"

#include <utility>

using hbx::embedded::HBXProject;

namespace orvcad {

WallTour::WallTour(QString directory, Stop stop)
    : m_directory(std::move(directory)), m_stop(std::move(stop)), m_kind(wallKindOf(QLatin1String(m_stop.kind)))
{}

QString WallTour::path(const QString &name) const { return fileIn(m_directory, name); }

TourStep WallTour::write(HBXProject &project)
{
    const WallReply reply(project, m_kind, pickFloors(project, QString(), m_stop.floor));
    writeResult(path(m_stop.reply), reply.document());
    return {QStringLiteral("wall reply %1 --kind %2 --floor \"%3\" -o %4")
                .arg(m_stop.original, m_stop.kind, m_stop.floor, m_stop.reply),
            reply.text()};
}

QString WallTour::strip(HBXProject &project) const
{
    const int elements = removeWalls(project, m_kind, *pickFloors(project, QString(), m_stop.floor).front());
    return Message::tr("%1 loses the %2 of %3 (%4), with all that is placed.")
        .arg(m_stop.restored, Message::tr(m_kind.titles), m_stop.floor, counted(elements, Message::tr("element")));
}

TourStep WallTour::apply(HBXProject &project)
{
    const QString input = path(m_stop.reply);
    m_outcome = applyWalls(project, m_kind, readJsonFile(input).object(), input);
    saveProject(project);
    return {QStringLiteral("wall apply %1 --kind %2 %3").arg(m_stop.restored, m_stop.kind, m_stop.reply),
            m_outcome.headline() + leftOutLines(m_outcome.leftOut)};
}

QString WallTour::compare()
{
    const auto original = openProject(path(m_stop.original));
    const auto restored = openProject(path(m_stop.restored));
    m_comparison = compareWalls(*original, *restored, m_kind, m_stop.floor);
    return m_comparison.text();
}

QJsonObject WallTour::toJson() const { return {{"apply", m_outcome.toJson()}, {"comparison", m_comparison.toJson()}}; }

} // namespace orvcad
