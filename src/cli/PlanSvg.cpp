#include "cli/PlanSvg.h"

#include "cli/PlanContents.h"
#include "cli/PlanLegend.h"
#include "cli/PlanPainter.h"
#include "cli/PlanSheet.h"
#include "cli/SvgPage.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"

using namespace orvcad::plansheet;

namespace orvcad {

namespace {

constexpr char kPageStyle[] = "text{font-family:'DejaVu Sans','Noto Sans CJK SC','Noto Sans',sans-serif;fill:#222}"
                              ".names text{paint-order:stroke;stroke:#fff;stroke-width:.5;stroke-linejoin:round}"
                              ".names .on-dark{fill:#fff;stroke:none}"
                              "path{stroke-linejoin:round}";

void paintFrame(SvgPage &page)
{
    const QString line = QStringLiteral("stroke=\"#222\" stroke-width=\".35\"");
    page.addRectangle(kFrame, kFrame, kWidth - 2 * kFrame, kHeight - 2 * kFrame,
                      QStringLiteral("fill=\"none\" ") + line);
    page.addLine({kColumnLine, kFrame}, {kColumnLine, kHeight - kFrame}, line);
}

} // namespace

PlanSvg drawPlan(IHBXModel &model, const IHBXFloor &floor, const QString &building)
{
    const PlanContents contents = planContentsOf(model, floor);
    SvgPage page(kWidth, kHeight);
    PlanSvg plan;
    plan.scale = PlanPainter::layOut(page, contents.box);
    plan.drawn = static_cast<int>(contents.objects.size());
    plan.withoutGeometry = contents.withoutGeometry;

    page.addRectangle(0, 0, kWidth, kHeight, QStringLiteral("fill=\"#fff\""));
    paintFrame(page);
    PlanPainter painter(page, contents);
    painter.paintObjects();
    painter.paintNames(plan.scale);
    PlanLegend legend(page);
    legend.paintTitle(floor, building, plan.scale);
    legend.paintEntries(contents.entries);
    legend.paintElevations(contents.shades);
    legend.paintScaleBar(plan.scale);
    plan.document =
        page.document(QStringLiteral("%1 – %2, %3").arg(building, floor.region()->name(), floor.name()), kPageStyle);
    return plan;
}

} // namespace orvcad
