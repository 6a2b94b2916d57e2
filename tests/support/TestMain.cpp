#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QLocale>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cstdio>

namespace {

/** Warnings are part of what a test prints, in order with the rest of it. */
void printMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    std::fprintf(stdout, "%s\n", qPrintable(text));
    std::fflush(stdout);
}

/** Nothing a test sees may depend on the machine: C conventions (with UTF-8 file names), English, UTC, one order of
 *  hashes. */
void pinSurroundings()
{
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("LANGUAGE", "en");
    qputenv("TZ", "UTC");
    qputenv("QT_HASH_SEED", "0");
    qSetGlobalQHashSeed(0);
    QLocale::setDefault(QLocale::c());
}

} // namespace

/** The one main of all test programs. Each run stands in a fresh folder of its own, which goes when it ends. */
int main(int argc, char **argv)
{
    pinSurroundings();
    qInstallMessageHandler(printMessage);
    QCoreApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);

    const QString start = QDir::currentPath();
    QTemporaryDir folder(start + QStringLiteral("/run-XXXXXX"));
    if (!folder.isValid() || !QDir::setCurrent(folder.path())) {
        std::fprintf(stderr, "no folder to run in below %s\n", qPrintable(start));
        return 1;
    }
    const int result = RUN_ALL_TESTS();
    QDir::setCurrent(start);
    return result;
}
