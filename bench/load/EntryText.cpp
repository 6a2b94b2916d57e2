#include "load/EntryText.h"

#include "support/TextFile.h"

namespace load {

namespace {

/** Lays JSON out that comes piece by piece. */
class JsonLayout
{
public:
    explicit JsonLayout(Layout layout) : m_isIndented(layout == Layout::Indented) {}

    std::string operator()(std::string_view compact)
    {
        if (!m_isIndented)
            return std::string(compact);
        std::string text;
        for (const char c : compact)
            add(text, c);
        return text;
    }

private:
    void add(std::string &text, char c)
    {
        m_isText = m_isText != (c == '"'); // no entry has a quote within a text
        if (m_isText || c == '"') {
            text += c;
            return;
        }
        if (c == '}' || c == ']')
            breakLine(text, -1);
        text += c;
        if (c == '{' || c == '[')
            breakLine(text, 1);
        else if (c == ',')
            breakLine(text, 0);
        else if (c == ':')
            text += ' ';
    }
    void breakLine(std::string &text, int deeper)
    {
        constexpr std::size_t kIndent = 4;
        m_depth += static_cast<std::size_t>(deeper);
        text += '\n';
        text.append(m_depth * kIndent, ' ');
    }

    bool m_isIndented;
    bool m_isText = false;
    std::size_t m_depth = 0;
};

void writeEntry(bench::TextFile &file, std::string_view entry, qint64 number)
{
    for (auto at = entry.find('#'); at != std::string_view::npos; at = entry.find('#')) {
        file << entry.substr(0, at) << number;
        entry.remove_prefix(at + 1);
    }
    file << entry;
}

} // namespace

qint64 EntryText::write(const QString &path, qint64 bytes, qint64 entries, Layout layout) const
{
    JsonLayout laidOut(*start == '{' ? layout : Layout::Compact);
    bench::TextFile file(path);
    file << laidOut(start);
    const std::string one = laidOut(entry);
    const std::string separator = laidOut(between);
    qint64 number = 0;
    for (; number < entries && file.size() < bytes; ++number) {
        if (number > 0)
            file << separator;
        writeEntry(file, one, number);
    }
    file << laidOut(end);
    return number;
}

} // namespace load
