#include "support/TextFile.h"

#include <cstdlib>

namespace bench {

namespace {

constexpr std::size_t kPiece = 1 << 20; // bytes

} // namespace

TextFile::TextFile(const QString &path) : m_file(std::fopen(path.toLocal8Bit().constData(), "wb"))
{
    if (!m_file) {
        std::perror(path.toLocal8Bit().constData());
        std::exit(EXIT_FAILURE);
    }
}

TextFile::~TextFile() { flush(); }

TextFile &TextFile::operator<<(std::string_view text)
{
    m_text += text;
    m_size += static_cast<qint64>(text.size());
    if (m_text.size() >= kPiece)
        flush();
    return *this;
}

void TextFile::flush()
{
    if (std::fwrite(m_text.data(), 1, m_text.size(), m_file.get()) != m_text.size() || std::fflush(m_file.get()) != 0) {
        std::perror("cannot write");
        std::exit(EXIT_FAILURE);
    }
    m_text.clear();
}

} // namespace bench
