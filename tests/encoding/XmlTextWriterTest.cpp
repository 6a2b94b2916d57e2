#include "encoding/XmlTextWriter.h"

#include <gtest/gtest.h>

#include <QDomDocument>

#include <initializer_list>
#include <random>
#include <utility>

using encoding::XmlTextWriter;

namespace {

/** Value as it stands between the quotes. */
QString escaped(const QString &value, const char *encoding = "GB2312")
{
    XmlTextWriter writer(encoding);
    const QString name = "n";
    writer.startElement(name);
    writer.attribute(name, value);
    writer.endElement();
    const QString text = writer.text();
    return text.mid(6, text.size() - 6 - 4); // <n n="…"/> and the line's end
}

/** The same by QDomDocument. */
QString escapedByDom(const QString &value, const QString &encoding)
{
    QDomDocument document;
    document.appendChild(document.createProcessingInstruction("xml", "encoding=\"" + encoding + "\""));
    QDomElement element = document.createElement("n");
    element.setAttribute("n", value);
    document.appendChild(element);
    const QString text = document.toString(1);
    const int start = text.indexOf("<n n=\"") + 6;
    return text.mid(start, text.size() - start - 4);
}

TEST(XmlTextWriterTest, elementsAreIndentedByOneBlankForEachLevel)
{
    XmlTextWriter writer("GB2312", 1);
    writer.startElement(u"a");
    writer.startElement(u"b");
    writer.attribute(u"x", u"1");
    writer.endElement();
    writer.startElement(u"c");
    writer.startElement(u"d");
    writer.endElement();
    writer.endElement();
    writer.endElement();
    EXPECT_EQ(writer.text(), " <a>\n  <b x=\"1\"/>\n  <c>\n   <d/>\n  </c>\n </a>\n");
}

/** The text of an element "a" whose attributes are set one by one. */
QString elementWith(std::initializer_list<std::pair<QStringView, QStringView>> attributes)
{
    XmlTextWriter writer("GB2312");
    writer.startElement(u"a");
    for (const auto &[name, value] : attributes)
        writer.attribute(name, value);
    writer.endElement();
    return writer.text();
}

TEST(XmlTextWriterTest, attributesStandInTheOrderOfSetting)
{
    EXPECT_EQ(elementWith({{u"z", u""}, {u"a", u""}, {u"m", u""}}), "<a z=\"\" a=\"\" m=\"\"/>\n");
}

TEST(XmlTextWriterTest, attributeSetTwiceKeepsItsPlaceAndTakesTheNewValue)
{
    EXPECT_EQ(elementWith({{u"x", u"1"}, {u"y", u"2"}, {u"x", u"3"}}), "<a x=\"3\" y=\"2\"/>\n");
}

TEST(XmlTextWriterTest, attributeSetTwiceAmongManyIsFound)
{
    QStringList names;
    for (int i = 0; i < 100; ++i)
        names.append(QStringLiteral("a%1").arg(i));
    XmlTextWriter writer("GB2312");
    writer.startElement(u"a");
    for (const QString &name : names + names)
        writer.attribute(name, u"1");
    writer.attribute(names[70], u"2");
    writer.endElement();
    EXPECT_EQ(writer.text().count('='), 100);
    EXPECT_TRUE(writer.text().contains(" a70=\"2\" a71=\"1\""));
}

TEST(XmlTextWriterTest, attributeWithoutANameIsNotWritten) { EXPECT_EQ(elementWith({{u"", u"1"}}), "<a/>\n"); }

TEST(XmlTextWriterTest, namesGoOutAsTheyAre)
{
    EXPECT_EQ(elementWith({{u"3,", u""}, {u"b <c", u""}}), "<a 3,=\"\" b <c=\"\"/>\n");
}

TEST(XmlTextWriterTest, markupAndLineBreaksAreEscapedInValues)
{
    EXPECT_EQ(escaped("a<b>c&d\"e'f"), "a&lt;b>c&amp;d&quot;e'f");
    EXPECT_EQ(escaped("]]> ]>"), "]]&gt; ]>");
    EXPECT_EQ(escaped("\t\n\r"), "&#x9;&#xa;&#xd;");
}

TEST(XmlTextWriterTest, charactersThatTheEncodingLacksBecomeReferences)
{
    EXPECT_EQ(escaped(QString::fromUtf8("墙")), QString::fromUtf8("墙"));
    EXPECT_EQ(escaped(QString::fromUtf8("ð")), "&#xf0;");
    EXPECT_EQ(escaped(QString::fromUtf8("ð墙"), "ISO-8859-1"), QString::fromUtf8("ð&#x5899;"));
    EXPECT_EQ(escaped(QString::fromUtf8("ð墙"), "no such encoding"), QString::fromUtf8("ð墙"));
}

TEST(XmlTextWriterTest, writesEveryCharacterAsQDomDocumentDoes)
{
    for (const char *encoding : {"GB2312", "UTF-8"})
        for (int code = 1; code < 0xd800; code += code < 0x3000 ? 1 : 7)
            ASSERT_EQ(escaped(QString(QChar(code)), encoding), escapedByDom(QString(QChar(code)), encoding)) << code;
}

TEST(XmlTextWriterTest, writesRandomTextsAsQDomDocumentDoes)
{
    const QString alphabet = QString::fromUtf8("ab]]>><&\"' \t\n墙轴柱éð€");
    std::mt19937 random(7);
    for (int run = 0; run < 2000; ++run) {
        QString text;
        for (auto i = random() % 12; i > 0; --i)
            text += alphabet[static_cast<int>(random() % static_cast<std::size_t>(alphabet.size()))];
        ASSERT_EQ(escaped(text), escapedByDom(text, "GB2312")) << qPrintable(text);
    }
}

} // namespace
