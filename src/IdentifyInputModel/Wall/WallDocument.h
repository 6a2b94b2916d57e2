#pragma once

#include <QString>

#include <string>

/** The road of a whole document, the same for every wall model. */
namespace wall {

/** @param Archive      JSON or XML
 *  @param Translator   made over the archive
 *  @param save         called with the translator
 *  @return the document's text */
template <typename Archive, typename Translator, typename Save> std::wstring documentText(Save &&save)
{
    Archive archive{QString()};
    Translator translator(&archive);
    save(translator);
    archive.save(QString());
    return archive.content().toStdWString();
}

/** Calls load with the translator, unless the text is no document: nothing happens then. */
template <typename Archive, typename Translator, typename Load> void loadDocument(const std::wstring &text, Load &&load)
{
    Archive archive(QString::fromStdWString(text));
    if (!archive.parse())
        return;
    Translator translator(&archive);
    load(translator);
}

} // namespace wall
