#include "load/LoadWork.h"

#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/ProjectFiles.h"
#include "load/CrowdedFloorSteps.h"
#include "load/HostileSteps.h"
#include "load/RecordDocument.h"
#include "support/Building.h"

#include <QJsonArray>
#include <QJsonValue>

#include <cstdio>

namespace load {

namespace {

int told(qint64 count)
{
    std::printf("%lld\n", static_cast<long long>(count));
    return orvcad::kDone;
}

bench::Building buildingOf(const QStringList &arguments)
{
    return {arguments.value(1).toInt(), arguments.value(2).toUInt()};
}

const RecordDocument &documentOf(const QStringList &arguments)
{
    return recordDocuments().at(static_cast<std::size_t>(arguments.value(1).toInt()));
}

int nothing(const QStringList & /*arguments*/) { return orvcad::kDone; }

int building(const QStringList &arguments)
{
    buildingOf(arguments).write(arguments.value(3));
    return told(arguments.value(1).toLongLong());
}

int doors(const QStringList &arguments) { return told(buildingOf(arguments).writeDoors(arguments.value(3))); }

int bytes(const QStringList &arguments)
{
    const Layout layout = arguments.contains(QStringLiteral("compact")) ? Layout::Compact : Layout::Indented;
    return told(documentOf(arguments).text.write(arguments.value(3), arguments.value(2).toLongLong(),
                                                 EntryText::kAnyCount, layout));
}

/** So many entries of a text. */
int entries(const EntryText &text, const QStringList &arguments)
{
    return told(text.write(arguments.value(3), EntryText::kAnyCount, arguments.value(2).toLongLong()));
}

int crowd(const QStringList &arguments) { return entries(crowdReply(arguments.value(1).toInt()), arguments); }

int hostile(const QStringList &arguments) { return entries(hostileText(arguments.value(1).toInt()), arguments); }

int read(const QStringList &arguments) { return told(documentOf(arguments).count(arguments.value(2))); }

int number(const QStringList &arguments)
{
    QJsonValue value = orvcad::readJsonObject(arguments.value(2), QStringLiteral("summary"));
    for (const QString &key : arguments.value(1).split(QLatin1Char('.')))
        value = value.toObject().value(key);
    return told(value.isArray() ? value.toArray().size() : value.toVariant().toLongLong());
}

int save(const QStringList &arguments)
{
    orvcad::saveProjectAs(*orvcad::openProject(arguments.value(1)), arguments.value(2));
    return told(1);
}

struct Work
{
    const char *name;
    int (*run)(const QStringList &arguments);
};
constexpr Work kWorks[] = {{"nothing", nothing}, {"building", building}, {"doors", doors},
                           {"bytes", bytes},     {"crowd", crowd},       {"hostile", hostile},
                           {"read", read},       {"number", number},     {"save", save}};

} // namespace

int runWork(const QStringList &arguments)
{
    for (const Work &work : kWorks)
        if (arguments.value(0) == QLatin1String(work.name)) {
            try {
                return work.run(arguments);
            } catch (const orvcad::CommandFailure &failure) {
                std::fprintf(stderr, "%s\n", qUtf8Printable(failure.message()));
                return failure.code();
            }
        }
    return orvcad::kWrongUsage;
}

} // namespace load
