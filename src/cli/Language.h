#pragma once

#include <QStringList>
#include <QTranslator>

namespace orvcad {

/** The language of messages. While this object lives, they are in the one that the environment asks for, as other programs
 *  read it (LANGUAGE, LC_ALL, LC_MESSAGES, LANG); in English where there is no other. */
class Language
{
public:
    Language();

    /** The first of the languages that there are messages in: "zh", or "en".
     *  @param wanted  as QLocale::uiLanguages gives them, the dearest first: "zh-Hans-CN" */
    static QString chosen(const QStringList &wanted);

private:
    QTranslator m_messages;
};

} // namespace orvcad
