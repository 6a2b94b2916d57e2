#include "support/FuzzInput.h"

#include "support/QtJsonLeaks.h"

#include <QJsonDocument>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace fuzz {

QJsonObject objectOf(const std::uint8_t *data, std::size_t size)
{
    const QByteArray json = bytesOf(data, size);
    const QtJsonLeaks leaks(json);
    return QJsonDocument::fromJson(json).object();
}

void require(bool holds, const char *promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", promise);
    std::abort();
}

} // namespace fuzz

/** Warnings of readers are no findings, and would be most of what a run prints. */
extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}
