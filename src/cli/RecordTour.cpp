#include "cli/RecordTour.h"

#include "cli/ColumnDocumentCheck.h"
#include "cli/DrawingSetInfo.h"
#include "cli/DrawingSetShape.h"
#include "cli/Files.h"

#include <QJsonDocument>

namespace orvcad {

namespace {

const QString kDrawings = QStringLiteral("hall-drawings.json");
const QString kColumns = QStringLiteral("hall-columns.json");

} // namespace

/** Path of an example in the directory, which has it from then on. */
QString RecordTour::placed(const QString &name) const
{
    QString path = fileIn(m_directory, name);
    writeResult(path, readFile(QStringLiteral(":/demo/") + name));
    return path;
}

TourStep RecordTour::showDrawings() const
{
    const DrawingSetInfo info(readDrawingSet(placed(kDrawings)));
    return {QStringLiteral("drawings show %1").arg(kDrawings), info.headline()};
}

TourStep RecordTour::checkColumns()
{
    const ColumnDocumentCheck check(readJsonFile(placed(kColumns)).object());
    m_isSame = check.findings().empty() && check.notKept().empty();
    return {QStringLiteral("column check %1").arg(kColumns),
            QStringLiteral("%1: %2; %3").arg(check.title(), check.contentText(), check.verdict())};
}

} // namespace orvcad
