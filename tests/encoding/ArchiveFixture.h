#pragma once

#include "encoding/ORVCADFileSerialization.h"

#include <gtest/gtest.h>

#include <memory>

using RecordMap = QMap<QString, QStringList>;

/** An archive that is written to, and the three ways of reading what stands under the key "k" of a text. */
template <typename Archive> class ArchiveFixture : public testing::Test
{
protected:
    /** An archive that has parsed the text; null if that failed. */
    static std::unique_ptr<Archive> parsed(const QString &text)
    {
        auto archive = std::make_unique<Archive>(text);
        return archive->parse() ? std::move(archive) : nullptr;
    }
    static QString record(const QString &text, QString record = {})
    {
        parsed(text)->readRecord("k", record);
        return record;
    }
    static QStringList list(const QString &text, QStringList records = {})
    {
        parsed(text)->readRecordList("k", records);
        return records;
    }
    static RecordMap map(const QString &text, RecordMap records = {})
    {
        parsed(text)->readRecordMap("k", records);
        return records;
    }
    /** A map, written and read. */
    RecordMap readBack(RecordMap records)
    {
        written.writeRecordMap("k", records);
        written.save({});
        return map(written.content());
    }

    Archive written{QString()};
};
