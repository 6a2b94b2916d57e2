#include "cli/HtmlPage.h"

#include "cli/Counted.h"
#include "cli/Files.h"
#include "cli/HtmlModel.h"
#include "cli/HtmlPlan.h"
#include "cli/HtmlStyle.h"
#include "cli/HtmlText.h"
#include "cli/PlanStyle.h"
#include "platform/embedded/HBXModelStore.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"

#include <QSet>

#include <algorithm>

using namespace hbx::embedded;

namespace orvcad {

namespace {

constexpr const char *kScripts[] = {"dom",     "model",  "viewport",    "floors", "layers",
                                    "details", "search", "differences", "page"};

QByteArray resource(const QString &name) { return readFile(QStringLiteral(":/html/") + name); }

/** All scripts as one that leaves no name behind. */
QByteArray script()
{
    QByteArray text = "(() => {\n'use strict';\n";
    for (const char *name : kScripts)
        text += resource(QLatin1String(name) + ".js");
    return text + "})();\n";
}

/** A floor of the earlier project and of the later one; one of them may be null. */
struct FloorPair
{
    const IHBXFloor *before;
    const IHBXFloor *after;

    const IHBXFloor &either() const { return after ? *after : *before; }
};

/** Puts the parts of a page together. */
class PageMaker
{
public:
    /** @param before  null for a page of one project */
    PageMaker(const HBXProject *before, const HBXProject &after, const ProjectDifference *difference)
        : m_before(before), m_after(after), m_earlier(before ? before->store().snapshot() : ProjectRecord()),
          m_record(after.store().snapshot()), m_model(m_record, before ? &m_earlier : nullptr, difference)
    {}

    void add(const FloorPair &pair)
    {
        const IHBXFloor &floor = pair.either();
        m_model.addFloor(floor.name(), floor.region()->name(), pair.before ? pair.before->id() : 0,
                         pair.after ? pair.after->id() : 0);
        HtmlPlan plan(m_model, QStringLiteral("%1, %2").arg(floor.region()->name(), floor.name()));
        if (pair.after)
            plan.add(*m_after.service()->model(), *pair.after);
        if (pair.before)
            plan.addEarlier(*m_before->service()->model(), *pair.before);
        m_plans += plan.section(m_page.floors++, floor);
        m_page.drawn += plan.drawn();
        m_page.withoutGeometry += plan.withoutGeometry();
        for (const qint64 type : plan.types())
            m_types.insert(type);
    }

    HtmlPage finish()
    {
        QList<qint64> types = m_types.values();
        std::sort(types.begin(), types.end(),
                  [](qint64 a, qint64 b) { return std::make_pair(planOrder(a), a) < std::make_pair(planOrder(b), b); });
        const QByteArray code = script();
        const QByteArray style = typeStyle(types) + resource(QStringLiteral("page.css"));
        m_page.document = filled(resource(QStringLiteral("page.html")),
                                 {{"title", htmlText(title())},
                                  {"about", htmlText(about())},
                                  {"policy", "default-src 'none'; base-uri 'none'; form-action 'none'; script-src " +
                                                 contentHash(code) + "; style-src " + contentHash(style)},
                                  {"style", style},
                                  {"plans", m_plans},
                                  {"model", scriptJson(m_model.json(types))},
                                  {"script", code}});
        return std::move(m_page);
    }

private:
    QString title() const
    {
        QString name = m_after.name();
        if (!m_before)
            return name;
        return m_before->name() == name ? QStringLiteral("%1: before and after").arg(name)
                                        : QStringLiteral("%1 and %2").arg(m_before->name(), name);
    }
    QString about() const
    {
        const QString what =
            QStringLiteral("%1, %2").arg(countedInEnglish(m_page.floors, QStringLiteral("floor")),
                                         countedInEnglish(m_page.drawn, QStringLiteral("placed object")));
        return m_after.source().isEmpty() ? what : QStringLiteral("%1. %2").arg(what, m_after.source());
    }

    const HBXProject *m_before;
    const HBXProject &m_after;
    const ProjectRecord m_earlier;
    const ProjectRecord m_record;
    HtmlModel m_model;
    HtmlPage m_page;
    QByteArray m_plans;
    QSet<qint64> m_types;
};

QHash<int, const IHBXFloor *> floorsById(const HBXProject &project)
{
    QHash<int, const IHBXFloor *> floors;
    IHBXRegions &regions = *project.service()->model()->regions();
    for (int i = 0; i < regions.count(); ++i)
        for (int j = 0; j < regions.at(i)->floors()->count(); ++j)
            floors.insert(regions.at(i)->floors()->at(j)->id(), regions.at(i)->floors()->at(j));
    return floors;
}

} // namespace

HtmlPage htmlPageOf(const HBXProject &project, std::vector<IHBXFloor *> floors)
{
    QHash<const IHBXRegion *, int> regions; // in the order in which their floors stand
    for (const IHBXFloor *floor : floors)
        regions.insert(floor->region(), regions.value(floor->region(), regions.size()));
    std::stable_sort(floors.begin(), floors.end(), [&regions](const IHBXFloor *a, const IHBXFloor *b) {
        return std::make_pair(regions.value(a->region()), a->bottomElev()) <
               std::make_pair(regions.value(b->region()), b->bottomElev());
    });
    PageMaker page(nullptr, project, nullptr);
    for (const IHBXFloor *floor : floors)
        page.add({nullptr, floor});
    return page.finish();
}

HtmlPage htmlPageOf(const HBXProject &before, const HBXProject &after, const ProjectDifference &difference)
{
    const auto earlier = floorsById(before);
    const auto later = floorsById(after);
    PageMaker page(&before, after, &difference);
    for (const auto &[idBefore, idAfter] : difference.floors)
        page.add({earlier.value(idBefore), later.value(idAfter)});
    return page.finish();
}

} // namespace orvcad
