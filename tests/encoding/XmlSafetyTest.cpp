#include "encoding/XmlSafety.h"

#include <gtest/gtest.h>

#include <QDomDocument>

using encoding::decodedXml;
using encoding::isSafeXml;

namespace {

bool isSafe(const char *text) { return isSafeXml(QString::fromUtf8(text)); }

QString nested(int levels, const QString &inner = {})
{
    return QString("<a>").repeated(levels) + inner + QString("</a>").repeated(levels);
}

TEST(XmlSafetyTest, plainDocumentsAreSafe)
{
    for (const char *text :
         {"", "no markup", "<a/>", "<?xml version=\"1.0\"?>\n<a b='1'><c/></a>", "<a>x<!-- y -->z</a>"})
        EXPECT_TRUE(isSafe(text)) << text;
}

TEST(XmlSafetyTest, documentTypeIsRefusedWhereverItStands)
{
    for (const char *text : {"<!DOCTYPE a><a/>", "<?xml version='1.0'?><!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>",
                             "<!-- x --><!DOCTYPE a><a/>", "<a><!ELEMENT b ANY></a>", "<!doctype a><a/>", "<a><!"})
        EXPECT_FALSE(isSafe(text)) << text;
}

TEST(XmlSafetyTest, whatOnlyLooksLikeADocumentTypeIsSafe)
{
    for (const char *text : {"<a><!-- <!DOCTYPE a> --></a>", "<a><![CDATA[<!DOCTYPE a>]]></a>", "<a b='<!DOCTYPE a>'/>",
                             "<a b=\"<!DOCTYPE a>\"/>", "<?pi <!DOCTYPE a> ?><a/>"})
        EXPECT_TRUE(isSafe(text)) << text;
}

TEST(XmlSafetyTest, twoHundredFiftySixLevelsAreLetThroughAndNoMore)
{
    EXPECT_TRUE(isSafeXml(nested(256)));
    EXPECT_FALSE(isSafeXml(nested(257)));
    EXPECT_TRUE(isSafeXml(nested(255, "<b/>")));
    EXPECT_FALSE(isSafeXml(nested(256, "<b/>")));
    EXPECT_FALSE(isSafeXml(QString("<a>").repeated(100000)));
}

TEST(XmlSafetyTest, siblingsAndMarkupInSectionsAreNoLevels)
{
    EXPECT_TRUE(isSafeXml("<a>" + QString("<b>x</b><c d='>'/>").repeated(1000) + "</a>"));
    EXPECT_TRUE(isSafeXml("<a><!--" + QString("<b>").repeated(1000) + "--></a>"));
    EXPECT_TRUE(isSafeXml("<a><![CDATA[" + QString("<b>").repeated(1000) + "]]></a>"));
}

TEST(XmlSafetyTest, processingInstructionsAreNoLevelsAndHaveNoQuotes)
{
    EXPECT_TRUE(isSafeXml(QString("<?a b?>").repeated(1000) + "<c/>"));
    EXPECT_TRUE(isSafeXml("<?a " + QString("<b>").repeated(1000) + "?><c/>"));
    EXPECT_FALSE(isSafe("<?a it's?><!DOCTYPE b><c/>"));
}

TEST(XmlSafetyTest, endTagsTooManyDoNotMakeRoomForMoreLevels)
{
    EXPECT_FALSE(isSafeXml(QString("</a>").repeated(1000) + nested(257)));
}

TEST(XmlSafetyTest, slashOrBracketInAValueEndsNoElement)
{
    EXPECT_FALSE(isSafeXml(QString("<a b='/>'>").repeated(257)));
    EXPECT_FALSE(isSafeXml(QString("<a b=\"'/>\">").repeated(257)));
}

TEST(XmlSafetyTest, truncatedMarkupEndsTheWalk)
{
    for (const char *text : {"<", "<a", "<a b='", "<!--", "<!-- -", "<![CDATA[", "<?", "</"})
        EXPECT_TRUE(isSafe(text)) << text;
}

TEST(XmlSafetyTest, hugeTextIsWalkedOnce)
{
    EXPECT_TRUE(isSafeXml("<a>" + QString("<b c='1'/>").repeated(500000) + "</a>"));
}

TEST(XmlSafetyTest, bytesAreDecodedAsTheyDeclare)
{
    EXPECT_EQ(decodedXml("<?xml version=\"1.0\" encoding=\"GB2312\"?><a b=\"\xd6\xe1\"/>"),
              QString::fromUtf8("<?xml version=\"1.0\" encoding=\"GB2312\"?><a b=\"轴\"/>"));
    EXPECT_EQ(decodedXml("<a b='\xe8\xbd\xb4'/>"), QString::fromUtf8("<a b='轴'/>"));
}

/** What the parser makes of bytes by itself and of the decoded text is the same, verdict and content. */
TEST(XmlSafetyTest, decodedTextIsWhatTheParserSees)
{
    const QByteArray body = "<a b='\xe8\xbd\xb4\xd6\xe1\xff x'>\xc3\xa9</a>";
    for (const char *encoding :
         {"UTF-8", "GB2312", "gbk", "ISO-8859-1", "UTF-16", "UTF-16LE", "UTF-7", "unknown", ""}) {
        const QByteArray bytes = "<?xml version='1.0' encoding='" + QByteArray(encoding) + "'?>" + body;
        QDomDocument ofBytes;
        QDomDocument ofText;
        EXPECT_EQ(ofBytes.setContent(bytes, false), ofText.setContent(decodedXml(bytes), false)) << encoding;
        EXPECT_EQ(ofBytes.toString(), ofText.toString()) << encoding;
    }
}

} // namespace
