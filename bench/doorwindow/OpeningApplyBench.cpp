#include "doorwindow/JsonDoorWin2HBX.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXService.h"
#include "support/RatioBench.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>
#include <memory>

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace {

/** The largest sample building. */
QByteArray buildingText()
{
    QFile file(QStringLiteral(ORVCAD_TEST_DATA "/buildings/masonry-block.json"));
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    return file.readAll();
}

/** A reply with that many members: one element for every nine places, spread over the building's walls. */
QByteArray replyText(int members)
{
    QJsonArray array;
    QString name;
    for (int i = 0; i < members; ++i) {
        if (i % 10 == 0) {
            name = QStringLiteral("M%1").arg(i);
            array.append(QJsonObject{{"elementID", i},
                                     {"name", name},
                                     {"nElementType", 4},
                                     {"nSubElementType", 14},
                                     {"nHeight", 2100},
                                     {"nWidth", 900},
                                     {"nHeightFromFloor", 0},
                                     {"floorName", "1"},
                                     {"regionName", "Block"}});
        } else {
            array.append(QJsonObject{{"elementName", name},
                                     {"X", 55000.0 + i % 1000 * 20},
                                     {"Y", -35000 + i / 1000 * 3000},
                                     {"nHeightFromFloor", 0},
                                     {"floorName", "1"},
                                     {"regionName", "Block"}});
        }
    }
    return QJsonDocument(QJsonObject{{"eDoorWin", QJsonObject{{"ElementsAndEdos", array}}}}).toJson();
}

/** Writes a reply into a building that is fresh for each run. */
class Apply
{
public:
    explicit Apply(int members) : m_reply(replyText(members)) {}

    void prepare()
    {
        static const QByteArray building = buildingText();
        ProjectError error;
        m_project = HBXProject::fromJson(building, QStringLiteral("masonry-block.json"), error);
        if (!m_project)
            std::abort();
    }
    void run() { jsonDoorWin2HBX(m_project->service(), QJsonDocument::fromJson(m_reply).object()); }
    bench::Work work()
    {
        return {[this] { prepare(); }, [this] { run(); }};
    }
    const QByteArray &reply() const { return m_reply; }

private:
    QByteArray m_reply;
    std::unique_ptr<HBXProject> m_project;
};

/** What no reader of the reply can avoid: the document, and a look at each value. */
void walk(const QByteArray &reply)
{
    const QJsonObject openings = QJsonDocument::fromJson(reply).object()["eDoorWin"].toObject();
    double sum = 0.0;
    for (const QJsonValue member : openings["ElementsAndEdos"].toArray())
        for (const QJsonValue value : member.toObject())
            sum += value.toDouble();
    bench::keep(sum);
}

} // namespace

int main()
{
    constexpr int kSmall = 1000;
    constexpr int kLarge = 10000;
    constexpr double kLinear = 1.3; // cost per member at the large size to that at the small one

    Apply small(kSmall);
    Apply large(kLarge);
    bench::RatioTable table("Doors and windows");
    table.row("opening apply / the reply parsed and walked", kLarge, large.work(), [&] { walk(large.reply()); });
    table.growth("opening apply, cost per member", kLarge, large.work(), kSmall, small.work(), kLinear);
    return table.print();
}
