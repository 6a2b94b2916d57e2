#pragma once

#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXService.h"
#include "support/RatioBench.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>
#include <memory>
#include <utility>

namespace bench {

/** A reply of the identify service, written into the largest sample building, which is fresh for each run. */
class ReplyApply
{
public:
    using Entry = bool (*)(IHBXService *service, const QJsonObject &reply);

    ReplyApply(QByteArray reply, Entry entry) : m_reply(std::move(reply)), m_entry(entry) {}

    void prepare()
    {
        static const QByteArray building = buildingText();
        hbx::embedded::ProjectError error;
        m_project = hbx::embedded::HBXProject::fromJson(building, QStringLiteral("masonry-block.json"), error);
        if (!m_project)
            std::abort();
    }
    /** Reads the text and writes it. */
    void run() { m_entry(service(), object()); }
    Work work()
    {
        return {[this] { prepare(); }, [this] { run(); }};
    }

    IHBXService *service() const { return m_project->service(); }
    /** The reply, read from its text: what no reader of it can avoid. */
    QJsonObject object() const { return QJsonDocument::fromJson(m_reply).object(); }

private:
    static QByteArray buildingText()
    {
        QFile file(QStringLiteral(ORVCAD_TEST_DATA "/buildings/masonry-block.json"));
        if (!file.open(QIODevice::ReadOnly))
            std::abort();
        return file.readAll();
    }

    QByteArray m_reply;
    Entry m_entry;
    std::unique_ptr<hbx::embedded::HBXProject> m_project;
};

} // namespace bench
