#include "cli/Language.h"

#include <QCoreApplication>
#include <QLocale>

namespace orvcad {

namespace {
const QString kOfSources = QStringLiteral("en");
} // namespace

Language::Language()
{
    if (m_messages.load(QStringLiteral(":/translations/orvcad_") + chosen(QLocale::system().uiLanguages())))
        QCoreApplication::installTranslator(&m_messages);
}

QString Language::chosen(const QStringList &wanted)
{
    const QStringList there{kOfSources, QStringLiteral("zh")};
    for (const QString &language : wanted) {
        QString name = language.section(QLatin1Char('-'), 0, 0);
        if (there.contains(name))
            return name;
    }
    return kOfSources;
}

} // namespace orvcad
