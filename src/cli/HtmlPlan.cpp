#include "cli/HtmlPlan.h"

#include "cli/HtmlModel.h"
#include "cli/HtmlText.h"
#include "cli/PlanPainter.h"
#include "cli/PlanSheet.h"
#include "cli/SvgPage.h"
#include "cli/TypeTitles.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"

#include <algorithm>

using namespace orvcad::plansheet;

namespace orvcad {

namespace {

constexpr double kAround = 8.0; // mm of paper, for the labels of axes

QString groupAttributes(int place, const QString &state)
{
    const QString attributes = QStringLiteral("data-o=\"%1\"").arg(place);
    return state.isEmpty() ? attributes : attributes + QStringLiteral(" data-d=\"%1\"").arg(state);
}

QString numberText(double number) { return QString::number(number, 'f', 2); }

} // namespace

void HtmlPlan::add(IHBXModel &model, const IHBXFloor &floor) { m_now = planContentsOf(model, floor); }

void HtmlPlan::addEarlier(IHBXModel &model, const IHBXFloor &floor)
{
    m_then = planContentsOf(model, floor);
    auto &objects = m_then.objects;
    objects.erase(
        std::remove_if(objects.begin(), objects.end(),
                       [this](const PlanObject &placed) { return m_model.earlierPlaceOf(placed.object->id()) < 0; }),
        objects.end());
    m_then.box = vks::CBox2<double>();
    for (const PlanObject &placed : objects)
        m_then.box.Add(placed.box());
}

QList<qint64> HtmlPlan::types() const
{
    QList<qint64> types;
    for (const PlanContents *contents : {&m_now, &m_then})
        for (const PlanObject &placed : contents->objects)
            if (types.isEmpty() || types.last() != placed.object->type())
                types.append(placed.object->type());
    return types;
}

QByteArray HtmlPlan::plan() const
{
    vks::CBox2<double> box = m_now.box;
    if (m_then.box.IsValid())
        box.Add(m_then.box);
    SvgPage page(kWidth, kHeight);
    const double scale = PlanPainter::layOut(page, box);
    const PlanMarks now{
        [this](const PlanObject &placed) {
            const qint64 id = placed.object->id();
            return groupAttributes(m_model.placeOf(id), m_model.stateOf(id));
        },
        [](const PlanObject &placed) { return QStringLiteral(" data-t=\"%1\"").arg(placed.object->type()); }};
    const PlanMarks then{[this](const PlanObject &placed) {
                             const qint64 id = placed.object->id();
                             return groupAttributes(m_model.earlierPlaceOf(id), m_model.earlierStateOf(id));
                         },
                         {}};
    PlanPainter painter(page, m_now, now);
    painter.paintObjects();
    PlanPainter(page, m_then, then).paintObjects();
    painter.paintNames(scale);

    const vks::CVec2<double> middle(kMargin + kPlanWidth / 2, kMargin + kPlanHeight / 2);
    const double width = box.IsValid() ? box.Width() / scale + 2 * kAround : kPlanWidth;
    const double height = box.IsValid() ? box.Height() / scale + 2 * kAround : kPlanHeight;
    const QString view = QStringLiteral("%1 %2 %3 %4")
                             .arg(numberText(middle.x - width / 2), numberText(middle.y - height / 2),
                                  numberText(width), numberText(height));
    return "<svg viewBox=\"" + view.toUtf8() + "\" tabindex=\"0\" role=\"group\" aria-label=\"Plan of " +
           htmlText(m_name) + ". Arrow keys move it, plus and minus zoom, 0 shows it whole.\">\n" + page.body() +
           "</svg>\n";
}

QByteArray HtmlPlan::legend() const
{
    QByteArray items;
    for (const PlanLegend::Entry &entry : m_now.entries)
        items += QStringLiteral("<li class=\"type-%1\"><span class=\"swatch\"></span> %2 × %3</li>\n")
                     .arg(entry.type)
                     .arg(entry.number)
                     .arg(typeTitle(entry.type))
                     .toUtf8();
    return "<ul class=\"legend\">\n" + items + "</ul>\n";
}

QByteArray HtmlPlan::section(int place, const IHBXFloor &floor) const
{
    const QByteArray id = QByteArray::number(place);
    const QString levels = QStringLiteral("bottom %1 m, height %2 m").arg(floor.bottomElev()).arg(floor.height());
    return "<section class=\"floor\" id=\"floor-" + id + "\" aria-labelledby=\"floor-" + id +
           "-name\">\n<h2 id=\"floor-" + id + "-name\">" + htmlText(m_name) + " <span class=\"note\">" +
           htmlText(levels) + "</span></h2>\n" + plan() + legend() + "</section>\n";
}

} // namespace orvcad
