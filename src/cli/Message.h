#pragma once

#include <QCoreApplication>
#include <QString>

#include <string>

namespace orvcad {

/** What people read, written here in English and shown in their language: Message::tr("Wrote %1 of %2"). What machines read
 *  stays as it is in every language: keys, documents, files and everything under --json. Texts that stand in a table are
 *  marked there, QT_TRANSLATE_NOOP("orvcad", "a list"), and translated where they are shown. The translations stand in
 *  translations/, from where they are built into the command. */
class Message
{
    Q_DECLARE_TR_FUNCTIONS(orvcad)

public:
    /** The same, as the help takes it. */
    static std::string help(const char *english) { return tr(english).toStdString(); }
};

} // namespace orvcad
