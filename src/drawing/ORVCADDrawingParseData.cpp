#include "drawing/ORVCADDrawingParseData.h"

#include "drawing/DrawingKeys.h"
#include "encoding/JsonMembers.h"
#include "encoding/NumberText.h"

#include <QJsonArray>

#include <utility>
#include <vector>

namespace key = drawing::key;

namespace {

using Levels = QList<ORVCADConcreteLevel>;
using Members = std::vector<encoding::JsonMember>;

struct TypeWord
{
    int type;
    const char *word; // UTF-8
};

constexpr TypeWord kTypeWords[] = {{kFloorTable, "楼层表"}, {kColumnTable, "柱表"}};

QString wordOf(int type)
{
    for (const TypeWord &row : kTypeWords)
        if (row.type == type)
            return QString::fromUtf8(row.word);
    return QString();
}

int typeOf(const QString &word)
{
    for (const TypeWord &row : kTypeWords)
        if (word == QString::fromUtf8(row.word))
            return row.type;
    return kUnknownTable;
}

/** The records by their row numbers, in decimal. */
template <typename Record, typename Write> QJsonObject byRow(const QList<Record> &records, Write write)
{
    Members members;
    for (const Record &record : records)
        members.emplace_back(QString::number(record.row), write(record));
    return encoding::objectOf(std::move(members));
}

QJsonValue writeRange(const std::array<int, 4> &range) { return QJsonArray{range[0], range[1], range[2], range[3]}; }

QJsonValue writeCells(const ORVCADTableRowData &row) { return QJsonArray::fromStringList(row.cells); }

QJsonValue writeLevel(const ORVCADConcreteLevel &level)
{
    Members members;
    for (const auto &value : level.values)
        members.emplace_back(value.first, value.second);
    return encoding::objectOf(std::move(members));
}

QJsonObject writeTable(const ORVCADTableData &table)
{
    return {{key::type, wordOf(table.type)},
            {key::lowerDrawingName, table.drawingName},
            {key::range, writeRange(table.range)},
            {key::data, byRow(table.rows, writeCells)},
            {key::concrete, byRow(table.concrete, writeLevel)}};
}

constexpr int kLongestRowNumber = 10; // digits

/** What stands under 0, 1 and so on, as far as there are members; read(row, value, records) for each. */
template <typename Record, typename Read> QList<Record> fromRows(const QJsonObject &object, Read read)
{
    QList<Record> records;
    records.reserve(object.size());
    QString key;
    key.reserve(kLongestRowNumber); // kept from row to row
    for (int row = 0; row < object.size(); ++row) {
        key.resize(0);
        encoding::appendInteger(key, row);
        read(row, object.value(key), records);
    }
    return records;
}

void readCells(int row, const QJsonValue &value, QList<ORVCADTableRowData> &rows)
{
    if (!value.isArray())
        return;
    rows.append({row, {}});
    QStringList &texts = rows.last().cells;
    const QJsonArray cells = value.toArray();
    texts.reserve(cells.size());
    for (const QJsonValue cell : cells)
        if (cell.isString())
            texts.append(cell.toString());
}

void readLevel(int row, const QJsonValue &value, Levels &levels)
{
    if (!value.isObject())
        return;
    ORVCADConcreteLevel read;
    read.row = row;
    const QJsonObject grades = value.toObject();
    for (auto grade = grades.begin(); grade != grades.end(); ++grade)
        if (grade.value().isString())
            read.values.append({grade.key(), grade.value().toString()});
    levels.append(read);
}

/** @param shared  the root's concrete grades
 *  @return false for a table that is left out */
bool readTable(const QJsonObject &json, const Levels &shared, ORVCADTableData &table)
{
    const QJsonValue name = json.value(key::lowerDrawingName);
    const QJsonValue type = json.value(key::type);
    const QJsonValue data = json.value(key::data);
    if (!data.isUndefined() && !data.isObject())
        return false;
    if (!name.isUndefined())
        table.drawingName = name.toString();
    if (!type.isUndefined())
        table.type = typeOf(type.toString());
    table.rows = fromRows<ORVCADTableRowData>(data.toObject(), readCells);
    if (json.contains(key::concrete))
        table.concrete = shared; // meant: the root's, not the table's own
    return true;
}

} // namespace

QJsonObject ORVCADDrawingParseData::toJson() const
{
    Members members;
    for (int i = 0; i < m_tables.size(); ++i)
        members.emplace_back(key::table + QString::number(i), writeTable(m_tables.at(i)));
    return encoding::objectOf(std::move(members));
}

QList<ORVCADTableData> ORVCADDrawingParseData::fromJson(const QJsonObject &root)
{
    const Levels shared = fromRows<ORVCADConcreteLevel>(root.value(key::concrete).toObject(), readLevel);
    QList<ORVCADTableData> tables;
    for (const QJsonValue member : root) {
        ORVCADTableData table;
        if (member.isObject() && readTable(member.toObject(), shared, table))
            tables.append(table);
    }
    return tables;
}
