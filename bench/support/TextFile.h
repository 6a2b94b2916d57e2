#pragma once

#include <QString>

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace bench {

/** A file that is written from its start to its end, however large: only a small part of it stands in memory. Ends the
 *  process when the file cannot be written. */
class TextFile
{
public:
    explicit TextFile(const QString &path);
    ~TextFile();
    TextFile(const TextFile &) = delete;
    TextFile &operator=(const TextFile &) = delete;

    TextFile &operator<<(std::string_view text);
    TextFile &operator<<(const char *text) { return *this << std::string_view(text); }
    TextFile &operator<<(qint64 number) { return *this << std::string_view(std::to_string(number)); }
    TextFile &operator<<(int number) { return *this << static_cast<qint64>(number); }
    /** A comma, but in front of the first entry of a list. */
    void comma(bool isFirst) { *this << (isFirst ? "\n" : ",\n"); }

    /** Bytes written so far. */
    qint64 size() const { return m_size; }

private:
    struct Close
    {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    void flush();

    std::unique_ptr<std::FILE, Close> m_file;
    std::string m_text; ///< not written yet
    qint64 m_size = 0;
};

} // namespace bench
