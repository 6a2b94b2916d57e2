#pragma once

#include <QByteArray>
#include <QString>

namespace hbx::embedded {
class HBXProject;
}

namespace faults {

/** What is wrong with the links and names of a project, the first that is found; empty when all is well. */
QString brokenLink(const hbx::embedded::HBXProject &project);

/** Whether the exchange text of a project reads again and gives the same text. Empty, or the reason. */
QString notReadAgain(const QByteArray &json);

/** Brackets that the host was asked to open and that it has not closed. */
int openBrackets(const hbx::embedded::HBXProject &project);

} // namespace faults
