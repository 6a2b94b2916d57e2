#pragma once

#include "suite/Measurement.h"

namespace bench {

/** All roads with all their sizes, as one table for people or one document for machines. */
class RoadTable
{
public:
    enum class Form { Table, Json };

    explicit RoadTable(Form form);

    /** Whether measurements of a road, by growing size, are all within its bounds. */
    static bool isGood(const Road &road, const std::vector<Measurement> &sizes);
    /** Takes the measurements of a road, by growing size; as a table, prints them. */
    void add(const Road &road, const std::vector<Measurement> &sizes);
    /** Prints what the form has at its end. @return exit code: 0 where everything is within its bounds, else 1 */
    int finish() const;

private:
    struct Row
    {
        const Road *road;
        Measurement cost;
        double growth;      ///< exponent of the time from the smallest size to this one; 0 where there is none
        double growthBound; ///< 0 for none
        QString verdict;    ///< what is wrong; empty for nothing
    };

    static std::vector<Row> rowsOf(const Road &road, const std::vector<Measurement> &sizes);
    static bool isGood(const Row &row) { return row.verdict.isEmpty(); }
    void print(const Row &row) const;

    Form m_form;
    std::vector<Row> m_rows;
};

} // namespace bench
