#include "cli/TextTable.h"

#include "cli/WideCharacters.h"

#include <algorithm>

namespace orvcad {

namespace {

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

QString TextTable::padded(const QString &text, int width, Align align)
{
    const QString blanks(std::max(0, width - shownWidth(text)), QLatin1Char(' '));
    return align == Align::Right ? blanks + text : text + blanks;
}

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
        widths.push_back(shownWidth(column.heading));
    for (const QStringList &row : m_rows)
        for (std::size_t i = 0; i < widths.size(); ++i)
            widths[i] = std::max(widths[i], shownWidth(row.at(static_cast<int>(i))));
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
