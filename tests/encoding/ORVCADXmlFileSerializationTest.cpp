#include "encoding/ORVCADXmlFileSerialization.h"

#include "encoding/ArchiveFixture.h"
#include "encoding/LocaleCodec.h"

namespace {

const char *const kDeclaration = "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n";

class ORVCADXmlFileSerializationTest : public ArchiveFixture<ORVCADXmlFileSerialization>
{
protected:
    /** What save makes of what was written, without the declaration. */
    QString saved()
    {
        written.save("ignored");
        EXPECT_TRUE(written.content().startsWith(kDeclaration));
        return written.content().mid(static_cast<int>(qstrlen(kDeclaration)));
    }
};

TEST_F(ORVCADXmlFileSerializationTest, documentWithoutRecordsIsTheRootAlone) { EXPECT_EQ(saved(), "<XmlRoot/>\n"); }

TEST_F(ORVCADXmlFileSerializationTest, itemsOfARecordBecomeAttributesInTheirOrder)
{
    written.writeRecord("k", "edoId:12/entName/alpha:1.5");
    EXPECT_EQ(saved(), "<XmlRoot>\n <k edoId=\"12\" entName=\"\" alpha=\"1.5\"/>\n</XmlRoot>\n");
}

TEST_F(ORVCADXmlFileSerializationTest, recordWithoutItemsIsAnElementWithoutAttributes)
{
    written.writeRecord("k", "");
    EXPECT_EQ(saved(), "<XmlRoot>\n <k/>\n</XmlRoot>\n");
}

TEST_F(ORVCADXmlFileSerializationTest, itemWithAnEmptyKeyMakesNoAttribute)
{
    written.writeRecord("k", "a:1/:2//b");
    EXPECT_EQ(saved(), "<XmlRoot>\n <k a=\"1\" b=\"\"/>\n</XmlRoot>\n");
}

TEST_F(ORVCADXmlFileSerializationTest, keyThatIsNoNameBecomesAnAttributeAndTheDocumentDoesNotParse)
{
    written.writeRecord("k", "text:200/3");
    EXPECT_EQ(saved(), "<XmlRoot>\n <k text=\"200\" 3=\"\"/>\n</XmlRoot>\n");
    EXPECT_FALSE(parsed(written.content()));
}

TEST_F(ORVCADXmlFileSerializationTest, listIsAnElementAroundElementsOfTheSameName)
{
    written.writeRecordList("k", {"a:2", "a:1", ""});
    written.writeRecordList("none", {});
    EXPECT_EQ(saved(), "<XmlRoot>\n <k>\n  <k a=\"2\"/>\n  <k a=\"1\"/>\n  <k/>\n </k>\n <none/>\n</XmlRoot>\n");
}

TEST_F(ORVCADXmlFileSerializationTest, mapPutsValuesInsideTheirKeysAndCountsThemThere)
{
    RecordMap records{{"WALL", {"a:1", "a:2"}}, {"AXIS:3/B", {"b"}}};
    written.writeRecordMap("k", records);
    EXPECT_EQ(saved(), "<XmlRoot>\n"
                       " <k>\n"
                       "  <key_0 AXIS=\"3\" B=\"\">\n"
                       "   <value_0 b=\"\"/>\n"
                       "  </key_0>\n"
                       "  <key_1 WALL=\"\">\n"
                       "   <value_0 a=\"1\"/>\n"
                       "   <value_1 a=\"2\"/>\n"
                       "  </key_1>\n"
                       " </k>\n"
                       "</XmlRoot>\n");
}

TEST_F(ORVCADXmlFileSerializationTest, mapKeyWithABarStandsInTheAttributeLayerName)
{
    RecordMap records{{"PLAN|WALL:lost/x:1", {}}};
    written.writeRecordMap("k", records);
    EXPECT_EQ(saved(), "<XmlRoot>\n <k>\n  <key_0 layerName=\"PLAN|WALL\" x=\"1\"/>\n </k>\n</XmlRoot>\n");
}

TEST_F(ORVCADXmlFileSerializationTest, ofTwoItemsWithABarTheLastIsKept)
{
    RecordMap records{{"A|B/C|D", {}}};
    written.writeRecordMap("k", records);
    EXPECT_EQ(saved(), "<XmlRoot>\n <k>\n  <key_0 layerName=\"C|D\"/>\n </k>\n</XmlRoot>\n");
}

TEST_F(ORVCADXmlFileSerializationTest, barInAValueRecordIsNoLayerName)
{
    written.writeRecord("k", "a|b:1");
    EXPECT_EQ(saved(), "<XmlRoot>\n <k a|b=\"1\"/>\n</XmlRoot>\n");
}

TEST_F(ORVCADXmlFileSerializationTest, emptyKeyWritesNothing)
{
    RecordMap records{{"a", {}}};
    written.writeRecord("", "a:1");
    written.writeRecordList("", {"a:1"});
    written.writeRecordMap("", records);
    EXPECT_EQ(saved(), "<XmlRoot/>\n");
}

TEST_F(ORVCADXmlFileSerializationTest, savingTwiceGivesTheSame)
{
    written.writeRecord("k", "a:1");
    const QString once = saved();
    EXPECT_EQ(saved(), once);
}

TEST_F(ORVCADXmlFileSerializationTest, archiveMadeWithATextWritesNothing)
{
    const QString text = "<r><k a=\"1\"/></r>";
    ORVCADXmlFileSerialization archive(text);
    RecordMap records;
    archive.writeRecord("x", "a:1");
    archive.writeRecordList("x", {"a:1"});
    archive.writeRecordMap("x", records);
    archive.save({});
    EXPECT_EQ(archive.content(), text);
    EXPECT_TRUE(archive.parse());
}

TEST_F(ORVCADXmlFileSerializationTest, recordReadsBack)
{
    written.writeRecord("k", "edoId:12/entName/poly:0,0;100,0;100,100;");
    written.save({});
    EXPECT_EQ(record(written.content()), "edoId:12/entName/poly:0,0;100,0;100,100;");
}

TEST_F(ORVCADXmlFileSerializationTest, recordWithoutAttributesReadsAsEmptyAndNotAsMissing)
{
    const QString found = record("<r><k/></r>");
    EXPECT_TRUE(found.isEmpty());
    EXPECT_FALSE(found.isNull());
    EXPECT_TRUE(record("<r><x/></r>").isNull());
}

TEST_F(ORVCADXmlFileSerializationTest, attributesReadInTheOrderOfTheirNames)
{
    EXPECT_EQ(record("<r><k z='1' a='2' m=''/></r>"), "a:2/m/z:1");
}

TEST_F(ORVCADXmlFileSerializationTest, manyAttributesReadWholeAndInOrder)
{
    QString attributes;
    QStringList items;
    for (int i = 100000; i < 200000; ++i) {
        attributes += QStringLiteral(" a%1=' &lt;=&quot;%1'").arg(i);
        items += QStringLiteral("a%1: <=\"%1").arg(i);
    }
    EXPECT_EQ(record("<r><k" + attributes + "/></r>"), items.join('/'));
}

TEST_F(ORVCADXmlFileSerializationTest, recordIsAppended) { EXPECT_EQ(record("<r><k a='1'/></r>", "x/"), "x/a:1"); }

TEST_F(ORVCADXmlFileSerializationTest, laterElementOfANameCounts)
{
    EXPECT_EQ(record("<r><k a='1'/><k b='2'/></r>"), "b:2");
}

TEST_F(ORVCADXmlFileSerializationTest, onlyChildrenOfTheRootAreFoundWhateverItsName)
{
    EXPECT_TRUE(record("<k a='1'><x><k a='2'/></x></k>").isNull());
    EXPECT_EQ(record("<any>text<k a='1'/><!-- c --></any>"), "a:1");
}

TEST_F(ORVCADXmlFileSerializationTest, writtenListReadsBackEmpty)
{
    written.writeRecordList("k", {"a:1", "b:2"});
    written.save({});
    EXPECT_EQ(list(written.content(), {"x"}), QStringList{"x"});
}

TEST_F(ORVCADXmlFileSerializationTest, listReadsTheOuterAttributesForEachChildOfItsFirstChild)
{
    EXPECT_EQ(list("<r><k a='1'><i b='2'><x/>text<y/></i><i><x/></i></k></r>"), (QStringList{"a:1", "a:1", "a:1"}));
    EXPECT_EQ(list("<r><k><i><x/><y/></i></k></r>"), (QStringList{"", ""}));
}

TEST_F(ORVCADXmlFileSerializationTest, listThatWouldGrowBeyondMeasureEndsEarly)
{
    const QString text =
        "<r><k a='" + QString("x").repeated(1 << 20) + "'><i>" + QString("<x/>").repeated(100000) + "</i></k></r>";
    EXPECT_EQ(list(text).size(), 15); // of 2^20 + 2 characters each, within 2^24
}

TEST_F(ORVCADXmlFileSerializationTest, layerNamesWithAndWithoutABarReadBackAsTheyWere)
{
    const RecordMap records{{"WALL", {"a:1"}}, {"PLAN|WALL", {"b:2"}}};
    EXPECT_EQ(readBack(records), records);
}

TEST_F(ORVCADXmlFileSerializationTest, anyAttributeWithLayerNameInItsNameIsAKeyByItsValue)
{
    EXPECT_EQ(map("<r><k><e mylayerName2='A|B' c='d'/></k></r>"), (RecordMap{{"c:d/A|B", {}}}));
}

TEST_F(ORVCADXmlFileSerializationTest, childOfAMapThatIsNoElementReadsAsEmpty)
{
    EXPECT_EQ(map("<r><k><!-- c --></k></r>"), (RecordMap{{"", {}}}));
    EXPECT_EQ(map("<r><k><e a='1'>text</e></k></r>"), (RecordMap{{"a:1", {""}}}));
}

TEST_F(ORVCADXmlFileSerializationTest, documentsParseOnlyWhenWellFormed)
{
    for (const char *text : {"<r/>", "<r>text</r>", "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<r/>", "<a:r/>"})
        EXPECT_TRUE(parsed(text)) << text;
    for (const char *text : {"", " ", "text", "<r>", "<r></s>", "<r/><r/>", "<r a=1/>", "<r a/>", "{}", "<", "&"})
        EXPECT_FALSE(parsed(text)) << text;
}

TEST_F(ORVCADXmlFileSerializationTest, documentTypeIsRefused)
{
    EXPECT_FALSE(parsed("<!DOCTYPE r><r/>"));
    EXPECT_FALSE(parsed("<!DOCTYPE r [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'>]><r>&b;</r>"));
}

TEST_F(ORVCADXmlFileSerializationTest, documentTypeIsRefusedInBytesThatDoNotSpellIt)
{
    // In these bytes "<!" stands nowhere, so only a look at the decoded text finds the document type.
    for (const char *codec : {"UTF-16BE", "UTF-16LE", "UTF-32"}) {
        const LocaleCodec local(codec);
        EXPECT_EQ(record("<r><k a='1'/></r>"), "a:1") << codec << ", which is parsed";
        EXPECT_FALSE(parsed("<!DOCTYPE r><r><k a='1'/></r>")) << codec;
    }
}

TEST_F(ORVCADXmlFileSerializationTest, documentTypeInADeclaredEncodingIsRefusedWhereTheEncodingIsKnown)
{
    if (!QTextCodec::codecForName("UTF-7"))
        GTEST_SKIP() << "no UTF-7 here";
    const QString declaration = "<?xml version='1.0' encoding='UTF-7'?>";
    EXPECT_EQ(record(declaration + "+ADw-r+AD4APA-k a='1'/+AD4APA-/r+AD4-"), "a:1"); // <r><k a='1'/></r>
    EXPECT_FALSE(parsed(declaration + "+ADwAIQ-DOCTYPE r+AD4-<r/>"));                // <!DOCTYPE r><r/>
}

TEST_F(ORVCADXmlFileSerializationTest, entitiesThatWouldGrowWithoutEndAreRefused)
{
    QString entities = "<!ENTITY a0 'aaaaaaaaaa'>";
    for (int i = 1; i < 20; ++i)
        entities += QStringLiteral("<!ENTITY a%1 '%2'>").arg(i).arg(QStringLiteral("&a%1;").arg(i - 1).repeated(10));
    EXPECT_FALSE(parsed("<!DOCTYPE r [" + entities + "]><r><k a='&a19;'/></r>"));
}

TEST_F(ORVCADXmlFileSerializationTest, moreThan256LevelsAreRefused)
{
    const auto nested = [](int levels) { return QString("<a>").repeated(levels) + QString("</a>").repeated(levels); };
    EXPECT_TRUE(parsed(nested(256)));
    EXPECT_FALSE(parsed(nested(257)));
    EXPECT_FALSE(parsed(nested(100000)));
    EXPECT_FALSE(parsed(QString("<a>").repeated(1000000)));
}

TEST_F(ORVCADXmlFileSerializationTest, failedParseLeavesNothingToRead)
{
    ORVCADXmlFileSerialization archive("<r><k a='1'/>");
    EXPECT_FALSE(archive.parse());
    QString record;
    archive.readRecord("k", record);
    EXPECT_TRUE(record.isNull());
}

TEST_F(ORVCADXmlFileSerializationTest, chineseReadsBackWhereTheLocalEncodingIsChinese)
{
    const QString layer = QString::fromUtf8("轴线");
    const QStringList records{QString::fromUtf8("text:砖墙 混凝土")};
    for (const char *codec : {"GB2312", "GBK", "GB18030"}) {
        const LocaleCodec local(codec);
        ORVCADXmlFileSerialization archive{QString()};
        RecordMap entries{{layer, records}};
        archive.writeRecordMap("k", entries);
        archive.save({});
        EXPECT_TRUE(archive.content().contains(layer)) << codec; // no change of code page on the way out
        EXPECT_EQ(map(archive.content()), entries) << codec;
    }
}

TEST_F(ORVCADXmlFileSerializationTest, chineseIsReadAsOtherCharactersWhereTheLocalEncodingIsUtf8)
{
    const LocaleCodec local("UTF-8");
    // The six bytes E8 BD B4 E7 BA BF taken for three characters of GB2312.
    EXPECT_EQ(readBack({{QString::fromUtf8("轴线"), {QString::fromUtf8("text:轴线")}}}),
              (RecordMap{{QString::fromUtf8("杞寸嚎"), {QString::fromUtf8("text:杞寸嚎")}}}));
}

TEST_F(ORVCADXmlFileSerializationTest, asciiReadsBackInEveryLocalEncoding)
{
    for (const char *codec : {"UTF-8", "GB18030", "ISO-8859-1", "Big5", "Shift_JIS"}) {
        const LocaleCodec local(codec);
        EXPECT_EQ(record("<r><k text='A-1 200'/></r>"), "text:A-1 200") << codec;
    }
}

TEST_F(ORVCADXmlFileSerializationTest, characterOutsideTheDeclaredEncodingReadsBackInEveryLocalEncoding)
{
    written.writeRecord("k", QString::fromUtf8("text:ð"));
    written.save({});
    EXPECT_TRUE(written.content().contains("text=\"&#xf0;\""));
    for (const char *codec : {"UTF-8", "GB18030"}) {
        const LocaleCodec local(codec);
        EXPECT_EQ(record(written.content()), QString::fromUtf8("text:ð")) << codec;
    }
}

TEST_F(ORVCADXmlFileSerializationTest, textThatTheLocalEncodingCannotHoldIsReadAsQuestionMarks)
{
    const LocaleCodec local("ISO-8859-1");
    EXPECT_EQ(record(QString::fromUtf8("<r><k text='墙'/></r>")), "text:?");
}

} // namespace
