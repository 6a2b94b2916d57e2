#include "cli/TextTable.h"

#include "cli/WideCharacters.h"

#include <algorithm>
#include <numeric>

namespace orvcad {

namespace {

/** Terminals draw wide characters over two columns. */
int widthOf(const QString &text)
{
    return std::accumulate(text.begin(), text.end(), 0,
                           [](int sum, QChar character) { return sum + (isWide(character) ? 2 : 1); });
}

QString padded(const QString &text, int width, TextTable::Align align)
{
    const QString blanks(std::max(0, width - widthOf(text)), QLatin1Char(' '));
    return align == TextTable::Align::Right ? blanks + text : text + blanks;
}

QString withoutBlanksAtTheEnd(QString line)
{
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return line;
}

QString printable(QString text)
{
    for (QChar &character : text)
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    return text;
}

} // namespace

void TextTable::add(const QStringList &cells)
{
    QStringList row;
    for (const QString &cell : cells)
        row.append(printable(cell));
    m_rows.push_back(row);
}

std::vector<int> TextTable::widths() const
{
    std::vector<int> widths;
    for (const Column &column : m_columns)
        widths.push_back(widthOf(column.heading));
    for (const QStringList &row : m_rows)
        for (std::size_t i = 0; i < widths.size(); ++i)
            widths[i] = std::max(widths[i], widthOf(row.at(static_cast<int>(i))));
    return widths;
}

QStringList TextTable::lines() const
{
    const std::vector<int> columnWidths = widths();
    const auto line = [&](const QStringList &row) {
        QStringList cells;
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            cells.append(padded(row.at(static_cast<int>(i)), columnWidths[i], m_columns[i].align));
        return withoutBlanksAtTheEnd(cells.join(QStringLiteral("  ")));
    };
    QStringList headings;
    for (const Column &column : m_columns)
        headings.append(column.heading);
    QStringList lines{line(headings)};
    for (const QStringList &row : m_rows)
        lines.append(line(row));
    return lines;
}

} // namespace orvcad
