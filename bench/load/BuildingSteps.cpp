#include "load/BuildingSteps.h"

#include "load/LoadRunner.h"
#include "support/Building.h"

#include <QFile>

#include <algorithm>
#include <iterator>

namespace load {

namespace {

// Exponents of growth. A step that is linear has 1 and little more: sorting by id adds a logarithm, and what no longer fits
// into the processor's caches costs up to half as much again, which is 0.09 over the two orders of magnitude.
constexpr double kTimeGrowth = 1.15;
constexpr double kMemoryGrowth = 1.1;

constexpr int kSizes[] = {10000, 100000, 1000000};
constexpr int kSmallSizes[] = {1000, 10000, 100000};

const QString kBuilding = QStringLiteral("building.json");
const QString kProject = QStringLiteral("building.hbxdb");
const QString kDoors = QStringLiteral("doors.json");
const QString kFloor = QStringLiteral("floor.json");
const QString kOther = QStringLiteral("other");

/** What the steps are told of the building that is there. */
struct Subject
{
    const LoadRunner &runner;
    qint64 drawObjects;
    qint64 doors;
    QString floor;

    QString path(const QString &file) const { return runner.path(file); }
};

struct Step
{
    const char *name;
    QString file; ///< that it reads
    bench::ChildCost (*run)(const Subject &subject);
    QString (*failure)(const bench::ChildCost &cost, const Subject &subject);
};

QString totalFailure(const bench::ChildCost &cost, const Subject &subject)
{
    return subject.runner.failureOf(cost, QStringLiteral("drawObjects"), subject.drawObjects);
}

QString totalBelowProject(const bench::ChildCost &cost, const Subject &subject)
{
    return subject.runner.failureOf(cost, QStringLiteral("project.drawObjects"), subject.drawObjects);
}

bench::ChildCost import(const Subject &subject)
{
    return subject.runner.command({"project", "import", subject.path(kBuilding), "-o", subject.path(kProject)});
}

bench::ChildCost open(const Subject &subject)
{
    return subject.runner.command({"project", "info", subject.path(kProject)});
}

bench::ChildCost exportFloor(const Subject &subject)
{
    return subject.runner.command(
        {"slab", "export", subject.path(kProject), "--floor", subject.floor, "-o", subject.path(kFloor)});
}

/** Bars, slabs and holes of the floor. */
QString floorFailure(const bench::ChildCost &cost, const Subject &subject)
{
    return subject.runner.failureOf(cost, QStringLiteral("arrays.boards"), subject.doors);
}

bench::ChildCost apply(const Subject &subject)
{
    QFile::remove(subject.path(kOther));
    QFile::copy(subject.path(kProject), subject.path(kOther));
    return subject.runner.command({"opening", "apply", subject.path(kOther), subject.path(kDoors)});
}

QString applyFailure(const bench::ChildCost &cost, const Subject &subject)
{
    return subject.runner.failureOf(cost, QStringLiteral("placed"), subject.doors);
}

bench::ChildCost save(const Subject &subject)
{
    return subject.runner.work({"save", subject.path(kProject), subject.path(kOther)});
}

QString saveFailure(const bench::ChildCost &cost, const Subject & /*subject*/)
{
    return LoadRunner::failureOf(cost, 1);
}

bench::ChildCost exportAll(const Subject &subject)
{
    return subject.runner.command({"project", "export", subject.path(kProject), "-o", subject.path(kOther)});
}

const Step kSteps[] = {
    {"building: import", kBuilding, import, totalBelowProject},
    {"building: open", kProject, open, totalFailure},
    {"building: export a floor", kProject, exportFloor, floorFailure},
    {"building: apply a reply to a floor, save", kProject, apply, applyFailure},
    {"building: save as another file", kProject, save, saveFailure},
    {"building: export", kProject, exportAll, totalBelowProject},
};

/** The building in that size, as JSON and as a project. */
Subject prepared(const LoadRunner &runner, int size)
{
    const QString seed = QString::number(runner.options().seed);
    const QString objects = QString::number(size);
    runner.prepare({"building", objects, seed, runner.path(kBuilding)});
    const qint64 doors = runner.prepare({"doors", objects, seed, runner.path(kDoors)});
    return {runner, size, doors, bench::Building(size, 0).middleFloor()};
}

Run runOf(const Step &step, const Subject &subject)
{
    Run run;
    run.size = static_cast<double>(subject.drawObjects);
    run.cost = step.run(subject);
    run.failure = step.failure(run.cost, subject);
    run.documentBytes = subject.runner.bytesOf(step.file);
    return run;
}

} // namespace

void runBuildingSteps(LoadRunner &runner)
{
    if (std::none_of(std::begin(kSteps), std::end(kSteps),
                     [&](const Step &step) { return runner.isWanted(QString::fromLatin1(step.name)); }))
        return;
    std::vector<Series> all;
    for (const Step &step : kSteps)
        all.push_back({QString::fromLatin1(step.name), {kTimeGrowth, kMemoryGrowth, {}, {}}, {}});
    for (const int size : runner.options().isSmall ? kSmallSizes : kSizes) {
        const Subject subject = prepared(runner, size);
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i].runs.push_back(LoadRunner::leastOf([&] { return runOf(kSteps[i], subject); }));
    }
    for (Series &series : all)
        if (runner.isWanted(series.step))
            runner.add(std::move(series));
    for (const QString &file : {kBuilding, kProject, kDoors, kFloor, kOther})
        QFile::remove(runner.path(file));
}

} // namespace load
