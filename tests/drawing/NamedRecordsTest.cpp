#include "drawing/NamedRecords.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace {

/** The least that the list asks of a record. */
class Record
{
public:
    explicit Record(const QString &name) : m_name(name) {}
    const QString &name() const { return m_name; }

private:
    QString m_name;
};

class NamedRecordsTest : public testing::Test
{
protected:
    Record *make(const QString &name)
    {
        m_made.push_back(std::make_unique<Record>(name));
        return m_made.back().get();
    }
    /** Record0, Record1 and so on: more than are searched by walking. */
    void appendMany(int count)
    {
        for (int i = 0; i < count; ++i)
            records.append(make(nameOf(i)));
    }
    static QString nameOf(int i) { return QStringLiteral("Record%1").arg(i); }
    /** Searches until the list would be indexed, had it not been so before. */
    void searchOften() const
    {
        for (int i = 0; i < 20; ++i)
            EXPECT_EQ(records.first(QStringLiteral("none")), nullptr);
    }

    drawing::NamedRecords<Record, &Record::name> records;

private:
    std::vector<std::unique_ptr<Record>> m_made;
};

} // namespace

TEST_F(NamedRecordsTest, emptyListFindsNothing)
{
    EXPECT_EQ(records.first(QString()), nullptr);
    EXPECT_EQ(records.takeFirst(QString()), nullptr);
}

TEST_F(NamedRecordsTest, firstOfANameIsFoundInShortAndLongLists)
{
    for (const int count : {3, 16, 17, 500}) {
        records = {};
        appendMany(count);
        auto *second = make(nameOf(1));
        records.append(second);
        EXPECT_EQ(records.first(nameOf(1)), records.list().at(1)) << count;
        EXPECT_EQ(records.first(nameOf(count - 1)), records.list().at(count - 1)) << count;
        EXPECT_EQ(records.first(nameOf(count)), nullptr) << count;
    }
}

TEST_F(NamedRecordsTest, namesAreComparedExactly)
{
    appendMany(100);
    records.append(make(QString()));
    EXPECT_EQ(records.first(QStringLiteral("record7")), nullptr);
    EXPECT_EQ(records.first(QString()), records.list().last());
}

TEST_F(NamedRecordsTest, takenRecordIsFoundNoMoreAndTheNextOfItsNameIs)
{
    appendMany(100);
    auto *second = make(nameOf(40));
    records.append(second);
    auto *first = records.first(nameOf(40));
    EXPECT_EQ(records.takeFirst(nameOf(40)), first);
    EXPECT_EQ(records.first(nameOf(40)), second);
    EXPECT_EQ(records.takeFirst(nameOf(40)), second);
    EXPECT_EQ(records.first(nameOf(40)), nullptr);
    EXPECT_EQ(records.list().size(), 99);
}

TEST_F(NamedRecordsTest, othersAreFoundAfterOneWasTaken)
{
    appendMany(100);
    records.takeFirst(nameOf(0));
    searchOften();
    for (int i = 1; i < 100; ++i)
        EXPECT_EQ(records.first(nameOf(i)), records.list().at(i - 1)) << i;
}

TEST_F(NamedRecordsTest, changesOfTheListFromOutsideAreNoticed)
{
    appendMany(100);
    searchOften();
    auto *inserted = make(nameOf(50));
    records.list().prepend(inserted);
    EXPECT_EQ(records.first(nameOf(50)), inserted);
    searchOften();
    records.list().removeAt(1);
    EXPECT_EQ(records.first(nameOf(0)), nullptr);
    searchOften();
    auto *appended = make(QStringLiteral("last"));
    records.list().append(appended);
    EXPECT_EQ(records.first(QStringLiteral("last")), appended);
    records.list().clear();
    EXPECT_EQ(records.first(nameOf(50)), nullptr);
    records.append(appended);
    EXPECT_EQ(records.first(QStringLiteral("last")), appended);
}

TEST_F(NamedRecordsTest, listReplacedFromOutsideIsSearchedAnew)
{
    appendMany(100);
    searchOften();
    QList<Record *> others;
    for (int i = 0; i < 100; ++i)
        others.append(make(QStringLiteral("Other%1").arg(i)));
    records.list() = others;
    EXPECT_EQ(records.first(nameOf(3)), nullptr);
    EXPECT_EQ(records.first(QStringLiteral("Other3")), others.at(3));
    searchOften();
    EXPECT_EQ(records.first(QStringLiteral("Other99")), others.at(99));
}

TEST_F(NamedRecordsTest, recordWrittenThroughAnOldReferenceIsNotTakenForTheOldOne)
{
    appendMany(100);
    Record *&place = records.list()[30];
    searchOften(); // indexes the list with the place as it is
    place = nullptr;
    EXPECT_EQ(records.first(nameOf(30)), nullptr);
    EXPECT_EQ(records.first(nameOf(31)), records.list().at(31));
}

TEST_F(NamedRecordsTest, nullEntriesArePassedOver)
{
    records.append(nullptr);
    appendMany(100);
    records.append(nullptr);
    searchOften();
    EXPECT_EQ(records.first(nameOf(0)), records.list().at(1));
    EXPECT_EQ(records.first(QString()), nullptr);
}

TEST_F(NamedRecordsTest, copyIsSearchedForItself)
{
    appendMany(100);
    searchOften();
    auto copy = records;
    auto *inCopy = make(QStringLiteral("in the copy"));
    copy.append(inCopy);
    EXPECT_EQ(copy.first(QStringLiteral("in the copy")), inCopy);
    EXPECT_EQ(records.first(QStringLiteral("in the copy")), nullptr);
    copy.takeFirst(nameOf(2));
    EXPECT_EQ(copy.first(nameOf(2)), nullptr);
    EXPECT_NE(records.first(nameOf(2)), nullptr);
}
