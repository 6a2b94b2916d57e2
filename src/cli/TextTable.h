#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace orvcad {

/** Rows of cells under a heading, printed in columns that are as wide as their widest cell. Chinese characters count as
 *  two columns of the terminal. */
class TextTable
{
public:
    enum class Align { Left, Right };
    struct Column
    {
        QString heading;
        Align align = Align::Left;
    };

    explicit TextTable(std::vector<Column> columns) : m_columns(std::move(columns)) {}

    /** As many cells as there are columns. Control characters, which would move the cursor, become blanks. */
    void add(const QStringList &cells);
    bool isEmpty() const { return m_rows.empty(); }
    /** The heading and the rows, without blanks at their ends. */
    QStringList lines() const;

    /** A cell of a line that is no part of a table, with blanks up to its width; a wider one stays whole. */
    static QString padded(const QString &text, int width, Align align);

private:
    std::vector<int> widths() const;

    std::vector<Column> m_columns;
    std::vector<QStringList> m_rows;
};

} // namespace orvcad
