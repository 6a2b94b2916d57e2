#pragma once

#include <QString>

#include <string>

/** The road of a whole document, the same for every wall model. */
namespace wall {

/** @tparam Archive     JSON or XML
 *  @tparam Translator  made over the archive
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

/** An archive that gives its text up for the bytes that are parsed: a large document need not stand in memory twice. */
template <typename Archive> class ReadingArchive : public Archive
{
public:
    explicit ReadingArchive(const std::wstring &text) : Archive(QString::fromStdWString(text)) {}

    bool parseAndDropText()
    {
        const QByteArray bytes = Archive::encodedContent();
        Archive::m_content = QString();
        return Archive::parse(bytes);
    }
};

/** Calls load with the translator, unless the text is no document: nothing happens then. */
template <typename Archive, typename Translator, typename Load> void loadDocument(const std::wstring &text, Load &&load)
{
    ReadingArchive<Archive> archive(text);
    if (!archive.parseAndDropText())
        return;
    Translator translator(&archive);
    load(translator);
}

} // namespace wall
