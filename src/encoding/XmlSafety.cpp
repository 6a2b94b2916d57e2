#include "encoding/XmlSafety.h"

#include <QXmlInputSource>

namespace encoding {

namespace {

/** Something that begins with "<" and in which tags are only characters. */
struct Section
{
    QStringView start;
    QStringView end;
};

constexpr Section kSections[] = {{u"<!--", u"-->"}, {u"<![CDATA[", u"]]>"}, {u"<?", u"?>"}};

const Section *sectionAt(QStringView text)
{
    if (text.size() < 2 || (text[1] != u'!' && text[1] != u'?'))
        return nullptr; // a tag, as nearly always
    for (const Section &one : kSections)
        if (text.startsWith(one.start))
            return &one;
    return nullptr;
}

/** How long a tag is, the ">" behind its quoted values included; -1 for one that does not end. */
qsizetype tagLength(QStringView text)
{
    QChar quote;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (!quote.isNull())
            quote = c == quote ? QChar() : quote;
        else if (c == u'"' || c == u'\'')
            quote = c;
        else if (c == u'>')
            return i + 1;
    }
    return -1;
}

/** Walks the text from one "<" to the next. */
class Walk
{
public:
    explicit Walk(QStringView text) : m_text(text) {}

    bool isSafe()
    {
        while (toNextStart())
            if (!passOne())
                return false;
        return true;
    }

private:
    bool toNextStart()
    {
        const auto start = m_text.indexOf(u'<');
        m_text = start < 0 ? QStringView() : m_text.mid(start);
        return !m_text.isEmpty();
    }
    bool passOne()
    {
        if (const Section *section = sectionAt(m_text)) {
            const auto end = m_text.indexOf(section->end, section->start.size());
            skip(end < 0 ? -1 : end + section->end.size());
            return true;
        }
        return !m_text.startsWith(QStringView(u"<!")) && passTag();
    }
    bool passTag()
    {
        const qsizetype length = tagLength(m_text);
        const bool isEnd = m_text.startsWith(QStringView(u"</"));
        const bool isEmpty = length >= 2 && m_text[length - 2] == u'/';
        skip(length);
        if (isEnd)
            m_level -= m_level > 0 ? 1 : 0;
        else if (m_level >= kMostXmlLevels)
            return false;
        else if (!isEmpty)
            ++m_level;
        return true;
    }
    /** What does not end goes on to the end of the text. */
    void skip(qsizetype length) { m_text = length < 0 ? QStringView() : m_text.mid(length); }

    QStringView m_text;
    int m_level = 0;
};

} // namespace

bool isSafeXml(QStringView text) { return Walk(text).isSafe(); }

QString decodedXml(const QByteArray &bytes)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // it decodes exactly as the parser behind QDomDocument does
        QXmlInputSource source;
    source.setData(bytes);
    return source.data();
    QT_WARNING_POP
}

} // namespace encoding
