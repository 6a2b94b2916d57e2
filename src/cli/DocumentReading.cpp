#include "cli/DocumentReading.h"

#include "cli/ColumnDocumentCheck.h"
#include "platform/dwgx/Cadi2Reader.h"
#include "platform/embedded/HBXProject.h"

#include <QJsonDocument>

namespace orvcad {

CheckFinding findingOfReader(const JsonTree &document, CheckFinding::Weight weight, const QString &place,
                             const QString &reason)
{
    CheckFinding finding;
    finding.weight = weight;
    finding.rule = CheckFinding::Rule::Reader;
    finding.node = document.find(place);
    const QString found = document.path(finding.node);
    // Of a key that is not there the reader tells the place that it would have.
    if (found != place)
        finding.missingKey = place.mid(found.isEmpty() ? 0 : found.size() + 1);
    finding.message = reason;
    return finding;
}

std::vector<CheckFinding> readBuilding(const JsonTree &document, const QByteArray &text)
{
    hbx::embedded::ProjectError error;
    if (hbx::embedded::HBXProject::fromJson(text, QString(), error))
        return {};
    return {findingOfReader(document, CheckFinding::Weight::Fault, error.place, error.reason)};
}

std::vector<CheckFinding> readDrawingText(const JsonTree &document, const QByteArray &text)
{
    dwgx::JsonRefusal refusal;
    if (dwgx::readCadi2(text, refusal))
        return {};
    return {findingOfReader(document, CheckFinding::Weight::Fault, refusal.place, refusal.reason)};
}

std::vector<CheckFinding> readColumns(const JsonTree &document, const QByteArray &text)
{
    std::vector<CheckFinding> findings;
    const ColumnDocumentCheck check(QJsonDocument::fromJson(text).object());
    for (const JsonFault &fault : check.findings())
        findings.push_back(findingOfReader(document, CheckFinding::Weight::Dropped, fault.place, fault.reason));
    return findings;
}

} // namespace orvcad
