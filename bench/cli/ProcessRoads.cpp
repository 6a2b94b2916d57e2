#include "cli/ProcessFloor.h"
#include "suite/Families.h"
#include "support/BareDatabase.h"
#include "support/ForkedRun.h"

#include <QFile>
#include <QJsonDocument>

#include <memory>

// The slab road as people run it: whole processes over a floor of so many draw objects. The floor under them is a process
// of this program that does what no design can avoid: it reads the rows of the project by the C API of SQLite, reads and
// writes the payload by Qt's JSON, and, where a reply is applied, writes the rows that it leaves into a new file.

namespace {

using bench::Load;
using bench::ProcessFloor;
using bench::Sides;
using FloorPtr = std::shared_ptr<const ProcessFloor>;

// Bounds. A reply is looked through first, each member is built, checked and placed in a model of the host, and what was
// made is read out again and compared, none of which the floor under it does.
constexpr double kExport = 3.0;
constexpr double kApply = 6.0;

const std::vector<std::size_t> kElementSizes{2'000, 20'000};

/** A copy of this process is a process of its own to the system's account. */
bench::Work inCopy(std::function<void()> work)
{
    return [work = std::move(work)] {
        char isDone = 0;
        bench::runForked(&isDone, sizeof isDone, [&] {
            work();
            isDone = 1;
        });
    };
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

QJsonDocument payloadIn(const ProcessFloor &floor)
{
    QFile file(floor.payload());
    file.open(QIODevice::ReadOnly);
    return QJsonDocument::fromJson(file.readAll());
}

Sides exporting(const Load &load)
{
    const auto floor = std::make_shared<const ProcessFloor>(load.size);
    const auto bare = [floor] {
        bench::readBare(floor->fullProject());
        writeFile(floor->scratch(), payloadIn(*floor).toJson());
    };
    return {[floor] { floor->exportSlabs(); }, inCopy(bare), floor->drawObjs(), floor->payloadBytes(),
            [floor] { return floor->failure().isEmpty() ? floor->exportSlabs() : floor->failure(); }};
}

Sides applying(const Load &load)
{
    const auto floor = std::make_shared<const ProcessFloor>(load.size);
    const auto bare = [floor] {
        bench::keep(payloadIn(*floor));
        bench::writeBare(floor->scratch(), bench::bareTablesOf(floor->fullProject()));
    };
    return {{[floor] { floor->emptyWorkProject(); }, [floor] { floor->applySlabs(); }},
            {[floor] { QFile::remove(floor->scratch()); }, inCopy(bare).run},
            floor->members(),
            floor->payloadBytes(),
            [floor] {
                if (!floor->failure().isEmpty())
                    return floor->failure();
                floor->emptyWorkProject();
                return floor->applySlabs();
            }};
}

} // namespace

bench::Roads bench::processRoads()
{
    return {{"process: orvcad slab export",
             "rows read, payload parsed and written",
             kElementSizes,
             {kExport},
             &exporting,
             Time::Children},
            {"process: orvcad slab apply",
             "payload parsed, rows read and written",
             kElementSizes,
             {kApply},
             &applying,
             Time::Children}};
}
