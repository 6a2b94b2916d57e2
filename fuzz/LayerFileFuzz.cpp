// Layer files and walks through a JSON text by a path.

#include "encoding/JsonDocumentFile.h"
#include "encoding/ORVJsonUtil.h"
#include "support/FuzzFile.h"
#include "support/QtJsonLeaks.h"

#include <QVector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const fuzz::QtJsonLeaks leaks(fuzz::bytesOf(data, size));
    const fuzz::FuzzFile file(QStringLiteral("plan_A.json"), fuzz::bytesOf(data, size));
    QString message;
    QVector<int> ids;
    if (readLayerEdoIds(file.path(), QStringLiteral("WALL"), message, ids) != 0)
        fuzz::require(!message.isEmpty() && ids.isEmpty(), "a failure has a message and gives no ids");
    ORVJsonUtil::parseJsonByPath(fuzz::textOf(data, size), {QStringLiteral("a"), QStringLiteral("b")},
                                 QStringLiteral("c"));
    return 0;
}
