#include "ModelSerialization/ReconstructionFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>

#include <cstdlib>

namespace {

using Service = ORVCADBeamLocalModel2HBXService;

/** The file beside the program; tests that touch it take turns, since each runs in a process of its own. */
class BeamSpanFileTest : public ReconstructionFixture
{
protected:
    BeamSpanFileTest() : m_turn(path() + ".lock")
    {
        EXPECT_TRUE(m_turn.lock());
        removeFile();
        newElement(15);
    }
    ~BeamSpanFileTest() override { removeFile(); }

    static QString path() { return QCoreApplication::applicationDirPath() + "/BeamSpanInfo.json"; }
    static void removeFile()
    {
        QFile::remove(path());
        QDir().rmdir(path());
    }
    static QByteArray content()
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    static QJsonObject saved() { return QJsonDocument::fromJson(content()).object(); }

private:
    QLockFile m_turn;
};

TEST_F(BeamSpanFileTest, withoutSpansTheEmptyObjectIsWritten)
{
    EXPECT_TRUE(service->saveBeamSpanInfo());
    EXPECT_EQ(content(), "{\n}\n");
}

TEST_F(BeamSpanFileTest, eachDrawObjectOfAChainHasAllSpans)
{
    EXPECT_EQ(service->localModel2BeamEdo(chain({0, 1, 2}, 2).get(), recorded()), Service::kDone);
    EXPECT_TRUE(service->saveBeamSpanInfo());
    const QJsonObject file = saved();
    ASSERT_EQ(file.size(), 3);
    BeamSpanInfo first;
    first.SpanIndex = 1;
    BeamSpanInfo second;
    second.SpanIndex = 2;
    const QJsonArray spans{first.toJsonObj(), second.toJsonObj()};
    for (IHBXElementDrawObj *object : placed())
        EXPECT_EQ(file.value(QString::number(object->id())).toArray(), spans);
}

TEST_F(BeamSpanFileTest, fileIsIndentedAndEndsWithALine)
{
    service->localModel2BeamEdo(chain({0}, 1).get(), recorded());
    service->saveBeamSpanInfo();
    EXPECT_TRUE(content().startsWith("{\n    \""));
    EXPECT_TRUE(content().endsWith("}\n"));
}

TEST_F(BeamSpanFileTest, spansOfAllBeamsOfTheServiceAreKept)
{
    service->reconstructBeam(beamOf(floorBeam(), {chain({0})}));
    service->reconstructBeam(beamOf(floorBeam(), {chain({0}), chain({0, 2})}));
    service->saveBeamSpanInfo();
    EXPECT_EQ(saved().size(), 3); // of the broken chain what was made
}

TEST_F(BeamSpanFileTest, drawObjectWhoseSegmentFailedIsNotRecorded)
{
    refuse({R"(setString("StartPtTopElev")", R"(setString("EndPtTopElev")"});
    EXPECT_EQ(service->localModel2BeamEdo(chain({0}).get(), recorded()), 108);
    service->saveBeamSpanInfo();
    EXPECT_EQ(content(), "{\n}\n");
}

TEST_F(BeamSpanFileTest, laterRecordOfADrawObjectReplacesTheFormerOne)
{
    service->localModel2BeamEdo(chain({0}, 1).get(), recorded());
    service->reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode_RecordSpanInfo(placed()[0], chain({0}, 3).get());
    service->saveBeamSpanInfo();
    EXPECT_EQ(saved().value(QString::number(placed()[0]->id())).toArray().size(), 3);
}

TEST_F(BeamSpanFileTest, formerFileIsReplacedWhole)
{
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(5000, 'x'));
    file.close();
    EXPECT_TRUE(service->saveBeamSpanInfo());
    EXPECT_EQ(content(), "{\n}\n");
}

TEST_F(BeamSpanFileTest, fileThatCannotBeOpenedIsNoFailure)
{
    ASSERT_TRUE(QDir().mkdir(path()));
    EXPECT_TRUE(service->saveBeamSpanInfo());
    EXPECT_TRUE(QDir(path()).exists());
}

TEST_F(BeamSpanFileTest, copyCarriesTheSpansAndTheServiceBoth)
{
    service->localModel2BeamEdo(chain({0}).get(), recorded());
    Service copy(*service);
    EXPECT_EQ(copy.localModel2BeamEdo(chain({0}).get(), recorded()), Service::kDone);
    copy.saveBeamSpanInfo();
    EXPECT_EQ(saved().size(), 2);
    service->saveBeamSpanInfo();
    EXPECT_EQ(saved().size(), 1);
    copy = *service;
    copy.saveBeamSpanInfo();
    EXPECT_EQ(saved().size(), 1);
}

TEST_F(BeamSpanFileTest, movedFromServiceKeepsItsHostAndHasNoSpans)
{
    service->localModel2BeamEdo(chain({0}).get(), recorded());
    Service moved(std::move(*service));
    moved.saveBeamSpanInfo();
    EXPECT_EQ(saved().size(), 1);
    service->saveBeamSpanInfo(); // NOLINT(bugprone-use-after-move): what is promised of it
    EXPECT_EQ(content(), "{\n}\n");
    EXPECT_EQ(service->localModel2BeamEdo(chain({0}).get(), recorded()), Service::kDone);
    moved = std::move(*service);
    service->saveBeamSpanInfo(); // NOLINT(bugprone-use-after-move): likewise
    EXPECT_EQ(content(), "{\n}\n");
    moved.saveBeamSpanInfo();
    EXPECT_EQ(saved().size(), 1);
}

TEST_F(BeamSpanFileTest, withoutAFolderOfTheProgramNothingIsSaved)
{
    // Without an application there is no such folder; a process of its own can do without.
    const auto saveWithoutApplication = [this] {
        QCoreApplication::instance()->~QCoreApplication();
        std::_Exit(service->saveBeamSpanInfo() ? 1 : 0);
    };
    EXPECT_EXIT(saveWithoutApplication(), testing::ExitedWithCode(0), "");
}

} // namespace
