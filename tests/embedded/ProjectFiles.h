#pragma once

#include "embedded/ExchangeDocuments.h"
#include "platform/embedded/HBXDatabaseFile.h"
#include "platform/embedded/HBXExchangeWriter.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QDir>
#include <QTemporaryDir>

#include <ostream>
#include <string>

/** Project files for tests, and other programs that have their hands on them. */
namespace projecttest {

/** Connection of another program. */
class OtherProgram
{
public:
    explicit OtherProgram(const QString &path) { sqlite3_open(path.toUtf8().constData(), &m_handle); }
    ~OtherProgram() { sqlite3_close(m_handle); }
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

    void run(const char *sql)
    {
        char *message = nullptr;
        EXPECT_EQ(sqlite3_exec(m_handle, sql, nullptr, nullptr, &message), SQLITE_OK) << sql << ": " << message;
        sqlite3_free(message);
    }
    /** First column of the first row as text. */
    std::string value(const char *sql)
    {
        std::string text;
        sqlite3_stmt *statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(m_handle, sql, -1, &statement, nullptr), SQLITE_OK) << sqlite3_errmsg(m_handle);
        if (sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_text(statement, 0))
            text = reinterpret_cast<const char *>(sqlite3_column_text(statement, 0));
        sqlite3_finalize(statement);
        return text;
    }

private:
    sqlite3 *m_handle = nullptr;
};

/** All that a record holds, as text that tells any two apart. */
inline std::string contentOf(const hbx::embedded::ProjectRecord &project)
{
    std::string ids = std::to_string(project.nextId);
    for (const auto &region : project.regions)
        ids += " r" + std::to_string(region.id);
    for (const auto &floor : project.floors)
        ids += " f" + std::to_string(floor.id);
    for (const auto &element : project.elements)
        ids += " e" + std::to_string(element.id);
    for (const auto &drawObj : project.drawObjs)
        ids += " d" + std::to_string(drawObj.id);
    return ids + '\n' + hbx::embedded::HBXExchangeWriter::write(project).toStdString();
}

/** A folder with a project file in it. */
class ProjectFileTest : public ::testing::Test
{
protected:
    QString path(const QString &name = "house.hbxdb") const { return m_folder.filePath(name); }

    hbx::embedded::ProjectRecord makeFile(const QByteArray &json = exchangetest::kSmallBuilding)
    {
        auto record = exchangetest::recordOf(json);
        hbx::embedded::ProjectError error;
        EXPECT_TRUE(hbx::embedded::HBXDatabaseFile(path()).create(record, error)) << error.text().toStdString();
        return record;
    }
    void changeFile(const char *sql) { OtherProgram(path()).run(sql); }
    void writeFile(const QByteArray &bytes)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QByteArray bytes() const { return exchangetest::fileContent(path()); }
    QStringList filesInFolder() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

    /** "read", or place and reason of the refusal, which must leave the file as it is. */
    std::string refusal() const
    {
        const QByteArray before = bytes();
        const QStringList files = filesInFolder();
        hbx::embedded::ProjectError error;
        const bool isRead = hbx::embedded::HBXDatabaseFile(path()).read(error).has_value();
        EXPECT_TRUE(bytes() == before) << "the file was touched";
        EXPECT_EQ(filesInFolder(), files);
        EXPECT_TRUE(isRead || error.file == path());
        error.file.clear();
        return isRead ? "read" : error.text().toStdString();
    }
    std::string content() const
    {
        hbx::embedded::ProjectError error;
        const auto record = hbx::embedded::HBXDatabaseFile(path()).read(error);
        return record ? contentOf(*record) : error.text().toStdString();
    }

    QTemporaryDir m_folder;
};

/** What another program does to a file, and what is told of it then. */
struct Damage
{
    const char *sql;
    const char *told;
};

inline void PrintTo(const Damage &damage, std::ostream *out) { *out << damage.sql; }

class DamagedFileTest : public ProjectFileTest, public ::testing::WithParamInterface<Damage>
{
protected:
    void expectTold()
    {
        makeFile();
        changeFile(GetParam().sql);
        EXPECT_EQ(refusal(), GetParam().told);
    }
};

/** An update without changes of a project. */
inline hbx::embedded::ProjectUpdate updateOf(const hbx::embedded::ProjectRecord &project)
{
    hbx::embedded::ProjectUpdate update;
    static_cast<hbx::embedded::ProjectSettings &>(update.content) = project;
    update.content.nextId = project.nextId;
    return update;
}

/** The small building in a file that was read, and an update that changes nothing in it yet. */
class SavedFileTest : public ProjectFileTest
{
protected:
    SavedFileTest() : project(makeFile()), file(path()), update(updateOf(project))
    {
        EXPECT_TRUE(file.read(error)) << error.text().toStdString();
    }
    void save() { EXPECT_TRUE(file.save(update, error)) << error.text().toStdString(); }
    std::string value(const char *sql) { return OtherProgram(path()).value(sql); }

    hbx::embedded::ProjectRecord project;
    hbx::embedded::HBXDatabaseFile file;
    hbx::embedded::ProjectUpdate update;
    hbx::embedded::ProjectError error;
};

} // namespace projecttest
