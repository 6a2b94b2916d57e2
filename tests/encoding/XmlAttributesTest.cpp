#include "encoding/XmlAttributes.h"

#include <gtest/gtest.h>

#include <QDomDocument>
#include <QStringList>

namespace {

/** name=value, joined by blanks. */
std::string attributes(const QString &xml)
{
    QDomDocument document;
    EXPECT_TRUE(document.setContent(xml));
    QStringList texts;
    for (const encoding::XmlAttribute &one : encoding::attributesOf(document.documentElement()))
        texts.append(one.name + '=' + one.value);
    return texts.join(' ').toStdString();
}

/** So many attributes, and what must be told of them. */
std::pair<QString, std::string> many(int count)
{
    QString xml = "<e";
    QStringList texts;
    for (int i = count; i > 0; --i) {
        xml += QStringLiteral(" a%1='&quot; &lt;= %1'").arg(100000 + i);
        texts.prepend(QStringLiteral("a%1=\" <= %1").arg(100000 + i));
    }
    return {xml + "><child x='1'/></e>", texts.join(' ').toStdString()};
}

TEST(XmlAttributesTest, standInTheOrderOfTheirNames)
{
    EXPECT_EQ(attributes("<e z='1' a='2' m=''/>"), "a=2 m= z=1");
    EXPECT_EQ(attributes("<e/>"), "");
}

TEST(XmlAttributesTest, fewAndManyAreToldAlike)
{
    for (const int count : {63, 64, 65, 1000, 100000}) {
        const auto [xml, expected] = many(count);
        EXPECT_EQ(attributes(xml), expected) << count;
    }
}

TEST(XmlAttributesTest, nullHasNone) { EXPECT_TRUE(encoding::attributesOf(QDomElement()).empty()); }

} // namespace
