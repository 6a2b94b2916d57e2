#pragma once

#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXService.h"
#include "suite/Road.h"

#include <QByteArray>
#include <QJsonObject>

#include <memory>
#include <vector>

namespace bench {

/** A reply of the identify service, written into the largest sample building: into as many copies of it as wanted, which are
 *  fresh for each run. */
class ReplyApply
{
public:
    using Entry = bool (*)(IHBXService *service, const QJsonObject &reply);
    using Projects = std::vector<std::unique_ptr<hbx::embedded::HBXProject>>;

    static std::shared_ptr<ReplyApply> make(QByteArray reply, Entry entry, std::size_t buildings);
    /** Reads the text and writes it, once for each building. */
    static Work work(const std::shared_ptr<ReplyApply> &apply);

    void prepare();
    void run();
    /** What no reader of the replies can avoid. */
    void parseEach() const;
    const Projects &projects() const { return m_projects; }
    qint64 bytes() const { return m_reply.size() * static_cast<qint64>(m_buildings); }

private:
    ReplyApply(QByteArray reply, Entry entry, std::size_t buildings)
        : m_reply(std::move(reply)), m_entry(entry), m_buildings(buildings)
    {}
    QJsonObject object() const;

    QByteArray m_reply;
    Entry m_entry;
    std::size_t m_buildings;
    Projects m_projects;
};

} // namespace bench
