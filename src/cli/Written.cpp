#include "cli/Written.h"

#include "cli/Arguments.h"
#include "cli/Files.h"

#include <QJsonDocument>

namespace orvcad {

Summary writeDocument(const Arguments &arguments, const QByteArray &document, Summary summary)
{
    const QString output = Arguments::text(arguments.output);
    summary.documentOnStdout = writeResult(output, document);
    summary.json["output"] = output;
    return summary;
}

Summary writeDocument(const Arguments &arguments, const QJsonObject &document, Summary summary)
{
    return writeDocument(arguments, QJsonDocument(document).toJson(), std::move(summary));
}

} // namespace orvcad
