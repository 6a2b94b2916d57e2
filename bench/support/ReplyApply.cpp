#include "support/ReplyApply.h"

#include "support/JsonWalk.h"

#include <QFile>
#include <QJsonDocument>

#include <cstdlib>
#include <utility>

namespace bench {

namespace {

using hbx::embedded::HBXProject;

std::unique_ptr<HBXProject> openBuilding(const QByteArray &text)
{
    hbx::embedded::ProjectError error;
    auto project = HBXProject::fromJson(text, QStringLiteral("masonry-block.json"), error);
    if (!project)
        std::abort();
    return project;
}

QByteArray buildingText()
{
    QFile file(QStringLiteral(ORVCAD_TEST_DATA "/buildings/masonry-block.json"));
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    return file.readAll();
}

} // namespace

std::shared_ptr<ReplyApply> ReplyApply::make(QByteArray reply, Entry entry, std::size_t buildings)
{
    return std::shared_ptr<ReplyApply>(new ReplyApply(std::move(reply), entry, buildings));
}

Work ReplyApply::work(const std::shared_ptr<ReplyApply> &apply)
{
    return {[apply] { apply->prepare(); }, [apply] { apply->run(); }};
}

void ReplyApply::prepare()
{
    static const QByteArray building = buildingText();
    m_projects.clear();
    while (m_projects.size() < m_buildings)
        m_projects.push_back(openBuilding(building));
}

void ReplyApply::run()
{
    for (const auto &project : m_projects) {
        project->makeCurrent();
        m_entry(project->service(), object());
    }
}

void ReplyApply::parseEach() const
{
    for (std::size_t i = 0; i < m_buildings; ++i)
        keep(walked(object()));
}

QJsonObject ReplyApply::object() const { return QJsonDocument::fromJson(m_reply).object(); }

} // namespace bench
